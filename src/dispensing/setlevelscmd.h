// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "fw_canisterrefill.h"

#include <QuvFramework/formula.h>

class FW_Dispenser;

/**
 * SET_LEVELS: applies the quantities of a formula to the levels of the canisters, as changes or as new levels. The
 * arguments are whether they are changes, the Formula, and whether somebody refilled; the last is sent but never read.
 */
class QUVPROTOCOL_EXPORT SetLevelsCmd : public quv::DescribedCommand<SetLevelsCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetLevelsCmd() = default;
    SetLevelsCmd(const Formula &formula, bool delta, bool refill);
    /** A bool and a Formula. Throws DE00435, DE00436. */
    SetLevelsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The same as a list. Throws DE01322, DE01323, DE01324. */
    explicit SetLevelsCmd(QList<QVariant> list);

    SetLevelsCmd *clone() const override;
    using DescribedCommand::setDefaults;

    const Formula &formula() const { return m_formula; }
    bool delta() const { return m_delta; }   ///< true: the quantities are changes, not new levels
    bool refill() const { return m_refill; } ///< true in every command that was decoded

    TString actionString(bool detailed) const override;

    // For the driver, which tells people what was refilled.
    /**
     * What the canisters of \a formula hold now, the current quantities being 0. False when the formula does not fit the
     * dispenser; \a refills is then incomplete.
     */
    static bool createPreviousQuantities(const Formula &formula, const FW_Dispenser &dispenser,
                                         QList<FW_CanisterRefill> &refills);
    /**
     * Fills in what the canisters hold now and leaves out those that changed by less than 1. False, and \a refills as it
     * was, when it is empty or the dispenser lacks one of its canisters.
     */
    static bool updateCurrentQuantities(const FW_Dispenser &dispenser, QList<FW_CanisterRefill> &refills);

private:
    Formula m_formula;
    bool m_delta = true;
    bool m_refill = true;
};
