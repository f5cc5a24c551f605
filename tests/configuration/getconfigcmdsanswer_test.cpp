// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdsanswer.h"

#include "configurationtesting.h"

#include <memory>

namespace {

using namespace testing_configuration;

constexpr char ofTokens[] = "GetConfigCmdsAnswer::GetConfigCmdsAnswer(QStringList)";

void expectRefused(const char *code, const char *text, const char *answer)
{
    SCOPED_TRACE(answer);
    expectRefusal(code, text, ofTokens, [&] { GetConfigCmdsAnswer{tokens(answer)}; });
}

} // namespace

TEST(GetConfigCmdsAnswer, readsVersionsAndPairs)
{
    const GetConfigCmdsAnswer answer(tokens("07 02 0A 02 01 04 1A 04"));
    EXPECT_EQ(answer.version(), 2U);
    EXPECT_EQ(answer.minorVersion(), 10U);
    EXPECT_EQ(answer.commands(), (QList<QPair<unsigned, unsigned>>{{1, 4}, {26, 4}}));
    EXPECT_EQ(answer.getConfigCommands(), (QList<unsigned>{1, 26}));
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"command_codes": [{"cmd_code": 1, "field_count": 4}, {"cmd_code": 26, "field_count": 4}], )"
              R"("minor_version": 10, "version": 2})");
}

TEST(GetConfigCmdsAnswer, hasNoArrayWithoutStructures)
{
    const GetConfigCmdsAnswer answer(tokens("03 02 0A 00"));
    EXPECT_EQ(answer.commands().size(), 0);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"minor_version": 10, "version": 2})");
    EXPECT_EQ(GetConfigCmdsAnswer(tokens("03 02 0A 00 07 07")).getConfigCommands(), QList<unsigned>());
}

TEST(GetConfigCmdsAnswer, refusesAShortAnswer)
{
    expectRefused("DE01642", "Invalid answer length", "02 02 0A");
    expectRefused("DE01642", "Invalid answer length", "00");
}

TEST(GetConfigCmdsAnswer, refusesWhatIsNoNumber)
{
    expectRefused("DE01643", "Invalid version type found in answer", "05 zz 0A 01 01 04");
    expectRefused("DE01644", "Invalid minor version type found in answer", "05 02 zz 01 01 04");
    expectRefused("DE01645", "Invalid command count type found in answer", "05 02 0A zz 01 04");
    expectRefused("DE01646", "Invalid command code type found in answer", "05 02 0A 01 zz 04");
    expectRefused("DE01647", "Invalid field count type found in answer", "05 02 0A 01 01 zz");
}

TEST(GetConfigCmdsAnswer, refusesACountBeyondItsTokens)
{
    expectRefused("DE01646", "Invalid command code type found in answer", "05 02 0A 02 01 04");
    expectRefused("DE01647", "Invalid field count type found in answer", "04 02 0A 01 01");
    expectRefused("DE01646", "Invalid command code type found in answer", "05 02 0A FFFFFFFF 01 04");
}

TEST(GetConfigCmdsAnswer, keepsNothingOfAStruct)
{
    const GetConfigCmdsAnswer answer(GetConfigCmdsAnswer(tokens("05 02 0A 01 01 04")).toXmlRpcValue());
    EXPECT_EQ(answer.version(), 0U);
    EXPECT_EQ(answer.minorVersion(), 0U);
    EXPECT_EQ(answer.commands().size(), 0);
}

TEST(GetConfigCmdsAnswer, isEqualToTheSameAlone)
{
    const GetConfigCmdsAnswer answer(tokens("05 02 0A 01 01 04"));
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), "GetConfigCmdsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const char *other : {"05 03 0A 01 01 04", "05 02 0B 01 01 04", "05 02 0A 01 02 04",
                              "05 02 0A 01 01 05", "03 02 0A 00"}) {
        const GetConfigCmdsAnswer different(tokens(other));
        EXPECT_FALSE(answer.equalTo(&different)) << other;
    }
    const SerialProtoAnswer plain(tokens("05 02 0A 01 01 04"));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}
