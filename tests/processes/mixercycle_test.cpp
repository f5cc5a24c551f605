// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/mixercycle.h"

#include "base/basetesting.h"

#include <QtCore/QVariant>

#include <limits>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "MixerCycle::MixerCycle(const XmlRpc::XmlRpcValue&)";
constexpr char badValues[] = "MixerCycle: bad xml-rpc values";

Value whole()
{
    return structOf({{"cycle_type", 2}, {"mixing_speed", 40}, {"clamping_force", 7}, {"duration", 300}});
}

TEST(MixerCycle, leavesSpeedAndDurationToTheFirmwareAtFirst)
{
    const MixerCycle cycle;
    EXPECT_EQ(cycle.cycleType, 0);
    EXPECT_EQ(cycle.mixingSpeed, -1);
    EXPECT_EQ(cycle.clampingForce, 0);
    EXPECT_EQ(cycle.duration, -1);
    EXPECT_EQ(MixerCycle::ofFirmware, -1);
}

TEST(MixerCycle, takesItsNumbersInOrder)
{
    const MixerCycle cycle(2, 40, 7, 300);
    EXPECT_EQ(cycle.cycleType, 2);
    EXPECT_EQ(cycle.mixingSpeed, 40);
    EXPECT_EQ(cycle.clampingForce, 7);
    EXPECT_EQ(cycle.duration, 300);
}

TEST(MixerCycle, isAStructOfFourInts)
{
    EXPECT_STREQ(MixerCycle::cycleType_TAG, "cycle_type");
    EXPECT_STREQ(MixerCycle::mixingSpeed_TAG, "mixing_speed");
    EXPECT_STREQ(MixerCycle::clampingForce_TAG, "clamping_force");
    EXPECT_STREQ(MixerCycle::duration_TAG, "duration");
    EXPECT_EQ(dumped(MixerCycle(2, 40, 7, 300).toXmlRpcValue()),
              R"({"clamping_force": 7, "cycle_type": 2, "duration": 300, "mixing_speed": 40})");
    EXPECT_EQ(dumped(MixerCycle().toXmlRpcValue()),
              R"({"clamping_force": 0, "cycle_type": 0, "duration": -1, "mixing_speed": -1})");
    EXPECT_EQ(MixerCycle(whole()), MixerCycle(2, 40, 7, 300));
}

TEST(MixerCycle, takesAnyInteger)
{
    Value value = whole();
    value["cycle_type"] = std::numeric_limits<int>::min();
    value["duration"] = std::numeric_limits<int>::max();
    value["more"] = "is not read";
    const MixerCycle cycle(value);
    EXPECT_EQ(cycle.cycleType, std::numeric_limits<int>::min());
    EXPECT_EQ(cycle.duration, 2147483647);
    EXPECT_EQ(MixerCycle(cycle.toXmlRpcValue()), cycle);
}

TEST(MixerCycle, needsEachOfThem)
{
    const char *const keys[] = {"cycle_type", "mixing_speed", "clamping_force", "duration"};
    for (const char *key : keys) {
        SCOPED_TRACE(key);
        Value missing;
        for (const char *other : keys) {
            if (std::string(other) != key)
                missing[other] = 1;
        }
        expectRefusal("DE02337", badValues, ofValue, [&] { const MixerCycle cycle(missing); });
        for (const Value &other : {Value(true), Value(4.0), Value("4"), arrayOf(4), structOf({})}) {
            SCOPED_TRACE(dumped(other));
            Value value = whole();
            value[key] = other;
            expectRefusal("DE02337", badValues, ofValue, [&] { const MixerCycle cycle(value); });
        }
    }
}

TEST(MixerCycle, isNothingButAStruct)
{
    for (const Value &value : {Value(), Value(4), Value("4"), arrayOf(2, 40, 7, 300), structOf({})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02337", badValues, ofValue, [&] { const MixerCycle cycle(value); });
    }
    static_assert(!std::is_constructible_v<MixerCycle, int>);
    static_assert(!std::is_constructible_v<MixerCycle, bool>);
    static_assert(!std::is_constructible_v<MixerCycle, double>);
    static_assert(!std::is_constructible_v<MixerCycle, const char *>);
}

TEST(MixerCycle, readsADurationBeyondAnIntBack)
{
    const MixerCycle cycle(2, 40, 7, 5000000000);
    const Value value = cycle.toXmlRpcValue();
    EXPECT_EQ(value["duration"].getType(), Value::TypeDouble);
    EXPECT_EQ(MixerCycle(value), cycle);
}

TEST(MixerCycle, differsInEachNumber)
{
    const MixerCycle cycle(2, 40, 7, 300);
    EXPECT_EQ(cycle, MixerCycle(2, 40, 7, 300));
    for (const MixerCycle &other : {MixerCycle(1, 40, 7, 300), MixerCycle(2, 41, 7, 300),
                                    MixerCycle(2, 40, 8, 300), MixerCycle(2, 40, 7, 4294967596LL)}) {
        EXPECT_TRUE(cycle != other);
        EXPECT_FALSE(cycle == other);
    }
}

TEST(MixerCycle, travelsInAVariantAloneAndInAList)
{
    EXPECT_NE(QMetaType::type("MixerCycle"), 0);
    EXPECT_NE(QMetaType::type("QList<MixerCycle>"), 0);
    const QVariantMap map = {
        {"cycle_type", 2}, {"mixing_speed", 40}, {"clamping_force", 7}, {"duration", 300}};
    const QVariant one = QVariant::fromValue(MixerCycle(2, 40, 7, 300));
    EXPECT_STREQ(one.typeName(), "MixerCycle");
    EXPECT_EQ(one.toMap(), map);
    EXPECT_EQ(QVariant(map).value<MixerCycle>(), MixerCycle(2, 40, 7, 300));
    const QVariant list = QVariant::fromValue(QList<MixerCycle>{MixerCycle(2, 40, 7, 300)});
    EXPECT_STREQ(list.typeName(), "QList<MixerCycle>");
    EXPECT_EQ(list, QVariant::fromValue(QList<MixerCycle>{MixerCycle(2, 40, 7, 300)}));
    EXPECT_NE(list, QVariant::fromValue(QList<MixerCycle>{MixerCycle(3, 40, 7, 300)}));
    EXPECT_EQ(QVariant(List{one, map}).value<QList<MixerCycle>>(),
              (QList<MixerCycle>{MixerCycle(2, 40, 7, 300), MixerCycle(2, 40, 7, 300)}));
}

} // namespace
