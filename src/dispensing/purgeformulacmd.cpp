// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgeformulacmd.h"

#include "base/argumentteller_p.h"
#include "base/gate_p.h"
#include "dispensing/formula_p.h"

#include <QuvFramework/formulautils.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char noDispenser[] = "Invalid dispenser data";
constexpr char invalidPurge[] = "PurgeFormulaCmd failed: invalid PurgeFormula type parameter";
constexpr char incorrectFormula[] = "PurgeFormulaCmd failed: incorrect Formula type parameter";
constexpr quv::Refusal neitherInValue = {"DE01255", incorrectFormula};
constexpr quv::Refusal neitherInList = {"DE01256", incorrectFormula};
constexpr quv::Refusal badFormulaInValue = {"DE01196",
                                            "PurgeFormulaCmd failed: invalid Formula type parameter"};
constexpr quv::Refusal badFormulaInList = {"DE01204", incorrectFormula};
constexpr quv::Refusal badPurgeInValue = {"DE01238", invalidPurge};
constexpr quv::Refusal badPurgeInList = {"DE01237", invalidPurge};

constexpr quv::PourCodes codes = {"DE01194", "DE01209", {"DE01210", "DE01211", "DE01217", "DE01213"},
                                  "DE01214", "DE01215", "DE01216"};

constexpr quv::FamilyGate tint2[] = {{63, 40}, {70, 2}, {72}};

} // namespace

template <class Asked>
void PurgeFormulaCmd::build(const Asked &asked, const FW_Dispenser &dispenser, const char *function)
{
    quv::require(function, [&](FW_DriverError &error) {
        return FormulaUtils::buildPurgeFormula(asked, m_formula, dispenser, &error);
    });
    m_checked = quv::checkedPour(*this, m_formula, &dispenser, codes, function);
}

PurgeFormulaCmd::PurgeFormulaCmd(const Formula &formula, const FW_Dispenser *dispenser) : PurgeCmd(dispenser)
{
    if (dispenser)
        build(formula, *dispenser, Q_FUNC_INFO);
    else
        m_formula = formula;
}

// the request may be a struct, so the base is not to look at it
PurgeFormulaCmd::PurgeFormulaCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : PurgeCmd(dispenser)
{
    const char *function = Q_FUNC_INFO;
    if (!dispenser)
        throw FW_Exception("DE01662", noDispenser, function);
    const XmlRpc::XmlRpcValue *first = FindXmlRpcElement(value, 0);
    if (first && FindXmlRpcMember(*first, Formula::FORMULA_TYPE)) {
        build(quv::decodedValue<Formula>(first, badFormulaInValue, function), *dispenser, function);
        return;
    }
    if (!first && !FindXmlRpcMember(value, PurgeFormula::PURGE_QUANTITY))
        quv::throwRefusal(neitherInValue, function);
    build(quv::decodedValue<PurgeFormula>(&value, badPurgeInValue, function), *dispenser, function);
}

PurgeFormulaCmd::PurgeFormulaCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : PurgeCmd(list, dispenser)
{
    const char *function = Q_FUNC_INFO;
    if (!dispenser)
        throw FW_Exception("DE01663", noDispenser, function);
    const QVariant first = list.value(0);
    if (quv::holds<Formula>(first))
        build(quv::decodedVariant<Formula>(first, neitherInList, badFormulaInList, function), *dispenser,
              function);
    else
        build(quv::decodedVariant<PurgeFormula>(first, neitherInList, badPurgeInList, function), *dispenser,
              function);
}

PurgeFormulaCmd *PurgeFormulaCmd::clone() const
{
    return new PurgeFormulaCmd(*this);
}

QList<QVariant> PurgeFormulaCmd::parameters() const
{
    return {QVariant::fromValue(m_formula)};
}

XmlRpc::XmlRpcValue PurgeFormulaCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array;
    array[0] = m_formula.toXmlRpcValue(ok);
    return array;
}

QList<int> PurgeFormulaCmd::serialParameters(int) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        return {};
    qCDebug(quv::dispensingLog).noquote() << m_formula.toPrintableString(false, dispenser);
    CircuitFormulaItemList items;
    if (!quv::pouredItems(*this, m_formula, m_checked, items))
        return {};
    return quv::pourParameters(*this, m_formula, items, true);
}

long long PurgeFormulaCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    CircuitFormulaItemList items;
    if (!quv::pouredItems(*this, m_formula, m_checked, items))
        return 0;
    long long time = 0;
    items.getEstimatedDosingTime(time); // what cannot be told takes no time
    return time + quv::autocapTime(quv::dispenserOf(*this));
}

TString PurgeFormulaCmd::actionString(bool detailed) const
{
    return detailed ? purgeOf(m_formula.toPrintableString(true, nullptr)) : PurgeCmd::actionString(false);
}

bool PurgeFormulaCmd::checkFormula(FW_DriverError &error) const
{
    return quv::canPour(*this, m_formula, codes, error);
}

bool PurgeFormulaCmd::isTint2CmdSupported(const FW_Version &version)
{
    return quv::passesGate(tint2, version);
}

void PurgeFormulaCmd::tell(quv::CommandFacts &facts)
{
    quv::ArgumentTeller teller(facts);
    teller.object({"formula", "or a purge formula"}, Formula(), {}, {});
    teller.refuse("missing", {neitherInValue, {}});
    teller.refuse("another type", {{}, neitherInList});
    teller.refuse("an unreadable formula", {badFormulaInValue, badFormulaInList});
    teller.refuse("an unreadable purge formula", {badPurgeInValue, badPurgeInList});
}
