// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pack2cmd.h"

#include "base/describedcommand_p.h"
#include "dispensing/pcircuitformula_p.h"

struct Pack2Cmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::PACK2;
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Pack in progress");

    static constexpr char invalidType[] = "Pack2Cmd failed: invalid Formula type parameter";

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.object(
            "circuits", self.m_formula,
            {{"DE02321", invalidType}, {"DE02324", "Pack2Cmd failed: expected Formula type parameter"}},
            {"DE02322", "Pack2Cmd failed: incorrect Formula type parameter"});
    }
};

template class quv::DescribedCommand<Pack2Cmd, CircuitListCmd>;

Pack2Cmd::Pack2Cmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser)
{
    m_formula = quv::copied(formula, {"DE02320", Description::invalidType}, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Pack2Cmd::Pack2Cmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Pack2Cmd::Pack2Cmd(QList<QVariant> list, const FW_Dispenser *dispenser) : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Pack2Cmd *Pack2Cmd::clone() const
{
    return new Pack2Cmd(*this);
}

bool Pack2Cmd::checkFormula(FW_DriverError &error) const
{
    return checkCircuits({"DE02325", "DE02326", "DE02327"}, error);
}

TString Pack2Cmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Pack in progress on positions %1"),
                   quv::translationContext)
        .arg(positionsText(), false);
}
