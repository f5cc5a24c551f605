// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "basiccalibrationpoint.h"

#include <QtCore/QList>

/**
 * The recalibration of one circuit: its measured points. Travels in a QVariant under its name, also as the map that its struct is; a
 * list of them under "QList<BasicCalibrationData>".
 */
struct QUVPROTOCOL_EXPORT BasicCalibrationData
{
    static constexpr char positionID_TAG[] = "position_id";
    static constexpr char calibPoints_TAG[] = "calib_points";

    BasicCalibrationData() = default;
    BasicCalibrationData(int position, const QList<BasicCalibrationPoint> &points)
        : positionID(position),
          calibPoints(points)
    {}
    /**
     * Throws DE02641 without a position, DE02653 without an array of points or for a point that cannot be made, and as
     * BasicCalibrationPoint does.
     */
    explicit BasicCalibrationData(const XmlRpc::XmlRpcValue &value);
    explicit BasicCalibrationData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit BasicCalibrationData(int) = delete;
    explicit BasicCalibrationData(double) = delete;
    explicit BasicCalibrationData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const BasicCalibrationData &other) const;
    bool operator!=(const BasicCalibrationData &other) const { return !(*this == other); }

    int positionID = 0; ///< of the circuit
    QList<BasicCalibrationPoint> calibPoints;
};

Q_DECLARE_METATYPE(BasicCalibrationData)
