// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/packcmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <vector>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "PackCmd::PackCmd(int, const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] = "PackCmd::PackCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "PackCmd::PackCmd(QList<QVariant>, const FW_Dispenser*)";

constexpr char badMovement[] = "PackCmd failed: invalid pump movement type parameter";

Value tenGramsValue()
{
    return structOf({{"formula_type", Value(1)},
                     {"quantity_unit", Value(3)},
                     {"exec_criterion", Value(0)},
                     {"levels_policy", Value(0)},
                     {"decimals", Value(3)},
                     {"ids", arrayOf("1")},
                     {"quantities", arrayOf(10.0)}});
}

QVariantMap tenGramsMap()
{
    return {{"formula_type", 1},
            {"quantity_unit", 3},
            {"ids", QVariantList{"1"}},
            {"quantities", QVariantList{10.0}}};
}

List listOf(const QVariant &movement, const Formula &formula)
{
    return {movement, QVariant::fromValue(formula)};
}

void expectRefused(const Formula &formula, const FW_Dispenser &machine, const char *code, const char *text)
{
    expectRefusal(code, text, ofFormula, [&] { const PackCmd command(1, formula, &machine); });
    expectRefusal(code, text, ofValue,
                  [&] { const PackCmd command(arrayOf(1, formula.toXmlRpcValue()), &machine); });
    expectRefusal(code, text, ofList, [&] { const PackCmd command(listOf(1, formula), &machine); });
}

void expectTaken(const Formula &formula, const FW_Dispenser &machine)
{
    EXPECT_EQ(PackCmd(1, formula, &machine).formula(), formula);
    EXPECT_EQ(PackCmd(arrayOf(1, formula.toXmlRpcValue()), &machine).formula(), formula);
    EXPECT_EQ(PackCmd(listOf(1, formula), &machine).formula(), formula);
    FW_DriverError error;
    EXPECT_TRUE(PackCmd(1, formula, &machine).checkFormula(error));
    EXPECT_EQ(error.code(), "");
}

// ---------------------------------------------------------------- construction

/** The label is a text for displays, too, and the other texts hold it. */
Words packing(const char *label, const char *action, const char *detailed)
{
    const auto translated = [&](const char *text) {
        return translation(QString(text).replace(label, translation(label)));
    };
    Words words(label, {action, "QuvProtocol", translated(action)},
                {detailed, "QuvProtocol", translated(detailed)});
    words.translatedCommand = translation(label);
    return words;
}

Request packRequest(int movement, const FW_Dispenser *machine)
{
    const Formula formula = grams({{"1", 10}});
    return Request(listOf(movement, formula))
        .value(arrayOf(movement, tenGramsValue()))
        .typed<PackCmd>(movement, formula, machine)
        .written(
            '[' + std::to_string(movement) +
            R"(, {"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1"], "levels_policy": 0, )"
            R"("quantities": [10.0000], "quantity_unit": 3}])")
        .sends(machine ? QList<int>{3, 1, 1, 0, 40, 1, movement} : QList<int>())
        .takes(machine ? 750 : 0);
}

CommandFacts facts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<PackCmd>(machine));
    facts.catalogue = {"PACK", 16, "0017", 2};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required(ConvertedInteger,
                 {"DE00988", "DE00863", "PackCmd failed: expected Int type for first parameter", badMovement})
            .outOfRange({-1, 2, 100}, {"DE00987", "DE00992", badMovement})
            .takes({0, 1}),
        required()
            .refuses({unreadableFormula(), Value(7), Value("formula"), arrayOf(), structOf({})},
                     {7, "formula", QVariant(), QVariantMap{}, QVariantMap{{"ids", List{"1"}}},
                      List{tenGramsMap()}},
                     {"DE00989", "DE00994", "PackCmd failed: invalid Formula type parameter",
                      "PackCmd failed: expected Formula type parameter"})
            .refuses({}, {unreadableFormulaVariant()},
                     {"", "DE00993", "PackCmd failed: incorrect Formula type parameter"})};
    facts.getters = {getter(&PackCmd::pumpMovementType), getter(&PackCmd::formula)};
    facts.defaults = Request()
                         .parameters(listOf(-1, Formula()))
                         .written(std::string("[-1, ") + emptyFormulaWritten + "]")
                         .says({"", {"In progress", "QuvProtocol", translation("In progress")}});
    facts.requests = {
        packRequest(1, machine)
            .says(packing("Pump unpack", "Pump unpack in progress", "Pump unpack with formula: 1 10.000")),
        packRequest(0, machine)
            .says(packing("Pump pack", "Pump pack in progress", "Pump pack with formula: 1 10.000")),
    };
    facts.requests.push_back(facts.requests[0].alsoFromList({1, tenGramsMap()}));
    facts.answers = serialAnswers();
    return facts;
}

TEST(PackCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(PackCmd, knowsTwoMovements)
{
    for (int type : {0, 1})
        EXPECT_TRUE(PackCmd::checkPumpMovementType(type)) << type;
    for (int type : {-2, -1, 2, 3, 100})
        EXPECT_FALSE(PackCmd::checkPumpMovementType(type)) << type;
}

TEST(PackCmd, goesRoundInBothForms)
{
    const Formula formula = steps({{"1", 1, 7}, {"3", 300, 0, 2}});
    const PackCmd command(1, formula, nullptr);
    int form = 0;
    for (const PackCmd &same :
         {PackCmd(command.xmlrpc_parameters(), nullptr), PackCmd(command.parameters(), nullptr)}) {
        SCOPED_TRACE(++form);
        EXPECT_EQ(same.pumpMovementType(), 1);
        EXPECT_EQ(same.formula(), formula);
    }
}

TEST(PackCmd, checksNoFormulaWithoutADispenser)
{
    for (const Formula &formula : {Formula(), grams({{"1", -1}}), grams({{"99", 0}})}) {
        SCOPED_TRACE(dumped(formula.toXmlRpcValue()));
        EXPECT_EQ(PackCmd(0, formula, nullptr).formula(), formula);
        EXPECT_EQ(PackCmd(arrayOf(0, formula.toXmlRpcValue()), nullptr).formula(), formula);
        EXPECT_EQ(PackCmd(listOf(0, formula), nullptr).formula(), formula);
    }
}

TEST(PackCmd, checksTheMovementAlwaysAndFirst)
{
    const FW_Dispenser machine = dispenser();
    const Formula bad = grams({{"1", -1}});
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        for (int movement : {-1, 2, 100}) {
            SCOPED_TRACE(movement);
            expectRefusal("DE00506", badMovement, ofFormula,
                          [&] { const PackCmd command(movement, bad, given); });
            expectRefusal("DE00987", badMovement, ofValue,
                          [&] { const PackCmd command(arrayOf(movement, unreadableFormula()), given); });
            expectRefusal("DE00992", badMovement, ofList, [&] {
                const PackCmd command(List{movement, QVariant()}, given);
            });
        }
    }
}

// ---------------------------------------------------------------- the check

TEST(PackCmd, looksAtNeitherUnitNorStepsNorLevels)
{
    for (int unit : {0, 1, 2, 3}) {
        SCOPED_TRACE(unit);
        expectTaken(formulaOf(1, unit, {{"1", 1}, {"4", 0.5}}), dispenser());
    }
    expectTaken(strokes({{"1", 3e9}}), dispenser());
    expectTaken(steps({{"1", 1}}), withoutCalibration(1));
    Formula tooMuch = grams({{"1", 600}});
    tooMuch.setLevelsManagementPolicy(2);
    expectTaken(tooMuch, dispenser());
}

TEST(PackCmd, cannotBeCheckedWithoutADispenser)
{
    FW_DriverError error;
    EXPECT_FALSE(PackCmd(0, grams({{"1", 10}}), nullptr).checkFormula(error));
    expectError(error, "DE01195", "Invalid dispenser data");
    EXPECT_FALSE(PackCmd(0, grams({{"1", -1}}), nullptr).checkFormula(error)); // comes first
    expectError(error, "DE01195", "Invalid dispenser data");
}

TEST(PackCmd, needsPositiveQuantities)
{
    expectRefused(grams({{"1", 1}, {"2", -1}}), dispenser(), "DE00990", notPositive);
    expectRefused(grams({{"1", 1}, {"2", 0}}), dispenser(), "DE00990", notPositive);
    expectRefused(grams({{"99", -1}}), dispenser(), "DE00990", notPositive); // before the circuits
}

TEST(PackCmd, passesOnWhatTheFormulaSaysOfTheMachine)
{
    expectRefused(grams({{"1", 1}, {"99", 1}}), dispenser(), "DE03021",
                  "Formula: the dispenser does not have \"99\"");
    expectRefused(grams({{"1", 1}}), withDisabledCircuit(1), "DE03022", "Formula: \"1\" is disabled");
    expectRefused(grams({{"1", 1}, {"99", 1}}), withoutSpeed(1), "DE03021",
                  "Formula: the dispenser does not have \"99\"");
}

TEST(PackCmd, needsItems)
{
    expectRefused(grams({}), dispenser(), "DE00991", "Empty Formula found");
}

TEST(PackCmd, needsASpeedOfEveryCircuit)
{
    expectRefused(grams({{"1", 1}, {"2", 1}}), withoutSpeed(2), "DE00995", "Bad speed value in formula");
    expectRefused(grams({{"2", 1}}), withoutCalibration(2), "DE00995", "Bad speed value in formula");
}

// ---------------------------------------------------------------- towards the firmware

TEST(PackCmd, sendsTheMovementInThePlaceOfSteps)
{
    const FW_Dispenser machine = dispenser();
    const Formula formula = grams({{"4", 300}, {"1", 10, 9}});
    for (int family : {1, 2}) {
        SCOPED_TRACE(family);
        EXPECT_EQ(PackCmd(0, formula, &machine).serialParameters(family),
                  (QList<int>{3, 2, 4, 0, 40, 1, 0, 1, 0, 40, 1, 0}));
        EXPECT_EQ(PackCmd(1, formula, &machine).serialParameters(family),
                  (QList<int>{3, 2, 4, 0, 40, 1, 1, 1, 0, 40, 1, 1}));
    }
    EXPECT_EQ(PackCmd(1, strokes({{"3", 0.1}}), &machine).serialParameters(1),
              (QList<int>{3, 1, 3, 0, 50, 1, 1})); // no stroke at all is no reason to leave it out
}

TEST(PackCmd, takesTheTimeOfItsFormulaOnItsOwnMachine)
{
    const FW_Dispenser machine = dispenser();
    const FW_Dispenser other = dualHead();
    const PackCmd command(0, grams({{"1", 10}, {"2", 20}}), &machine);
    for (const FW_Machine *asked :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&machine),
          static_cast<const FW_Machine *>(&other)}) {
        SCOPED_TRACE(asked ? asked->id() : -1);
        EXPECT_EQ(command.getCmdEstimatedExecutionTime(asked), 750 + 1500);
        EXPECT_EQ(PackCmd(0, strokes({{"1", 2}}), &machine).getCmdEstimatedExecutionTime(asked), 36000);
        EXPECT_EQ(PackCmd(0, grams({{"1", 10}}), nullptr).getCmdEstimatedExecutionTime(asked), 0);
        EXPECT_EQ(PackCmd().getCmdEstimatedExecutionTime(asked), 0);
    }
    EXPECT_EQ(PackCmd(0, strokes({{"1", 3e18}}), &machine).getCmdEstimatedExecutionTime(nullptr), 0)
        << "steps beyond all numbers take no time that could be told";
}

// ---------------------------------------------------------------- words

TEST(PackCmd, saysWhatItDoes)
{
    const Formula formula = grams({{"1", 10}, {"4", 0.5}});
    const PackCmd pack(0, formula, nullptr);
    EXPECT_EQ(pack.pumpMovementTypeStr(), "Pump pack");
    EXPECT_EQ(pack.commandString(), "Pump pack");
    EXPECT_EQ(pack.actionString(false).m_text, "Pump pack in progress");
    EXPECT_EQ(pack.actionString(true).m_text, "Pump pack with formula: 1 10.000, 4 0.500");

    const PackCmd unpack(1, formula, nullptr);
    EXPECT_EQ(unpack.pumpMovementTypeStr(), "Pump unpack");
    EXPECT_EQ(unpack.commandString(), "Pump unpack");
    EXPECT_EQ(unpack.actionString(false).m_text, "Pump unpack in progress");
    EXPECT_EQ(unpack.actionString(true).m_text, "Pump unpack with formula: 1 10.000, 4 0.500");
}

TEST(PackCmd, translatesItsWords)
{
    const TranslatedTexts translated;
    const PackCmd command(1, grams({{"1", 10}}), nullptr);
    EXPECT_EQ(command.pumpMovementTypeStr(), translation("Pump unpack"));
    EXPECT_EQ(command.commandString(), translation("Pump unpack"));
    EXPECT_EQ(command.actionString(false).m_text, "Pump unpack in progress");
    EXPECT_EQ(command.actionString(false).m_translated,
              QString::fromUtf8("\u00AB\u00ABPump unpack\u00BB in progress\u00BB"));
    EXPECT_EQ(command.actionString(true).m_text, "Pump unpack with formula: 1 10.000");
    EXPECT_EQ(command.actionString(true).m_translated,
              QString::fromUtf8("\u00AB\u00ABPump unpack\u00BB with formula: 1 10.000\u00BB"));
    EXPECT_EQ(PackCmd().actionString(true).m_text, "In progress");
    EXPECT_EQ(PackCmd().actionString(true).m_translated, translation("In progress"));
}

} // namespace
