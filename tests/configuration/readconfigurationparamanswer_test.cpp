// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamanswer.h"

#include "configuration/generic_cdata.h"
#include "configuration/lck_cdata.h"
#include "configurationtesting.h"

#include <QuvFramework/fw_lock.h>

#include <memory>

namespace {

using namespace testing_configuration;

constexpr char ofTokens[] = "ReadConfigurationParamAnswer::ReadConfigurationParamAnswer(QStringList)";

ReadConfigurationParamAnswer answerOf(const char *row)
{
    return ReadConfigurationParamAnswer(tokens(row));
}

void expectRefused(const char *code, const char *text, const char *answer)
{
    expectRefusal(code, text, ofTokens, [&] { answerOf(answer); });
}

} // namespace

TEST(ReadConfigurationParamAnswer, readsTheRowOfItsStructure)
{
    const auto answer = answerOf("07 19 63 02 01 01 01 06");
    ASSERT_NE(dynamic_cast<const LCK_cdata *>(answer.confData()), nullptr);
    EXPECT_EQ(answer.configurationDataStr(), QStringLiteral("@LCK 1,6"));
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"cmd_code": "@LCK", "cmd_parameters": "1,6", "cmd_value": 25})");
}

TEST(ReadConfigurationParamAnswer, makesTheClassOfEachStructure)
{
    // rows of exactly the mandatory fields, by code
    const int mandatory[] = {0, 0,  0, 7, 7, 20, 5,  3,  6, 9, 5, 2, 0, 2,
                             2, 11, 9, 2, 2, 17, 12, 11, 7, 0, 0, 1, 3};
    const QList<int> withoutClass{12, 23, 24};
    for (int code = 3; code <= 26; ++code) {
        SCOPED_TRACE(code);
        QStringList row{QStringLiteral("00"), QString::number(code, 16), QStringLiteral("01"),
                        QStringLiteral("00"), QStringLiteral("01"),      QStringLiteral("01")};
        for (int i = 0; i < mandatory[code]; ++i)
            row << QStringLiteral("01") << QStringLiteral("02");
        const ReadConfigurationParamAnswer answer(row);
        ASSERT_TRUE(answer.confData());
        EXPECT_EQ(answer.confData()->commandCode(), code);
        EXPECT_EQ(answer.confData()->numOfConfigurationParams(), mandatory[code]);
        EXPECT_EQ(dynamic_cast<const GENERIC_cdata *>(answer.confData()) != nullptr,
                  withoutClass.contains(code));
        if (mandatory[code] > 0) {
            row.removeLast();
            EXPECT_THROW(ReadConfigurationParamAnswer{row}, FW_Exception);
        }
    }
}

TEST(ReadConfigurationParamAnswer, keepsTheRowOfAStructureWithoutAClass)
{
    const auto named = answerOf("09 0C 01 03 01 01 02 36 01 01 07");
    ASSERT_NE(dynamic_cast<const GENERIC_cdata *>(named.confData()), nullptr);
    EXPECT_EQ(named.configurationDataStr(), QStringLiteral("@AUT 1,300,7"));
    const auto unnamed = answerOf("07 1B 01 02 01 02 01 06");
    EXPECT_EQ(unnamed.confData()->commandCode(), 27);
    EXPECT_EQ(unnamed.configurationDataStr(), QStringLiteral(" 2,6"));
    EXPECT_EQ(dumped(unnamed.toXmlRpcValue()),
              R"({"cmd_code": "", "cmd_parameters": "2,6", "cmd_value": 27})");
}

TEST(ReadConfigurationParamAnswer, readsANameFromTheRow)
{
    const auto answer = answerOf("0A 02 01 02 01 01 05 52 6F 74 61 6E");
    EXPECT_EQ(answer.configurationDataStr(), QStringLiteral("@NOM 1,Rotan"));
}

TEST(ReadConfigurationParamAnswer, refusesAnAnswerWithoutItsHead)
{
    expectRefused("DE00078", "Command code not found in answer", "00");
    expectRefused("DE00079", "Invalid command code type found in answer", "01 zz");
    expectRefused("DE00080", "ID number not found in answer", "01 19");
    expectRefused("DE00081", "Invalid ID number type found in answer", "02 19 zz");
    expectRefused("DE00082", "Fields number not found in answer", "02 19 01");
    expectRefused("DE00083", "Invalid fields number type found in answer", "03 19 01 zz");
}

TEST(ReadConfigurationParamAnswer, refusesARowThatItsStructureRefuses)
{
    expectRefusal("DE00085", "Command enabled field not found in answer",
                  "ConfData::ConfData(int, QStringList)", [] { answerOf("03 19 01 02"); });
    expectRefusal("DE02438", "NEW_DATA field not found in answer", "LCK_cdata::LCK_cdata(QStringList, int)",
                  [] { answerOf("07 19 01 03 01 01 01 06"); });
}

TEST(ReadConfigurationParamAnswer, holdsNoRowByDefault)
{
    const ReadConfigurationParamAnswer fromStruct(structOf({{"cmd_value", Value(25)}}));
    for (const ReadConfigurationParamAnswer *answer :
         {&fromStruct, static_cast<const ReadConfigurationParamAnswer *>(nullptr)}) {
        SCOPED_TRACE(answer ? "of a struct" : "none");
        ReadConfigurationParamAnswer copy = answer ? *answer : ReadConfigurationParamAnswer();
        EXPECT_FALSE(copy.confData());
        EXPECT_EQ(copy.configurationDataStr(), QString());
        EXPECT_EQ(dumped(copy.toXmlRpcValue()), "0");
        FW_Dispenser machine;
        EXPECT_FALSE(copy.updateConfiguration(&machine, nullptr, nullptr));
    }
}

TEST(ReadConfigurationParamAnswer, copiesAndDropsItsRow)
{
    const auto answer = answerOf("07 19 01 02 01 01 01 06");
    const std::unique_ptr<ReadConfigurationParamAnswer> copy(answer.clone());
    EXPECT_NE(copy->confData(), answer.confData());
    copy->clear();
    EXPECT_FALSE(copy->confData());
    EXPECT_EQ(answer.configurationDataStr(), QStringLiteral("@LCK 1,6"));
}

TEST(ReadConfigurationParamAnswer, appliesItsRowAndIsContent)
{
    auto answer = answerOf("07 19 01 02 01 02 01 06");
    FW_Dispenser machine;
    EXPECT_TRUE(answer.updateConfiguration(&machine, nullptr, nullptr));
    const auto *lock = dynamic_cast<const FW_Lock *>(qAsConst(machine).getDevice(17));
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(lock->manualUnlockSignalMask(), 6);
    EXPECT_FALSE(lock->isEnabled());
    EXPECT_TRUE(answer.updateConfiguration(nullptr, nullptr, nullptr)); // whatever the row says
}

TEST(ReadConfigurationParamAnswer, isEqualToTheSameAlone)
{
    const auto answer = answerOf("07 1B 01 02 01 02 01 06");
    const auto same = answerOf("07 1B 09 02 01 02 01 06");
    const auto otherCode = answerOf("07 1C 01 02 01 02 01 06");
    const auto otherRow = answerOf("07 1B 01 02 01 02 01 07");
    const ReadConfigurationParamAnswer without;
    const SerialProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&otherCode));
    EXPECT_FALSE(answer.equalTo(&otherRow));
    EXPECT_FALSE(answer.equalTo(&without));
    EXPECT_FALSE(without.equalTo(&answer));
    EXPECT_TRUE(without.equalTo(std::make_unique<ReadConfigurationParamAnswer>().get()));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}
