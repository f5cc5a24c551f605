// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_canisterlevelsensor.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

#include <memory>

class FW_Canister;

/**
 * What a client learns of one canister of a dispenser. Quantities are in grams or millilitres, whichever the machine is calibrated in.
 */
struct QUVPROTOCOL_EXPORT CanisterData
{
    static constexpr char id_TAG[] = "id";
    static constexpr char enabled_TAG[] = "enabled";
    static constexpr char currentQuantity_TAG[] = "cur_q";
    static constexpr char maximumQuantity_TAG[] = "max_q";
    static constexpr char reserveQuantity_TAG[] = "res_q";
    static constexpr char reserveWarning_TAG[] = "res_w";
    static constexpr char circuitIDs_TAG[] = "circuits";
    static constexpr char positionIDs_TAG[] = "positions";
    static constexpr char colorantID_TAG[] = "colorant_id";
    static constexpr char colorantCode_TAG[] = "colorant_code";
    static constexpr char levelSensor_TAG[] = "level_sensor";

    CanisterData() = default;
    /** A copy of the \a sensor, which may be null, is kept. */
    CanisterData(int canister, bool isEnabled, double current, double maximum, double reserve, double warning,
                 QList<int> circuits, QList<int> positions, int colorant, QString codeOfColorant,
                 const FW_CanisterLevelSensor *sensor);
    /** Of a canister with its circuits, that holds the colorant of this number. */
    CanisterData(const FW_Canister &canister, int colorant);
    /**
     * Throws DE00392 (id), DE00393 (enabled), DE00394 (cur_q), DE00395 (max_q), DE00396 (res_q), DE00397 (res_w), DE00179 (circuits),
     * DE00236 (positions) or DE00399 (colorant_id) for the first member in this order that is missing or of another type, and as
     * FW_CanisterLevelSensor does. Code and sensor may be left out.
     */
    explicit CanisterData(const XmlRpc::XmlRpcValue &value);
    explicit CanisterData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit CanisterData(int) = delete;
    explicit CanisterData(double) = delete;
    explicit CanisterData(const char *) = delete;

    CanisterData(const CanisterData &other);
    CanisterData(CanisterData &&) noexcept = default;
    CanisterData &operator=(const CanisterData &other);
    CanisterData &operator=(CanisterData &&) noexcept = default;
    ~CanisterData() = default;

    XmlRpc::XmlRpcValue toXmlRpcValue() const; ///< with "level_sensor" only when there is one

    bool operator==(
        const CanisterData &other) const; ///< sensors are the same with the same values, or both absent
    bool operator!=(const CanisterData &other) const { return !(*this == other); }

    int id = 0;
    bool enabled = false;
    double currentQuantity = 0;
    double maximumQuantity = 0;
    double reserveQuantity = 0; ///< what lies below it is not for pouring
    double reserveWarning = 0;  ///< the level below which somebody should refill
    QList<int> circuitIDs;
    QList<int> positionIDs; ///< of these circuits, in their order
    int colorantID = 0;     ///< the number in the colour system; 0 for none
    QString colorantCode;
    std::unique_ptr<FW_CanisterLevelSensor> levelSensor; ///< null for none
};

Q_DECLARE_METATYPE(CanisterData)
