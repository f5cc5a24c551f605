// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pack2cmd.h"

/**
 * AIRPURGE: drives the air out of circuits. To the firmware it is a pack with the execution criterion 9, which it has
 * whatever a client asks for. Refusals are those of Pack2Cmd.
 */
class QUVPROTOCOL_EXPORT AirpurgeCmd : public Pack2Cmd
{
public:
    AirpurgeCmd();
    AirpurgeCmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser);
    AirpurgeCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    AirpurgeCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    AirpurgeCmd *clone() const override;
    void setDefaults(); ///< name and criterion; the circuits stay

    /** Family 68 above revision 2, family 72. */
    bool isSupportedCommand(const FW_Version &version) const override;

    TString actionString(bool detailed) const override;
};
