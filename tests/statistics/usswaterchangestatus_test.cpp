// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/usswaterchangestatus.h"

#include "base/answercontract.h"
#include "base/basetesting.h"
#include "base/confprotocommand.h"
#include "base/factlines.h"
#include "statistics/getusswaterstatusanswer.h"

#include <limits>
#include <memory>

namespace {

using namespace testing_base;

using Answer = GetUssWaterStatusAnswer;
using Status = UssWaterChangeStatus;
using Data = WaterChangeStatData;

constexpr char ofValue[] = "UssWaterChangeStatus::UssWaterChangeStatus(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "UssWaterChangeStatus::UssWaterChangeStatus(QList<QVariant>)";
constexpr char badValue[] = "UssWaterChangeStatus: Errors during xmlrpc decoding";
constexpr char badVariant[] = "UssWaterChangeStatus: Errors during variant decoding";

const QDateTime spring(QDate(2026, 3, 2), QTime(9, 15, 30, 250), Qt::UTC);
const QDateTime summer(QDate(2026, 7, 1), QTime(12, 0), Qt::UTC);

Status whole()
{
    return {Data(spring, 120), Data(summer, 150), 40};
}

Value wholeStruct()
{
    return structOf(
        {{"last_water_change_data",
          structOf({{"timestamp", "2026-03-02T09:15:30.250Z"}, {"cleaning_cycles", 120}})},
         {"current_data", structOf({{"timestamp", "2026-07-01T12:00:00.000Z"}, {"cleaning_cycles", 150}})},
         {"max_cleaning_cycles", 40}});
}

QVariantMap currentMap()
{
    return {{"timestamp", "2026-07-01T12:00:00.000Z"}, {"cleaning_cycles", 150}};
}

constexpr char written[] =
    R"({"current_data": {"cleaning_cycles": 150, "timestamp": "2026-07-01T12:00:00.000Z"}, )"
    R"("last_water_change_data": {"cleaning_cycles": 120, "timestamp": "2026-03-02T09:15:30.250Z"}, )"
    R"("max_cleaning_cycles": 40})";

const struct
{
    const char *key;
    const char *valueCode;
    const char *listCode;
    Value otherType;
} members[] = {{"last_water_change_data", "DE02622", "DE02627", Value(120)},
               {"current_data", "DE02623", "DE02626", structOf({{"cleaning_cycles", 150}})},
               {"max_cleaning_cycles", "DE02624", "DE02625", Value("40")}};

TEST(UssWaterChangeStatus, countsTheCyclesSinceTheLastChange)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const struct
    {
        int lastChange;
        int current;
        int maximum;
        bool needsChange;
        int remaining;
    } rows[] = {
        {120, 150, 40, false, 10},  {120, 159, 40, false, 1},          {120, 160, 40, false, 0},
        {120, 161, 40, true, 0},    {120, 5000, 40, true, 0},          {120, 120, 40, false, 40},
        {120, 110, 40, false, 50}, // a counter that was set back
        {0, 0, 0, false, 0},        {120, 5000, 0, false, 0},          {120, 110, 0, false, 10},
        {0, most, 0, false, 0},     {least, most, 0, false, 0},        {least, most, most, true, 0},
        {least, most, 40, true, 0}, {most, least, most, false, most},  {most, least, 0, false, most},
        {0, most, most, false, 0},  {-1, most, most, true, 0},         {most, 0, most, false, most},
        {0, 0, least, true, 0},     {most, least, least, false, most},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << row.lastChange << " " << row.current << " " << row.maximum);
        const Status status(Data(spring, row.lastChange), Data(summer, row.current), row.maximum);
        EXPECT_EQ(status.needWaterChange(), row.needsChange);
        EXPECT_EQ(status.remainingCleaningCycles(), row.remaining);
    }
}

TEST(UssWaterChangeStatus, travelsAsAStruct)
{
    EXPECT_STREQ(Status::lastWaterChangeData_TAG, "last_water_change_data");
    EXPECT_STREQ(Status::currentData_TAG, "current_data");
    EXPECT_STREQ(Status::maxCleaningCycles_TAG, "max_cleaning_cycles");
    EXPECT_EQ(dumped(whole().toXmlRpcValue()), written);
    EXPECT_EQ(Status(wholeStruct()), whole());
    EXPECT_EQ(
        dumped(Status().toXmlRpcValue()),
        R"({"current_data": {"cleaning_cycles": 0, "timestamp": ""}, )"
        R"("last_water_change_data": {"cleaning_cycles": 0, "timestamp": ""}, "max_cleaning_cycles": 0})");
    EXPECT_EQ(Status(Status().toXmlRpcValue()), Status());
}

TEST(UssWaterChangeStatus, isAListOfItsFields)
{
    const List list = whole().variantParameters();
    EXPECT_EQ(list,
              (List{QVariant::fromValue(Data(spring, 120)), QVariant::fromValue(Data(summer, 150)), 40}));
    EXPECT_EQ(Status(list), whole());
    EXPECT_EQ(Status(List{list[0], currentMap(), 40LL, "rest"}), whole());
}

TEST(UssWaterChangeStatus, needsEachMember)
{
    Value first = structOf({});
    for (int i = 0; i < 3; ++i) {
        const auto &member = members[i];
        SCOPED_TRACE(member.key);
        expectRefusal(member.valueCode, badValue, ofValue, [&] { Status{first}; }); // all before it are there
        Value other = wholeStruct();
        other[member.key] = member.otherType;
        expectRefusal(member.valueCode, badValue, ofValue, [&] { Status{other}; });
        first[member.key] = wholeStruct()[member.key];

        List list = whole().variantParameters();
        expectRefusal(member.listCode, badVariant, ofList, [&] { Status{list.mid(0, i)}; });
        for (const QVariant &bad : {QVariant(), QVariant("40"), QVariant(QVariantMap{{"timestamp", ""}}),
                                    QVariant(QVariantMap{{"cleaning_cycles", 150}})}) {
            list[i] = bad;
            expectRefusal(member.listCode, badVariant, ofList, [&] { Status{list}; });
        }
    }
    for (const Value &value : {Value(), Value(5), arrayOf(wholeStruct())})
        expectRefusal("DE02622", badValue, ofValue, [&] { Status{value}; });
    static_assert(!std::is_constructible_v<Status, int>);
    static_assert(!std::is_constructible_v<Status, const char *>);
}

TEST(UssWaterChangeStatus, differsInEachMember)
{
    EXPECT_FALSE(whole() != whole());
    for (const Status &other :
         {Status(Data(spring, 121), Data(summer, 150), 40), Status(Data(summer, 120), Data(summer, 150), 40),
          Status(Data(spring, 120), Data(summer, 151), 40),
          Status(Data(spring, 120), Data(summer, 150), 41)}) {
        EXPECT_TRUE(whole() != other);
        EXPECT_FALSE(whole() == other);
    }
}

TEST(GetUssWaterStatusAnswer, isTheStatus)
{
    const Answer answer(whole());
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(answer.ussWaterChangeStatus(), whole());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), written);
    EXPECT_EQ(answer.variantParameters(), whole().variantParameters());
    EXPECT_EQ(Answer().ussWaterChangeStatus(), Status());

    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetUssWaterStatusAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const Answer other;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_TRUE(answer != other);
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetUssWaterStatusAnswer, answersItsCommand)
{
    ConfProtoCommand command("GET_USS_W_STATUS", nullptr);
    AnswerFacts facts = confAnswers();
    facts.value = AnswerOfValue("GetUssWaterStatusAnswer", wholeStruct(), written)
                      .failsWith("DE01297", "Failed to create answer")
                      .refuses(structOf({}), "DE02622", badValue, ofValue);
    facts.list = AnswerOfList("GetUssWaterStatusAnswer", whole().variantParameters(), written)
                     .failsWith("DE00346", "Failed to create answer")
                     .refuses({}, "DE02627", badVariant, ofList);
    expectAnswerContract(command, facts);
}

TEST(GetUssWaterStatusAnswer, isTold)
{
    EXPECT_EQ(
        membersOf("GET_USS_W_STATUS"),
        (Lines{"GetUssWaterStatusAnswer",
               "last_water_change_data (struct): when the water was changed, \"timestamp\" and "
               "\"cleaning_cycles\"",
               "  XML-RPC, missing or another type: DE02622", "  list, missing or another type: DE02627",
               "current_data (struct): the same now", "  XML-RPC, missing or another type: DE02623",
               "  list, missing or another type: DE02626",
               "max_cleaning_cycles (int): with one water; 0 as many as one likes",
               "  XML-RPC, missing or another type: DE02624", "  list, missing or another type: DE02625"}));
}

} // namespace
