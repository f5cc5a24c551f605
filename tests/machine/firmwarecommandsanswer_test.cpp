// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/firmwarecommandsanswer.h"

#include "base/basetesting.h"
#include "base/outofmemory.h"

#include <memory>

namespace {

using namespace testing_base;
using Answer = FirmwareCommandsAnswer;
using Commands = QList<FW_Command>;

constexpr char ofTokens[] = "FirmwareCommandsAnswer::FirmwareCommandsAnswer(QStringList)";
constexpr char ofValue[] = "FirmwareCommandsAnswer::FirmwareCommandsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "FirmwareCommandsAnswer::FirmwareCommandsAnswer(QList<QVariant>&)";
constexpr char ofCommand[] = "FW_Command::FW_Command(QStringList)";
constexpr char noCommand[] = "FirmwareCommandsAnswer failed: expected FW_Command type parameter";
constexpr char badLength[] = "Error during command answer decoding: bad length";

/** The parameters of a line, behind their number. */
QStringList answerWith(const char *line)
{
    const QStringList parameters = QString::fromLatin1(line).split(' ', Qt::SkipEmptyParts);
    return QStringList(QString::number(parameters.size(), 16)) + parameters;
}

const Commands twoCommands = {FW_Command(23, 2, CmdExecution::No), FW_Command(508, 1, CmdExecution::Yes)};

TEST(FirmwareCommandsAnswer, groupsTheTokensEvenly)
{
    EXPECT_EQ(Answer(answerWith("2 17 0 2 0 10 2 1 1")).fwCommandList(), twoCommands);
    // of three tokens, without the execution
    EXPECT_EQ(Answer(answerWith("2 17 0 2 10 2 1")).fwCommandList(),
              (Commands{FW_Command(23, 2, CmdExecution::Yes), FW_Command(508, 1, CmdExecution::Yes)}));
    // 13 tokens for four: the last is not read
    EXPECT_EQ(Answer(answerWith("4 1 0 0 2 0 1 3 0 2 4 0 0 x")).fwCommandList(),
              (Commands{FW_Command(1, 0, CmdExecution::Yes), FW_Command(2, 1, CmdExecution::Yes),
                        FW_Command(3, 2, CmdExecution::Yes), FW_Command(4, 0, CmdExecution::Yes)}));
    // more than four a command: the fifth is read by nobody
    EXPECT_EQ(Answer(answerWith("2 17 0 2 0 x 10 2 1 1 y")).fwCommandList(), twoCommands);
    EXPECT_EQ(Answer(answerWith("0 x y z")).fwCommandList(), Commands());
    EXPECT_EQ(Answer(answerWith("2 17 0 2 0 10 2 1 1")).serialParameters().size(), 9);
    EXPECT_EQ(Answer().protoType(), 1);
}

TEST(FirmwareCommandsAnswer, refusesTokensThatAreNone)
{
    const struct
    {
        const char *parameters;
        const char *code;
        const char *text;
        const char *function;
    } rows[] = {
        {"", "DE00670", badLength, ofTokens},
        {"0", "DE00670", badLength, ofTokens},
        {"1 17 0", "DE00670", badLength, ofTokens},
        {"x 17 0 2", "DE00671", "Error during command answer decoding: expected number of commands parameter",
         ofTokens},
        {"80000000 17 0 2", "DE00671",
         "Error during command answer decoding: expected number of commands parameter", ofTokens},
        {"2 17 0 2 10 2", "DE00818", badLength, ofCommand},
        {"7FFFFFFF 17 0 2", "DE00818", badLength, ofCommand},
        {"2 17 0 2 x 2 1", "DE00327", "Error during command code decoding", ofCommand},
        {"2 17 0 2 10 x 1", "DE00666", "Error during command code decoding", ofCommand},
        {"2 17 0 x 10 2 1", "DE00667", "Error during command status decoding", ofCommand},
        {"1 17 0 2 x", "DE02595", "Error during command status decoding", ofCommand},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.parameters);
        expectRefusal(row.code, row.text, row.function, [&] { Answer{answerWith(row.parameters)}; });
    }
}

TEST(FirmwareCommandsAnswer, refusesAnAnswerCutAtAnyToken)
{
    const QStringList whole = answerWith("2 17 0 2 0 10 2 1 1");
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", serial, [] { Answer{QStringList()}; });
    for (int size = 1; size < whole.size(); ++size)
        expectRefusal("DE00077", badLength, serial, [&] { Answer{whole.mid(0, size)}; });
    // the same where the length says no more: two commands of four, three or fewer tokens
    for (int count = 0; count < 9; ++count) {
        SCOPED_TRACE(count);
        const QStringList told = QStringList(QString::number(count, 16)) + whole.mid(1, count);
        if (count < 4)
            expectRefusal("DE00670", badLength, ofTokens, [&] { Answer{told}; });
        else if (count < 7)
            expectRefusal("DE00818", badLength, ofCommand, [&] { Answer{told}; });
        else
            EXPECT_EQ(Answer(told).fwCommandList().size(), 2);
    }
}

TEST(FirmwareCommandsAnswer, refusesACommandThatCannotBeMade)
{
    QStringList tokens = answerWith("1 17 0 2");
    const Value value = structOf({{"fw_commands", arrayOf(twoCommands[0].toXmlRpcValue())}});
    EXPECT_EQ(Answer(value).fwCommandList().size(), 1);
    expectRefusal("DE00676", noCommand, ofValue, [&] { outOfMemoryOnce([&] { Answer{value}; }); });
    expectRefusal("DE00672", noCommand, ofTokens,
                  [&] { outOfMemoryOnce([&] { Answer{std::move(tokens)}; }); });
}

TEST(FirmwareCommandsAnswer, travelsAsAStruct)
{
    EXPECT_STREQ(Answer::fwCommandList_TAG, "fw_commands");
    const Answer answer(twoCommands);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"fw_commands": [{"cmd_code": 23, "cmd_exec": 0, "cmd_status": 2}, )"
              R"({"cmd_code": 508, "cmd_exec": 1, "cmd_status": 1}]})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"fw_commands": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(FirmwareCommandsAnswer, refusesAValueWithoutCommands)
{
    expectRefusal("DE00675", "FirmwareCommandsAnswer decoding failed: invalid xml-rpc type", ofValue,
                  [] { Answer{Value()}; });
    for (const Value &value : {Value(5), arrayOf(), structOf({}), structOf({{"commands", arrayOf()}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00677", "FirmwareCommandsAnswer: Errors during FW_Command list creation", ofValue,
                      [&] { Answer{value}; });
    }
    for (const Value &other : {Value(5), Value("x"), structOf({})})
        expectRefusal("DE00801", "FirmwareCommandsAnswer decoding failed: expected xml-rpc array type",
                      ofValue, [&] {
                          Answer{structOf({{"fw_commands", other}})};
                      });
    for (const Value &bad : {Value(5), arrayOf(23, 2), structOf({})})
        expectRefusal("DE00668", "FW_Command: expected command code value",
                      "FW_Command::FW_Command(const XmlRpc::XmlRpcValue&)", [&] {
                          Answer{structOf({{"fw_commands", arrayOf(twoCommands[0].toXmlRpcValue(), bad)}})};
                      });
}

TEST(FirmwareCommandsAnswer, readsAListOfCommands)
{
    const QVariant good = QVariant::fromValue(twoCommands[0]);
    List list = {good, QVariantMap{{"cmd_code", 508}, {"cmd_status", 1}}};
    EXPECT_EQ(Answer(list).fwCommandList(), twoCommands);
    List none;
    EXPECT_EQ(Answer(none), Answer());
    for (const QVariant &bad :
         {QVariant(), QVariant(7), QVariant(List{good}), QVariant(QVariantMap{{"cmd_exec", 1}})}) {
        SCOPED_TRACE(shown({bad}));
        for (List other : {List{bad}, List{good, bad}})
            expectRefusal("DE00676", noCommand, ofList, [&] { Answer{other}; });
    }
}

TEST(FirmwareCommandsAnswer, clonesAndCompares)
{
    const Answer answer(twoCommands);
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "FirmwareCommandsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const Commands &commands :
         {Commands(), twoCommands.mid(0, 1), Commands{twoCommands[1], twoCommands[0]}}) {
        const Answer other(commands);
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
