// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/circuitlistcmd.h"

#include "base/outofmemory.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/airpurgecmd.h"
#include "dispensing/circuitlisttesting.h"
#include "dispensing/pack2cmd.h"
#include "dispensing/priming2cmd.h"

namespace {

using namespace testing_dispensing;

const CircuitListRefusals ofPriming = {"Priming2Cmd", "DE01933", "DE01930", "DE01355", "DE02165"};
const CircuitListRefusals ofPack = {"Pack2Cmd", "DE02320", "DE02321", "DE02322", "DE02324"};

/** What differs between the commands; an air purge has its own criterion and the refusals of a pack. */
template <class Command>
struct Kind;

template <>
struct Kind<Priming2Cmd>
{
    static constexpr char name[] = "PRIMING2";
    static constexpr int row = 120;
    static constexpr char code[] = "0024";
    static constexpr int defaultCriterion = 1;
    static int sent(int criterion) { return criterion; }
    static const CircuitListRefusals &refusals() { return ofPriming; }
    static constexpr char countedName[] = "PRIMING2";
};

template <>
struct Kind<Pack2Cmd>
{
    static constexpr char name[] = "PACK2";
    static constexpr int row = 121;
    static constexpr char code[] = "0023";
    static constexpr int defaultCriterion = 0;
    static int sent(int criterion) { return criterion; }
    static const CircuitListRefusals &refusals() { return ofPack; }
    static constexpr char countedName[] = "PACK2";
};

template <>
struct Kind<AirpurgeCmd>
{
    static constexpr char name[] = "AIRPURGE";
    static constexpr int row = 122;
    static constexpr char code[] = "0023";
    static constexpr int defaultCriterion = 9;
    static int sent(int) { return 9; }
    static const CircuitListRefusals &refusals() { return ofPack; }
    static constexpr char countedName[] = "PACK2"; // the pack that it is counts
};

template <class Command>
class CircuitListCommand : public testing::Test
{};

using Commands = testing::Types<Priming2Cmd, Pack2Cmd, AirpurgeCmd>;
TYPED_TEST_SUITE(CircuitListCommand, Commands);

TYPED_TEST(CircuitListCommand, hasNoCircuitsAtFirst)
{
    const TypeParam command;
    EXPECT_EQ(command.command(), Kind<TypeParam>::name);
    EXPECT_EQ(command.protoType(), 1);
    EXPECT_EQ(command.formula(), PCircuitFormula(Kind<TypeParam>::defaultCriterion, {}));
    EXPECT_FALSE(command.machine());
    EXPECT_EQ(command.serialParameters(1), (QList<int>{Kind<TypeParam>::defaultCriterion, 0}));
}

TYPED_TEST(CircuitListCommand, isARowOfTheCatalogue)
{
    const CMD_STRUCT *row = ProtoCommandList::row(TypeParam().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, Kind<TypeParam>::row);
    EXPECT_EQ(row->code, Kind<TypeParam>::code);
}

TYPED_TEST(CircuitListCommand, takesCircuitsInEveryForm)
{
    for (int criterion : {1, 2, 8, 16}) {
        const PCircuitFormula given(criterion, {{1, 0, 50, 1}});
        const int sent = Kind<TypeParam>::sent(criterion);
        for (const TypeParam &command :
             {TypeParam(given, nullptr), TypeParam(arrayOf(oneCircuitValue(criterion)), nullptr),
              TypeParam(listOf(given), nullptr), TypeParam(List{oneCircuitMap(criterion)}, nullptr)}) {
            EXPECT_EQ(command.command(), Kind<TypeParam>::name);
            EXPECT_EQ(command.protoType(), 1);
            EXPECT_FALSE(command.machine());
            const PCircuitFormula expected(sent, {{1, 0, 50, 1}});
            EXPECT_EQ(command.formula(), expected);
            EXPECT_EQ(command.parameters(), listOf(expected));
            bool ok = false;
            EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), dumped(arrayOf(oneCircuitValue(sent))));
            EXPECT_TRUE(ok);
        }
    }
}

TYPED_TEST(CircuitListCommand, goesRoundInBothForms)
{
    const TypeParam command(threeCircuits(16), nullptr);
    const PCircuitFormula expected = threeCircuits(Kind<TypeParam>::sent(16));
    EXPECT_EQ(TypeParam(command.xmlrpc_parameters(), nullptr).formula(), expected);
    EXPECT_EQ(TypeParam(command.parameters(), nullptr).formula(), expected);
    EXPECT_EQ(dumped(TypeParam(oneCircuit(1), nullptr).toXmlRpcValue("user")),
              dumped(arrayOf("user", Kind<TypeParam>::name, oneCircuitValue(Kind<TypeParam>::sent(2)))));
}

TYPED_TEST(CircuitListCommand, checksNothingWithoutADispenser)
{
    for (const PCircuitFormula &formula : {PCircuitFormula(1, {}), oneCircuit(99), oneCircuit(1, 0)}) {
        EXPECT_EQ(TypeParam(formula, nullptr).formula().targetCircuits, formula.targetCircuits);
        EXPECT_EQ(TypeParam(arrayOf(formula.toXmlRpcValue()), nullptr).formula().targetCircuits,
                  formula.targetCircuits);
        EXPECT_EQ(TypeParam(listOf(formula), nullptr).formula().targetCircuits, formula.targetCircuits);
    }
}

TYPED_TEST(CircuitListCommand, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    const TypeParam command(oneCircuit(1), &machine);
    const TypeParam copy(command);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *cloned = dynamic_cast<const TypeParam *>(clone.get());
    ASSERT_TRUE(cloned);
    for (const TypeParam *same : {&copy, cloned}) {
        EXPECT_EQ(same->command(), Kind<TypeParam>::name);
        EXPECT_EQ(same->formula(), command.formula());
        ASSERT_TRUE(same->machine());
        EXPECT_NE(same->machine(), command.machine());
        EXPECT_EQ(same->machine()->id(), 7);
    }
}

// ---------------------------------------------------------------- refusals

TYPED_TEST(CircuitListCommand, passesOnWhyCircuitsCannotBeRead)
{
    constexpr char badValues[] = "PCircuit: bad xml-rpc values";
    constexpr char ofCircuits[] = "PCircuitFormula::PCircuitFormula(const XmlRpc::XmlRpcValue&)";
    constexpr char ofCircuit[] = "PCircuit::PCircuit(const XmlRpc::XmlRpcValue&)";
    expectRefusal("DE02318", badValues, ofCircuits, [] { const TypeParam command(arrayOf(7), nullptr); });
    expectRefusal("DE02319", badValues, ofCircuits,
                  [] { const TypeParam command(arrayOf(structOf({})), nullptr); });

    Value value = oneCircuitValue(1);
    value["target_circuits"] = 1;
    expectRefusal("DE02317", badValues, ofCircuits,
                  [&] { const TypeParam command(arrayOf(value), nullptr); });
    value["target_circuits"] = arrayOf(1);
    expectRefusal("DE02317", badValues, ofCircuit, [&] { const TypeParam command(arrayOf(value), nullptr); });

    QVariantMap map = oneCircuitMap(1);
    map["exec_criterion"] = QStringLiteral("1");
    expectRefusal("DE02319", badValues, ofCircuits, [&] { const TypeParam command(List{map}, nullptr); });
    map = oneCircuitMap(1);
    map["target_circuits"] = QVariantList{1};
    expectRefusal("DE02317", badValues, ofCircuit, [&] { const TypeParam command(List{map}, nullptr); });
}

TYPED_TEST(CircuitListCommand, refusesAListWithoutCircuits)
{
    const CircuitListRefusals &refusals = Kind<TypeParam>::refusals();
    QVariantMap withoutCriterion = oneCircuitMap(1);
    withoutCriterion.remove("exec_criterion");
    const List others = {7,
                         QStringLiteral("circuits"),
                         QVariant(),
                         QVariantMap{},
                         withoutCriterion,
                         List{oneCircuitMap(1)},
                         QVariant::fromValue(strokes({{"1", 1}}))}; // another formula, which has a criterion
    for (const QVariant &other : others) {
        SCOPED_TRACE(other.typeName());
        expectRefusal(refusals.expected, refusals.text("expected").c_str(), refusals.ofList().c_str(),
                      [&] { const TypeParam command(List{other}, nullptr); });
    }
}

TYPED_TEST(CircuitListCommand, saysWhenThereIsNoMemoryForCircuits)
{
    const CircuitListRefusals &refusals = Kind<TypeParam>::refusals();
    PCircuitFormula formula = oneCircuit(1);
    formula.targetCircuits.setSharable(false); // so that copying needs memory
    const Value value = arrayOf(oneCircuitValue(1));
    const List list = {oneCircuitMap(1)};
    EXPECT_NO_THROW(TypeParam(formula, nullptr));
    expectRefusal(refusals.invalidTyped, refusals.text("invalid").c_str(), refusals.ofFormula().c_str(),
                  [&] { outOfMemoryOnce([&] { const TypeParam command(formula, nullptr); }); });
    expectRefusal(refusals.invalidValue, refusals.text("invalid").c_str(), refusals.ofValue().c_str(),
                  [&] { outOfMemoryOnce([&] { const TypeParam command(value, nullptr); }); });
    expectRefusal(refusals.incorrect, refusals.text("incorrect").c_str(), refusals.ofList().c_str(),
                  [&] { outOfMemoryOnce([&] { const TypeParam command(list, nullptr); }); });
}

TYPED_TEST(CircuitListCommand, leavesTheCountToTheBase)
{
    const std::string tooFew = std::string(Kind<TypeParam>::countedName) +
                               " command : expected at least 1 parameters, received 0 instead!";
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    constexpr char ofListBase[] =
        "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";
    expectRefusal("DE00312", tooFew.c_str(), ofBase, [] { const TypeParam command(arrayOf(), nullptr); });
    expectRefusal("DE00313", tooFew.c_str(), ofListBase, [] { const TypeParam command(List(), nullptr); });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const TypeParam command(oneCircuitValue(1), nullptr); });
}

// ---------------------------------------------------------------- towards the firmware

TYPED_TEST(CircuitListCommand, sendsCircuitsAsTheyAreGiven)
{
    const QList<int> circuits = {1, 31, 50, 1, 2, 3, 0, 40, 2, 54, 1, 4, 34, 30};
    const QList<int> expected = QList<int>{Kind<TypeParam>::sent(2), 3} + circuits;
    for (int family : {1, 2})
        EXPECT_EQ(TypeParam(threeCircuits(2), nullptr).serialParameters(family), expected);
}

TYPED_TEST(CircuitListCommand, countsDigitsOfStrokes)
{
    const auto sent = [](int strokes) {
        return TypeParam(oneCircuit(1, strokes), nullptr).serialParameters(1).mid(5);
    };
    EXPECT_EQ(sent(-5), QList<int>());
    EXPECT_EQ(sent(0), QList<int>());
    EXPECT_EQ(sent(1), (QList<int>{1, 1}));
    EXPECT_EQ(sent(245), (QList<int>{1, 245}));
    EXPECT_EQ(sent(246), (QList<int>{2, 0, 1}));
    EXPECT_EQ(sent(60516), (QList<int>{3, 0, 0, 1}));
}

TYPED_TEST(CircuitListCommand, takesATimeThatNobodyKnowsAndHasNoLabel)
{
    const FW_Dispenser machine = dispenser();
    const TypeParam command(oneCircuit(1), &machine);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&machine), 0);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
    EXPECT_EQ(command.commandString(), QString());
}

} // namespace
