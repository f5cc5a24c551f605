// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "tintcmd.h"

/**
 * TINT on a rotating machine, which pours in the order in which the table reaches the circuits from the position where it
 * stands. The driver, which knows the position, builds it; over XML-RPC the position does not travel.
 */
class QUVPROTOCOL_EXPORT TurntableTintCmd : public TintCmd
{
public:
    TurntableTintCmd() = default;
    // The others throw what the constructors of TintCmd throw.
    TurntableTintCmd(const Formula &formula, int currentPosition, const FW_Dispenser *dispenser);
    TurntableTintCmd(const XmlRpc::XmlRpcValue &value, int currentPosition, const FW_Dispenser *dispenser);
    /** The formula first, the position last. Throws DE01697 when that is no int. */
    TurntableTintCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    TurntableTintCmd *clone() const override;
    void setDefaults(); ///< position 0

    QList<QVariant> parameters() const override;
    QList<int> serialParameters(int family) const override;
    /** Milliseconds on the command's own machine; 0 when it has no turntable. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    int currentPosition() const { return m_currentPosition; }

private:
    int m_currentPosition = 0;
};
