// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulaportions_p.h"

#include <QtCore/QStringList>

namespace {

QString quantityText(const Formula &formula, double quantity)
{
    return QString::number(quantity, 'f',
                           quv::isByCalibration(formula.quantityUnit()) ? formula.decimals() : 0);
}

QString unitText(int unit)
{
    switch (unit) {
    case Formula::Steps:
        return QStringLiteral("steps");
    case Formula::Strokes:
        return QStringLiteral("strokes");
    default:
        return QStringLiteral("weight or volume");
    }
}

QString framed(const Formula &formula, bool brief, const QStringList &items)
{
    const QString list = items.join(QStringLiteral(", "));
    return brief ? list
                 : QStringLiteral("%1: %2 (%3)")
                       .arg(formula.formulaTypeStr(), list, unitText(formula.quantityUnit()));
}

QStringList itemTexts(const Formula &formula)
{
    QStringList texts;
    for (const FormulaItem &item : formula.items())
        texts.append(QStringLiteral("%1 %2").arg(item.id, quantityText(formula, item.quantity)));
    return texts;
}

QStringList itemTexts(const CircuitFormulaItemList &items)
{
    QStringList texts;
    for (const CircuitFormulaItem &item : items) {
        bool ok = false;
        const long long steps = item.steps(&ok);
        texts.append(
            QStringLiteral("circuit %1 %2 steps")
                .arg(QString::number(item.positionId()), ok ? QString::number(steps) : QStringLiteral("?")));
    }
    return texts;
}

/** The formula, and the circuits that it comes down to when they are known. */
QString printable(const Formula &formula, bool brief, const CircuitFormulaItemList *circuits)
{
    const QString text = framed(formula, brief, itemTexts(formula));
    return circuits ? text + QStringLiteral(": ") + itemTexts(*circuits).join(QStringLiteral(", ")) : text;
}

} // namespace

QString Formula::toPrintableString(bool brief, const FW_Dispenser *dispenser) const
{
    CircuitFormulaItemList items;
    const bool known = dispenser && getCircuitFormulaItems(items, dispenser, nullptr);
    return printable(*this, brief, known ? &items : nullptr);
}

QString Formula::toPrintableString(bool brief, int position, const FW_Dispenser *dispenser) const
{
    CircuitFormulaItemList items;
    const bool known = dispenser && getCircuitFormulaItems(items, position, dispenser, nullptr);
    return printable(*this, brief, known ? &items : nullptr);
}

QString Formula::formulaTypeStr() const
{
    switch (m_type) {
    case CircuitPositions:
        return QStringLiteral("circuit positions");
    case CircuitIDs:
        return QStringLiteral("circuits");
    case CanisterIDs:
        return QStringLiteral("canisters");
    case ColorantCodes:
        return QStringLiteral("colorants");
    default:
        return QString();
    }
}
