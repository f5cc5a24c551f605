// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/packcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "dispensing/formula_p.h"

namespace {

constexpr char invalidMovement[] = "PackCmd failed: invalid pump movement type parameter";
constexpr char invalidType[] = "PackCmd failed: invalid Formula type parameter";

/** What the firmware takes for the criterion of a tint that is none. */
constexpr int packCriterion = 3;

/** Null for a movement that there is not. */
const char *movementText(int type)
{
    switch (type) {
    case PackCmd::PumpPack:
        return QT_TRANSLATE_NOOP("QuvProtocol", "Pump pack");
    case PackCmd::PumpUnpack:
        return QT_TRANSLATE_NOOP("QuvProtocol", "Pump unpack");
    default:
        return nullptr;
    }
}

} // namespace

struct PackCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::PACK;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.convertible({"movement_type", "0 pack, 1 unpack"}, self.m_pumpMovementType,
                            {{"DE00988", "PackCmd failed: expected Int type for first parameter"},
                             {"DE00863", invalidMovement}});
        archive.refuseUnless(checkPumpMovementType(self.m_pumpMovementType),
                             {"DE00987", "DE00992", invalidMovement});
        archive.object(
            {"formula", "quantities are not sent"}, self.m_formula,
            {{"DE00989", invalidType}, {"DE00994", "PackCmd failed: expected Formula type parameter"}},
            {"DE00993", "PackCmd failed: incorrect Formula type parameter"});
    }
};

template class quv::DescribedCommand<PackCmd, SerialProtoCommand>;

PackCmd::PackCmd(int pumpMovementType, const Formula &formula, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_pumpMovementType(pumpMovementType)
{
    if (!checkPumpMovementType(m_pumpMovementType))
        throw FW_Exception("DE00506", invalidMovement, Q_FUNC_INFO);
    m_formula = quv::copied(formula, {"DE00536", invalidType}, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

PackCmd::PackCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

PackCmd::PackCmd(QList<QVariant> list, const FW_Dispenser *dispenser) : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
    quv::requireGoodFormula(*this, dispenser, Q_FUNC_INFO);
}

PackCmd *PackCmd::clone() const
{
    return new PackCmd(*this);
}

bool PackCmd::checkPumpMovementType(int type)
{
    return movementText(type) != nullptr;
}

QString PackCmd::pumpMovementTypeStr() const
{
    const char *text = movementText(m_pumpMovementType);
    return text ? quv::translated(text) : QString();
}

bool PackCmd::checkFormula(FW_DriverError &error) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        return FW_DriverError::D_E("DE01195", "Invalid dispenser data", error);
    if (m_formula.hasNegativeValues(dispenser) || m_formula.hasNullValues())
        return FW_DriverError::D_E("DE00990", "Bad values in formula! Values have to be positive", error);
    CircuitFormulaItemList items;
    if (!m_formula.getCircuitFormulaItems(items, dispenser, error))
        return false;
    if (items.isEmpty())
        return FW_DriverError::D_E("DE00991", "Empty Formula found", error);
    for (const CircuitFormulaItem &item : qAsConst(items)) {
        bool ok = false;
        item.speed(&ok);
        if (!ok)
            return FW_DriverError::D_E("DE00995", "Bad speed value in formula", error);
    }
    return true;
}

QList<int> PackCmd::serialParameters(int) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, dispenser, nullptr))
        return {};
    QList<int> parameters = {packCriterion, items.size()};
    for (const CircuitFormulaItem &item : qAsConst(items)) {
        parameters << item.positionId() << 0 << item.speed();
        quv::appendCounted(parameters, {m_pumpMovementType});
    }
    return parameters;
}

long long PackCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    long long time = 0;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, dispenser, nullptr) ||
        !items.getEstimatedDosingTime(time))
        return 0;
    return time;
}

QString PackCmd::commandString() const
{
    return pumpMovementTypeStr();
}

TString PackCmd::actionString(bool detailed) const
{
    const char *movement = movementText(m_pumpMovementType);
    if (!movement)
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "In progress"), quv::translationContext);
    const char *text = detailed ? QT_TRANSLATE_NOOP("QuvProtocol", "%1 with formula: %2")
                                : QT_TRANSLATE_NOOP("QuvProtocol", "%1 in progress");
    TString action(text, quv::translationContext);
    action.arg(QString::fromUtf8(movement), true);
    return detailed ? action.arg(m_formula.toPrintableString(true, nullptr), false) : action;
}
