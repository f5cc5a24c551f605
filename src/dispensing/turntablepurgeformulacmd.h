// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "purgeformulacmd.h"

/**
 * PURGE on a rotating machine, which pours in the order in which the table reaches the circuits from the position where it
 * stands. The driver, which knows the position, builds it; over XML-RPC the position does not travel.
 */
class QUVPROTOCOL_EXPORT TurntablePurgeFormulaCmd : public PurgeFormulaCmd
{
public:
    // All throw what the constructors of PurgeFormulaCmd throw.
    TurntablePurgeFormulaCmd(const Formula &formula, int currentPosition, const FW_Dispenser *dispenser);
    TurntablePurgeFormulaCmd(const XmlRpc::XmlRpcValue &value, int currentPosition,
                             const FW_Dispenser *dispenser);
    /** The formula first, the position last. Throws DE01727 when that is no int. */
    TurntablePurgeFormulaCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    TurntablePurgeFormulaCmd *clone() const override;

    QList<QVariant> parameters() const override;
    QList<int> serialParameters(int family) const override;

    int currentPosition() const { return m_currentPosition; }

private:
    int m_currentPosition = 0;
};
