// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/genericformulacmd.h"

#include "base/describedcommand_p.h"
#include "dispensing/formula_p.h"
#include "dispensing/formulaquery_p.h"
#include "dispensing/getformulaexecutionanswer.h"
#include "dispensing/getlowlevelformulaanswer.h"

namespace {

constexpr quv::Refusal noFormula = {"DE00898",
                                    "GenericFormulaCmd failed: expected Formula type for first parameter"};

constexpr char answerFailed[] = "Failed to create answer for formula command";
/** Of both answers, since the name alone tells which it is. */
constexpr quv::PlainlyAnswered failures = {
    {}, {"DE01278", answerFailed}, {"DE00901", answerFailed}, {"DE00899", answerFailed}};

bool asksForLowLevelFormula(const QString &name)
{
    return name == ProtoCommandList::cmdStr(ProtoCommandList::GET_LOW_LEVEL_FORMULA);
}

bool asksForExecution(const QString &name)
{
    return name == ProtoCommandList::cmdStr(ProtoCommandList::GET_FORMULA_EXECUTION);
}

template <class Source>
ProtoAnswer *makeAnswer(const QString &name, Source &source, const char *otherName, const char *function)
{
    if (asksForLowLevelFormula(name))
        return new GetLowLevelFormulaAnswer(source);
    if (asksForExecution(name))
        return new GetFormulaExecutionAnswer(source);
    throw FW_Exception(otherName, answerFailed, function);
}

} // namespace

GenericFormulaCmd::GenericFormulaCmd(QString name) : ConfProtoCommand(name, nullptr) {}

GenericFormulaCmd::GenericFormulaCmd(QString name, const Formula &formula) : GenericFormulaCmd(name)
{
    m_parameters = {QVariant::fromValue(formula)};
}

GenericFormulaCmd::GenericFormulaCmd(QString name, const XmlRpc::XmlRpcValue &value,
                                     const FW_Machine *machine)
    : ConfProtoCommand(name, value, machine)
{
    const auto formula = quv::decodedValue<Formula>(FindXmlRpcElement(value, 0), noFormula, Q_FUNC_INFO);
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        throw FW_Exception("DE00334", "Invalid dispenser data", Q_FUNC_INFO);
    if (formula.hasNegativeValues(dispenser))
        throw FW_Exception("DE00905", "Bad values in formula! Values have to be positive", Q_FUNC_INFO);
    m_parameters = {QVariant::fromValue(formula)};
}

GenericFormulaCmd::GenericFormulaCmd(QString name, QList<QVariant> list)
    : ConfProtoCommand(name, list, nullptr)
{
    m_parameters = quv::formulaParameters(list);
}

GenericFormulaCmd *GenericFormulaCmd::clone() const
{
    return new GenericFormulaCmd(*this);
}

XmlRpc::XmlRpcValue GenericFormulaCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::formulaValue(m_parameters, ok);
}

bool GenericFormulaCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer(failures.value.code, answerFailed, error, [&, function = Q_FUNC_INFO] {
        return makeAnswer(m_command, value, "DE02937", function);
    });
}

bool GenericFormulaCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer(failures.list.code, answerFailed, error, [&, function = Q_FUNC_INFO] {
        return makeAnswer(m_command, list, "DE02938", function);
    });
}

bool GenericFormulaCmd::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, failures.envelope.code, answerFailed, error);
}

void GenericFormulaCmd::tell(quv::CommandFacts &facts)
{
    quv::ArgumentTeller(facts).object("formula", Formula(), {noFormula, {}}, {});
    if (asksForLowLevelFormula(facts.name))
        quv::tellAnswer<GetLowLevelFormulaAnswer>(failures, facts);
    if (asksForExecution(facts.name))
        quv::tellAnswer<GetFormulaExecutionAnswer>(failures, facts);
}
