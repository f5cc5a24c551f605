// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcontract.h"

#include "base/missingfacts.h"
#include "base/serialprotocommand.h"
#include "base/translatedtexts.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_mixer.h>

#include <algorithm>

namespace testing_base {

namespace {

constexpr int serialType = 1;
constexpr int configurationType = 2;

const List &parametersOf(const Request &request)
{
    return request.expectedParameters ? *request.expectedParameters : request.arguments;
}

std::string nameOf(const Request &request)
{
    return shown(request.arguments) + (request.valueForm ? " or " + dumped(*request.valueForm) : "");
}

const List &heldBy(const Request &request)
{
    return request.held ? *request.held : parametersOf(request);
}

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
            return parametersOf(request).value(i) != parametersOf(facts.defaults).value(i);
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
                const List &parameters = parametersOf(request);
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
    SCOPED_TRACE(nameOf(request));
    missing.require(!request.expectedDump.empty(), "how the request is written");
    missing.require(facts.getters.empty() ||
                        static_cast<size_t>(heldBy(request).size()) == facts.getters.size(),
                    "a value for each getter, and no other");
}

MissingFacts missingFacts(const CommandFacts &facts)
{
    MissingFacts missing;
    missing.require(!facts.catalogue.name.empty() && facts.catalogue.code && facts.catalogue.row >= 0 &&
                        facts.catalogue.minimum >= 0,
                    "name, row, code and minimum of the catalogue");
    missing.require(facts.protoType >= 0, "the kind of the command");
    missing.require(facts.forms.ofValue && facts.forms.ofList, "how the command is made in both forms");
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

// ---------------------------------------------------------------- one command

/** The same values of the same types. */
void expectSameList(const List &actual, const List &expected)
{
    EXPECT_EQ(actual.size(), expected.size()) << shown(actual);
    for (int i = 0; i < std::min(actual.size(), expected.size()); ++i) {
        EXPECT_EQ(actual.at(i), expected.at(i)) << i << " of " << shown(actual);
        EXPECT_EQ(actual.at(i).userType(), expected.at(i).userType()) << i << " of " << shown(actual);
    }
}

void expectWritten(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    bool ok = !request.isWritten;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), request.expectedDump);
    EXPECT_EQ(ok, request.isWritten);
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), request.expectedDump);

    const std::string behindTheName =
        request.expectedDump == "[]" ? "]" : ", " + request.expectedDump.substr(1);
    const std::string rest = '"' + facts.catalogue.name + '"' + behindTheName;
    ok = false;
    EXPECT_EQ(dumped(command.toXmlRpcValue(QString(), &ok)), "[" + rest);
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(command.toXmlRpcValue("user")), "[\"user\", " + rest);
}

void expectPhrase(const TString &actual, const Phrase &expected)
{
    EXPECT_EQ(actual.m_text, expected.text);
    EXPECT_EQ(actual.m_translated, expected.text);
    EXPECT_EQ(actual.m_context, expected.context);
}

void expectTranslatedPhrase(const TString &actual, const Phrase &expected)
{
    EXPECT_EQ(actual.m_text, expected.logged.value_or(expected.text));
    EXPECT_EQ(actual.m_translated, expected.translated);
    EXPECT_EQ(actual.m_context, expected.context);
}

void expectWords(const ProtoCommand &command, const Words &words)
{
    EXPECT_EQ(command.commandString(), words.command);
    expectPhrase(command.actionString(false), words.action);
    expectPhrase(command.actionString(true), words.detailed);
}

void expectTranslatedWords(const ProtoCommand &command, const Words &words)
{
    SCOPED_TRACE("in another language");
    const TranslatedTexts translated;
    EXPECT_EQ(command.commandString(), words.translatedCommand.value_or(words.command));
    expectTranslatedPhrase(command.actionString(false), words.action);
    expectTranslatedPhrase(command.actionString(true), words.detailed);
}

void expectTime(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    constexpr long long configurationTime = 20000;
    const long long usual = facts.protoType == configurationType ? configurationTime : 0;
    const long long time = request.time.value_or(usual);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), time);
    if (facts.timeNeedsAMachine)
        return;
    const FW_Dispenser dispenser;
    const FW_Mixer mixer;
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&dispenser), time);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&mixer), time);
}

void expectContents(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    EXPECT_EQ(typeid(command), *facts.forms.type) << typeid(command).name();
    EXPECT_EQ(command.command(), facts.catalogue.name.c_str());
    EXPECT_EQ(command.protoType(), facts.protoType);
    expectSameList(command.parameters(), parametersOf(request));
    expectWritten(command, facts, request);
    List held;
    for (const Getter &get : facts.getters)
        held.append(get(command));
    if (!facts.getters.empty())
        expectSameList(held, heldBy(request));
    if (facts.protoType == serialType) {
        const auto *serial = dynamic_cast<const SerialProtoCommand *>(&command);
        ASSERT_NE(serial, nullptr);
        EXPECT_EQ(serial->serialParameters(1), request.sent[0]);
        EXPECT_EQ(serial->serialParameters(2), request.sent[1]);
        EXPECT_EQ(serial->moduleID(), request.moduleID);
    }
    expectTime(command, facts, request);
    expectWords(command, request.words.value_or(facts.words));
}

/** What nobody gave it a command does not have; of a machine it has a copy. */
void expectOwned(const ProtoCommand &command, const FW_Machine *machine)
{
    EXPECT_EQ(command.machine() != nullptr, machine != nullptr);
    if (command.machine() && machine) {
        EXPECT_NE(command.machine(), machine);
        EXPECT_EQ(command.machine()->id(), machine->id());
    }
    bool ok = true;
    EXPECT_EQ(command.getProtoAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(command.getXmlRpcAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
}

// ---------------------------------------------------------------- a request in every form

struct Form
{
    const char *name;
    Making making;
    const FW_Machine *machine;
};

Value valueOf(const Request &request)
{
    return request.valueForm ? *request.valueForm : arrayOfList(request.arguments);
}

Form valueForm(const char *name, const CommandFacts &facts, const Value &value)
{
    return {name, [&facts, value] { return facts.forms.ofValue(value); }, facts.forms.valueMachine};
}

Form listForm(const char *name, const CommandFacts &facts, const List &list)
{
    return {name, [&facts, list] { return facts.forms.ofList(list); }, facts.forms.listMachine};
}

/** Of a request with all arguments: more of them are read by nobody. */
void addFormsWithMore(std::vector<Form> &forms, const CommandFacts &facts, const Request &request)
{
    if (request.hasValueForm) {
        Value value = valueOf(request);
        value[value.size()] = "rest";
        value[value.size()] = true;
        forms.push_back(valueForm("XML-RPC form with more arguments", facts, value));
    }
    if (request.hasListForm && !facts.keepsTheList)
        forms.push_back(
            listForm("list form with more arguments", facts, request.arguments + List{"rest", true}));
}

std::vector<Form> formsOfRequest(const CommandFacts &facts, const Request &request)
{
    std::vector<Form> forms;
    if (request.typedForm) {
        const FW_Machine *machine =
            facts.forms.valueMachine ? facts.forms.valueMachine : facts.forms.listMachine;
        forms.push_back({"typed form", request.typedForm, request.typedHasMachine ? machine : nullptr});
    }
    if (request.hasValueForm)
        forms.push_back(valueForm("XML-RPC form", facts, valueOf(request)));
    if (request.hasListForm)
        forms.push_back(listForm("list form", facts, request.arguments));
    if (!facts.readsByHand && static_cast<size_t>(request.arguments.size()) == facts.arguments.size())
        addFormsWithMore(forms, facts, request);
    return forms;
}

/** What a command writes makes the same command. */
void expectReadBack(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    std::vector<Form> forms;
    if (!request.isReadBack)
        return;
    if (facts.comesBackFromValue && request.isWritten)
        forms.push_back(valueForm("read back from XML-RPC", facts, command.xmlrpc_parameters()));
    if (facts.comesBackFromList)
        forms.push_back(listForm("read back from a list", facts, command.parameters()));
    for (const Form &form : forms) {
        SCOPED_TRACE(form.name);
        if (const Made same = tryToMake(form.making))
            expectContents(*same, facts, request);
    }
}

void expectRequest(const CommandFacts &facts, const Request &request)
{
    SCOPED_TRACE("request " + nameOf(request));
    for (const Form &form : formsOfRequest(facts, request)) {
        SCOPED_TRACE(form.name);
        const Made command = tryToMake(form.making);
        if (!command)
            continue;
        expectContents(*command, facts, request);
        expectOwned(*command, form.machine);
        expectTranslatedWords(*command, request.words.value_or(facts.words));
        expectReadBack(*command, facts, request);
        for (const Made &copy : {Made(command->clone()), facts.forms.copy(*command)})
            expectContents(*copy, facts, request);
    }
}

Made first(const CommandFacts &facts)
{
    const std::vector<Form> forms = formsOfRequest(facts, facts.requests.front());
    return forms.empty() ? nullptr : tryToMake(forms.front().making);
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

void expectCopies(const CommandFacts &facts)
{
    const Made command = first(facts);
    if (!command)
        return;
    EXPECT_TRUE(command->setAnswer(envelope(0, facts.answers.value.right), false, nullptr));
    const Made clone(command->clone());
    const Made copy = facts.forms.copy(*command);
    expectCopied(*clone, *command, facts.answers.value.answerClass);
    expectCopied(*copy, *command, facts.answers.value.answerClass);
    change(*command, facts);
    for (const Made *same : {&clone, &copy}) {
        expectContents(**same, facts, facts.requests.front());
        EXPECT_NE((*same)->getProtoAnswer(), nullptr);
        EXPECT_EQ(dumped((*same)->getProtoAnswer()->toXmlRpcValue()), facts.answers.value.written);
    }
}

void expectDefaults(const CommandFacts &facts)
{
    if (facts.forms.byDefault) {
        SCOPED_TRACE("default constructor");
        const Made command = facts.forms.byDefault();
        expectContents(*command, facts, facts.defaults);
        expectOwned(*command, nullptr);
        expectTranslatedWords(*command, facts.defaults.words.value_or(facts.words));
        expectContents(*Made(command->clone()), facts, facts.defaults);
    }
    if (facts.forms.setDefaults) {
        SCOPED_TRACE("setDefaults");
        if (const Made command = first(facts)) {
            facts.forms.setDefaults(*command);
            expectContents(*command, facts, facts.afterDefaults.value_or(facts.defaults));
        }
    }
}

void expectFirmware(const CommandFacts &facts)
{
    const Made command = first(facts);
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

void expectRequests(const CommandFacts &facts)
{
    expectRow(facts);
    expectDefaults(facts);
    for (const Request &request : facts.requests)
        expectRequest(facts, request);
    expectFirmware(facts);
}

void expectCommandContract(const CommandFacts &facts)
{
    SCOPED_TRACE(facts.catalogue.name);
    if (missingFacts(facts).any())
        return;
    expectRequests(facts);
    expectRefusals(facts);
    if (const Made command = first(facts))
        expectAnswerContract(*command, facts.answers);
    expectCopies(facts);
}

} // namespace testing_base
