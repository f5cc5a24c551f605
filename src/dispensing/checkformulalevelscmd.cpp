// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/checkformulalevelscmd.h"

#include "base/describedcommand_p.h"
#include "dispensing/checkformulalevelsanswer.h"
#include "dispensing/formula_p.h"
#include "dispensing/formulaquery_p.h"

namespace {

constexpr quv::Refusal noFormula = {
    "DE00438", "CheckFormulaLevelsCmd failed: expected Formula type for first parameter"};

QList<QVariant> formulaAndFlag(Formula formula, bool isPurge)
{
    formula.setLevelsManagementPolicy(0);
    return {QVariant::fromValue(formula), isPurge};
}

} // namespace

struct CheckFormulaLevelsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CHECK_FORMULA_LEVELS;

    static constexpr char answerFailed[] = "Failed to create CheckFormulaLevelsAnswer";
    static constexpr quv::AnsweredBy<CheckFormulaLevelsAnswer> answer = {
        {}, {"DE01274", answerFailed}, {"DE00464", answerFailed}, {"DE00463", answerFailed}};

    static constexpr auto commandText = "Check formula levels";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Checking levels for formula");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.object({"formula", "or a purge formula"}, Formula(), {}, {});
        teller.refuse("unreadable", {noFormula, {}});
        teller.argument({"is_purge", "whether the formula is a purge; a purge formula stands alone"}, "bool");
    }
};

template class quv::DescribedCommand<CheckFormulaLevelsCmd, ConfProtoCommand>;

CheckFormulaLevelsCmd::CheckFormulaLevelsCmd(const Formula &formula, bool isPurge)
{
    m_parameters = formulaAndFlag(formula, isPurge);
}

CheckFormulaLevelsCmd::CheckFormulaLevelsCmd(const PurgeFormula &formula)
{
    m_parameters = {QVariant::fromValue(formula)};
}

CheckFormulaLevelsCmd::CheckFormulaLevelsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : DescribedCommand(value, machine)
{
    bool isPurge = false;
    if (!DecodeXmlRpcValue(value, 1, isPurge)) {
        m_parameters = {QVariant::fromValue(quv::decodedValue<PurgeFormula>(&value, noFormula, Q_FUNC_INFO))};
        return;
    }
    const auto formula = quv::decodedValue<Formula>(FindXmlRpcElement(value, 0), noFormula, Q_FUNC_INFO);
    if (machine) {
        const FW_Dispenser *dispenser = quv::dispenserOf(*this);
        if (!dispenser)
            throw FW_Exception("DE01337", "Invalid dispenser data", Q_FUNC_INFO);
        if (formula.hasNegativeValues(dispenser))
            throw FW_Exception("DE00552", "Bad values in formula! Values have to be positive", Q_FUNC_INFO);
    }
    m_parameters = formulaAndFlag(formula, isPurge);
}

CheckFormulaLevelsCmd::CheckFormulaLevelsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_parameters = quv::formulaParameters(list);
}

CheckFormulaLevelsCmd *CheckFormulaLevelsCmd::clone() const
{
    return new CheckFormulaLevelsCmd(*this);
}

bool CheckFormulaLevelsCmd::getFormula(Formula &formula, bool &isPurge) const
{
    if (m_parameters.size() < 2)
        return false;
    formula = quv::formulaIn(m_parameters.at(0)).value_or(Formula());
    isPurge = m_parameters.at(1).toBool();
    return true;
}

bool CheckFormulaLevelsCmd::getPurgeFormula(PurgeFormula &formula) const
{
    if (m_parameters.isEmpty())
        return false;
    formula = quv::purgeFormulaIn(m_parameters.constFirst()).value_or(PurgeFormula());
    return true;
}

XmlRpc::XmlRpcValue CheckFormulaLevelsCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::formulaQueryValue(m_parameters, ok);
}

TString CheckFormulaLevelsCmd::actionString(bool detailed) const
{
    Formula formula;
    bool isPurge = false;
    if (detailed && m_parameters.size() == 2 && getFormula(formula, isPurge)) {
        TString text(QT_TRANSLATE_NOOP("QuvProtocol", "Checking levels for %1formula: %2"),
                     quv::translationContext);
        text.arg(isPurge ? QStringLiteral(QT_TRANSLATE_NOOP("QuvProtocol", "purge ")) : QString(), isPurge);
        return text.arg(formula.toPrintableString(true, nullptr), false);
    }
    PurgeFormula purge;
    if (detailed && m_parameters.size() == 1 && getPurgeFormula(purge)) {
        TString text(QT_TRANSLATE_NOOP("QuvProtocol", "Checking levels for purge formula: %1"),
                     quv::translationContext);
        return text.arg(purge.toPrintableString(true, nullptr), false);
    }
    return DescribedCommand::actionString(detailed);
}
