// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/pourrequest.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using quv::PourLayout;
using quv::PourPart;
using quv::PourRequest;
using quv::readPourRequest;
using Parts = std::vector<PourPart>;

PourRequest read(PourLayout layout, const QList<int> &numbers)
{
    const auto request = readPourRequest(layout, numbers);
    EXPECT_TRUE(request);
    return request.value_or(PourRequest());
}

Parts strokes(const QList<int> &numbers)
{
    return read(PourLayout::Strokes, numbers).parts;
}

void expectRefused(PourLayout layout, const QList<QList<int>> &lists)
{
    for (const QList<int> &numbers : lists) {
        std::string text;
        for (const int number : numbers)
            text += std::to_string(number) + ' ';
        EXPECT_FALSE(readPourRequest(layout, numbers)) << text;
    }
}

PourPart part(int position, int queue, int speed, qint64 amount)
{
    return {position, queue, speed, 0, amount, 0};
}

TEST(PourRequestTest, aTintOfTwoCircuits)
{
    // 300 is 54 + 1 * 246
    const PourRequest request = read(PourLayout::Tint, {2, 2, 1, 7, 50, 2, 54, 1, 12, 8, 30, 1, 10});
    EXPECT_EQ(request.criterion, 2);
    EXPECT_FALSE(request.isPurge);
    EXPECT_EQ(request.parts, (Parts{part(1, 7, 50, 300), part(12, 8, 30, 10)}));
}

TEST(PourRequestTest, digitsComeLowFirst)
{
    // 5 + 0 * 246 + 3 * 60516
    EXPECT_EQ(read(PourLayout::Tint, {1, 1, 4, 0, 9, 3, 5, 0, 3}).parts, (Parts{part(4, 0, 9, 181553)}));
    EXPECT_EQ(read(PourLayout::Tint, {1, 1, 4, 0, 9, 1, 245}).parts, (Parts{part(4, 0, 9, 245)}));
    EXPECT_EQ(read(PourLayout::Tint, {1, 1, 4, 0, 9, 2, 245, 245}).parts, (Parts{part(4, 0, 9, 60515)}));
    // six digits at the most: 245 * (1 + 246 + ... + 246^5) = 246^6 - 1
    EXPECT_EQ(read(PourLayout::Tint, {1, 1, 4, 0, 9, 6, 245, 245, 245, 245, 245, 245}).parts,
              (Parts{part(4, 0, 9, 221'620'863'468'095)}));
    expectRefused(PourLayout::Tint, {{1, 1, 4, 0, 9, 7, 0, 0, 0, 0, 0, 0, 1}});
}

TEST(PourRequestTest, aTintMayNameMoreCircuitsThanFollowButNotFewer)
{
    EXPECT_EQ(read(PourLayout::Tint, {2, 3, 1, 2, 50, 1, 10}).parts, (Parts{part(1, 2, 50, 10)}));
    expectRefused(PourLayout::Tint,
                  {{2, 1, 1, 2, 50, 1, 10, 2, 2, 50, 1, 10}, {2, 1}, {2, 0}, {2, 256, 1, 2, 50, 1, 10}});
}

TEST(PourRequestTest, whatIsNoTint)
{
    expectRefused(PourLayout::Tint, {{},
                                     {2},
                                     {2, 1, 1},
                                     {2, 1, 1, 2},
                                     {2, 1, 1, 2, 50},
                                     {2, 1, 1, 2, 50, 1},
                                     {2, 1, 1, 2, 50, 2, 10},
                                     {2, 1, 1, 2, 50, 1, 10, 0},
                                     {2, 1, 1, 2, 50, 1, 246},
                                     {2, 1, 1, 2, 50, 1, -1},
                                     {2, 1, 1, 2, 50, 0},
                                     {2, 1, 1, 2, 50, -1},
                                     {2, 1, 1, 2, 0, 1, 10},
                                     {2, 1, 1, -1, 50, 1, 10},
                                     {2, 1, 0, 2, 50, 1, 10},
                                     {4, 1, 1, 2, 50, 1, 10},
                                     {-1, 1, 1, 2, 50, 1, 10},
                                     {66, 1, 1, 2, 50, 1, 10},
                                     {2, 1, 1, 2, 50, std::numeric_limits<int>::max(), 10},
                                     {2, 2, 1, 2, 50, 1, 10, 1, 2, 50, 1, 10}});
}

TEST(PourRequestTest, allCriteriaOfATint)
{
    for (const int criterion : {0, 1, 2, 3, 8, 16})
        EXPECT_EQ(read(PourLayout::Tint, {criterion, 1, 1, 2, 50, 1, 10}).criterion, criterion);
}

TEST(PourRequestTest, aTint2HasValveAndLevel)
{
    const PourRequest request =
        read(PourLayout::Tint2, {2, 2, 6, 1, 7, 50, 3, 2, 54, 1, 1, 90, 12, 8, 30, 0, 1, 10, 2, 0, 2});
    EXPECT_EQ(request.criterion, 2);
    EXPECT_FALSE(request.isPurge);
    EXPECT_EQ(request.parts, (Parts{{1, 7, 50, 3, 300, 90}, {12, 8, 30, 0, 10, 492}}));
}

TEST(PourRequestTest, aTint2WithoutALevelHasNoDigitsOrADigitOf0)
{
    const Parts expected{{1, 7, 50, 3, 10, 0}};
    EXPECT_EQ(read(PourLayout::Tint2, {1, 1, 6, 1, 7, 50, 3, 1, 10, 0}).parts, expected);
    EXPECT_EQ(read(PourLayout::Tint2, {1, 1, 6, 1, 7, 50, 3, 1, 10, 1, 0}).parts, expected);
}

TEST(PourRequestTest, bit64MarksThePurgeOfATint2)
{
    const PourRequest request = read(PourLayout::Tint2, {66, 1, 6, 1, 7, 50, 3, 1, 10, 0});
    EXPECT_TRUE(request.isPurge);
    EXPECT_EQ(request.criterion, 2);
}

TEST(PourRequestTest, whatIsNoTint2)
{
    expectRefused(PourLayout::Tint2, {{2, 1, 1, 7, 50, 3, 1, 10, 0},
                                      {2, 1, 5, 1, 7, 50, 3, 1, 10, 0},
                                      {2, 1, 7, 1, 7, 50, 3, 1, 10, 0},
                                      {3, 1, 6, 1, 7, 50, 3, 1, 10, 0},
                                      {67, 1, 6, 1, 7, 50, 3, 1, 10, 0},
                                      {2, 1, 6, 1, 7, 50, -1, 1, 10, 0},
                                      {2, 1, 6, 1, 7, 50, 3, 1, 10},
                                      {2, 1, 6, 1, 7, 50, 3, 1, 10, 1},
                                      {2, 1, 6, 1, 7, 50, 3, 1, 10, 1, 246},
                                      {2, 1, 6, 1, 7, 50, 3, 0, 0},
                                      {2, 1, 6}});
}

TEST(PourRequestTest, strokesOfAllCircuits)
{
    EXPECT_EQ(strokes({1, 2, 3, 0, 50, 1, 20, 4, 5, 30, 2, 54, 1}),
              (Parts{part(3, 0, 50, 20), part(4, 5, 30, 300)}));
}

TEST(PourRequestTest, circuitsWithoutStrokesEndAfterTheirSpeed)
{
    EXPECT_EQ(strokes({9, 1, 3, 0, 50}), (Parts{part(3, 0, 50, 0)}));
    EXPECT_EQ(strokes({1, 3, 3, 0, 50, 4, 0, 30, 5, 1, 20}),
              (Parts{part(3, 0, 50, 0), part(4, 0, 30, 0), part(5, 1, 20, 0)}));
}

TEST(PourRequestTest, mixedStrokesAreDividedSoThatAllFits)
{
    EXPECT_EQ(strokes({1, 2, 3, 0, 50, 4, 0, 30, 1, 20}), (Parts{part(3, 0, 50, 0), part(4, 0, 30, 20)}));
    EXPECT_EQ(strokes({1, 2, 3, 0, 50, 1, 20, 4, 0, 30}), (Parts{part(3, 0, 50, 20), part(4, 0, 30, 0)}));
    EXPECT_EQ(strokes({1, 3, 3, 0, 50, 4, 0, 30, 2, 54, 1, 5, 0, 10}),
              (Parts{part(3, 0, 50, 0), part(4, 0, 30, 300), part(5, 0, 10, 0)}));
}

TEST(PourRequestTest, mixedStrokesAreDividedIntoCircuitsThatThereAre)
{
    const auto toSixteen = [](int position) { return position <= 16; };
    // circuit 5 with one stroke would leave a circuit 200
    const QList<int> numbers{1, 2, 5, 1, 200, 1, 1, 200, 1, 5};
    const auto request = readPourRequest(PourLayout::Strokes, numbers, toSixteen);
    ASSERT_TRUE(request);
    EXPECT_EQ(request->parts, (Parts{part(5, 1, 200, 0), part(1, 1, 200, 5)}));
    // where nothing else fits it is for the machine to say that it has no such circuit
    const auto unknown = readPourRequest(PourLayout::Strokes, {1, 2, 30, 0, 50, 1, 20, 40, 0, 30}, toSixteen);
    ASSERT_TRUE(unknown);
    EXPECT_EQ(unknown->parts, (Parts{part(30, 0, 50, 20), part(40, 0, 30, 0)}));
}

TEST(PourRequestTest, mixedStrokesAreDividedSoThatNoCircuitComesTwice)
{
    // circuit 5 with seven strokes would leave a circuit 5
    EXPECT_EQ(strokes({1, 2, 5, 0, 50, 1, 7, 5, 1, 20}), (Parts{part(5, 0, 50, 0), part(1, 7, 5, 20)}));
}

TEST(PourRequestTest, whatAreNoStrokes)
{
    expectRefused(PourLayout::Strokes, {{},
                                        {1},
                                        {1, 0},
                                        {1, 1},
                                        {1, 1, 3, 0},
                                        {1, 1, 3, 0, 0},
                                        {1, 1, 3, 0, 50, 1},
                                        {1, 1, 3, 0, 50, 0},
                                        {1, 1, 3, 0, 50, 1, 0},
                                        {1, 1, 3, 0, 50, 1, 246},
                                        {1, 1, 3, 0, 50, 2, 20, 0},
                                        {1, 1, 3, 0, 50, 1, 20, 4},
                                        {1, 2, 3, 0, 50},
                                        {1, 1, 3, 0, 50, 4, 0, 30},
                                        {1, 2, 3, 0, 50, 3, 0, 50},
                                        {0, 1, 3, 0, 50},
                                        {3, 1, 3, 0, 50},
                                        {1, 2147483647, 3, 0, 50}});
}

TEST(PourRequestTest, aListThatFitsNowhereIsGivenUpSoon)
{
    // each circuit could have strokes or none, and only the very end shows that nothing fits
    QList<int> numbers{1, 200};
    for (int i = 0; i < 200; ++i)
        numbers += {1, 1, 1, 1, 1};
    numbers += {246, 246};
    EXPECT_FALSE(readPourRequest(PourLayout::Strokes, numbers));
}

} // namespace
