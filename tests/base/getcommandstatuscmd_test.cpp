// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcommandstatuscmd.h"

#include "base/basetesting.h"
#include "base/getcommandstatusanswer.h"
#include "base/outofmemory.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <memory>

using namespace testing_base;

namespace {

constexpr char noTicket[] = "GetCommandStatusCmd: expected String type parameter";
constexpr char answerFailed[] = "Failed to create GetCommandStatusAnswer";

Value envelope(int retCode, const Value &value)
{
    return structOf(
        {{"ret_code", retCode}, {"info", "as told"}, {"ret_value", value}, {"errors", arrayOf()}});
}

Value filling()
{
    return CmdStatus(1, 2500, 40, "Filling").toXmlRpcValue();
}

void expectTicket(const ProtoCommand *command, const char *ticket)
{
    const auto *request = dynamic_cast<const GetCommandStatusCmd *>(command);
    ASSERT_NE(request, nullptr);
    EXPECT_EQ(request->command(), "GET_CMD_STATUS");
    EXPECT_EQ(request->ticketID(), ticket);
}

int percentageOf(const ProtoCommand &command)
{
    const auto *answer = dynamic_cast<const GetCommandStatusAnswer *>(command.getProtoAnswer());
    return answer ? answer->cmdStatus().percentage() : -1;
}

} // namespace

TEST(GetCommandStatusCmd, AsksForATicket)
{
    const GetCommandStatusCmd empty;
    EXPECT_EQ(empty.command(), "GET_CMD_STATUS");
    EXPECT_EQ(empty.protoType(), 2);
    EXPECT_TRUE(empty.ticketID().isNull());
    expectTicket(std::make_unique<GetCommandStatusCmd>(QString("T-1")).get(), "T-1");
    expectTicket(std::make_unique<GetCommandStatusCmd>(arrayOf("T-2", 5)).get(), "T-2");
    expectTicket(std::make_unique<GetCommandStatusCmd>(List{"T-3", 5}).get(), "T-3");
}

TEST(GetCommandStatusCmd, WritesTheTicket)
{
    const GetCommandStatusCmd command(QString("T-1"));
    EXPECT_EQ(command.parameters(), List{"T-1"});
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), R"(["T-1"])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(command.toXmlRpcValue("key")), R"(["key", "GET_CMD_STATUS", "T-1"])");
}

TEST(GetCommandStatusCmd, RefusesATicketThatIsNoText)
{
    for (const Value &value : {arrayOf(5), arrayOf(true), arrayOf(arrayOf("T")), arrayOf(5, "T")})
        expectRefusal("DE00371", noTicket,
                      "GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue&)",
                      [&] { GetCommandStatusCmd{value}; });
    for (const List &list : {List{5}, List{QVariant()}, List{5, "T"}})
        expectRefusal("DE00371", noTicket, "GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant>)",
                      [&] { GetCommandStatusCmd{list}; });
}

TEST(GetCommandStatusCmd, RefusesOtherFormsAsAllCommandsDo)
{
    const auto expectCode = [](const char *code, auto make) {
        try {
            make();
            ADD_FAILURE() << "nothing was refused";
        } catch (const FW_Exception &refusal) {
            EXPECT_EQ(refusal.code(), code);
        }
    };
    expectCode("DE00571", [] { GetCommandStatusCmd{Value()}; });
    expectCode("DE00311", [] { GetCommandStatusCmd{Value("T-1")}; });
    expectCode("DE00312", [] { GetCommandStatusCmd{arrayOf()}; });
    expectCode("DE00313", [] { GetCommandStatusCmd{List()}; });
}

TEST(GetCommandStatusCmd, ComesFromTheFactoryInBothForms)
{
    Value value = arrayOf("T-1");
    const std::unique_ptr<ProtoCommand> ofValue(
        ProtoCommandList::getProtoCommand("GET_CMD_STATUS", value, nullptr));
    expectTicket(ofValue.get(), "T-1");
    const std::unique_ptr<ProtoCommand> ofList(
        ProtoCommandList::getProtoCommand("GET_CMD_STATUS", List{"T-2"}, nullptr));
    expectTicket(ofList.get(), "T-2");
    Value number = arrayOf(5);
    expectRefusal("DE00371", noTicket, "GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue&)",
                  [&] { ProtoCommandList::getProtoCommand("GET_CMD_STATUS", number, nullptr); });
    expectRefusal("DE00371", noTicket, "GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant>)",
                  [] { ProtoCommandList::getProtoCommand("GET_CMD_STATUS", List{5}, nullptr); });
}

TEST(GetCommandStatusCmd, BuildsItsAnswer)
{
    GetCommandStatusCmd command(QString("T-1"));
    FW_DriverError error;
    EXPECT_TRUE(command.buildProtoAnswer(filling(), &error));
    EXPECT_EQ(percentageOf(command), 40);

    List list = {QVariant::fromValue(CmdStatus(1, 0, 55, QString()))};
    EXPECT_TRUE(command.buildProtoAnswer(list, &error));
    EXPECT_EQ(percentageOf(command), 55);
    list = {QVariant::fromValue(CmdStatus(1, 0, 56, QString()))};
    EXPECT_TRUE(command.setAnswer(list, &error));
    EXPECT_EQ(percentageOf(command), 56);
    EXPECT_EQ(error.code(), QString());
}

TEST(GetCommandStatusCmd, TellsWhyThereIsNoAnswer)
{
    GetCommandStatusCmd command(QString("T-1"));
    FW_DriverError error;
    List list;
    ASSERT_TRUE(command.buildProtoAnswer(filling(), nullptr));
    EXPECT_FALSE(command.buildProtoAnswer(Value(5), &error));
    expectError(error, "DE00374", "GetCommandStatusAnswer decoding failed: invalid xml-rpc value");
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    EXPECT_FALSE(command.buildProtoAnswer(list, &error));
    expectError(error, "DE00375", "GetCommandStatusAnswer decoding failed: invalid QVariant value");

    const Value status = filling();
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(status, &error); }));
    expectError(error, "DE01284", answerFailed);
    error = FW_DriverError();
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(list, &error); }));
    expectError(error, "DE01284", answerFailed);
}

TEST(GetCommandStatusCmd, TakesItsAnswerOutOfAnEnvelope)
{
    GetCommandStatusCmd command(QString("T-1"));
    FW_DriverError error;
    const Value good = envelope(0, filling());
    EXPECT_TRUE(command.setAnswer(good, false, &error));
    EXPECT_EQ(percentageOf(command), 40);
    ASSERT_NE(command.getXmlRpcAnswer(), nullptr);
    EXPECT_EQ(command.getXmlRpcAnswer()->infoMsg(), "as told");

    EXPECT_TRUE(command.setAnswer(envelope(4, filling()), false, &error));
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    EXPECT_TRUE(command.setAnswer(envelope(0, structOf({{"ticket_id", "T-2"}})), true, &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "AsyncAnswer");
    EXPECT_EQ(error.code(), QString());

    EXPECT_FALSE(command.setAnswer(envelope(0, Value(5)), false, &error));
    expectError(error, "DE00374", "GetCommandStatusAnswer decoding failed: invalid xml-rpc value");
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(good, false, &error); }));
    expectError(error, "DE00372", answerFailed);
}

TEST(GetCommandStatusCmd, ClonesAreOfItsClass)
{
    GetCommandStatusCmd command(QString("T-1"));
    ASSERT_TRUE(command.buildProtoAnswer(filling(), nullptr));
    const std::unique_ptr<ProtoCommand> copy(static_cast<const ProtoCommand &>(command).clone());
    expectTicket(copy.get(), "T-1");
    EXPECT_NE(copy->getProtoAnswer(), command.getProtoAnswer());
    command.clearProtoAnswer();
    EXPECT_EQ(percentageOf(*copy), 40);
}
