// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/priming2cmd.h"

#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/pcircuitformula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>

namespace {

constexpr char invalidType[] = "Priming2Cmd failed: invalid Formula type parameter";
constexpr quv::Refusal incorrectType = {"DE01355", "Priming2Cmd failed: incorrect Formula type parameter"};
constexpr quv::Refusal expectedType = {"DE02165", "Priming2Cmd failed: expected Formula type parameter"};

constexpr int defaultCriterion = 1;

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::PRIMING2);
}

} // namespace

Priming2Cmd::Priming2Cmd() : CircuitListCmd(name(), nullptr)
{
    setDefaults();
}

Priming2Cmd::Priming2Cmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser)
    : CircuitListCmd(name(), dispenser)
{
    m_formula = quv::copied(formula, {"DE01933", invalidType}, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Priming2Cmd::Priming2Cmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : CircuitListCmd(name(), value, dispenser)
{
    m_formula = quv::decodedValue<PCircuitFormula>(FindXmlRpcElement(value, 0), {"DE01930", invalidType},
                                                   Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Priming2Cmd::Priming2Cmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : CircuitListCmd(name(), list, dispenser)
{
    m_formula = quv::decodedVariant<PCircuitFormula>(list.value(0), expectedType, incorrectType, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Priming2Cmd *Priming2Cmd::clone() const
{
    return new Priming2Cmd(*this);
}

void Priming2Cmd::setDefaults()
{
    m_formula = PCircuitFormula(defaultCriterion, {});
}

bool Priming2Cmd::checkFormula(FW_DriverError &error) const
{
    if (!checkCircuits({"DE02313", "DE02314", "DE02315"}, error))
        return false;
    const auto moves = [](const PCircuit &circuit) { return circuit.strokes > 0; };
    return std::all_of(m_formula.targetCircuits.cbegin(), m_formula.targetCircuits.cend(), moves) ||
           FW_DriverError::D_E("DE02316", quv::invalidCircuits, error);
}

TString Priming2Cmd::actionString(bool detailed) const
{
    if (!detailed)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Priming in progress"), quv::translationContext);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Priming in progress on positions %1"),
                   quv::translationContext)
        .arg(positionsText(), false);
}
