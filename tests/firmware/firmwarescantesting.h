// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandcontract.h"

// What the tests of the three scan commands share.

namespace testing_firmware {

using namespace testing_base;

inline Words scanning()
{
    return Words("Firmware versions scan", "Firmware versions scan");
}

/** The answers of those that tell what a scan has found. */
inline AnswerFacts scanAnswers()
{
    constexpr char notCreated[] = "Failed to create FirmwareScanAnswer";
    constexpr char written[] =
        R"({"slave_versions": [{"app_version": [63, 0, 0, 0, 0, 38], "board_address": 17, "boot_version": []}]})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("FirmwareScanAnswer", {"4", "1", "11", "3F", "26"}, written)
                         .failsWith("DE03242", notCreated)
                         .refuses({"0"}, "DE01455", "Error during command answer decoding: bad length",
                                  "FirmwareScanAnswer::FirmwareScanAnswer(QStringList)");
    answers.value =
        AnswerOfValue(
            "FirmwareScanAnswer",
            structOf({{"slave_versions", arrayOf(structOf({{"board_address", 17},
                                                           {"app_version", arrayOf(63, 0, 0, 0, 0, 38)},
                                                           {"boot_version", arrayOf()}}))}}),
            written)
            .failsWith("DE03243", notCreated)
            .refuses(structOf({}), "DE01463", "FirmwareScanAnswer: Errors during FW_Program list creation",
                     "FirmwareScanAnswer::FirmwareScanAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("FirmwareScanAnswer", {1}, R"({"slave_versions": []})")
                       .failsWith("DE03244", notCreated)
                       .refusesNothing();
    return answers;
}

} // namespace testing_firmware
