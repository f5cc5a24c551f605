// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

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

namespace {

template <class Device>
std::unique_ptr<FW_Device> made()
{
    return std::make_unique<Device>();
}

template <class Device>
bool sameDevice(const Device &device, const FW_Device &other)
{
    const auto *same = dynamic_cast<const Device *>(&other);
    return same && quv::haveSameMembers(device, *same);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
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
    return sameDevice(*this, other);
}

void FW_PLCBoard::setDefaults(bool enabled)
{
    *this = FW_PLCBoard();
    setEnabled(enabled);
}
