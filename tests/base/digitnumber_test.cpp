// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/digitnumber_p.h"

#include "base/basetesting.h"

namespace {

using namespace testing_base;

constexpr char function[] = "of this test";

int numberOf(const QStringList &tokens)
{
    quv::TokenReader reader(tokens, 0, function);
    return quv::nextOfDigits(reader, {{"DE09991", "low"}, {"DE09992", "high"}}, function);
}

void expectRefused(const QStringList &tokens, const char *code, const char *text)
{
    expectRefusal(code, text, function, [&] { numberOf(tokens); });
}

TEST(DigitNumber, addsUpItsDigits)
{
    EXPECT_EQ(numberOf({"0", "0"}), 0);
    EXPECT_EQ(numberOf({"36", "1"}), 300);
    EXPECT_EQ(numberOf({"F5", "F5", "F5"}), 60515) << "of two digits";
    EXPECT_EQ(numberOf({"4F", "853408"}), 2147483647);
}

TEST(DigitNumber, refusesEachDigitByItsOwnName)
{
    expectRefused({}, "DE09991", "low");
    expectRefused({"x", "y"}, "DE09991", "low");
    expectRefused({"1"}, "DE09992", "high");
    expectRefused({"1", "y"}, "DE09992", "high");
}

TEST(DigitNumber, refusesWhatAnIntDoesNotHoldAsItsLastDigit)
{
    expectRefused({"50", "853408"}, "DE09992", "high");
    expectRefused({"7FFFFFFF", "7FFFFFFF"}, "DE09992", "high");
}

TEST(DigitNumber, leavesTheReaderBehindIt)
{
    const QStringList tokens = {"1", "0", "9"};
    quv::TokenReader reader(tokens, 0, function);
    EXPECT_EQ(quv::nextOfDigits(reader, {{"DE09991", "low"}, {"DE09992", "high"}}, function), 1);
    EXPECT_EQ(reader.remaining(), 1);
}

} // namespace
