// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/workingmodeanswer.h"

#include "base/basetesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

using Answer = WorkingModeAnswer;

constexpr char ofTokens[] = "WorkingModeAnswer::WorkingModeAnswer(QStringList)";
constexpr char ofValue[] = "WorkingModeAnswer::WorkingModeAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "WorkingModeAnswer::WorkingModeAnswer(QList<QVariant>&)";
constexpr char badLength[] = "Error during command answer decoding: bad length";
constexpr char noMode[] = "WorkingModeAnswer: expected working_mode value";

TEST(WorkingModeAnswer, readsOneToken)
{
    const std::pair<QStringList, int> rows[] = {
        {{"1", "0"}, 0}, {{"1", "8"}, 8}, {{"2", "5", "x"}, 5}, {{"1", "F5"}, 245}, {{"0", "a"}, 10}};
    for (const auto &[tokens, mode] : rows) {
        SCOPED_TRACE(tokens.join(' ').toStdString());
        EXPECT_EQ(Answer(tokens).workingMode(), mode);
        EXPECT_EQ(Answer(tokens).serialParameters(), tokens.mid(1));
        EXPECT_EQ(Answer(tokens).protoType(), 1);
    }
}

TEST(WorkingModeAnswer, refusesOtherTokens)
{
    constexpr char ofBase[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", ofBase, [] { const Answer answer{QStringList()}; });
    expectRefusal("DE00077", badLength, ofBase, [] { const Answer answer{QStringList{"1"}}; });
    expectRefusal("DE00093", badLength, ofTokens, [] { const Answer answer{QStringList{"0"}}; });
    for (const char *bad : {"x", "", "80000000"})
        expectRefusal("DE00094", "Error during command answer decoding: bad working mode value type",
                      ofTokens, [&] {
                          const Answer answer{QStringList{"1", bad}};
                      });
}

TEST(WorkingModeAnswer, travelsAsAStruct)
{
    EXPECT_EQ(Answer().workingMode(), 0);
    EXPECT_EQ(dumped(Answer(7).toXmlRpcValue()), R"({"working_mode": 7})");
    EXPECT_EQ(Answer(structOf({{"working_mode", -9}, {"more", 1}})).workingMode(), -9);
    List list = {6, "rest"};
    EXPECT_EQ(Answer(list).workingMode(), 6);
    EXPECT_EQ(Answer(Answer(7).toXmlRpcValue()), Answer(7));
}

TEST(WorkingModeAnswer, refusesWhatHoldsNoMode)
{
    for (const Value &value : {Value(), Value(7), arrayOf(7), structOf({}), structOf({{"working_mode", "7"}}),
                               structOf({{"working_mode", true}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE03169", noMode, ofValue, [&] { const Answer answer(value); });
    }
    for (List list : {List(), List{"7"}, List{true}, List{QVariant()}, List{2147483648LL}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE03170", noMode, ofList, [&] { const Answer answer(list); });
    }
}

TEST(WorkingModeAnswer, comparesAndClonesTheMode)
{
    const Answer answer(7);
    const std::unique_ptr<const ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "WorkingModeAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const Answer other(6);
    EXPECT_NE(answer, other);
    EXPECT_FALSE(answer.equalTo(&other));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(WorkingModeAnswer, knowsTheModes)
{
    for (int mode = 0; mode <= 8; ++mode)
        EXPECT_TRUE(Answer::checkWorkingMode(mode)) << mode;
    for (const int mode : {-1, 9, 245})
        EXPECT_FALSE(Answer::checkWorkingMode(mode)) << mode;
}

TEST(WorkingModeAnswer, doesNotMistakeOtherArgumentsForAMode)
{
    static_assert(!std::is_constructible_v<Answer, bool>);
    static_assert(!std::is_constructible_v<Answer, double>);
    static_assert(!std::is_constructible_v<Answer, const char *>);
    static_assert(!std::is_convertible_v<int, Answer>);
}

} // namespace
