// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_calibration.h>
#include <QuvFramework/fw_dosingmotor.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The calibration of one circuit, with the motor that it was measured with. Travels in a QVariant under its name, also as the map that
 * its struct is; a list of them under "QList<CalibrationData>".
 */
struct QUVPROTOCOL_EXPORT CalibrationData
{
    static constexpr char positionID_TAG[] = "position_id";
    static constexpr char dosingMotor_TAG[] = "pump_info";
    static constexpr char circuitCalibrations_TAG[] = "circuit_calibrations";

    CalibrationData() = default;
    CalibrationData(int position, const QList<FW_Calibration> &calibrations, const FW_DosingMotor &motor)
        : positionID(position),
          circuitCalibrations(calibrations),
          dosingMotor(motor)
    {}
    /**
     * Throws DE03373 without a position, DE03374 without an array of calibrations or for one that is no struct, DE03375 without a
     * motor, and as FW_Calibration and FW_DosingMotor do. Inside of an answer or a command, theirs stand in place of these three.
     */
    explicit CalibrationData(const XmlRpc::XmlRpcValue &value);
    explicit CalibrationData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit CalibrationData(int) = delete;
    explicit CalibrationData(double) = delete;
    explicit CalibrationData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const CalibrationData &other) const;
    bool operator!=(const CalibrationData &other) const { return !(*this == other); }

    int positionID = 0; ///< of the circuit
    QList<FW_Calibration> circuitCalibrations;
    FW_DosingMotor dosingMotor;
};

Q_DECLARE_METATYPE(CalibrationData)
