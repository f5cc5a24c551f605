// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandexample.h"

#include <gtest/gtest.h>

namespace {

quv::CommandFacts command(const char *name, const QList<QPair<QString, QString>> &arguments = {})
{
    quv::CommandFacts facts;
    facts.name = QString::fromLatin1(name);
    facts.tellsArguments = true;
    for (const auto &[argument, type] : arguments) {
        facts.arguments.append(quv::ArgumentFacts());
        facts.arguments.last().name = argument;
        facts.arguments.last().type = type;
    }
    return facts;
}

std::string shell(const quv::CommandFacts &command)
{
    const auto example = exampleOf(command);
    return example ? example->shell.toStdString() : "none";
}

std::string python(const quv::CommandFacts &command)
{
    const auto example = exampleOf(command);
    return example ? example->python.toStdString() : "none";
}

/// Plain, so it takes whatever it is given.
quv::CommandFacts ofAllTypes()
{
    return command("SCALE_RESET", {{"number", "int"},
                                   {"flag", "bool"},
                                   {"quantity", "double"},
                                   {"words", "string"},
                                   {"circuits", "array of ints"},
                                   {"colorants", "array of strings"}});
}

} // namespace

TEST(CommandExample, hasAValueOfEachType)
{
    EXPECT_EQ(shell(ofAllTypes()), "quvctl call SCALE_RESET number=1 flag=true quantity=12.5 words=text "
                                   "'circuits=[1,2]' 'colorants=[\"B\",\"KX\"]'");
    EXPECT_EQ(python(ofAllTypes()),
              "driver.EXEC_B(\"SCALE_RESET\", 1, True, 12.5, \"text\", [1, 2], [\"B\", \"KX\"])");
}

TEST(CommandExample, hasAFormula)
{
    const quv::CommandFacts tint = command("TINT", {{"formula", "formula"}});
    EXPECT_EQ(shell(tint), "quvctl call TINT 'formula={\"formula_type\":4,\"quantity_unit\":3,"
                           "\"ids\":[\"B\",\"KX\"],\"quantities\":[12.5,0.3]}'");
    EXPECT_EQ(python(tint), "driver.EXEC_B(\"TINT\", {\"formula_type\": 4, \"quantity_unit\": 3, "
                            "\"ids\": [\"B\", \"KX\"], \"quantities\": [12.5, 0.3]})");
}

TEST(CommandExample, tellsBytes)
{
    const quv::CommandFacts update = command("UPDATE_FW", {{"files", "array of structs"}});
    EXPECT_EQ(shell(update),
              "quvctl call UPDATE_FW "
              "'files=[{\"board_type\":2,\"board_addresses\":[3,4],\"image\":{\"$base64\":\"AP8=\"}}]'");
    EXPECT_EQ(python(update),
              "driver.EXEC_B(\"UPDATE_FW\", [{\"board_type\": 2, \"board_addresses\": [3, 4], "
              "\"image\": xmlrpc.client.Binary(bytes.fromhex(\"00ff\"))}])");
}

TEST(CommandExample, isCompleteWithoutArguments)
{
    EXPECT_EQ(shell(command("GET_ERRORS")), "quvctl call GET_ERRORS");
    EXPECT_EQ(python(command("GET_ERRORS")), "driver.EXEC_B(\"GET_ERRORS\")");
}

TEST(CommandExample, leavesOutWhatTheCommandWouldNotSend)
{
    const quv::CommandFacts packet = quv::commandFacts("GET_ERROR_PKT");
    ASSERT_EQ(packet.arguments.size(), 1);
    EXPECT_EQ(shell(packet), "quvctl call GET_ERROR_PKT");
}

TEST(CommandExample, namesTheMachineWithoutWhichQuvctlCannotMakeTheCommand)
{
    EXPECT_EQ(shell(command("GET_LOW_LEVEL_FORMULA", {{"formula", "formula"}})),
              "quvctl call GET_LOW_LEVEL_FORMULA 'formula={\"formula_type\":4,\"quantity_unit\":3,"
              "\"ids\":[\"B\",\"KX\"],\"quantities\":[12.5,0.3]}' --machine dispenser");
    EXPECT_EQ(shell(command("CHANNEL_TINT", {{"channel", "int"}, {"formula", "formula"}})),
              "quvctl call CHANNEL_TINT channel=1 'formula={\"formula_type\":4,\"quantity_unit\":3,"
              "\"ids\":[\"B\",\"KX\"],\"quantities\":[12.5,0.3]}' --machine dual");
}

TEST(CommandExample, isNotThereWhenTheCommandWouldNotTakeIt)
{
    EXPECT_EQ(shell(command("AUTOCAP_MOVE")), "none");                                // needs an argument
    EXPECT_EQ(shell(command("AUTOCAP_MOVE", {{"movement_type", "string"}})), "none"); // of another type
    EXPECT_EQ(shell(command("AUTOCAP_MOVE", {{"movement_type", "of the shelf"}})),
              "none"); // which nobody knows
}

TEST(CommandExample, isForPythonAloneWhenQuvctlWouldSendWhatTheDriverRefuses)
{
    const quv::CommandFacts block = quv::commandFacts("RES_FILE_MNGM");
    EXPECT_EQ(shell(block), "");
    EXPECT_EQ(python(block),
              "driver.EXEC_B(\"RES_FILE_MNGM\", {\"res_data\": {\"subcmd\": 1, \"res_index\": 243, "
              "\"block_address\": 0, \"data\": \"\"}})");
}
