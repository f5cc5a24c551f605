// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/primingcmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <vector>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "PrimingCmd::PrimingCmd(const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] = "PrimingCmd::PrimingCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "PrimingCmd::PrimingCmd(QList<QVariant>, const FW_Dispenser*)";

constexpr char badSign[] = "Formula stopped because of negative quantity values";
constexpr char badUnit[] = "Formula stopped because of invalid quantity unit";

Value oneStrokeValue()
{
    return structOf({{"formula_type", Value(1)},
                     {"quantity_unit", Value(2)},
                     {"exec_criterion", Value(0)},
                     {"levels_policy", Value(0)},
                     {"decimals", Value(3)},
                     {"ids", arrayOf("1")},
                     {"quantities", arrayOf(1.0)}});
}

QVariantMap oneStrokeMap()
{
    return {{"formula_type", 1},
            {"quantity_unit", 2},
            {"ids", QVariantList{"1"}},
            {"quantities", QVariantList{1.0}}};
}

List listOf(const Formula &formula)
{
    return {QVariant::fromValue(formula)};
}

FW_Dispenser withoutMaxSpeed(int position)
{
    FW_Dispenser machine = dispenser();
    FW_DosingMotor motor = machine.getCircuitByPosition(position)->dosingMotor();
    motor.setMaxSpeed(0);
    machine.getCircuitByPosition(position)->setDosingMotor(motor);
    return machine;
}

/** Expects the refusal of all three constructors. */
void expectRefused(const Formula &formula, const FW_Dispenser &machine, const char *code, const char *text)
{
    expectRefusal(code, text, ofFormula, [&] { const PrimingCmd command(formula, &machine); });
    expectRefusal(code, text, ofValue,
                  [&] { const PrimingCmd command(arrayOf(formula.toXmlRpcValue()), &machine); });
    expectRefusal(code, text, ofList, [&] { const PrimingCmd command(listOf(formula), &machine); });
}

void expectTaken(const Formula &formula, const FW_Dispenser &machine)
{
    EXPECT_EQ(PrimingCmd(formula, &machine).formula(), formula);
    EXPECT_EQ(PrimingCmd(arrayOf(formula.toXmlRpcValue()), &machine).formula(), formula);
    EXPECT_EQ(PrimingCmd(listOf(formula), &machine).formula(), formula);
    FW_DriverError error;
    EXPECT_TRUE(PrimingCmd(formula, &machine).checkFormula(error));
    EXPECT_EQ(error.code(), "");
}

// ---------------------------------------------------------------- construction

Words primingOf(const char *formula)
{
    return {"Priming", "Priming in progress", untranslated(formula)};
}

CommandFacts facts(const FW_Dispenser *machine)
{
    const Formula formula = strokes({{"1", 1}});
    CommandFacts facts(formsOf<PrimingCmd>(machine));
    facts.catalogue = {"PRIMING", 15, "0017", 1};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required()
            .refuses({unreadableFormula(), Value(7), Value("formula"), arrayOf(), structOf({})},
                     {7, "formula", QVariant(), QVariantMap{}, QVariantMap{{"ids", List{"1"}}},
                      List{oneStrokeMap()}},
                     {"DE00497", "DE00494", "PrimingCmd failed: invalid Formula type parameter",
                      "PrimingCmd failed: expected Formula type parameter"})
            .refuses({}, {unreadableFormulaVariant()},
                     {"", "DE00493", "PrimingCmd failed: incorrect Formula type parameter"})};
    facts.getters = {getter(&PrimingCmd::formula)};
    facts.defaults = Request()
                         .parameters({variantOf(Formula())})
                         .written(std::string("[") + emptyFormulaWritten + "]")
                         .says(primingOf("Priming with formula: "));
    const Request request =
        Request({variantOf(formula)})
            .value(arrayOf(oneStrokeValue()))
            .typed<PrimingCmd>(formula, machine)
            .written(
                R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1"], "levels_policy": 0, )"
                R"("quantities": [1.00000], "quantity_unit": 2}])")
            .sends(machine ? QList<int>{3, 1, 1, 0, 50, 1, 1} : QList<int>())
            .says(primingOf("Priming with formula: 1 1"));
    facts.requests = {request, request.alsoFromList({oneStrokeMap()})};
    facts.answers = serialAnswers();
    return facts;
}

TEST(PrimingCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(PrimingCmd, goesRoundInBothForms)
{
    const Formula formula = checkingLevels(strokes({{"1", 1, 7}, {"3", 300, 0, 2}}));
    const PrimingCmd command(formula, nullptr);
    EXPECT_EQ(PrimingCmd(command.xmlrpc_parameters(), nullptr).formula(), formula);
    EXPECT_EQ(PrimingCmd(command.parameters(), nullptr).formula(), formula);
}

TEST(PrimingCmd, checksNothingWithoutADispenser)
{
    for (const Formula &formula :
         {Formula(), grams({{"1", 10}}), strokes({{"1", -1}}), strokes({{"99", 0}})}) {
        SCOPED_TRACE(dumped(formula.toXmlRpcValue()));
        EXPECT_EQ(PrimingCmd(formula, nullptr).formula(), formula);
        EXPECT_EQ(PrimingCmd(arrayOf(formula.toXmlRpcValue()), nullptr).formula(), formula);
        EXPECT_EQ(PrimingCmd(listOf(formula), nullptr).formula(), formula);
    }
}

// ---------------------------------------------------------------- the check

TEST(PrimingCmd, takesStrokesOfCircuitsThatTheMachineHas)
{
    expectTaken(strokes({{"1", 1}}), dispenser());
    expectTaken(strokes({{"4", 300}, {"2", 1}}), dispenser());
    expectTaken(strokes({{"1", 1}}), withoutCalibration(1)); // strokes need none
    expectTaken(formulaOf(Formula::ColorantCodes, Formula::Strokes, {{"KX", 1}}), dispenser());
}

TEST(PrimingCmd, cannotBeCheckedWithoutADispenser)
{
    FW_DriverError error;
    EXPECT_FALSE(PrimingCmd(strokes({{"1", 1}}), nullptr).checkFormula(error));
    expectError(error, "DE01066", "Invalid dispenser data");
    EXPECT_FALSE(PrimingCmd(strokes({{"1", -1}}), nullptr).checkFormula(error)); // comes first
    expectError(error, "DE01066", "Invalid dispenser data");
}

TEST(PrimingCmd, needsPositiveQuantities)
{
    expectRefused(strokes({{"1", 1}, {"2", -1}}), dispenser(), "DE00495", badSign);
    expectRefused(strokes({{"1", 1}, {"2", 0}}), dispenser(), "DE00495", badSign);
    expectRefused(grams({{"1", -1}}), dispenser(), "DE00495", badSign); // before the unit
}

TEST(PrimingCmd, needsStrokes)
{
    for (int unit : {0, 1, 3}) {
        SCOPED_TRACE(unit);
        expectRefused(formulaOf(1, unit, {{"1", 1}}), dispenser(), "DE00499", badUnit);
    }
    // before the levels are looked at, and before the circuits are
    expectRefused(checkingLevels(grams({{"1", 600}})), dispenser(), "DE00499", badUnit);
    expectRefused(grams({{"99", 1}}), dispenser(), "DE00499", badUnit);
    expectRefused(grams({}), dispenser(), "DE00499", badUnit);
}

TEST(PrimingCmd, checksLevelsWhenItIsAsked)
{
    // one stroke takes 300 g, of 500 g that are there
    const Formula oneStroke = checkingLevels(strokes({{"1", 1}}));
    expectTaken(oneStroke, dispenser());
    expectTaken(oneStroke, withContent(1, 350)); // 50 g are left, the reserve
    expectRefused(oneStroke, withContent(1, 349), "DE00502", belowReserve);
    expectTaken(oneStroke, withContent(1, 1300));
    expectRefused(oneStroke, withContent(1, 1301), "DE00535", badLevels);
    expectRefused(checkingLevels(strokes({{"1", 2}})), dispenser(), "DE00501", belowZero);
    expectTaken(strokes({{"1", 2}}), dispenser());

    Formula otherPolicy = strokes({{"1", 2}});
    otherPolicy.setLevelsManagementPolicy(5);
    expectTaken(otherPolicy, dispenser());
    otherPolicy.setLevelsManagementPolicy(7);
    expectRefused(otherPolicy, dispenser(), "DE00501", belowZero);
}

TEST(PrimingCmd, saysOfLevelsThatItCannotTellThatTheyCannotBeChecked)
{
    expectRefused(checkingLevels(strokes({{"1", 1}})), withoutCalibration(1), "DE00503", badLevels);
    expectRefused(checkingLevels(strokes({{"99", 1}})), dispenser(), "DE00503", badLevels);
    expectRefused(checkingLevels(strokes({{"1", 1}})), withDisabledCircuit(1), "DE00503", badLevels);
}

TEST(PrimingCmd, passesOnWhatTheFormulaSaysOfTheMachine)
{
    expectRefused(strokes({{"1", 1}, {"99", 1}}), dispenser(), "DE03021",
                  "Formula: the dispenser does not have \"99\"");
    expectRefused(strokes({{"1", 1}}), withDisabledCircuit(1), "DE03022", "Formula: \"1\" is disabled");
}

TEST(PrimingCmd, needsItems)
{
    expectRefused(strokes({}), dispenser(), "DE00534", "Empty Formula found");
    expectRefused(checkingLevels(strokes({})), dispenser(), "DE00534", "Empty Formula found");
}

TEST(PrimingCmd, needsStrokesAndSpeedOfEveryCircuit)
{
    constexpr char noStrokes[] = "Formula stopped because of errors in strokes calculus";
    constexpr char noSpeed[] = "Formula stopped because of errors in speed calculus";
    constexpr double tooMany = 3e9;
    expectRefused(strokes({{"1", 1}, {"2", tooMany}}), dispenser(), "DE00504", noStrokes);
    expectRefused(strokes({{"1", 1}, {"2", 1}}), withoutMaxSpeed(2), "DE00505", noSpeed);
    expectRefused(strokes({{"2", tooMany}}), withoutMaxSpeed(2), "DE00504", noStrokes);
    // circuit by circuit: the first one's speed before the second one's strokes
    expectRefused(strokes({{"2", 1}, {"1", tooMany}}), withoutMaxSpeed(2), "DE00505", noSpeed);
}

// ---------------------------------------------------------------- towards the firmware

TEST(PrimingCmd, sendsStrokesWithoutQueues)
{
    const FW_Dispenser machine = dispenser();
    const PrimingCmd command(strokes({{"1", 1}, {"3", 300}, {"2", 245}, {"4", 246}}), &machine);
    const QList<int> expected = {3, 4, 1, 0,  50, 1,   1, 3, 0,  50, 2, 54,
                                 1, 2, 0, 50, 1,  245, 4, 0, 50, 2,  0, 1};
    for (int family : {1, 2}) {
        SCOPED_TRACE(family);
        EXPECT_EQ(command.serialParameters(family), expected);
    }
}

TEST(PrimingCmd, sendsNoQueueNorCriterionOfTheFormula)
{
    const FW_Dispenser machine = dispenser();
    Formula formula = strokes({{"1", 2, 9}});
    formula.setExecutionCriterion(2);
    EXPECT_EQ(PrimingCmd(formula, &machine).serialParameters(1), (QList<int>{3, 1, 1, 0, 50, 1, 2}));
}

TEST(PrimingCmd, countsButDoesNotSendCircuitsWithoutAWholeStroke)
{
    const FW_Dispenser machine = dispenser();
    const PrimingCmd command(strokes({{"1", 0.4}, {"2", 1}, {"3", 0.1}}), &machine);
    EXPECT_EQ(command.serialParameters(1), (QList<int>{3, 3, 2, 0, 50, 1, 1}));
    EXPECT_EQ(PrimingCmd(strokes({{"1", 0.4}}), &machine).serialParameters(1), (QList<int>{3, 1}));
}

// ---------------------------------------------------------------- words

TEST(PrimingCmd, saysWhatItDoes)
{
    const PrimingCmd command(strokes({{"1", 1}, {"3", 300}}), nullptr);
    EXPECT_EQ(command.actionString(true).m_text, "Priming with formula: 1 1, 3 300");
}

// ---------------------------------------------------------------- defaults for programs

TEST(PrimingCmd, suggestsStrokesAndSpeedForATypeOfCircuit)
{
    struct Row
    {
        int type;
        int strokes;
        int speed;
    };
    const std::vector<Row> rows = {
        {-1, 20, 0},  {0, 20, 0},   {1, 20, 50},  {2, 20, 30}, {3, 20, 50}, {4, 20, 50},
        {5, 20, 50},  {6, 20, 50},  {7, 3, 50},   {8, 20, 30}, {9, 20, 50}, {10, 20, 50},
        {11, 20, 50}, {12, 20, 50}, {13, 20, 50}, {14, 3, 50}, {15, 20, 0}, {1000, 20, 0},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(PrimingCmd::defaultPrimingStrokes(row.type), row.strokes) << row.type;
        EXPECT_EQ(PrimingCmd::defaultPrimingSpeed(row.type), row.speed) << row.type;
    }
}

} // namespace
