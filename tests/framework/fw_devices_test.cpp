// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fields.h"
#include "values.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_brush2.h>
#include <QuvFramework/fw_bungholelocator.h>
#include <QuvFramework/fw_canpresencesensor.h>
#include <QuvFramework/fw_heater.h>
#include <QuvFramework/fw_humidifier.h>
#include <QuvFramework/fw_lineartable.h>
#include <QuvFramework/fw_lock.h>
#include <QuvFramework/fw_nozzlelight.h>
#include <QuvFramework/fw_nozzlevalve.h>
#include <QuvFramework/fw_offline.h>
#include <QuvFramework/fw_plcboard.h>
#include <QuvFramework/fw_shelf.h>
#include <QuvFramework/fw_temperaturesensor.h>
#include <QuvFramework/fw_turntable.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <gmock/gmock.h>

#include <memory>

using fields::expectField;
using testing::ElementsAre;
using testing::IsEmpty;
using values::arrayOf;
using values::structOf;
using XmlRpc::XmlRpcValue;

namespace {

constexpr int kinds[] = {0, 1, 2, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19};

TEST(FW_Devices, areMadeByTheirKind)
{
    for (const int kind : kinds) {
        SCOPED_TRACE(kind);
        const std::unique_ptr<FW_Device> device = FW_Device::create(kind);
        ASSERT_NE(device, nullptr);
        EXPECT_EQ(device->kind(), kind);
        EXPECT_TRUE(device->isEnabled());
    }
    for (const int kind : {-1, 3, 4, 14, 20})
        EXPECT_EQ(FW_Device::create(kind), nullptr) << kind;
}

TEST(FW_Devices, areOfTheClassOfTheirKind)
{
    EXPECT_NE(dynamic_cast<FW_Autocap *>(FW_Device::create(0).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Shelf *>(FW_Device::create(1).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_CanPresenceSensor *>(FW_Device::create(2).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Humidifier *>(FW_Device::create(5).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Offline *>(FW_Device::create(6).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_TemperatureSensor *>(FW_Device::create(7).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_BungHoleLocator *>(FW_Device::create(8).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_NozzleLight *>(FW_Device::create(9).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Turntable *>(FW_Device::create(10).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Heater *>(FW_Device::create(11).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Brush *>(FW_Device::create(12).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_NozzleValve *>(FW_Device::create(13).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Lineartable *>(FW_Device::create(15).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_UltrasoundCleaning *>(FW_Device::create(16).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Lock *>(FW_Device::create(17).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_Brush2 *>(FW_Device::create(18).get()), nullptr);
    EXPECT_NE(dynamic_cast<FW_PLCBoard *>(FW_Device::create(19).get()), nullptr);
}

TEST(FW_Devices, cloneAndCompareWithinAKindOnly)
{
    for (const int kind : kinds) {
        SCOPED_TRACE(kind);
        const std::unique_ptr<FW_Device> device = FW_Device::create(kind);
        const std::unique_ptr<FW_Device> copy(device->clone());
        EXPECT_TRUE(device->equalTo(*copy));
        EXPECT_TRUE(*device == *copy);
        copy->setEnabled(false);
        EXPECT_TRUE(device->isEnabled());
        EXPECT_FALSE(device->equalTo(*copy));
        EXPECT_TRUE(*device != *copy);
        for (const int other : kinds)
            EXPECT_EQ(device->equalTo(*FW_Device::create(other)), kind == other) << other;
    }
}

TEST(FW_Devices, clonesAreOfTheSameClass)
{
    FW_TemperatureSensor sensor;
    sensor.addTemperatureThreshold(1);
    const std::unique_ptr<FW_Device> copy(static_cast<const FW_Device &>(sensor).clone());
    auto *clone = dynamic_cast<FW_TemperatureSensor *>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->temperatureThreshold(3), 1);
    clone->clearTemperatureThresholds();
    EXPECT_EQ(sensor.temperatureThreshold(3), 1);
}

template <class Device, class SetDefaults>
void expectDefaultsRestored(Device changed, SetDefaults setDefaults)
{
    setDefaults(changed, false);
    EXPECT_FALSE(changed.isEnabled());
    EXPECT_FALSE(changed == Device());
    setDefaults(changed, true);
    EXPECT_TRUE(changed == Device());
}

TEST(FW_Devices, takeTheirDefaults)
{
    const auto byEnabled = [](auto &device, bool enabled) { device.setDefaults(enabled); };
    const auto byEnabledAndModel = [](auto &device, bool enabled) { device.setDefaults(enabled, -1); };
    FW_Autocap autocap;
    autocap.setType(9);
    expectDefaultsRestored(autocap, byEnabled);
    FW_Humidifier humidifier;
    humidifier.setMultiplierCoefficient(9, 0);
    expectDefaultsRestored(humidifier, byEnabled);
    FW_TemperatureSensor temperature;
    temperature.addErogationSpeed(9, 2);
    expectDefaultsRestored(temperature, byEnabledAndModel);
    FW_Shelf shelf;
    shelf.setType(9, -1, FW_Version());
    expectDefaultsRestored(shelf, byEnabled);
    FW_CanPresenceSensor can;
    can.setType(9);
    expectDefaultsRestored(can, byEnabledAndModel);
    FW_BungHoleLocator locator;
    locator.setDrivingMode(9);
    expectDefaultsRestored(locator, byEnabled);
    FW_NozzleLight light;
    light.setDrivingMode(9);
    expectDefaultsRestored(light, byEnabled);
    FW_Heater heater;
    heater.setLowTemperatureThreshold(9);
    expectDefaultsRestored(heater, byEnabledAndModel);
    FW_NozzleValve valve;
    valve.setNozzleType(9);
    expectDefaultsRestored(valve,
                           [](FW_NozzleValve &device, bool enabled) { device.setDefaults(-1, enabled); });
    FW_UltrasoundCleaning cleaning;
    cleaning.setFillingTime(9);
    expectDefaultsRestored(cleaning, byEnabled);
    FW_Lock lock;
    lock.setManualUnlockSignalMask(9);
    expectDefaultsRestored(lock, byEnabledAndModel);
    FW_PLCBoard plc;
    plc.setPlcSignalsValue(9);
    expectDefaultsRestored(plc, byEnabled);
    FW_Turntable turntable;
    turntable.setResolution(9);
    expectDefaultsRestored(turntable, byEnabled);
    FW_Lineartable lineartable;
    lineartable.setLowSpeed(9);
    expectDefaultsRestored(lineartable, byEnabled);
    FW_Brush brush;
    brush.setTimeout(9, 2);
    expectDefaultsRestored(brush, byEnabled);
    FW_Brush2 brush2;
    brush2.setPosition(9);
    expectDefaultsRestored(brush2, byEnabled);
    FW_Offline offline;
    offline.setEasyOnTime(9);
    expectDefaultsRestored(offline, byEnabled);
}

TEST(FW_Autocap, fields)
{
    expectField<FW_Autocap>("type", &FW_Autocap::type, &FW_Autocap::setType, 1, 7);
    expectField<FW_Autocap>("movementType", &FW_Autocap::movementType, &FW_Autocap::setMovementType, 1, 2);
    expectField<FW_Autocap>("openingTimeout", &FW_Autocap::openingTimeout, &FW_Autocap::setOpeningTimeout, 10,
                            11);
    expectField<FW_Autocap>("closingTimeout", &FW_Autocap::closingTimeout, &FW_Autocap::setClosingTimeout, 10,
                            12);
    expectField<FW_Autocap>("closingDelay", &FW_Autocap::closingDelay, &FW_Autocap::setClosingDelay, 5, 6);
    expectField<FW_Autocap>("powerOffDelay", &FW_Autocap::powerOffDelay, &FW_Autocap::setPowerOffDelay, 2, 3);
    expectField<FW_Autocap>("automaticClosure", &FW_Autocap::automaticClosure,
                            &FW_Autocap::setAutomaticClosure, true, false);
    expectField<FW_Autocap>("movementSpeed", &FW_Autocap::movementSpeed, &FW_Autocap::setMovementSpeed, 50,
                            60);
    expectField<FW_Autocap>("workingMode", &FW_Autocap::workingMode, &FW_Autocap::setWorkingMode, 1, 2);
    expectField<FW_Autocap>("slidingOfflinePosTime", &FW_Autocap::slidingOfflinePosTime,
                            &FW_Autocap::setSlidingOfflinePosTime, 3, 4);
}

TEST(FW_Shelf, fields)
{
    expectField<FW_Shelf>("doorValue", &FW_Shelf::doorValue, &FW_Shelf::setDoorValue, 0, 1);
    expectField<FW_Shelf>("moveOffset", &FW_Shelf::moveOffset, &FW_Shelf::setMoveOffset, 10, 11);
    expectField<FW_Shelf>("resolution", &FW_Shelf::resolution, &FW_Shelf::setResolution, 400, 200);
    expectField<FW_Shelf>("punchingTolerance", &FW_Shelf::punchingTolerance, &FW_Shelf::setPunchingTolerance,
                          5, 6);
    expectField<FW_Shelf>("punchingSpeed", &FW_Shelf::punchingSpeed, &FW_Shelf::setPunchingSpeed, 40, 41);
    expectField<FW_Shelf>("canPresenceSensorHigh", &FW_Shelf::canPresenceSensorHigh,
                          &FW_Shelf::setCanPresenceSensorHigh, 20, 21);
    expectField<FW_Shelf>("punchingSensorHigh", &FW_Shelf::punchingSensorHigh,
                          &FW_Shelf::setPunchingSensorHigh, 30, 31);
    expectField<FW_Shelf>("punchingMoveOffset", &FW_Shelf::punchingMoveOffset,
                          &FW_Shelf::setPunchingMoveOffset, 15, 16);
    expectField<FW_Shelf>("hasRollConveyor", &FW_Shelf::hasRollConveyor, &FW_Shelf::setRollConveyor, false,
                          true);
    expectField<FW_Shelf>("rollConveyorHeight", &FW_Shelf::rollConveyorHeight,
                          &FW_Shelf::setRollConveyorHeight, 0, 500);
}

TEST(FW_CanPresenceSensor, fields)
{
    expectField<FW_CanPresenceSensor>("type", &FW_CanPresenceSensor::type, &FW_CanPresenceSensor::setType, 1,
                                      2);
    expectField<FW_CanPresenceSensor>("canPresenceCheckAndStatus",
                                      &FW_CanPresenceSensor::canPresenceCheckAndStatus,
                                      &FW_CanPresenceSensor::setCanPresenceCheckAndStatus, 1, 3);
}

TEST(FW_Humidifier, fields)
{
    expectField<FW_Humidifier>("readingPeriod", &FW_Humidifier::readingPeriod,
                               &FW_Humidifier::setReadingPeriod, 60, 61);
    expectField<FW_Humidifier>("lowHumidityWarningThreshold", &FW_Humidifier::lowHumidityWarningThreshold,
                               &FW_Humidifier::setLowHumidityWarningThreshold, 40, 35);
}

TEST(FW_Offline, fields)
{
    expectField<FW_Offline>("easyOnTime", &FW_Offline::easyOnTime, &FW_Offline::setEasyOnTime, 90, 120);
}

TEST(FW_TemperatureSensor, fields)
{
    expectField<FW_TemperatureSensor>("readingPeriod", &FW_TemperatureSensor::readingPeriod,
                                      &FW_TemperatureSensor::setReadingPeriod, 60, 30);
}

TEST(FW_BungHoleLocator, fields)
{
    expectField<FW_BungHoleLocator>("drivingMode", &FW_BungHoleLocator::drivingMode,
                                    &FW_BungHoleLocator::setDrivingMode, 1, 2);
    expectField<FW_BungHoleLocator>("deactivationDelay", &FW_BungHoleLocator::deactivationDelay,
                                    &FW_BungHoleLocator::setDeactivationDelay, 30, 31);
}

TEST(FW_NozzleLight, fields)
{
    expectField<FW_NozzleLight>("drivingMode", &FW_NozzleLight::drivingMode, &FW_NozzleLight::setDrivingMode,
                                1, 3);
    expectField<FW_NozzleLight>("deactivationDelay", &FW_NozzleLight::deactivationDelay,
                                &FW_NozzleLight::setDeactivationDelay, 60, 10);
}

TEST(FW_Turntable, fields)
{
    expectField<FW_Turntable>("roundSteps", &FW_Turntable::roundSteps, &FW_Turntable::setRoundSteps, 12800,
                              6400);
    expectField<FW_Turntable>("perimeter", &FW_Turntable::perimeter, &FW_Turntable::setPerimeter, 2400, 2500);
    expectField<FW_Turntable>("internalPerimeter", &FW_Turntable::internalPerimeter,
                              &FW_Turntable::setInternalPerimeter, 0, 900);
    expectField<FW_Turntable>("refillAngle", &FW_Turntable::refillAngle, &FW_Turntable::setRefillAngle, 0,
                              90);
    expectField<FW_Turntable>("serviceAngle", &FW_Turntable::serviceAngle, &FW_Turntable::setServiceAngle, 0,
                              180);
    expectField<FW_Turntable>("stepTime", &FW_Turntable::stepTime, &FW_Turntable::setStepTime, 1500, 1000);
    expectField<FW_Turntable>("zeroRefPinSize", &FW_Turntable::zeroRefPinSize,
                              &FW_Turntable::setZeroRefPinSize, 60, 61);
    expectField<FW_Turntable>("circuitPinSize", &FW_Turntable::circuitPinSize,
                              &FW_Turntable::setCircuitPinSize, 30, 31);
    expectField<FW_Turntable>("positioningTolerance", &FW_Turntable::positioningTolerance,
                              &FW_Turntable::setPositioningTolerance, 4, 5);
    expectField<FW_Turntable>("highSpeed", &FW_Turntable::highSpeed, &FW_Turntable::setHighSpeed, 80, 81);
    expectField<FW_Turntable>("lowSpeed", &FW_Turntable::lowSpeed, &FW_Turntable::setLowSpeed, 20, 21);
    expectField<FW_Turntable>("zeroRefSearchSpeed", &FW_Turntable::zeroRefSearchSpeed,
                              &FW_Turntable::setZeroRefSearchSpeed, 30, 32);
    expectField<FW_Turntable>("resolution", &FW_Turntable::resolution, &FW_Turntable::setResolution, 1600,
                              800);
    expectField<FW_Turntable>("supplyingCurrent", &FW_Turntable::supplyingCurrent,
                              &FW_Turntable::setSupplyingCurrent, 30, 33);
    expectField<FW_Turntable>("motorID", &FW_Turntable::motorID, &FW_Turntable::setMotorId, 0, 4);
}

TEST(FW_Heater, fields)
{
    expectField<FW_Heater>("lowTemperatureThreshold", &FW_Heater::lowTemperatureThreshold,
                           &FW_Heater::setLowTemperatureThreshold, 18, 10);
    expectField<FW_Heater>("highTemperatureThreshold", &FW_Heater::highTemperatureThreshold,
                           &FW_Heater::setHighTemperatureThreshold, 25, 30);
}

TEST(FW_Brush, fields)
{
    expectField<FW_Brush>("position", &FW_Brush::position, &FW_Brush::setPosition, 0, 20);
    expectField<FW_Brush>("selfCleaningTime", &FW_Brush::selfCleaningTime, &FW_Brush::setSelfCleaningTime, 15,
                          20);
    expectField<FW_Brush>("turntableSpeed", &FW_Brush::turntableSpeed, &FW_Brush::setTurntableSpeed, 50, 60);
    expectField<FW_Brush>("scheduleMask", &FW_Brush::scheduleMask, &FW_Brush::setScheduleMask, 4, 7);
    expectField<FW_Brush>("isCleaningEnabled", &FW_Brush::isCleaningEnabled, &FW_Brush::setCleaningEnabled,
                          true, false);
}

TEST(FW_NozzleValve, fields)
{
    expectField<FW_NozzleValve>("nozzleType", &FW_NozzleValve::nozzleType, &FW_NozzleValve::setNozzleType, 1,
                                2);
}

TEST(FW_Lineartable, fields)
{
    expectField<FW_Lineartable>("linearSteps", &FW_Lineartable::linearSteps, &FW_Lineartable::setLinearSteps,
                                20000, 30000);
    expectField<FW_Lineartable>("length", &FW_Lineartable::length, &FW_Lineartable::setLength, 1800, 2000);
    expectField<FW_Lineartable>("freeSlotPosition", &FW_Lineartable::freeSlotPosition,
                                &FW_Lineartable::setFreeSlotPosition, 0, 50);
    expectField<FW_Lineartable>("servicePosition", &FW_Lineartable::servicePosition,
                                &FW_Lineartable::setServicePosition, 100, 200);
    expectField<FW_Lineartable>("zeroRefPinSize", &FW_Lineartable::zeroRefPinSize,
                                &FW_Lineartable::setZeroRefPinSize, 60, 61);
    expectField<FW_Lineartable>("circuitPinSize", &FW_Lineartable::circuitPinSize,
                                &FW_Lineartable::setCircuitPinSize, 30, 31);
    expectField<FW_Lineartable>("positioningTolerance", &FW_Lineartable::positioningTolerance,
                                &FW_Lineartable::setPositioningTolerance, 4, 5);
    expectField<FW_Lineartable>("highSpeed", &FW_Lineartable::highSpeed, &FW_Lineartable::setHighSpeed, 80,
                                81);
    expectField<FW_Lineartable>("lowSpeed", &FW_Lineartable::lowSpeed, &FW_Lineartable::setLowSpeed, 20, 21);
    expectField<FW_Lineartable>("zeroRefSearchSpeed", &FW_Lineartable::zeroRefSearchSpeed,
                                &FW_Lineartable::setZeroRefSearchSpeed, 30, 32);
    expectField<FW_Lineartable>("resolution", &FW_Lineartable::resolution, &FW_Lineartable::setResolution,
                                1600, 800);
    expectField<FW_Lineartable>("supplyingCurrent", &FW_Lineartable::supplyingCurrent,
                                &FW_Lineartable::setSupplyingCurrent, 30, 33);
}

TEST(FW_UltrasoundCleaning, fields)
{
    expectField<FW_UltrasoundCleaning>("sourceVoltageValue", &FW_UltrasoundCleaning::sourceVoltageValue,
                                       &FW_UltrasoundCleaning::setSourceVoltageValue, 24, 48);
    expectField<FW_UltrasoundCleaning>("cleaningPolicyValue", &FW_UltrasoundCleaning::cleaningPolicyValue,
                                       &FW_UltrasoundCleaning::setCleaningPolicyValue, 1, 2);
    expectField<FW_UltrasoundCleaning>("ultrasoundDuration", &FW_UltrasoundCleaning::ultrasoundDuration,
                                       &FW_UltrasoundCleaning::setUltrasoundDuration, 30, 40);
    expectField<FW_UltrasoundCleaning>("ultrasoundPause", &FW_UltrasoundCleaning::ultrasoundPause,
                                       &FW_UltrasoundCleaning::setUltrasoundPause, 10, 20);
    expectField<FW_UltrasoundCleaning>("emptyingTime", &FW_UltrasoundCleaning::emptyingTime,
                                       &FW_UltrasoundCleaning::setEmptyingTime, 5.0, 6.5);
    expectField<FW_UltrasoundCleaning>("fillingTime", &FW_UltrasoundCleaning::fillingTime,
                                       &FW_UltrasoundCleaning::setFillingTime, 8.0, 9.1);
    expectField<FW_UltrasoundCleaning>("levelSensorEnabledFwValue",
                                       &FW_UltrasoundCleaning::levelSensorEnabledFwValue,
                                       &FW_UltrasoundCleaning::setLevelSensorEnabledFwValue, 1, 2);
}

TEST(FW_Lock, fields)
{
    expectField<FW_Lock>("manualUnlockSignalMask", &FW_Lock::manualUnlockSignalMask,
                         &FW_Lock::setManualUnlockSignalMask, 1, 5);
}

TEST(FW_Brush2, fields)
{
    expectField<FW_Brush2>("position", &FW_Brush2::position, &FW_Brush2::setPosition, 0, 21);
    expectField<FW_Brush2>("selfCleaningTime", &FW_Brush2::selfCleaningTime, &FW_Brush2::setSelfCleaningTime,
                           15, 5);
}

TEST(FW_PLCBoard, fields)
{
    expectField<FW_PLCBoard>("plcSignalsValue", &FW_PLCBoard::plcSignalsValue,
                             &FW_PLCBoard::setPlcSignalsValue, 3, 7);
    expectField<FW_PLCBoard>("endDispSignalActivationTime", &FW_PLCBoard::endDispSignalActivationTime,
                             &FW_PLCBoard::setEndDispSignalActivationTime, 1.5, 0.3);
    expectField<FW_PLCBoard>("errDispSignalActivationTime", &FW_PLCBoard::errDispSignalActivationTime,
                             &FW_PLCBoard::setErrDispSignalActivationTime, 2.5, 0.7);
}

TEST(FW_Autocap, hasACleaningSystemByItsType)
{
    FW_Autocap autocap;
    EXPECT_FALSE(autocap.hasAutomaticCleaningSystem());
    autocap.setType(3);
    EXPECT_TRUE(autocap.hasAutomaticCleaningSystem());
    autocap.setType(2);
    EXPECT_FALSE(autocap.hasAutomaticCleaningSystem());
}

TEST(FW_Autocap, writesMembers)
{
    FW_Autocap autocap;
    autocap.setType(4);
    autocap.setMovementType(2);
    XmlRpcValue value = structOf({{"cmd_enabled", XmlRpcValue(1)}});
    autocap.setTypeValue(value);
    autocap.setMovementTypeValue(value);
    EXPECT_TRUE(SameXmlRpcValue(value, structOf({{"cmd_enabled", XmlRpcValue(1)},
                                                 {"autocap_type", XmlRpcValue(4)},
                                                 {"movement_type", XmlRpcValue(2)}})));
}

TEST(FW_Shelf, typeAndPuncher)
{
    FW_Shelf shelf;
    EXPECT_EQ(shelf.type(), 1);
    EXPECT_EQ(shelf.puncher(), 0);
    shelf.setType(3, -1, FW_Version());
    EXPECT_EQ(shelf.type(), 3);
    EXPECT_FALSE(shelf == FW_Shelf());
    FW_Shelf other;
    other.setPuncher(2, MachineModel::Zandor, FW_Version(63, 38));
    EXPECT_EQ(other.puncher(), 2);
    EXPECT_FALSE(other == FW_Shelf());
}

TEST(FW_Humidifier, hasTwoVaporizers)
{
    FW_Humidifier humidifier;
    EXPECT_EQ(humidifier.multiplierCoefficient(0), 10);
    EXPECT_EQ(humidifier.multiplierCoefficient(1), 10);
    humidifier.setMultiplierCoefficient(12, 0);
    EXPECT_FALSE(humidifier == FW_Humidifier());
    humidifier.setMultiplierCoefficient(14, 1);
    EXPECT_EQ(humidifier.multiplierCoefficient(0), 12);
    EXPECT_EQ(humidifier.multiplierCoefficient(1), 14);
    const FW_Humidifier before = humidifier;
    humidifier.setMultiplierCoefficient(16, 2);
    humidifier.setMultiplierCoefficient(16, -1);
    EXPECT_TRUE(humidifier == before);
    EXPECT_EQ(humidifier.multiplierCoefficient(2), 0);
    EXPECT_EQ(humidifier.multiplierCoefficient(-1), 0);
}

TEST(FW_Humidifier, writesMembers)
{
    FW_Humidifier humidifier;
    humidifier.setReadingPeriod(5);
    humidifier.setMultiplierCoefficient(6, 0);
    humidifier.setMultiplierCoefficient(8, 1);
    humidifier.setLowHumidityWarningThreshold(7);
    XmlRpcValue value;
    humidifier.setReadingPeriodValue(value);
    humidifier.setMultiplierCoefficientValue(value);
    humidifier.setLowHumidityWarningThresholdValue(value);
    EXPECT_TRUE(SameXmlRpcValue(value, structOf({{"reading_period", XmlRpcValue(5)},
                                                 {"multiplier_coefficient", XmlRpcValue(6)},
                                                 {"low_humidity_warning_threshold", XmlRpcValue(7)}})));
}

TEST(FW_TemperatureSensor, thresholds)
{
    FW_TemperatureSensor sensor;
    EXPECT_THAT(sensor.temperatureThresholds(), ElementsAre(15, 10, 5));
    sensor.clearTemperatureThresholds();
    EXPECT_THAT(sensor.temperatureThresholds(), IsEmpty());
    EXPECT_FALSE(sensor == FW_TemperatureSensor());
    sensor.addTemperatureThreshold(20);
    sensor.addTemperatureThreshold(8);
    EXPECT_EQ(sensor.temperatureThreshold(0), 20);
    EXPECT_EQ(sensor.temperatureThreshold(1), 8);
    EXPECT_EQ(sensor.temperatureThreshold(2), 0);
    EXPECT_EQ(sensor.temperatureThreshold(-1), 0);
}

TEST(FW_TemperatureSensor, speedsOfTwoGroups)
{
    FW_TemperatureSensor sensor;
    EXPECT_THAT(sensor.erogationSpeeds(1), ElementsAre(0, 80, 60));
    EXPECT_THAT(sensor.erogationSpeeds(2), ElementsAre(0, 80, 60));
    sensor.clearErogationSpeeds(2);
    EXPECT_FALSE(sensor == FW_TemperatureSensor());
    sensor.addErogationSpeed(0, 2);
    sensor.addErogationSpeed(33, 2);
    EXPECT_EQ(sensor.erogationSpeed(1, 1), 80);
    EXPECT_EQ(sensor.erogationSpeed(2, 1), 60);
    EXPECT_EQ(sensor.erogationSpeed(1, 2), 33);
    EXPECT_EQ(sensor.erogationSpeed(2, 2), 0);
    EXPECT_EQ(sensor.erogationSpeed(-1, 2), 0);
    const FW_TemperatureSensor before = sensor;
    for (const int group : {0, 3}) {
        sensor.addErogationSpeed(1, group);
        sensor.clearErogationSpeeds(group);
        EXPECT_THAT(sensor.erogationSpeeds(group), IsEmpty());
    }
    EXPECT_TRUE(sensor == before);
}

TEST(FW_TemperatureSensor, writesMembers)
{
    FW_TemperatureSensor sensor;
    sensor.setReadingPeriod(9);
    sensor.clearErogationSpeeds(2);
    sensor.addErogationSpeed(4, 2);
    XmlRpcValue value;
    sensor.setReadingPeriodValue(value);
    sensor.setTemperatureThresholdValue(value);
    sensor.setErogationSpeedsValue(value, 1);
    sensor.setErogationSpeedsValue(value, 2);
    sensor.setErogationSpeedsValue(value, 3);
    EXPECT_TRUE(SameXmlRpcValue(
        value,
        structOf({{"reading_period", XmlRpcValue(9)},
                  {"temperature_thresholds", arrayOf({XmlRpcValue(15), XmlRpcValue(10), XmlRpcValue(5)})},
                  {"erogation_speeds_group_1", arrayOf({XmlRpcValue(0), XmlRpcValue(80), XmlRpcValue(60)})},
                  {"erogation_speeds_group_2", arrayOf({XmlRpcValue(4)})}})));
}

TEST(FW_NozzleValve, timeoutInUnits)
{
    FW_NozzleValve valve;
    EXPECT_EQ(valve.timeout(1), 20);
    EXPECT_EQ(valve.timeout(0), 20000);
    EXPECT_EQ(valve.timeout(2), 0);
    valve.setTimeout(150, 1);
    EXPECT_EQ(valve.timeout(2), 2);
    EXPECT_EQ(valve.timeout(1), 150);
    EXPECT_FALSE(valve == FW_NozzleValve());
}

TEST(FW_TimeSpan, keepsWhatItWasGiven)
{
    EXPECT_EQ(FW_TimeSpan().in(0), 0);
    EXPECT_EQ(FW_TimeSpan(1, 2).in(0), 60000);
    EXPECT_EQ(FW_TimeSpan(1, 2).in(1), 60);
    EXPECT_EQ(FW_TimeSpan(90, 1).in(2), 1);
    EXPECT_EQ(FW_TimeSpan(90, 1).in(1), 90);
    EXPECT_EQ(FW_TimeSpan(1999, 0).in(1), 1);
    EXPECT_EQ(FW_TimeSpan(1999, 0).in(7), 1999);
    EXPECT_EQ(FW_TimeSpan(-3, 2).in(2), -3);
    EXPECT_EQ(FW_TimeSpan(2147483647, 2).in(2), 2147483647);
    EXPECT_EQ(FW_TimeSpan(2147483647, 2).in(0), 2147483647);
    EXPECT_TRUE(FW_TimeSpan(60, 1) == FW_TimeSpan(1, 2));
    EXPECT_TRUE(FW_TimeSpan(60, 1) != FW_TimeSpan(60, 2));
}

TEST(FW_UltrasoundCleaning, namesOfItsTimes)
{
    EXPECT_STREQ(FW_UltrasoundCleaning::ultrasoundDuration_TAG, "ultrasound_duration");
    EXPECT_STREQ(FW_UltrasoundCleaning::emptyingTime_TAG, "emptying_time");
    EXPECT_STREQ(FW_UltrasoundCleaning::fillingTime_TAG, "filling_time");
}

TEST(FW_Brush, cleansQuickly)
{
    FW_Brush brush;
    EXPECT_EQ(brush.timeout(2), 60);
    brush.setTimeout(90, 2);
    EXPECT_EQ(brush.timeout(2), 90);
    EXPECT_EQ(brush.timeout(1), 5400);
    EXPECT_FALSE(brush == FW_Brush());
    EXPECT_EQ(FW_BrushBase::defaultSelfCleaningTimeValue(-1), 15);
}

} // namespace
