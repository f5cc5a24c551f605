// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

namespace {

TEST(FW_Circuit, beginsEnabledOnTheFirstHeadWithoutQueue)
{
    const FW_Circuit circuit(5, 9);
    EXPECT_EQ(circuit.id(), 5);
    EXPECT_EQ(circuit.positionId(), 9);
    EXPECT_TRUE(circuit.isEnabled());
    EXPECT_EQ(circuit.headId(), 1);
    EXPECT_EQ(circuit.queueID(), 0);
    EXPECT_TRUE(circuit.valves().isEmpty());
    EXPECT_TRUE(circuit.nozzleValvesID().isEmpty());
    EXPECT_FALSE(circuit.calibration().isUsable());
    EXPECT_EQ(circuit.maxSpeed(), 50);
}

TEST(FW_Circuit, tellsStepsAndSpeedOfAQuantity)
{
    const FW_Circuit circuit = pouring::circuit(1, 2, 3);
    long long steps = 7;
    int speed = 7;
    EXPECT_TRUE(circuit.getStepsAndSpeed(5.5, steps, speed));
    EXPECT_EQ(steps, 500);
    EXPECT_EQ(speed, 40);
    EXPECT_FALSE(FW_Circuit().getStepsAndSpeed(5.5, steps, speed));
    FW_Circuit still = circuit;
    still.setCalibration(FW_Calibration({{100, 1, 0, 0}}));
    EXPECT_FALSE(still.getStepsAndSpeed(1, steps, speed));
    EXPECT_EQ(steps, 500);
    EXPECT_EQ(speed, 40);
}

TEST(FW_Circuit, anyChangeMakesItAnother)
{
    const FW_Circuit original = pouring::circuit(1, 2, 3);
    const std::vector<void (*)(FW_Circuit &)> changes = {
        [](FW_Circuit &c) { c.setId(9); },
        [](FW_Circuit &c) { c.setPositionId(9); },
        [](FW_Circuit &c) { c.setEnabled(false); },
        [](FW_Circuit &c) { c.setHeadId(2); },
        [](FW_Circuit &c) { c.setQueueID(9); },
        [](FW_Circuit &c) { c.setDosingMotor(FW_DosingMotor()); },
        [](FW_Circuit &c) { c.setValves({FW_Valve(4)}); },
        [](FW_Circuit &c) { c.setNozzleValvesID({1}); },
        [](FW_Circuit &c) { c.setCalibration(FW_Calibration()); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        FW_Circuit changed = original;
        EXPECT_TRUE(changed == original);
        changes[i](changed);
        EXPECT_TRUE(changed != original) << i;
        EXPECT_FALSE(changed == original) << i;
    }
}

TEST(FW_DosingMotor, stepsOfStrokes)
{
    FW_DosingMotor motor;
    EXPECT_EQ(motor.stepsFromStrokes(3), 0); // not known
    motor.setStepsPerStroke(6000);
    EXPECT_EQ(motor.stepsFromStrokes(3), 18000);
    EXPECT_EQ(motor.stepsFromStrokes(-1), -6000);
    EXPECT_EQ(motor.stepsFromStrokes(2147483647), 12884901882000);
}

TEST(FW_DosingMotor, anyChangeMakesItAnother)
{
    const std::vector<void (*)(FW_DosingMotor &)> changes = {
        [](FW_DosingMotor &m) { m.setMotorId(1); },
        [](FW_DosingMotor &m) { m.setResolution(400); },
        [](FW_DosingMotor &m) { m.setMaxSpeed(51); },
        [](FW_DosingMotor &m) { m.setStepsPerStroke(1); },
        [](FW_DosingMotor &m) { m.setGravimetricSw(true); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        FW_DosingMotor changed;
        EXPECT_TRUE(changed == FW_DosingMotor());
        changes[i](changed);
        EXPECT_TRUE(changed != FW_DosingMotor()) << i;
    }
}

TEST(FW_Valve, anyChangeMakesItAnother)
{
    FW_Valve valve(3);
    EXPECT_TRUE(valve == FW_Valve(3));
    EXPECT_TRUE(valve != FW_Valve(4));
    valve.setBoardID(1);
    EXPECT_TRUE(valve != FW_Valve(3));
    FW_Valve other(3);
    other.setValveType(1);
    EXPECT_TRUE(other != FW_Valve(3));
}

} // namespace
