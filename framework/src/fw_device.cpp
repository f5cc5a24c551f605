// SPDX-License-Identifier: LGPL-3.0-or-later
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

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace {

template <class Device>
std::unique_ptr<FW_Device> made()
{
    return std::make_unique<Device>();
}

} // namespace

FW_Device::~FW_Device() = default;

std::unique_ptr<FW_Device> FW_Device::create(int kind)
{
    switch (kind) {
    case Autocap:
        return made<FW_Autocap>();
    case Shelf:
        return made<FW_Shelf>();
    case CanPresenceSensor:
        return made<FW_CanPresenceSensor>();
    case Humidifier:
        return made<FW_Humidifier>();
    case Offline:
        return made<FW_Offline>();
    case TemperatureSensor:
        return made<FW_TemperatureSensor>();
    case BungHoleLocator:
        return made<FW_BungHoleLocator>();
    case NozzleLight:
        return made<FW_NozzleLight>();
    case Turntable:
        return made<FW_Turntable>();
    case Heater:
        return made<FW_Heater>();
    case Brush:
        return made<FW_Brush>();
    case NozzleValve:
        return made<FW_NozzleValve>();
    case Lineartable:
        return made<FW_Lineartable>();
    case UltrasoundCleaning:
        return made<FW_UltrasoundCleaning>();
    case Lock:
        return made<FW_Lock>();
    case Brush2:
        return made<FW_Brush2>();
    case PLCBoard:
        return made<FW_PLCBoard>();
    default:
        return nullptr;
    }
}

FW_Autocap *FW_Autocap::clone() const
{
    return new FW_Autocap(*this);
}

bool FW_Autocap::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Autocap &d) {
        return std::tie(d.m_type, d.m_movementType, d.m_openingTimeout, d.m_closingTimeout, d.m_closingDelay,
                        d.m_powerOffDelay, d.m_automaticClosure, d.m_movementSpeed, d.m_workingMode,
                        d.m_slidingOfflinePosTime);
    });
}

void FW_Autocap::setDefaults(bool enabled)
{
    *this = FW_Autocap();
    setEnabled(enabled);
}

void FW_Autocap::setTypeValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("autocap_type"), m_type);
}

void FW_Autocap::setMovementTypeValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("movement_type"), m_movementType);
}

FW_Shelf *FW_Shelf::clone() const
{
    return new FW_Shelf(*this);
}

bool FW_Shelf::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Shelf &d) {
        return std::tie(d.m_type, d.m_puncher, d.m_doorValue, d.m_moveOffset, d.m_resolution,
                        d.m_punchingTolerance, d.m_punchingSpeed, d.m_canPresenceSensorHigh,
                        d.m_punchingSensorHigh, d.m_punchingMoveOffset, d.m_rollConveyor,
                        d.m_rollConveyorHeight);
    });
}

void FW_Shelf::setDefaults(bool enabled)
{
    *this = FW_Shelf();
    setEnabled(enabled);
}

FW_CanPresenceSensor *FW_CanPresenceSensor::clone() const
{
    return new FW_CanPresenceSensor(*this);
}

bool FW_CanPresenceSensor::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_CanPresenceSensor &d) {
        return std::tie(d.m_type, d.m_canPresenceCheckAndStatus);
    });
}

void FW_CanPresenceSensor::setDefaults(bool enabled, FW_ModelNumber /*model*/)
{
    *this = FW_CanPresenceSensor();
    setEnabled(enabled);
}

FW_Humidifier *FW_Humidifier::clone() const
{
    return new FW_Humidifier(*this);
}

bool FW_Humidifier::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Humidifier &d) {
        return std::tie(d.m_readingPeriod, d.m_multiplierCoefficients, d.m_lowHumidityWarningThreshold);
    });
}

void FW_Humidifier::setDefaults(bool enabled)
{
    *this = FW_Humidifier();
    setEnabled(enabled);
}

bool FW_Humidifier::hasVaporizer(int vaporizer) const
{
    return vaporizer >= 0 && vaporizer < static_cast<int>(m_multiplierCoefficients.size());
}

int FW_Humidifier::multiplierCoefficient(int vaporizer) const
{
    return hasVaporizer(vaporizer) ? m_multiplierCoefficients[static_cast<std::size_t>(vaporizer)] : 0;
}

void FW_Humidifier::setMultiplierCoefficient(int coefficient, int vaporizer)
{
    if (hasVaporizer(vaporizer))
        m_multiplierCoefficients[static_cast<std::size_t>(vaporizer)] = coefficient;
}

void FW_Humidifier::setReadingPeriodValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("reading_period"), m_readingPeriod);
}

void FW_Humidifier::setMultiplierCoefficientValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("multiplier_coefficient"), multiplierCoefficient(0));
}

void FW_Humidifier::setLowHumidityWarningThresholdValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("low_humidity_warning_threshold"), m_lowHumidityWarningThreshold);
}

FW_Offline *FW_Offline::clone() const
{
    return new FW_Offline(*this);
}

bool FW_Offline::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Offline &d) { return std::tie(d.m_easyOnTime); });
}

void FW_Offline::setDefaults(bool enabled)
{
    *this = FW_Offline();
    setEnabled(enabled);
}

FW_TemperatureSensor::FW_TemperatureSensor()
    : FW_Device(TemperatureSensor),
      m_thresholds({15, 10, 5}),
      m_speedsOfGroup1({0, 80, 60}),
      m_speedsOfGroup2(m_speedsOfGroup1)
{}

FW_TemperatureSensor *FW_TemperatureSensor::clone() const
{
    return new FW_TemperatureSensor(*this);
}

bool FW_TemperatureSensor::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_TemperatureSensor &d) {
        return std::tie(d.m_readingPeriod, d.m_thresholds, d.m_speedsOfGroup1, d.m_speedsOfGroup2);
    });
}

void FW_TemperatureSensor::setDefaults(bool enabled, FW_ModelNumber /*model*/)
{
    *this = FW_TemperatureSensor();
    setEnabled(enabled);
}

QList<int> FW_TemperatureSensor::erogationSpeeds(int group) const
{
    return isGroup(group) ? speeds(group) : QList<int>();
}

int FW_TemperatureSensor::erogationSpeed(int index, int group) const
{
    return erogationSpeeds(group).value(index);
}

void FW_TemperatureSensor::clearErogationSpeeds(int group)
{
    if (isGroup(group))
        speeds(group).clear();
}

void FW_TemperatureSensor::addErogationSpeed(int speed, int group)
{
    if (isGroup(group))
        speeds(group).append(speed);
}

void FW_TemperatureSensor::setReadingPeriodValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("reading_period"), m_readingPeriod);
}

void FW_TemperatureSensor::setTemperatureThresholdValue(XmlRpc::XmlRpcValue &value) const
{
    EncodeXmlRpcValue(value, QStringLiteral("temperature_thresholds"), m_thresholds);
}

void FW_TemperatureSensor::setErogationSpeedsValue(XmlRpc::XmlRpcValue &value, int group) const
{
    if (isGroup(group))
        EncodeXmlRpcValue(value, QStringLiteral("erogation_speeds_group_%1").arg(group), speeds(group));
}

FW_BungHoleLocator *FW_BungHoleLocator::clone() const
{
    return new FW_BungHoleLocator(*this);
}

bool FW_BungHoleLocator::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_BungHoleLocator &d) {
        return std::tie(d.m_drivingMode, d.m_deactivationDelay);
    });
}

void FW_BungHoleLocator::setDefaults(bool enabled)
{
    *this = FW_BungHoleLocator();
    setEnabled(enabled);
}

FW_NozzleLight *FW_NozzleLight::clone() const
{
    return new FW_NozzleLight(*this);
}

bool FW_NozzleLight::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_NozzleLight &d) {
        return std::tie(d.m_drivingMode, d.m_deactivationDelay);
    });
}

void FW_NozzleLight::setDefaults(bool enabled)
{
    *this = FW_NozzleLight();
    setEnabled(enabled);
}

FW_Turntable *FW_Turntable::clone() const
{
    return new FW_Turntable(*this);
}

bool FW_Turntable::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Turntable &d) {
        return std::tuple_cat(d.rackFields(),
                              std::tie(d.m_roundSteps, d.m_perimeter, d.m_internalPerimeter, d.m_refillAngle,
                                       d.m_serviceAngle, d.m_stepTime, d.m_positions));
    });
}

void FW_Turntable::setDefaults(bool enabled)
{
    *this = FW_Turntable();
    setEnabled(enabled);
}

int FW_Turntable::distance(int from, int to) const
{
    const int begin = m_positions.indexOf(from);
    const int end = m_positions.indexOf(to);
    if (begin < 0 || end < 0)
        return 0;
    const int way = std::abs(end - begin);
    return std::min(way, m_positions.size() - way);
}

FW_Heater *FW_Heater::clone() const
{
    return new FW_Heater(*this);
}

bool FW_Heater::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Heater &d) {
        return std::tie(d.m_lowTemperatureThreshold, d.m_highTemperatureThreshold);
    });
}

void FW_Heater::setDefaults(bool enabled, FW_ModelNumber /*model*/)
{
    *this = FW_Heater();
    setEnabled(enabled);
}

FW_Brush *FW_Brush::clone() const
{
    return new FW_Brush(*this);
}

bool FW_Brush::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Brush &d) { return d.brushFields(); });
}

void FW_Brush::setDefaults(bool enabled)
{
    *this = FW_Brush();
    setEnabled(enabled);
}

FW_NozzleValve *FW_NozzleValve::clone() const
{
    return new FW_NozzleValve(*this);
}

bool FW_NozzleValve::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other,
                       [](const FW_NozzleValve &d) { return std::tie(d.m_nozzleType, d.m_timeout); });
}

void FW_NozzleValve::setDefaults(FW_ModelNumber /*model*/, bool enabled)
{
    *this = FW_NozzleValve();
    setEnabled(enabled);
}

FW_Lineartable *FW_Lineartable::clone() const
{
    return new FW_Lineartable(*this);
}

bool FW_Lineartable::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Lineartable &d) {
        return std::tuple_cat(
            d.rackFields(), std::tie(d.m_linearSteps, d.m_length, d.m_freeSlotPosition, d.m_servicePosition));
    });
}

void FW_Lineartable::setDefaults(bool enabled)
{
    *this = FW_Lineartable();
    setEnabled(enabled);
}

FW_UltrasoundCleaning *FW_UltrasoundCleaning::clone() const
{
    return new FW_UltrasoundCleaning(*this);
}

bool FW_UltrasoundCleaning::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_UltrasoundCleaning &d) {
        return std::tie(d.m_sourceVoltageValue, d.m_cleaningPolicyValue, d.m_ultrasoundDuration,
                        d.m_ultrasoundPause, d.m_emptyingTime, d.m_fillingTime,
                        d.m_levelSensorEnabledFwValue);
    });
}

void FW_UltrasoundCleaning::setDefaults(bool enabled)
{
    *this = FW_UltrasoundCleaning();
    setEnabled(enabled);
}

FW_Lock *FW_Lock::clone() const
{
    return new FW_Lock(*this);
}

bool FW_Lock::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Lock &d) { return std::tie(d.m_manualUnlockSignalMask); });
}

void FW_Lock::setDefaults(bool enabled, FW_ModelNumber /*model*/)
{
    *this = FW_Lock();
    setEnabled(enabled);
}

FW_Brush2 *FW_Brush2::clone() const
{
    return new FW_Brush2(*this);
}

bool FW_Brush2::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_Brush2 &d) { return d.brushFields(); });
}

void FW_Brush2::setDefaults(bool enabled)
{
    *this = FW_Brush2();
    setEnabled(enabled);
}

FW_PLCBoard *FW_PLCBoard::clone() const
{
    return new FW_PLCBoard(*this);
}

bool FW_PLCBoard::equalTo(const FW_Device &other) const
{
    return equalFields(*this, other, [](const FW_PLCBoard &d) {
        return std::tie(d.m_plcSignalsValue, d.m_endDispSignalActivationTime,
                        d.m_errDispSignalActivationTime);
    });
}

void FW_PLCBoard::setDefaults(bool enabled)
{
    *this = FW_PLCBoard();
    setEnabled(enabled);
}
