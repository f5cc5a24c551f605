// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/ttcircuitdata.h"

#include "base/basetesting.h"

#include <type_traits>
#include <vector>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "TTCircuitData::TTCircuitData(const XmlRpc::XmlRpcValue&)";

Value whole()
{
    return structOf({{"position_id", 4}, {"steps_pos", 12800}, {"fin_size", 30}});
}

struct Key
{
    const char *key;
    const char *code;
    const char *text;
};

constexpr Key keys[] = {{"position_id", "DE01746", "TTCircuitData: expected position id value"},
                        {"steps_pos", "DE01747", "TTCircuitData: expected steps position value"},
                        {"fin_size", "DE01748", "TTCircuitData: expected fin size value"}};

TEST(TTCircuitData, isEmptyAtFirst)
{
    const TTCircuitData data;
    EXPECT_EQ(data.positionID, 0);
    EXPECT_EQ(data.stepsPos, 0);
    EXPECT_EQ(data.finSize, 0);
}

TEST(TTCircuitData, takesItsNumbersInOrder)
{
    const TTCircuitData data(4, 12800, 30);
    EXPECT_EQ(data.positionID, 4);
    EXPECT_EQ(data.stepsPos, 12800);
    EXPECT_EQ(data.finSize, 30);
}

TEST(TTCircuitData, namesItsMembers)
{
    EXPECT_STREQ(TTCircuitData::positionID_TAG, "position_id");
    EXPECT_STREQ(TTCircuitData::stepsPos_TAG, "steps_pos");
    EXPECT_STREQ(TTCircuitData::finSize_TAG, "fin_size");
}

TEST(TTCircuitData, isAStructOfThreeNumbers)
{
    EXPECT_EQ(dumped(TTCircuitData(4, 12800, 30).toXmlRpcValue()),
              R"({"fin_size": 30, "position_id": 4, "steps_pos": 12800})");
    EXPECT_EQ(TTCircuitData(whole()), TTCircuitData(4, 12800, 30));
    EXPECT_EQ(TTCircuitData(TTCircuitData(-1, -2, -3).toXmlRpcValue()), TTCircuitData(-1, -2, -3));
}

TEST(TTCircuitData, keepsStepsBeyondAnInt)
{
    const TTCircuitData data(4, 4294967296LL, 2147483648LL);
    EXPECT_EQ(TTCircuitData(data.toXmlRpcValue()), data);
    EXPECT_EQ(TTCircuitData(structOf({{"position_id", 4}, {"steps_pos", 4294967296.0}, {"fin_size", 1}})),
              TTCircuitData(4, 4294967296LL, 1));
}

TEST(TTCircuitData, needsEachOfThem)
{
    const std::vector<Value> otherTypes = {Value(true), Value(4.0), Value(4.5),
                                           Value("4"),  arrayOf(4), structOf({})};
    for (const Key &key : keys) {
        SCOPED_TRACE(key.key);
        Value missing;
        for (const Key &other : keys) {
            if (&other != &key)
                missing[other.key] = 1;
        }
        expectRefusal(key.code, key.text, ofValue, [&] { const TTCircuitData data(missing); });
        for (const Value &other : otherTypes) {
            SCOPED_TRACE(dumped(other));
            Value value = whole();
            value[key.key] = other;
            expectRefusal(key.code, key.text, ofValue, [&] { const TTCircuitData data(value); });
        }
    }
}

TEST(TTCircuitData, isNothingButAStruct)
{
    for (const Value &value : {Value(), Value(4), Value("4"), arrayOf(4, 12800, 30), structOf({})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01746", "TTCircuitData: expected position id value", ofValue,
                      [&] { const TTCircuitData data(value); });
    }
    static_assert(!std::is_constructible_v<TTCircuitData, int>);
    static_assert(!std::is_constructible_v<TTCircuitData, const char *>);
}

TEST(TTCircuitData, differsInEachNumber)
{
    const TTCircuitData data(4, 12800, 30);
    EXPECT_TRUE(data == TTCircuitData(4, 12800, 30));
    EXPECT_FALSE(data != TTCircuitData(4, 12800, 30));
    for (bool flag : {false, true})
        EXPECT_TRUE(data.equalTo(TTCircuitData(4, 12800, 30), flag));
    for (const TTCircuitData &other :
         {TTCircuitData(5, 12800, 30), TTCircuitData(4, 12801, 30), TTCircuitData(4, 12800, 31)}) {
        SCOPED_TRACE(dumped(other.toXmlRpcValue()));
        EXPECT_TRUE(data != other);
        EXPECT_FALSE(data == other);
        for (bool flag : {false, true})
            EXPECT_FALSE(data.equalTo(other, flag));
    }
}

TEST(TTCircuitData, travelsInAVariant)
{
    const TTCircuitData data(4, 12800, 30);
    const QVariant variant = QVariant::fromValue(data);
    EXPECT_STREQ(variant.typeName(), "TTCircuitData");
    EXPECT_EQ(variant, QVariant::fromValue(TTCircuitData(4, 12800, 30)));
    EXPECT_EQ(variant.toMap(), (QVariantMap{{"position_id", 4}, {"steps_pos", 12800}, {"fin_size", 30}}));
    EXPECT_EQ(QVariant(variant.toMap()).value<TTCircuitData>(), data);
}

} // namespace
