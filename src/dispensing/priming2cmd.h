// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "circuitlistcmd.h"

class FW_Dispenser;

/** PRIMING2: fills circuits by running the strokes of each. The execution criterion is 1 until a formula sets another. */
class QUVPROTOCOL_EXPORT Priming2Cmd : public quv::DescribedCommand<Priming2Cmd, CircuitListCmd>
{
public:
    struct Description;

    // With a dispenser the formula is checked, and a constructor throws what checkFormula tells.
    Priming2Cmd();
    Priming2Cmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser);
    /** One PCircuitFormula. Throws as its own constructor does. */
    Priming2Cmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list, the formula also as a map. Throws DE02165 for another type, and as the formula does. */
    Priming2Cmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    Priming2Cmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** DE02313 no dispenser, DE02314 no circuits, DE02315 a circuit not enabled, DE02316 one without strokes. */
    bool checkFormula(FW_DriverError &error) const;

    TString actionString(bool detailed) const override;
};
