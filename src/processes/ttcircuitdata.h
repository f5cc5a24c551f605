// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * Where a circuit is on the turntable. Travels in a QVariant under its name, also as the map that its struct is; over
 * XML-RPC a struct of three whole numbers.
 */
struct QUVPROTOCOL_EXPORT TTCircuitData
{
    static constexpr char positionID_TAG[] = "position_id";
    static constexpr char stepsPos_TAG[] = "steps_pos";
    static constexpr char finSize_TAG[] = "fin_size";

    TTCircuitData() = default;
    TTCircuitData(int position, long long steps, long long fin)
        : positionID(position),
          stepsPos(steps),
          finSize(fin)
    {}
    /** Throws DE01746, DE01747, DE01748 for the first member that is missing or of another type. */
    explicit TTCircuitData(const XmlRpc::XmlRpcValue &value);
    explicit TTCircuitData(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit TTCircuitData(int) = delete;
    explicit TTCircuitData(double) = delete;
    explicit TTCircuitData(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const TTCircuitData &other) const;
    bool operator!=(const TTCircuitData &other) const { return !(*this == other); }
    /** As ==; the flag changes nothing. */
    bool equalTo(const TTCircuitData &other, bool flag) const;

    int positionID = 0;
    long long stepsPos = 0; ///< steps from the reference position
    long long finSize = 0;  ///< steps that the circuit's fin is wide
};

Q_DECLARE_METATYPE(TTCircuitData)
