// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensordata.h"

#include "base/record_p.h"
#include "base/tokens_p.h"
#include "base/wire_p.h"
#include "status/sensordata_p.h"

#include <QuvFramework/fw_serial.h>

namespace {

const quv::Record<SensorData> &record()
{
    static const quv::Record<SensorData> record({
        {SensorData::sensorType_TAG, &SensorData::sensorType, quv::noSensorType},
        {SensorData::measureType_TAG, &SensorData::measureType, quv::noMeasureType},
        {SensorData::value_TAG, &SensorData::value, quv::noMeasuredValue},
    });
    return record;
}

} // namespace

SensorData::SensorData(SensorType ofSensor, MeasureType ofMeasure) : SensorData(ofSensor, ofMeasure, 0) {}

SensorData::SensorData(int ofSensor, int ofMeasure, double measured)
    : sensorType(ofSensor),
      measureType(ofMeasure),
      value(measured)
{}

SensorData::SensorData(const XmlRpc::XmlRpcValue &encoded)
{
    record().decode(encoded, *this, Q_FUNC_INFO);
}

SensorData::SensorData(QStringList tokens)
{
    constexpr int types = 2;
    constexpr int digits = 5;
    constexpr double scale = 100;

    quv::TokenReader reader(tokens, 0, Q_FUNC_INFO);
    reader.require(types, {"DE00788", "Error during command answer decoding: bad length"});
    sensorType = reader.next({"DE00789", "Error during command answer decoding: bad sensor type value type"});
    measureType =
        reader.next({"DE00790", "Error during command answer decoding: bad measure type value type"});
    value = static_cast<double>(joinValues(tokens.mid(types, digits), quv::serialBase, true)) / scale;
}

void SensorData::clear()
{
    *this = SensorData();
}

void SensorData::setDefaults()
{
    clear();
}

bool SensorData::checkSensorType(int type)
{
    return type >= FirstSensorType && type <= LastSensorType;
}

bool SensorData::checkMeasureType(int type)
{
    return type >= FirstMeasureType && type <= LastMeasureType;
}

XmlRpc::XmlRpcValue SensorData::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool SensorData::operator==(const SensorData &other) const
{
    return record().equal(*this, other);
}
