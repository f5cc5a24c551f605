// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/answercontract.h"

#include "base/asyncanswer.h"
#include "base/basetesting.h"
#include "base/outofmemory.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_error.h>

using namespace testing_base;

namespace {

constexpr char answerText[] = "Failed to create answer";
constexpr char invalidText[] = "ProtoAnswer decoding failed: invalid xml-rpc type";
constexpr char invalidFunction[] = "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)";

using Counted = CountedAnswer<ProtoAnswer>;

Value envelope(int retCode, const Value &value)
{
    return structOf(
        {{"ret_code", retCode}, {"info", "as told"}, {"ret_value", value}, {"errors", arrayOf()}});
}

/** Gives the command an answer, so that it can be seen to go. */
void holdAnswer(ProtoCommand &command)
{
    const Counted answer(1);
    command.setProtoAnswer(const_cast<Counted *>(&answer));
    ASSERT_EQ(className(command.getProtoAnswer()), "testing_base::CountedAnswer<ProtoAnswer>");
    ASSERT_EQ(Counted::alive, 2);
}

void expectNoAnswer(const ProtoCommand &command)
{
    bool ok = true;
    EXPECT_EQ(command.getProtoAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    EXPECT_EQ(Counted::alive, 0);
}

void expectAnswerOf(const ProtoCommand &command, const char *answerClass)
{
    bool ok = false;
    EXPECT_EQ(className(command.getProtoAnswer(&ok)), answerClass);
    EXPECT_TRUE(ok);
    EXPECT_EQ(Counted::alive, 0) << "the answer before must be deleted";
}

void expectSetters(ProtoCommand &command)
{
    Counted answer(5);
    command.setProtoAnswer(&answer);
    answer.m_number = 6;
    ASSERT_NE(command.getProtoAnswer(), nullptr);
    EXPECT_NE(command.getProtoAnswer(), &answer);
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "5");
    EXPECT_EQ(Counted::alive, 2);

    command.setProtoAnswer(&answer);
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "6");
    EXPECT_EQ(Counted::alive, 2);

    command.setProtoAnswer(command.getProtoAnswer()); // its own
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "6");
    EXPECT_EQ(Counted::alive, 2);

    command.setProtoAnswer(nullptr);
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    EXPECT_EQ(Counted::alive, 1);

    for (const Failure failure : {Failure::OfFramework, Failure::OfStandard, Failure::OfNoClass}) {
        UncopyableAnswer<ProtoAnswer> uncopyable(failure);
        command.setProtoAnswer(&answer);
        EXPECT_NO_THROW(command.setProtoAnswer(&uncopyable));
        EXPECT_EQ(command.getProtoAnswer(), nullptr);
    }
}

void expectBuildFromValue(ProtoCommand &command, const AnswerContract &contract)
{
    const Value value(12);
    FW_DriverError error;
    holdAnswer(command);
    EXPECT_TRUE(command.buildProtoAnswer(value, &error));
    EXPECT_EQ(error.code(), QString());
    expectAnswerOf(command, contract.answerClass);
    EXPECT_TRUE(command.buildProtoAnswer(value, nullptr));

    holdAnswer(command);
    EXPECT_FALSE(command.buildProtoAnswer(Value(), &error));
    expectError(error, "DE00909", invalidText);
    EXPECT_EQ(error.function(), invalidFunction);
    expectNoAnswer(command);
    EXPECT_FALSE(command.buildProtoAnswer(Value(), nullptr));

    holdAnswer(command);
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(value, &error); }));
    expectError(error, contract.valueCode, answerText);
    expectNoAnswer(command);
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(value, nullptr); }));
}

void expectBuildFromList(ProtoCommand &command, const AnswerContract &contract)
{
    List list = {1, "two"};
    FW_DriverError error;
    holdAnswer(command);
    EXPECT_TRUE(command.buildProtoAnswer(list, &error));
    expectAnswerOf(command, contract.answerClass);
    holdAnswer(command);
    EXPECT_TRUE(command.setAnswer(list, &error));
    expectAnswerOf(command, contract.answerClass);
    EXPECT_TRUE(command.setAnswer(list, nullptr));
    EXPECT_EQ(error.code(), QString());
    EXPECT_EQ(list, (List{1, "two"}));

    holdAnswer(command);
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.buildProtoAnswer(list, &error); }));
    expectError(error, contract.listCode, answerText);
    expectNoAnswer(command);
    error = FW_DriverError();
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(list, &error); }));
    expectError(error, contract.listCode, answerText);
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(list, nullptr); }));
}

void expectEnvelope(ProtoCommand &command, const AnswerContract &contract)
{
    FW_DriverError error;
    holdAnswer(command);
    EXPECT_TRUE(command.setAnswer(envelope(0, Value(12)), false, &error));
    expectAnswerOf(command, contract.answerClass);
    bool ok = false;
    const XmlRpcAnswer *stored = command.getXmlRpcAnswer(&ok);
    EXPECT_TRUE(ok);
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(stored->retCode(), 0);
    EXPECT_EQ(stored->infoMsg(), "as told");
    EXPECT_EQ(dumped(stored->xmlrpcRetValue()), "12");

    // the return code refuses: the envelope stands alone, with and without a ticket asked for
    for (const int retCode : {4, -1}) {
        for (const bool async : {false, true}) {
            holdAnswer(command);
            EXPECT_TRUE(command.setAnswer(envelope(retCode, structOf({{"ticket_id", "T"}})), async, nullptr));
            expectNoAnswer(command);
            ASSERT_NE(command.getXmlRpcAnswer(), nullptr);
            EXPECT_EQ(command.getXmlRpcAnswer()->retCode(), retCode);
        }
    }

    EXPECT_TRUE(command.setAnswer(envelope(0, structOf({{"ticket_id", "T-17"}})), true, &error));
    expectAnswerOf(command, "AsyncAnswer");
    EXPECT_EQ(dynamic_cast<const AsyncAnswer &>(*command.getProtoAnswer()).ticketID(), "T-17");
    EXPECT_EQ(error.code(), QString());

    // what is taken of the stored envelope may be told again
    EXPECT_TRUE(command.setAnswer(envelope(0, envelope(0, Value(13))), false, &error));
    EXPECT_TRUE(command.setAnswer(command.getXmlRpcAnswer()->xmlrpcRetValue(), false, &error));
    EXPECT_EQ(dumped(command.getXmlRpcAnswer()->xmlrpcRetValue()), "13");
    EXPECT_TRUE(command.buildProtoAnswer(command.getXmlRpcAnswer()->xmlrpcRetValue(), &error));
    expectAnswerOf(command, contract.answerClass);
}

void expectEnvelopeFailures(ProtoCommand &command, const AnswerContract &contract)
{
    const Value good = envelope(0, Value(12));
    FW_DriverError error;

    EXPECT_TRUE(command.setAnswer(good, false, nullptr));
    holdAnswer(command);
    EXPECT_FALSE(command.setAnswer(Value(5), false, &error));
    expectError(error, "DE00355", "XmlRpcAnswer: expected struct type for xmlrpc type");
    EXPECT_EQ(error.function(), "XmlRpcAnswer::XmlRpcAnswer(const XmlRpc::XmlRpcValue&)");
    expectNoAnswer(command);
    bool ok = true;
    EXPECT_EQ(command.getXmlRpcAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    EXPECT_FALSE(command.setAnswer(Value(5), false, nullptr));

    // a good envelope around a bad answer stays, to be read
    holdAnswer(command);
    EXPECT_FALSE(command.setAnswer(envelope(0, Value()), false, &error));
    expectError(error, "DE00909", invalidText);
    expectNoAnswer(command);
    EXPECT_NE(command.getXmlRpcAnswer(), nullptr);

    holdAnswer(command);
    EXPECT_FALSE(command.setAnswer(envelope(0, structOf({{"ticket", "T"}})), true, &error));
    expectError(error, "DE00573", "AsyncAnswer decoding failed: invalid xml-rpc value");
    expectNoAnswer(command);
    EXPECT_NE(command.getXmlRpcAnswer(), nullptr);

    for (const bool async : {false, true}) {
        holdAnswer(command);
        EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(good, async, &error); }));
        expectError(error, contract.envelopeCode, contract.envelopeText);
        expectNoAnswer(command);
        EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(good, async, nullptr); }));
    }
}

void expectHandedAnswer(ProtoCommand &command, const AnswerContract &contract)
{
    FW_DriverError error;
    ProtoCommand unread;
    {
        Counted answer(7);
        EXPECT_TRUE(command.setAnswer(&answer, &unread, &error));
        answer.m_number = 8;
        EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "7");
    }
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_TRUE(command.setAnswer(command.getProtoAnswer(), nullptr, nullptr)); // its own
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "7");
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(error.code(), QString());

    EXPECT_FALSE(command.setAnswer(static_cast<ProtoAnswer *>(nullptr), &unread, &error));
    expectError(error, contract.nullCode, answerText);
    expectNoAnswer(command);
    EXPECT_FALSE(command.setAnswer(static_cast<ProtoAnswer *>(nullptr), nullptr, nullptr));

    for (const Failure failure : {Failure::OfStandard, Failure::OfNoClass}) {
        UncopyableAnswer<ProtoAnswer> uncopyable(failure);
        error = FW_DriverError();
        holdAnswer(command);
        EXPECT_FALSE(command.setAnswer(&uncopyable, nullptr, &error));
        expectError(error, contract.cloneCode, answerText);
        expectNoAnswer(command);
        EXPECT_FALSE(command.setAnswer(&uncopyable, nullptr, nullptr));
    }
    UncopyableAnswer<ProtoAnswer> uncopyable(Failure::OfFramework);
    holdAnswer(command);
    EXPECT_FALSE(command.setAnswer(&uncopyable, nullptr, &error));
    expectError(error, "DE09999", "Not to be copied");
    EXPECT_EQ(error.function(), "UncopyableAnswer::clone()");
    expectNoAnswer(command);
}

} // namespace

void expectAnswerContract(ProtoCommand &command, const AnswerContract &contract)
{
    expectSetters(command);
    expectBuildFromValue(command, contract);
    expectBuildFromList(command, contract);
    expectEnvelope(command, contract);
    expectEnvelopeFailures(command, contract);
    expectHandedAnswer(command, contract);
}
