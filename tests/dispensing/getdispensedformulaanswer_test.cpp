// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaanswer.h"

#include "dispensing/querytesting.h"

#include <memory>

namespace {

using namespace testing_dispensing;

using Answer = GetDispensedFormulaAnswer;

constexpr char ofTokens[] = "GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QStringList)";
constexpr char ofList[] = "GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(QList<QVariant>&)";
constexpr char ofValue[] = "GetDispensedFormulaAnswer::GetDispensedFormulaAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char badAnswer[] = "Error during dispensed formula serial answer decoding: bad answer received";

/** The firmware's answer with these parameters: their number comes first. */
QStringList answerWith(const QStringList &parameters)
{
    return QStringList(QString::number(parameters.size(), 16)) + parameters;
}

/** Position 1 without a queue: 5 of 10 steps. Position 17 in queue 3: none of 300. */
const QStringList twoCircuits = {"2",  "2",             // criterion, circuits
                                 "1",  "0",             // position, queue
                                 "1",  "A",  "1", "5",  // total, dispensed
                                 "11", "3",             // position, queue
                                 "2",  "36", "1", "0"}; // total, dispensed

Formula inSteps(int criterion, std::initializer_list<Pour> items)
{
    Formula made = steps(items);
    made.setExecutionCriterion(criterion);
    return made;
}

Value structWith(const Value &dispensed, const Value &remaining, const Value &total)
{
    return structOf(
        {{"dispensed_formula", dispensed}, {"remaining_formula", remaining}, {"total_formula", total}});
}

// ---------------------------------------------------------------- tokens

TEST(GetDispensedFormulaAnswer, readsWhatWasPouredAndTheWhole)
{
    const Answer answer(answerWith(twoCircuits));
    EXPECT_EQ(answer.dispensedFormula(), inSteps(2, {{"1", 5, 0}, {"17", 0, 3}}));
    EXPECT_EQ(answer.totalFormula(), inSteps(2, {{"1", 10, 0}, {"17", 300, 3}}));
    EXPECT_EQ(answer.remainingFormula(), Formula()) << "the firmware does not tell it";
    EXPECT_EQ(answer.totalFormula().decimals(), 3);
    EXPECT_EQ(answer.totalFormula().levelsManagementPolicy(), 0);
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), twoCircuits);
}

TEST(GetDispensedFormulaAnswer, readsAnAnswerWithoutCircuits)
{
    for (const QStringList &parameters : {QStringList{"1", "0"}, QStringList{"1", "0", "x", "7"}}) {
        SCOPED_TRACE(parameters.join(' ').toStdString());
        const Answer answer(answerWith(parameters));
        EXPECT_EQ(answer.dispensedFormula(), inSteps(1, {}));
        EXPECT_EQ(answer.totalFormula(), inSteps(1, {}));
        EXPECT_EQ(answer.remainingFormula(), Formula());
    }
}

TEST(GetDispensedFormulaAnswer, readsNumbersOfNoDigitsAsZero)
{
    const Answer answer(answerWith({"0", "1", "4", "0", "0", "0"}));
    EXPECT_EQ(answer.dispensedFormula(), inSteps(0, {{"4", 0, 0}}));
    EXPECT_EQ(answer.totalFormula(), inSteps(0, {{"4", 0, 0}}));
}

TEST(GetDispensedFormulaAnswer, readsNumbersOfManyDigits)
{
    // 1 + 2 * 246 + 3 * 60516 = 182041, and 245 + 245 * 246 = 60515
    const Answer answer(answerWith({"0", "1", "4", "0", "3", "1", "2", "3", "2", "F5", "f5"}));
    EXPECT_EQ(answer.totalFormula(), inSteps(0, {{"4", 182041, 0}}));
    EXPECT_EQ(answer.dispensedFormula(), inSteps(0, {{"4", 60515, 0}}));
}

TEST(GetDispensedFormulaAnswer, leavesWhatFollowsUnread)
{
    EXPECT_EQ(Answer(answerWith(twoCircuits + QStringList{"x", "7"})), Answer(answerWith(twoCircuits)));
    EXPECT_EQ(Answer(QStringList{"2", "1", "0", "7"}), Answer(QStringList{"2", "1", "0"}));
}

TEST(GetDispensedFormulaAnswer, convertsTheCriterion)
{
    struct Row
    {
        const char *token;
        int criterion;
    };
    constexpr Row rows[] = {{"0", 0},  {"1", 1},  {"2", 2},  {"8", 8},   {"10", 16},     {"40", 0},
                            {"41", 1}, {"42", 2}, {"48", 8}, {"50", 16}, {"3", 0},       {"9", 0},
                            {"43", 0}, {"20", 0}, {"80", 0}, {"FF", 0},  {"7FFFFFFF", 0}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.token);
        const Answer answer(answerWith({row.token, "1", "4", "0", "1", "9", "1", "7"}));
        EXPECT_EQ(answer.dispensedFormula(), inSteps(row.criterion, {{"4", 7, 0}}));
        EXPECT_EQ(answer.totalFormula(), inSteps(row.criterion, {{"4", 9, 0}}));
    }
}

TEST(GetDispensedFormulaAnswer, refusesAnAnswerThatEndsTooEarly)
{
    const char *const codes[] = {"DE01698", "DE01698",                        // criterion, circuits
                                 "DE01702", "DE01702", "DE01702",             // a circuit has more
                                 "DE01706", "DE01707", "DE01708",             // digit, count, digit
                                 "DE01702", "DE01704", "DE01705",             // position, queue, count
                                 "DE01706", "DE01706", "DE01707", "DE01708"}; // digits, count, digit
    // here the last number has a digit, so that it can be missing
    QStringList parameters = twoCircuits;
    parameters.last() = "1";
    parameters.append("7");
    ASSERT_EQ(parameters.size(), 15);
    for (int size = 0; size < parameters.size(); ++size) {
        SCOPED_TRACE(size);
        expectRefusal(codes[size], badAnswer, ofTokens,
                      [&] { const Answer answer(answerWith(parameters.mid(0, size))); });
    }
    EXPECT_EQ(Answer(answerWith(parameters)).dispensedFormula(), inSteps(2, {{"1", 5, 0}, {"17", 7, 3}}));
}

TEST(GetDispensedFormulaAnswer, refusesTokensThatAreNoNumbers)
{
    const char *const codes[] = {"DE01699", "DE01701", "DE01703", "DE01704", "DE01705", "DE01706", "DE01707",
                                 "DE01708", "DE01703", "DE01704", "DE01705", "DE01706", "DE01706", "DE01707"};
    for (int i = 0; i < 14; ++i) {
        SCOPED_TRACE(i);
        for (const char *bad : {"x", "", "FFFFFFFFF"}) {
            SCOPED_TRACE(bad);
            QStringList parameters = twoCircuits;
            parameters[i] = bad;
            const bool isDigit = i == 5 || i == 7 || i == 11 || i == 12;
            if (isDigit && qstrcmp(bad, "FFFFFFFFF") == 0)
                continue; // only a digit may be that great
            expectRefusal(codes[i], badAnswer, ofTokens,
                          [&] { const Answer answer(answerWith(parameters)); });
        }
    }
}

TEST(GetDispensedFormulaAnswer, asksForNoMemoryThatTheTokensDoNotFill)
{
    const auto expectTokenRefusal = [](const char *code, const QStringList &parameters) {
        expectRefusal(code, badAnswer, ofTokens, [&] { const Answer answer(answerWith(parameters)); });
    };
    expectTokenRefusal("DE01702", {"2", "7FFFFFFF"});
    expectTokenRefusal("DE01702", {"2", "7FFFFFFF", "1", "0", "0", "0"});
    expectTokenRefusal("DE01701", {"2", "80000000"});
    expectTokenRefusal("DE01706", {"2", "1", "1", "0", "7FFFFFFF", "1"});
    expectTokenRefusal("DE01708", {"2", "1", "1", "0", "0", "7FFFFFFF", "1"});
    expectTokenRefusal("DE01705", {"2", "1", "1", "0", "FFFFFFFF", "1"});
}

TEST(GetDispensedFormulaAnswer, refusesWhatNoFormulaHolds)
{
    // 40 * 246^6 is below 2^53, 41 * 246^6 is above
    const QStringList great = {"7", "0", "0", "0", "0", "0", "0", "28"};
    const QStringList tooGreat = {"7", "0", "0", "0", "0", "0", "0", "29"};
    const QStringList none = {"0"};
    const QStringList head = {"2", "1", "1", "0"};
    EXPECT_EQ(Answer(answerWith(head + great + great)).totalFormula(),
              inSteps(2, {{"1", 8864834538723840.0, 0}}));
    for (const QStringList &numbers : {tooGreat + none, none + tooGreat}) {
        SCOPED_TRACE(numbers.join(' ').toStdString());
        expectRefusal("DE01709", "GetDispensedFormulaAnswer failed: error in Formula construction", ofTokens,
                      [&] { const Answer answer(answerWith(head + numbers)); });
    }

    const QStringList endless = {"9", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5"};
    expectRefusal("DE01706", badAnswer, ofTokens,
                  [&] { const Answer answer(answerWith(head + endless + none)); });
    expectRefusal("DE01708", badAnswer, ofTokens,
                  [&] { const Answer answer(answerWith(head + none + endless)); });
}

TEST(GetDispensedFormulaAnswer, refusesWhatIsNoAnswer)
{
    constexpr char ofBase[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", ofBase, [] { const Answer answer{QStringList()}; });
    expectRefusal("DE00070", "Invalid parameter length type found in answer", ofBase, [] {
        const Answer answer{QStringList{"x", "1", "0"}};
    });
    expectRefusal("DE00077", "Error during command answer decoding: bad length", ofBase, [] {
        const Answer answer{QStringList{"3", "1", "0"}};
    });
}

// ---------------------------------------------------------------- formulas

TEST(GetDispensedFormulaAnswer, holdsThreeFormulas)
{
    const Formula dispensed = grams({{"1", 1}});
    const Formula remaining = grams({{"1", 2}});
    const Formula total = grams({{"1", 3}});
    List list = {variantOf(dispensed), variantOf(remaining), variantOf(total)};
    int form = 0;
    for (const Answer &answer :
         {Answer(dispensed, remaining, total), Answer(list),
          Answer(structWith(dispensed.toXmlRpcValue(), remaining.toXmlRpcValue(), total.toXmlRpcValue()))}) {
        SCOPED_TRACE(++form);
        EXPECT_EQ(answer.dispensedFormula(), dispensed);
        EXPECT_EQ(answer.remainingFormula(), remaining);
        EXPECT_EQ(answer.totalFormula(), total);
        EXPECT_EQ(answer.protoType(), 1);
    }
    List maps = {formulaMap(), formulaMap(), formulaMap()};
    EXPECT_EQ(Answer(maps), Answer(formula(), formula(), formula()));
}

TEST(GetDispensedFormulaAnswer, travelsAsAStruct)
{
    const Answer answer(formula(), Formula(), inSteps(2, {{"17", 300, 3}}));
    EXPECT_EQ(
        dumped(answer.toXmlRpcValue()),
        std::string(R"({"dispensed_formula": )") + formulaWritten +
            R"(, "remaining_formula": {"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": [], )"
            R"("levels_policy": 0, "quantities": [], "quantity_unit": 3}, )"
            R"("total_formula": {"decimals": 3, "exec_criterion": 2, "formula_type": 1, "ids": ["17"], )"
            R"("levels_policy": 0, "quantities": [300.000], "quantity_unit": 1, "queue_ids": [3]}})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetDispensedFormulaAnswer, refusesAStructWithoutTheFormulas)
{
    const Value good = formulaStruct();
    for (const Value &value : {Value(), Value(0), arrayOf(good, good, good), structOf({}), good,
                               structOf({{"remaining_formula", Value(7)}, {"total_formula", good}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01711", "GetDispensedFormulaAnswer failed: expected Dispensed Formula parameter",
                      ofValue, [&] { const Answer answer(value); });
    }
    expectRefusal(
        "DE01713", "GetDispensedFormulaAnswer failed: expected Remaining Formula parameter", ofValue, [&] {
            const Answer answer(structOf({{"dispensed_formula", good}, {"total_formula", Value(7)}}));
        });
    expectRefusal(
        "DE01715", "GetDispensedFormulaAnswer failed: expected Total Formula parameter", ofValue, [&] {
            const Answer answer(structOf({{"dispensed_formula", good}, {"remaining_formula", good}}));
        });
}

TEST(GetDispensedFormulaAnswer, refusesAMemberThatIsNoFormula)
{
    constexpr char noFormula[] = "GetDispensedFormulaAnswer failed: expected Formula type parameter";
    const Value good = formulaStruct();
    for (const Value &bad : {Value(7), unreadableFormula(), purgeStruct(), arrayOf(good)}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01710", noFormula, ofValue, [&] { const Answer answer(structWith(bad, bad, bad)); });
        expectRefusal("DE01712", noFormula, ofValue,
                      [&] { const Answer answer(structWith(good, bad, bad)); });
        expectRefusal("DE01714", noFormula, ofValue,
                      [&] { const Answer answer(structWith(good, good, bad)); });
    }
}

TEST(GetDispensedFormulaAnswer, refusesAListOfOtherThings)
{
    const QVariant good = variantOf(formula());
    const auto expectListRefusal = [](const char *code, const char *text, List list) {
        expectRefusal(code, text, ofList, [&] { const Answer answer(list); });
    };
    for (const List &list : {List(), List{good}, List{good, good}, List{good, good, good, good}}) {
        SCOPED_TRACE(shown(list));
        expectListRefusal("DE01719",
                          "GetDispensedFormulaAnswer decoding failed: invalid QVariant values length", list);
    }
    for (const QVariant &bad : {QVariant(), QVariant(7), unreadableFormulaVariant(), variantOf(purge())}) {
        SCOPED_TRACE(shown({bad}));
        expectListRefusal("DE01716",
                          "GetDispensedFormulaAnswer decoding failed: invalid QVariant value (expected "
                          "Dispensed Formula type)",
                          {bad, bad, bad});
        expectListRefusal("DE01531",
                          "GetDispensedFormulaAnswer decoding failed: invalid QVariant value (expected "
                          "Remaining Formula type)",
                          {good, bad, bad});
        expectListRefusal("DE01718",
                          "GetDispensedFormulaAnswer decoding failed: invalid QVariant value (expected "
                          "Total Formula type)",
                          {good, good, bad});
    }
}

TEST(GetDispensedFormulaAnswer, goesBackToItsDefaults)
{
    Answer answer(formula(), formula(), formula());
    answer.setDefaults();
    EXPECT_EQ(answer, Answer());
    EXPECT_EQ(answer.dispensedFormula(), Formula());
    EXPECT_EQ(answer.protoType(), 1);
}

TEST(GetDispensedFormulaAnswer, comparesAllFormulas)
{
    const Formula other = grams({{"1", 2.6}});
    const Answer answer(formula(), formula(), formula());
    const Answer same = answer;
    EXPECT_EQ(answer, same);
    EXPECT_TRUE(answer.equalTo(&same));
    int form = 0;
    for (const Answer &different : {Answer(other, formula(), formula()), Answer(formula(), other, formula()),
                                    Answer(formula(), formula(), other)}) {
        SCOPED_TRACE(++form);
        EXPECT_NE(answer, different);
        EXPECT_FALSE(answer.equalTo(&different));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetDispensedFormulaAnswer, clonesItself)
{
    const Answer answer(answerWith(twoCircuits));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetDispensedFormulaAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

} // namespace
