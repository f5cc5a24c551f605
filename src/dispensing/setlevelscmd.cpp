// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/setlevelscmd.h"

#include "base/describedcommand_p.h"
#include "dispensing/formula_p.h"

#include <QuvFramework/fw_utils.h>

#include <cmath>

namespace {

constexpr double leastChange = 0.1;

/** Whole units only: what a scale or a rounding makes of a level is no refill. */
double changeOf(const FW_CanisterRefill &refill)
{
    return roundD(std::abs(std::trunc(refill.currentQuantity - refill.previousQuantity)), 2);
}

/** Fills the next place of the text with a word or with nothing. */
void fillWord(TString &text, const char *word, bool isGiven)
{
    text.arg(isGiven ? QString::fromLatin1(word) : QString(), isGiven);
}

} // namespace

struct SetLevelsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_LEVELS;
    static constexpr auto commandText = "Update levels";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating levels");

    static constexpr char noFlag[] = "SetLevelsCmd failed: expected Bool type for first parameter";
    static constexpr char noFormula[] = "SetLevelsCmd failed: expected Formula type for second parameter";

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal noFlagInValue = {"DE00435", noFlag};
        constexpr quv::Refusal noFormulaInList = {"DE01323", noFormula};
        archive.required({"delta", "true: the quantities are changes; false: they are new levels"},
                         self.m_delta, {noFlagInValue, {}}, {noFlagInValue, {"DE01322", noFlag}});
        archive.object("formula", self.m_formula, {{"DE00436", noFormula}, noFormulaInList}, noFormulaInList);
        archive.unread({"refill", "whether somebody refilled; always sent as true, and never read"},
                       self.m_refill);
    }
};

template class quv::DescribedCommand<SetLevelsCmd, ConfProtoCommand>;

SetLevelsCmd::SetLevelsCmd(const Formula &formula, bool delta, bool refill)
    : m_formula(formula),
      m_delta(delta),
      m_refill(refill)
{}

SetLevelsCmd::SetLevelsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : DescribedCommand(value, machine)
{
    read(value, Q_FUNC_INFO);
}

SetLevelsCmd::SetLevelsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    // the contract of this class, should the base ever let such a list pass
    if (list.size() < 2)
        throw FW_Exception("DE01324", "SetLevelsCmd failed: expected at least 2 parameters", Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

SetLevelsCmd *SetLevelsCmd::clone() const
{
    return new SetLevelsCmd(*this);
}

TString SetLevelsCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    TString text(QT_TRANSLATE_NOOP("QuvProtocol", "Updating levels with the %1formula%2: %3 (%4)"),
                 quv::translationContext);
    fillWord(text, QT_TRANSLATE_NOOP("QuvProtocol", "delta "), m_delta);
    fillWord(text, QT_TRANSLATE_NOOP("QuvProtocol", " (refill)"), m_refill);
    text.arg(m_formula.toPrintableString(false, nullptr), false);
    return text.arg(m_formula.formulaTypeStr(), false);
}

bool SetLevelsCmd::createPreviousQuantities(const Formula &formula, const FW_Dispenser &dispenser,
                                            QList<FW_CanisterRefill> &refills)
{
    refills.clear();
    CanisterFormulaItemList items;
    if (!formula.getCanisterItems(&items, &dispenser, nullptr))
        return false;
    for (const CanisterFormulaItem &item : items) {
        if (!dispenser.hasCanisterID(item.id()))
            return false;
        refills.append({item.id(), item.currentQuantity(), 0});
    }
    return true;
}

bool SetLevelsCmd::updateCurrentQuantities(const FW_Dispenser &dispenser, QList<FW_CanisterRefill> &refills)
{
    if (refills.isEmpty())
        return false;
    QList<FW_CanisterRefill> changed;
    for (FW_CanisterRefill refill : refills) {
        const FW_Canister *canister = dispenser.getCanisterById(refill.canisterID);
        if (!canister)
            return false;
        refill.currentQuantity = canister->currentQuantity();
        if (changeOf(refill) > leastChange)
            changed.append(refill);
    }
    refills = changed;
    return true;
}
