// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/fwerroranswer.h"

#include "base/outofmemory.h"
#include "status/errortesting.h"

#include <memory>

namespace {

using namespace testing_status;

constexpr char ofTokens[] = "FwErrorAnswer::FwErrorAnswer(QStringList)";
constexpr char ofValue[] = "FwErrorAnswer::FwErrorAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char tooShort[] = "Error during command answer decoding: bad length";
constexpr char noModule[] = "Error during command answer decoding: module value not found";
constexpr char cutShort[] = "Error during command answer decoding: errors value expected";

std::string errorsOf(const char *tokens)
{
    return shown(FwErrorAnswer(tokensOf(tokens)).errorList());
}

void expectTokensRefused(const QStringList &tokens, const char *code, const char *text, const char *function)
{
    SCOPED_TRACE(tokens.join(' ').toStdString());
    expectRefusal(code, text, function, [&] { FwErrorAnswer{tokens}; });
}

void expectTokensRefused(const char *tokens, const char *code, const char *text)
{
    expectTokensRefused(tokensOf(tokens), code, text, ofTokens);
}

Value packetOf(const Value &errors)
{
    return structOf({{"fw_errors", errors}});
}

TEST(FwErrorAnswer, startsCleared)
{
    const FwErrorAnswer answer;
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_TRUE(answer.hwErrors().isEmpty());
    EXPECT_TRUE(answer.confErrors().isEmpty());
    EXPECT_EQ(answer.errorsType(), -1);
    EXPECT_TRUE(answer.errorList().isEmpty());
}

TEST(FwErrorAnswer, isClearedAgain)
{
    FwErrorAnswer answer(packetOf(arrayOf(hardwareErrorStruct(1), configurationErrorStruct(2))));
    EXPECT_EQ(answer.errorsType(), 1);
    answer.clear();
    EXPECT_TRUE(answer.hwErrors().isEmpty());
    EXPECT_TRUE(answer.confErrors().isEmpty());
    EXPECT_EQ(answer.errorsType(), -1);
}

TEST(FwErrorAnswer, readsAPacketOfHardwareErrors)
{
    const FwErrorAnswer answer(tokensOf("D 1 4 2 7 1 2 3 1F F5 5 0 0 60"));
    EXPECT_EQ(shown(answer.errorList()), "hw 182041 7 31 true 1, hw 5 245 0 true 1");
    EXPECT_EQ(answer.hwErrors().size(), 2);
    EXPECT_TRUE(answer.confErrors().isEmpty());
    EXPECT_EQ(answer.errorsType(), 1);
    EXPECT_EQ(answer.hwErrors()[0].timestamp().timeSpec(), Qt::UTC);
}

TEST(FwErrorAnswer, readsAPacketOfConfigurationErrors)
{
    const FwErrorAnswer answer(tokensOf("8 2 0 1 7 F5 F5 F5 4A"));
    EXPECT_EQ(shown(answer.errorList()), "conf 14886935 7 10 false"); // 246^3 - 1
    EXPECT_EQ(answer.confErrors().size(), 1);
    EXPECT_TRUE(answer.hwErrors().isEmpty());
    EXPECT_EQ(answer.errorsType(), 2);
}

TEST(FwErrorAnswer, addsUpTheDigitsOfACode)
{
    EXPECT_EQ(errorsOf("8 1 0 1 0 1 0 0 40"), "hw 1 0 0 false 1");
    EXPECT_EQ(errorsOf("8 1 0 1 0 0 1 0 40"), "hw 246 0 0 false 1");
    EXPECT_EQ(errorsOf("8 1 0 1 0 0 0 1 40"), "hw 60516 0 0 false 1");
    EXPECT_EQ(errorsOf("8 1 0 1 0 1 2 3 40"), "hw 182041 0 0 false 1"); // 1 + 2 * 246 + 3 * 60516
}

TEST(FwErrorAnswer, takesTheExtraFlagsApart)
{
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 0"), "hw 5 7 0 true 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 40"), "hw 5 7 0 false 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 20"), "hw 5 7 0 true 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 60"), "hw 5 7 0 true 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 1f"), "hw 5 7 31 true 1");
    for (const auto &[token, value] : {std::pair("1", "1"), std::pair("2", "2"), std::pair("4", "4"),
                                       std::pair("8", "8"), std::pair("10", "16")})
        EXPECT_EQ(errorsOf((std::string("8 2 0 1 7 5 0 0 ") + token).c_str()),
                  std::string("conf 5 7 ") + value + " true");
    // bit 7 and above take no part
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 80"), "hw 5 7 0 true 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 CA"), "hw 5 7 10 false 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 FFFFFFCA"), "hw 5 7 10 false 1");
}

TEST(FwErrorAnswer, passesOverTheIndexAndWhatFollows)
{
    EXPECT_EQ(errorsOf("8 1 7FFFFFFF 1 7 5 0 0 0"), "hw 5 7 0 true 1");
    EXPECT_EQ(errorsOf("8 1 0 1 7 5 0 0 0 x y z"), "hw 5 7 0 true 1");
    EXPECT_EQ(errorsOf("D 1 0 1 7 5 0 0 0 8 6 0 0 0"), "hw 5 7 0 true 1") << "more than the number promised";
    EXPECT_EQ(FwErrorAnswer(tokensOf("8 1 0 1 7 5 0 0 0")).serialParameters(),
              QStringList({"1", "0", "1", "7", "5", "0", "0", "0"}));
}

TEST(FwErrorAnswer, refusesAHeadThatIsNone)
{
    expectTokensRefused("3 x y z", "DE00166", "Error during command answer decoding: error type");
    for (const char *tokens : {"3 0 y z", "3 3 y z", "3 FF y z"})
        expectTokensRefused(tokens, "DE00137", "Error during command answer decoding: invalid error type");
    expectTokensRefused("3 1 y z", "DE00134", "Error during command answer decoding: error packet index");
    expectTokensRefused("3 1 0 z", "DE00135", "Error during command answer decoding: errors count");
    expectTokensRefused("3 2 0 0", "DE00167",
                        "Error during command answer decoding: error count value equal to 0");
    expectTokensRefused("8 2 0 0 7 5 0 0 0", "DE00167",
                        "Error during command answer decoding: error count value equal to 0");
    expectTokensRefused("3 1 0 1", "DE00092", noModule);
}

TEST(FwErrorAnswer, refusesAnErrorThatIsNone)
{
    const struct
    {
        int token;
        const char *code;
        const char *text;
    } refusals[] = {{0, "DE00136", "Error during command answer decoding: module value"},
                    {1, "DE00138", "Error during command answer decoding: error low value"},
                    {2, "DE00139", "Error during command answer decoding: error high value"},
                    {3, "DE00860", "Error during command answer decoding: error upper high value"},
                    {4, "DE00451", "Error during command answer decoding: extra flag value"}};
    for (const auto &refusal : refusals) {
        for (int error : {0, 1}) {
            QStringList tokens = tokensOf("D 1 0 2 7 5 0 0 0 8 6 0 0 0");
            for (int i = 4 + 5 * error + refusal.token; i < tokens.size(); ++i)
                tokens[i] = "x"; // the first of them is refused
            expectTokensRefused(tokens, refusal.code, refusal.text, ofTokens);
        }
    }
    expectTokensRefused("4 1 0 1 x", "DE00136", "Error during command answer decoding: module value");
}

TEST(FwErrorAnswer, refusesACodeBeyondAnInt)
{
    // 2^31 - 1 is 79 + 246 * 52 + 60516 * 35486
    EXPECT_EQ(errorsOf("8 1 0 1 7 4F 34 8A9E 0"), "hw 2147483647 7 0 true 1");
    expectTokensRefused("8 1 0 1 7 50 34 8A9E 0", "DE00860",
                        "Error during command answer decoding: error upper high value");
    expectTokensRefused("8 1 0 1 7 7FFFFFFF 7FFFFFFF 7FFFFFFF 0", "DE00860",
                        "Error during command answer decoding: error upper high value");
}

TEST(FwErrorAnswer, refusesTokensThatAreCutShort)
{
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectTokensRefused(QStringList(), "DE00076", "Empty answer received", serial);
    expectTokensRefused(tokensOf("ZZ 1 0 1"), "DE00070", "Invalid parameter length type found in answer",
                        serial);
    const QStringList whole = tokensOf("D 1 0 2 7 5 0 0 0 8 6 0 0 0");
    for (int size = 1; size < whole.size(); ++size) {
        const QStringList cut = whole.mid(0, size);
        expectTokensRefused(cut, "DE00077", tooShort, serial);
        // the same where the length says no more
        const QStringList told = QStringList{QString::number(size - 1, 16)} + cut.mid(1);
        if (size < 4)
            expectTokensRefused(told, "DE00090", tooShort, ofTokens);
        else if (size == 4 || size == 9)
            expectTokensRefused(told, "DE00092", noModule, ofTokens);
        else
            expectTokensRefused(told, "DE00168", cutShort, ofTokens);
    }
    EXPECT_EQ(FwErrorAnswer(whole).hwErrors().size(), 2);
}

TEST(FwErrorAnswer, refusesANumberThatNoTokensFollow)
{
    expectTokensRefused("8 1 0 7FFFFFFF 7 5 0 0 0", "DE00092", noModule);
    expectTokensRefused("8 1 0 FFFFFFFF 7 5 0 0 0", "DE00092", noModule);
}

TEST(FwErrorAnswer, takesAnyHexadecimalNumberOf32Bits)
{
    EXPECT_EQ(FwErrorAnswer(tokensOf("8 1 FFFFFFFF 1 7 5 0 0 0")).hwErrors().size(), 1);
    expectTokensRefused("8 80000001 0 1 7 5 0 0 0", "DE00137",
                        "Error during command answer decoding: invalid error type");
    expectTokensRefused("8 1 100000000 1 7 5 0 0 0", "DE00134",
                        "Error during command answer decoding: error packet index");
}

TEST(FwErrorAnswer, travelsWithTheHardwareErrorsFirst)
{
    const Value value = packetOf(arrayOf(configurationErrorStruct(3), hardwareErrorStruct(1),
                                         configurationErrorStruct(4), hardwareErrorStruct(2)));
    const FwErrorAnswer answer(value);
    EXPECT_EQ(shown(answer.errorList()),
              "hw 1 7 31 true 4, hw 2 7 31 true 4, conf 3 2 5 false, conf 4 2 5 false");
    EXPECT_EQ(answer.protoType(), 1);
    const Value ordered = packetOf(arrayOf(hardwareErrorStruct(1), hardwareErrorStruct(2),
                                           configurationErrorStruct(3), configurationErrorStruct(4)));
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dumped(ordered));
    EXPECT_EQ(FwErrorAnswer(answer.toXmlRpcValue()), answer);
}

TEST(FwErrorAnswer, writesAnEmptyArrayWithoutErrors)
{
    EXPECT_EQ(dumped(FwErrorAnswer().toXmlRpcValue()), R"({"fw_errors": []})");
    EXPECT_EQ(FwErrorAnswer(packetOf(arrayOf())), FwErrorAnswer());
}

TEST(FwErrorAnswer, dropsErrorsOfOtherKinds)
{
    Value unknown = hardwareErrorStruct(9);
    unknown["error_type"] = 4;
    const FwErrorAnswer answer(
        packetOf(arrayOf(driverErrorStruct("DE00289"), unknown, configurationErrorStruct(3), structOf({}))));
    EXPECT_EQ(shown(answer.errorList()), "conf 3 2 5 false");
}

TEST(FwErrorAnswer, refusesAValueWithoutErrors)
{
    for (const Value &value :
         {Value(), Value(5), arrayOf(), structOf({}), structOf({{"errors", arrayOf()}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00450", "FwErrorAnswer: Errors during FW_Error list creation", ofValue,
                      [&] { FwErrorAnswer{value}; });
    }
}

TEST(FwErrorAnswer, refusesAnErrorThatIsNoError)
{
    for (const Value &errors : {Value(5), Value("x"), structOf({}), arrayOf(5), arrayOf(structOf({}), "x"),
                                arrayOf(hardwareErrorStruct(1), arrayOf())}) {
        SCOPED_TRACE(dumped(errors));
        expectRefusal("DE00449", "FwErrorAnswer: errors during FW_Error creation", ofValue,
                      [&] { FwErrorAnswer{packetOf(errors)}; });
    }
    Value hardware = hardwareErrorStruct(1);
    hardware["module"] = "x";
    expectRefusal("DE03004", "FW_HwError: expected the numbers of a hardware error",
                  "FW_HwError::FW_HwError(const XmlRpc::XmlRpcValue&)",
                  [&] { FwErrorAnswer{packetOf(arrayOf(hardware))}; });
    Value configuration = configurationErrorStruct(1);
    configuration["code"] = true;
    expectRefusal("DE03005", "FW_ConfError: expected the numbers of a configuration error",
                  "FW_ConfError::FW_ConfError(const XmlRpc::XmlRpcValue&)",
                  [&] { FwErrorAnswer{packetOf(arrayOf(configuration))}; });
}

TEST(FwErrorAnswer, saysSoWhenThereIsNoMemoryForAnError)
{
    const Value value = packetOf(arrayOf(hardwareErrorStruct(1)));
    EXPECT_EQ(FwErrorAnswer(value).errorsType(), 1);
    expectRefusal("DE00449", "FwErrorAnswer: errors during FW_Error creation", ofValue,
                  [&] { outOfMemoryOnce([&] { FwErrorAnswer{value}; }); });
}

TEST(FwErrorAnswer, knowsTheTypesOfErrors)
{
    for (int type : {1, 2})
        EXPECT_TRUE(FwErrorAnswer::checkErrorAnswerType(type)) << type;
    for (int type : {-1, 0, 3})
        EXPECT_FALSE(FwErrorAnswer::checkErrorAnswerType(type)) << type;
}

TEST(FwErrorAnswer, isEqualByItsErrors)
{
    const FwErrorAnswer answer(tokensOf("8 1 0 1 7 5 2 1 0"));
    const std::unique_ptr<const FwErrorAnswer> copy(answer.clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_TRUE(answer == FwErrorAnswer(tokensOf("8 1 3 1 7 5 2 1 0"))) << "another packet";
    for (const char *other :
         {"8 2 0 1 7 5 2 1 0", "8 1 0 1 8 5 2 1 0", "8 1 0 1 7 6 2 1 0", "8 1 0 1 7 5 3 1 0",
          "8 1 0 1 7 5 2 2 0", "8 1 0 1 7 5 2 1 1", "8 1 0 1 7 5 2 1 40", "D 1 0 2 7 5 2 1 0 7 5 2 1 0"}) {
        SCOPED_TRACE(other);
        const FwErrorAnswer another(tokensOf(other));
        EXPECT_FALSE(answer.equalTo(&another));
        EXPECT_TRUE(answer != another);
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
