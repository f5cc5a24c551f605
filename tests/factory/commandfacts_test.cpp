// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/commandfacts.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <gtest/gtest.h>

#include <string>

namespace {

/** A refusal in one line. */
std::string lineOf(const quv::RefusalFacts &refusal)
{
    return QStringLiteral("%1, %2: %3 %4")
        .arg(refusal.form, refusal.when, refusal.code, refusal.text)
        .toStdString();
}

const quv::MemberFacts *memberOf(const quv::CommandFacts &facts, const char *key)
{
    for (const quv::MemberFacts &member : facts.members) {
        if (member.key == QLatin1String(key))
            return &member;
    }
    return nullptr;
}

} // namespace

TEST(CommandFacts, tellAnOptionalArgumentWithItsDefault)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_STATUS");
    EXPECT_EQ(facts.name, "GET_STATUS");
    EXPECT_EQ(facts.purpose, "Tells what the dispenser is doing");
    EXPECT_EQ(facts.className, "DispenserStatusCmd");
    EXPECT_TRUE(facts.tellsArguments);
    ASSERT_EQ(facts.arguments.size(), 1);
    const quv::ArgumentFacts &position = facts.arguments.constFirst();
    EXPECT_EQ(position.name, "position");
    EXPECT_EQ(position.type, "int");
    EXPECT_EQ(position.meaning, "a circuit's position; 0 is the machine");
    EXPECT_TRUE(position.optional);
    EXPECT_TRUE(SameXmlRpcValue(position.defaultValue, XmlRpc::XmlRpcValue(0)));
    ASSERT_EQ(position.refusals.size(), 2);
    EXPECT_EQ(lineOf(position.refusals.at(0)),
              "XML-RPC, another type: DE00298 Position ID: expected INT parameter");
    EXPECT_EQ(lineOf(position.refusals.at(1)),
              "list, another type: DE00300 Position ID: expected INT parameter");
}

TEST(CommandFacts, tellTheAnswerWithItsMembersAndFailures)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_STATUS");
    EXPECT_EQ(facts.answerClass, "DispenserStatusAnswer");
    EXPECT_TRUE(facts.tellsMembers);
    EXPECT_EQ(facts.members.size(), 67);
    const quv::MemberFacts *tinting = memberOf(facts, "tinting");
    ASSERT_TRUE(tinting);
    EXPECT_EQ(tinting->type, "bool");
    EXPECT_TRUE(tinting->required);
    ASSERT_EQ(tinting->refusals.size(), 1);
    EXPECT_EQ(lineOf(tinting->refusals.constFirst()),
              "XML-RPC, missing or another type: DE00026 DispenserStatusAnswer: expected tinting value");
    const quv::MemberFacts *position = memberOf(facts, "current_position_id");
    ASSERT_TRUE(position);
    EXPECT_EQ(position->type, "int");
    EXPECT_FALSE(position->required);
    EXPECT_TRUE(position->refusals.isEmpty());
    const quv::MemberFacts *legacy = memberOf(facts, "WM_set");
    ASSERT_TRUE(legacy);
    EXPECT_EQ(legacy->meaning, "always false");
    ASSERT_EQ(facts.answerRefusals.size(), 4);
    EXPECT_EQ(lineOf(facts.answerRefusals.at(0)), "tokens, : DE00097 Failed to create DispenserStatusAnswer");
    EXPECT_EQ(lineOf(facts.answerRefusals.at(3)),
              "envelope, : DE00027 Failed to create DispenserStatusAnswer");
}

TEST(CommandFacts, tellARequiredArgument)
{
    const quv::CommandFacts facts = quv::commandFacts("AUTOCAP_MOVE");
    EXPECT_EQ(facts.className, "AutocapCmd");
    ASSERT_EQ(facts.arguments.size(), 1);
    const quv::ArgumentFacts &movement = facts.arguments.constFirst();
    EXPECT_EQ(movement.name, "movement_type");
    EXPECT_FALSE(movement.optional);
    EXPECT_FALSE(movement.defaultValue.valid());
    ASSERT_EQ(movement.refusals.size(), 2) << "that it is missing, the base says before";
    EXPECT_EQ(lineOf(movement.refusals.at(0)),
              "XML-RPC, another type: DE00290 Autocap movement type: expected INT parameter");
    EXPECT_EQ(lineOf(movement.refusals.at(1)),
              "list, another type: DE00292 Autocap movement type: expected INT parameter");
    EXPECT_TRUE(facts.answerClass.isEmpty());
    EXPECT_TRUE(facts.answerRefusals.isEmpty());
}

TEST(CommandFacts, tellThatACommandHasNoArguments)
{
    for (const char *name : {"GET_ERRORS", "GET_CONFIG_CMDS", "GET_DEVICE_PARAMS"}) {
        SCOPED_TRACE(name);
        const quv::CommandFacts facts = quv::commandFacts(name);
        EXPECT_TRUE(facts.tellsArguments);
        EXPECT_TRUE(facts.arguments.isEmpty());
    }
    EXPECT_EQ(quv::commandFacts("GET_ERRORS").className, "SerialProtoCommand");
    EXPECT_EQ(quv::commandFacts("GET_DEVICE_PARAMS").className, "ConfProtoCommand");
    EXPECT_EQ(quv::commandFacts("GET_DEVICE_PARAMS").answerClass, "GetDeviceParamsAnswer");
}

TEST(CommandFacts, tellStructsThatAreTakenApart)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_CMD_EST_EXEC_TIME");
    ASSERT_EQ(facts.arguments.size(), 1);
    EXPECT_EQ(facts.arguments.constFirst().name, "command");
    EXPECT_EQ(facts.arguments.constFirst().type, "struct");
    ASSERT_EQ(facts.members.size(), 1);
    EXPECT_EQ(facts.members.constFirst().key, "exec_time");
    EXPECT_EQ(facts.members.constFirst().meaning, "milliseconds");
    ASSERT_EQ(facts.members.constFirst().refusals.size(), 2);
    EXPECT_EQ(lineOf(facts.members.constFirst().refusals.at(1)),
              "list, missing or another type: DE01178 GetCmdEstimatedExecTimeAnswer decoding failed: invalid "
              "QVariant value");
}

TEST(CommandFacts, areThereForEveryCommand)
{
    for (int id = 0; id < ProtoCommandList::rowCount; ++id) {
        const QString name = ProtoCommandList::row(id)->name;
        SCOPED_TRACE(name.toStdString());
        const quv::CommandFacts facts = quv::commandFacts(name);
        EXPECT_EQ(facts.name, name);
        EXPECT_FALSE(facts.purpose.isEmpty());
        for (const quv::ArgumentFacts &argument : facts.arguments) {
            EXPECT_FALSE(argument.name.isEmpty());
            EXPECT_FALSE(argument.type.isEmpty());
            EXPECT_EQ(argument.optional, argument.defaultValue.valid()) << argument.name.toStdString();
        }
    }
}

TEST(CommandFacts, areEmptyForAnUnknownName)
{
    EXPECT_TRUE(quv::commandFacts("GET_STATSU").name.isEmpty());
    EXPECT_TRUE(quv::commandFacts(QString()).purpose.isEmpty());
}
