// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "sensordata.h"

/** What one analogue sensor measured, the answer to GET_SENSOR_DATA. Over XML-RPC a struct with one struct. */
class QUVPROTOCOL_EXPORT SensorDataAnswer : public quv::DescribedAnswer<SensorDataAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char sensorData_TAG[] = "sensor_data";

    SensorDataAnswer() = default;
    explicit SensorDataAnswer(const SensorData &sensorData);
    explicit SensorDataAnswer(QList<QVariant> &list); ///< cleared; the list is not read
    /** Throws DE00798 without a sensor's data, what SensorData throws of it, and DE00797 for any other failure. */
    explicit SensorDataAnswer(const XmlRpc::XmlRpcValue &value);
    /** Throws what SerialProtoAnswer and SensorData throw, and DE00794 for any other failure. */
    explicit SensorDataAnswer(QStringList tokens);

    SensorDataAnswer *clone() const override;

    const SensorData &sensorData() const { return m_sensorData; }

private:
    SensorData m_sensorData;
};
