// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * One analogue sensor and what was measured of it. The types are numbers of the machine: a value holds any, and whoever needs a
 * valid one checks it.
 */
struct QUVPROTOCOL_EXPORT SensorData
{
    /** What kind of sensor it is. */
    enum SensorType : int { NoSensor = -1, FirstSensorType = 0, LastSensorType = 20 };
    /** What is measured of it. */
    enum MeasureType : int { FirstMeasureType = 0, LastMeasureType = 2 };

    static constexpr char sensorType_TAG[] = "sensor_type";
    static constexpr char measureType_TAG[] = "measure_type";
    static constexpr char value_TAG[] = "value";

    SensorData() = default; ///< no sensor, the first measure type, 0
    SensorData(SensorType ofSensor, MeasureType ofMeasure);
    SensorData(int ofSensor, int ofMeasure, double measured);
    /** Throws DE00791 (sensor type), DE00792 (measure type), DE00793 (value) for a member that is missing or of another type. */
    explicit SensorData(const XmlRpc::XmlRpcValue &encoded);
    /**
     * Tokens: sensor type, measure type, then up to five base-246 digits of a hundred times the value, low digit first. Throws
     * DE00788 (fewer than two tokens), DE00789 (sensor type), DE00790 (measure type). Without digits, or with a bad one, the
     * value is 0.
     */
    explicit SensorData(QStringList tokens);

    void clear();       ///< as a default one
    void setDefaults(); ///< the same

    static bool checkSensorType(int type);  ///< 0 to 20
    static bool checkMeasureType(int type); ///< 0 to 2

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const SensorData &other) const;
    bool operator!=(const SensorData &other) const { return !(*this == other); }

    int sensorType = NoSensor;
    int measureType = FirstMeasureType;
    double value = 0;
};

Q_DECLARE_METATYPE(SensorData)
