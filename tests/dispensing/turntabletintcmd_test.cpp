// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/turntabletintcmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <memory>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "TintCmd::TintCmd(const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] = "TintCmd::TintCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofTintList[] = "TintCmd::TintCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char ofList[] = "TurntableTintCmd::TurntableTintCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char noPosition[] = "TurntableTintCmd failed: expected current position parameter";

/** From position 3 the table reaches them as 3, 4, 1. */
Formula threeCircuits()
{
    return grams({{"1", 80}, {"3", 40}, {"4", 8}});
}

constexpr char threeCircuitsWritten[] =
    R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "3", "4"], )"
    R"("levels_policy": 0, "quantities": [80.0000, 40.0000, 8.00000], "quantity_unit": 3}])";

CommandFacts facts(const FW_Dispenser *machine)
{
    const Formula formula = threeCircuits();
    CommandFacts facts(formsOf<TurntableTintCmd>(machine));
    facts.forms.ofValue = [machine](const Value &value) -> Made {
        return std::make_unique<TurntableTintCmd>(value, 3, machine);
    };
    facts.forms.valueMachine = machine;
    facts.catalogue = {"TINT", 8, "0017", 1};
    facts.protoType = 1;
    facts.readsByHand = true; // the position is the last element of a list, and not in a value
    facts.getters = {getter(&TurntableTintCmd::formula), getter(&TurntableTintCmd::currentPosition)};
    facts.words = {"Dispense", "Dispensing in progress", untranslated("1 80.000, 3 40.000, 4 8.000")};
    facts.defaults = Request()
                         .parameters({variantOf(Formula()), 0})
                         .written(std::string("[") + emptyFormulaWritten + "]")
                         .says({"Dispense", "Dispensing in progress", untranslated("")});
    const Request request = Request({variantOf(formula), 3})
                                .value(arrayOf(formula.toXmlRpcValue()))
                                .typed<TurntableTintCmd>(formula, 3, machine)
                                .written(threeCircuitsWritten);
    facts.requests = {request, request.alsoFromList({variantOf(formula), "rest", 1, 3LL})};
    facts.afterDefaults = Request().parameters({variantOf(formula), 0}).written(threeCircuitsWritten);
    if (machine) {
        for (Request &each : facts.requests)
            each.takes(11600).sends({2, 3, 3, 33, 40, 2, 154, 1, 4, 34, 40, 1, 80, 1, 31, 40, 2, 62, 3});
        facts.afterDefaults->takes(11600).sends(
            {2, 3, 1, 31, 40, 2, 62, 3, 4, 34, 40, 1, 80, 3, 33, 40, 2, 154, 1});
    }
    facts.answers = serialAnswers();
    return facts;
}

TEST(TurntableTintCmd, keepsTheCommandContract)
{
    const DebugLog quiet;
    const FW_Dispenser machine = withTurntable();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(TurntableTintCmd, cannotBeCheckedAtFirst)
{
    FW_DriverError error;
    EXPECT_FALSE(TurntableTintCmd().checkFormula(error));
    expectError(error, "DE01103", "Invalid dispenser data");
}

TEST(TurntableTintCmd, takesThePositionThatIsGivenBesideAValue)
{
    const Value request = arrayOf(threeCircuits().toXmlRpcValue());
    EXPECT_EQ(TurntableTintCmd(request, 2, nullptr).currentPosition(), 2);
}

TEST(TurntableTintCmd, takesThePositionFromTheEndOfTheList)
{
    const List list = {QVariant::fromValue(threeCircuits()), QStringLiteral("rest"), 1, 4LL};
    EXPECT_EQ(TurntableTintCmd(list, nullptr).currentPosition(), 4);
    EXPECT_EQ(TurntableTintCmd(list, nullptr).formula(), threeCircuits());
}

TEST(TurntableTintCmd, refusesAPositionThatIsNone)
{
    const QVariant formula = QVariant::fromValue(threeCircuits());
    for (const QVariant &bad :
         {QVariant(), QVariant("here"), QVariant(1e10), QVariant(List{3}), QVariant(4294967296LL)}) {
        SCOPED_TRACE(shown({bad}));
        expectRefusal("DE01697", noPosition, ofList, [&] { TurntableTintCmd(List{formula, bad}, nullptr); });
    }
    expectRefusal("DE01697", noPosition, ofList, [&] { TurntableTintCmd(List{formula}, nullptr); });
}

TEST(TurntableTintCmd, takesAPositionThatConverts)
{
    const QVariant formula = QVariant::fromValue(threeCircuits());
    for (const QVariant &position : {QVariant("3"), QVariant(2.7), QVariant(3LL)}) {
        SCOPED_TRACE(shown({position}));
        EXPECT_EQ(TurntableTintCmd(List{formula, position}, nullptr).currentPosition(), 3);
    }
}

TEST(TurntableTintCmd, refusesWhatATintRefuses)
{
    const FW_Dispenser machine = withTurntable();
    const Formula empty = grams({});
    expectRefusal("DE00437", "TintCmd failed: invalid Formula type parameter", ofValue,
                  [&] { TurntableTintCmd(arrayOf(unreadableFormula()), 3, &machine); });
    expectRefusal("DE00439", "TintCmd failed: expected Formula type parameter", ofTintList, [&] {
        TurntableTintCmd(List{1, QStringLiteral("3")}, &machine);
    });
    expectRefusal("DE00775", "TintCmd failed: incorrect Formula type parameter", ofTintList, [&] {
        TurntableTintCmd(List{unreadableFormulaVariant(), 3}, &machine);
    });
    expectRefusal("DE00583", "Empty Formula found", ofFormula, [&] { TurntableTintCmd(empty, 3, &machine); });
    expectRefusal("DE00583", "Empty Formula found", ofValue,
                  [&] { TurntableTintCmd(arrayOf(empty.toXmlRpcValue()), 3, &machine); });
    expectRefusal("DE00583", "Empty Formula found", ofTintList, [&] {
        TurntableTintCmd(List{QVariant::fromValue(empty), QStringLiteral("3")}, &machine);
    });
}

TEST(TurntableTintCmd, poursInTheOrderOfTheTable)
{
    const FW_Dispenser machine = withTurntable();
    TurntableTintCmd command(threeCircuits(), 3, &machine);
    EXPECT_EQ(command.serialParameters(1),
              (QList<int>{2, 3, 3, 33, 40, 2, 154, 1, 4, 34, 40, 1, 80, 1, 31, 40, 2, 62, 3}));
    ASSERT_TRUE(command.setCommand("TINT2"));
    EXPECT_EQ(command.serialParameters(1), (QList<int>{2, 3, 6,  3, 33, 40, 0,  2,  154, 1, 1,  50, 4, 34, 40,
                                                       0, 1, 80, 1, 50, 1,  31, 40, 0,   2, 62, 3,  1, 50}));
    EXPECT_EQ(TurntableTintCmd(threeCircuits(), 1, &machine).serialParameters(1).mid(2, 2),
              (QList<int>{1, 31}));
    EXPECT_EQ(TurntableTintCmd(threeCircuits(), 3, nullptr).serialParameters(1), QList<int>());
}

TEST(TurntableTintCmd, poursInTheOrderOfTheTableAsACopy)
{
    FW_Dispenser machine = withTurntable();
    auto command = std::make_unique<TurntableTintCmd>(threeCircuits(), 3, &machine);
    const std::unique_ptr<TurntableTintCmd> clone(command->clone());
    machine = dispenser(); // not the command's own
    command.reset();
    ASSERT_TRUE(clone->setCommand("TINT2"));
    EXPECT_EQ(clone->serialParameters(1), (QList<int>{2, 3, 6,  3, 33, 40, 0,  2,  154, 1, 1,  50, 4, 34, 40,
                                                      0, 1, 80, 1, 50, 1,  31, 40, 0,   2, 62, 3,  1, 50}));
}

TEST(TurntableTintCmd, takesTheTimeOfPoursAndWaysOnItsOwnMachine)
{
    const FW_Dispenser machine = withTurntable();
    const FW_Dispenser zandor = ofModel("ZANDOR");
    const TurntableTintCmd command(threeCircuits(), 3, &machine);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 11600);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&zandor), 11600);
    EXPECT_EQ(TurntableTintCmd(grams({{"1", 80}}), 1, &machine).getCmdEstimatedExecutionTime(nullptr), 6000);
    EXPECT_EQ(TurntableTintCmd(grams({{"1", 80}}), 2, &machine).getCmdEstimatedExecutionTime(nullptr), 7000);
}

TEST(TurntableTintCmd, takesNoTimeForAnythingElse)
{
    FW_Dispenser scale = withTurntable();
    FW_DosingMotor motor;
    motor.setGravimetricSw(true);
    scale.getCircuitByPosition(1)->setDosingMotor(motor);
    scale.setModelName("ZANDOR");
    EXPECT_EQ(TurntableTintCmd(grams({{"1", 80}}), 1, &scale).getCmdEstimatedExecutionTime(nullptr), 6000);
}

TEST(TurntableTintCmd, takesNoTimeThatCannotBeTold)
{
    const FW_Dispenser machine = withTurntable();
    const FW_Dispenser withoutTable = dispenser();
    EXPECT_EQ(TurntableTintCmd(threeCircuits(), 3, nullptr).getCmdEstimatedExecutionTime(&machine), 0);
    EXPECT_EQ(TurntableTintCmd(threeCircuits(), 3, &withoutTable).getCmdEstimatedExecutionTime(&machine), 0);
}

} // namespace
