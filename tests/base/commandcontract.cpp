// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcontract.h"

#include "base/commandcomparison.h"
#include "base/commandrefusals.h"
#include "base/commandrequests.h"
#include "base/missingfacts.h"
#include "base/serialprotocommand.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <algorithm>

namespace testing_base {

namespace {

// ---------------------------------------------------------------- no fact is left out

void requireArguments(MissingFacts &missing, const CommandFacts &facts)
{
    const auto isRequestOf = [&](int count) {
        return std::any_of(facts.requests.begin(), facts.requests.end(),
                           [&](const Request &request) { return request.arguments.size() == count; });
    };
    const int all = static_cast<int>(facts.arguments.size());
    missing.require(facts.requests.empty() || facts.requests.front().arguments.size() == all,
                    "first a request with all arguments");
    bool wasOptional = false;
    for (int i = 0; i < all; ++i) {
        SCOPED_TRACE(i);
        const Argument &argument = facts.arguments[static_cast<size_t>(i)];
        missing.require(!wasOptional || argument.isOptional,
                        "that an argument behind an optional one is optional");
        wasOptional = argument.isOptional;
        missing.require(!argument.refused.empty(), "what this argument refuses");
        const bool canBeAbsent = !argument.isOptional && i >= facts.catalogue.minimum;
        missing.require(!argument.absence.valueCode.empty() == canBeAbsent,
                        "how this argument is refused when it is absent, or it tells what cannot occur");
        if (argument.isOptional)
            missing.require(isRequestOf(i), "a request that ends before this argument, with its default");
        const auto isOther = [&](const Request &request) {
            return request.madeParameters().value(i) != facts.defaults.madeParameters().value(i);
        };
        missing.require(!facts.forms.byDefault ||
                            std::any_of(facts.requests.begin(), facts.requests.end(), isOther),
                        "a request in which this argument is not its default");
    }
}

/** Two arguments of one type that are the same in all requests could be swapped unseen. */
void requireDifferentArguments(MissingFacts &missing, const CommandFacts &facts)
{
    for (size_t i = 0; i < facts.arguments.size(); ++i) {
        for (size_t j = i + 1; j < facts.arguments.size(); ++j) {
            const auto differ = [&](const Request &request) {
                const List &parameters = request.madeParameters();
                return parameters.value(static_cast<int>(i)) != parameters.value(static_cast<int>(j));
            };
            missing.require(
                std::any_of(facts.requests.begin(), facts.requests.end(), differ),
                "a request in which two arguments differ that would else be mistaken for another");
        }
    }
}

void requireRequest(MissingFacts &missing, const CommandFacts &facts, const Request &request)
{
    SCOPED_TRACE(request.name());
    missing.require(!request.expectedDump.empty(), "how the request is written");
    missing.require(facts.getters.empty() ||
                        static_cast<size_t>(request.madeHeld().size()) == facts.getters.size(),
                    "a value for each getter, and no other");
}

MissingFacts missingFacts(const CommandFacts &facts)
{
    MissingFacts missing;
    missing.require(!facts.catalogue.name.empty() && facts.catalogue.code && facts.catalogue.row >= 0 &&
                        facts.catalogue.minimum >= 0,
                    "name, row, code and minimum of the catalogue");
    missing.require(facts.protoType >= 0, "the kind of the command");
    missing.require(facts.takesNothing || (facts.forms.ofValue && facts.forms.ofList),
                    "how the command is made in both forms");
    missing.require(!facts.takesNothing || !(facts.forms.ofValue || facts.forms.ofList),
                    "what the command takes");
    missing.require(facts.arguments.empty() || (!facts.valueFunction.empty() && !facts.listFunction.empty()),
                    "the signatures that refuse arguments");
    missing.require(!facts.requests.empty(), "a request");
    if (facts.forms.byDefault)
        requireRequest(missing, facts, facts.defaults);
    for (const Request &request : facts.requests)
        requireRequest(missing, facts, request);
    if (!facts.readsByHand) {
        requireArguments(missing, facts);
        requireDifferentArguments(missing, facts);
    }
    for (const TypedRefusal &typed : facts.typedRefusals)
        missing.require(!typed.refusal.code.empty() && !typed.refusal.text.empty() && !typed.function.empty(),
                        "code, text and function of what a typed constructor refuses");
    return missing;
}

// ---------------------------------------------------------------- copies, defaults, module, firmware

void change(ProtoCommand &command, const CommandFacts &facts)
{
    command.clearProtoAnswer();
    EXPECT_TRUE(command.setCommand(command.command() == "RESET" ? "PAUSE" : "RESET"));
    if (auto *serial = dynamic_cast<SerialProtoCommand *>(&command)) {
        EXPECT_TRUE(serial->setModuleID(99));
        EXPECT_EQ(serial->moduleID(), 99);
    }
    if (facts.forms.setDefaults)
        facts.forms.setDefaults(command);
}

void expectCopied(const ProtoCommand &copy, const ProtoCommand &command, const std::string &answerClass)
{
    EXPECT_EQ(copy.machine() != nullptr, command.machine() != nullptr);
    EXPECT_TRUE(!copy.machine() || copy.machine() != command.machine()) << "the machine is shared";
    EXPECT_EQ(className(copy.getProtoAnswer()), answerClass);
    EXPECT_NE(copy.getProtoAnswer(), command.getProtoAnswer()) << "the answer is shared";
    EXPECT_NE(copy.getXmlRpcAnswer(), nullptr);
    EXPECT_NE(copy.getXmlRpcAnswer(), command.getXmlRpcAnswer()) << "the envelope is shared";
}

/** Copies share nothing: what happens to the command afterwards does not reach them. */
void expectCopies(const CommandFacts &facts)
{
    const Made command = firstCommand(facts);
    if (!command)
        return;
    EXPECT_TRUE(command->setAnswer(envelope(0, facts.answers.value.right), false, nullptr));
    const std::vector<Copy> copies = copiesOf(*command, facts);
    for (const Copy &copy : copies) {
        SCOPED_TRACE(copy.name);
        expectCopied(*copy.command, *command, facts.answers.value.answerClass);
    }
    change(*command, facts);
    for (const Copy &copy : copies) {
        SCOPED_TRACE(copy.name);
        expectContents(*copy.command, facts, facts.requests.front());
        const ProtoAnswer *answer = copy.command->getProtoAnswer();
        EXPECT_EQ(answer ? dumped(answer->toXmlRpcValue()) : "none", facts.answers.value.written);
    }
}

void expectDefaults(const CommandFacts &facts)
{
    if (facts.forms.byDefault) {
        SCOPED_TRACE("default constructor");
        const Made command = facts.forms.byDefault();
        expectContents(*command, facts, facts.defaults);
        expectOwned(*command, nullptr);
        expectTranslatedWords(*command, facts, facts.defaults);
        expectContents(*Made(command->clone()), facts, facts.defaults);
    }
    if (facts.forms.setDefaults) {
        SCOPED_TRACE("setDefaults");
        if (const Made command = firstCommand(facts)) {
            facts.forms.setDefaults(*command);
            expectContents(*command, facts, facts.afterDefaults.value_or(facts.defaults));
        }
    }
}

void expectFirmware(const CommandFacts &facts)
{
    const Made command = firstCommand(facts);
    for (const Gate &gate : facts.firmware) {
        SCOPED_TRACE(gate.version.toString().toStdString());
        EXPECT_TRUE(command && command->isSupportedCommand(gate.version) == gate.isSupported);
    }
}

void expectRow(const CommandFacts &facts)
{
    const CMD_STRUCT *row = ProtoCommandList::row(facts.catalogue.name.c_str());
    ASSERT_TRUE(row) << facts.catalogue.name;
    EXPECT_EQ(row->id, facts.catalogue.row);
    EXPECT_EQ(row->code, facts.catalogue.code->c_str());
    EXPECT_EQ(row->minParams, facts.catalogue.minimum);
}

} // namespace

void expectCommandContract(const CommandFacts &facts)
{
    SCOPED_TRACE(facts.catalogue.name);
    if (missingFacts(facts).any())
        return;
    expectRow(facts);
    expectDefaults(facts);
    for (const Request &request : facts.requests)
        expectRequest(facts, request);
    expectFirmware(facts);
    expectRefusals(facts);
    if (const Made command = firstCommand(facts))
        expectAnswerContract(*command, facts.answers);
    expectCopies(facts);
}

} // namespace testing_base
