// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/primingcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "dispensing/formula_p.h"

namespace {

constexpr char invalidType[] = "PrimingCmd failed: invalid Formula type parameter";

constexpr quv::LevelsCodes levelsCodes = {"DE00503", "DE00502", "DE00501", "DE00535"};

/** What the firmware takes for the criterion of a tint that is none. */
constexpr int primingCriterion = 3;

struct Suggestion
{
    int strokes = 20;
    int speed = 0;
};

Suggestion suggestionFor(int type)
{
    switch (type) {
    case 2:
    case 8:
        return {20, 30};
    case 7:
    case 14:
        return {3, 50};
    default:
        return type >= 1 && type <= 13 ? Suggestion{20, 50} : Suggestion{};
    }
}

} // namespace

struct PrimingCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::PRIMING;
    static constexpr auto commandText = "Priming";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Priming in progress");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.object(
            {"formula", "in strokes"}, self.m_formula,
            {{"DE00497", invalidType}, {"DE00494", "PrimingCmd failed: expected Formula type parameter"}},
            {"DE00493", "PrimingCmd failed: incorrect Formula type parameter"});
    }
};

template class quv::DescribedCommand<PrimingCmd, SerialProtoCommand>;

PrimingCmd::PrimingCmd(const Formula &formula, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_formula(quv::copied(formula, {"DE00492", invalidType}, Q_FUNC_INFO))
{
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

PrimingCmd::PrimingCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

PrimingCmd::PrimingCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

PrimingCmd *PrimingCmd::clone() const
{
    return new PrimingCmd(*this);
}

bool PrimingCmd::checkFormula(FW_DriverError &error) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        return FW_DriverError::D_E("DE01066", "Invalid dispenser data", error);
    if (m_formula.hasNegativeValues(dispenser) || m_formula.hasNullValues())
        return FW_DriverError::D_E("DE00495", "Formula stopped because of negative quantity values", error);
    if (m_formula.quantityUnit() != Formula::Strokes)
        return FW_DriverError::D_E("DE00499", "Formula stopped because of invalid quantity unit", error);
    if (m_formula.levelsManagementPolicy() & Formula::CheckLevels) {
        Formula pour = m_formula;
        // what fails here fails in the check of levels as well, which has a code of its own for it
        pour.convertToNegativeQuantities(dispenser, nullptr);
        if (!quv::levelsSuffice(pour, dispenser, levelsCodes, error))
            return false;
    }
    CircuitFormulaItemList items;
    if (!m_formula.getCircuitFormulaItems(items, dispenser, error))
        return false;
    if (items.isEmpty())
        return FW_DriverError::D_E("DE00534", "Empty Formula found", error);
    for (const CircuitFormulaItem &item : qAsConst(items)) {
        bool ok = false;
        item.strokes(&ok);
        if (!ok)
            return FW_DriverError::D_E("DE00504", "Formula stopped because of errors in strokes calculus",
                                       error);
        item.speed(&ok);
        if (!ok)
            return FW_DriverError::D_E("DE00505", "Formula stopped because of errors in speed calculus",
                                       error);
    }
    return true;
}

QList<int> PrimingCmd::serialParameters(int) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, dispenser, nullptr))
        return {};
    QList<int> parameters = {primingCriterion, items.size()};
    for (const CircuitFormulaItem &item : qAsConst(items)) {
        const int strokes = item.strokes();
        if (strokes <= 0)
            continue;
        parameters << item.positionId() << 0 << item.speed();
        quv::appendCountedDigits(parameters, strokes);
    }
    return parameters;
}

TString PrimingCmd::actionString(bool detailed) const
{
    if (detailed)
        return TString("Priming with formula: %1", "").arg(m_formula.toPrintableString(true, nullptr), false);
    return DescribedCommand::actionString(detailed);
}

int PrimingCmd::defaultPrimingStrokes(int type)
{
    return suggestionFor(type).strokes;
}

int PrimingCmd::defaultPrimingSpeed(int type)
{
    return suggestionFor(type).speed;
}
