// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "circuitlistcmd.h"

class FW_Dispenser;

/** PACK2: moves the pumps of circuits into or out of their transport position; strokes are sent where there are any. */
class QUVPROTOCOL_EXPORT Pack2Cmd : public quv::DescribedCommand<Pack2Cmd, CircuitListCmd>
{
public:
    struct Description;

    // With a dispenser the formula is checked, and a constructor throws what checkFormula tells.
    Pack2Cmd() = default;
    Pack2Cmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser);
    /** One PCircuitFormula. Throws as its own constructor does. */
    Pack2Cmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list, the formula also as a map. Throws DE02324 for another type, and as the formula does. */
    Pack2Cmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    Pack2Cmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** DE02325 no dispenser, DE02326 no circuits, DE02327 a circuit not enabled. */
    bool checkFormula(FW_DriverError &error) const;

    TString actionString(bool detailed) const override;
};
