// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/circuitlistcmd.h"

#include "base/outofmemory.h"
#include "dispensing/airpurgecmd.h"
#include "dispensing/circuitlisttesting.h"
#include "dispensing/pack2cmd.h"
#include "dispensing/priming2cmd.h"

#include <type_traits>

namespace {

using namespace testing_dispensing;

const CircuitListRefusals ofPriming = {"Priming2Cmd", "DE01933", "DE01930", "DE01355", "DE02165"};
const CircuitListRefusals ofPack = {"Pack2Cmd", "DE02320", "DE02321", "DE02322", "DE02324"};

/** An air purge has the refusals of a pack. */
template <class Command>
const CircuitListRefusals &refusalsOf()
{
    return std::is_same_v<Command, Priming2Cmd> ? ofPriming : ofPack;
}

template <class Command>
class CircuitListCommand : public testing::Test
{};

using Commands = testing::Types<Priming2Cmd, Pack2Cmd, AirpurgeCmd>;
TYPED_TEST_SUITE(CircuitListCommand, Commands);

TYPED_TEST(CircuitListCommand, checksNothingWithoutADispenser)
{
    for (const PCircuitFormula &formula : {PCircuitFormula(1, {}), oneCircuit(99), oneCircuit(1, 0)}) {
        SCOPED_TRACE(dumped(formula.toXmlRpcValue()));
        EXPECT_EQ(TypeParam(formula, nullptr).formula().targetCircuits, formula.targetCircuits);
        EXPECT_EQ(TypeParam(arrayOf(formula.toXmlRpcValue()), nullptr).formula().targetCircuits,
                  formula.targetCircuits);
        EXPECT_EQ(TypeParam(listOf(formula), nullptr).formula().targetCircuits, formula.targetCircuits);
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

TYPED_TEST(CircuitListCommand, saysWhenThereIsNoMemoryForCircuits)
{
    const CircuitListRefusals &refusals = refusalsOf<TypeParam>();
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

// ---------------------------------------------------------------- towards the firmware

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

} // namespace
