// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/amounts.h"

#include "machines/refusal.h"
#include "quantities.h"

#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QLocale>

#include <algorithm>
#include <array>

namespace quv {
namespace {

using Catalogue = ProtoCommandList;

/// Packs and air purges move the pumps by strokes too, but nothing is to leave the nozzles.
bool poursFormula(const QString &name)
{
    constexpr std::array pouring{Catalogue::TINT, Catalogue::TINT2, Catalogue::CHANNEL_TINT, Catalogue::PURGE,
                                 Catalogue::PRIMING};
    return std::any_of(pouring.begin(), pouring.end(),
                       [&name](Catalogue::CommandListValue row) { return name == Catalogue::cmdStr(row); });
}

std::optional<double> nearestQuantity(const CircuitFormulaItem &circuit, double asked, int unit)
{
    if (unit == Formula::Strokes) // half a stroke is a whole one to the machine
        return nearestCount(asked);
    return quantityOf(std::max(circuit.steps(), 1LL), circuit, unit);
}

QString inFull(double quantity)
{
    return QString::number(quantity, 'g', QLocale::FloatingPointShortest);
}

QString nearestInWords(const Amount &amount, int unit)
{
    switch (unit) {
    case Formula::Steps:
        return QStringLiteral("%1 steps cannot be poured, the nearest is %2")
            .arg(inFull(amount.asked.quantity), quantityInWords(*amount.nearest));
    case Formula::Strokes:
        return QStringLiteral("%1 strokes cannot be poured, the nearest is %2")
            .arg(inFull(amount.asked.quantity), quantityInWords(*amount.nearest));
    default:
        return QStringLiteral("%1 cannot be poured, the nearest is %2 (steps of the motor: %3)")
            .arg(inFull(amount.asked.quantity), quantityInWords(*amount.nearest),
                 QString::number(amount.steps));
    }
}

FW_DriverError nothingAsked(const QString &name)
{
    return FW_DriverError(QStringLiteral("DE03140"),
                          QStringLiteral("A quantity of 0 cannot be poured: %1").arg(name));
}

FW_DriverError notNear(const QString &name, const QString &why)
{
    return FW_DriverError(QStringLiteral("DE03141"), QStringLiteral("%1: %2").arg(name, why));
}

} // namespace

std::vector<Amount> amountsOf(const Formula &formula, const FW_Dispenser &dispenser)
{
    const Formula once = addedUp(formula);
    CircuitFormulaItemList circuits;
    if (!once.getCircuitFormulaItems(circuits, &dispenser, nullptr) || circuits.size() != once.items().size())
        return {};
    std::vector<Amount> amounts;
    for (int i = 0; i < circuits.size(); ++i) {
        const FormulaItem &item = once.items().at(i);
        const CircuitFormulaItem &circuit = circuits.at(i);
        amounts.push_back({item, circuit.positionId(), std::max(circuit.steps(), 1LL),
                           nearestQuantity(circuit, item.quantity, formula.quantityUnit())});
    }
    return amounts;
}

std::optional<Formula> formulaOf(const ProtoCommand &command)
{
    const QList<QVariant> parameters = command.parameters();
    for (const QVariant &parameter : parameters) {
        if (parameter.userType() == qMetaTypeId<Formula>())
            return parameter.value<Formula>();
    }
    return std::nullopt;
}

std::optional<Formula> pouredFormula(const ProtoCommand &command)
{
    const bool isPour =
        dynamic_cast<const FW_Dispenser *>(command.machine()) && poursFormula(command.command());
    return isPour ? formulaOf(command) : std::nullopt;
}

std::optional<double> quantityOf(qint64 steps, const FW_Circuit &circuit, int unit)
{
    switch (unit) {
    case Formula::Steps:
        return double(steps);
    case Formula::Strokes: {
        const int stepsPerStroke = circuit.dosingMotor().stepsPerStroke();
        return stepsPerStroke > 0 ? std::optional(double(steps) / stepsPerStroke) : std::nullopt;
    }
    default: {
        bool isKnown = false;
        const double quantity = circuit.calibration().quantity(steps, &isKnown);
        return isKnown ? std::optional(quantity) : std::nullopt;
    }
    }
}

QString nameInWords(const QString &id, int formulaType)
{
    switch (formulaType) {
    case Formula::ColorantCodes:
        return QStringLiteral("\"%1\"").arg(id);
    case Formula::CanisterIDs:
        return QStringLiteral("canister %1").arg(id);
    case Formula::CircuitIDs:
        return QStringLiteral("circuit %1").arg(id);
    default:
        return QStringLiteral("position %1").arg(id);
    }
}

void requirePourableAmounts(const ProtoCommand &command)
{
    const std::optional<Formula> formula = pouredFormula(command);
    if (!formula)
        return;
    Formula pourable = *formula;
    pourable.setItems({});
    FW_ErrorList errors;
    for (const Amount &amount : amountsOf(*formula, dynamic_cast<const FW_Dispenser &>(*command.machine()))) {
        FormulaItem item = amount.asked;
        const QString name = nameInWords(item.id, formula->formulaType());
        if (item.quantity == 0) {
            errors.append(nothingAsked(name));
            continue;
        }
        if (amount.nearest && !isNear(*amount.nearest, item.quantity)) {
            errors.append(notNear(name, nearestInWords(amount, formula->quantityUnit())));
            item.quantity = *amount.nearest;
        }
        pourable.addItem(item);
    }
    if (!errors.isEmpty())
        throw CallRefusal(InvalidRequest, errors,
                          pourable.isEmpty() ? XmlRpc::XmlRpcValue(0) : pourable.toXmlRpcValue());
}

} // namespace quv
