// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/fw_command.h"

#include "base/basetesting.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofTokens[] = "FW_Command::FW_Command(QStringList)";
constexpr char ofValue[] = "FW_Command::FW_Command(const XmlRpc::XmlRpcValue&)";

void expectCommand(const FW_Command &command, unsigned code, int status, int execution)
{
    EXPECT_EQ(command.cmdCode, code);
    EXPECT_EQ(command.cmdStatus, status);
    EXPECT_EQ(command.cmdExecution, execution);
}

QStringList tokensOf(const char *line)
{
    return QString::fromLatin1(line).split(' ', Qt::SkipEmptyParts);
}

TEST(FW_Command, startsCleared)
{
    expectCommand(FW_Command(), 0, 0, 1);
    FW_Command command(23, 2, CmdExecution::No);
    expectCommand(command, 23, 2, 0);
    command.clear();
    expectCommand(command, 0, 0, 1);
    EXPECT_STREQ(FW_Command::cmdCode_TAG, "cmd_code");
    EXPECT_STREQ(FW_Command::cmdStatus_TAG, "cmd_status");
    EXPECT_STREQ(FW_Command::cmdExecution_TAG, "cmd_exec");
}

TEST(FW_Command, readsHexadecimalTokens)
{
    const struct
    {
        const char *tokens;
        unsigned code;
        int status;
        int execution;
    } rows[] = {
        {"23 0 2", 35, 2, 1},       {"10 2 1", 508, 1, 1},
        {"17 0 0 1", 23, 0, 1},     {"17 0 0 0", 23, 0, 0},
        {"17 0 0 2", 23, 0, 0},     {"17 0 0 F5", 23, 0, 0},
        {"17 0 0 1 x y", 23, 0, 1},                                    // whatever follows
        {"f5 F5 1f", 60515, 31, 1}, {"4F 853408 0", 2147483647, 0, 1}, // the greatest int
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.tokens);
        expectCommand(FW_Command(tokensOf(row.tokens)), row.code, row.status, row.execution);
    }
}

TEST(FW_Command, refusesTokensThatAreNone)
{
    const struct
    {
        const char *tokens;
        const char *code;
        const char *text;
    } rows[] = {
        {"", "DE00818", "Error during command answer decoding: bad length"},
        {"17", "DE00818", "Error during command answer decoding: bad length"},
        {"x x", "DE00818", "Error during command answer decoding: bad length"},
        {"x y z w", "DE00327", "Error during command code decoding"},
        {"80000000 0 0", "DE00327", "Error during command code decoding"},
        {"17 y z w", "DE00666", "Error during command code decoding"},
        {"50 853408 0", "DE00666", "Error during command code decoding"}, // beyond an int
        {"17 0 z w", "DE00667", "Error during command status decoding"},
        {"17 0 -1", "DE00667", "Error during command status decoding"},
        {"17 0 1 w", "DE02595", "Error during command status decoding"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.tokens);
        expectRefusal(row.code, row.text, ofTokens, [&] { FW_Command{tokensOf(row.tokens)}; });
    }
}

TEST(FW_Command, travelsAsAStruct)
{
    EXPECT_EQ(dumped(FW_Command(508, 2, CmdExecution::No).toXmlRpcValue()),
              R"({"cmd_code": 508, "cmd_exec": 0, "cmd_status": 2})");
    expectCommand(FW_Command(FW_Command(508, 2, CmdExecution::No).toXmlRpcValue()), 508, 2, 0);
    expectCommand(FW_Command(structOf({{"cmd_code", 508}, {"cmd_status", -1}})), 508, -1, 1);
    expectCommand(FW_Command(structOf({{"cmd_code", 508}, {"cmd_status", 2}, {"cmd_exec", 5}})), 508, 2, 5);
    expectCommand(FW_Command(structOf({{"cmd_code", 508}, {"cmd_status", 2}, {"cmd_exec", "0"}})), 508, 2, 1);
}

TEST(FW_Command, readsAnyCodeThatItWrites)
{
    for (const unsigned code : {2147483647U, 2147483648U, 4294967295U})
        expectCommand(FW_Command(FW_Command(code, 1, CmdExecution::No).toXmlRpcValue()), code, 1, 0);
    const Value widest = FW_Command(4294967295U, 1, CmdExecution::No).toXmlRpcValue();
    EXPECT_TRUE(SameXmlRpcValue(widest["cmd_code"], Value(4294967295.0))) << dumped(widest);
    const Value greatestInt = FW_Command(2147483647U, 1, CmdExecution::No).toXmlRpcValue();
    EXPECT_TRUE(SameXmlRpcValue(greatestInt["cmd_code"], Value(2147483647))) << dumped(greatestInt);
}

TEST(FW_Command, needsTwoOfItsMembers)
{
    for (const Value &value :
         {Value(), Value(5), arrayOf(508, 2), structOf({}), structOf({{"cmd_code", "508"}}),
          structOf({{"cmd_code", -1}, {"cmd_status", 2}}),
          structOf({{"cmd_code", 4294967296.0}, {"cmd_status", 2}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00668", "FW_Command: expected command code value", ofValue,
                      [&] { FW_Command{value}; });
    }
    for (const Value &value :
         {structOf({{"cmd_code", 508}}), structOf({{"cmd_code", 508}, {"cmd_status", true}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00669", "FW_Command: expected command status value", ofValue,
                      [&] { FW_Command{value}; });
    }
    static_assert(!std::is_constructible_v<FW_Command, int>);
    static_assert(!std::is_constructible_v<FW_Command, const char *>);
}

TEST(FW_Command, differsInEachMember)
{
    const FW_Command command(508, 2, CmdExecution::No);
    EXPECT_TRUE(command == FW_Command(508, 2, CmdExecution::No));
    for (const FW_Command &other :
         {FW_Command(507, 2, CmdExecution::No), FW_Command(508, 1, CmdExecution::No),
          FW_Command(508, 2, CmdExecution::Yes)}) {
        EXPECT_TRUE(command != other);
        EXPECT_FALSE(command == other);
    }
    const QVariant variant = QVariant::fromValue(command);
    EXPECT_STREQ(variant.typeName(), "FW_Command");
    EXPECT_EQ(QVariant(variant.toMap()).value<FW_Command>(), command);
}

} // namespace
