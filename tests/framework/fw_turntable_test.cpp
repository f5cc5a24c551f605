// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_turntable.h>

#include <gmock/gmock.h>

#include <memory>
#include <tuple>

namespace {

TEST(FW_Turntable, beginsWithoutPositions)
{
    const FW_Turntable table;
    EXPECT_EQ(table.kind(), 10);
    EXPECT_TRUE(table.isEnabled());
    EXPECT_EQ(table.refillAngle(), 0);
    EXPECT_EQ(table.stepTime(), 1500);
    EXPECT_EQ(table.distance(1, 2), 0);
}

TEST(FW_Turntable, turnsTheShorterWayRound)
{
    FW_Turntable table;
    table.setPositions({1, 2, 3, 5, 8});
    const std::tuple<int, int, int> table5[] = {
        {1, 1, 0}, {1, 2, 1}, {2, 1, 1}, {1, 3, 2}, {1, 5, 2}, {1, 8, 1}, {8, 3, 2}, {5, 8, 1}, {8, 5, 1},
    };
    for (const auto &[from, to, distance] : table5)
        EXPECT_EQ(table.distance(from, to), distance) << from << " to " << to;
    table.setPositions({1, 2, 3, 4});
    EXPECT_EQ(table.distance(1, 3), 2);
    EXPECT_EQ(table.distance(4, 2), 2);
    EXPECT_EQ(table.distance(4, 1), 1);
}

TEST(FW_Turntable, aPositionThatItDoesNotHoldIsNoWay)
{
    FW_Turntable table;
    table.setPositions({1, 2, 3});
    EXPECT_EQ(table.distance(0, 3), 0);
    EXPECT_EQ(table.distance(1, 9), 0);
}

TEST(FW_Device, cloneIsOfItsKind)
{
    FW_Turntable table;
    table.setEnabled(false);
    table.setRefillAngle(90);
    table.setStepTime(2000);
    table.setPositions({4, 3});
    const std::unique_ptr<FW_Device> copy(static_cast<const FW_Device &>(table).clone());
    table.setPositions({});
    const auto *turntable = dynamic_cast<const FW_Turntable *>(copy.get());
    ASSERT_NE(turntable, nullptr);
    EXPECT_FALSE(turntable->isEnabled());
    EXPECT_EQ(turntable->refillAngle(), 90);
    EXPECT_EQ(turntable->stepTime(), 2000);
    EXPECT_THAT(turntable->positions(), testing::ElementsAre(4, 3));

    const std::unique_ptr<FW_Device> autocap(FW_Autocap().clone());
    EXPECT_NE(dynamic_cast<const FW_Autocap *>(autocap.get()), nullptr);
    EXPECT_EQ(autocap->kind(), 0);
}

} // namespace
