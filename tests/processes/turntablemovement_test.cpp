// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovement.h"

#include "base/basetesting.h"

namespace {

TEST(TurntableMovement, turnsTheShortestWayAtTheMachinesSpeed)
{
    EXPECT_EQ(TurntableMovement().direction(), 2);
    EXPECT_EQ(TurntableMovement().speed(), 245);
    EXPECT_EQ(TurntableMovement::configurationSpeed(), 245);
}

TEST(TurntableMovement, takesDirectionAndSpeedAsTheyAre)
{
    EXPECT_EQ(TurntableMovement(0, 50).direction(), 0);
    EXPECT_EQ(TurntableMovement(0, 50).speed(), 50);
    EXPECT_EQ(TurntableMovement(7, -3).direction(), 7);
    EXPECT_EQ(TurntableMovement(7, -3).speed(), -3);
}

TEST(TurntableMovement, namesTheDirections)
{
    EXPECT_EQ(TurntableMovement(TurntableMovement::Clockwise, 1).directionString(), "clockwise");
    EXPECT_EQ(TurntableMovement(TurntableMovement::CounterClockwise, 1).directionString(),
              "counter-clockwise");
    EXPECT_EQ(TurntableMovement(TurntableMovement::Shortest, 1).directionString(), "shortest");
    EXPECT_EQ(TurntableMovement(0, 1).directionString(), "clockwise");
    EXPECT_EQ(TurntableMovement(1, 1).directionString(), "counter-clockwise");
    EXPECT_EQ(TurntableMovement().directionString(), "shortest");
    for (int direction : {-1, 3, 245})
        EXPECT_EQ(TurntableMovement(direction, 1).directionString(), "") << direction;
}

TEST(TurntableMovement, knowsTheirRanges)
{
    for (int direction : {0, 1, 2})
        EXPECT_TRUE(TurntableMovement::checkDirection(direction)) << direction;
    for (int direction : {-1, 3})
        EXPECT_FALSE(TurntableMovement::checkDirection(direction)) << direction;
    for (int speed : {1, 2, 99, 100})
        EXPECT_TRUE(TurntableMovement::checkSpeed(speed)) << speed;
    for (int speed : {-1, 0, 101, 245})
        EXPECT_FALSE(TurntableMovement::checkSpeed(speed)) << speed;
}

} // namespace
