// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/setlevelscmd.h"

#include "base/arguments_p.h"
#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/formula_p.h"

#include <QuvFramework/fw_utils.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <cmath>

namespace {

constexpr char noFlag[] = "SetLevelsCmd failed: expected Bool type for first parameter";
constexpr char noFormula[] = "SetLevelsCmd failed: expected Formula type for second parameter";
constexpr quv::Refusal noFormulaInList = {"DE01323", noFormula};

constexpr double leastChange = 0.1;

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::SET_LEVELS);
}

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

SetLevelsCmd::SetLevelsCmd() : ConfProtoCommand(name(), nullptr) {}

SetLevelsCmd::SetLevelsCmd(const Formula &formula, bool delta, bool refill) : SetLevelsCmd()
{
    m_formula = formula;
    m_delta = delta;
    m_refill = refill;
}

SetLevelsCmd::SetLevelsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : ConfProtoCommand(name(), value, machine)
{
    if (!DecodeXmlRpcValue(value, 0, m_delta))
        throw FW_Exception("DE00435", noFlag, Q_FUNC_INFO);
    m_formula = quv::decodedValue<Formula>(FindXmlRpcElement(value, 1), {"DE00436", noFormula}, Q_FUNC_INFO);
}

SetLevelsCmd::SetLevelsCmd(QList<QVariant> list) : ConfProtoCommand(name(), list, nullptr)
{
    if (list.size() < 2)
        throw FW_Exception("DE01324", "SetLevelsCmd failed: expected at least 2 parameters", Q_FUNC_INFO);
    if (!quv::decodeVariant(list.at(0), m_delta))
        throw FW_Exception("DE01322", noFlag, Q_FUNC_INFO);
    m_formula = quv::decodedVariant<Formula>(list.at(1), noFormulaInList, noFormulaInList, Q_FUNC_INFO);
}

SetLevelsCmd *SetLevelsCmd::clone() const
{
    return new SetLevelsCmd(*this);
}

void SetLevelsCmd::setDefaults()
{
    m_formula.setDefaults();
    m_delta = true;
    m_refill = true;
}

QList<QVariant> SetLevelsCmd::parameters() const
{
    return {m_delta, QVariant::fromValue(m_formula), m_refill};
}

XmlRpc::XmlRpcValue SetLevelsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array.setSize(3);
    array[0] = m_delta;
    array[1] = m_formula.toXmlRpcValue(nullptr);
    array[2] = m_refill;
    return array;
}

QString SetLevelsCmd::commandString() const
{
    return QStringLiteral("Update levels");
}

TString SetLevelsCmd::actionString(bool detailed) const
{
    if (!detailed)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Updating levels"), quv::translationContext);
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
