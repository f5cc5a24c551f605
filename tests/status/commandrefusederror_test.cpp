// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/commandrefusederror.h"

#include "base/translatedtexts.h"
#include "status/errortesting.h"

#include <memory>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "CommandRefusedError::CommandRefusedError(QStringList)";

struct Reason
{
    bool CommandRefusedError::*flag;
    const char *masks; ///< in which its bit alone is set
    const char *key;
    int code;
    const char *text;
};

using Error = CommandRefusedError;

constexpr Reason reasons[] = {
    {&Error::field_out_of_range, "1 0", "field_out_of_range", 1,
     "One or more fields contain values out of range"},
    {&Error::no_etx, "2 0", "no_etx", 2, "ETX not present"},
    {&Error::bad_checksum, "4 0", "bad_checksum", 3, "Bad checksum"},
    {&Error::bad_cmd_code, "8 0", "bad_cmd_code", 4, "Unknown command code"},
    {&Error::bad_position_id, "10 0", "bad_position_id", 5, "Wrong position ID"},
    {&Error::bad_cmd_parameters, "20 0", "bad_cmd_parameters", 6, "Bad command parameters"},
    {&Error::cmd_refused_error_state, "0 1", "cmd_refused_error_state", 8,
     "Command refused because of errors"},
    {&Error::conf_write_error, "0 2", "conf_write_error", 9, "Configuration writing error"},
    {&Error::conf_row_write_error, "0 4", "conf_row_write_error", 10, "Configuration row writing error"},
    {&Error::dispenser_not_available, "0 8", "dispenser_not_available", 11, "Machine not available"},
    {&Error::bad_working_mode, "0 10", "bad_working_mode", 12, "Bad working mode"},
};

constexpr char nothing[] =
    R"({"bad_checksum": false, "bad_cmd_code": false, "bad_cmd_parameters": false, "bad_position_id": false, )"
    R"("bad_working_mode": false, "cmd_refused_error_state": false, "conf_row_write_error": false, )"
    R"("conf_write_error": false, "dispenser_not_available": false, "field_out_of_range": false, )"
    R"("no_etx": false})";

TEST(CommandRefusedError, startsWithoutAReason)
{
    const CommandRefusedError error;
    for (const Reason &reason : reasons)
        EXPECT_FALSE(error.*reason.flag) << reason.key;
    EXPECT_FALSE(error.hasErrors());
    EXPECT_EQ(error.getCommandRefusedErrorCodes(), QList<int>());
    EXPECT_EQ(error.getCommandRefusedErrorDescriptions(), QStringList());
    EXPECT_EQ(dumped(error.toXmlRpcValue()), nothing);
}

TEST(CommandRefusedError, readsEachReasonFromItsBit)
{
    for (const Reason &reason : reasons) {
        SCOPED_TRACE(reason.key);
        const CommandRefusedError error(tokensOf(reason.masks));
        for (const Reason &other : reasons)
            EXPECT_EQ(error.*other.flag, other.flag == reason.flag) << other.key;
        EXPECT_TRUE(error.hasErrors());
        EXPECT_EQ(error.getCommandRefusedErrorCodes(), QList<int>{reason.code});
        EXPECT_EQ(error.getCommandRefusedErrorDescriptions(), QStringList{reason.text});
        Value written = error.toXmlRpcValue();
        EXPECT_EQ(written.size(), 11);
        EXPECT_EQ(dumped(written[reason.key]), "true");
        written[reason.key] = false;
        EXPECT_EQ(dumped(written), nothing);
    }
}

TEST(CommandRefusedError, passesOverOtherBits)
{
    EXPECT_FALSE(CommandRefusedError(tokensOf("40 60")).hasErrors());
    EXPECT_FALSE(CommandRefusedError(tokensOf("FFFFFFC0 FFFFFFE0")).hasErrors());
}

TEST(CommandRefusedError, tellsAllReasonsInOneOrder)
{
    const CommandRefusedError error(tokensOf("7F 7F more"));
    EXPECT_EQ(error.getCommandRefusedErrorCodes(), (QList<int>{1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12}));
    EXPECT_EQ(
        error.getCommandRefusedErrorDescriptions(),
        QStringList({"One or more fields contain values out of range", "ETX not present", "Bad checksum",
                     "Unknown command code", "Wrong position ID", "Bad command parameters",
                     "Command refused because of errors", "Configuration writing error",
                     "Configuration row writing error", "Machine not available", "Bad working mode"}));
}

TEST(CommandRefusedError, leavesTheNumberSevenOut)
{
    CommandRefusedError error;
    error.cmd_refused_error_state = true;
    EXPECT_EQ(error.getCommandRefusedErrorCodes(), QList<int>{8});
}

TEST(CommandRefusedError, translatesItsTexts)
{
    const TranslatedTexts translated;
    for (const Reason &reason : reasons)
        EXPECT_EQ(CommandRefusedError(tokensOf(reason.masks)).getCommandRefusedErrorDescriptions(),
                  QStringList{translation(reason.text)});
}

TEST(CommandRefusedError, refusesTokensThatAreNoMasks)
{
    constexpr char tooShort[] = "Error during command refused error decoding: bad length";
    expectRefusal("DE00868", tooShort, ofTokens, [] { CommandRefusedError{QStringList()}; });
    expectRefusal("DE00868", tooShort, ofTokens, [] { CommandRefusedError{QStringList{"x"}}; });
    for (const char *tokens : {"x 1", "x y", "100000000 1"})
        expectRefusal("DE00869", "Error during command refused error decoding: mask 1", ofTokens,
                      [&] { CommandRefusedError{tokensOf(tokens)}; });
    for (const char *tokens : {"1 y", "1 100000000"})
        expectRefusal("DE00870", "Error during command refused error decoding: mask 2", ofTokens,
                      [&] { CommandRefusedError{tokensOf(tokens)}; });
}

TEST(CommandRefusedError, doesNotSurviveTheTripToAClient)
{
    const CommandRefusedError error(tokensOf("3F 1F"));
    EXPECT_EQ(CommandRefusedError(error.toXmlRpcValue()), CommandRefusedError());
    EXPECT_EQ(CommandRefusedError(Value()), CommandRefusedError());
}

TEST(CommandRefusedError, isCopiedAndCleared)
{
    CommandRefusedError error(tokensOf("2 4"));
    const std::unique_ptr<const CommandRefusedError> copy(error.clone());
    error.clear();
    EXPECT_FALSE(error.hasErrors());
    EXPECT_EQ(copy->getCommandRefusedErrorCodes(), (QList<int>{2, 10}));
    EXPECT_EQ(CommandRefusedError(*copy), *copy);
}

TEST(CommandRefusedError, isEqualByItsReasons)
{
    for (const Reason &reason : reasons) {
        CommandRefusedError error;
        error.*reason.flag = true;
        EXPECT_TRUE(error != CommandRefusedError()) << reason.key;
        EXPECT_TRUE(error == CommandRefusedError(tokensOf(reason.masks))) << reason.key;
    }
}

} // namespace
