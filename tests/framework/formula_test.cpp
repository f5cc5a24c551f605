// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_positioningredient.h>
#include <QuvFramework/fw_turntable.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QVariant>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <tuple>

namespace {

using pouring::dispenser;
using testing::ElementsAre;
using values::arrayOf;
using values::structOf;
using values::XmlRpcValue;

using Items = std::initializer_list<FormulaItem>;

Formula formulaOf(int type, int unit, Items items)
{
    Formula formula;
    formula.setFormulaType(type);
    formula.setQuantityUnit(unit);
    formula.setItems(items);
    return formula;
}

Formula positions(Items items)
{
    return formulaOf(Formula::CircuitPositions, Formula::WeightOrVolume, items);
}

Formula colorants(Items items)
{
    return formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, items);
}

CircuitFormulaItemList itemsOf(const Formula &formula, const FW_Dispenser &machine = dispenser())
{
    CircuitFormulaItemList items;
    FW_DriverError error;
    EXPECT_TRUE(formula.getCircuitFormulaItems(items, &machine, &error)) << error.text().toStdString();
    return items;
}

/** Position and steps of each circuit. */
std::vector<std::pair<int, long long>> stepsOf(const Formula &formula)
{
    std::vector<std::pair<int, long long>> steps;
    for (const CircuitFormulaItem &item : itemsOf(formula))
        steps.emplace_back(item.positionId(), item.steps());
    return steps;
}

/** The only circuit of the formula. */
CircuitFormulaItem onlyItem(const Formula &formula)
{
    const CircuitFormulaItemList items = itemsOf(formula);
    EXPECT_EQ(items.size(), 1);
    return items.isEmpty() ? CircuitFormulaItem() : items.constFirst();
}

template <class Number>
using Told = std::pair<Number, bool>;

Told<long long> steps(const CircuitFormulaItem &item)
{
    bool ok = false;
    const long long value = item.steps(&ok);
    return {value, ok};
}

Told<int> strokes(const CircuitFormulaItem &item)
{
    bool ok = false;
    const int value = item.strokes(&ok);
    return {value, ok};
}

Told<int> speed(const CircuitFormulaItem &item)
{
    bool ok = false;
    const int value = item.speed(&ok);
    return {value, ok};
}

Told<int> valve(const CircuitFormulaItem &item)
{
    bool ok = false;
    const int value = item.nozzleValveID(&ok);
    return {value, ok};
}

void expectError(const Formula &formula, const FW_Dispenser *machine, const char *code, const char *text)
{
    CircuitFormulaItemList items;
    CanisterFormulaItemList canisters;
    Formula negative = formula;
    Formula byPositions;
    for (int operation = 0; operation < 5; ++operation) {
        FW_DriverError error;
        const bool done = operation == 0   ? formula.getCircuitFormulaItems(items, machine, error)
                          : operation == 1 ? formula.getCircuitFormulaItems(items, 1, machine, &error)
                          : operation == 2 ? formula.getCanisterItems(&canisters, machine, &error)
                          : operation == 3 ? negative.convertToNegativeQuantities(machine, error)
                                           : formula.convertToCircuitPositions(byPositions, machine, &error);
        EXPECT_FALSE(done) << operation;
        EXPECT_EQ(error.code(), code) << operation;
        EXPECT_EQ(error.text(), text) << operation;
    }
    EXPECT_FALSE(formula.getCircuitFormulaItems(items, machine, nullptr));
    EXPECT_FALSE(formula.getCanisterItems(nullptr, machine, nullptr));
    EXPECT_TRUE(negative == formula); // as it was
    EXPECT_TRUE(byPositions == Formula());
    int result = 77;
    EXPECT_FALSE(formula.checkDispenserLevels(machine, &result, true));
    EXPECT_EQ(result, 77);
}

bool isRefused(const XmlRpcValue &value)
{
    try {
        const Formula formula(value);
    } catch (const std::invalid_argument &) {
        return true;
    }
    return false;
}

// --- the formula by itself

TEST(Formula, beginsEmpty)
{
    const Formula formula;
    EXPECT_TRUE(formula.isEmpty());
    EXPECT_EQ(formula.formulaType(), 1);
    EXPECT_EQ(formula.quantityUnit(), 3);
    EXPECT_EQ(formula.executionCriterion(), 0);
    EXPECT_EQ(formula.levelsManagementPolicy(), 0);
    EXPECT_EQ(formula.decimals(), 3);
    Formula changed = colorants({{"B", 1}});
    changed.setExecutionCriterion(2);
    changed.setDefaults();
    EXPECT_TRUE(changed == formula);
}

TEST(Formula, anyChangeMakesItAnother)
{
    const Formula original = positions({{"1", 2, 3, 4}});
    const std::vector<void (*)(Formula &)> changes = {
        [](Formula &f) { f.setFormulaType(2); },
        [](Formula &f) { f.setQuantityUnit(1); },
        [](Formula &f) { f.setExecutionCriterion(1); },
        [](Formula &f) { f.setLevelsManagementPolicy(2); },
        [](Formula &f) { f.setDecimals(2); },
        [](Formula &f) {
            f.setItems({{"9", 2, 3, 4}});
        },
        [](Formula &f) {
            f.setItems({{"1", 9, 3, 4}});
        },
        [](Formula &f) {
            f.setItems({{"1", 2, 9, 4}});
        },
        [](Formula &f) {
            f.setItems({{"1", 2, 3, 9}});
        },
        [](Formula &f) {
            f.setItems({{"1", 2, 3, 4, 9}});
        },
        [](Formula &f) {
            f.addItem({"1", 2, 3, 4});
        },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        Formula changed = original;
        EXPECT_TRUE(changed == original);
        changes[i](changed);
        EXPECT_TRUE(changed != original) << i;
        EXPECT_FALSE(changed == original) << i;
    }
}

TEST(Formula, numbersThatThereAre)
{
    for (int number = -1; number <= 65; ++number) {
        EXPECT_EQ(Formula::checkFormulaType(number), number >= 1 && number <= 4) << number;
        EXPECT_EQ(Formula::checkQuantityUnit(number), number >= 0 && number <= 3) << number;
        EXPECT_EQ(Formula::checkExecutionCriterion(number),
                  number == 0 || number == 1 || number == 2 || number == 8 || number == 16)
            << number;
    }
}

TEST(Formula, criterionOfAReport)
{
    const std::pair<int, int> table[] = {{0, 0},  {1, 1},  {2, 2},  {8, 8},  {16, 16},
                                         {64, 0}, {65, 1}, {66, 2}, {72, 8}, {80, 16}};
    for (const auto &[reported, criterion] : table)
        EXPECT_EQ(Formula::convertExecutionCriterionFromFw(reported), criterion) << reported;
}

TEST(Formula, negativeAndNullQuantities)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_FALSE(positions({}).hasNegativeValues());
    EXPECT_FALSE(positions({}).hasNullValues());
    EXPECT_FALSE(positions({{"1", 0}, {"2", 1}}).hasNegativeValues(&machine));
    EXPECT_TRUE(positions({{"1", 0}, {"2", 1}}).hasNullValues());
    EXPECT_TRUE(positions({{"1", 1}, {"2", -0.001}}).hasNegativeValues(&machine));
    EXPECT_TRUE(positions({{"1", 1}, {"2", -0.001}}).hasNegativeValues(nullptr));
    EXPECT_FALSE(positions({{"1", 1}, {"2", -0.001}}).hasNullValues());
}

// --- made of lists

TEST(Formula, ofLists)
{
    QList<QString> ids = {"B", "KX"};
    QList<QVariant> quantities = {12, 0.5};
    QList<int> queues = {3, 0};
    const Formula formula(ids, quantities, queues, 4, 3, 8, 2, 2, {0, 5});
    EXPECT_EQ(formula.formulaType(), 4);
    EXPECT_EQ(formula.quantityUnit(), 3);
    EXPECT_EQ(formula.executionCriterion(), 8);
    EXPECT_EQ(formula.decimals(), 2);
    EXPECT_EQ(formula.levelsManagementPolicy(), 2);
    EXPECT_TRUE((formula.items() == QVector<FormulaItem>{{"B", 12, 3, 0}, {"KX", 0.5, 0, 5}}));

    QList<int> none;
    const Formula plain(ids, quantities, none, 4, 3, 0, 3, 0, {});
    EXPECT_TRUE((plain.items() == QVector<FormulaItem>{{"B", 12, 0, 0}, {"KX", 0.5, 0, 0}}));
}

TEST(Formula, listsTakeNumbersOfAnyType)
{
    const QVariant numbers[] = {QVariant(7),    QVariant(7U),  QVariant(7LL),
                                QVariant(7ULL), QVariant(7.0), QVariant(7.0F)};
    for (const QVariant &number : numbers) {
        QList<QString> ids = {"1"};
        QList<QVariant> quantities = {number};
        QList<int> queues;
        EXPECT_EQ(Formula(ids, quantities, queues, 1, 1, 0, 0, 0, {}).items().at(0).quantity, 7)
            << number.typeName();
    }
    QList<QString> ids = {"1"};
    QList<QVariant> quantities = {9007199254740992LL};
    QList<int> queues;
    EXPECT_EQ(Formula(ids, quantities, queues, 1, 1, 0, 0, 0, {}).items().at(0).quantity, 9007199254740992.0);
}

TEST(Formula, listsThatAreNoFormula)
{
    const double infinity = std::numeric_limits<double>::infinity();
    struct Bad
    {
        QList<QVariant> quantities{1.0};
        QList<int> queues{};
        QList<int> valves{};
        int type = 1;
        int unit = 3;
        int criterion = 0;
        int decimals = 3;
    };
    const Bad good;
    std::vector<Bad> all(17, good);
    all[0].quantities = {};
    all[1].quantities = {1.0, 2.0};
    all[2].quantities = {QStringLiteral("1")};
    all[3].quantities = {true};
    all[4].quantities = {QVariant()};
    all[5].quantities = {infinity};
    all[6].quantities = {9007199254740993LL};
    all[7].queues = {1, 2};
    all[8].valves = {1, 2};
    all[9].type = 0;
    all[10].type = 5;
    all[11].unit = -1;
    all[12].unit = 4;
    all[13].criterion = 3;
    all[14].decimals = -1;
    all[15].decimals = 10;
    all[16].criterion = 64;
    const auto make = [](Bad lists) {
        QList<QString> ids = {"1"};
        return Formula(ids, lists.quantities, lists.queues, lists.type, lists.unit, lists.criterion,
                       lists.decimals, 0, lists.valves);
    };
    EXPECT_EQ(make(good).items().size(), 1);
    for (std::size_t i = 0; i < all.size(); ++i)
        EXPECT_THROW(make(all[i]), std::invalid_argument) << i;
}

// --- over XML-RPC

TEST(Formula, isAStructOverXmlRpc)
{
    Formula formula = colorants({{"B", 12.5}, {"KX", 0.3}});
    bool ok = false;
    EXPECT_TRUE(SameXmlRpcValue(formula.toXmlRpcValue(&ok), structOf({{"formula_type", 4},
                                                                      {"quantity_unit", 3},
                                                                      {"ids", arrayOf({"B", "KX"})},
                                                                      {"quantities", arrayOf({12.5, 0.3})},
                                                                      {"exec_criterion", 0},
                                                                      {"levels_policy", 0},
                                                                      {"decimals", 3}})));
    EXPECT_TRUE(ok);

    formula = formulaOf(Formula::CircuitIDs, Formula::Steps, {{"11", 300, 2, 0}, {"12", 10, 0, 7}});
    formula.setExecutionCriterion(16);
    formula.setLevelsManagementPolicy(2);
    formula.setDecimals(1);
    EXPECT_TRUE(SameXmlRpcValue(formula.toXmlRpcValue(), structOf({{"formula_type", 2},
                                                                   {"quantity_unit", 1},
                                                                   {"ids", arrayOf({"11", "12"})},
                                                                   {"quantities", arrayOf({300.0, 10.0})},
                                                                   {"queue_ids", arrayOf({2, 0})},
                                                                   {"nozzle_valves", arrayOf({0, 7})},
                                                                   {"exec_criterion", 16},
                                                                   {"levels_policy", 2},
                                                                   {"decimals", 1}})));
    EXPECT_TRUE(Formula(formula.toXmlRpcValue()) == formula);
    EXPECT_TRUE(Formula(Formula().toXmlRpcValue()) == Formula());
}

TEST(Formula, sendsSpeedsWhenAnItemHasOne)
{
    const Formula formula = positions({{"1", 2, 0, 0, 40}, {"2", 3}});
    const XmlRpcValue value = formula.toXmlRpcValue();
    EXPECT_TRUE(SameXmlRpcValue(value["speeds"], arrayOf({40, 0})));
    EXPECT_TRUE(Formula(value) == formula);
}

TEST(Formula, readsAStruct)
{
    const Formula formula(
        structOf({{"formula_type", 3},
                  {"quantity_unit", 2},
                  {"ids", arrayOf({4, "caf\xe9"})}, // an int as well; a text that is no UTF-8
                  {"quantities", arrayOf({3, -0.5})},
                  {"queue_ids", arrayOf({})},
                  {"nozzle_valves", arrayOf({1, 2})},
                  {"something_else", true}}));
    EXPECT_EQ(formula.formulaType(), 3);
    EXPECT_EQ(formula.quantityUnit(), 2);
    EXPECT_EQ(formula.executionCriterion(), 0);
    EXPECT_EQ(formula.levelsManagementPolicy(), 0);
    EXPECT_EQ(formula.decimals(), 3);
    EXPECT_TRUE((formula.items() ==
                 QVector<FormulaItem>{{"4", 3, 0, 1}, {QString::fromLatin1("caf\xe9"), -0.5, 0, 2}}));
}

TEST(Formula, readsNamesToTheLetter)
{
    const auto read = [](const XmlRpcValue &name) {
        const Formula formula(structOf({{"formula_type", 1},
                                        {"quantity_unit", 3},
                                        {"ids", arrayOf({name})},
                                        {"quantities", arrayOf({1.0})}}));
        return formula.items().constFirst().id;
    };
    for (const char *name : {"", "0", "7", "07", "244", "255", "256", "0255", "999999999", "4294967303", "-1",
                             "+7", " 7", "7 ", "7a", "B", "\x37\x2e\x30"}) {
        EXPECT_EQ(read(XmlRpcValue(name)), QString::fromLatin1(name));
    }
    EXPECT_EQ(read(XmlRpcValue(std::string("7\0", 2))), QString("7") + QChar(0));
    EXPECT_EQ(read(XmlRpcValue(0)), "0");
    EXPECT_EQ(read(XmlRpcValue(255)), "255");
    EXPECT_EQ(read(XmlRpcValue(256)), "256");
    EXPECT_EQ(read(XmlRpcValue(-5)), "-5");
    // the names of two formulas are not one text
    Formula first = positions({{"7", 1}});
    first = Formula(first.toXmlRpcValue());
    QVector<FormulaItem> items = first.items();
    items[0].id.append("x");
    EXPECT_EQ(first.items().constFirst().id, "7");
    EXPECT_EQ(read(XmlRpcValue("7")), "7");
}

TEST(Formula, valuesThatAreNone)
{
    const XmlRpcValue good = structOf({{"formula_type", 1},
                                       {"quantity_unit", 3},
                                       {"ids", arrayOf({"1", "2"})},
                                       {"quantities", arrayOf({1.0, 2.0})}});
    EXPECT_FALSE(isRefused(good));
    for (const XmlRpcValue &value : {XmlRpcValue(), XmlRpcValue(1), XmlRpcValue("formula"), arrayOf({good})})
        EXPECT_TRUE(isRefused(value));

    for (const char *key : {"formula_type", "quantity_unit", "ids", "quantities"}) {
        XmlRpcValue cut;
        for (const auto &[name, member] : good) {
            if (name != key)
                cut[name] = member;
        }
        EXPECT_TRUE(isRefused(cut)) << key;
    }

    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<const char *, XmlRpcValue> bad[] = {
        {"formula_type", 0},
        {"formula_type", 5},
        {"formula_type", "1"},
        {"formula_type", 1.0},
        {"quantity_unit", -1},
        {"quantity_unit", 4},
        {"quantity_unit", true},
        {"ids", "1"},
        {"ids", arrayOf({"1"})},
        {"ids", arrayOf({"1", 2.0})},
        {"ids", arrayOf({"1", arrayOf({})})},
        {"quantities", 1.0},
        {"quantities", arrayOf({1.0})},
        {"quantities", arrayOf({1.0, 2.0, 3.0})},
        {"quantities", arrayOf({1.0, "2"})},
        {"quantities", arrayOf({1.0, true})},
        {"quantities", arrayOf({1.0, infinity})},
        {"quantities", arrayOf({1.0, std::nan("")})},
        {"queue_ids", 1},
        {"queue_ids", arrayOf({1})},
        {"queue_ids", arrayOf({1, "2"})},
        {"nozzle_valves", "x"},
        {"nozzle_valves", arrayOf({1, 2, 3})},
        {"nozzle_valves", arrayOf({1, 2.0})},
        {"speeds", 40},
        {"speeds", arrayOf({40})},
        {"speeds", arrayOf({40, "50"})},
        {"exec_criterion", 3},
        {"exec_criterion", "2"},
        {"levels_policy", 2.0},
        {"decimals", -1},
        {"decimals", 10},
        {"decimals", "3"},
    };
    for (const auto &[key, member] : bad) {
        XmlRpcValue value = good;
        value[key] = member;
        EXPECT_TRUE(isRefused(value)) << key << " " << member.getType();
    }
}

TEST(Formula, travelsInAVariant)
{
    Formula formula = colorants({{"B", 12.5, 3, 0}});
    formula.setDecimals(1);
    EXPECT_EQ(QMetaType::type("Formula"), qMetaTypeId<Formula>());
    const QVariant variant = QVariant::fromValue(formula);
    EXPECT_TRUE(variant.value<Formula>() == formula);
    EXPECT_TRUE(variant == QVariant::fromValue(formula));
    EXPECT_TRUE(variant != QVariant::fromValue(Formula()));

    const QVariantMap map = {{"formula_type", 4},
                             {"quantity_unit", 3},
                             {"ids", QVariantList{"B"}},
                             {"quantities", QVariantList{12.5}},
                             {"queue_ids", QVariantList{3}},
                             {"exec_criterion", 0},
                             {"levels_policy", 0},
                             {"decimals", 1}};
    EXPECT_TRUE(QVariant(map).canConvert<Formula>());
    EXPECT_TRUE(QVariant(map).value<Formula>() == formula);
    EXPECT_EQ(variant.toMap(), map);
    EXPECT_TRUE(SameXmlRpcValue(EncodeXmlRpcVariant(variant), formula.toXmlRpcValue()));
    EXPECT_THROW(QVariant(QVariantMap{{"ids", 5}}).value<Formula>(), std::invalid_argument);
}

// --- against a machine

TEST(Formula, whatFourTypesOfItemsName)
{
    const auto byType = [](int type, Items items) {
        return stepsOf(formulaOf(type, Formula::WeightOrVolume, items));
    };
    using Expected = std::vector<std::pair<int, long long>>;
    EXPECT_EQ(byType(Formula::CircuitPositions, {{"2", 5.5}, {"5", 1}}), (Expected{{2, 500}, {5, 100}}));
    EXPECT_EQ(byType(Formula::CircuitIDs, {{"32", 5.5}, {"12", 1}}), (Expected{{5, 500}, {2, 100}}));
    // canister 3's first circuit is disabled
    EXPECT_EQ(byType(Formula::CanisterIDs, {{"1", 5.5}, {"3", 1}}), (Expected{{1, 500}, {5, 100}}));
    EXPECT_EQ(byType(Formula::ColorantCodes, {{"KX", 5.5}, {"B", 1}}), (Expected{{5, 500}, {1, 100}}));
    EXPECT_EQ(byType(Formula::ColorantCodes, {}), Expected());
}

TEST(Formula, aColorantComesFromTheFirstCanisterThatHoldsEnough)
{
    const auto positionOf = [](int unit, Items items) {
        return onlyItem(formulaOf(Formula::ColorantCodes, unit, items)).positionId();
    };
    EXPECT_EQ(positionOf(Formula::WeightOrVolume, {{"B", 500}}), 1);
    EXPECT_EQ(positionOf(Formula::WeightOrVolume, {{"B", 500.1}}), 3);
    EXPECT_EQ(positionOf(Formula::WeightOrVolume, {{"B", 800}}), 3);
    EXPECT_EQ(positionOf(Formula::WeightOrVolume, {{"B", 800.1}}), 1);
    EXPECT_EQ(positionOf(Formula::WeightOrVolume, {{"B", 300}, {"B", 300}}), 3); // 600 together
    // 81 steps a gram: 40500 steps are 500 g
    EXPECT_EQ(positionOf(Formula::Steps, {{"B", 40500}}), 1);
    EXPECT_EQ(positionOf(Formula::Steps, {{"B", 40600}}), 3);
    EXPECT_EQ(positionOf(Formula::Strokes, {{"B", 41}}), 3);

    FW_Dispenser machine = dispenser();
    machine.getCanisterById(1)->setEnabled(false);
    EXPECT_EQ(itemsOf(colorants({{"B", 1}}), machine).at(0).positionId(), 3);
    machine = dispenser();
    for (FW_Circuit &circuit : machine.getCanisterById(1)->circuits())
        circuit.setEnabled(false);
    EXPECT_EQ(itemsOf(colorants({{"B", 1}}), machine).at(0).positionId(), 3);
}

TEST(Formula, whatNamesOneCircuitTwiceIsAddedUp)
{
    const CircuitFormulaItemList items =
        itemsOf(positions({{"1", 5.5, 7, 1}, {"3", 1}, {"1", 4.5, 8, 2}, {"2", 1}}));
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items.at(0).positionId(), 1);
    EXPECT_EQ(items.at(0).steps(), 900); // 10 g
    EXPECT_EQ(items.at(0).queueID(), 7); // as the first of them says
    EXPECT_EQ(items.at(0).nozzleValveID(), 1);
    EXPECT_EQ(items.at(1).positionId(), 3);
    EXPECT_EQ(items.at(2).positionId(), 2);
    // canister 1 pours through circuit 11, whoever asks
    EXPECT_EQ(stepsOf(formulaOf(Formula::CanisterIDs, Formula::Steps, {{"1", 10}, {"1", 5}})),
              (std::vector<std::pair<int, long long>>{{1, 15}}));
}

TEST(Formula, byWeightOrVolume)
{
    for (const int unit : {Formula::WeightOrVolume, Formula::MachineUnit}) {
        const CircuitFormulaItem item = onlyItem(formulaOf(Formula::CircuitPositions, unit, {{"1", 5.5}}));
        EXPECT_EQ(steps(item), Told<long long>(500, true));
        EXPECT_EQ(strokes(item), Told<int>(1, true)); // half of a stroke of 1000
        EXPECT_EQ(speed(item), Told<int>(40, true));
        EXPECT_EQ(valve(item), Told<int>(2, true));
        EXPECT_EQ(item.queueID(), 1);
        EXPECT_EQ(item.currentCheckLevelSteps(), 40500); // 500 g
        EXPECT_EQ(item.id(), 11);
    }
}

TEST(Formula, bySteps)
{
    const auto bySteps = [](const FormulaItem &asked) {
        return onlyItem(formulaOf(Formula::CircuitPositions, Formula::Steps, {asked}));
    };
    const CircuitFormulaItem item = bySteps({"1", 1499});
    EXPECT_EQ(steps(item), Told<long long>(1499, true));
    EXPECT_EQ(strokes(item), Told<int>(1, true));
    EXPECT_EQ(speed(item), Told<int>(50, true)); // the motor's greatest
    EXPECT_EQ(valve(item), Told<int>(0, true));
    EXPECT_EQ(steps(bySteps({"1", 12.5})), Told<long long>(13, true));
    EXPECT_EQ(steps(bySteps({"1", 0})), Told<long long>(0, true));
    EXPECT_EQ(steps(bySteps({"1", 1e17})), Told<long long>(0, false));
    EXPECT_EQ(strokes(bySteps({"1", 9e15})), Told<int>(0, false));
    EXPECT_EQ(steps(bySteps({"8", 20})), Told<long long>(20, true)); // needs no calibration
    EXPECT_EQ(speed(bySteps({"8", 20})), Told<int>(50, true));
    EXPECT_EQ(strokes(bySteps({"8", 20})), Told<int>(0, false));
}

TEST(Formula, byStrokes)
{
    const auto byStrokes = [](const FormulaItem &asked) {
        return onlyItem(formulaOf(Formula::CircuitPositions, Formula::Strokes, {asked}));
    };
    const CircuitFormulaItem item = byStrokes({"1", 3});
    EXPECT_EQ(strokes(item), Told<int>(3, true));
    EXPECT_EQ(steps(item), Told<long long>(3000, true));
    EXPECT_EQ(speed(item), Told<int>(50, true));
    EXPECT_EQ(strokes(byStrokes({"1", 2.5})), Told<int>(3, true));
    EXPECT_EQ(steps(byStrokes({"1", 2.5})), Told<long long>(3000, true)); // whole strokes
    EXPECT_EQ(strokes(byStrokes({"8", 3})), Told<int>(3, true));
    EXPECT_EQ(steps(byStrokes({"8", 3})), Told<long long>(0, false)); // nobody knows their length
    EXPECT_EQ(strokes(byStrokes({"1", 3e9})), Told<int>(0, false));
}

TEST(Formula, withoutCalibrationTheItemTellsSo)
{
    const CircuitFormulaItem item = onlyItem(positions({{"8", 1}}));
    EXPECT_EQ(steps(item), Told<long long>(0, false));
    EXPECT_EQ(strokes(item), Told<int>(0, false));
    EXPECT_EQ(speed(item), Told<int>(0, false));
    EXPECT_EQ(valve(item), Told<int>(0, false));
    EXPECT_EQ(item.currentCheckLevelSteps(), 0);

    FW_Dispenser machine = dispenser();
    FW_DosingMotor motor;
    motor.setMaxSpeed(0);
    machine.getCircuitByPosition(1)->setDosingMotor(motor);
    const Formula bySteps = formulaOf(Formula::CircuitPositions, Formula::Steps, {{"1", 5}});
    EXPECT_EQ(speed(itemsOf(bySteps, machine).at(0)), Told<int>(0, false));
}

TEST(Formula, queuesAndNozzleValvesOfTheItemsGoFirst)
{
    EXPECT_EQ(onlyItem(positions({{"2", 1}})).queueID(), 2);
    EXPECT_EQ(onlyItem(positions({{"2", 1, 9, 0}})).queueID(), 9);
    EXPECT_EQ(onlyItem(positions({{"5", 1}})).queueID(), 0);
    EXPECT_EQ(valve(onlyItem(positions({{"1", 5.5, 0, 1}}))), Told<int>(1, true));
    EXPECT_EQ(valve(onlyItem(positions({{"1", 50}}))), Told<int>(0, true)); // the calibration's is none
    EXPECT_FALSE(valve(onlyItem(positions({{"1", 5.5, 0, 3}}))).second);    // not one of the circuit's
    EXPECT_EQ(valve(onlyItem(formulaOf(Formula::CircuitPositions, Formula::Steps, {{"1", 5, 0, 2}}))),
              Told<int>(2, true));
}

TEST(Formula, theSpeedOfAnItemGoesFirst)
{
    EXPECT_EQ(speed(onlyItem(positions({{"2", 1, 0, 0, 33}}))), Told<int>(33, true));
    EXPECT_EQ(speed(onlyItem(formulaOf(Formula::CircuitPositions, Formula::Steps, {{"2", 5, 0, 0, 33}}))),
              Told<int>(33, true));
    EXPECT_EQ(speed(onlyItem(formulaOf(Formula::CircuitPositions, Formula::Strokes, {{"8", 5, 0, 0, 33}}))),
              Told<int>(33, true)); // which needs no calibration then
    EXPECT_FALSE(speed(onlyItem(positions({{"2", 1, 0, 0, -1}}))).second);
    EXPECT_EQ(speed(onlyItem(positions({{"2", 1, 0, 0, 2000}}))), Told<int>(2000, true));
    EXPECT_FALSE(speed(onlyItem(positions({{"2", 1, 0, 0, 2001}}))).second); // no motor is as fast
}

TEST(Formula, takesCircuitsWithTheirNumbers)
{
    CircuitFormulaItem circuit(pouring::circuit(11, 1, 1), 3, 40);
    circuit.setSteps({500, true});
    circuit.setQueueID(2);
    circuit.setNozzleValveID({7, true});
    Formula strokes = formulaOf(Formula::CircuitPositions, Formula::Strokes, {});
    strokes.addCircuit(circuit);
    EXPECT_TRUE((strokes.items() == QVector<FormulaItem>{{"1", 3, 2, 7, 40}}));
    Formula steps = formulaOf(Formula::CircuitPositions, Formula::Steps, {});
    steps.addCircuit(circuit);
    EXPECT_TRUE((steps.items() == QVector<FormulaItem>{{"1", 500, 2, 7, 40}}));
}

TEST(FW_PositionIngredient, isALineOfAFormula)
{
    EXPECT_TRUE((FW_PositionIngredient(12, 500, 40).formulaItem() == FormulaItem{"12", 500, 0, 0, 40}));
    EXPECT_TRUE((FW_PositionIngredient(12, 500, 40, 7).formulaItem() == FormulaItem{"12", 500, 0, 7, 40}));
    EXPECT_TRUE((FW_PositionIngredient().formulaItem() == FormulaItem{"0", 0, 0, 0, 0}));
    const FW_PositionIngredient ingredient(12, 500, 40, 7);
    EXPECT_EQ(ingredient.positionID(), 12);
    EXPECT_EQ(ingredient.steps(), 500);
    EXPECT_EQ(ingredient.speed(), 40);
    EXPECT_EQ(ingredient.nozzleValveID(), 7);
}

TEST(Formula, theListKnowsTheMachinesParallelism)
{
    EXPECT_EQ(itemsOf(positions({{"1", 1}})).parallelism(), 3);
}

TEST(Formula, withoutADispenser)
{
    expectError(positions({{"1", 1}}), nullptr, "DE03020", "Formula: expected a dispenser");
    expectError(positions({}), nullptr, "DE03020", "Formula: expected a dispenser");
}

TEST(Formula, whatTheDispenserDoesNotHave)
{
    const FW_Dispenser machine = dispenser();
    const std::tuple<int, const char *, const char *> table[] = {
        {Formula::CircuitPositions, "9", "Formula: the dispenser does not have \"9\""},
        {Formula::CircuitPositions, "11", "Formula: the dispenser does not have \"11\""},
        {Formula::CircuitPositions, "01", "Formula: the dispenser does not have \"01\""},
        {Formula::CircuitPositions, " 1", "Formula: the dispenser does not have \" 1\""},
        {Formula::CircuitPositions, "B", "Formula: the dispenser does not have \"B\""},
        {Formula::CircuitIDs, "1", "Formula: the dispenser does not have \"1\""},
        {Formula::CanisterIDs, "8", "Formula: the dispenser does not have \"8\""},
        {Formula::ColorantCodes, "kx", "Formula: the dispenser does not have \"kx\""},
        {Formula::ColorantCodes, "EMPTY", "Formula: the dispenser does not have \"EMPTY\""},
        {Formula::ColorantCodes, "", "Formula: the dispenser does not have \"\""},
    };
    for (const auto &[type, id, text] : table) {
        SCOPED_TRACE(text);
        expectError(formulaOf(type, Formula::WeightOrVolume, {{QString::fromLatin1(id), 1}}), &machine,
                    "DE03021", text);
    }
    const std::string longest(40, 'x');
    const std::string begin = "Formula: the dispenser does not have \"" + longest;
    for (const auto &[id, text] : {std::pair{longest, begin + "\""}, {longest + "y", begin + "...\""}})
        expectError(
            formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{QString::fromStdString(id), 1}}),
            &machine, "DE03021", text.c_str());
}

TEST(Formula, whatIsDisabled)
{
    const FW_Dispenser machine = dispenser();
    const std::tuple<int, const char *, const char *> table[] = {
        {Formula::CircuitPositions, "4", "Formula: \"4\" is disabled"}, // the circuit
        {Formula::CircuitPositions, "6", "Formula: \"6\" is disabled"}, // its canister
        {Formula::CircuitIDs, "31", "Formula: \"31\" is disabled"},
        {Formula::CanisterIDs, "4", "Formula: \"4\" is disabled"},
        {Formula::CanisterIDs, "6", "Formula: \"6\" is disabled"}, // without a circuit
        {Formula::ColorantCodes, "R", "Formula: \"R\" is disabled"},
        {Formula::ColorantCodes, "OFF", "Formula: \"OFF\" is disabled"},
    };
    for (const auto &[type, id, text] : table) {
        SCOPED_TRACE(text);
        expectError(formulaOf(type, Formula::WeightOrVolume, {{QString::fromLatin1(id), 1}}), &machine,
                    "DE03022", text);
    }
    // a disabled colorant keeps nobody from pouring by position
    EXPECT_EQ(onlyItem(positions({{"7", 1}})).steps(), 100);
}

TEST(Formula, inTheOrderOfATurntable)
{
    FW_Dispenser machine = dispenser();
    FW_Turntable table;
    table.setPositions({1, 2, 3, 5, 8});
    machine.setDevice(table);
    const auto order = [&machine](const Formula &formula, int position) {
        CircuitFormulaItemList items;
        FW_DriverError error;
        EXPECT_TRUE(formula.getCircuitFormulaItems(items, position, &machine, &error));
        std::vector<int> positionIds;
        for (const CircuitFormulaItem &item : items)
            positionIds.push_back(item.positionId());
        return positionIds;
    };
    const Formula formula = positions({{"2", 1}, {"3", 1}, {"1", 1}});
    EXPECT_THAT(order(formula, 8), ElementsAre(1, 2, 3)); // 1 lies beside 8
    EXPECT_THAT(order(formula, 5), ElementsAre(3, 2, 1));
    EXPECT_THAT(order(formula, 2), ElementsAre(2, 3, 1)); // 3 and 1 are as near: the formula's order
    EXPECT_THAT(order(positions({{"2", 1}, {"1", 1}, {"3", 1}}), 2), ElementsAre(2, 1, 3));
    EXPECT_THAT(order(formula, 0), ElementsAre(2, 3, 1)); // nobody knows where it stands

    machine = dispenser(); // without a table
    EXPECT_THAT(order(formula, 8), ElementsAre(2, 3, 1));
}

TEST(Formula, whatEachCanisterGives)
{
    const FW_Dispenser machine = dispenser();
    const auto canistersOf = [&machine](const Formula &formula) {
        CanisterFormulaItemList items;
        FW_DriverError error;
        EXPECT_TRUE(formula.getCanisterItems(&items, &machine, &error)) << error.text().toStdString();
        std::vector<std::pair<int, double>> quantities;
        for (const CanisterFormulaItem &item : items) {
            EXPECT_EQ(item.currentQuantity(), machine.getCanisterById(item.id())->currentQuantity());
            quantities.emplace_back(item.id(), item.quantity());
        }
        return quantities;
    };
    using Expected = std::vector<std::pair<int, double>>;
    EXPECT_EQ(canistersOf(positions({{"2", 3}, {"5", 2}, {"1", 4}})), (Expected{{1, 7}, {3, 2}}));
    EXPECT_EQ(canistersOf(positions({{"8", 1}, {"1", 4}, {"5", 2}, {"2", 3}})),
              (Expected{{7, 1}, {1, 7}, {3, 2}}));                     // in the formula's order
    EXPECT_EQ(canistersOf(positions({{"8", 3}})), (Expected{{7, 3}})); // a weight needs no calibration
    EXPECT_EQ(canistersOf(formulaOf(1, Formula::Steps, {{"1", 500}})), (Expected{{1, 5.5}}));
    EXPECT_EQ(canistersOf(formulaOf(1, Formula::Strokes, {{"1", 1}})),
              (Expected{{1, 11.25}})); // 10 + 100 / 80
    EXPECT_EQ(canistersOf(positions({})), Expected());
    EXPECT_TRUE(positions({{"1", 1}}).getCanisterItems(nullptr, &machine, nullptr));
}

TEST(Formula, stepsWithoutCalibrationAreNoWeight)
{
    const FW_Dispenser machine = dispenser();
    const Formula formula = formulaOf(Formula::CircuitPositions, Formula::Steps, {{"8", 10}});
    CanisterFormulaItemList items;
    FW_DriverError error;
    EXPECT_FALSE(formula.getCanisterItems(&items, &machine, &error));
    EXPECT_EQ(error.code(), "DE03023");
    EXPECT_EQ(error.text(), "Formula: the calibration of circuit 8 tells no quantity");
    int result = 77;
    EXPECT_FALSE(formula.checkDispenserLevels(&machine, &result, true));
    EXPECT_EQ(result, 77);
}

TEST(Formula, asWhatTheCanistersLose)
{
    const FW_Dispenser machine = dispenser();
    Formula formula =
        formulaOf(Formula::CircuitPositions, Formula::Steps, {{"1", 500, 5, 1}, {"5", 50}, {"2", 100}});
    formula.setExecutionCriterion(2);
    formula.setLevelsManagementPolicy(2);
    formula.setDecimals(1);
    FW_DriverError error;
    ASSERT_TRUE(formula.convertToNegativeQuantities(&machine, error));
    EXPECT_EQ(formula.formulaType(), Formula::CanisterIDs);
    EXPECT_EQ(formula.quantityUnit(), Formula::WeightOrVolume);
    EXPECT_EQ(formula.executionCriterion(), 2);
    EXPECT_EQ(formula.levelsManagementPolicy(), 2);
    EXPECT_EQ(formula.decimals(), 1);
    EXPECT_TRUE((formula.items() == QVector<FormulaItem>{{"1", -6.5, 0, 0}, {"3", -0.5, 0, 0}}));

    Formula byWeight = colorants({{"KX", 2.5}});
    ASSERT_TRUE(byWeight.convertToNegativeQuantities(&machine, nullptr));
    EXPECT_TRUE((byWeight.items() == QVector<FormulaItem>{{"3", -2.5, 0, 0}}));
}

TEST(Formula, aChangeOfLevels)
{
    const FW_Dispenser machine = dispenser(); // canister 1 holds 500 of 1000; reserve 50, warning 100
    const std::pair<double, int> table[] = {
        {0, 0},      {-400, 0},     {-400.5, 100}, {-450, 100}, {-450.5, 200},
        {-500, 200}, {-500.5, 300}, {-9999, 300},  {500, 0},    {500.5, 400},
    };
    for (const auto &[quantity, level] : table) {
        int result = 77;
        EXPECT_TRUE(formulaOf(Formula::CanisterIDs, 3, {{"1", quantity}})
                        .checkDispenserLevels(&machine, &result, true));
        EXPECT_EQ(result, level) << quantity;
    }
}

TEST(Formula, newLevels)
{
    const FW_Dispenser machine = dispenser();
    const std::pair<double, int> table[] = {
        {100, 0}, {99.5, 100}, {50, 100}, {49.5, 200}, {0, 200}, {-0.5, 300}, {1000, 0}, {1000.5, 400},
    };
    for (const auto &[quantity, level] : table) {
        int result = 77;
        EXPECT_TRUE(formulaOf(Formula::CanisterIDs, 3, {{"1", quantity}})
                        .checkDispenserLevels(&machine, &result, false));
        EXPECT_EQ(result, level) << quantity;
    }
}

TEST(Formula, theWorstOfAllCanisters)
{
    const FW_Dispenser machine = dispenser();
    int result = 77;
    EXPECT_TRUE(formulaOf(Formula::CanisterIDs, 3, {{"1", -420}, {"3", -260}, {"2", -1}})
                    .checkDispenserLevels(&machine, &result, true));
    EXPECT_EQ(result, 200); // 80, 40 and 799
    // two circuits of one canister count together
    EXPECT_TRUE(positions({{"1", -300}, {"2", -300}}).checkDispenserLevels(&machine, &result, true));
    EXPECT_EQ(result, 300);
    EXPECT_TRUE(positions({}).checkDispenserLevels(&machine, &result, true));
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(positions({{"1", -300}}).checkDispenserLevels(&machine, nullptr, true));
}

TEST(Formula, byCircuitPositions)
{
    const FW_Dispenser machine = dispenser();
    Formula formula = colorants({{"KX", 2.5, 4, 0, 33}, {"B", 1, 0, 2}, {"KX", 1}});
    formula.setExecutionCriterion(8);
    Formula converted;
    FW_DriverError error;
    ASSERT_TRUE(formula.convertToCircuitPositions(converted, &machine, &error));
    Formula expected = positions({{"5", 3.5, 4, 0, 33}, {"1", 1, 0, 2}});
    expected.setExecutionCriterion(8);
    EXPECT_TRUE(converted == expected);
}

// --- for people

TEST(Formula, inOneLine)
{
    Formula formula = colorants({{"B", 12.5}, {"KX", 0.3}});
    EXPECT_EQ(formula.toPrintableString(true, nullptr), "B 12.500, KX 0.300");
    EXPECT_EQ(formula.toPrintableString(false, nullptr), "colorants: B 12.500, KX 0.300 (weight or volume)");
    formula.setDecimals(1);
    EXPECT_EQ(formula.toPrintableString(true, nullptr), "B 12.5, KX 0.3");
    formula.setQuantityUnit(Formula::MachineUnit);
    EXPECT_EQ(formula.toPrintableString(false, nullptr), "colorants: B 12.5, KX 0.3 (weight or volume)");
    EXPECT_EQ(
        formulaOf(Formula::CircuitIDs, Formula::Steps, {{"11", 1234}}).toPrintableString(false, nullptr),
        "circuits: 11 1234 (steps)");
    EXPECT_EQ(formulaOf(Formula::CanisterIDs, Formula::Strokes, {{"1", 3}}).toPrintableString(false, nullptr),
              "canisters: 1 3 (strokes)");
    EXPECT_EQ(Formula().toPrintableString(true, nullptr), "");
    EXPECT_EQ(Formula().toPrintableString(false, nullptr), "circuit positions:  (weight or volume)");
}

TEST(Formula, inOneLineWithItsCircuits)
{
    FW_Dispenser machine = dispenser();
    const Formula formula = colorants({{"KX", 1}, {"B", 5.5}, {"V", 1}});
    EXPECT_EQ(formula.toPrintableString(true, &machine), "KX 1.000, B 5.500, V 1.000: circuit 5 100 steps, "
                                                         "circuit 1 500 steps, circuit 8 ? steps");
    EXPECT_EQ(positions({{"9", 1}}).toPrintableString(true, &machine), "9 1.000"); // none of this machine
    FW_Turntable table;
    table.setPositions({1, 2, 3, 5, 8});
    machine.setDevice(table);
    EXPECT_EQ(formula.toPrintableString(true, 1, &machine),
              "KX 1.000, B 5.500, V 1.000: circuit 1 500 steps, "
              "circuit 8 ? steps, circuit 5 100 steps");
    EXPECT_EQ(formula.toPrintableString(true, 1, nullptr), "KX 1.000, B 5.500, V 1.000");
}

TEST(Formula, itsTypeInWords)
{
    const std::pair<int, const char *> table[] = {{1, "circuit positions"}, {2, "circuits"}, {3, "canisters"},
                                                  {4, "colorants"},         {0, ""},         {5, ""}};
    for (const auto &[type, words] : table)
        EXPECT_EQ(formulaOf(type, 3, {}).formulaTypeStr(), words);
}

} // namespace
