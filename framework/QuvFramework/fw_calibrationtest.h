// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * A pour by which a calibration was tested: what it was to give, and what a scale showed. Travels in a QVariant under its name, also as
 * the map that its struct is, and a list of them under "QList<FW_CalibrationTest>"; over XML-RPC a struct of the members below.
 */
struct QUVFRAMEWORK_EXPORT FW_CalibrationTest
{
    static constexpr char TARGET_QUANTITY[] = "target_quantity"; ///< double
    static constexpr char QUANTITY[] = "quantity";               ///< double
    static constexpr char STEPS[] = "steps";                     ///< int, beyond 32 bits a double
    static constexpr char SPEED[] = "speed";                     ///< int
    static constexpr char NOZZLE_VALVE[] = "nozzle_valve";       ///< int, which may be left out

    FW_CalibrationTest() = default;
    FW_CalibrationTest(double target, double measured, long long motorSteps, int motorSpeed, int valveID)
        : targetQuantity(target),
          quantity(measured),
          steps(motorSteps),
          speed(motorSpeed),
          nozzleValveID(valveID)
    {}
    /** \throws std::invalid_argument for a member that is missing or of another type */
    explicit FW_CalibrationTest(const XmlRpc::XmlRpcValue &value);
    explicit FW_CalibrationTest(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FW_CalibrationTest(int) = delete;
    explicit FW_CalibrationTest(double) = delete;
    explicit FW_CalibrationTest(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_CalibrationTest &other) const;
    bool operator!=(const FW_CalibrationTest &other) const { return !(*this == other); }

    // Grams or millilitres, whichever the machine is calibrated in.
    double targetQuantity = 0; ///< that was asked for
    double quantity = 0;       ///< that was measured

    long long steps = 0; ///< that the calibration told for it
    int speed = 0;
    int nozzleValveID = 0; ///< 0 for none
};

Q_DECLARE_METATYPE(FW_CalibrationTest)
