// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QuvFramework/circuitformulaitem.h>
#include <QuvFramework/formula.h>

#include <memory>

class FW_Dispenser;

namespace quv {
struct CheckedPour;
}

/**
 * TINT: the firmware pours a formula. The driver renames it to TINT2, which tells more of each circuit, for a firmware that
 * PurgeFormulaCmd::isTint2CmdSupported.
 *
 * Without a dispenser nothing is checked, which is how a client builds it. With one, constructors also throw what
 * checkFormula fails with.
 */
class QUVPROTOCOL_EXPORT TintCmd : public quv::DescribedCommand<TintCmd, SerialProtoCommand>
{
public:
    struct Description;

    TintCmd() = default;
    /** Throws DE00491 when the formula cannot be copied. */
    TintCmd(const Formula &formula, const FW_Dispenser *dispenser);
    /** One formula. Throws DE00437 when it cannot be read. */
    TintCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list. Throws DE00439 for another type, DE00775 when it cannot be read. */
    TintCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    TintCmd *clone() const override;
    void setDefaults() {} ///< a formula has none

    /** Empty without a dispenser that has all that the formula names. */
    QList<int> serialParameters(int family) const override;
    /** Milliseconds on \a machine; -1 when only its scale can tell, 0 when it is not known. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    TString actionString(bool detailed) const override;

    const Formula &formula() const { return m_formula; }

    /**
     * False and \a error filled when the command's machine cannot pour the formula: DE01103 no dispenser, DE00015 a negative
     * quantity, DE00018, DE00060, DE00061 or DE00062 levels, DE00583 nothing to pour, DE00533 steps, DE00529 speed, DE02832 or
     * DE02833 nozzle valve, or an error of the formula itself.
     */
    bool checkFormula(FW_DriverError &error) const;

    /**
     * The firmware's integers: criterion, number of items, with \a tint2 the number of fields, then of each item position,
     * queue, speed, with \a tint2 nozzle valve, and the steps as counted digits, with \a tint2 also those of the level. Bit
     * value 64 of the criterion marks a \a purge with \a tint2.
     */
    static QList<int> getSerialParameters(const CircuitFormulaItemList &items, int criterion, bool purge,
                                          bool tint2);

protected:
    Formula m_formula;

private:
    /** Throws what checkFormula fails with, when there is a dispenser to check the formula by. */
    void check(const FW_Dispenser *dispenser, const char *function);

    std::shared_ptr<const quv::CheckedPour> m_checked; ///< null when nothing was checked
};
