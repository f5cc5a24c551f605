// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pack2cmd.h"

#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/pcircuitformula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char invalidType[] = "Pack2Cmd failed: invalid Formula type parameter";
constexpr quv::Refusal incorrectType = {"DE02322", "Pack2Cmd failed: incorrect Formula type parameter"};
constexpr quv::Refusal expectedType = {"DE02324", "Pack2Cmd failed: expected Formula type parameter"};

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::PACK2);
}

} // namespace

Pack2Cmd::Pack2Cmd() : CircuitListCmd(name(), nullptr) {}

Pack2Cmd::Pack2Cmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser)
    : CircuitListCmd(name(), dispenser)
{
    m_formula = quv::copied(formula, {"DE02320", invalidType}, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Pack2Cmd::Pack2Cmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : CircuitListCmd(name(), value, dispenser)
{
    m_formula = quv::decodedValue<PCircuitFormula>(FindXmlRpcElement(value, 0), {"DE02321", invalidType},
                                                   Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Pack2Cmd::Pack2Cmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : CircuitListCmd(name(), list, dispenser)
{
    m_formula = quv::decodedVariant<PCircuitFormula>(list.value(0), expectedType, incorrectType, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Pack2Cmd *Pack2Cmd::clone() const
{
    return new Pack2Cmd(*this);
}

void Pack2Cmd::setDefaults()
{
    m_formula = PCircuitFormula();
}

bool Pack2Cmd::checkFormula(FW_DriverError &error) const
{
    return checkCircuits({"DE02325", "DE02326", "DE02327"}, error);
}

TString Pack2Cmd::actionString(bool detailed) const
{
    if (!detailed)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Pack in progress"), quv::translationContext);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Pack in progress on positions %1"),
                   quv::translationContext)
        .arg(positionsText(), false);
}
