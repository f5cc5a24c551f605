// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_Dispenser;

/** What GET_CALIB_LIST and GET_RECALIB_LIST share: whose calibrations they ask for. */
class QUVPROTOCOL_EXPORT CalibrationListCmd
{
public:
    struct Description;

    CalibrationListCmd() = default;
    explicit CalibrationListCmd(int positionID) : m_positionID(positionID) {}
    CalibrationListCmd(int positionID, bool showForEnabledCircuit)
        : m_positionID(positionID),
          m_showForEnabledCircuit(showForEnabledCircuit)
    {}
    /**
     * The position (int), and optionally whether only an enabled circuit is shown (bool). Throws DE00877 without a position or for
     * another type, DE00876 when there is a dispenser and it has no such circuit, enabled or not, DE00878 for what is no bool.
     */
    CalibrationListCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    CalibrationListCmd(QList<QVariant> list, const FW_Dispenser *dispenser); ///< likewise
    explicit CalibrationListCmd(bool) = delete;
    explicit CalibrationListCmd(double) = delete;
    CalibrationListCmd(int, const FW_Dispenser *) = delete; // would be an XML-RPC value

    QList<QVariant> variant_parameters() const;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok) const; ///< \a ok, when given, becomes true

    int positionID() const { return m_positionID; } ///< of the circuit
    bool showForEnabledCircuit() const { return m_showForEnabledCircuit; }

private:
    int m_positionID = 0;
    bool m_showForEnabledCircuit = false;
};
