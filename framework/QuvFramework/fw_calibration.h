// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QMetaType>
#include <QtCore/QVector>

#include <xmlrpcpp/XmlRpcValue.h>

#include <initializer_list>

/** One measured pour: so many motor steps at this speed, through this nozzle valve, gave this quantity. */
struct QUVFRAMEWORK_EXPORT FW_CalibrationPoint
{
    long long steps = 0;
    double quantity = 0; ///< grams or millilitres, whichever the machine is calibrated in
    int speed = 0;
    int nozzleValveID = 0; ///< 0 for none

    bool operator==(const FW_CalibrationPoint &other) const;
    bool operator!=(const FW_CalibrationPoint &other) const { return !(*this == other); }
};

/**
 * How a circuit pours: its measured points, from the smallest quantity to the greatest. Between two points quantity and
 * steps are proportional to the way between them; below the first and above the last point they keep that point's ratio.
 * Speed and nozzle valve are those of the first point that reaches the quantity, above the last those of the last.
 */
class QUVFRAMEWORK_EXPORT FW_Calibration
{
public:
    FW_Calibration() = default;
    explicit FW_Calibration(QVector<FW_CalibrationPoint> points);
    explicit FW_Calibration(std::initializer_list<FW_CalibrationPoint> points)
        : FW_Calibration(QVector<FW_CalibrationPoint>(points))
    {}
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_Calibration(const XmlRpc::XmlRpcValue &value);

    const QVector<FW_CalibrationPoint> &points() const { return m_points; }
    void setPoints(QVector<FW_CalibrationPoint> points);

    /** True with at least one point, and when steps and quantities are positive and rise from point to point. */
    bool isUsable() const { return m_usable; }

    // \a ok, when given, is false and the result 0 when the calibration is not usable or gives no such number; a quantity
    // below zero is answered by the negative of its positive.
    long long steps(double quantity, bool *ok = nullptr) const;   ///< to the nearest step
    double quantity(long long steps, bool *ok = nullptr) const;   ///< the inverse of steps
    int speed(double quantity, bool *ok = nullptr) const;         ///< above 0
    int nozzleValveID(double quantity, bool *ok = nullptr) const; ///< 0 for none

    // The least and the greatest of the points' speeds, usable or not; 0 when no point has one.
    int minSpeed() const;
    int maxSpeed() const;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Calibration &other) const { return m_points == other.m_points; }
    bool operator!=(const FW_Calibration &other) const { return !(*this == other); }

private:
    const FW_CalibrationPoint &pointReaching(double quantity) const;

    QVector<FW_CalibrationPoint> m_points;
    bool m_usable = false;
};

Q_DECLARE_METATYPE(FW_Calibration)
