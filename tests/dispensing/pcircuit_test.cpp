// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pcircuit.h"

#include "dispensing/dispensertesting.h"

#include <limits>
#include <type_traits>
#include <vector>

namespace {

using namespace testing_dispensing;

constexpr char ofValue[] = "PCircuit::PCircuit(const XmlRpc::XmlRpcValue&)";
constexpr char badValues[] = "PCircuit: bad xml-rpc values";

Value whole()
{
    return structOf(
        {{"position_id", Value(4)}, {"queue_id", Value(34)}, {"speed", Value(50)}, {"strokes", Value(300)}});
}

TEST(PCircuit, isEmptyAtFirst)
{
    const PCircuit circuit;
    EXPECT_EQ(circuit.positionID, 0);
    EXPECT_EQ(circuit.queueID, 0);
    EXPECT_EQ(circuit.speed, 0);
    EXPECT_EQ(circuit.strokes, 0);
}

TEST(PCircuit, takesItsNumbersInOrder)
{
    const PCircuit circuit(4, 34, 50, 300);
    EXPECT_EQ(circuit.positionID, 4);
    EXPECT_EQ(circuit.queueID, 34);
    EXPECT_EQ(circuit.speed, 50);
    EXPECT_EQ(circuit.strokes, 300);
}

TEST(PCircuit, namesItsMembers)
{
    EXPECT_STREQ(PCircuit::positionID_TAG, "position_id");
    EXPECT_STREQ(PCircuit::queueID_TAG, "queue_id");
    EXPECT_STREQ(PCircuit::speed_TAG, "speed");
    EXPECT_STREQ(PCircuit::strokes_TAG, "strokes");
}

TEST(PCircuit, isAStructOfFourNumbers)
{
    EXPECT_EQ(dumped(PCircuit(4, 34, 50, 300).toXmlRpcValue()),
              R"({"position_id": 4, "queue_id": 34, "speed": 50, "strokes": 300})");
    EXPECT_EQ(dumped(PCircuit().toXmlRpcValue()),
              R"({"position_id": 0, "queue_id": 0, "speed": 0, "strokes": 0})");
    EXPECT_EQ(PCircuit(whole()), PCircuit(4, 34, 50, 300));
}

TEST(PCircuit, takesAnyInteger)
{
    Value value = whole();
    value["speed"] = std::numeric_limits<int>::max();
    value["strokes"] = std::numeric_limits<int>::min();
    value["more"] = "is not read";
    EXPECT_EQ(PCircuit(value),
              PCircuit(4, 34, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()));
}

TEST(PCircuit, needsEachOfThem)
{
    const std::vector<Value> otherTypes = {Value(true), Value(4.0), Value("4"), arrayOf(4), structOf({})};
    for (const char *key : {"position_id", "queue_id", "speed", "strokes"}) {
        SCOPED_TRACE(key);
        Value missing;
        for (const char *other : {"position_id", "queue_id", "speed", "strokes"}) {
            if (std::string(other) != key)
                missing[other] = 1;
        }
        expectRefusal("DE02317", badValues, ofValue, [&] { const PCircuit circuit(missing); });
        for (const Value &other : otherTypes) {
            SCOPED_TRACE(dumped(other));
            Value value = whole();
            value[key] = other;
            expectRefusal("DE02317", badValues, ofValue, [&] { const PCircuit circuit(value); });
        }
    }
}

TEST(PCircuit, isNothingButAStruct)
{
    for (const Value &value : {Value(), Value(4), Value("4"), arrayOf(4, 34, 50, 300), structOf({})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02317", badValues, ofValue, [&] { const PCircuit circuit(value); });
    }
    static_assert(!std::is_constructible_v<PCircuit, int>);
    static_assert(!std::is_constructible_v<PCircuit, const char *>);
}

TEST(PCircuit, differsInEachNumber)
{
    const PCircuit circuit(4, 34, 50, 300);
    EXPECT_TRUE(circuit == PCircuit(4, 34, 50, 300));
    EXPECT_FALSE(circuit != PCircuit(4, 34, 50, 300));
    for (const PCircuit &other : {PCircuit(5, 34, 50, 300), PCircuit(4, 35, 50, 300),
                                  PCircuit(4, 34, 51, 300), PCircuit(4, 34, 50, 301)}) {
        SCOPED_TRACE(dumped(other.toXmlRpcValue()));
        EXPECT_TRUE(circuit != other);
        EXPECT_FALSE(circuit == other);
    }
}

} // namespace
