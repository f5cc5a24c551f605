// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

class Formula;
class PurgeFormula;

/**
 * CHECK_FORMULA_LEVELS: asks which canisters a formula would bring below their critical or their warning level. The
 * arguments are a Formula and whether it is a purge, or one PurgeFormula; the answer is a CheckFormulaLevelsAnswer.
 */
class QUVPROTOCOL_EXPORT CheckFormulaLevelsCmd
    : public quv::DescribedCommand<CheckFormulaLevelsCmd, ConfProtoCommand>
{
public:
    struct Description;

    CheckFormulaLevelsCmd() = default;
    /** Carries a copy without a levels policy: the check before a pour is not wanted where the levels are asked for. */
    CheckFormulaLevelsCmd(const Formula &formula, bool isPurge);
    explicit CheckFormulaLevelsCmd(const PurgeFormula &formula);
    /**
     * The arguments as an array; a second element that is a Boolean tells that the first is a Formula. With a machine
     * that formula is checked: DE01337 when the machine is no dispenser, DE00552 for a negative quantity. Throws DE00438
     * for what can be read as neither form.
     */
    CheckFormulaLevelsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The arguments as a list, which is not checked but when it is written. */
    explicit CheckFormulaLevelsCmd(QList<QVariant> list);
    CheckFormulaLevelsCmd(const Formula &, const FW_Machine *) = delete; // would read as a flag

    CheckFormulaLevelsCmd *clone() const override;

    /** The first form; false with fewer than two arguments. What is no formula gives an empty one. */
    bool getFormula(Formula &formula, bool &isPurge) const;
    /** The second form; false without arguments. What is no purge gives a default one: the count tells the forms apart. */
    bool getPurgeFormula(PurgeFormula &formula) const;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    TString actionString(bool detailed) const override;
};
