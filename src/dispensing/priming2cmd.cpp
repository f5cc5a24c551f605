// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/priming2cmd.h"

#include "base/describedcommand_p.h"
#include "dispensing/pcircuitformula_p.h"

#include <algorithm>

struct Priming2Cmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::PRIMING2;
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Priming in progress");

    static constexpr char invalidType[] = "Priming2Cmd failed: invalid Formula type parameter";

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.object(
            "circuits", self.m_formula,
            {{"DE01930", invalidType}, {"DE02165", "Priming2Cmd failed: expected Formula type parameter"}},
            {"DE01355", "Priming2Cmd failed: incorrect Formula type parameter"});
    }
};

template class quv::DescribedCommand<Priming2Cmd, CircuitListCmd>;

Priming2Cmd::Priming2Cmd()
{
    m_formula.executionCriterion = 1;
}

Priming2Cmd::Priming2Cmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser)
{
    m_formula = quv::copied(formula, {"DE01933", Description::invalidType}, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Priming2Cmd::Priming2Cmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Priming2Cmd::Priming2Cmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

Priming2Cmd *Priming2Cmd::clone() const
{
    return new Priming2Cmd(*this);
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
        return DescribedCommand::actionString(false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Priming in progress on positions %1"),
                   quv::translationContext)
        .arg(positionsText(), false);
}
