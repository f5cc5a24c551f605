// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/dispinfoanswer.h"

#include "configuration/configurationtesting.h"

#include <memory>

namespace {

using namespace testing_configuration;

constexpr char ofTokens[] = "DispInfoAnswer::DispInfoAnswer(QStringList, int)";
constexpr char ofValue[] = "DispInfoAnswer::DispInfoAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char badInfo[] = "DispInfoAnswer: error in decoding";

TEST(DispInfoAnswer, isEmptyAtFirst)
{
    EXPECT_EQ(DispInfoAnswer().value(), "");
    EXPECT_EQ(DispInfoAnswer().protoType(), 1);
    EXPECT_STREQ(DispInfoAnswer::value_TAG, "value");
}

TEST(DispInfoAnswer, readsACharacterAToken)
{
    const struct
    {
        const char *tokens;
        int type;
        QString value;
    } rows[] = {
        {"0", 6, ""},          {"1 41", 6, "A"},       {"4 41 20 7a E9", 6, QString::fromUtf8("A zé")},
        {"1 FF", 6, "\u00ff"}, {"2 041 42", 6, "AB"},  {"3 6 41 42", 6, "AB"},
        {"1 6", 6, ""},        {"3 6 6 42", 6, "\6B"}, {"3 5 41 42", 6, "\5AB"},
        {"2 41 42", 65, "AB"}, {"2 6 41", 0, "\6A"},   {"1 41 42", 6, "AB"}, // whatever follows
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.tokens);
        EXPECT_EQ(DispInfoAnswer(tokens(row.tokens), row.type).value(), row.value);
    }
    EXPECT_EQ(DispInfoAnswer(tokens("2 6 41")).value(), "\6A") << "nobody told which type was asked for";
    EXPECT_EQ(DispInfoAnswer(tokens("1 0")).value(), QString(QChar(0)));
    EXPECT_EQ(DispInfoAnswer(tokens("2 6 41"), 6).serialParameters(), tokens("6 41"));
}

TEST(DispInfoAnswer, refusesATokenThatIsNoCharacter)
{
    for (const char *line : {"1 x", "2 41 G", "2 41 100", "1 -1", "2 6 FFFFFFFF", "1 100000000"}) {
        SCOPED_TRACE(line);
        expectRefusal("DE00453", badInfo, ofTokens, [&] { DispInfoAnswer(tokens(line), 6); });
    }
    expectRefusal("DE00453", badInfo, ofTokens, [] { DispInfoAnswer({"1", ""}, 6); });
}

TEST(DispInfoAnswer, refusesTokensThatAreCutShort)
{
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", serial, [] { DispInfoAnswer{QStringList()}; });
    expectRefusal("DE00070", "Invalid parameter length type found in answer", serial,
                  [] { DispInfoAnswer{tokens("x 41")}; });
    for (const char *cut : {"3", "3 6", "3 6 41"})
        expectRefusal("DE00077", "Error during command answer decoding: bad length", serial,
                      [&] { DispInfoAnswer{tokens(cut)}; });
}

TEST(DispInfoAnswer, travelsAsAStruct)
{
    const DispInfoAnswer answer(tokens("2 4B e9"));
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"value": "Ké"})");
    EXPECT_EQ(DispInfoAnswer(answer.toXmlRpcValue()), answer);
    EXPECT_EQ(DispInfoAnswer(structOf({{"value", "x"}, {"more", 1}})).value(), "x");
    for (const Value &value : {Value(), Value(5), Value("K"), arrayOf("K"), structOf({}),
                               structOf({{"value", 7}}), structOf({{"value", true}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00302", badInfo, ofValue, [&] { DispInfoAnswer{value}; });
    }
}

TEST(DispInfoAnswer, clonesAndCompares)
{
    const DispInfoAnswer answer(tokens("2 4B 31"));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "DispInfoAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_TRUE(answer == DispInfoAnswer(structOf({{"value", "K1"}})));
    const DispInfoAnswer other(tokens("2 4B 32"));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
