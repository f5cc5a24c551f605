// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcomparison.h"

#include "base/serialprotocommand.h"
#include "base/translatedtexts.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_mixer.h>

#include <algorithm>

namespace testing_base {

namespace {

constexpr int serialType = 1;
constexpr int configurationType = 2;

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

    const bool isStruct = request.expectedDump[0] == '{'; // which is sent as one argument
    const std::string array = isStruct ? '[' + request.expectedDump + ']' : request.expectedDump;
    const std::string behindTheName = array == "[]" ? "]" : ", " + array.substr(1);
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

} // namespace

void expectContents(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    EXPECT_EQ(typeid(command), *facts.forms.type) << typeid(command).name();
    EXPECT_EQ(command.command(), facts.catalogue.name.c_str());
    EXPECT_EQ(command.protoType(), facts.protoType);
    expectSameList(command.parameters(), request.madeParameters());
    expectWritten(command, facts, request);
    List held;
    for (const Getter &get : facts.getters)
        held.append(get(command));
    if (!facts.getters.empty())
        expectSameList(held, request.madeHeld());
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

void expectTranslatedWords(const ProtoCommand &command, const CommandFacts &facts, const Request &request)
{
    const Words words = request.words.value_or(facts.words);
    SCOPED_TRACE("in another language");
    const TranslatedTexts translated;
    EXPECT_EQ(command.commandString(), words.translatedCommand.value_or(words.command));
    expectTranslatedPhrase(command.actionString(false), words.action);
    expectTranslatedPhrase(command.actionString(true), words.detailed);
}

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

} // namespace testing_base
