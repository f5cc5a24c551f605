// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/answercontract.h"

#include "base/asyncanswer.h"
#include "base/missingfacts.h"
#include "base/outofmemory.h"
#include "base/serialprotocommand.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_error.h>

#include <regex>

namespace testing_base {

namespace {

constexpr char notMade[] = "Failed to create answer";

using Counted = CountedAnswer<ProtoAnswer>;

Value ticket(const char *member)
{
    return envelope(0, structOf({{member, "T-17"}}));
}

// ---------------------------------------------------------------- what is known of the base classes

AnswerFacts baseAnswers(const char *answerClass, const char *valueCode, const char *listCode)
{
    AnswerFacts facts;
    facts.value = {answerClass, Value(12), "0"};
    facts.value.failsWith(valueCode, notMade)
        .refuses(Value(), "DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                 "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)");
    facts.list = {answerClass, List{1, "two"}, "0"};
    facts.list.failsWith(listCode, notMade).refusesNothing();
    return facts;
}

// ---------------------------------------------------------------- no fact is left out

void require(MissingFacts &missing, const CodeAndText &failure)
{
    missing.require(!failure.code.empty() && !failure.text.empty(), "code and text of a failure");
}

template <class Source>
void require(MissingFacts &missing, const char *form, const AnswerForm<Source> &facts)
{
    SCOPED_TRACE(form);
    missing.require(!facts.answerClass.empty(), "the class of the answer");
    missing.require(!facts.written.empty(), "how the answer is written");
    missing.require(facts.wrong.empty() == facts.takesAnything, "what is refused, or that nothing is");
    require(missing, facts.failure);
    for (const auto &wrong : facts.wrong) {
        missing.require(!wrong.function.empty(), "the function that refuses");
        require(missing, wrong.refusal);
    }
}

MissingFacts missingFacts(const ProtoCommand &command, const AnswerFacts &facts)
{
    MissingFacts missing;
    const bool isSerial = dynamic_cast<const SerialProtoCommand *>(&command) != nullptr;
    missing.require(facts.tokens.has_value() == isSerial, "tokens of a serial command, and of no other");
    if (facts.tokens)
        require(missing, "tokens", *facts.tokens);
    require(missing, "value", facts.value);
    require(missing, "list", facts.list);
    require(missing, facts.envelope);
    missing.require(!facts.nullCode.empty() && !facts.cloneCode.empty(), "the codes of a ready answer");
    return missing;
}

// ---------------------------------------------------------------- what a command holds

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
    EXPECT_EQ(Counted::alive, 0) << "the answer before must be deleted";
}

void expectAnswerOf(const ProtoCommand &command, const std::string &answerClass)
{
    bool ok = false;
    EXPECT_EQ(className(command.getProtoAnswer(&ok)), answerClass);
    EXPECT_TRUE(ok);
    EXPECT_EQ(Counted::alive, 0) << "the answer before must be deleted";
}

std::string withoutTimes(const std::string &dump)
{
    static const std::regex time("\"timestamp\": \"[^\"]+\"");
    return std::regex_replace(dump, time, "\"timestamp\": \"now\"");
}

template <class Source>
void expectAnswerOf(const ProtoCommand &command, const AnswerForm<Source> &facts)
{
    expectAnswerOf(command, facts.answerClass);
    if (command.getProtoAnswer()) {
        const std::string written = dumped(command.getProtoAnswer()->toXmlRpcValue());
        EXPECT_EQ(facts.tellsMoment ? withoutTimes(written) : written, facts.written);
    }
}

// ---------------------------------------------------------------- operations that take an answer

/** Expects that \a take makes the answer, with and without a place for an error, in the place of the one before. */
template <class Source, class Take>
void expectTaken(ProtoCommand &command, const AnswerForm<Source> &facts, Take take)
{
    FW_DriverError error;
    holdAnswer(command);
    EXPECT_TRUE(take(facts.right, &error));
    expectError(error, "", "");
    expectAnswerOf(command, facts);
    command.clearProtoAnswer();
    EXPECT_TRUE(take(facts.right, nullptr));
    expectAnswerOf(command, facts);
}

/** Expects that \a fail fails with the error and leaves no answer, with and without a place for the error. */
template <class Fail>
void expectFailed(ProtoCommand &command, const CodeAndText &failure, const std::string &function, Fail fail)
{
    SCOPED_TRACE(failure.code);
    FW_DriverError error;
    holdAnswer(command);
    EXPECT_FALSE(fail(&error));
    expectError(error, failure.code.c_str(), failure.text.c_str());
    if (!function.empty()) {
        EXPECT_EQ(error.function(), QString(function.c_str()));
    }
    expectNoAnswer(command);
    holdAnswer(command);
    EXPECT_FALSE(fail(nullptr));
    expectNoAnswer(command);
}

template <class Fail>
void expectFailedForLackOfMemory(ProtoCommand &command, const CodeAndText &failure, Fail fail)
{
    expectFailed(command, failure, "",
                 [&](FW_DriverError *error) { return outOfMemoryOnce([&] { return fail(error); }); });
}

template <class Source, class Take>
void expectForm(const char *form, ProtoCommand &command, const AnswerForm<Source> &facts, Take take)
{
    SCOPED_TRACE(form);
    expectTaken(command, facts, take);
    expectFailedForLackOfMemory(command, facts.failure,
                                [&](FW_DriverError *error) { return take(facts.right, error); });
    for (const auto &wrong : facts.wrong) {
        expectFailed(command, wrong.refusal, wrong.function,
                     [&](FW_DriverError *error) { return take(wrong.source, error); });
    }
}

void expectForms(ProtoCommand &command, const AnswerFacts &facts)
{
    if (auto *serial = dynamic_cast<SerialProtoCommand *>(&command); serial && facts.tokens) {
        expectForm("buildProtoAnswer of tokens", command, *facts.tokens,
                   [&](const QStringList &tokens, FW_DriverError *error) {
                       return serial->buildProtoAnswer(tokens, error);
                   });
        expectForm("setSerialAnswer", command, *facts.tokens,
                   [&](const QStringList &tokens, FW_DriverError *error) {
                       return serial->setSerialAnswer(tokens, error);
                   });
    }
    expectForm(
        "buildProtoAnswer of a value", command, facts.value,
        [&](const Value &value, FW_DriverError *error) { return command.buildProtoAnswer(value, error); });
    EXPECT_EQ(command.getXmlRpcAnswer(), nullptr) << "only an envelope is kept as one";

    List list;
    expectForm("buildProtoAnswer of a list", command, facts.list,
               [&](const List &given, FW_DriverError *error) {
                   list = given;
                   return command.buildProtoAnswer(list, error);
               });
    expectForm("setAnswer of a list", command, facts.list, [&](const List &given, FW_DriverError *error) {
        list = given;
        return command.setAnswer(list, error);
    });
    list = facts.list.right;
    EXPECT_TRUE(command.setAnswer(list, nullptr));
    EXPECT_EQ(list, facts.list.right) << "the caller's list";
}

// ---------------------------------------------------------------- ready answers

void expectSetter(ProtoCommand &command)
{
    SCOPED_TRACE("setProtoAnswer");
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
        SCOPED_TRACE(static_cast<int>(failure));
        UncopyableAnswer<ProtoAnswer> uncopyable(failure);
        command.setProtoAnswer(&answer);
        EXPECT_NO_THROW(command.setProtoAnswer(&uncopyable));
        EXPECT_EQ(command.getProtoAnswer(), nullptr);
    }
}

void expectReadyAnswer(ProtoCommand &command, const AnswerFacts &facts)
{
    SCOPED_TRACE("setAnswer of a ready answer");
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
    expectError(error, "", "");

    const auto set = [&](ProtoAnswer *answer) {
        return
            [&command, answer](FW_DriverError *failed) { return command.setAnswer(answer, nullptr, failed); };
    };
    expectFailed(command, {facts.nullCode, notMade}, "", set(nullptr));
    for (const Failure failure : {Failure::OfStandard, Failure::OfNoClass}) {
        SCOPED_TRACE(static_cast<int>(failure));
        UncopyableAnswer<ProtoAnswer> uncopyable(failure);
        expectFailed(command, {facts.cloneCode, notMade}, "", set(&uncopyable));
    }
    UncopyableAnswer<ProtoAnswer> uncopyable(Failure::OfFramework);
    expectFailed(command, {"DE09999", "Not to be copied"}, "UncopyableAnswer::clone()", set(&uncopyable));
}

// ---------------------------------------------------------------- envelopes

void expectEnvelopeKept(const ProtoCommand &command, int retCode, const Value &result)
{
    bool ok = false;
    const XmlRpcAnswer *stored = command.getXmlRpcAnswer(&ok);
    EXPECT_TRUE(ok);
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(stored->retCode(), retCode);
    EXPECT_EQ(stored->infoMsg(), "as told");
    EXPECT_EQ(stored->executionTime(), 12);
    EXPECT_EQ(dumped(stored->xmlrpcRetValue()), dumped(result));
}

void expectEnvelopes(ProtoCommand &command, const AnswerFacts &facts)
{
    SCOPED_TRACE("setAnswer of an envelope");
    const Value &right = facts.value.right;
    expectTaken(command, facts.value, [&](const Value &value, FW_DriverError *error) {
        return command.setAnswer(envelope(0, value), false, error);
    });
    expectEnvelopeKept(command, 0, right);

    // the return code refuses: the envelope stands alone, with and without a ticket asked for
    FW_DriverError error;
    for (const int retCode : {4, 1, -1}) {
        for (const bool async : {false, true}) {
            SCOPED_TRACE(std::to_string(retCode) + (async ? " with a ticket asked for" : ""));
            holdAnswer(command);
            EXPECT_TRUE(command.setAnswer(envelope(retCode, right), async, &error));
            expectNoAnswer(command);
            expectEnvelopeKept(command, retCode, right);
        }
    }

    EXPECT_TRUE(command.setAnswer(ticket("ticket_id"), true, &error));
    expectAnswerOf(command, "AsyncAnswer");
    EXPECT_EQ(dynamic_cast<const AsyncAnswer &>(*command.getProtoAnswer()).ticketID(), "T-17");
    expectError(error, "", "");

    // what is taken of the stored envelope may be told again
    EXPECT_TRUE(command.setAnswer(envelope(4, envelope(0, right)), false, &error));
    EXPECT_TRUE(command.setAnswer(command.getXmlRpcAnswer()->xmlrpcRetValue(), false, &error));
    expectEnvelopeKept(command, 0, right);
    EXPECT_TRUE(command.buildProtoAnswer(command.getXmlRpcAnswer()->xmlrpcRetValue(), &error));
    expectAnswerOf(command, facts.value);
}

void expectEnvelopeFailures(ProtoCommand &command, const AnswerFacts &facts)
{
    SCOPED_TRACE("setAnswer of an envelope that cannot be read");
    const auto set = [&](const Value &value, bool async) {
        return [&command, value, async](FW_DriverError *error) {
            return command.setAnswer(value, async, error);
        };
    };
    const Value good = envelope(0, facts.value.right);
    EXPECT_TRUE(command.setAnswer(good, false, nullptr));
    constexpr char ofEnvelope[] = "XmlRpcAnswer::XmlRpcAnswer(const XmlRpc::XmlRpcValue&)";
    expectFailed(command, {"DE00355", "XmlRpcAnswer: expected struct type for xmlrpc type"}, ofEnvelope,
                 set(Value(5), false));
    bool ok = true;
    EXPECT_EQ(command.getXmlRpcAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    expectFailed(command, {"DE00357", "XmlRpcAnswer: expected ret_code value"}, ofEnvelope,
                 set(structOf({{"info", ""}, {"ret_value", 1}, {"errors", arrayOf()}}), false));

    // a good envelope around a bad answer stays, to be read
    for (const auto &wrong : facts.value.wrong) {
        expectFailed(command, wrong.refusal, wrong.function, set(envelope(0, wrong.source), false));
        expectEnvelopeKept(command, 0, wrong.source);
    }
    expectFailed(command, {"DE00573", "AsyncAnswer decoding failed: invalid xml-rpc value"},
                 "AsyncAnswer::AsyncAnswer(const XmlRpc::XmlRpcValue&)", set(ticket("ticket"), true));
    EXPECT_NE(command.getXmlRpcAnswer(), nullptr);

    for (const bool async : {false, true}) {
        SCOPED_TRACE(async ? "with a ticket asked for" : "without a ticket asked for");
        const Value taken = async ? ticket("ticket_id") : good;
        expectFailedForLackOfMemory(command, facts.envelope, [&](FW_DriverError *error) {
            return command.setAnswer(taken, async, error);
        });
    }
}

} // namespace

AnswerFacts plainAnswers()
{
    AnswerFacts facts = baseAnswers("ProtoAnswer", "DE01293", "DE01294");
    facts.envelope = {"DE00350", notMade};
    facts.nullCode = "DE01146";
    facts.cloneCode = "DE00144";
    return facts;
}

AnswerFacts serialAnswers()
{
    AnswerFacts facts = baseAnswers("SerialProtoAnswer", "DE01295", "DE00473");
    constexpr char ofTokens[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    AnswerForm<QStringList> tokens("SerialProtoAnswer", {"2", "A", "b"}, "0");
    tokens.failsWith("DE00102", notMade)
        .refuses({}, "DE00076", "Empty answer received", ofTokens)
        .refuses({"ZZ"}, "DE00070", "Invalid parameter length type found in answer", ofTokens)
        .refuses({"2", "A"}, "DE00077", "Error during command answer decoding: bad length", ofTokens);
    facts.tokens = tokens;
    facts.envelope = {"DE00349", notMade};
    facts.nullCode = "DE01150";
    facts.cloneCode = "DE01151";
    return facts;
}

AnswerFacts confAnswers()
{
    AnswerFacts facts = baseAnswers("ConfProtoAnswer", "DE01297", "DE00346");
    facts.envelope = {"DE01151", notMade};
    facts.nullCode = "DE01152";
    facts.cloneCode = "DE01153";
    return facts;
}

AnswerFacts scaleAnswers()
{
    AnswerFacts facts = baseAnswers("ScaleProtoAnswer", "DE02075", "DE02076");
    facts.envelope = {"DE02077", "Failed to create xml-rpc answer"};
    facts.nullCode = "DE01146";
    facts.cloneCode = "DE00144";
    return facts;
}

Value envelope(int retCode, const Value &result)
{
    return structOf({{"ret_code", retCode},
                     {"info", "as told"},
                     {"ret_value", result},
                     {"errors", arrayOf()},
                     {"exec_time", 12}});
}

void expectAnswerContract(ProtoCommand &command, const AnswerFacts &facts)
{
    if (missingFacts(command, facts).any())
        return;
    expectSetter(command);
    expectForms(command, facts);
    expectEnvelopes(command, facts);
    expectEnvelopeFailures(command, facts);
    if (!facts.gathersReadyAnswers)
        expectReadyAnswer(command, facts);
}

} // namespace testing_base
