// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/turntablepurgeformulacmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <QuvFramework/purgeformula.h>

#include <memory>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "PurgeFormulaCmd::PurgeFormulaCmd(const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] =
    "PurgeFormulaCmd::PurgeFormulaCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofPurgeList[] = "PurgeFormulaCmd::PurgeFormulaCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char ofList[] =
    "TurntablePurgeFormulaCmd::TurntablePurgeFormulaCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char noPosition[] = "TurntablePurgeFormulaCmd failed: expected current position parameter";

/** From position 3 the table reaches them as 3, 4, 1. */
Formula threeCircuits()
{
    return grams({{"1", 80}, {"3", 40}, {"4", 8}});
}

CommandFacts facts(const FW_Dispenser *machine)
{
    using Command = TurntablePurgeFormulaCmd;
    const Formula formula = threeCircuits();
    CommandFacts facts(formsOf<Command>(machine));
    facts.forms.ofValue = [machine](const Value &value) -> Made {
        return std::make_unique<Command>(value, 3, machine);
    };
    facts.forms.valueMachine = machine;
    facts.catalogue = {"PURGE", 17, "0017", 1};
    facts.protoType = 1;
    facts.readsByHand = true;           // the position is the last element of a list, and not in a value
    facts.valueIsCheckedByBase = false; // a struct is a request, too
    facts.getters = {getter(&Command::formula), getter(&Command::currentPosition)};
    facts.words = {"Purge", "Purge in progress", "Purge of formula: 1 80.000, 3 40.000, 4 8.000"};
    facts.requests = {
        Request({variantOf(formula), 3})
            .value(arrayOf(formula.toXmlRpcValue()))
            .typed<Command>(formula, 3, machine)
            .written(R"([{"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["1", "3", "4"], )"
                     R"("levels_policy": 0, "quantities": [80.0000, 40.0000, 8.00000], "quantity_unit": 3}])")
            .sends({2, 3, 3, 33, 40, 2, 154, 1, 4, 34, 40, 1, 80, 1, 31, 40, 2, 62, 3})
            .takes(9600)};
    facts.answers = serialAnswers();
    return facts;
}

TEST(TurntablePurgeFormulaCmd, keepsTheCommandContract)
{
    const DebugLog quiet;
    const FW_Dispenser machine = withTurntable();
    expectCommandContract(facts(&machine));
}

TEST(TurntablePurgeFormulaCmd, isAPurgeWithAPosition)
{
    const FW_Dispenser machine = withTurntable();
    EXPECT_EQ(TurntablePurgeFormulaCmd(threeCircuits(), 3, nullptr).currentPosition(), 3);
    EXPECT_EQ(
        TurntablePurgeFormulaCmd(List{QVariant::fromValue(PurgeFormula()), true, 2}, &machine).formula(),
        strokes({{"1", 1}, {"2", 1}, {"3", 1}, {"4", 1}}));
}

TEST(TurntablePurgeFormulaCmd, refusesAPositionThatIsNone)
{
    const FW_Dispenser machine = withTurntable();
    const QVariant formula = QVariant::fromValue(threeCircuits());
    for (const QVariant &bad : {QVariant(), QVariant("here"), QVariant(1e10), QVariant(List{3})}) {
        SCOPED_TRACE(shown({bad}));
        expectRefusal("DE01727", noPosition, ofList, [&] {
            TurntablePurgeFormulaCmd(List{formula, bad}, &machine);
        });
    }
    expectRefusal("DE01727", noPosition, ofList, [&] { TurntablePurgeFormulaCmd(List{formula}, &machine); });
}

TEST(TurntablePurgeFormulaCmd, refusesWhatAPurgeRefuses)
{
    const FW_Dispenser machine = withTurntable();
    expectRefusal("DE01214", "Empty Formula found", ofFormula,
                  [&] { TurntablePurgeFormulaCmd(grams({}), 3, &machine); });
    expectRefusal("DE01662", "Invalid dispenser data", ofValue,
                  [&] { TurntablePurgeFormulaCmd(arrayOf(threeCircuits().toXmlRpcValue()), 3, nullptr); });
    expectRefusal("DE01663", "Invalid dispenser data", ofPurgeList, [&] {
        TurntablePurgeFormulaCmd(List{QVariant::fromValue(threeCircuits()), QStringLiteral("3")}, nullptr);
    });
}

TEST(TurntablePurgeFormulaCmd, poursInTheOrderOfTheTable)
{
    const FW_Dispenser machine = withTurntable();
    TurntablePurgeFormulaCmd command(threeCircuits(), 3, &machine);
    EXPECT_EQ(command.serialParameters(1),
              (QList<int>{2, 3, 3, 33, 40, 2, 154, 1, 4, 34, 40, 1, 80, 1, 31, 40, 2, 62, 3}));
    ASSERT_TRUE(command.setCommand("TINT2"));
    EXPECT_EQ(command.serialParameters(1),
              (QList<int>{66, 3, 6,  3, 33, 40, 0,  2,  154, 1, 1,  50, 4, 34, 40,
                          0,  1, 80, 1, 50, 1,  31, 40, 0,   2, 62, 3,  1, 50}));
    EXPECT_EQ(TurntablePurgeFormulaCmd(threeCircuits(), 3, nullptr).serialParameters(1), QList<int>());
}

TEST(TurntablePurgeFormulaCmd, poursInTheOrderOfTheTableAsACopy)
{
    FW_Dispenser machine = withTurntable();
    auto command = std::make_unique<TurntablePurgeFormulaCmd>(threeCircuits(), 3, &machine);
    const std::unique_ptr<TurntablePurgeFormulaCmd> clone(command->clone());
    machine = dispenser(); // not the command's own
    command.reset();
    ASSERT_TRUE(clone->setCommand("TINT2"));
    EXPECT_EQ(clone->serialParameters(1), (QList<int>{66, 3, 6,  3, 33, 40, 0,  2,  154, 1, 1,  50, 4, 34, 40,
                                                      0,  1, 80, 1, 50, 1,  31, 40, 0,   2, 62, 3,  1, 50}));
}

TEST(TurntablePurgeFormulaCmd, logsWhatItSendsInTheOrderOfTheTable)
{
    const FW_Dispenser machine = withTurntable();
    const TurntablePurgeFormulaCmd command(threeCircuits(), 3, &machine);
    const DebugLog log;
    command.serialParameters(1);
    EXPECT_EQ(log.lines(), QStringList{"circuit positions: 1 80.000, 3 40.000, 4 8.000 (weight or volume): "
                                       "circuit 3 400 steps, circuit 4 80 steps, circuit 1 800 steps"});
}

} // namespace
