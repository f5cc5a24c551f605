// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcmdestimatedexectimecmd.h"

#include "base/commandcontract.h"
#include "base/getcommandstatuscmd.h"
#include "base/outofmemory.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_mixer.h>

#include <memory>

using namespace testing_base;

namespace {

constexpr char invalid[] = "Invalid parameters";
constexpr char decodingFailed[] = "Errors during protocol command parameters decoding";
constexpr char fromValue[] =
    "GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd(const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char fromList[] =
    "GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd(QList<QVariant>, const FW_Machine*)";

/** The request for a command that travels as these elements. */
template <class... T>
Value requestFor(const T &...elements)
{
    return arrayOf(structOf({{"command", arrayOf(elements...)}}));
}

void expectValueRefusal(const char *code, const char *text, const Value &value)
{
    expectRefusal(code, text, fromValue, [&] { GetCmdEstimatedExecTimeCmd{value, nullptr}; });
}

void expectAsksForTicket(const ProtoCommand *command, const char *ticket)
{
    const auto *request = dynamic_cast<const GetCmdEstimatedExecTimeCmd *>(command);
    ASSERT_NE(request, nullptr);
    const auto *inner = dynamic_cast<const GetCommandStatusCmd *>(request->commandToEstimate());
    ASSERT_NE(inner, nullptr);
    EXPECT_EQ(inner->ticketID(), ticket);
}

AnswerFacts answers()
{
    constexpr char answerClass[] = "GetCmdEstimatedExecTimeAnswer";
    constexpr char notMade[] = "Failed to create answer";
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue(answerClass, structOf({{"exec_time", 2500}}), R"({"exec_time": 2500})")
            .failsWith("DE01297", notMade)
            .refuses(
                Value(5), "DE01180", "GetCmdEstimatedExecTimeAnswer: cannot find execution time tag",
                "GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList(answerClass, {2600}, R"({"exec_time": 2600})")
            .failsWith("DE00346", notMade)
            .refuses({}, "DE01178", "GetCmdEstimatedExecTimeAnswer decoding failed: invalid QVariant value",
                     "GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(QList<QVariant>&)");
    return answers;
}

CommandFacts facts(const FW_Dispenser *machine)
{
    static GetCommandStatusCmd inner(QString("T-1"));
    using Command = GetCmdEstimatedExecTimeCmd;
    CommandFacts facts(formsOf<Command>(machine));
    facts.catalogue = {"GET_CMD_EST_EXEC_TIME", 85, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request({"GET_CMD_STATUS", "T-1"})
            .value(requestFor("GET_CMD_STATUS", "T-1"))
            .typed<Command>(&inner)
            .written(R"([{"command": ["GET_CMD_STATUS", "T-1"]}])"),
        Request({"ERRORS_NUM"}).value(requestFor("ERRORS_NUM")).written(R"([{"command": ["ERRORS_NUM"]}])"),
    };
    facts.answers = answers();
    return facts;
}

} // namespace

TEST(GetCmdEstimatedExecTimeCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine;
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(GetCmdEstimatedExecTimeCmd, startsWithoutACommand)
{
    EXPECT_STREQ(GetCmdEstimatedExecTimeCmd::COMMAND_AND_PARAMS, "command");
    EXPECT_EQ(GetCmdEstimatedExecTimeCmd().commandToEstimate(), nullptr);
}

TEST(GetCmdEstimatedExecTimeCmd, writesTheNameAloneOfACommandWithoutArguments)
{
    ConfProtoCommand bare("LOGOUT", nullptr);
    const GetCmdEstimatedExecTimeCmd command(&bare);
    EXPECT_EQ(command.parameters(), List{"LOGOUT"});
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), R"([{"command": ["LOGOUT"]}])");
}

TEST(GetCmdEstimatedExecTimeCmd, keepsACloneOfTheCommand)
{
    GetCmdEstimatedExecTimeCmd command;
    {
        GetCommandStatusCmd inner(QString("T-1"));
        command.setCommandToEstimate(&inner);
        EXPECT_NE(command.commandToEstimate(), &inner);
        const GetCmdEstimatedExecTimeCmd made(&inner);
        expectAsksForTicket(&made, "T-1");
        EXPECT_NE(made.commandToEstimate(), &inner);
    }
    expectAsksForTicket(&command, "T-1");
    GetCommandStatusCmd next(QString("T-2"));
    command.setCommandToEstimate(&next);
    expectAsksForTicket(&command, "T-2");
    command.setCommandToEstimate(nullptr);
    expectAsksForTicket(&command, "T-2");
    EXPECT_EQ(GetCmdEstimatedExecTimeCmd(nullptr).commandToEstimate(), nullptr);
}

TEST(GetCmdEstimatedExecTimeCmd, readsTheCommandInBothForms)
{
    const GetCmdEstimatedExecTimeCmd ofValue(requestFor("GET_CMD_STATUS", "T-1"), nullptr);
    expectAsksForTicket(&ofValue, "T-1");
    const GetCmdEstimatedExecTimeCmd ofList(List{"GET_CMD_STATUS", "T-2"}, nullptr);
    expectAsksForTicket(&ofList, "T-2");

    const GetCmdEstimatedExecTimeCmd bare(requestFor("ERRORS_NUM"), nullptr);
    ASSERT_NE(bare.commandToEstimate(), nullptr);
    EXPECT_EQ(bare.commandToEstimate()->command(), "ERRORS_NUM");
    const GetCmdEstimatedExecTimeCmd bareList(List{"ERRORS_NUM"}, nullptr);
    EXPECT_EQ(bareList.commandToEstimate()->command(), "ERRORS_NUM");
}

TEST(GetCmdEstimatedExecTimeCmd, passesTheMachineOn)
{
    const FW_Dispenser dispenser;
    const GetCmdEstimatedExecTimeCmd ofValue(
        requestFor("GET_CMD_EST_EXEC_TIME", structOf({{"command", arrayOf("ERRORS_NUM")}})), &dispenser);
    EXPECT_NE(ofValue.machine(), nullptr);
    ASSERT_NE(ofValue.commandToEstimate(), nullptr);
    EXPECT_NE(ofValue.commandToEstimate()->machine(), nullptr);
    const GetCmdEstimatedExecTimeCmd ofList(List{"GET_CMD_EST_EXEC_TIME", "ERRORS_NUM"}, &dispenser);
    EXPECT_NE(ofList.machine(), nullptr);
    ASSERT_NE(ofList.commandToEstimate(), nullptr);
    EXPECT_NE(ofList.commandToEstimate()->machine(), nullptr);
}

TEST(GetCmdEstimatedExecTimeCmd, refusesTheFormsInOrder)
{
    expectValueRefusal("DE01181", invalid, arrayOf("GET_CMD_STATUS"));
    expectValueRefusal("DE01181", invalid, arrayOf(arrayOf("GET_CMD_STATUS", "T-1")));
    expectValueRefusal("DE01182", invalid, arrayOf(structOf({})));
    expectValueRefusal("DE01182", invalid, arrayOf(structOf({{"Command", arrayOf("ERRORS_NUM")}})));
    expectValueRefusal("DE01183", invalid, arrayOf(structOf({{"command", "ERRORS_NUM"}})));
    expectValueRefusal("DE01183", invalid, arrayOf(structOf({{"command", structOf({})}})));
    expectValueRefusal("DE01185", "Invalid parameters: command expected", requestFor());
}

TEST(GetCmdEstimatedExecTimeCmd, refusesUnknownNames)
{
    for (const Value &request : {requestFor("NO_SUCH_COMMAND"), requestFor(""), requestFor(5),
                                 requestFor("errors_num"), requestFor(arrayOf("ERRORS_NUM"))}) {
        SCOPED_TRACE(dumped(request));
        expectValueRefusal("DE01184", "Invalid parameters: command does not exists", request);
    }
}

TEST(GetCmdEstimatedExecTimeCmd, refusesAListWithoutAName)
{
    for (const List &list : {List{5}, List{QVariant()}, List{5, "GET_CMD_STATUS"}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE01188", decodingFailed, fromList, [&] {
            GetCmdEstimatedExecTimeCmd{list, nullptr};
        });
    }
}

TEST(GetCmdEstimatedExecTimeCmd, passesOnWhatTheCommandSays)
{
    expectRefusal("DE00371", "GetCommandStatusCmd: expected String type parameter",
                  "GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue&)", [] {
                      GetCmdEstimatedExecTimeCmd{requestFor("GET_CMD_STATUS", 5), nullptr};
                  });
    expectRefusal("DE00312", "GET_CMD_STATUS command : expected at least 1 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] {
                      GetCmdEstimatedExecTimeCmd{requestFor("GET_CMD_STATUS"), nullptr};
                  });
    expectRefusal("DE00371", "GetCommandStatusCmd: expected String type parameter",
                  "GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant>)", [] {
                      GetCmdEstimatedExecTimeCmd{List{"GET_CMD_STATUS", 5}, nullptr};
                  });
    expectRefusal("DE00441", "Command type not recognized",
                  "static ProtoCommand* ProtoCommandList::getProtoCommand(QString, QList<QVariant>, const "
                  "FW_Machine*)",
                  [] {
                      GetCmdEstimatedExecTimeCmd{List{"NO_SUCH_COMMAND"}, nullptr};
                  });
}

TEST(GetCmdEstimatedExecTimeCmd, hasACodeForAnythingElse)
{
    const Value request = requestFor("ERRORS_NUM");
    expectRefusal("DE01187", decodingFailed, fromValue, [&] {
        outOfMemoryOnce([&] { GetCmdEstimatedExecTimeCmd{request, nullptr}; });
    });
}

TEST(GetCmdEstimatedExecTimeCmd, comesFromTheFactoryInBothForms)
{
    const FW_Dispenser dispenser;
    const FW_Mixer mixer;
    for (const FW_Machine *machine :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&dispenser),
          static_cast<const FW_Machine *>(&mixer)}) {
        SCOPED_TRACE(machine ? "with a machine" : "without a machine");
        Value value = requestFor("GET_CMD_STATUS", "T-1");
        const std::unique_ptr<ProtoCommand> ofValue(
            ProtoCommandList::getProtoCommand("GET_CMD_EST_EXEC_TIME", value, machine));
        expectAsksForTicket(ofValue.get(), "T-1");
        const std::unique_ptr<ProtoCommand> ofList(ProtoCommandList::getProtoCommand(
            "GET_CMD_EST_EXEC_TIME", List{"GET_CMD_STATUS", "T-2"}, machine));
        expectAsksForTicket(ofList.get(), "T-2");
    }
    Value unknown = requestFor("NO_SUCH_COMMAND");
    expectRefusal("DE01184", "Invalid parameters: command does not exists", fromValue,
                  [&] { ProtoCommandList::getProtoCommand("GET_CMD_EST_EXEC_TIME", unknown, nullptr); });
}

TEST(GetCmdEstimatedExecTimeCmd, makesCopiesThatStandAlone)
{
    GetCommandStatusCmd inner(QString("T-1"));
    GetCmdEstimatedExecTimeCmd command(&inner);
    const std::unique_ptr<ProtoCommand> copy(static_cast<const ProtoCommand &>(command).clone());
    GetCommandStatusCmd next(QString("T-2"));
    command.setCommandToEstimate(&next);
    expectAsksForTicket(copy.get(), "T-1");
    expectAsksForTicket(&command, "T-2");
    EXPECT_EQ(GetCmdEstimatedExecTimeCmd(GetCmdEstimatedExecTimeCmd()).commandToEstimate(), nullptr);
}
