// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * A measured point of a circuit's recalibration: so many motor steps at this speed gave this quantity. Travels in a QVariant under
 * its name, also as the map that its struct is.
 */
struct QUVPROTOCOL_EXPORT BasicCalibrationPoint
{
    static constexpr char calibPointID_TAG[] = "calib_point_id";
    static constexpr char dispQuantity_TAG[] = "disp_quantity";
    static constexpr char dispSteps_TAG[] = "disp_steps";
    static constexpr char speed_TAG[] = "speed";
    static constexpr char nozzleValveID_TAG[] = "nozzle_valve_id";

    BasicCalibrationPoint() = default;
    BasicCalibrationPoint(int pointID, double quantity, int steps, int pointSpeed, int valveID)
        : calibPointID(pointID),
          dispQuantity(quantity),
          dispSteps(steps),
          speed(pointSpeed),
          nozzleValveID(valveID)
    {}
    /**
     * Throws DE02642, DE02643, DE02644 or DE02665 for the first of the four members that is missing or of another type. The
     * nozzle valve may be left out.
     */
    explicit BasicCalibrationPoint(const XmlRpc::XmlRpcValue &value);
    explicit BasicCalibrationPoint(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit BasicCalibrationPoint(int) = delete;
    explicit BasicCalibrationPoint(double) = delete;
    explicit BasicCalibrationPoint(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const BasicCalibrationPoint &other) const;
    bool operator!=(const BasicCalibrationPoint &other) const { return !(*this == other); }

    int calibPointID = 0;
    double dispQuantity = 0; ///< grams or millilitres, whichever the machine is calibrated in
    int dispSteps = 0;
    int speed = 0;
    int nozzleValveID = 0; ///< 0 for none
};

Q_DECLARE_METATYPE(BasicCalibrationPoint)
