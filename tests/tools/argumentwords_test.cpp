// SPDX-License-Identifier: LGPL-3.0-or-later
#include "argumentwords.h"

#include "commandline.h"

#include "catalogue/commandfacts.h"

#include <gtest/gtest.h>

namespace {

quv::ArgumentFacts argument(const char *name, const char *type, const XmlRpc::XmlRpcValue &otherwise = {})
{
    quv::ArgumentFacts facts;
    facts.name = QString::fromLatin1(name);
    facts.type = QString::fromLatin1(type);
    facts.optional = otherwise.valid();
    facts.defaultValue = otherwise;
    return facts;
}

/// A command that cleans: type and speed, a text for the log, and whether to rinse.
quv::CommandFacts cleaning()
{
    quv::CommandFacts facts;
    facts.name = QStringLiteral("CLEANING");
    facts.tellsArguments = true;
    facts.arguments = {argument("type", "int"), argument("speed", "int", 60), argument("note", "string", "-"),
                       argument("rinse", "bool", true)};
    return facts;
}

std::string taken(const QStringList &words, const quv::CommandFacts &command = cleaning())
{
    return argumentsFromWords(command, words).values.dump();
}

std::string refusal(const QStringList &words, const quv::CommandFacts &command = cleaning())
{
    try {
        return "taken: " + taken(words, command);
    } catch (const quv::UsageError &error) {
        return error.what();
    }
}

} // namespace

TEST(ArgumentWords, areTakenByTheirPlaces)
{
    EXPECT_EQ(taken({}), "[]");
    EXPECT_EQ(taken({"1", "2.5", "true", "[1,2]", "word"}), R"([1,2.5,true,[1,2],"word"])");
}

TEST(ArgumentWords, knowWhichWordGaveThem)
{
    EXPECT_EQ(argumentsFromWords(cleaning(), {"1", "note=x"}).words, (QStringList{"1", "", "note=x"}));
}

TEST(ArgumentWords, areTakenByTheirNamesInAnyOrder)
{
    EXPECT_EQ(taken({"type=1"}), "[1]");
    EXPECT_EQ(taken({"speed=30", "type=1"}), "[1,30]");
    EXPECT_EQ(taken({"rinse=false", "note=by hand", "speed=-5", "type=1"}), R"([1,-5,"by hand",false])");
}

TEST(ArgumentWords, areTakenByTheirPlacesFirst)
{
    EXPECT_EQ(taken({"1", "speed=30"}), "[1,30]");
    EXPECT_EQ(taken({"1", "30", "rinse=false"}), R"([1,30,"-",false])");
}

TEST(ArgumentWords, getTheirDefaultsBeforeOneThatIsGiven)
{
    EXPECT_EQ(taken({"type=1", "rinse=false"}), R"([1,60,"-",false])");
    EXPECT_EQ(taken({"1", "note=x"}), R"([1,60,"x"])");
}

TEST(ArgumentWords, readTheirValueAsJsonElseAsText)
{
    EXPECT_EQ(taken({"1", "note=\"5\""}), R"([1,60,"5"])");
    EXPECT_EQ(taken({"1", "note=5"}), "[1,60,5]");
    EXPECT_EQ(taken({"1", "note="}), R"([1,60,""])");
    EXPECT_EQ(taken({"1", "note=a=b"}), R"([1,60,"a=b"])");
    EXPECT_EQ(taken({"type={\"ids\":[\"B\"]}"}), R"([{"ids":["B"]}])");
    EXPECT_EQ(refusal({"type=[1"}).substr(0, 22), "argument [1: no JSON: ");
}

TEST(ArgumentWords, leaveATextWithTheSignAlone)
{
    EXPECT_EQ(taken({"1", "30", "colour=red"}), R"([1,30,"colour=red"])");
    EXPECT_EQ(taken({"1", "30", "\"note=red\""}), R"([1,30,"note=red"])");
    EXPECT_EQ(taken({"1=2", "{\"a\":\"b=c\"}", "=3"}), R"(["1=2",{"a":"b=c"},"=3"])");
}

TEST(ArgumentWords, areTextsWhereTheyAreNoJson)
{
    for (const char *word : {"007", "-01", "1.", ".5", "+5", "1e", "0x10", "1_000", "1.2.3", "12abc", "-"})
        EXPECT_EQ(taken({"1", "30", word}), "[1,30,\"" + std::string(word) + "\"]");
    EXPECT_EQ(taken({"1", "30", "0"}), "[1,30,0]");
    EXPECT_EQ(taken({"1", "30", "-0.5e1"}), "[1,30,-5.0]");
    EXPECT_EQ(refusal({"1", "30", "99999999999999999999"}).substr(0, 30), "argument 99999999999999999999:");
}

TEST(ArgumentWords, refuseATextThatBeginsWithNearlyAName)
{
    EXPECT_EQ(refusal({"1", "30", "note2=x"}),
              "CLEANING has no argument \"note2\"; did you mean \"note\"? As a text "
              "it is given with its name: note=note2=x");
    EXPECT_EQ(taken({"1", "30", "note=note2=x"}), R"([1,30,"note2=x"])");
    quv::CommandFacts ticket;
    ticket.name = QStringLiteral("GET_CMD_STATUS");
    ticket.arguments = {argument("ticket_id", "string")};
    for (const char *name : {"tiket", "ticket", "TICKET_ID", "ticketid"})
        EXPECT_EQ(refusal({QString::fromLatin1(name) + "=x"}, ticket),
                  "GET_CMD_STATUS has no argument \"" + std::string(name) +
                      "\"; did you mean \"ticket_id\"? As a text it is given with its name: ticket_id=" +
                      name + "=x");
    EXPECT_EQ(taken({"a=b"}, ticket), R"(["a=b"])");
}

TEST(ArgumentWords, refuseAnUnknownName)
{
    EXPECT_EQ(refusal({"tpye=1"}), "CLEANING has no argument \"tpye\"; it has: type, speed, note, rinse");
    EXPECT_EQ(refusal({"type=1", "colour=red"}),
              "CLEANING has no argument \"colour\"; it has: type, speed, note, rinse");
    EXPECT_EQ(refusal({"1", "30", "x", "true", "more=5"}),
              "CLEANING has no argument \"more\"; it has: type, speed, note, rinse");
}

TEST(ArgumentWords, refuseAnArgumentThatIsGivenTwice)
{
    EXPECT_EQ(refusal({"type=1", "type=2"}), "the argument \"type\" is given twice");
    EXPECT_EQ(refusal({"1", "type=2"}), "the argument \"type\" is given twice");
    EXPECT_EQ(refusal({"1", "speed=2", "type=1"}), "the argument \"type\" is given twice");
}

TEST(ArgumentWords, refusePlacesBehindNames)
{
    EXPECT_EQ(refusal({"type=1", "30"}), "\"30\" needs a name, as it stands behind an argument with one");
    EXPECT_EQ(refusal({"type=1", "1=2"}), "\"1=2\" needs a name, as it stands behind an argument with one");
}

TEST(ArgumentWords, refuseToLeaveOutWhatIsRequired)
{
    EXPECT_EQ(refusal({"speed=30"}), "CLEANING needs the argument \"type\"");
    quv::CommandFacts command = cleaning();
    command.arguments.append(argument("operator", "string"));
    EXPECT_EQ(refusal({"type=1"}, command), "CLEANING needs the argument \"operator\"");
    EXPECT_EQ(refusal({"1"}, command), "taken: [1]"); // by places the library itself says what is missing
}

TEST(ArgumentWords, haveNoNamesForACommandThatTellsNone)
{
    quv::CommandFacts command;
    command.name = QStringLiteral("RESET");
    EXPECT_EQ(taken({"type=1", "5"}, command), R"(["type=1",5])");
}
