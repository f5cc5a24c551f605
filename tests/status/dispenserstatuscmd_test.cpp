// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatuscmd.h"

#include "base/asyncanswer.h"
#include "base/outofmemory.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"
#include "status/statustesting.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_version.h>

#include <limits>
#include <memory>
#include <type_traits>

namespace {

using namespace testing_status;

constexpr char ofValue[] = "DispenserStatusCmd::DispenserStatusCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "DispenserStatusCmd::DispenserStatusCmd(QList<QVariant>)";
constexpr char ofBase[] =
    "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char noPosition[] = "Position ID: expected INT parameter";
constexpr char notCreated[] = "Failed to create DispenserStatusAnswer";

const DispenserStatusAnswer *answerOf(const ProtoCommand &command)
{
    return dynamic_cast<const DispenserStatusAnswer *>(command.getProtoAnswer());
}

Value envelope(int retCode, const Value &result)
{
    Value value;
    value["ret_code"] = retCode;
    value["info"] = "as it went";
    value["ret_value"] = result;
    value["errors"] = arrayOf();
    value["exec_time"] = 12;
    return value;
}

// ---------------------------------------------------------------- construction

TEST(DispenserStatusCmd, asksForTheWholeMachineUnlessToldOtherwise)
{
    for (const DispenserStatusCmd &command :
         {DispenserStatusCmd(), DispenserStatusCmd(List()), DispenserStatusCmd(arrayOf())}) {
        EXPECT_EQ(command.command(), "GET_STATUS");
        EXPECT_EQ(command.protoType(), 1);
        EXPECT_EQ(command.moduleID(), 0);
        EXPECT_EQ(command.parameters(), List{0});
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[0]");
        EXPECT_FALSE(command.machine());
        EXPECT_FALSE(command.getProtoAnswer());
        EXPECT_FALSE(command.getXmlRpcAnswer());
    }
}

TEST(DispenserStatusCmd, isTheFirstRowOfTheCatalogue)
{
    const CMD_STRUCT *row = ProtoCommandList::row(DispenserStatusCmd().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, 0);
    EXPECT_EQ(row->code, "0006");
}

TEST(DispenserStatusCmd, takesAPosition)
{
    for (int position :
         {0, 1, 17, 245, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        for (const DispenserStatusCmd &command :
             {DispenserStatusCmd(position), DispenserStatusCmd(List{position}),
              DispenserStatusCmd(arrayOf(position))}) {
            EXPECT_EQ(command.moduleID(), position);
            EXPECT_EQ(command.parameters(), List{position});
            EXPECT_EQ(command.parameters().constFirst().userType(), static_cast<int>(QMetaType::Int));
            bool ok = false;
            EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), '[' + std::to_string(position) + ']');
            EXPECT_TRUE(ok);
        }
    }
}

TEST(DispenserStatusCmd, takesWholeNumbersOfAnyWidthInAList)
{
    EXPECT_EQ(DispenserStatusCmd(List{7LL}).moduleID(), 7);
    EXPECT_EQ(DispenserStatusCmd(List{7U}).moduleID(), 7);
    EXPECT_EQ(DispenserStatusCmd(List{7ULL}).moduleID(), 7);
    EXPECT_EQ(DispenserStatusCmd(List{-2147483648LL}).moduleID(), std::numeric_limits<int>::min());
}

TEST(DispenserStatusCmd, refusesAPositionThatIsNoInteger)
{
    const std::vector<Value> values = {Value(true),
                                       Value(7.0),
                                       Value(7.5),
                                       Value("7"),
                                       Value(""),
                                       arrayOf(7),
                                       structOf({{"position", Value(7)}}),
                                       structOf({}),
                                       arrayOf()};
    for (const Value &bad : values) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00298", noPosition, ofValue,
                      [&] { const DispenserStatusCmd command(arrayOf(bad)); });
    }
    const List variants = {true,
                           7.0,
                           7.5,
                           QStringLiteral("7"),
                           QString(),
                           QVariant(),
                           List{7},
                           QStringList{"7"},
                           QVariantMap{{"position", 7}},
                           QByteArray("7"),
                           QVariant::fromValue(QList<int>{7}),
                           2147483648LL,
                           -2147483649LL,
                           4294967295U,
                           18446744073709551615ULL};
    for (const QVariant &bad : variants) {
        SCOPED_TRACE(bad.typeName());
        expectRefusal("DE00300", noPosition, ofList, [&] { const DispenserStatusCmd command(List{bad}); });
    }
}

TEST(DispenserStatusCmd, readsNoMoreThanThePosition)
{
    EXPECT_EQ(DispenserStatusCmd(arrayOf(7, "rest", true)).moduleID(), 7);
    EXPECT_EQ(DispenserStatusCmd(List{7, QStringLiteral("rest"), true}).moduleID(), 7);
    EXPECT_EQ(DispenserStatusCmd(List{7, 8}).parameters(), List{7});
}

TEST(DispenserStatusCmd, refusesWhatIsNoArray)
{
    for (const Value &value : {Value(7), Value(true), Value("7"), structOf({{"position", Value(7)}})}) {
        expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                      [&] { const DispenserStatusCmd command(value); });
    }
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [] { const DispenserStatusCmd command{Value()}; });
}

TEST(DispenserStatusCmd, doesNotMistakeOtherArgumentsForAPosition)
{
    static_assert(!std::is_constructible_v<DispenserStatusCmd, bool>);
    static_assert(!std::is_constructible_v<DispenserStatusCmd, double>);
    static_assert(!std::is_constructible_v<DispenserStatusCmd, const char *>);
    static_assert(std::is_constructible_v<DispenserStatusCmd, int>);
    static_assert(!std::is_convertible_v<int, DispenserStatusCmd>);
}

TEST(DispenserStatusCmd, goesBackToItsDefaults)
{
    DispenserStatusCmd command(17);
    command.setDefaults();
    EXPECT_EQ(command.moduleID(), 0);
    EXPECT_EQ(command.command(), "GET_STATUS");
    EXPECT_EQ(command.protoType(), 1);
}

TEST(DispenserStatusCmd, addressesAnotherModule)
{
    DispenserStatusCmd command;
    EXPECT_TRUE(command.setModuleID(5));
    EXPECT_EQ(command.moduleID(), 5);
    EXPECT_EQ(command.parameters(), List{5});
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[5]");
}

TEST(DispenserStatusCmd, copiesDeeply)
{
    DispenserStatusCmd command(17);
    ASSERT_TRUE(command.setSerialAnswer(idleTokens(), nullptr));
    const DispenserStatusCmd copy(command);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    EXPECT_TRUE(dynamic_cast<DispenserStatusCmd *>(clone.get()));
    for (const ProtoCommand *same :
         {static_cast<const ProtoCommand *>(&copy), static_cast<const ProtoCommand *>(clone.get())}) {
        EXPECT_EQ(same->command(), "GET_STATUS");
        EXPECT_EQ(same->parameters(), List{17});
        ASSERT_TRUE(answerOf(*same));
        EXPECT_NE(same->getProtoAnswer(), command.getProtoAnswer());
        EXPECT_EQ(*answerOf(*same), *answerOf(command));
    }
    command.clearProtoAnswer();
    EXPECT_TRUE(copy.getProtoAnswer());
}

// ---------------------------------------------------------------- the request

TEST(DispenserStatusCmd, isWrittenAsItsNameAndThePosition)
{
    bool ok = false;
    EXPECT_EQ(dumped(DispenserStatusCmd(7).toXmlRpcValue(QString(), &ok)), R"(["GET_STATUS", 7])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(DispenserStatusCmd().toXmlRpcValue("user")), R"(["user", "GET_STATUS", 0])");
}

TEST(DispenserStatusCmd, sendsNoParametersToTheFirmware)
{
    for (int family : {0, 1, 2, 3}) {
        EXPECT_EQ(DispenserStatusCmd().serialParameters(family), QList<int>());
        EXPECT_EQ(DispenserStatusCmd(17).serialParameters(family), QList<int>());
    }
}

TEST(DispenserStatusCmd, isKnownToEveryFirmwareAndTakesNoTime)
{
    const DispenserStatusCmd command(7);
    const FW_Dispenser dispenser;
    EXPECT_TRUE(command.isSupportedCommand(FW_Version()));
    EXPECT_TRUE(command.isSupportedCommand(FW_Version(63, 38)));
    EXPECT_TRUE(command.isSupportedCommand(FW_Version(1, 0)));
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&dispenser), 0);
}

TEST(DispenserStatusCmd, goesOnSilently)
{
    const DispenserStatusCmd command(7);
    EXPECT_EQ(command.commandString(), QString());
    for (bool detailed : {false, true}) {
        EXPECT_EQ(command.actionString(detailed).m_text, QString());
        EXPECT_EQ(command.actionString(detailed).m_translated, QString());
    }
}

// ---------------------------------------------------------------- answers

TEST(DispenserStatusCmd, takesTheFirmwaresAnswer)
{
    DispenserStatusCmd command;
    FW_DriverError error;
    QStringList tokens = idleTokens();
    tokens[3] = "4";
    EXPECT_TRUE(command.setSerialAnswer(tokens, &error));
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(setFlags(*answerOf(command)), (std::set<std::string>{"normal_wm", "tinting"}));
    EXPECT_EQ(error.code(), "");

    tokens[3] = "8"; // a second answer takes the place of the first
    EXPECT_TRUE(command.buildProtoAnswer(tokens, nullptr));
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(setFlags(*answerOf(command)), (std::set<std::string>{"normal_wm", "recirculating"}));
    EXPECT_FALSE(command.getXmlRpcAnswer());
}

TEST(DispenserStatusCmd, takesAListAsAClearedStatus)
{
    DispenserStatusCmd command;
    List list = {1, true};
    FW_DriverError error;
    EXPECT_TRUE(command.buildProtoAnswer(list, &error));
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(*answerOf(command), DispenserStatusAnswer());
    command.clearProtoAnswer();
    EXPECT_TRUE(command.setAnswer(list, &error));
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(*answerOf(command), DispenserStatusAnswer());
    EXPECT_EQ(list, (List{1, true}));
    EXPECT_EQ(error.code(), "");
}

TEST(DispenserStatusCmd, takesAStruct)
{
    Value value = idleStruct();
    value["cleaning"] = true;
    DispenserStatusCmd command;
    FW_DriverError error;
    EXPECT_TRUE(command.buildProtoAnswer(value, &error));
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(setFlags(*answerOf(command)), (std::set<std::string>{"normal_wm", "cleaning"}));
    EXPECT_EQ(error.code(), "");
}

TEST(DispenserStatusCmd, storesTheSerialSideOfTheAnswer)
{
    DispenserStatusCmd command;
    ASSERT_TRUE(command.setSerialAnswer(idleTokens(), nullptr));
    bool ok = false;
    const auto *serial = dynamic_cast<const SerialProtoAnswer *>(command.getProtoAnswer(&ok));
    EXPECT_TRUE(ok);
    ASSERT_TRUE(serial);
    EXPECT_EQ(serial->protoType(), 1);
    EXPECT_EQ(serial->serialParameters(), idleTokens().mid(1));
}

TEST(DispenserStatusCmd, takesAStatusFromAnotherCommand)
{
    DispenserStatusAnswer answer;
    answer.stirring = true;
    DispenserStatusCmd command;
    EXPECT_TRUE(command.setAnswer(static_cast<ProtoAnswer *>(&answer), nullptr, nullptr));
    ASSERT_TRUE(answerOf(command));
    EXPECT_NE(answerOf(command), &answer);
    EXPECT_TRUE(answerOf(command)->stirring);
}

TEST(DispenserStatusCmd, saysWhyAnAnswerWasRefused)
{
    DispenserStatusCmd command;
    FW_DriverError error;
    ASSERT_TRUE(command.setSerialAnswer(idleTokens(), nullptr));
    EXPECT_FALSE(command.setSerialAnswer({"6", "0", "1", "0", "x", "0", "0"}, &error));
    expectError(error, "DE00129", "Error during command answer decoding: mask 2");
    EXPECT_FALSE(command.getProtoAnswer()) << "the old answer is gone as well";
    EXPECT_FALSE(command.setSerialAnswer({}, &error));
    expectError(error, "DE00066", "Error during command answer decoding: bad length");

    ASSERT_TRUE(command.setSerialAnswer(idleTokens(), nullptr));
    EXPECT_FALSE(command.buildProtoAnswer(without(idleStruct(), "punching"), &error));
    expectError(error, "DE00026", "DispenserStatusAnswer: expected punching value");
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), &error));
    expectError(error, "DE00443", "MachineStatusAnswer: expected disp_status value");
}

TEST(DispenserStatusCmd, needsNoPlaceForTheError)
{
    DispenserStatusCmd command;
    EXPECT_FALSE(command.setSerialAnswer({}, nullptr));
    EXPECT_FALSE(command.buildProtoAnswer(Value(0), nullptr));
    EXPECT_FALSE(command.setAnswer(Value(0), false, nullptr));
    EXPECT_FALSE(command.setAnswer(envelope(0, Value(0)), false, nullptr));
    EXPECT_FALSE(command.getProtoAnswer());
}

TEST(DispenserStatusCmd, saysThatAnAnswerCouldNotBeMade)
{
    DispenserStatusCmd command;
    const QStringList tokens = idleTokens();
    const Value value = idleStruct();
    const Value whole = envelope(0, idleStruct());
    const Value ticket = envelope(0, structOf({{"ticket_id", Value("T7")}}));
    List list;
    FW_DriverError error;
    const auto expectFailure = [&](const char *code, auto work) {
        SCOPED_TRACE(code);
        ASSERT_TRUE(command.setSerialAnswer(tokens, nullptr));
        ASSERT_TRUE(work(&error));
        EXPECT_FALSE(outOfMemoryOnce([&] { return work(&error); }));
        expectError(error, code, notCreated);
        EXPECT_FALSE(command.getProtoAnswer());
        EXPECT_FALSE(outOfMemoryOnce([&] { return work(nullptr); }));
    };
    expectFailure("DE00097", [&](FW_DriverError *e) { return command.buildProtoAnswer(tokens, e); });
    expectFailure("DE00097", [&](FW_DriverError *e) { return command.setSerialAnswer(tokens, e); });
    expectFailure("DE01266", [&](FW_DriverError *e) { return command.buildProtoAnswer(value, e); });
    expectFailure("DE01267", [&](FW_DriverError *e) { return command.buildProtoAnswer(list, e); });
    expectFailure("DE01267", [&](FW_DriverError *e) { return command.setAnswer(list, e); });
    expectFailure("DE00027", [&](FW_DriverError *e) { return command.setAnswer(whole, false, e); });
    expectFailure("DE00027", [&](FW_DriverError *e) { return command.setAnswer(ticket, true, e); });
}

// ---------------------------------------------------------------- envelopes

TEST(DispenserStatusCmd, takesAnEnvelope)
{
    Value result = idleStruct();
    result["tinting"] = true;
    DispenserStatusCmd command;
    FW_DriverError error;
    EXPECT_TRUE(command.setAnswer(envelope(0, result), false, &error));
    ASSERT_TRUE(command.getXmlRpcAnswer());
    EXPECT_EQ(command.getXmlRpcAnswer()->retCode(), 0);
    EXPECT_EQ(command.getXmlRpcAnswer()->infoMsg(), "as it went");
    EXPECT_EQ(command.getXmlRpcAnswer()->executionTime(), 12);
    ASSERT_TRUE(answerOf(command));
    EXPECT_EQ(setFlags(*answerOf(command)), (std::set<std::string>{"normal_wm", "tinting"}));
    EXPECT_EQ(error.code(), "");
}

TEST(DispenserStatusCmd, takesAnEnvelopeOfAFailureWithoutAnAnswer)
{
    DispenserStatusCmd command;
    ASSERT_TRUE(command.setSerialAnswer(idleTokens(), nullptr));
    for (bool async : {false, true}) {
        for (int retCode : {4, 1, -1}) {
            FW_DriverError error;
            EXPECT_TRUE(command.setAnswer(envelope(retCode, Value(0)), async, &error));
            EXPECT_FALSE(command.getProtoAnswer());
            ASSERT_TRUE(command.getXmlRpcAnswer());
            EXPECT_EQ(command.getXmlRpcAnswer()->retCode(), retCode);
            EXPECT_EQ(error.code(), "");
        }
    }
}

TEST(DispenserStatusCmd, takesATicket)
{
    DispenserStatusCmd command;
    FW_DriverError error;
    EXPECT_TRUE(command.setAnswer(envelope(0, structOf({{"ticket_id", Value("T7")}})), true, &error));
    const auto *ticket = dynamic_cast<const AsyncAnswer *>(command.getProtoAnswer());
    ASSERT_TRUE(ticket);
    EXPECT_EQ(ticket->ticketID(), "T7");
    EXPECT_TRUE(command.getXmlRpcAnswer());

    EXPECT_FALSE(command.setAnswer(envelope(0, idleStruct()), true, &error)) << "a status is no ticket";
    EXPECT_EQ(error.code(), "DE00573");
    EXPECT_FALSE(command.getProtoAnswer());
}

TEST(DispenserStatusCmd, refusesAnEnvelopeThatIsNone)
{
    DispenserStatusCmd command;
    ASSERT_TRUE(command.setAnswer(envelope(0, idleStruct()), false, nullptr));
    FW_DriverError error;
    EXPECT_FALSE(command.setAnswer(Value(7), false, &error));
    expectError(error, "DE00355", "XmlRpcAnswer: expected struct type for xmlrpc type");
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.getXmlRpcAnswer());

    EXPECT_FALSE(command.setAnswer(without(envelope(0, idleStruct()), "ret_code"), false, &error));
    expectError(error, "DE00357", "XmlRpcAnswer: expected ret_code value");
}

TEST(DispenserStatusCmd, keepsTheEnvelopeOfAStatusThatWasRefused)
{
    DispenserStatusCmd command;
    FW_DriverError error;
    EXPECT_FALSE(command.setAnswer(envelope(0, without(idleStruct(), "hw_error")), false, &error));
    expectError(error, "DE00026", "MachineStatusAnswer: expected hw_error value");
    EXPECT_FALSE(command.getProtoAnswer());
    ASSERT_TRUE(command.getXmlRpcAnswer());
    EXPECT_EQ(command.getXmlRpcAnswer()->retCode(), 0);
}

} // namespace
