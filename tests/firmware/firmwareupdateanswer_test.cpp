// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareupdateanswer.h"

#include "base/basetesting.h"
#include "base/factlines.h"
#include "base/outofmemory.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = FirmwareUpdateAnswer;
using Results = QList<FwUpdateResult>;

constexpr char ofValue[] = "FirmwareUpdateAnswer::FirmwareUpdateAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "FirmwareUpdateAnswer::FirmwareUpdateAnswer(QList<QVariant>&)";
constexpr char ofResult[] = "FwUpdateResult::FwUpdateResult(const XmlRpc::XmlRpcValue&)";
constexpr char ofResults[] = "FwUpdateResultList::FwUpdateResultList(const XmlRpc::XmlRpcValue&)";
constexpr char invalid[] = "FirmwareUpdateAnswer: invalid FwUpdateResultList parameter";

Results results()
{
    return {{3, 0}, {4, 5}};
}

Value answerValue()
{
    return structOf({{"update_result", arrayOf(structOf({{"board_address", 3}, {"update_result", 0}}),
                                               structOf({{"board_address", 4}, {"update_result", 5}}))}});
}

TEST(FirmwareUpdateAnswer, holdsTheResults)
{
    EXPECT_TRUE(Answer().results().results().isEmpty());
    EXPECT_EQ(Answer().protoType(), 1);
    const Answer answer(results());
    EXPECT_EQ(answer.results().results(), results());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(Answer(FwUpdateResultList(results())), answer);
    Answer cleared = answer;
    cleared.clear();
    EXPECT_EQ(cleared, Answer());
}

TEST(FirmwareUpdateAnswer, isAStructOfOneArray)
{
    EXPECT_STREQ(Answer::fwUpdateResultList_TAG, "update_result");
    EXPECT_EQ(dumped(Answer(results()).toXmlRpcValue()), dumped(answerValue()));
    EXPECT_EQ(Answer(answerValue()), Answer(results()));
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"update_result": []})");
}

TEST(FirmwareUpdateAnswer, isRefusedWithoutItsResults)
{
    for (const Value &value : {Value(), Value(0), arrayOf(), structOf({}), structOf({{"other", 1}})})
        expectRefusal("DE00972", invalid, ofValue, [&] { const Answer answer(value); });
    for (const Value &other : {Value(5), Value("x"), structOf({{"board_address", 3}, {"update_result", 0}})})
        expectRefusal("DE00971", invalid, ofValue, [&] {
            const Answer answer(structOf({{"update_result", other}}));
        });
    const Value good = answerValue();
    const Answer ready(good);
    // the first memory that is asked for is a result's
    expectRefusal("DE00968", "FwUpdateResultList: invalid FwUpdateResult parameter", ofResults,
                  [&] { outOfMemoryOnce([&] { const Answer answer(good); }); });
}

TEST(FirmwareUpdateAnswer, passesOnWhatTheResultsRefuse)
{
    expectRefusal("DE00969", "FwUpdateResultList: no FwUpdateResult found", ofResults, [] {
        const Answer answer(structOf({{"update_result", arrayOf()}}));
    });
    expectRefusal("DE00962", "FwUpdateResult: expected board address value", ofResult, [] {
        const Answer answer(structOf({{"update_result", arrayOf(3)}}));
    });
}

TEST(FirmwareUpdateAnswer, takesTheResultsFirstInAList)
{
    const QVariant one = QVariant::fromValue(FwUpdateResult(3, 0));
    const QVariantMap other = {{"board_address", 4}, {"update_result", 5}};
    for (const QVariant &first : {QVariant::fromValue(FwUpdateResultList(results())),
                                  QVariant::fromValue(results()), QVariant(List{one, other})}) {
        SCOPED_TRACE(shown({first}));
        List list = {first, "rest"};
        EXPECT_EQ(Answer(list), Answer(results()));
    }
    for (const QVariant &first :
         {QVariant::fromValue(FwUpdateResultList()), QVariant(List()), QVariant::fromValue(Results())}) {
        List list = {first};
        EXPECT_EQ(Answer(list), Answer());
    }
}

TEST(FirmwareUpdateAnswer, refusesAListOfOtherThings)
{
    List none;
    expectRefusal("DE00964", "FirmwareUpdateAnswer decoding failed: invalid QVariant value", ofList,
                  [&] { const Answer answer(none); });
    for (const QVariant &first :
         {QVariant(), QVariant(5), QVariant("x"), QVariant::fromValue(FwUpdateResult(3, 0)),
          QVariant(List{3}), QVariant(List{QVariantMap{{"update_result", 5}}}),
          QVariant::fromValue(QList<int>{3})}) {
        SCOPED_TRACE(shown({first}));
        List list = {first};
        expectRefusal("DE00967", invalid, ofList, [&] { const Answer answer(list); });
    }
    List list = {QVariant(List{QVariantMap{{"board_address", 4}}})};
    expectRefusal("DE00963", "FwUpdateResult: expected update result value", ofResult,
                  [&] { const Answer answer(list); });
}

TEST(FirmwareUpdateAnswer, comparesTheResultsInTheirOrder)
{
    const Answer answer(results());
    const Answer same = answer;
    EXPECT_TRUE(answer.equalTo(&same));
    for (const Results &others : {Results(), Results{{3, 0}}, Results{{4, 5}, {3, 0}},
                                  Results{{3, 0}, {4, 6}}, Results{{3, 0}, {5, 5}}}) {
        const Answer other(others);
        SCOPED_TRACE(dumped(other.toXmlRpcValue()));
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

TEST(FirmwareUpdateAnswer, tellsWhatRefusesIt)
{
    const Lines lines = membersOf("UPDATE_FW");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.front(), "FirmwareUpdateAnswer");
    EXPECT_EQ(lines.at(2), "  XML-RPC, missing: DE00972");
    EXPECT_EQ(lines.at(3), "  XML-RPC, another type: DE00971");
    EXPECT_EQ(lines.at(8), "  list, another type: DE00967");
    EXPECT_EQ(lines.at(9), "  list, missing: DE00964");
}

} // namespace
