// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <cmath>
#include <limits>

namespace {

using pouring::calibration;

void expectUnusable(const FW_Calibration &calibration)
{
    EXPECT_FALSE(calibration.isUsable());
    bool ok = true;
    EXPECT_EQ(calibration.steps(1, &ok), 0);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(calibration.quantity(100, &ok), 0);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(calibration.speed(1, &ok), 0);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(calibration.nozzleValveID(1, &ok), 0);
    EXPECT_FALSE(ok);
    EXPECT_EQ(calibration.steps(1) + calibration.speed(1) + calibration.nozzleValveID(1), 0);
}

TEST(FW_Calibration, withoutPointsNothingIsKnown)
{
    expectUnusable(FW_Calibration());
}

TEST(FW_Calibration, pointsMustBePositiveAndRise)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const QVector<FW_CalibrationPoint> bad[] = {
        {{0, 1, 20, 0}},
        {{-1, 1, 20, 0}},
        {{100, 0, 20, 0}},
        {{100, -1, 20, 0}},
        {{100, std::nan(""), 20, 0}},
        {{100, infinity, 20, 0}},
        {{100, 1, 20, 0}, {100, 2, 20, 0}},
        {{100, 1, 20, 0}, {99, 2, 20, 0}},
        {{100, 1, 20, 0}, {200, 1, 20, 0}},
        {{100, 1, 20, 0}, {200, 0.5, 20, 0}},
        {{100, 1, 20, 0}, {200, 2, 20, 0}, {150, 3, 20, 0}},
    };
    for (const auto &points : bad)
        expectUnusable(FW_Calibration(points));
    EXPECT_TRUE(FW_Calibration({{1, 0.001, 0, 0}}).isUsable());
    EXPECT_TRUE(calibration().isUsable());
}

TEST(FW_Calibration, stepsOfAQuantity)
{
    const std::pair<double, long long> table[] = {
        {0, 0},     {0.5, 50},  {1, 100},   {2, 189}, // 100 + 800 / 9
        {5.5, 500}, {10, 900},  {55, 4500}, {100, 8100},  {200, 16200},
        {0.014, 1}, {0.015, 2}, {0.001, 0}, {-5.5, -500}, {-200, -16200},
    };
    for (const auto &[quantity, steps] : table) {
        bool ok = false;
        EXPECT_EQ(calibration().steps(quantity, &ok), steps) << quantity;
        EXPECT_TRUE(ok) << quantity;
    }
}

TEST(FW_Calibration, quantityOfSteps)
{
    const std::pair<long long, double> table[] = {
        {0, 0},     {50, 0.5},   {100, 1},     {500, 5.5},   {900, 10},
        {4500, 55}, {8100, 100}, {16200, 200}, {-500, -5.5}, {-16200, -200},
    };
    for (const auto &[steps, quantity] : table) {
        bool ok = false;
        EXPECT_DOUBLE_EQ(calibration().quantity(steps, &ok), quantity) << steps;
        EXPECT_TRUE(ok) << steps;
    }
}

TEST(FW_Calibration, speedAndNozzleValveOfTheFirstPointThatReaches)
{
    const std::tuple<double, int, int> table[] = {
        {0, 20, 1},    {0.5, 20, 1}, {1, 20, 1},   {1.0001, 40, 2}, {10, 40, 2},
        {10.5, 60, 0}, {100, 60, 0}, {101, 60, 0}, {-5, 40, 2},
    };
    for (const auto &[quantity, speed, valve] : table) {
        bool ok = false;
        EXPECT_EQ(calibration().speed(quantity, &ok), speed) << quantity;
        EXPECT_TRUE(ok) << quantity;
        ok = false;
        EXPECT_EQ(calibration().nozzleValveID(quantity, &ok), valve) << quantity;
        EXPECT_TRUE(ok) << quantity;
    }
}

TEST(FW_Calibration, aPointWithoutSpeedTellsNone)
{
    const FW_Calibration calibration({{100, 1, 0, 5}});
    bool ok = true;
    EXPECT_EQ(calibration.speed(1, &ok), 0);
    EXPECT_FALSE(ok);
    EXPECT_EQ(calibration.steps(1, &ok), 100);
    EXPECT_TRUE(ok);
}

TEST(FW_Calibration, knowsItsSlowestAndItsFastestPoint)
{
    EXPECT_EQ(calibration().minSpeed(), 20);
    EXPECT_EQ(calibration().maxSpeed(), 60);
    const FW_Calibration falling({{100, 1, 60, 0}, {900, 10, 20, 0}, {800, 100, 40, 0}});
    EXPECT_FALSE(falling.isUsable());
    EXPECT_EQ(falling.minSpeed(), 20);
    EXPECT_EQ(falling.maxSpeed(), 60);
    EXPECT_EQ(FW_Calibration().minSpeed(), 0);
    EXPECT_EQ(FW_Calibration().maxSpeed(), 0);
}

TEST(FW_Calibration, pointsWithoutSpeedAreNeitherSlowNorFast)
{
    const FW_Calibration partly({{100, 1, 0, 0}, {900, 10, 60, 0}, {1800, 20, -5, 0}, {8100, 100, 40, 0}});
    EXPECT_EQ(partly.minSpeed(), 40);
    EXPECT_EQ(partly.maxSpeed(), 60);
    const FW_Calibration none({{100, 1, -5, 0}, {900, 10, -1, 0}});
    EXPECT_EQ(none.minSpeed(), 0);
    EXPECT_EQ(none.maxSpeed(), 0);
}

TEST(FW_Calibration, whatCannotBeCountedIsNotOk)
{
    for (const double quantity :
         {1e15, -1e15, 1e300, std::numeric_limits<double>::infinity(), std::nan("")}) {
        bool ok = true;
        EXPECT_EQ(calibration().steps(quantity, &ok), 0) << quantity;
        EXPECT_FALSE(ok) << quantity;
    }
    bool ok = false;
    EXPECT_EQ(calibration().steps(1e13, &ok), 810000000000000);
    EXPECT_TRUE(ok);
}

TEST(FW_Calibration, isItsPoints)
{
    FW_Calibration changed = calibration();
    EXPECT_TRUE(changed == calibration());
    for (int field = 0; field < 4; ++field) {
        auto points = calibration().points();
        if (field == 0)
            points[1].steps = 901;
        else if (field == 1)
            points[1].quantity = 10.5;
        else if (field == 2)
            points[1].speed = 41;
        else
            points[1].nozzleValveID = 3;
        changed.setPoints(points);
        EXPECT_TRUE(changed != calibration()) << field;
        EXPECT_FALSE(changed == calibration()) << field;
    }
    changed.setPoints({});
    EXPECT_FALSE(changed.isUsable());
    changed.setPoints(calibration().points());
    EXPECT_TRUE(changed == calibration());
    EXPECT_TRUE(changed.isUsable());
}

} // namespace
