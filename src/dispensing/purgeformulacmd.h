// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "purgecmd.h"

#include <QuvFramework/formula.h>

#include <memory>

struct FW_Version;

namespace quv {
struct CheckedPour;
struct CommandFacts;
} // namespace quv

/**
 * PURGE as the driver carries it out: whatever a client asked for has become a formula for the dispenser. The driver renames
 * it to TINT2 for a firmware that isTint2CmdSupported.
 *
 * Constructors given a dispenser also throw what FormulaUtils::buildPurgeFormula and then checkFormula fail with.
 */
class QUVPROTOCOL_EXPORT PurgeFormulaCmd : public PurgeCmd
{
public:
    /** Without a dispenser the formula is kept as it is and not checked. */
    PurgeFormulaCmd(const Formula &formula, const FW_Dispenser *dispenser);
    /**
     * An array of a formula or a purge formula, or the struct of a purge formula alone. Throws DE01662 without a dispenser,
     * DE01196 for a formula and DE01238 for a purge formula that cannot be read, DE01255 for anything else.
     */
    PurgeFormulaCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** A formula or a purge formula. Throws likewise DE01663, DE01204, DE01237 and DE01256. */
    PurgeFormulaCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    PurgeFormulaCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** Those of a TINT, see TintCmd::getSerialParameters. Empty without a dispenser that has all that the formula names. */
    QList<int> serialParameters(int family) const override;
    /** Milliseconds on the command's own machine; 0 when it is not known. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    TString actionString(bool detailed) const override;

    const Formula &formula() const { return m_formula; }

    /**
     * False and \a error filled when the command's machine cannot pour the formula: DE01194 no dispenser, DE01209 a negative
     * quantity, DE01210, DE01211, DE01217 or DE01213 levels, DE01214 nothing to pour, DE01215 steps, DE01216 speed, or an error
     * of the formula itself.
     */
    bool checkFormula(FW_DriverError &error) const;

    /** True for a firmware that has TINT2, be it for a purge or a tint. */
    static bool isTint2CmdSupported(const FW_Version &version);

    /** Adds what the class knows of the command. */
    static void tell(quv::CommandFacts &facts);

protected:
    Formula m_formula;

private:
    /** Makes what a client asks for, of whichever kind, the formula for the dispenser. */
    template <class Asked>
    void build(const Asked &asked, const FW_Dispenser &dispenser, const char *function);

    std::shared_ptr<const quv::CheckedPour> m_checked; ///< null when nothing was checked
};
