// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/tokens_p.h"

#include "base/basetesting.h"

using namespace testing_base;

namespace {

constexpr char signature[] = "Answer::Answer(QStringList)";
constexpr quv::Refusal refusal = {"DE7", "Bad token"};

} // namespace

TEST(Tokens, areHexadecimalNumbers)
{
    const struct
    {
        const char *token;
        unsigned number;
    } rows[] = {
        {"0", 0},
        {"7", 7},
        {"a", 10},
        {"F", 15},
        {"00", 0},
        {"0f", 15},
        {"7F", 127},
        {"fF", 255},
        {"100", 256},
        {"0071", 113},
        {"DEADBEEF", 3735928559U},
        {"FFFFFFFF", 4294967295U},
        {"00000000000000001", 1},
        {"0x1F", 31},
        {"0X1f", 31},
        {"+5", 5},
        {" 5", 5},
        {"5 ", 5},
        {" 1F ", 31},
    };
    for (const auto &row : rows) {
        unsigned number = 99;
        EXPECT_TRUE(quv::parseHex(row.token, number)) << row.token;
        EXPECT_EQ(number, row.number) << row.token;
    }
}

TEST(Tokens, areNoNumbersOtherwise)
{
    const QString tokens[] = {"",
                              " ",
                              "g",
                              "G",
                              "/",
                              ":",
                              "@",
                              "`",
                              "1G",
                              "G1",
                              "-1",
                              "--",
                              "0x",
                              "1.",
                              "1 1",
                              "ZZ",
                              "12G",
                              "100000000",
                              QString(),
                              QString(QChar(0x0661)),
                              QString(QChar(0xFF11)),
                              QString(QChar(0x0141))};
    for (const QString &token : tokens) {
        unsigned number = 99;
        EXPECT_FALSE(quv::parseHex(token, number)) << token.toStdString();
        EXPECT_EQ(number, 0U) << token.toStdString();
    }
}

TEST(TokenReader, givesNumberAfterNumber)
{
    const QStringList tokens = {"skipped", "1", "A", "FFFFFFFF"};
    quv::TokenReader reader(tokens, 1, signature);
    EXPECT_EQ(reader.remaining(), 3);
    EXPECT_FALSE(reader.atEnd());
    EXPECT_EQ(reader.next(refusal), 1);
    unsigned number = 0;
    EXPECT_TRUE(reader.next(number));
    EXPECT_EQ(number, 10U);
    EXPECT_EQ(reader.nextUnchecked(), 4294967295U);
    EXPECT_EQ(reader.remaining(), 0);
    EXPECT_TRUE(reader.atEnd());
}

TEST(TokenReader, findsNothingAtTheEnd)
{
    const QStringList tokens = {"1"};
    for (const int first : {1, 2, 100}) {
        SCOPED_TRACE(first);
        quv::TokenReader reader(tokens, first, signature);
        EXPECT_EQ(reader.remaining(), 0);
        EXPECT_TRUE(reader.atEnd());
        unsigned number = 99;
        EXPECT_FALSE(reader.next(number));
        EXPECT_EQ(reader.nextUnchecked(), 0U);
        expectRefusal("DE7", "Bad token", signature, [&] { reader.next(refusal); });
        expectRefusal("DE7", "Bad token", signature, [&] { reader.nextNumber(1, refusal); });
        EXPECT_EQ(reader.remaining(), 0);
    }
}

TEST(TokenReader, stepsOverBadTokens)
{
    const QStringList tokens = {"ZZ", "5", "ZZ", "6"};
    quv::TokenReader reader(tokens, 0, signature);
    unsigned number = 99;
    EXPECT_FALSE(reader.next(number));
    EXPECT_EQ(reader.remaining(), 3);
    EXPECT_EQ(reader.next(refusal), 5);
    EXPECT_EQ(reader.nextUnchecked(), 0U);
    EXPECT_EQ(reader.next(refusal), 6);
}

TEST(TokenReader, refusesBadTokens)
{
    for (const char *bad : {"ZZ", "", "-1", "80000000", "FFFFFFFF"}) {
        SCOPED_TRACE(bad);
        const QStringList tokens = {bad};
        quv::TokenReader reader(tokens, 0, signature);
        expectRefusal("DE7", "Bad token", signature, [&] { reader.next(refusal); });
    }
    const QStringList greatest = {"7FFFFFFF"};
    EXPECT_EQ(quv::TokenReader(greatest, 0, signature).next(refusal), 2147483647);
}

TEST(TokenReader, takesANegativeNumberWhereOneIsAskedFor)
{
    const QStringList tokens = {"-1", "-80000000", "7FFFFFFF", "0", "80000000", "zz", ""};
    quv::TokenReader reader(tokens, 0, signature);
    EXPECT_EQ(reader.nextSigned(refusal), -1);
    EXPECT_EQ(reader.nextSigned(refusal), -2147483647 - 1);
    EXPECT_EQ(reader.nextSigned(refusal), 2147483647);
    EXPECT_EQ(reader.nextSigned(refusal), 0);
    for (int i = 0; i < 4; ++i) // the last at the end
        expectRefusal("DE7", "Bad token", signature, [&] { reader.nextSigned(refusal); });
}

TEST(TokenReader, joinsDigitsLowDigitFirst)
{
    const QStringList tokens = {"36", "1", "0", "0", "1", "5"};
    quv::TokenReader reader(tokens, 0, signature);
    EXPECT_EQ(reader.nextNumber(2, refusal), 300);   // 54 + 246
    EXPECT_EQ(reader.nextNumber(3, refusal), 60516); // 246 squared
    EXPECT_EQ(reader.remaining(), 1);
    EXPECT_EQ(reader.nextNumber(1, refusal), 5);
    EXPECT_EQ(reader.nextNumber(0, refusal), 0);
    EXPECT_TRUE(reader.atEnd());
}

TEST(TokenReader, refusesDigitsThatAreMissingOrBad)
{
    const QStringList tokens = {"1", "ZZ", "3"};
    quv::TokenReader tooFew(tokens, 0, signature);
    expectRefusal("DE7", "Bad token", signature, [&] { tooFew.nextNumber(4, refusal); });
    EXPECT_EQ(tooFew.remaining(), 3);
    quv::TokenReader bad(tokens, 0, signature);
    expectRefusal("DE7", "Bad token", signature, [&] { bad.nextNumber(2, refusal); });
    const QStringList tooGreat = {"F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5", "F5"};
    quv::TokenReader great(tooGreat, 0, signature);
    expectRefusal("DE7", "Bad token", signature, [&] { great.nextNumber(9, refusal); });
}

TEST(TokenReader, refusesNumbersAboveTheGreatestThatIsAsked)
{
    const QStringList tokens = {"36", "1"}; // 300
    quv::TokenReader reader(tokens, 0, signature);
    expectRefusal("DE7", "Bad token", signature, [&] { reader.nextNumber(2, refusal, 299); });
    EXPECT_EQ(reader.remaining(), 2);
    EXPECT_EQ(reader.nextNumber(2, refusal, 300), 300);
}

TEST(TokenReader, requiresWhatMustFollow)
{
    const QStringList tokens = {"1", "2"};
    const quv::TokenReader reader(tokens, 0, signature);
    EXPECT_NO_THROW(reader.require(2, refusal));
    EXPECT_NO_THROW(reader.require(0, refusal));
    expectRefusal("DE7", "Bad token", signature, [&] { reader.require(3, refusal); });
}
