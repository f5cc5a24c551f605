// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

class Formula;
class PurgeFormula;

/**
 * GET_FORMULA_CIRCUITS: asks which circuits a formula would use, and how much from each. The arguments are a Formula and
 * whether it is a purge, or one PurgeFormula; the answer is a GetFormulaCircuitsAnswer.
 */
class QUVPROTOCOL_EXPORT GetFormulaCircuitsCmd
    : public quv::DescribedCommand<GetFormulaCircuitsCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetFormulaCircuitsCmd() = default;
    GetFormulaCircuitsCmd(const Formula &formula, bool isPurge);
    explicit GetFormulaCircuitsCmd(const PurgeFormula &formula);
    /**
     * An array whose first element is a Formula (DE00235 when it cannot be read), a flag that is no Boolean being false;
     * or a PurgeFormula, alone or in an array (DE01253 when it cannot be read). Throws DE01254 for anything else.
     */
    GetFormulaCircuitsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The arguments as a list, which is not checked but when it is written. */
    explicit GetFormulaCircuitsCmd(QList<QVariant> list);
    GetFormulaCircuitsCmd(const Formula &, const FW_Machine *) = delete; // would read as a flag

    GetFormulaCircuitsCmd *clone() const override;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
};
