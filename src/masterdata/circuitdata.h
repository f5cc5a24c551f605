// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_Circuit;

/** What a client learns of one circuit of a dispenser. */
struct QUVPROTOCOL_EXPORT CircuitData
{
    static constexpr char id_TAG[] = "id";
    static constexpr char positionID_TAG[] = "position_id";
    static constexpr char enabled_TAG[] = "enabled";
    static constexpr char canisterID_TAG[] = "canister_id";
    static constexpr char colorantID_TAG[] = "colorant_id";
    static constexpr char stirringEnabled_TAG[] = "stirring_enabled";
    static constexpr char recirculationEnabled_TAG[] = "recirculation_enabled";
    static constexpr char pumpType_TAG[] = "pump_type";
    static constexpr char pumpSerialNumber_TAG[] = "pump_serial_number";
    static constexpr char headRefID_TAG[] = "head_ref_id";

    CircuitData() = default;
    CircuitData(int circuit, int position, bool isEnabled, int canister, int colorant, bool stirs,
                bool recirculates, int typeOfPump, QString serialNumberOfPump, int headRef);
    /**
     * Of a circuit that is filled from the canister of this ID. What the canister holds, and the pump's serial number, a circuit does
     * not know: 0, and empty.
     */
    CircuitData(const FW_Circuit &circuit, int canister);
    /**
     * Throws DE00686 (id), DE00687 (position_id), DE00688 (enabled), DE00689 (canister_id), DE00690 (colorant_id), DE00579
     * (stirring_enabled), DE00596 (recirculation_enabled), DE00580 (pump_type) or DE00381 (pump_serial_number) for the first member in
     * this order that is missing or of another type. A head_ref_id may be left out.
     */
    explicit CircuitData(const XmlRpc::XmlRpcValue &value);
    explicit CircuitData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit CircuitData(int) = delete;
    explicit CircuitData(double) = delete;
    explicit CircuitData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const CircuitData &other) const;
    bool operator!=(const CircuitData &other) const { return !(*this == other); }

    int id = 0;
    int positionID = 0; ///< where it sits: the address that the firmware knows
    bool enabled = false;
    int canisterID = 0;
    int colorantID = 0;                ///< the number in the colour system; 0 for none
    bool stirringEnabled = false;      ///< it has a stirring motor that is enabled
    bool recirculationEnabled = false; ///< likewise
    int pumpType = 0;
    QString pumpSerialNumber;
    int headRefID = 0;
};

Q_DECLARE_METATYPE(CircuitData)
