// SPDX-License-Identifier: LGPL-3.0-or-later
#include "refusallines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using quv::RefusalFacts;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> linesOf(const quv::CommandFacts &command, const QList<RefusalFacts> &ofRequest = {})
{
    std::vector<std::string> lines;
    for (const quv::RefusalLine &line : refusalLines(ofRequest, command))
        lines.push_back(
            QStringLiteral("%1 (%2) %3: %4").arg(line.code, line.forms, line.when, line.text).toStdString());
    return lines;
}

quv::CommandFacts withArgument(const QList<RefusalFacts> &refusals)
{
    quv::ArgumentFacts speed;
    speed.name = QStringLiteral("speed");
    speed.refusals = refusals;
    quv::CommandFacts command;
    command.arguments = {speed};
    return command;
}

quv::MemberFacts member(const char *key, const QList<RefusalFacts> &refusals)
{
    quv::MemberFacts facts;
    facts.key = QString::fromLatin1(key);
    facts.refusals = refusals;
    return facts;
}

quv::CommandFacts withMembers(const QList<quv::MemberFacts> &members)
{
    quv::CommandFacts command;
    command.members = members;
    return command;
}

} // namespace

TEST(RefusalLines, ofNothingAreNone)
{
    EXPECT_THAT(linesOf({}), IsEmpty());
}

TEST(RefusalLines, sayWhenAnArgumentIsRefused)
{
    EXPECT_THAT(
        linesOf(withArgument({{"XML-RPC", "missing", "DE1", "no speed"},
                              {"XML-RPC", "another type", "DE2", "bad"},
                              {"XML-RPC", "missing or another type", "DE3", "bad"},
                              {"XML-RPC", "an element of another type", "DE4", "bad"},
                              {"list", "unreadable", "DE5", "bad"},
                              {"list", "out of range", "DE6", "too fast"},
                              {"list", "an unreadable speed", "DE7", "bad"},
                              {"list", "too late", "DE8", "bad"},
                              {"XML-RPC", "an element without a name", "DE9", "bad"}})),
        ElementsAre("DE1 (XML-RPC) speed is missing: no speed", "DE2 (XML-RPC) speed is of another type: bad",
                    "DE3 (XML-RPC) speed is missing or of another type: bad",
                    "DE4 (XML-RPC) speed has an element of another type: bad",
                    "DE5 (list) speed cannot be read: bad", "DE6 (list) speed is out of range: too fast",
                    "DE7 (list) speed is an unreadable speed: bad", "DE8 (list) speed: too late: bad",
                    "DE9 (XML-RPC) speed has an element without a name: bad"));
}

TEST(RefusalLines, tellFormsThatAreAlikeOnce)
{
    EXPECT_THAT(linesOf(withArgument({{"XML-RPC", "missing", "DE1", "no speed"},
                                      {"XML-RPC", "another type", "DE1", "no speed"},
                                      {"list", "missing", "DE1", "no speed"},
                                      {"list", "another type", "DE2", "no speed"}})),
                ElementsAre("DE1 (XML-RPC, list) speed is missing: no speed",
                            "DE1 (XML-RPC) speed is of another type: no speed",
                            "DE2 (list) speed is of another type: no speed"));
}

TEST(RefusalLines, tellMembersThatAreAlikeOnce)
{
    const auto expected = [](const char *code, const char *key) {
        return RefusalFacts{"XML-RPC", "missing", QString::fromLatin1(code),
                            QStringLiteral("Answer: expected %1 value").arg(QString::fromLatin1(key))};
    };
    EXPECT_THAT(
        linesOf(withMembers({member("id", {expected("DE1", "id")}), member("on", {expected("DE2", "on")}),
                             member("identity", {expected("DE1", "identity")}),
                             member("rest", {expected("DE1", "the rest")})})),
        ElementsAre("DE1 (XML-RPC) a member is missing: Answer: expected … value",
                    "DE2 (XML-RPC) on is missing: Answer: expected on value",
                    "DE1 (XML-RPC) rest is missing: Answer: expected the rest value"));
    EXPECT_THAT(linesOf(withMembers({member("id", {{"list", "missing", "DE1", "invalid"}}),
                                     member("on", {{"list", "missing", "DE1", "invalid"}})})),
                ElementsAre("DE1 (list) a member is missing: invalid"));
}

TEST(RefusalLines, beginWithTheRequestAndEndWithTheAnswer)
{
    quv::CommandFacts command = withArgument({{"list", "missing", "DE2", "no speed"}});
    command.members = {member("id", {{"list", "missing", "DE3", "no id"}})};
    command.answerRefusals = {{"tokens", "", "DE4", "failed"}};
    EXPECT_THAT(linesOf(command, {{"XML-RPC", "the arguments are no array", "DE1", "no array"}}),
                ElementsAre("DE1 (XML-RPC) the arguments are no array: no array",
                            "DE2 (list) speed is missing: no speed", "DE3 (list) id is missing: no id",
                            "DE4 (tokens) the answer cannot be made: failed"));
}
