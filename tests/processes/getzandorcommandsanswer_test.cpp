// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getzandorcommandsanswer.h"

#include "base/basetesting.h"
#include "base/outofmemory.h"
#include "base/serialprotocommand.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetZandorCommandsAnswer;
using Commands = QList<ZandorCommand>;

constexpr char ofTokens[] = "GetZandorCommandsAnswer::GetZandorCommandsAnswer(QStringList)";
constexpr char ofValue[] = "GetZandorCommandsAnswer::GetZandorCommandsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetZandorCommandsAnswer::GetZandorCommandsAnswer(QList<QVariant>&)";
constexpr char ofCommand[] = "ZandorCommand::ZandorCommand(const XmlRpc::XmlRpcValue&)";

constexpr char badLength[] = "Invalid answer length";
constexpr char badCount[] = "Invalid command count type found in answer";
constexpr char badCode[] = "Invalid command code type found in answer";
constexpr char badFieldCount[] = "Invalid field count type found in answer";
constexpr char badList[] = "GetZandorCommandsAnswer: Errors during ProtocolCommandInfo list creation";

/** The firmware's answer with these parameters: their number comes first. */
QStringList answerWith(const QStringList &parameters)
{
    return QStringList(QString::number(parameters.size(), 16)) + parameters;
}

/** The command 50 with the fields 1 and 200, the command 300 without any. */
const QStringList twoCommands = {"2", "32", "0", "2", "1", "C8", "36", "1", "0"};

Commands readCommands()
{
    return {ZandorCommand(50, {1, 200}), ZandorCommand(300, {})};
}

void expectTokensRefused(const char *code, const char *text, const QStringList &parameters)
{
    SCOPED_TRACE(parameters.join(' ').toStdString());
    expectRefusal(code, text, ofTokens, [&] { const Answer answer(answerWith(parameters)); });
}

TEST(GetZandorCommandsAnswer, readsTheCommands)
{
    const Answer answer(answerWith(twoCommands));
    EXPECT_EQ(answer.commands(), readCommands());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), twoCommands);
    EXPECT_EQ(Answer(answerWith({"0"})).commands(), Commands());
    EXPECT_EQ(Answer(answerWith({"0", "x"})).commands(), Commands());
    EXPECT_EQ(Answer(answerWith(twoCommands + QStringList{"x"})).commands(), readCommands());
    EXPECT_EQ(Answer(answerWith({"1", "4F", "853408", "0"})).commands(),
              Commands{ZandorCommand(2147483647, {})});
}

TEST(GetZandorCommandsAnswer, refusesAnAnswerThatEndsTooEarly)
{
    for (int size = 0; size < twoCommands.size(); ++size)
        expectTokensRefused("DE02891", badLength, twoCommands.mid(0, size));
    expectTokensRefused("DE02891", badLength, {"7FFFFFFF"});
    expectTokensRefused("DE02891", badLength, {"1", "32", "0", "7FFFFFFF", "1"});
}

TEST(GetZandorCommandsAnswer, refusesTokensThatAreNoNumbers)
{
    const std::pair<const char *, const char *> refusals[] = {
        {"DE02892", badCount},      {"DE02893", badCode}, {"DE02893", badCode},
        {"DE02894", badFieldCount}, {"DE02895", badList}, {"DE02895", badList},
        {"DE02893", badCode},       {"DE02893", badCode}, {"DE02894", badFieldCount}};
    for (int i = 0; i < twoCommands.size(); ++i) {
        for (const char *bad : {"x", "", "100000000"}) {
            QStringList parameters = twoCommands;
            parameters[i] = bad;
            expectTokensRefused(refusals[i].first, refusals[i].second, parameters);
        }
    }
    expectTokensRefused("DE02892", badCount, {"80000000"});
    expectTokensRefused("DE02894", badFieldCount, {"1", "32", "0", "80000000"});
    expectTokensRefused("DE02895", badList, {"1", "32", "0", "1", "80000000"});
    // one more than an int holds
    expectTokensRefused("DE02893", badCode, {"1", "50", "853408", "0"});
}

TEST(GetZandorCommandsAnswer, refusesWhatIsNoAnswer)
{
    constexpr char ofBase[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", ofBase, [] { const Answer answer{QStringList()}; });
    expectRefusal("DE00070", "Invalid parameter length type found in answer", ofBase, [] {
        const Answer answer{QStringList{"x", "0"}};
    });
    expectRefusal("DE00077", "Error during command answer decoding: bad length", ofBase, [] {
        const Answer answer{QStringList{"2", "0"}};
    });
}

TEST(GetZandorCommandsAnswer, travelsAsAStruct)
{
    const Answer answer(readCommands());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"cmd_list": [{"code": 50, "fields": [1, 200]}, {"code": 300, "fields": []}]})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"cmd_list": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetZandorCommandsAnswer, refusesAStructWithoutTheCommands)
{
    const Value good = structOf({{"code", 50}, {"fields", arrayOf(1)}});
    for (const Value &value :
         {Value(), Value(0), arrayOf(good), structOf({}), structOf({{"cmd_list", good}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02895", badList, ofValue, [&] { const Answer answer(value); });
    }
    for (const Value &bad : {Value(7), structOf({{"code", 50}}), arrayOf(50)}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE02895", badList, ofCommand, [&] {
            const Answer answer(structOf({{"cmd_list", arrayOf(good, bad)}}));
        });
    }
    const Value value = structOf({{"cmd_list", arrayOf(good)}});
    const Answer ready(value);
    expectRefusal("DE02895", badList, ofValue, [&] { outOfMemoryOnce([&] { const Answer answer(value); }); });
}

TEST(GetZandorCommandsAnswer, readsAListOfCommands)
{
    List list = {QVariant::fromValue(ZandorCommand(50, {1, 200})),
                 QVariantMap{{"code", 300}, {"fields", List()}}};
    EXPECT_EQ(Answer(list).commands(), readCommands());
    EXPECT_EQ(Answer(list).protoType(), 1);
    List none;
    EXPECT_EQ(Answer(none), Answer());
}

TEST(GetZandorCommandsAnswer, refusesAListOfOtherThings)
{
    const QVariant good = QVariant::fromValue(ZandorCommand(50, {1, 200}));
    for (const QVariant &bad : {QVariant(), QVariant(7), QVariant(List{50, List{1}}), QVariant(List{good}),
                                QVariant(QVariantMap{{"fields", List{1}}})}) {
        SCOPED_TRACE(shown({bad}));
        for (List list : {List{bad}, List{good, bad}})
            expectRefusal("DE02895", badList, ofList, [&] { const Answer answer(list); });
    }
    List list = {QVariantMap{{"code", 50}}};
    expectRefusal("DE02895", badList, ofCommand, [&] { const Answer answer(list); });
}

TEST(GetZandorCommandsAnswer, comparesTheCommandsInTheirOrder)
{
    const Answer answer(readCommands());
    const Answer same = answer;
    EXPECT_EQ(answer, same);
    EXPECT_TRUE(answer.equalTo(&same));
    for (const Commands &commands :
         {Commands(), readCommands().mid(0, 1), Commands{ZandorCommand(300, {}), ZandorCommand(50, {1, 200})},
          Commands{ZandorCommand(50, {1, 200}), ZandorCommand(300, {0})}}) {
        const Answer other(commands);
        SCOPED_TRACE(dumped(other.toXmlRpcValue()));
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetZandorCommandsAnswer, clonesItself)
{
    const Answer answer(answerWith(twoCommands));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetZandorCommandsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

TEST(GetZandorCommandsAnswer, isTheAnswerToItsCommand)
{
    SerialProtoCommand command("ZDR_GET_COMMANDS", nullptr);
    const Answer expected(readCommands());
    List list = {QVariant::fromValue(readCommands().at(0)), QVariant::fromValue(readCommands().at(1))};
    ASSERT_TRUE(command.setSerialAnswer(answerWith(twoCommands), nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    ASSERT_TRUE(command.buildProtoAnswer(expected.toXmlRpcValue(), nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    FW_DriverError error;
    EXPECT_FALSE(command.setSerialAnswer(answerWith({"2"}), &error));
    expectError(error, "DE02891", badLength);
}

} // namespace
