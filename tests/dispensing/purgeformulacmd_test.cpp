// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgeformulacmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_version.h>
#include <QuvFramework/purgeformula.h>

#include <memory>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "PurgeFormulaCmd::PurgeFormulaCmd(const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] =
    "PurgeFormulaCmd::PurgeFormulaCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "PurgeFormulaCmd::PurgeFormulaCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char ofBaseList[] = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";

constexpr char noDispenser[] = "Invalid dispenser data";
constexpr char invalidFormula[] = "PurgeFormulaCmd failed: invalid Formula type parameter";
constexpr char invalidPurge[] = "PurgeFormulaCmd failed: invalid PurgeFormula type parameter";
constexpr char incorrectFormula[] = "PurgeFormulaCmd failed: incorrect Formula type parameter";

PurgeFormulaCmd purge(const Formula &formula, const FW_Dispenser &machine)
{
    return PurgeFormulaCmd(formula, &machine);
}

PurgeFormulaCmd purge2(const Formula &formula, const FW_Dispenser &machine)
{
    PurgeFormulaCmd command(formula, &machine);
    EXPECT_TRUE(command.setCommand("TINT2"));
    return command;
}

/** The struct of a purge of one stroke of all circuits. */
Value oneStroke()
{
    return structOf({{"purge_quantity", Value(1.0)}, {"quantity_unit", Value(2)}});
}

/** The formula on the dispenser that one stroke of all circuits becomes. */
Formula oneStrokeOfAll()
{
    return strokes({{"1", 1}, {"2", 1}, {"3", 1}, {"4", 1}});
}

void expectRefused(const char *code, const char *text, const Formula &formula, const FW_Dispenser &machine)
{
    const Value value = arrayOf(formula.toXmlRpcValue());
    const List list = {QVariant::fromValue(formula)};
    expectRefusal(code, text, ofFormula, [&] { PurgeFormulaCmd(formula, &machine); });
    expectRefusal(code, text, ofValue, [&] { PurgeFormulaCmd(value, &machine); });
    expectRefusal(code, text, ofList, [&] { PurgeFormulaCmd(list, &machine); });
    EXPECT_EQ(PurgeFormulaCmd(formula, nullptr).formula(), formula);
}

// ---------------------------------------------------------------- construction

CommandFacts facts(const FW_Dispenser &machine)
{
    const Formula formula = grams({{"1", 30}, {"2", 1}});
    CommandFacts facts(formsOf<PurgeFormulaCmd>(&machine));
    facts.catalogue = {"PURGE", 17, "0017", 1};
    facts.protoType = 1;
    facts.readsByHand = true;           // two kinds of formula
    facts.valueIsCheckedByBase = false; // a struct is a request, too
    facts.getters = {getter(&PurgeFormulaCmd::formula)};
    const Request pouring =
        Request({variantOf(formula)})
            .value(arrayOf(formula.toXmlRpcValue()))
            .typed<PurgeFormulaCmd>(formula, &machine)
            .written(R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "2"], )"
                     R"("levels_policy": 0, "quantities": [30.0000, 1.00000], "quantity_unit": 3}])")
            .sends({2, 2, 1, 31, 40, 2, 54, 1, 2, 32, 40, 1, 10})
            .takes(2250 + 75)
            .says({"Purge", "Purge in progress", "Purge of formula: 1 30.000, 2 1.000"});
    const Request purging =
        Request({variantOf(PurgeFormula())})
            .value(arrayOf(oneStroke()))
            .parameters({variantOf(oneStrokeOfAll())})
            .written(
                R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "2", "3", "4"], )"
                R"("levels_policy": 0, "quantities": [1.00000, 1.00000, 1.00000, 1.00000], "quantity_unit": 2}])")
            .sends({2,  4, 1,  31, 50, 2,  48, 12, 2,  32, 50, 2,  48,
                    12, 3, 33, 50, 2,  48, 12, 4,  34, 50, 2,  48, 12})
            .takes(4 * 18000)
            .says({"Purge", "Purge in progress", "Purge of formula: 1 1, 2 1, 3 1, 4 1"});
    facts.requests = {
        pouring,
        pouring.alsoFromList({QVariantMap{{"formula_type", 1},
                                          {"quantity_unit", 3},
                                          {"ids", QVariantList{"1", "2"}},
                                          {"quantities", QVariantList{30.0, 1.0}}}}),
        purging,
        purging.alsoFromValue(oneStroke()),
        purging.alsoFromList({QVariantMap{{"purge_quantity", 1.0}, {"quantity_unit", 2}}}),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(PurgeFormulaCmd, keepsTheCommandContract)
{
    const DebugLog quiet;
    expectCommandContract(facts(dispenser()));
}

TEST(PurgeFormulaCmd, purgesTheCircuitsOfOneHead)
{
    const FW_Dispenser dual = dualHead();
    EXPECT_EQ(PurgeFormulaCmd(List{QVariant::fromValue(PurgeFormula(5, 2, 3))}, &dual).formula(),
              grams({{"3", 5}, {"4", 5}}));
}

TEST(PurgeFormulaCmd, makesTheFormulaOneForTheDispenser)
{
    const FW_Dispenser machine = dispenser();
    const Formula asked =
        formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{"KX", 30}, {"B", 1}, {"KX", 12}});
    const Formula built = grams({{"3", 42}, {"1", 1}});
    EXPECT_EQ(PurgeFormulaCmd(asked, &machine).formula(), built);
    EXPECT_EQ(PurgeFormulaCmd(arrayOf(asked.toXmlRpcValue()), &machine).formula(), built);
    EXPECT_EQ(PurgeFormulaCmd(List{QVariant::fromValue(asked)}, &machine).formula(), built);
    EXPECT_EQ(PurgeFormulaCmd(asked, nullptr).formula(), asked) << "a client only passes it on";
}

TEST(PurgeFormulaCmd, looksForAFormulaBeforeAPurge)
{
    const FW_Dispenser machine = dispenser();
    Value both = grams({{"1", 30}}).toXmlRpcValue();
    both["purge_quantity"] = 5.0;
    EXPECT_EQ(PurgeFormulaCmd(arrayOf(both), &machine).formula(), grams({{"1", 30}}));
    const List map = {QVariantMap{{"formula_type", 1},
                                  {"quantity_unit", 3},
                                  {"ids", QVariantList{"1"}},
                                  {"quantities", QVariantList{30.0}},
                                  {"purge_quantity", 5.0}}};
    EXPECT_EQ(PurgeFormulaCmd(map, &machine).formula(), grams({{"1", 30}}));
}

TEST(PurgeFormulaCmd, needsADispenserToReadARequest)
{
    const Formula formula = grams({{"1", 30}});
    expectRefusal("DE01662", noDispenser, ofValue,
                  [&] { PurgeFormulaCmd(arrayOf(formula.toXmlRpcValue()), nullptr); });
    expectRefusal("DE01662", noDispenser, ofValue, [&] { PurgeFormulaCmd(oneStroke(), nullptr); });
    expectRefusal("DE01662", noDispenser, ofValue, [&] { PurgeFormulaCmd(Value(), nullptr); });
    expectRefusal("DE01663", noDispenser, ofList,
                  [&] { PurgeFormulaCmd(List{QVariant::fromValue(formula)}, nullptr); });
    expectRefusal("DE01663", noDispenser, ofList, [&] { PurgeFormulaCmd(List{1}, nullptr); });
    EXPECT_NO_THROW(PurgeFormulaCmd(grams({{"9", -30}}), nullptr));
}

TEST(PurgeFormulaCmd, refusesAFormulaThatCannotBeRead)
{
    const FW_Dispenser machine = dispenser();
    expectRefusal("DE01196", invalidFormula, ofValue,
                  [&] { PurgeFormulaCmd(arrayOf(unreadableFormula()), &machine); });
    expectRefusal("DE01204", incorrectFormula, ofList,
                  [&] { PurgeFormulaCmd(List{unreadableFormulaVariant()}, &machine); });
}

TEST(PurgeFormulaCmd, refusesAPurgeThatCannotBeRead)
{
    const FW_Dispenser machine = dispenser();
    const Value noPurge = structOf({{"purge_quantity", Value("much")}});
    for (const Value &request :
         {noPurge, arrayOf(noPurge), arrayOf(1), arrayOf("B"), arrayOf(structOf({{"head", Value(1)}})),
          arrayOf(arrayOf(oneStroke())), structOf({{"purge_quantity", Value(0.0)}})}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE01238", invalidPurge, ofValue, [&] { PurgeFormulaCmd(request, &machine); });
    }
    for (const QVariantMap &bad :
         {QVariantMap{{"purge_quantity", "much"}}, QVariantMap{{"purge_quantity", 0.0}},
          QVariantMap{{"purge_quantity", 1.0}, {"head", 3}}}) {
        SCOPED_TRACE(shown({bad}));
        expectRefusal("DE01237", invalidPurge, ofList, [&] { PurgeFormulaCmd(List{bad}, &machine); });
    }
}

TEST(PurgeFormulaCmd, refusesWhatIsNeither)
{
    const FW_Dispenser machine = dispenser();
    for (const Value &request : {Value(), Value(1), Value("B"), arrayOf(), structOf({{"head", Value(1)}}),
                                 grams({{"1", 30}}).toXmlRpcValue()}) {
        SCOPED_TRACE(dumped(request));
        expectRefusal("DE01255", incorrectFormula, ofValue, [&] { PurgeFormulaCmd(request, &machine); });
    }
    for (const QVariant &other : {QVariant(), QVariant(1.0), QVariant("B"), QVariant(QVariantMap())}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE01256", incorrectFormula, ofList, [&] { PurgeFormulaCmd(List{other}, &machine); });
    }
    expectRefusal("DE00313", "PURGE command : expected at least 1 parameters, received 0 instead!",
                  ofBaseList, [&] { PurgeFormulaCmd(List(), &machine); });
}

TEST(PurgeFormulaCmd, refusesAPurgeOfNoCircuit)
{
    FW_Dispenser empty;
    constexpr char text[] = "PurgeFormula: the dispenser has no circuit to purge";
    expectRefusal("DE03024", text, ofValue, [&] { PurgeFormulaCmd(arrayOf(oneStroke()), &empty); });
    expectRefusal("DE03024", text, ofValue, [&] { PurgeFormulaCmd(oneStroke(), &empty); });
    expectRefusal("DE03024", text, ofList,
                  [&] { PurgeFormulaCmd(List{QVariant::fromValue(PurgeFormula())}, &empty); });
}

TEST(PurgeFormulaCmd, checksWhatAPurgeByQuantityBecame)
{
    const FW_Dispenser machine = withoutCalibration(2);
    const PurgeFormula tenGrams(10, 0, 3);
    expectRefusal("DE01215", badSteps, ofValue,
                  [&] { PurgeFormulaCmd(arrayOf(tenGrams.toXmlRpcValue()), &machine); });
    expectRefusal("DE01215", badSteps, ofValue, [&] { PurgeFormulaCmd(tenGrams.toXmlRpcValue(), &machine); });
    expectRefusal("DE01215", badSteps, ofList,
                  [&] { PurgeFormulaCmd(List{QVariant::fromValue(tenGrams)}, &machine); });
}

TEST(PurgeFormulaCmd, copiesDeeply)
{
    const PurgeFormulaCmd command = purge2(grams({{"1", 30}}), dispenser());
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *purging = dynamic_cast<const PurgeFormulaCmd *>(clone.get());
    ASSERT_TRUE(purging);
    EXPECT_EQ(purging->command(), "TINT2");
    EXPECT_EQ(purging->formula(), grams({{"1", 30}}));
    EXPECT_NE(purging->machine(), command.machine());
    EXPECT_EQ(purging->serialParameters(1), (QList<int>{66, 1, 6, 1, 31, 40, 0, 2, 54, 1, 1, 50}));
}

// ---------------------------------------------------------------- the check before a purge

TEST(PurgeFormulaCmd, needsADispenserForItsCheck)
{
    FW_DriverError error;
    EXPECT_FALSE(PurgeFormulaCmd(grams({{"1", -30}}), nullptr).checkFormula(error));
    expectError(error, "DE01194", noDispenser);
    EXPECT_TRUE(purge(grams({{"1", 30}}), dispenser()).checkFormula(error));
}

TEST(PurgeFormulaCmd, refusesAFormulaThatTheMachineCannotPour)
{
    expectRefused("DE01209", notPositive, grams({{"1", 30}, {"2", -0.1}}), dispenser());
    expectRefused("DE01209", notPositive, grams({{"1", 30}, {"1", -0.1}}), dispenser()); // 29.9 in all
    expectRefused("DE01211", belowReserve, checkingLevels(grams({{"1", 60}})), withContent(1, 100));
    expectRefused("DE01217", belowZero, checkingLevels(grams({{"1", 100.5}})), withContent(1, 100));
    expectRefused("DE01213", badLevels, checkingLevels(grams({{"1", 1}})), withContent(1, 2000));
    expectRefused("DE03021", R"(Formula: the dispenser does not have "9")", grams({{"9", 30}}), dispenser());
    expectRefused("DE03022", R"(Formula: "2" is disabled)", grams({{"2", 30}}), withDisabledCircuit(2));
    expectRefused("DE03023", "Formula: the calibration of circuit 1 tells no quantity",
                  checkingLevels(steps({{"1", 30}})), withoutCalibration(1));
    expectRefused("DE01214", "Empty Formula found", grams({}), dispenser());
    expectRefused("DE01215", badSteps, grams({{"1", 30}, {"2", 1}}), withoutCalibration(2));
    expectRefused("DE01216", badSpeed, grams({{"1", 30}, {"2", 1}}), withoutSpeed(2));
}

TEST(PurgeFormulaCmd, checksInOneOrder)
{
    FW_Dispenser machine = withoutCalibration(2);
    machine.getCircuitByPosition(1)->setCalibration(FW_Calibration({{1000, 100, 0, 0}}));
    expectRefused("DE01209", notPositive, checkingLevels(grams({{"1", 600}, {"2", -1}})), machine);
    expectRefused("DE01217", belowZero, checkingLevels(grams({{"1", 600}, {"2", 1}})), machine);
    expectRefused("DE01216", badSpeed, grams({{"1", 30}, {"2", 1}}), machine);
    expectRefused("DE01215", badSteps, grams({{"2", 1}, {"1", 30}}), machine);
}

TEST(PurgeFormulaCmd, acceptsAWarningLevelAndLooksAtLevelsOnlyWhenToldTo)
{
    EXPECT_NO_THROW(purge(checkingLevels(grams({{"1", 30}})), withContent(1, 100)));
    for (int policy : {0, 1, 4}) {
        SCOPED_TRACE(policy);
        EXPECT_NO_THROW(purge(checkingLevels(grams({{"1", 600}}), policy), dispenser()));
    }
}

TEST(PurgeFormulaCmd, doesNotLookAtNozzleValves)
{
    EXPECT_NO_THROW(purge(steps({{"1", 300}, {"2", 300, 0, 99}}), nozzleBased()));
    EXPECT_NO_THROW(purge(grams({{"1", 30, 0, 99}}), nozzleBased()));
}

// ---------------------------------------------------------------- towards the firmware

TEST(PurgeFormulaCmd, isSentAsATint)
{
    const Formula formula = grams({{"1", 30}, {"2", 1}});
    EXPECT_EQ(purge(formula, dispenser()).serialParameters(1),
              (QList<int>{2, 2, 1, 31, 40, 2, 54, 1, 2, 32, 40, 1, 10}));
    EXPECT_EQ(purge(formula, withoutQueue(2)).serialParameters(2),
              (QList<int>{0, 2, 1, 0, 40, 2, 54, 1, 2, 0, 40, 1, 10}));
    EXPECT_EQ(PurgeFormulaCmd(formula, nullptr).serialParameters(1), QList<int>());
}

TEST(PurgeFormulaCmd, isMarkedAsTint2)
{
    const Formula formula = grams({{"1", 30}, {"2", 1}});
    EXPECT_EQ(purge2(formula, dispenser()).serialParameters(1),
              (QList<int>{66, 2, 6, 1, 31, 40, 0, 2, 54, 1, 1, 50, 2, 32, 40, 0, 1, 10, 1, 50}));
    EXPECT_EQ(purge2(formula, withoutQueue(2)).serialParameters(1).mid(0, 5), (QList<int>{66, 2, 6, 1, 0}));
    Formula unqueued = formula;
    unqueued.setExecutionCriterion(1);
    EXPECT_EQ(purge2(unqueued, dispenser()).serialParameters(1).mid(0, 5), (QList<int>{65, 2, 6, 1, 0}));
    EXPECT_EQ(purge(unqueued, dispenser()).serialParameters(1).mid(0, 4), (QList<int>{1, 2, 1, 0}));
}

TEST(PurgeFormulaCmd, sendsWhatItCheckedUnderEitherNameAndAsACopy)
{
    const QList<int> asPurge = {2, 1, 1, 31, 40, 2, 54, 1};
    const QList<int> asTint2 = {66, 1, 6, 1, 31, 40, 0, 2, 54, 1, 1, 50};
    FW_Dispenser machine = dispenser();
    auto command = std::make_unique<PurgeFormulaCmd>(grams({{"1", 30}}), &machine);
    machine = withoutCalibration(1); // not the command's own
    EXPECT_EQ(command->serialParameters(1), asPurge);
    ASSERT_TRUE(command->setCommand("TINT2"));
    EXPECT_EQ(command->serialParameters(1), asTint2);
    const std::unique_ptr<PurgeFormulaCmd> clone(command->clone());
    command.reset();
    EXPECT_EQ(clone->serialParameters(1), asTint2);
    EXPECT_EQ(clone->getCmdEstimatedExecutionTime(nullptr), 2250);
    ASSERT_TRUE(clone->setCommand("PURGE"));
    EXPECT_EQ(clone->serialParameters(1), asPurge);
}

/** A purge that pours something else in the end. */
class ChangedPurge : public PurgeFormulaCmd
{
public:
    using PurgeFormulaCmd::PurgeFormulaCmd;

    Formula &changeableFormula() { return m_formula; }
};

TEST(PurgeFormulaCmd, sendsAFormulaThatIsChangedAfterItsCheck)
{
    const FW_Dispenser machine = dispenser();
    ChangedPurge command(grams({{"1", 30}}), &machine);
    command.changeableFormula() = grams({{"2", 80}});
    EXPECT_EQ(command.serialParameters(1), (QList<int>{2, 1, 2, 32, 40, 2, 62, 3}));
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 6000);
    command.changeableFormula() = grams({{"9", 30}});
    EXPECT_EQ(command.serialParameters(1), QList<int>()) << "there is no such circuit";
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
}

TEST(PurgeFormulaCmd, logsWhatItSends)
{
    const PurgeFormulaCmd command = purge(grams({{"1", 30}, {"2", 1}}), dispenser());
    const DebugLog log;
    command.serialParameters(1);
    EXPECT_EQ(log.lines(), QStringList{"circuit positions: 1 30.000, 2 1.000 (weight or volume): "
                                       "circuit 1 300 steps, circuit 2 10 steps"});
    PurgeFormulaCmd(grams({{"1", 30}}), nullptr).serialParameters(1);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(PurgeFormulaCmd, knowsWhichFirmwareHasTint2)
{
    for (const FW_Version &version : {FW_Version(63, 41), FW_Version(63, 99), FW_Version(70, 3),
                                      FW_Version(72, 0), FW_Version(72, 1), FW_Version(72, 50)})
        EXPECT_TRUE(PurgeFormulaCmd::isTint2CmdSupported(version)) << version.toString().toStdString();
    for (const FW_Version &version :
         {FW_Version(63, 0), FW_Version(63, 40), FW_Version(70, 0), FW_Version(70, 2), FW_Version(68, 99),
          FW_Version(69, 99), FW_Version(71, 99), FW_Version(73, 99), FW_Version()})
        EXPECT_FALSE(PurgeFormulaCmd::isTint2CmdSupported(version)) << version.toString().toStdString();
}

// ---------------------------------------------------------------- time

TEST(PurgeFormulaCmd, takesTheTimeOfThePourOnItsOwnMachine)
{
    const FW_Dispenser zandor = ofModel("ZANDOR");
    const Formula formula = grams({{"1", 80}, {"2", 40}});
    EXPECT_EQ(purge(formula, dispenser()).getCmdEstimatedExecutionTime(nullptr), 9000);
    EXPECT_EQ(purge(formula, dispenser()).getCmdEstimatedExecutionTime(&zandor), 9000);
    EXPECT_EQ(purge(formula, dualHead()).getCmdEstimatedExecutionTime(&zandor), 6000);
}

TEST(PurgeFormulaCmd, takesNoMoreTimeOnAnyMachine)
{
    const Formula formula = grams({{"1", 80}});
    for (const FW_Dispenser &machine : {ofModel("ZANDOR"), gravimetric(1), withAutocap()}) {
        SCOPED_TRACE(machine.modelName().toStdString());
        EXPECT_EQ(purge(formula, machine).getCmdEstimatedExecutionTime(&machine), 6000);
    }
}

TEST(PurgeFormulaCmd, takesNoTimeThatCannotBeTold)
{
    const FW_Dispenser machine = dispenser();
    FW_Dispenser turnless = dispenser();
    FW_DosingMotor motor;
    motor.setResolution(0);
    turnless.getCircuitByPosition(1)->setDosingMotor(motor);
    EXPECT_EQ(PurgeFormulaCmd(grams({{"1", 80}}), nullptr).getCmdEstimatedExecutionTime(&machine), 0);
    EXPECT_EQ(purge(grams({{"2", 80}, {"1", 80}}), turnless).getCmdEstimatedExecutionTime(&machine), 0);
}

// ---------------------------------------------------------------- texts

} // namespace
