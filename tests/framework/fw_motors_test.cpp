// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fields.h"

#include <QuvFramework/fw_calibrationprofiles.h>
#include <QuvFramework/fw_canisterlevelsensor.h>
#include <QuvFramework/fw_cleaningmotor.h>
#include <QuvFramework/fw_recirculationmotor.h>
#include <QuvFramework/fw_stirringmotor.h>
#include <QuvFramework/fw_valve.h>

#include <gmock/gmock.h>

#include <memory>
#include <set>

using fields::expectField;

namespace {

TEST(FW_StirringMotor, fields)
{
    expectField<FW_StirringMotor>("isEnabled", &FW_StirringMotor::isEnabled, &FW_StirringMotor::setEnabled,
                                  true, false);
    expectField<FW_StirringMotor>("stirringActivity", &FW_StirringMotor::stirringActivity,
                                  &FW_StirringMotor::setStirringActivity, 60, 30);
    expectField<FW_StirringMotor>("stirringPolicy", &FW_StirringMotor::stirringPolicy,
                                  &FW_StirringMotor::setStirringPolicy, 1, 2);
    expectField<FW_StirringMotor>("speed", &FW_StirringMotor::speed, &FW_StirringMotor::setSpeed, 100, 90);
    expectField<FW_StirringMotor>("wireBoardId", &FW_StirringMotor::wireBoardId,
                                  &FW_StirringMotor::setWireBoardId, 0, 4);
    expectField<FW_StirringMotor>("wireConnectorsIdBitMask", &FW_StirringMotor::wireConnectorsIdBitMask,
                                  &FW_StirringMotor::setWireConnectorsIdBitMask, 0, 6);
    expectField<FW_StirringMotor>("resolution", &FW_StirringMotor::resolution,
                                  &FW_StirringMotor::setResolution, 400, 200);
    expectField<FW_StirringMotor>("supplyingCurrent", &FW_StirringMotor::supplyingCurrent,
                                  &FW_StirringMotor::setSupplyingCurrent, 15, 16);
    expectField<FW_StirringMotor>("motorID", &FW_StirringMotor::motorID, &FW_StirringMotor::setMotorId, 0, 3);
}

TEST(FW_RecirculationMotor, fields)
{
    expectField<FW_RecirculationMotor>("isEnabled", &FW_RecirculationMotor::isEnabled,
                                       &FW_RecirculationMotor::setEnabled, true, false);
    expectField<FW_RecirculationMotor>("speed", &FW_RecirculationMotor::speed,
                                       &FW_RecirculationMotor::setSpeed, 50, 40);
    expectField<FW_RecirculationMotor>("suctionSpeed", &FW_RecirculationMotor::suctionSpeed,
                                       &FW_RecirculationMotor::setSuctionSpeed, 100, 90);
    expectField<FW_RecirculationMotor>("recirculationActivity", &FW_RecirculationMotor::recirculationActivity,
                                       &FW_RecirculationMotor::setRecirculationActivity, 120, 60);
    expectField<FW_RecirculationMotor>("resolution", &FW_RecirculationMotor::resolution,
                                       &FW_RecirculationMotor::setResolution, 400, 200);
    expectField<FW_RecirculationMotor>("supplyingCurrent", &FW_RecirculationMotor::supplyingCurrent,
                                       &FW_RecirculationMotor::setSupplyingCurrent, 18, 16);
}

TEST(FW_CleaningMotor, fields)
{
    expectField<FW_CleaningMotor>("duration", &FW_CleaningMotor::duration, &FW_CleaningMotor::setDuration, 30,
                                  31);
    expectField<FW_CleaningMotor>("brushType", &FW_CleaningMotor::brushType, &FW_CleaningMotor::setBrushType,
                                  1, 2);
    expectField<FW_CleaningMotor>("target", &FW_CleaningMotor::target, &FW_CleaningMotor::setTarget, 0, 1);
    expectField<FW_CleaningMotor>("process", &FW_CleaningMotor::process, &FW_CleaningMotor::setProcess, 1, 2);
    expectField<FW_CleaningMotor>("turntableSpeed", &FW_CleaningMotor::turntableSpeed,
                                  &FW_CleaningMotor::setTurntableSpeed, 50, 40);
    expectField<FW_CleaningMotor>("scheduleMask", &FW_CleaningMotor::scheduleMask,
                                  &FW_CleaningMotor::setScheduleMask, 9, 8);
    expectField<FW_CleaningMotor>("isCleaningEnabled", &FW_CleaningMotor::isCleaningEnabled,
                                  &FW_CleaningMotor::setCleaningEnabled, true, false);
    expectField<FW_CleaningMotor>("resolution", &FW_CleaningMotor::resolution,
                                  &FW_CleaningMotor::setResolution, 200, 400);
    expectField<FW_CleaningMotor>("supplyingCurrent", &FW_CleaningMotor::supplyingCurrent,
                                  &FW_CleaningMotor::setSupplyingCurrent, 10, 12);
}

TEST(FW_Ramp, fields)
{
    expectField<FW_Ramp>("configRef", &FW_Ramp::configRef, &FW_Ramp::setConfigRef, 0, 2);
    expectField<FW_Ramp>("isEnabled", &FW_Ramp::isEnabled, &FW_Ramp::setEnabled, true, false);
    expectField<FW_Ramp>("initialSteps", &FW_Ramp::initialSteps, &FW_Ramp::setInitialSteps, 20, 21);
    expectField<FW_Ramp>("finalSteps", &FW_Ramp::finalSteps, &FW_Ramp::setFinalSteps, 20, 22);
    expectField<FW_Ramp>("speedThreshold", &FW_Ramp::speedThreshold, &FW_Ramp::setSpeedThreshold, 60, 61);
    expectField<FW_Ramp>("slowSpeed", &FW_Ramp::slowSpeed, &FW_Ramp::setSlowSpeed, 15, 16);
}

TEST(FW_CanisterLevelSensor, fields)
{
    expectField<FW_CanisterLevelSensor>("isEnabled", &FW_CanisterLevelSensor::isEnabled,
                                        &FW_CanisterLevelSensor::setEnabled, true, false);
    expectField<FW_CanisterLevelSensor>("wireBoardId", &FW_CanisterLevelSensor::wireBoardId,
                                        &FW_CanisterLevelSensor::setWireBoardId, 0, 1);
    expectField<FW_CanisterLevelSensor>("wireConnectorId", &FW_CanisterLevelSensor::wireConnectorId,
                                        &FW_CanisterLevelSensor::setWireConnectorId, 0, 2);
    expectField<FW_CanisterLevelSensor>("criticalLevel", &FW_CanisterLevelSensor::criticalLevel,
                                        &FW_CanisterLevelSensor::setCriticalLevel, 500, 400);
}

TEST(FW_DosingMotor, fields)
{
    expectField<FW_DosingMotor>("stepsPerStroke", &FW_DosingMotor::stepsPerStroke,
                                &FW_DosingMotor::setStepsPerStroke, 0, 500);
    expectField<FW_DosingMotor>("isGravimetricSw", &FW_DosingMotor::isGravimetricSw,
                                &FW_DosingMotor::setGravimetricSw, false, true);
    expectField<FW_DosingMotor>("strokeValue", &FW_DosingMotor::strokeValue, &FW_DosingMotor::setStrokeValue,
                                100, 250);
    expectField<FW_DosingMotor>("suctionSpeed", &FW_DosingMotor::suctionSpeed,
                                &FW_DosingMotor::setSuctionSpeed, 50, 51);
    expectField<FW_DosingMotor>("zeroPump", &FW_DosingMotor::zeroPump, &FW_DosingMotor::setZeroPump, false,
                                true);
    expectField<FW_DosingMotor>("activationTime", &FW_DosingMotor::activationTime,
                                &FW_DosingMotor::setActivationTime, 2, 3);
    expectField<FW_DosingMotor>("delay", &FW_DosingMotor::delay, &FW_DosingMotor::setDelay, 0, 4);
    expectField<FW_DosingMotor>("maxSpeedLimit", &FW_DosingMotor::maxSpeedLimit,
                                &FW_DosingMotor::setMaxSpeedLimit, 0, 70);
    expectField<FW_DosingMotor>("interDispensingTime", &FW_DosingMotor::interDispensingTime,
                                &FW_DosingMotor::setInterDispensingTime, 0.5, -1.0);
    expectField<FW_DosingMotor>("dispensingAlgorithmMask", &FW_DosingMotor::dispensingAlgorithmMask,
                                &FW_DosingMotor::setDispensingAlgorithmMask, 1, -1);
    expectField<FW_DosingMotor>("hasSmartSpeedReduction", &FW_DosingMotor::hasSmartSpeedReduction,
                                &FW_DosingMotor::setSmartSpeedReduction, false, true);
    expectField<FW_DosingMotor>("speedThrTempReductionGroupID", &FW_DosingMotor::speedThrTempReductionGroupID,
                                &FW_DosingMotor::setSpeedThrTempReductionGroupID, -1, 2);
    expectField<FW_DosingMotor>("headRefID", &FW_DosingMotor::headRefID, &FW_DosingMotor::setHeadRefID, 0, 1);
    expectField<FW_DosingMotor>("pressureSensorWireBoardId", &FW_DosingMotor::pressureSensorWireBoardId,
                                &FW_DosingMotor::setPressureSensorWireBoardId, 0, 5);
    expectField<FW_DosingMotor>("pressureSensorWireConnectorId",
                                &FW_DosingMotor::pressureSensorWireConnectorId,
                                &FW_DosingMotor::setPressureSensorWireConnectorId, 0, 6);
    expectField<FW_DosingMotor>("resolution", &FW_DosingMotor::resolution, &FW_DosingMotor::setResolution,
                                200, 400);
    expectField<FW_DosingMotor>("supplyingCurrent", &FW_DosingMotor::supplyingCurrent,
                                &FW_DosingMotor::setSupplyingCurrent, 20, 25);
    expectField<FW_DosingMotor>("motorID", &FW_DosingMotor::motorID, &FW_DosingMotor::setMotorId, 0, 9);
}

TEST(FW_Motor, comparesWhatAllMotorsHave)
{
    for (const auto set : {&FW_Motor::setMotorId, &FW_Motor::setResolution, &FW_Motor::setSupplyingCurrent}) {
        FW_StirringMotor motor;
        motor.setSpeed(99); // of its own
        const FW_Motor &base = motor;
        EXPECT_TRUE(base == FW_StirringMotor());
        (motor.*set)(77);
        EXPECT_FALSE(base == FW_StirringMotor());
    }
}

TEST(FW_CleanJob, anyChangeMakesItAnother)
{
    EXPECT_TRUE(FW_CleanJob() == FW_CleanJob());
    FW_CleanJob disabled;
    disabled.setCleaningEnabled(false);
    EXPECT_FALSE(disabled == FW_CleanJob());
    FW_CleanJob longer;
    longer.setTimeout(61, 2);
    EXPECT_FALSE(longer == FW_CleanJob());
    for (const auto set : {&FW_CleanJob::setTurntableSpeed, &FW_CleanJob::setScheduleMask}) {
        FW_CleanJob job;
        (job.*set)(77);
        EXPECT_FALSE(job == FW_CleanJob());
    }
}

TEST(FW_Motor, defaultsByKind)
{
    EXPECT_EQ(FW_Motor::defaultResolution(0), 200);
    EXPECT_EQ(FW_Motor::defaultResolution(1), 400);
    EXPECT_EQ(FW_Motor::defaultResolution(2), 400);
    EXPECT_EQ(FW_Motor::defaultResolution(4), 1600);
    EXPECT_EQ(FW_Motor::defaultResolution(9), 200);
    EXPECT_EQ(FW_Motor::defaultSupplyingCurrent(0, -1), 20);
    EXPECT_EQ(FW_Motor::defaultSupplyingCurrent(1, -1), 15);
    EXPECT_EQ(FW_Motor::defaultSupplyingCurrent(2, MachineModel::Rotan), 18);
    EXPECT_EQ(FW_Motor::defaultSupplyingCurrent(3, -1), 10);
    EXPECT_EQ(FW_Motor::defaultSupplyingCurrent(4, -1), 30);
}

TEST(FW_StirringMotor, pauseInUnits)
{
    FW_StirringMotor motor;
    EXPECT_EQ(motor.stirringPause(2), 30);
    motor.setStirringPause(90, 1);
    EXPECT_EQ(motor.stirringPause(0), 90000);
    EXPECT_EQ(motor.stirringPause(2), 1);
    EXPECT_FALSE(motor == FW_StirringMotor());
}

TEST(FW_StirringMotor, oneConnector)
{
    FW_StirringMotor motor;
    motor.setWireConnectorId(1);
    EXPECT_EQ(motor.wireConnectorsIdBitMask(), 1);
    motor.setWireConnectorId(4);
    EXPECT_EQ(motor.wireConnectorsIdBitMask(), 8);
    motor.setWireConnectorId(31);
    EXPECT_EQ(motor.wireConnectorsIdBitMask(), 0x40000000);
    for (const int none : {0, -1, 32}) {
        motor.setWireConnectorsIdBitMask(7);
        motor.setWireConnectorId(none);
        EXPECT_EQ(motor.wireConnectorsIdBitMask(), 0) << none;
    }
}

TEST(FW_RecirculationMotor, pauseInUnits)
{
    EXPECT_EQ(FW_RecirculationMotor::defaultRecirculationActivity(-1), 120);
    EXPECT_EQ(FW_RecirculationMotor::defaultRecirculationPause(2), 60);
    EXPECT_EQ(FW_RecirculationMotor::defaultRecirculationPause(1), 3600);
    FW_RecirculationMotor motor;
    EXPECT_EQ(motor.recirculationPause(2), 60);
    motor.setRecirculationPause(45, 2);
    EXPECT_EQ(motor.recirculationPause(1), 2700);
    EXPECT_FALSE(motor == FW_RecirculationMotor());
}

TEST(FW_CleanJob, defaults)
{
    EXPECT_EQ(FW_CleanJob::defaultTimeoutValue(0, -1), 60);
    EXPECT_EQ(FW_CleanJob::defaultTimeoutValue(1, MachineModel::Rotan), 240);
    EXPECT_EQ(FW_CleanJob::defaultScheduleMaskValue(0, -1), 4);
    EXPECT_EQ(FW_CleanJob::defaultScheduleMaskValue(1, -1), 9);
    EXPECT_EQ(FW_CleanJob::defaultProcessTypeValue(-1), 1);
    EXPECT_EQ(FW_CleanJob().timeout(2), 60);
    EXPECT_EQ(FW_CleanJob().scheduleMask(), 4);
    EXPECT_EQ(FW_CleaningMotor().timeout(2), 240);
    EXPECT_EQ(FW_CleaningMotor::defaultDurationValue(-1), 30);
}

TEST(FW_CleanJob, canBeConfiguredOnDispensers)
{
    EXPECT_TRUE(FW_CleanJob::canConfigureCleaningType(0, 0, -1));
    EXPECT_TRUE(FW_CleanJob::canConfigureCleaningType(0, 0, MachineModel::Rotan));
    EXPECT_FALSE(FW_CleanJob::canConfigureCleaningType(0, 1, MachineModel::Rotan));
    EXPECT_TRUE(FW_CleanJob::canConfigureCleaningType(1, 1, MachineModel::Rotan));
    EXPECT_FALSE(FW_CleanJob::canConfigureCleaningType(0, 0, MachineModel::GenericMixer));
    EXPECT_FALSE(FW_CleanJob::canConfigureCleaningType(1, 0, MachineModel::GenericMixer));
    EXPECT_FALSE(FW_CleanJob::canConfigureCleaningType(2, 0, -1));
}

TEST(FW_CleaningMotor, durationRange)
{
    EXPECT_FALSE(FW_CleaningMotor::checkDuration(0));
    EXPECT_TRUE(FW_CleaningMotor::checkDuration(1));
    EXPECT_TRUE(FW_CleaningMotor::checkDuration(3600));
    EXPECT_FALSE(FW_CleaningMotor::checkDuration(3601));
}

TEST(FW_CleaningMotor, policyMask)
{
    EXPECT_EQ(FW_CleaningMotor::cleanPolicyFwMask(9, 0, 1), 73);
    EXPECT_EQ(FW_CleaningMotor::cleanPolicyFwMask(1, 2, 3), 225);
    EXPECT_EQ(FW_CleaningMotor::cleanPolicyFwMask(16, 0, 0), -1);
    EXPECT_EQ(FW_CleaningMotor::cleanPolicyFwMask(-1, 0, 0), -1);
    EXPECT_EQ(FW_CleaningMotor::cleanPolicyFwMask(0, 4, 0), -1);
    EXPECT_EQ(FW_CleaningMotor::cleanPolicyFwMask(0, 0, 4), -1);
    int schedule = -5;
    int target = -6;
    int process = -7;
    EXPECT_TRUE(FW_CleaningMotor::decodeCleanPolicyFwMask(225, schedule, target, process));
    EXPECT_EQ(schedule, 1);
    EXPECT_EQ(target, 2);
    EXPECT_EQ(process, 3);
    for (const int policy : {-1, 256, 2147483647}) {
        EXPECT_FALSE(FW_CleaningMotor::decodeCleanPolicyFwMask(policy, schedule, target, process));
        EXPECT_EQ(schedule, 1);
        EXPECT_EQ(target, 2);
        EXPECT_EQ(process, 3);
    }
}

TEST(FW_CleaningMotor, policyMasksAreOneForOne)
{
    std::set<int> policies;
    for (int schedule = 0; schedule < 16; ++schedule) {
        for (int target = 0; target < 4; ++target) {
            for (int process = 0; process < 4; ++process) {
                const int policy = FW_CleaningMotor::cleanPolicyFwMask(schedule, target, process);
                policies.insert(policy);
                int decoded[3] = {-1, -1, -1};
                ASSERT_TRUE(
                    FW_CleaningMotor::decodeCleanPolicyFwMask(policy, decoded[0], decoded[1], decoded[2]));
                EXPECT_THAT(decoded, testing::ElementsAre(schedule, target, process)) << policy;
            }
        }
    }
    EXPECT_EQ(policies.size(), 256U);
    EXPECT_EQ(*policies.begin(), 0);
    EXPECT_EQ(*policies.rbegin(), 255);
}

TEST(FW_DosingMotor, maximumSpeed)
{
    FW_DosingMotor motor;
    EXPECT_EQ(motor.maxSpeed(), 50);
    EXPECT_EQ(motor.maxSpeedOrigin(), FW_DosingMotor::ConfiguredSpeed);
    motor.setMaxSpeed(70);
    EXPECT_EQ(motor.maxSpeed(), 70);
    EXPECT_EQ(motor.maxSpeedOrigin(), FW_DosingMotor::ConfiguredSpeed);
    EXPECT_FALSE(motor == FW_DosingMotor());
    motor.setMaxSpeed(0, 0);
    EXPECT_EQ(motor.maxSpeed(), 0);
    EXPECT_EQ(motor.maxSpeedOrigin(), FW_DosingMotor::PumpSpeed);
    motor.setMaxSpeed(50, 0);
    EXPECT_FALSE(motor == FW_DosingMotor());
    motor.setMaxSpeed(50, 1);
    EXPECT_TRUE(motor == FW_DosingMotor());
}

TEST(FW_DosingMotor, speedRanges)
{
    for (auto check : {&FW_DosingMotor::checkMaxSpeed, &FW_DosingMotor::checkMaxSpeedLimit}) {
        EXPECT_FALSE(check(0));
        EXPECT_TRUE(check(1));
        EXPECT_TRUE(check(2000));
        EXPECT_FALSE(check(2001));
    }
}

TEST(FW_DosingMotor, pump)
{
    FW_DosingMotor motor;
    EXPECT_EQ(motor.pumpType(), 1);
    EXPECT_EQ(motor.pumpValue(), 0);
    motor.setPumpType(8, 3);
    EXPECT_EQ(motor.pumpType(), 8);
    EXPECT_EQ(motor.pumpValue(), 3);
    FW_DosingMotor usual = motor;
    usual.setPumpType(8, 0);
    EXPECT_FALSE(motor == usual);
    EXPECT_EQ(FW_DosingMotor::defaultPumpType(-1), 1);
    EXPECT_EQ(FW_DosingMotor::defaultPumpType(MachineModel::Rotan), 2);
    EXPECT_EQ(FW_DosingMotor::defaultSupplyingCurrentForPump(1, 2), 20);
    EXPECT_EQ(FW_DosingMotor::defaultSupplyingCurrentForPump(1, 0), 10);
    EXPECT_EQ(FW_DosingMotor::defaultSupplyingCurrentForPump(8, 2), 40);
    EXPECT_TRUE(FW_DosingMotor::defaultZeroPump(1));
    EXPECT_FALSE(FW_DosingMotor::defaultZeroPump(8));
}

TEST(FW_DosingMotor, defaultsOfPouring)
{
    EXPECT_EQ(FW_DosingMotor::defaultInterDispensingTime(-1), 0.5);
    EXPECT_EQ(FW_DosingMotor::defaultInterDispensingTime(6), 1.0);
    EXPECT_EQ(FW_DosingMotor::defaultDispensingAlgorithmMask(-1), 1);
    EXPECT_EQ(FW_DosingMotor::defaultDispensingAlgorithmMask(6), 5);
}

TEST(FW_DosingMotor, checksOfPouring)
{
    for (const int mask : {1, 2, 4, 7})
        EXPECT_TRUE(FW_DosingMotor::checkDispensingAlgorithmMask(mask)) << mask;
    for (const int mask : {-1, 0, 8})
        EXPECT_FALSE(FW_DosingMotor::checkDispensingAlgorithmMask(mask)) << mask;
    for (const int group : {-1, 1, 2})
        EXPECT_TRUE(FW_DosingMotor::checkSpeedThrTempReductionGroupID(group)) << group;
    for (const int group : {-2, 0, 3, 245})
        EXPECT_FALSE(FW_DosingMotor::checkSpeedThrTempReductionGroupID(group)) << group;
}

TEST(FW_DosingMotor, speedMultiplier)
{
    FW_DosingMotor motor;
    EXPECT_EQ(motor.getFirstSpeedMpxOffset().multiplier, 1);
    EXPECT_EQ(motor.getFirstSpeedMpxOffset().offset, 0);
    motor.addSpeedMpxOffset({10, 2.5, 4});
    motor.addSpeedMpxOffset({20, 3.5, 5});
    EXPECT_EQ(motor.getFirstSpeedMpxOffset().speed, 10);
    EXPECT_EQ(motor.getFirstSpeedMpxOffset().multiplier, 2.5);
    EXPECT_EQ(motor.getFirstSpeedMpxOffset().offset, 4);
    EXPECT_FALSE(motor == FW_DosingMotor());
}

TEST(FW_DosingMotor, gravimetricSettings)
{
    FW_DosingMotor motor;
    EXPECT_FALSE(motor.hasGravimetricSettings());
    EXPECT_EQ(motor.gravimetricSettings().maxCorrections, 3);
    motor.setDefaultGravimetricSettings();
    EXPECT_TRUE(motor.hasGravimetricSettings());
    EXPECT_FALSE(motor == FW_DosingMotor());
    motor.setGravimetricSettings({0.2, 5});
    EXPECT_EQ(motor.gravimetricSettings().tolerance, 0.2);
    motor.setDefaultGravimetricSettings();
    EXPECT_EQ(motor.gravimetricSettings().tolerance, 0.05);
    motor.removeGravimetricSettings();
    EXPECT_FALSE(motor.hasGravimetricSettings());
    EXPECT_TRUE(motor == FW_DosingMotor());
}

TEST(FW_DosingMotor, partsByReference)
{
    FW_DosingMotor motor;
    EXPECT_EQ(motor.ramp(), nullptr);
    EXPECT_EQ(motor.singleTransmission(), nullptr);
    EXPECT_EQ(motor.flowCorrection(), nullptr);
    EXPECT_EQ(motor.rampConfigRef(), 0);
    EXPECT_EQ(motor.singleTransmissionConfigRef(), 0);
    EXPECT_EQ(motor.flowCorrectionConfigRef(), 0);
    motor.setRamp(FW_Ramp(3));
    EXPECT_FALSE(motor == FW_DosingMotor());
    motor.setSingleTransmission(FW_SingleTransmission(4));
    motor.setFlowCorrection(FW_FlowCorrection(5));
    EXPECT_EQ(motor.rampConfigRef(), 3);
    EXPECT_EQ(motor.singleTransmissionConfigRef(), 4);
    EXPECT_EQ(motor.flowCorrectionConfigRef(), 5);
    ASSERT_NE(motor.ramp(), nullptr);
    EXPECT_EQ(motor.ramp()->slowSpeed(), 15);
    motor.removeRamp();
    motor.removeSingleTransmission();
    motor.removeFlowCorrection();
    EXPECT_TRUE(motor == FW_DosingMotor());
}

TEST(FW_DosingMotor, aChangedCopyLeavesTheOriginal)
{
    FW_DosingMotor original;
    original.setRamp(FW_Ramp(3));
    original.setSuctionSpeed(33);
    FW_DosingMotor copy = original;
    EXPECT_TRUE(copy == original);
    EXPECT_EQ(copy.ramp(), original.ramp()); // shared until then
    copy.setSuctionSpeed(44);
    copy.removeRamp();
    EXPECT_EQ(original.suctionSpeed(), 33);
    EXPECT_EQ(original.rampConfigRef(), 3);
}

TEST(FW_Ramp, defaultsKeepTheReference)
{
    FW_Ramp ramp(7);
    ramp.setSlowSpeed(1);
    ramp.setEnabled(false);
    ramp.setDefaults();
    EXPECT_TRUE(ramp == FW_Ramp(7));
}

TEST(FW_SingleTransmission, comparesEveryMember)
{
    using Part = FW_SingleTransmission;
    for (double Part::*member :
         {&Part::motorRatedCurrent, &Part::inverterRatedCurrent, &Part::inverterOverloadMultiplier,
          &Part::motorCurrentMultiplier, &Part::motorOverloadTimeout, &Part::motorMaxSpeed, &Part::y1,
          &Part::y2, &Part::x1, &Part::x2, &Part::motorSpeedErrorTolerance, &Part::encoderPulses,
          &Part::encoderChannels, &Part::encoderStepFraction}) {
        Part part(2);
        part.*member = 0.25;
        EXPECT_FALSE(part == Part(2));
        part.setDefaults();
        EXPECT_TRUE(part == Part(2));
    }
    for (int Part::*member : {&Part::configRef, &Part::inverterCurrentMax, &Part::inverterVoltageMax}) {
        Part part(2);
        part.*member = 77;
        EXPECT_TRUE(part != Part(2));
    }
    EXPECT_EQ(Part(2).configRef, 2);
}

TEST(FW_FlowCorrection, comparesEveryMember)
{
    using Part = FW_FlowCorrection;
    for (int Part::*member : {&Part::overchargeSteps, &Part::predispenseSteps,
                              &Part::zonalFlowCorrectionLevel, &Part::zonalDelayLevel}) {
        Part part(2);
        part.*member = 77;
        EXPECT_FALSE(part == Part(2));
        part.setDefaults(-1);
        EXPECT_TRUE(part == Part(2));
    }
    for (double Part::*member : {&Part::bottomDelay, &Part::topDelay}) {
        Part part(2);
        part.*member = 7.5;
        EXPECT_TRUE(part != Part(2));
    }
    EXPECT_FALSE(Part(2) == Part(3));
}

TEST(FW_CanisterLevelSensor, frequencyStandsInItsUnit)
{
    FW_CanisterLevelSensor sensor;
    EXPECT_EQ(sensor.checkFrequency(), 100);
    EXPECT_EQ(sensor.checkFrequencyUnit(), FW_CanisterLevelSensor::HundredthsOfStroke);
    sensor.setCheckFrequency(100, 0);
    EXPECT_EQ(sensor.checkFrequency(), 100);
    EXPECT_EQ(sensor.checkFrequencyUnit(), FW_CanisterLevelSensor::FirmwareUnit);
    EXPECT_FALSE(sensor == FW_CanisterLevelSensor());
    sensor.setCheckFrequency(200, 1);
    EXPECT_EQ(sensor.checkFrequency(), 200);
    const std::unique_ptr<FW_CanisterLevelSensor> clone(sensor.clone());
    EXPECT_TRUE(*clone == sensor);
    clone->setCriticalLevel(1);
    EXPECT_EQ(sensor.criticalLevel(), 500);
}

TEST(FW_CalibrationProfiles, findsPumps)
{
    FW_CalibrationProfiles profiles;
    EXPECT_FALSE(profiles.hasPumps());
    EXPECT_EQ(profiles.getPumpByID(1), nullptr);
    const auto add = [&](int id, int type, int value) {
        FW_DosingMotor pump;
        pump.setMotorId(id);
        pump.setPumpType(type, value);
        profiles.addPump(pump);
    };
    add(0, 9, 0);
    add(5, 1, 0);
    add(6, 1, 2);
    add(7, 1, 0);
    EXPECT_TRUE(profiles.hasPumps());
    ASSERT_NE(profiles.getPumpByID(6), nullptr);
    EXPECT_EQ(profiles.getPumpByID(6)->pumpValue(), 2);
    EXPECT_EQ(profiles.getPumpByID(0), nullptr); // no pump's ID
    EXPECT_EQ(profiles.getPumpByID(8), nullptr);
    const auto idOf = [](const FW_DosingMotor *pump) { return pump ? pump->motorID() : -1; };
    EXPECT_EQ(idOf(profiles.getDefaultPumpByType(1, 0, 0)), 5);
    EXPECT_EQ(idOf(profiles.getDefaultPumpByType(1, 0, 1)), 7);
    EXPECT_EQ(idOf(profiles.getDefaultPumpByType(1, 2, 0)), 6);
    EXPECT_EQ(idOf(profiles.getDefaultPumpByType(1, 0, 2)), -1);
    EXPECT_EQ(idOf(profiles.getDefaultPumpByType(2, 0, 0)), -1);
    EXPECT_EQ(idOf(profiles.getDefaultPumpByType(1, 0, -1)), -1);
    EXPECT_TRUE(profiles != FW_CalibrationProfiles());
}

TEST(FW_Valve, types)
{
    EXPECT_FALSE(FW_Valve::checkValveType(-1));
    EXPECT_TRUE(FW_Valve::checkValveType(0));
    EXPECT_TRUE(FW_Valve::checkValveType(6));
    EXPECT_FALSE(FW_Valve::checkValveType(7));
}

} // namespace
