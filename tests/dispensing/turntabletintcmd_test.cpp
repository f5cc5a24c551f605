// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/turntabletintcmd.h"

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

TEST(TurntableTintCmd, isEmptyAtFirst)
{
    const TurntableTintCmd command;
    EXPECT_EQ(command.command(), "TINT");
    EXPECT_EQ(command.formula(), Formula());
    EXPECT_EQ(command.currentPosition(), 0);
    EXPECT_FALSE(command.machine());
    EXPECT_EQ(command.serialParameters(1), QList<int>());
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
    FW_DriverError error;
    EXPECT_FALSE(command.checkFormula(error));
    expectError(error, "DE01103", "Invalid dispenser data");
}

TEST(TurntableTintCmd, isATintWithAPosition)
{
    const Formula formula = threeCircuits();
    const FW_Dispenser machine = withTurntable();
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        for (const TurntableTintCmd &command :
             {TurntableTintCmd(formula, 3, given),
              TurntableTintCmd(arrayOf(formula.toXmlRpcValue()), 3, given),
              TurntableTintCmd(List{QVariant::fromValue(formula), 3}, given)}) {
            EXPECT_EQ(command.command(), "TINT");
            EXPECT_EQ(command.formula(), formula);
            EXPECT_EQ(command.currentPosition(), 3);
            EXPECT_EQ(command.machine() != nullptr, given != nullptr);
        }
    }
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
        expectRefusal("DE01697", noPosition, ofList, [&] { TurntableTintCmd(List{formula, bad}, nullptr); });
    }
    expectRefusal("DE01697", noPosition, ofList, [&] { TurntableTintCmd(List{formula}, nullptr); });
}

TEST(TurntableTintCmd, takesAPositionThatConverts)
{
    const QVariant formula = QVariant::fromValue(threeCircuits());
    for (const QVariant &position : {QVariant("3"), QVariant(2.7), QVariant(3LL)})
        EXPECT_EQ(TurntableTintCmd(List{formula, position}, nullptr).currentPosition(), 3);
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

TEST(TurntableTintCmd, writesThePositionOnlyForItsOwnClient)
{
    const TurntableTintCmd command(threeCircuits(), 3, nullptr);
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)),
              R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "3", "4"], )"
              R"("levels_policy": 0, "quantities": [80.0000, 40.0000, 8.00000], "quantity_unit": 3}])");
    EXPECT_TRUE(ok);
    const List parameters = command.parameters();
    ASSERT_EQ(parameters.size(), 2);
    EXPECT_EQ(parameters.at(0).value<Formula>(), threeCircuits());
    EXPECT_EQ(parameters.at(1), QVariant(3));
    EXPECT_EQ(TurntableTintCmd(parameters, nullptr).currentPosition(), 3);
    EXPECT_EQ(TurntableTintCmd(command.xmlrpc_parameters(), 2, nullptr).currentPosition(), 2);
}

TEST(TurntableTintCmd, goesBackToItsDefaults)
{
    TurntableTintCmd command(threeCircuits(), 3, nullptr);
    command.setDefaults();
    EXPECT_EQ(command.currentPosition(), 0);
    EXPECT_EQ(command.formula(), threeCircuits());
}

TEST(TurntableTintCmd, copiesThePosition)
{
    const FW_Dispenser machine = withTurntable();
    const TurntableTintCmd command(threeCircuits(), 3, &machine);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *tinting = dynamic_cast<const TurntableTintCmd *>(clone.get());
    ASSERT_TRUE(tinting);
    EXPECT_EQ(tinting->currentPosition(), 3);
    EXPECT_EQ(tinting->formula(), threeCircuits());
    EXPECT_EQ(tinting->getCmdEstimatedExecutionTime(nullptr), 11600);
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

TEST(TurntableTintCmd, speaksAsATint)
{
    const TurntableTintCmd command(grams({{"1", 30}}), 3, nullptr);
    EXPECT_EQ(command.commandString(), "Dispense");
    EXPECT_EQ(command.actionString(false).m_text, "Dispensing in progress");
    EXPECT_EQ(command.actionString(true).m_text, "1 30.000");
}

} // namespace
