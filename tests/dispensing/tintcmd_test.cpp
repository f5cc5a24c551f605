// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/tintcmd.h"

#include "base/commandcontract.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/dispensertesting.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/purgeformula.h>

#include <memory>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "TintCmd::TintCmd(const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] = "TintCmd::TintCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "TintCmd::TintCmd(QList<QVariant>, const FW_Dispenser*)";

constexpr char noValve[] = "Nozzle valve ID is missing in steps based formula";
constexpr char badValve[] =
    "Formula stopped because of errors in nozzle valve id calculus due to bad calibration";

Formula withCriterion(Formula formula, int criterion)
{
    formula.setExecutionCriterion(criterion);
    return formula;
}

TintCmd tint(const Formula &formula, const FW_Dispenser &machine)
{
    return TintCmd(formula, &machine);
}

TintCmd tint2(const Formula &formula, const FW_Dispenser &machine)
{
    TintCmd command(formula, &machine);
    EXPECT_TRUE(command.setCommand("TINT2"));
    return command;
}

/** All three forms refuse the formula on this machine, and none of them without a machine. */
void expectRefused(const char *code, const char *text, const Formula &formula, const FW_Dispenser &machine)
{
    const Value value = arrayOf(formula.toXmlRpcValue());
    const List list = {QVariant::fromValue(formula)};
    expectRefusal(code, text, ofFormula, [&] { TintCmd(formula, &machine); });
    expectRefusal(code, text, ofValue, [&] { TintCmd(value, &machine); });
    expectRefusal(code, text, ofList, [&] { TintCmd(list, &machine); });
    EXPECT_EQ(TintCmd(formula, nullptr).formula(), formula);
    EXPECT_EQ(TintCmd(value, nullptr).formula(), formula);
    EXPECT_EQ(TintCmd(list, nullptr).formula(), formula);
}

void expectAccepted(const Formula &formula, const FW_Dispenser &machine)
{
    EXPECT_NO_THROW(TintCmd(formula, &machine));
    EXPECT_NO_THROW(TintCmd(arrayOf(formula.toXmlRpcValue()), &machine));
    EXPECT_NO_THROW(TintCmd(List{QVariant::fromValue(formula)}, &machine));
}

// ---------------------------------------------------------------- construction

Argument formulaArgument()
{
    return required()
        .refuses(
            {Value(1), Value("B"), arrayOf(), structOf({{"quantity_unit", Value(3)}}), unreadableFormula()},
            {QVariant(), 1, "B", QVariantMap(), QVariantMap{{"quantity_unit", 3}}, variantOf(PurgeFormula())},
            {"DE00437", "DE00439", "TintCmd failed: invalid Formula type parameter",
             "TintCmd failed: expected Formula type parameter"})
        .refuses({}, {unreadableFormulaVariant()},
                 {"", "DE00775", "TintCmd failed: incorrect Formula type parameter"});
}

Words tintOf(const char *formula)
{
    return {"Dispense", "Dispensing in progress", untranslated(formula)};
}

CommandFacts facts(const FW_Dispenser *machine)
{
    const Formula formula = grams({{"1", 30}, {"2", 1}});
    const Formula queued = grams({{"1", 30, 7}, {"2", 1.5}});
    CommandFacts facts(formsOf<TintCmd>(machine));
    facts.catalogue = {"TINT", 8, "0017", 1};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {formulaArgument()};
    facts.getters = {getter(&TintCmd::formula)};
    facts.defaults = Request()
                         .parameters({variantOf(Formula())})
                         .written(std::string("[") + emptyFormulaWritten + "]")
                         .says(tintOf(""));
    const Request request =
        Request({variantOf(formula)})
            .value(arrayOf(structOf({{"formula_type", Value(1)},
                                     {"quantity_unit", Value(3)},
                                     {"ids", arrayOf("1", "2")},
                                     {"quantities", arrayOf(30.0, 1.0)}})))
            .typed<TintCmd>(formula, machine)
            .written(R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "2"], )"
                     R"("levels_policy": 0, "quantities": [30.0000, 1.00000], "quantity_unit": 3}])")
            .sends(machine ? QList<int>{2, 2, 1, 31, 40, 2, 54, 1, 2, 32, 40, 1, 10} : QList<int>())
            .says(tintOf("1 30.000, 2 1.000"));
    facts.requests = {
        request,
        request.alsoFromList({QVariantMap{{"formula_type", 1},
                                          {"quantity_unit", 3},
                                          {"ids", QVariantList{"1", "2"}},
                                          {"quantities", QVariantList{30.0, 1.0}}}}),
        Request({variantOf(queued)})
            .value(arrayOf(queued.toXmlRpcValue()))
            .typed<TintCmd>(queued, machine)
            .written(
                R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "2"], "levels_policy": 0, )"
                R"("quantities": [30.0000, 1.50000], "quantity_unit": 3, "queue_ids": [7, 0]}])")
            .sends(machine ? QList<int>{2, 2, 1, 7, 40, 2, 54, 1, 2, 32, 40, 1, 15} : QList<int>())
            .says(tintOf("1 30.000, 2 1.500")),
    };
    facts.afterDefaults = request;
    facts.answers = serialAnswers();
    return facts;
}

TEST(TintCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(TintCmd, hasTwoRowsInTheCatalogue)
{
    TintCmd command;
    ASSERT_TRUE(command.setCommand("TINT2"));
    ASSERT_TRUE(ProtoCommandList::row(command.command()));
    EXPECT_EQ(ProtoCommandList::row(command.command())->id, 155);
    EXPECT_EQ(ProtoCommandList::row(command.command())->code, "0035");
}

TEST(TintCmd, readsWhatItWrote)
{
    const Formula formula = checkingLevels(withCriterion(
        formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{"B", 12.5, 7, 10}, {"KX", 0.3, 8, 20}}),
        16));
    const TintCmd command(formula, nullptr);
    EXPECT_EQ(TintCmd(command.xmlrpc_parameters(), nullptr).formula(), formula);
    EXPECT_EQ(TintCmd(command.parameters(), nullptr).formula(), formula);
}

TEST(TintCmd, copiesDeeply)
{
    TintCmd command = tint2(grams({{"1", 30}}), dispenser());
    ASSERT_TRUE(command.setModuleID(3));
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *tinting = dynamic_cast<const TintCmd *>(clone.get());
    ASSERT_TRUE(tinting);
    EXPECT_EQ(tinting->command(), "TINT2");
    EXPECT_EQ(tinting->moduleID(), 3);
    EXPECT_EQ(tinting->formula(), grams({{"1", 30}}));
    ASSERT_TRUE(tinting->machine());
    EXPECT_NE(tinting->machine(), command.machine());
    EXPECT_EQ(tinting->serialParameters(1), (QList<int>{2, 1, 6, 1, 31, 40, 0, 2, 54, 1, 1, 50}));
}

// ---------------------------------------------------------------- the check before a pour

TEST(TintCmd, needsADispenserForItsCheck)
{
    FW_DriverError error;
    EXPECT_FALSE(TintCmd().checkFormula(error));
    expectError(error, "DE01103", "Invalid dispenser data");
    EXPECT_FALSE(TintCmd(grams({{"1", -30}}), nullptr).checkFormula(error));
    expectError(error, "DE01103", "Invalid dispenser data");
}

TEST(TintCmd, acceptsAGoodFormula)
{
    FW_DriverError error;
    EXPECT_TRUE(tint(grams({{"1", 30}}), dispenser()).checkFormula(error));
    EXPECT_EQ(error.code(), "");
    expectAccepted(grams({{"1", 30}, {"2", 0}}), dispenser());
    expectAccepted(steps({{"1", 300}}), dispenser());
    expectAccepted(strokes({{"4", 2}}), dispenser());
    expectAccepted(formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{"KX", 3}}), dispenser());
}

TEST(TintCmd, refusesNegativeQuantities)
{
    expectRefused("DE00015", notPositive, grams({{"1", 30}, {"2", -0.1}}), dispenser());
}

TEST(TintCmd, refusesAFormulaThatTheLevelsDoNotAllow)
{
    expectRefused("DE00060", belowReserve, checkingLevels(grams({{"1", 60}})), withContent(1, 100));
    expectRefused("DE00061", belowZero, checkingLevels(grams({{"1", 100.5}})), withContent(1, 100));
    expectRefused("DE00062", badLevels, checkingLevels(grams({{"1", 1}})), withContent(1, 2000));
    expectRefused("DE00061", belowZero, checkingLevels(steps({{"1", 1005}}), 3), withContent(1, 100));
}

TEST(TintCmd, acceptsAWarningLevel)
{
    expectAccepted(checkingLevels(grams({{"1", 30}})), withContent(1, 100));
    expectAccepted(checkingLevels(grams({{"1", 50}})), withContent(1, 100));
    expectAccepted(checkingLevels(grams({{"1", 30}})), dispenser());
}

TEST(TintCmd, looksAtLevelsOnlyWhenToldTo)
{
    for (int policy : {0, 1, 4, 5, 8}) {
        SCOPED_TRACE(policy);
        expectAccepted(checkingLevels(grams({{"1", 600}}), policy), dispenser());
    }
    for (int policy : {2, 3, 6, 7}) {
        SCOPED_TRACE(policy);
        expectRefused("DE00061", belowZero, checkingLevels(grams({{"1", 600}}), policy), dispenser());
    }
}

TEST(TintCmd, refusesWhatTheDispenserDoesNotHave)
{
    expectRefused("DE03021", R"(Formula: the dispenser does not have "9")", grams({{"9", 30}}), dispenser());
    expectRefused("DE03021", R"(Formula: the dispenser does not have "9")",
                  checkingLevels(grams({{"9", 30}})), dispenser());
    expectRefused("DE03022", R"(Formula: "2" is disabled)", grams({{"2", 30}}), withDisabledCircuit(2));
    expectRefused("DE03023", "Formula: the calibration of circuit 1 tells no quantity",
                  checkingLevels(steps({{"1", 30}})), withoutCalibration(1));
    expectAccepted(steps({{"1", 30}}), withoutCalibration(1));
}

TEST(TintCmd, refusesAFormulaOfNothing)
{
    expectRefused("DE00583", "Empty Formula found", grams({}), dispenser());
    expectRefused("DE00583", "Empty Formula found", checkingLevels(grams({})), dispenser());
}

TEST(TintCmd, refusesBadCalibrations)
{
    expectRefused("DE00533", badSteps, grams({{"1", 30}, {"2", 1}}), withoutCalibration(2));
    expectRefused("DE00529", badSpeed, grams({{"1", 30}, {"2", 1}}), withoutSpeed(2));
    for (const int speed : {-1, 2001}) { // of the item's own
        Formula formula = grams({{"1", 30}});
        formula.addItem({"2", 1, 0, 0, speed});
        expectRefused("DE00529", badSpeed, formula, dispenser());
    }
    expectAccepted(grams({{"1", 30}, {"2", 1}}), withoutCalibration(3));
}

TEST(TintCmd, needsANozzleValveOnlyOnAMachineThatDosesByNozzles)
{
    expectRefused("DE02832", noValve, steps({{"1", 300, 0, 10}, {"2", 300}}), nozzleBased());
    expectRefused("DE02833", badValve, steps({{"1", 300, 0, 99}}), nozzleBased());
    expectRefused("DE02833", badValve, grams({{"1", 30, 0, 99}}), nozzleBased());
    expectAccepted(steps({{"1", 300, 0, 20}}), nozzleBased());
    expectAccepted(grams({{"1", 30}}), nozzleBased());
    expectAccepted(strokes({{"1", 3}}), nozzleBased()); // only steps have to name one
    expectAccepted(steps({{"1", 300, 0, 99}, {"2", 300}}), dispenser());
}

TEST(TintCmd, checksInOneOrder)
{
    FW_Dispenser uncalibrated = withoutCalibration(2);
    FW_Dispenser nozzles = nozzleBased();
    nozzles.getCircuitByPosition(2)->setCalibration(FW_Calibration({{1000, 100, 0, 99}}));
    constexpr double tooManySteps = 1e17;
    // negative quantities, before levels and unknown circuits
    expectRefused("DE00015", notPositive, checkingLevels(grams({{"1", 600}, {"2", -1}, {"9", 1}})),
                  dispenser());
    // levels, before circuits that cannot pour
    expectRefused("DE00061", belowZero, checkingLevels(grams({{"1", 600}, {"2", 1}})), uncalibrated);
    // unknown circuits, before those that cannot pour
    expectRefused("DE03021", R"(Formula: the dispenser does not have "9")", grams({{"2", 1}, {"9", 1}}),
                  uncalibrated);
    // one circuit after the other, each by steps, speed and nozzle valve
    uncalibrated.getCircuitByPosition(1)->setCalibration(FW_Calibration({{1000, 100, 0, 0}}));
    expectRefused("DE00529", badSpeed, grams({{"1", 30}, {"2", 1}}), uncalibrated);
    expectRefused("DE00533", badSteps, grams({{"2", 1}, {"1", 30}}), uncalibrated);
    expectRefused("DE00533", badSteps, steps({{"1", tooManySteps}}), nozzles);
    expectRefused("DE02832", noValve, steps({{"1", 300}, {"2", tooManySteps}}), nozzles);
    expectRefused("DE00529", badSpeed, grams({{"2", 1}}), nozzles);
    expectRefused("DE02832", noValve, steps({{"1", 300}, {"2", 300, 0, 99}}), nozzles);
}

// ---------------------------------------------------------------- towards the firmware

TEST(TintCmd, sendsEachCircuitsStepsAsCountedDigits)
{
    const TintCmd command = tint(grams({{"1", 30}, {"2", 1}}), dispenser());
    const QList<int> expected = {2, 2, 1, 31, 40, 2, 54, 1, 2, 32, 40, 1, 10};
    EXPECT_EQ(command.serialParameters(1), expected);
    EXPECT_EQ(command.serialParameters(2), expected);
    EXPECT_EQ(tint(steps({{"4", 60516}, {"3", 245}, {"1", 246}}), dispenser()).serialParameters(1),
              (QList<int>{2, 3, 4, 34, 50, 3, 0, 0, 1, 3, 33, 50, 1, 245, 1, 31, 50, 2, 0, 1}));
    EXPECT_EQ(tint(strokes({{"2", 2}}), dispenser()).serialParameters(1),
              (QList<int>{2, 1, 2, 32, 50, 2, 96, 24}));
}

TEST(TintCmd, sendsAllCircuitsInOneList)
{
    FW_Dispenser machine;
    Formula formula = steps({});
    for (int position = 1; position <= 64; ++position) {
        FW_Canister canister(position);
        FW_Circuit circuit(position, position);
        circuit.setQueueID(5);
        canister.addCircuit(circuit);
        machine.addCanister(canister);
        formula.addItem({QString::number(position), 7});
    }
    const QList<int> parameters = tint(formula, machine).serialParameters(1);
    ASSERT_EQ(parameters.size(), 2 + 64 * 5);
    EXPECT_EQ(parameters.mid(0, 7), (QList<int>{2, 64, 1, 5, 50, 1, 7}));
    EXPECT_EQ(parameters.mid(317), (QList<int>{64, 5, 50, 1, 7}));
}

TEST(TintCmd, sendsWhatItCheckedUnderEitherNameAndAsACopy)
{
    const QList<int> asTint = {2, 2, 1, 31, 40, 2, 54, 1, 2, 32, 40, 1, 10};
    const QList<int> asTint2 = {2, 2, 6, 1, 31, 40, 0, 2, 54, 1, 1, 50, 2, 32, 40, 0, 1, 10, 1, 50};
    FW_Dispenser machine = dispenser();
    auto command = std::make_unique<TintCmd>(grams({{"1", 30}, {"2", 1}}), &machine);
    machine = withoutCalibration(1); // not the command's own
    EXPECT_EQ(command->serialParameters(1), asTint);
    ASSERT_TRUE(command->setCommand("TINT2"));
    EXPECT_EQ(command->serialParameters(1), asTint2);
    const std::unique_ptr<TintCmd> clone(command->clone());
    command.reset();
    EXPECT_EQ(clone->serialParameters(1), asTint2);
    ASSERT_TRUE(clone->setCommand("TINT"));
    EXPECT_EQ(clone->serialParameters(1), asTint);
}

/** A tint that pours something else in the end. */
class ChangedTint : public TintCmd
{
public:
    using TintCmd::TintCmd;

    Formula &changeableFormula() { return m_formula; }
};

TEST(TintCmd, sendsAFormulaThatIsChangedAfterItsCheck)
{
    const QList<int> checked = {2, 1, 1, 31, 40, 2, 54, 1};
    const FW_Dispenser machine = dispenser();
    ChangedTint command(grams({{"1", 30}}), &machine);
    command.changeableFormula().addItem({"2", 1});
    EXPECT_EQ(command.serialParameters(1), (QList<int>{2, 2, 1, 31, 40, 2, 54, 1, 2, 32, 40, 1, 10}));
    command.changeableFormula() = grams({{"1", 30}});
    EXPECT_EQ(command.serialParameters(1), checked);
    command.changeableFormula().setQuantityUnit(Formula::Steps);
    EXPECT_EQ(command.serialParameters(1), (QList<int>{2, 1, 1, 31, 50, 1, 30}));
    command.changeableFormula().setQuantityUnit(Formula::WeightOrVolume);
    command.changeableFormula().setExecutionCriterion(1);
    EXPECT_EQ(command.serialParameters(1), (QList<int>{1, 1, 1, 0, 40, 2, 54, 1}));
    command.changeableFormula() = grams({{"9", 30}});
    EXPECT_EQ(command.serialParameters(1), QList<int>()) << "there is no such circuit";

    ChangedTint unchecked(grams({{"1", 30}}), nullptr);
    unchecked.changeableFormula() = grams({{"2", 30}});
    EXPECT_EQ(unchecked.serialParameters(1), QList<int>());
}

TEST(TintCmd, sendsNoStepsAsOneStep)
{
    EXPECT_EQ(tint(steps({{"1", 0}, {"2", 1}}), dispenser()).serialParameters(1),
              (QList<int>{2, 2, 1, 31, 50, 1, 1, 2, 32, 50, 1, 1}));
    CircuitFormulaItem item(FW_Circuit(11, 1));
    item.setSteps({-300, true});
    item.setSpeed({40, true});
    EXPECT_EQ(TintCmd::getSerialParameters({item}, 0, false, false), (QList<int>{0, 1, 1, 0, 40, 1, 1}));
}

TEST(TintCmd, sendsMoreOfEachCircuitAsTint2)
{
    EXPECT_EQ(tint2(grams({{"1", 30}, {"2", 1}}), dispenser()).serialParameters(1),
              (QList<int>{2, 2, 6, 1, 31, 40, 0, 2, 54, 1, 1, 50, 2, 32, 40, 0, 1, 10, 1, 50}));
    EXPECT_EQ(tint2(grams({{"2", 30}}), nozzleBased()).serialParameters(1),
              (QList<int>{2, 1, 6, 2, 32, 40, 20, 2, 54, 1, 1, 50}));
    EXPECT_EQ(tint2(steps({{"2", 300, 0, 40}}), nozzleBased()).serialParameters(1),
              (QList<int>{2, 1, 6, 2, 32, 50, 40, 2, 54, 1, 1, 50}));
}

TEST(TintCmd, sendsLevelsInHundredsOfSteps)
{
    const auto levelSent = [](double grams) {
        return tint2(steps({{"1", 1}}), withContent(1, grams)).serialParameters(1).mid(9);
    };
    EXPECT_EQ(levelSent(0), (QList<int>{1, 0}));
    EXPECT_EQ(levelSent(0.9), (QList<int>{1, 9}));
    EXPECT_EQ(levelSent(1), (QList<int>{1, 10}));
    EXPECT_EQ(levelSent(1.1), (QList<int>{1, 0}));
    EXPECT_EQ(levelSent(9.9), (QList<int>{1, 0}));
    EXPECT_EQ(levelSent(10), (QList<int>{1, 1}));
    EXPECT_EQ(levelSent(100), (QList<int>{1, 10}));
    EXPECT_EQ(levelSent(2470), (QList<int>{2, 1, 1}));
}

TEST(TintCmd, sendsTheFormulasCriterion)
{
    for (int criterion : {2, 8, 16}) {
        SCOPED_TRACE(criterion);
        const Formula formula = withCriterion(steps({{"1", 7}}), criterion);
        EXPECT_EQ(tint(formula, dispenser()).serialParameters(1),
                  (QList<int>{criterion, 1, 1, 31, 50, 1, 7}));
        EXPECT_EQ(tint(formula, withoutQueue(1)).serialParameters(1),
                  (QList<int>{criterion, 1, 1, 0, 50, 1, 7}));
        EXPECT_EQ(tint2(formula, dispenser()).serialParameters(1),
                  (QList<int>{criterion, 1, 6, 1, 31, 50, 0, 1, 7, 1, 50}));
    }
}

TEST(TintCmd, sendsNoQueuesWithTheCriterionThatForbidsThem)
{
    const Formula formula = withCriterion(steps({{"1", 7, 5}, {"2", 8}}), 1);
    EXPECT_EQ(tint(formula, dispenser()).serialParameters(1),
              (QList<int>{1, 2, 1, 0, 50, 1, 7, 2, 0, 50, 1, 8}));
    EXPECT_EQ(tint2(formula, dispenser()).serialParameters(1).mid(0, 5), (QList<int>{1, 2, 6, 1, 0}));
}

TEST(TintCmd, choosesTheCriterionByTheQueues)
{
    const Formula formula = steps({{"1", 7}, {"2", 8}});
    EXPECT_EQ(tint(formula, dispenser()).serialParameters(1),
              (QList<int>{2, 2, 1, 31, 50, 1, 7, 2, 32, 50, 1, 8}));
    EXPECT_EQ(tint(formula, withoutQueue(2)).serialParameters(1),
              (QList<int>{0, 2, 1, 0, 50, 1, 7, 2, 0, 50, 1, 8}));
    EXPECT_EQ(tint2(formula, withoutQueue(2)).serialParameters(1),
              (QList<int>{2, 2, 6, 1, 0, 50, 0, 1, 7, 1, 50, 2, 0, 50, 0, 1, 8, 1, 50}));
    EXPECT_EQ(tint(steps({{"1", 7}, {"2", 8, 9}}), withoutQueue(2)).serialParameters(1),
              (QList<int>{2, 2, 1, 31, 50, 1, 7, 2, 9, 50, 1, 8}));
}

TEST(TintCmd, marksOnlyAPurgeThatIsSentAsTint2)
{
    CircuitFormulaItem item(FW_Circuit(11, 1));
    item.setSteps({7, true});
    item.setSpeed({40, true});
    item.setQueueID(31);
    item.setNozzleValveID({5, true});
    item.setCurrentCheckLevelSteps(24700);
    const CircuitFormulaItemList items = {item};
    EXPECT_EQ(TintCmd::getSerialParameters(items, 2, false, false), (QList<int>{2, 1, 1, 31, 40, 1, 7}));
    EXPECT_EQ(TintCmd::getSerialParameters(items, 2, true, false), (QList<int>{2, 1, 1, 31, 40, 1, 7}));
    EXPECT_EQ(TintCmd::getSerialParameters(items, 2, false, true),
              (QList<int>{2, 1, 6, 1, 31, 40, 5, 1, 7, 2, 1, 1}));
    EXPECT_EQ(TintCmd::getSerialParameters(items, 2, true, true),
              (QList<int>{66, 1, 6, 1, 31, 40, 5, 1, 7, 2, 1, 1}));
    EXPECT_EQ(TintCmd::getSerialParameters(items, 66, true, true).constFirst(), 66);
    EXPECT_EQ(TintCmd::getSerialParameters(items, 1, true, true),
              (QList<int>{65, 1, 6, 1, 0, 40, 5, 1, 7, 2, 1, 1}));
    EXPECT_EQ(TintCmd::getSerialParameters({}, 2, true, true), (QList<int>{66, 0, 6}));
    EXPECT_EQ(TintCmd::getSerialParameters({}, 2, false, false), (QList<int>{2, 0}));
}

// ---------------------------------------------------------------- time

TEST(TintCmd, takesTheTimeOfThePour)
{
    const FW_Dispenser machine = dispenser();
    const FW_Dispenser dual = dualHead();
    const TintCmd command(grams({{"1", 80}, {"2", 40}}), nullptr);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&machine), 9000);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&dual), 6000);
    EXPECT_EQ(TintCmd(steps({{"1", 1000}}), nullptr).getCmdEstimatedExecutionTime(&machine), 6000);
    EXPECT_EQ(TintCmd().getCmdEstimatedExecutionTime(&machine), 0);
}

TEST(TintCmd, takesAnUnknownTimeByAScale)
{
    const FW_Dispenser machine = gravimetric(3);
    const Formula formula = grams({{"1", 80}});
    EXPECT_EQ(TintCmd(formula, nullptr).getCmdEstimatedExecutionTime(&machine), -1);
    EXPECT_EQ(TintCmd(grams({{"9", 80}}), nullptr).getCmdEstimatedExecutionTime(&machine), -1);
    EXPECT_EQ(TintCmd(steps({{"1", 1000}}), nullptr).getCmdEstimatedExecutionTime(&machine), 6000);
    EXPECT_EQ(TintCmd(formulaOf(Formula::CircuitPositions, Formula::MachineUnit, {{"1", 80}}), nullptr)
                  .getCmdEstimatedExecutionTime(&machine),
              6000);
}

TEST(TintCmd, takesLongerOnAMachineThatMixesTheCanItself)
{
    const Formula formula = grams({{"1", 80}});
    const FW_Dispenser zandor = ofModel("ZANDOR 12");
    const FW_Dispenser other = ofModel("LUMINA");
    EXPECT_EQ(TintCmd(formula, nullptr).getCmdEstimatedExecutionTime(&zandor), 296000);
    EXPECT_EQ(TintCmd(formula, nullptr).getCmdEstimatedExecutionTime(&other), 6000);
    EXPECT_EQ(tint(formula, zandor).getCmdEstimatedExecutionTime(&other), 6000)
        << "the machine that is given";
}

TEST(TintCmd, takesNoMoreTimeForACap)
{
    const FW_Dispenser machine = withAutocap();
    EXPECT_EQ(TintCmd(grams({{"1", 80}}), nullptr).getCmdEstimatedExecutionTime(&machine), 6000);
}

TEST(TintCmd, takesNoTimeThatCannotBeTold)
{
    FW_Dispenser uncalibrated = withoutCalibration(1);
    uncalibrated.setModelName("ZANDOR");
    const FW_Dispenser zandor = ofModel("ZANDOR");
    const FW_Mixer mixer;
    const TintCmd command = tint(grams({{"1", 80}}), dispenser());
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&uncalibrated), 0);
    EXPECT_EQ(TintCmd(grams({{"9", 80}}), nullptr).getCmdEstimatedExecutionTime(&zandor), 0);
}

// ---------------------------------------------------------------- texts

} // namespace
