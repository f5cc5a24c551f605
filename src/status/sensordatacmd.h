// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "sensordata.h"

/** GET_SENSOR_DATA: asks a dispenser's firmware what one analogue sensor measures; the answer is a SensorDataAnswer. */
class QUVPROTOCOL_EXPORT SensorDataCmd : public quv::DescribedCommand<SensorDataCmd, SerialProtoCommand>
{
public:
    struct Description;

    SensorDataCmd() = default;                            ///< no sensor yet
    explicit SensorDataCmd(const SensorData &sensorData); ///< the value in it plays no part
    SensorDataCmd(SensorData::SensorType sensorType, SensorData::MeasureType measureType);
    /** Two ints, sensor type and measure type (default 0), of any value. Throws DE00782 or DE00783 for another type. */
    explicit SensorDataCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00784 or DE00785 for another type. */
    explicit SensorDataCmd(QList<QVariant> list);

    SensorDataCmd *clone() const override;
    void setDefaults(); ///< of all the data, the value too

    const SensorData &sensorData() const { return m_sensorData; }

    QList<int> serialParameters(int family) const override; ///< sensor type, measure type

    /**
     * The measure types that are to be read: 0 when both the first and the fifth argument are true, 1 when the second or the third
     * is, 2 when the fourth is. What each stands for is the caller's affair.
     */
    static QList<SensorData::MeasureType> readingTypes(bool first, bool second, bool third, bool fourth,
                                                       bool fifth);

private:
    SensorData m_sensorData;
};
