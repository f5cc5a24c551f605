// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getlevelsensorsanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetLevelSensorsAnswer;
using Levels = QList<QPair<int, int>>;

constexpr char ofTokens[] = "GetLevelSensorsAnswer::GetLevelSensorsAnswer(QStringList)";
constexpr char ofValue[] = "GetLevelSensorsAnswer::GetLevelSensorsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char noCount[] = "GetLevelSensorsAnswer: expected the number of positions";
constexpr char noPosition[] = "GetLevelSensorsAnswer: expected a position";
constexpr char noLevel[] = "GetLevelSensorsAnswer: expected a level";

void expectTokensRefused(const char *code, const char *text, const QStringList &tokens)
{
    SCOPED_TRACE(tokens.join(' ').toStdString());
    expectRefusal(code, text, ofTokens, [&] { const Answer answer(tokens); });
}

TEST(GetLevelSensorsAnswer, readsPositionsAndDigits)
{
    const std::pair<QStringList, Levels> rows[] = {
        {{"1", "0"}, {}},
        {{"4", "1", "3", "36", "1"}, {{3, 300}}},
        {{"7", "2", "A", "F5", "F5", "4", "0", "0"}, {{10, 60515}, {4, 0}}},
        {{"5", "1", "3", "36", "1", "x"}, {{3, 300}}},
        {{"4", "1", "3", "4F", "853408"}, {{3, 2147483647}}},
    };
    for (const auto &[tokens, levels] : rows) {
        SCOPED_TRACE(tokens.join(' ').toStdString());
        EXPECT_EQ(Answer(tokens).levels(), levels);
        EXPECT_EQ(Answer(tokens).protoType(), 1);
    }
}

TEST(GetLevelSensorsAnswer, refusesTokensThatAreCutShortOrNoNumbers)
{
    expectTokensRefused("DE03192", noCount, {"0"});
    expectTokensRefused("DE03193", noPosition, {"1", "2"});
    expectTokensRefused("DE03194", noLevel, {"2", "2", "3"});
    expectTokensRefused("DE03194", noLevel, {"3", "2", "3", "36"});
    expectTokensRefused("DE03193", noPosition, {"4", "2", "3", "36", "1"});
    expectTokensRefused("DE03194", noLevel, {"5", "2", "3", "36", "1", "4"});
    expectTokensRefused("DE03194", noLevel, {"6", "2", "3", "36", "1", "4", "0"});
    expectTokensRefused("DE03192", noCount, {"4", "x", "3", "36", "1"});
    expectTokensRefused("DE03193", noPosition, {"4", "1", "x", "36", "1"});
    expectTokensRefused("DE03194", noLevel, {"4", "1", "3", "x", "1"});
    expectTokensRefused("DE03194", noLevel, {"4", "1", "3", "36", "x"});
    expectTokensRefused("DE03193", noPosition, {"1", "7FFFFFFF"});
    expectTokensRefused("DE03194", noLevel, {"4", "1", "3", "50", "853408"}); // beyond an int
}

TEST(GetLevelSensorsAnswer, travelsAsAStruct)
{
    const Answer answer(Levels{{3, 300}, {4, 0}});
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"levels": [[3, 300], [4, 0]]})");
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"levels": []})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()).levels(), (Levels{{3, 300}, {4, 0}}));
    for (const Value &value :
         {Value(), Value(3), arrayOf(3), structOf({}), structOf({{"levels", 3}}),
          structOf({{"levels", arrayOf(3, 300)}}), structOf({{"levels", arrayOf(arrayOf(3))}}),
          structOf({{"levels", arrayOf(arrayOf(3, 300, 1))}}),
          structOf({{"levels", arrayOf(arrayOf(3, "4"))}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE03195", "GetLevelSensorsAnswer: expected levels value", ofValue,
                      [&] { const Answer refused(value); });
    }
}

TEST(GetLevelSensorsAnswer, comparesAndClonesTheLevels)
{
    const Answer answer(Levels{{3, 300}});
    const std::unique_ptr<const ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetLevelSensorsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const Answer &other : {Answer(), Answer(Levels{{3, 301}}), Answer(Levels{{4, 300}})}) {
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
