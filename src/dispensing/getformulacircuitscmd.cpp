// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitscmd.h"

#include "base/describedcommand_p.h"
#include "dispensing/formula_p.h"
#include "dispensing/formulaquery_p.h"
#include "dispensing/getformulacircuitsanswer.h"

namespace {

constexpr quv::Refusal noFormula = {
    "DE00235", "GetFormulaCircuitsCmd failed: expected Formula type for first parameter"};
constexpr quv::Refusal noPurge = {
    "DE01253", "GetFormulaCircuitsCmd failed: expected PurgeFormula type for first parameter"};
constexpr quv::Refusal neither = {"DE01254",
                                  "GetFormulaCircuitsCmd failed: incorrect Formula type parameter"};

bool isMeantForPurge(const XmlRpc::XmlRpcValue &value)
{
    return FindXmlRpcElement(value, 0) || FindXmlRpcMember(value, PurgeFormula::PURGE_QUANTITY);
}

} // namespace

struct GetFormulaCircuitsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_FORMULA_CIRCUITS;

    static constexpr char answerFailed[] = "Failed to create GetFormulaCircuitsAnswer";
    static constexpr quv::AnsweredBy<GetFormulaCircuitsAnswer> answer = {
        {}, {"DE01276", answerFailed}, {"DE00210", answerFailed}, {"DE00211", answerFailed}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.object({"formula", "or a purge formula"}, Formula(), {}, {});
        teller.refuse("missing", {neither, {}});
        teller.refuse("an unreadable formula", {noFormula, {}});
        teller.refuse("an unreadable purge formula", {noPurge, {}});
        teller.optional({"is_purge", "whether the formula is a purge"}, false, {});
    }
};

template class quv::DescribedCommand<GetFormulaCircuitsCmd, ConfProtoCommand>;

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const Formula &formula, bool isPurge)
{
    m_parameters = {QVariant::fromValue(formula), isPurge};
}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const PurgeFormula &formula)
{
    m_parameters = {QVariant::fromValue(formula)};
}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : DescribedCommand(machine) // a purge may come without its array, so the base cannot count
{
    const XmlRpc::XmlRpcValue *first = FindXmlRpcElement(value, 0);
    if (first && FindXmlRpcMember(*first, Formula::FORMULA_TYPE)) {
        bool isPurge = false;
        DecodeXmlRpcValue(value, 1, isPurge);
        m_parameters = {QVariant::fromValue(quv::decodedValue<Formula>(first, noFormula, Q_FUNC_INFO)),
                        isPurge};
        return;
    }
    if (!isMeantForPurge(value))
        quv::throwRefusal(neither, Q_FUNC_INFO);
    m_parameters = {QVariant::fromValue(quv::decodedValue<PurgeFormula>(&value, noPurge, Q_FUNC_INFO))};
}

GetFormulaCircuitsCmd::GetFormulaCircuitsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_parameters = quv::formulaParameters(list);
}

GetFormulaCircuitsCmd *GetFormulaCircuitsCmd::clone() const
{
    return new GetFormulaCircuitsCmd(*this);
}

XmlRpc::XmlRpcValue GetFormulaCircuitsCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::formulaQueryValue(m_parameters, ok);
}
