// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/nccommand.h"

#include "base/basetesting.h"
#include "base/confprotocommand.h"
#include "base/getcmdestimatedexectimecmd.h"
#include "base/getcommandstatusanswer.h"
#include "base/getcommandstatuscmd.h"
#include "base/outofmemory.h"
#include "base/xmlrpcanswer.h"

#include <memory>

using namespace testing_base;

namespace {

constexpr char decodingFailed[] = "Errors during protocol command parameters decoding";
constexpr char ofValue[] = "NCCommand::NCCommand(QString, XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char ofCommand[] = "NCCommand::NCCommand(ProtoCommand*, ProtoAnswer*, int, int)";
constexpr char ofAnswer[] = "NCCommand::NCCommand(QString, ProtoAnswer*, int, int, const FW_Machine*)";
constexpr char ofListAndAnswer[] =
    "NCCommand::NCCommand(QString, QList<QVariant>, ProtoAnswer*, int, int, const FW_Machine*)";
constexpr char ofLists[] =
    "NCCommand::NCCommand(QString, QList<QVariant>, QList<QVariant>, int, int, const FW_Machine*)";

using Counted = CountedAnswer<ProtoAnswer>;

Value filling()
{
    return CmdStatus(1, 2500, 40, "Filling").toXmlRpcValue();
}

Value arguments()
{
    return structOf({{"cmd_parameters", arrayOf("T-1")}});
}

Value lastAnswer()
{
    return structOf({{"last_answer", filling()}});
}

NCCommand decoded(Value args)
{
    return NCCommand("GET_CMD_STATUS", args, nullptr);
}

NCCommand decodedBare(Value args)
{
    return NCCommand("ERRORS_NUM", args, nullptr);
}

QString ticketOf(const NCCommand &command)
{
    const auto *request = dynamic_cast<const GetCommandStatusCmd *>(command.protoCommand());
    return request ? request->ticketID() : QString("none");
}

int percentageOf(const NCCommand &command)
{
    const auto *answer = dynamic_cast<const GetCommandStatusAnswer *>(command.lastAnswer());
    return answer ? answer->cmdStatus().percentage() : -1;
}

void expectTimes(const NCCommand &command, int interval, int timeout)
{
    EXPECT_EQ(command.interval(), interval);
    EXPECT_EQ(command.timeout(), timeout);
}

} // namespace

TEST(NCCommand, startsWithoutACommand)
{
    EXPECT_STREQ(NCCommand::CMD_PARAMETERS, "cmd_parameters");
    EXPECT_STREQ(NCCommand::LAST_ANSWER, "last_answer");
    NCCommand command;
    EXPECT_TRUE(command.command().isNull());
    EXPECT_EQ(command.protoCommand(), nullptr);
    EXPECT_EQ(command.lastAnswer(), nullptr);
    expectTimes(command, 500, 10000);

    bool ok = true;
    EXPECT_EQ(command.getProtoAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(command.getXmlRpcAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_FALSE(command.xmlrpc_parameters(&ok).valid());
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_FALSE(command.toXmlRpcValue("key", &ok).valid());
    EXPECT_FALSE(ok);
    FW_DriverError error;
    EXPECT_FALSE(command.setAnswer(Value(5), false, &error));

    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    EXPECT_EQ(command.getXmlRpcAnswer(), nullptr);
    EXPECT_FALSE(command.xmlrpc_parameters().valid());
    EXPECT_FALSE(command.toXmlRpcValue("key").valid());
}

TEST(NCCommand, keepsClonesOfCommandAndAnswer)
{
    GetCommandStatusCmd inner(QString("T-1"));
    {
        Counted answer(5);
        const NCCommand command(&inner, &answer, 100, 2000);
        answer.m_number = 6;
        EXPECT_EQ(Counted::alive, 2);
        EXPECT_NE(command.protoCommand(), &inner);
        EXPECT_EQ(ticketOf(command), "T-1");
        ASSERT_NE(command.lastAnswer(), nullptr);
        EXPECT_EQ(dumped(command.lastAnswer()->toXmlRpcValue()), "5");
        EXPECT_EQ(command.command(), "GET_CMD_STATUS");
        expectTimes(command, 100, 2000);
    }
    EXPECT_EQ(Counted::alive, 0);
    const NCCommand withoutAnswer(&inner, nullptr, 100, 2000);
    EXPECT_EQ(withoutAnswer.lastAnswer(), nullptr);
}

TEST(NCCommand, refusesToBeMadeOfNoCommand)
{
    Counted answer(5);
    expectRefusal("DE01417", decodingFailed, ofCommand, [&] { NCCommand(nullptr, &answer, 100, 2000); });
    EXPECT_EQ(Counted::alive, 1);
}

TEST(NCCommand, isMadeByName)
{
    Counted answer(5);
    const NCCommand command("ERRORS_NUM", &answer, 100, 2000, nullptr);
    EXPECT_EQ(command.command(), "ERRORS_NUM");
    ASSERT_NE(command.lastAnswer(), nullptr);
    EXPECT_NE(command.lastAnswer(), &answer);
    EXPECT_EQ(dumped(command.lastAnswer()->toXmlRpcValue()), "5");
    expectTimes(command, 100, 2000);
    EXPECT_EQ(NCCommand("ERRORS_NUM", static_cast<ProtoAnswer *>(nullptr), 1, 2, nullptr).lastAnswer(),
              nullptr);
    expectRefusal("DE00313", "GET_CMD_STATUS command : expected at least 1 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [&] { NCCommand("GET_CMD_STATUS", &answer, 100, 2000, nullptr); });
}

TEST(NCCommand, isMadeByNameAndArguments)
{
    Counted answer(5);
    const NCCommand command("GET_CMD_STATUS", List{"T-1"}, &answer, 100, 2000, nullptr);
    EXPECT_EQ(ticketOf(command), "T-1");
    ASSERT_NE(command.lastAnswer(), nullptr);
    EXPECT_EQ(dumped(command.lastAnswer()->toXmlRpcValue()), "5");
    EXPECT_EQ(Counted::alive, 2);
    expectTimes(command, 100, 2000);
}

TEST(NCCommand, isMadeByNameArgumentsAndWhatTheAnswerIsMadeOf)
{
    const List answer = {QVariant::fromValue(CmdStatus(1, 2500, 40, "Filling"))};
    const NCCommand command("GET_CMD_STATUS", List{"T-1"}, answer, 100, 2000, nullptr);
    EXPECT_EQ(ticketOf(command), "T-1");
    EXPECT_EQ(percentageOf(command), 40);
    EXPECT_NE(command.lastAnswer(), command.getProtoAnswer());
    expectTimes(command, 100, 2000);
    expectRefusal("DE00375", "GetCommandStatusAnswer decoding failed: invalid QVariant value", ofLists,
                  [] { NCCommand("GET_CMD_STATUS", List{"T-1"}, List{5}, 100, 2000, nullptr); });
}

TEST(NCCommand, passesTheMachineOn)
{
    const FW_Dispenser dispenser;
    const List inner = {"GET_STATUS", 7};
    Counted answer(5);
    Value args =
        arrayOf(structOf({{"cmd_parameters", arrayOf(structOf({{"command", arrayOf("GET_STATUS", 7)}}))}}));
    const NCCommand commands[] = {
        NCCommand("GET_CMD_EST_EXEC_TIME", inner, &answer, 1, 2, &dispenser),
        NCCommand("GET_CMD_EST_EXEC_TIME", inner, List{2500}, 1, 2, &dispenser),
        NCCommand("GET_CMD_EST_EXEC_TIME", args, &dispenser),
    };
    int form = 0;
    for (const NCCommand &command : commands) {
        SCOPED_TRACE(++form);
        ASSERT_NE(command.protoCommand(), nullptr);
        EXPECT_NE(command.protoCommand()->machine(), nullptr);
    }
}

TEST(NCCommand, passesOnWhatTheCommandSays)
{
    Counted answer(5);
    const char ticket[] = "GetCommandStatusCmd: expected String type parameter";
    const char list[] = "GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant>)";
    expectRefusal("DE00371", ticket, list,
                  [&] { NCCommand("GET_CMD_STATUS", List{5}, &answer, 100, 2000, nullptr); });
    expectRefusal("DE00371", ticket, list,
                  [&] { NCCommand("GET_CMD_STATUS", List{5}, List{}, 100, 2000, nullptr); });
    expectRefusal("DE00371", ticket, "GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue&)",
                  [] {
                      decoded(arrayOf(structOf({{"cmd_parameters", arrayOf(5)}})));
                  });
    const char unknown[] =
        "static ProtoCommand* ProtoCommandList::getProtoCommand(QString, QList<QVariant>, const FW_Machine*)";
    expectRefusal("DE00441", "Command type not recognized", unknown,
                  [&] { NCCommand("NO_SUCH_COMMAND", &answer, 100, 2000, nullptr); });
    Value empty = arrayOf();
    expectRefusal("DE00337", "Command type not recognized",
                  "static ProtoCommand* ProtoCommandList::getProtoCommand(QString, XmlRpc::XmlRpcValue&, "
                  "const FW_Machine*)",
                  [&] { NCCommand("NO_SUCH_COMMAND", empty, nullptr); });
}

TEST(NCCommand, hasACodeOfItsOwnForAnAnswerThatCannotBeCopied)
{
    GetCommandStatusCmd inner(QString("T-1"));
    for (const Failure failure : {Failure::OfStandard, Failure::OfNoClass}) {
        SCOPED_TRACE(static_cast<int>(failure));
        UncopyableAnswer<ProtoAnswer> answer(failure);
        expectRefusal("DE01418", decodingFailed, ofCommand, [&] { NCCommand(&inner, &answer, 1, 2); });
        expectRefusal("DE01176", decodingFailed, ofAnswer,
                      [&] { NCCommand("ERRORS_NUM", &answer, 1, 2, nullptr); });
        expectRefusal("DE00772", decodingFailed, ofListAndAnswer,
                      [&] { NCCommand("ERRORS_NUM", List{}, &answer, 1, 2, nullptr); });
    }
    UncopyableAnswer<ProtoAnswer> answer(Failure::OfFramework);
    const char thrower[] = "UncopyableAnswer::clone()";
    expectRefusal("DE09999", "Not to be copied", thrower, [&] { NCCommand(&inner, &answer, 1, 2); });
    expectRefusal("DE09999", "Not to be copied", thrower,
                  [&] { NCCommand("ERRORS_NUM", &answer, 1, 2, nullptr); });
    expectRefusal("DE09999", "Not to be copied", thrower,
                  [&] { NCCommand("ERRORS_NUM", List{}, &answer, 1, 2, nullptr); });
}

TEST(NCCommand, hasACodeOfItsOwnForAnythingElseInARequest)
{
    Value args = arrayOf();
    expectRefusal("DE00774", decodingFailed, ofValue,
                  [&] { outOfMemoryOnce([&] { NCCommand("ERRORS_NUM", args, nullptr); }); });
}

TEST(NCCommand, readsAWholeRequest)
{
    const NCCommand command = decoded(arrayOf(arguments(), lastAnswer(), 100, 2000));
    EXPECT_EQ(ticketOf(command), "T-1");
    EXPECT_EQ(percentageOf(command), 40);
    EXPECT_NE(command.lastAnswer(), command.getProtoAnswer());
    expectTimes(command, 100, 2000);
}

TEST(NCCommand, readsARequestWithElementsLeftOut)
{
    const NCCommand withoutAnswer = decoded(arrayOf(arguments(), 100, 2000));
    EXPECT_EQ(ticketOf(withoutAnswer), "T-1");
    EXPECT_EQ(withoutAnswer.lastAnswer(), nullptr);
    expectTimes(withoutAnswer, 100, 2000);

    const NCCommand withoutArguments = decodedBare(arrayOf(structOf({{"last_answer", 0}}), 100, 2000));
    EXPECT_EQ(withoutArguments.command(), "ERRORS_NUM");
    EXPECT_NE(withoutArguments.lastAnswer(), nullptr);
    expectTimes(withoutArguments, 100, 2000);

    const NCCommand timesOnly = decodedBare(arrayOf(100, 2000));
    EXPECT_EQ(timesOnly.lastAnswer(), nullptr);
    expectTimes(timesOnly, 100, 2000);

    expectTimes(decodedBare(arrayOf(100)), 100, 10000);
    expectTimes(decodedBare(arrayOf()), 500, 10000);
    expectTimes(decoded(arrayOf(arguments())), 500, 10000);
    expectTimes(decoded(arrayOf(arguments(), lastAnswer())), 500, 10000);
    EXPECT_EQ(percentageOf(decoded(arrayOf(arguments(), lastAnswer()))), 40);
}

TEST(NCCommand, takesOnlyIntegersAsTimes)
{
    expectTimes(decodedBare(arrayOf("100", 2000)), 500, 10000);
    expectTimes(decodedBare(arrayOf(100, "2000")), 100, 10000);
    expectTimes(decodedBare(arrayOf(1.5, 2000)), 500, 10000);
}

TEST(NCCommand, refusesARequestThatIsNoArray)
{
    for (Value args : {Value(), Value(5), Value("T-1"), arguments()}) {
        SCOPED_TRACE(dumped(args));
        expectRefusal("DE00755", "Error in type decoding (xml-rpc)", ofValue,
                      [&] { NCCommand("GET_CMD_STATUS", args, nullptr); });
    }
}

TEST(NCCommand, refusesALastAnswerThatIsNone)
{
    expectRefusal("DE00756", decodingFailed, ofValue, [] {
        decoded(arrayOf(arguments(), structOf({{"answer", 5}}), 100, 2000));
    });
    expectRefusal("DE00756", decodingFailed, ofValue, [] { decodedBare(arrayOf(structOf({}))); });
    expectRefusal("DE00374", "GetCommandStatusAnswer decoding failed: invalid xml-rpc value", ofValue, [] {
        decoded(arrayOf(arguments(), structOf({{"last_answer", 5}})));
    });
}

TEST(NCCommand, writesAWholeRequest)
{
    GetCommandStatusCmd inner(QString("T-1"));
    Counted answer(5);
    const NCCommand command(&inner, &answer, 100, 2000);
    bool ok = false;
    EXPECT_EQ(dumped(command.toXmlRpcValue("key", &ok)),
              R"(["key", "GET_CMD_STATUS", {"cmd_parameters": ["T-1"]}, {"last_answer": 5}, 100, 2000])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(command.toXmlRpcValue(QString())),
              R"(["GET_CMD_STATUS", {"cmd_parameters": ["T-1"]}, {"last_answer": 5}, 100, 2000])");
}

TEST(NCCommand, leavesOutWhatThereIsNot)
{
    GetCommandStatusCmd inner(QString("T-1"));
    ConfProtoCommand bare("LOGOUT", nullptr);
    Counted answer(5);
    EXPECT_EQ(dumped(NCCommand(&inner, nullptr, 100, 2000).toXmlRpcValue("key")),
              R"(["key", "GET_CMD_STATUS", {"cmd_parameters": ["T-1"]}, 100, 2000])");
    EXPECT_EQ(dumped(NCCommand(&bare, &answer, 100, 2000).toXmlRpcValue("key")),
              R"(["key", "LOGOUT", {"last_answer": 5}, 100, 2000])");
    EXPECT_EQ(dumped(NCCommand(&bare, nullptr, 100, 2000).toXmlRpcValue(QString())),
              R"(["LOGOUT", 100, 2000])");
}

TEST(NCCommand, makesNoRequestOfACommandWithoutAName)
{
    ConfProtoCommand nameless;
    bool ok = true;
    EXPECT_EQ(dumped(NCCommand(&nameless, nullptr, 100, 2000).toXmlRpcValue("key", &ok)), "[]");
    EXPECT_FALSE(ok);
}

TEST(NCCommand, writesNoEmptyValue)
{
    class EmptyAnswer : public ProtoAnswer
    {
    public:
        EmptyAnswer *clone() const override { return new EmptyAnswer(*this); }
        Value toXmlRpcValue() const override { return Value(); }
    };
    ConfProtoCommand bare("LOGOUT", nullptr);
    EmptyAnswer answer;
    EXPECT_EQ(dumped(NCCommand(&bare, &answer, 100, 2000).toXmlRpcValue(QString())),
              R"(["LOGOUT", {"last_answer": 0}, 100, 2000])");
}

TEST(NCCommand, forwardsToTheCommand)
{
    GetCommandStatusCmd inner(QString("T-1"));
    NCCommand command(&inner, nullptr, 100, 2000);
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), R"(["T-1"])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(command.getProtoAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);

    const Value status =
        structOf({{"ret_code", 0}, {"info", "as told"}, {"ret_value", filling()}, {"errors", arrayOf()}});
    FW_DriverError error;
    EXPECT_TRUE(command.setAnswer(status, false, &error));
    EXPECT_EQ(className(command.getProtoAnswer(&ok)), "GetCommandStatusAnswer");
    EXPECT_TRUE(ok);
    ok = false;
    ASSERT_NE(command.getXmlRpcAnswer(&ok), nullptr);
    EXPECT_TRUE(ok);
    EXPECT_EQ(command.getXmlRpcAnswer()->infoMsg(), "as told");
    EXPECT_EQ(command.getProtoAnswer(), command.protoCommand()->getProtoAnswer());
    EXPECT_EQ(command.lastAnswer(), nullptr);

    const Value ticket = structOf({{"ret_code", 0},
                                   {"info", ""},
                                   {"ret_value", structOf({{"ticket_id", "T-2"}})},
                                   {"errors", arrayOf()}});
    EXPECT_TRUE(command.setAnswer(ticket, true, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "AsyncAnswer");
    EXPECT_FALSE(command.setAnswer(Value(5), false, &error));
    expectError(error, "DE00355", "XmlRpcAnswer: expected struct type for xmlrpc type");
}

TEST(NCCommand, replacesTheCommandByAClone)
{
    NCCommand command;
    {
        const GetCommandStatusCmd inner(QString("T-1"));
        command.setProtoCommand(&inner);
        EXPECT_NE(command.protoCommand(), &inner);
    }
    EXPECT_EQ(ticketOf(command), "T-1");
    const GetCommandStatusCmd next(QString("T-2"));
    command.setProtoCommand(&next);
    EXPECT_EQ(ticketOf(command), "T-2");
    command.setProtoCommand(command.protoCommand()); // its own
    EXPECT_EQ(ticketOf(command), "T-2");
    command.setProtoCommand(nullptr);
    EXPECT_EQ(ticketOf(command), "T-2");
}

TEST(NCCommand, makesCopiesThatStandAlone)
{
    GetCommandStatusCmd inner(QString("T-1"));
    const Counted answer(5);
    {
        NCCommand command(&inner, const_cast<Counted *>(&answer), 100, 2000);
        const NCCommand copy(command);
        const std::unique_ptr<NCCommand> clone(command.clone());
        NCCommand assigned;
        assigned = command;
        EXPECT_EQ(Counted::alive, 5);
        const GetCommandStatusCmd next(QString("T-2"));
        command.setProtoCommand(&next);
        int form = 0;
        for (const NCCommand *other : {&copy, static_cast<const NCCommand *>(clone.get()),
                                       static_cast<const NCCommand *>(&assigned)}) {
            SCOPED_TRACE(++form);
            EXPECT_EQ(ticketOf(*other), "T-1");
            ASSERT_NE(other->lastAnswer(), nullptr);
            EXPECT_NE(other->lastAnswer(), command.lastAnswer());
            EXPECT_EQ(dumped(other->lastAnswer()->toXmlRpcValue()), "5");
            expectTimes(*other, 100, 2000);
        }
        assigned = NCCommand();
        EXPECT_EQ(assigned.protoCommand(), nullptr);
        EXPECT_EQ(assigned.lastAnswer(), nullptr);
        expectTimes(assigned, 500, 10000);
        EXPECT_EQ(Counted::alive, 4);
    }
    EXPECT_EQ(Counted::alive, 1);
}

TEST(NCCommand, survivesAssignmentToItself)
{
    GetCommandStatusCmd inner(QString("T-1"));
    Counted answer(5);
    NCCommand command(&inner, &answer, 100, 2000);
    const NCCommand &same = command;
    command = same;
    EXPECT_EQ(ticketOf(command), "T-1");
    ASSERT_NE(command.lastAnswer(), nullptr);
    EXPECT_EQ(dumped(command.lastAnswer()->toXmlRpcValue()), "5");
    expectTimes(command, 100, 2000);
}
