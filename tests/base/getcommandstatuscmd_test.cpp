// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcommandstatuscmd.h"

#include "base/cmdstatus.h"
#include "base/commandcontract.h"
#include "catalogue/protocommandlist.h"

using namespace testing_base;

namespace {

constexpr char ofValue[] = "GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant>)";
constexpr char noTicket[] = "GetCommandStatusCmd: expected String type parameter";
constexpr char notMade[] = "Failed to create GetCommandStatusAnswer";

AnswerFacts answers()
{
    constexpr char filling[] =
        R"({"cmd_answer": 0, "extra_info": "", "info": "Filling", "percentage": 40, "status": 1, )"
        R"("time_left": 2500})";
    const Value status = structOf({{"cmd_answer", 0},
                                   {"extra_info", ""},
                                   {"info", "Filling"},
                                   {"percentage", 40},
                                   {"status", 1},
                                   {"time_left", 2500}});
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue("GetCommandStatusAnswer", status, filling)
            .failsWith("DE01284", notMade)
            .refuses(Value(5), "DE00374", "GetCommandStatusAnswer decoding failed: invalid xml-rpc value",
                     "GetCommandStatusAnswer::GetCommandStatusAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("GetCommandStatusAnswer", {QVariant::fromValue(CmdStatus(1, 2500, 40, "Filling"))},
                     filling)
            .failsWith("DE01284", notMade)
            .refuses({}, "DE00375", "GetCommandStatusAnswer decoding failed: invalid QVariant value",
                     "GetCommandStatusAnswer::GetCommandStatusAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00372", notMade};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<GetCommandStatusCmd>());
    facts.catalogue = {"GET_CMD_STATUS", 63, "", 1};
    facts.protoType = 2;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {required(Text, {"DE00371", "DE00371", noTicket})};
    facts.getters = {getter(&GetCommandStatusCmd::ticketID)};
    facts.words = silence();
    facts.defaults = Request().parameters({""}).written(R"([""])");
    facts.requests = {Request({"T-1"}).typed<GetCommandStatusCmd>(QString("T-1")).written(R"(["T-1"])")};
    facts.answers = answers();
    return facts;
}

} // namespace

TEST(GetCommandStatusCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetCommandStatusCmd, hasANullTicketAtFirst)
{
    EXPECT_TRUE(GetCommandStatusCmd().ticketID().isNull());
}

TEST(GetCommandStatusCmd, comesFromTheFactoryInBothForms)
{
    Value value = arrayOf("T-1");
    const Made commandOfValue(ProtoCommandList::getProtoCommand("GET_CMD_STATUS", value, nullptr));
    EXPECT_EQ(dynamic_cast<const GetCommandStatusCmd &>(*commandOfValue).ticketID(), "T-1");
    const Made commandOfList(ProtoCommandList::getProtoCommand("GET_CMD_STATUS", List{"T-2"}, nullptr));
    EXPECT_EQ(dynamic_cast<const GetCommandStatusCmd &>(*commandOfList).ticketID(), "T-2");
    Value number = arrayOf(5);
    expectRefusal("DE00371", noTicket, ofValue,
                  [&] { ProtoCommandList::getProtoCommand("GET_CMD_STATUS", number, nullptr); });
    expectRefusal("DE00371", noTicket, ofList,
                  [] { ProtoCommandList::getProtoCommand("GET_CMD_STATUS", List{5}, nullptr); });
}
