// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/commandrefusedanswer.h"

#include "status/errortesting.h"

#include <memory>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "CommandRefusedAnswer::CommandRefusedAnswer(QStringList)";
constexpr char ofError[] = "CommandRefusedError::CommandRefusedError(QStringList)";
constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
constexpr char tooShort[] = "Error during command answer decoding: bad length";

QList<int> codesOf(const CommandRefusedAnswer &answer)
{
    return answer.commandRefusedError().getCommandRefusedErrorCodes();
}

void expectTokensRefused(const char *tokens, const char *code, const char *text, const char *function)
{
    SCOPED_TRACE(tokens);
    expectRefusal(code, text, function, [&] { CommandRefusedAnswer{tokensOf(tokens)}; });
}

TEST(CommandRefusedAnswer, startsWithoutAReason)
{
    const CommandRefusedAnswer answer;
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(codesOf(answer), QList<int>());
}

TEST(CommandRefusedAnswer, readsTheFirstTwoOfSixParameters)
{
    const CommandRefusedAnswer answer(tokensOf("6 0 5 0 0 0 0"));
    EXPECT_EQ(codesOf(answer), (QList<int>{8, 10}));
    EXPECT_EQ(answer.serialParameters(), QStringList({"0", "5", "0", "0", "0", "0"}));
    EXPECT_EQ(codesOf(CommandRefusedAnswer(tokensOf("6 20 0 x y z -"))), QList<int>{6});
    EXPECT_EQ(codesOf(CommandRefusedAnswer(tokensOf("7 1 10 0 0 0 0 0 0"))), (QList<int>{1, 12}));
}

TEST(CommandRefusedAnswer, refusesTokensThatAreCutShort)
{
    expectRefusal("DE00076", "Empty answer received", serial, [] { CommandRefusedAnswer{QStringList()}; });
    expectTokensRefused("ZZ 1 0 0 0 0 0", "DE00070", "Invalid parameter length type found in answer", serial);
    for (const char *tokens : {"6", "6 1", "6 1 0", "6 1 0 0", "6 1 0 0 0", "6 1 0 0 0 0"})
        expectTokensRefused(tokens, "DE00077", tooShort, serial);
    for (const char *tokens : {"0", "1 1", "2 1 0", "3 1 0 0", "4 1 0 0 0", "5 1 0 0 0 0"})
        expectTokensRefused(tokens, "DE00063", tooShort, ofTokens);
}

TEST(CommandRefusedAnswer, refusesMasksThatAreNone)
{
    expectTokensRefused("6 x y 0 0 0 0", "DE00869", "Error during command refused error decoding: mask 1",
                        ofError);
    expectTokensRefused("6 1 y 0 0 0 0", "DE00870", "Error during command refused error decoding: mask 2",
                        ofError);
}

TEST(CommandRefusedAnswer, refusesARefusalWithoutAReason)
{
    constexpr char noReason[] = "Command refused due to unknown reason. No refused answer bit set!";
    expectTokensRefused("6 0 0 0 0 0 0", "DE00173", noReason, ofTokens);
    expectTokensRefused("6 40 60 1 1 1 1", "DE00173", noReason, ofTokens);
}

TEST(CommandRefusedAnswer, travelsAsAStructThatClientsDoNotRead)
{
    const CommandRefusedAnswer answer(tokensOf("6 2 0 0 0 0 0"));
    const Value value = answer.toXmlRpcValue();
    EXPECT_EQ(
        dumped(value),
        R"({"cmd_refused_error": {"bad_checksum": false, "bad_cmd_code": false, )"
        R"("bad_cmd_parameters": false, "bad_position_id": false, "bad_working_mode": false, )"
        R"("cmd_refused_error_state": false, "conf_row_write_error": false, "conf_write_error": false, )"
        R"("dispenser_not_available": false, "field_out_of_range": false, "no_etx": true}})");
    for (const Value &any : {value, Value(), Value(5)}) {
        const CommandRefusedAnswer arrived(any);
        EXPECT_EQ(codesOf(arrived), QList<int>());
        EXPECT_EQ(arrived.protoType(), 1);
    }
}

TEST(CommandRefusedAnswer, isCopiedAndCleared)
{
    CommandRefusedAnswer answer(tokensOf("6 2 0 0 0 0 0"));
    const std::unique_ptr<const CommandRefusedAnswer> copy(answer.clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    answer.clear();
    EXPECT_EQ(codesOf(answer), QList<int>());
    EXPECT_EQ(codesOf(*copy), QList<int>{2});
    EXPECT_FALSE(answer.equalTo(copy.get()));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(CommandRefusedAnswer, isToldByTheNinthAndTenthCharacter)
{
    for (const char *raw : {"A1A00BB00A0", "A1A00BB00a", "xxxxxxxx0A", "0A0A0A0A0A", "        0a\r\n"})
        EXPECT_TRUE(CommandRefusedAnswer::isAnErrorAnswer(raw)) << raw;
    for (const char *raw : {"", "0A", "A1A00BB0", "A1A00BB00", "A1A00BB00B0", "A1A00BB0A0", "A1A00BBB00A",
                            "0A0A0A0A", "0A0A0A0AA0"})
        EXPECT_FALSE(CommandRefusedAnswer::isAnErrorAnswer(raw)) << raw;
}

} // namespace
