// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulaportions_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_utils.h>

#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using quv::Source;
using quv::Sources;

bool canPour(const Source &source)
{
    return source.canister->isEnabled() && source.circuit && source.circuit->isEnabled();
}

/** A whole number of steps or strokes. */
template <class Number>
CircuitFormulaItem::Result<Number> wholeNumber(double value)
{
    const double limit = double(std::min<long long>(std::numeric_limits<Number>::max(), MaxWholeNumber));
    if (!(std::abs(value) <= limit))
        return {};
    return {static_cast<Number>(std::llround(value)), true};
}

bool holds(const Source &source, double quantity, int unit)
{
    double weight = 0;
    return quv::weightOf({source, quantity}, unit, weight) && source.canister->currentQuantity() >= weight;
}

/** Of all that the name means, the first that holds what is asked of it, or else the first; null when none can pour. */
Sources::Entry *chosen(Sources &sources, Sources::Entry *first, int unit)
{
    Sources::Entry *able = nullptr;
    for (Sources::Entry *entry = first; entry; entry = sources.next(entry)) {
        if (!canPour(entry->source))
            continue;
        if (holds(entry->source, first->asked, unit))
            return entry;
        if (!able)
            able = entry;
    }
    return able;
}

/** Enough of an ID to find it; one that nobody has may be of any length. */
QString quoted(const QString &id)
{
    constexpr int most = 40;
    if (id.size() <= most)
        return id;
    const bool splitsPair = id.at(most - 1).isHighSurrogate();
    return id.left(splitsPair ? most - 1 : most) + QStringLiteral("...");
}

} // namespace

namespace quv {

CircuitFormulaItem::Result<long long> stepsOf(const Portion &portion, int unit)
{
    const FW_Circuit &circuit = *portion.source.circuit;
    switch (unit) {
    case Formula::Steps:
        return wholeNumber<long long>(portion.quantity);
    case Formula::Strokes: {
        const int stepsPerStroke = circuit.dosingMotor().stepsPerStroke();
        return stepsPerStroke > 0 ? wholeNumber<long long>(std::round(portion.quantity) * stepsPerStroke)
                                  : CircuitFormulaItem::Result<long long>();
    }
    default: {
        bool ok = false;
        const long long steps = circuit.calibration().steps(portion.quantity, &ok);
        return {steps, ok};
    }
    }
}

CircuitFormulaItem::Result<int> strokesOf(const Portion &portion, int unit,
                                          const CircuitFormulaItem::Result<long long> &steps)
{
    if (unit == Formula::Strokes)
        return wholeNumber<int>(portion.quantity);
    const int stepsPerStroke = portion.source.circuit->dosingMotor().stepsPerStroke();
    if (!steps.ok || stepsPerStroke <= 0)
        return {};
    return wholeNumber<int>(double(steps.value) / stepsPerStroke);
}

bool weightOf(const Portion &portion, int unit, double &weight)
{
    if (isByCalibration(unit)) {
        weight = portion.quantity;
        return true;
    }
    const auto steps = stepsOf(portion, unit);
    bool ok = false;
    weight = portion.source.circuit->calibration().quantity(steps.value, &ok);
    return steps.ok && ok;
}

bool portionsOf(const Formula &formula, const FW_Dispenser *dispenser, std::vector<Portion> &portions,
                FW_DriverError *error)
{
    if (!dispenser)
        return fail(error, "DE03020", QStringLiteral("Formula: expected a dispenser"));
    Sources sources(formula.formulaType(), *dispenser);
    // one canister is to hold all that is asked of it, so all is added up before
    QVarLengthArray<Sources::Entry *, 32> named;
    for (const FormulaItem &item : formula.items()) {
        Sources::Entry *first = sources.first(item.id);
        if (first)
            first->asked += item.quantity;
        named.append(first);
    }
    portions.reserve(static_cast<std::size_t>(formula.items().size()));
    for (int i = 0; i < formula.items().size(); ++i) {
        const FormulaItem &item = formula.items().at(i);
        if (!named[i])
            return fail(error, "DE03021",
                        QStringLiteral("Formula: the dispenser does not have \"%1\"").arg(quoted(item.id)));
        Sources::Entry *entry = chosen(sources, named[i], formula.quantityUnit());
        if (!entry)
            return fail(error, "DE03022", QStringLiteral("Formula: \"%1\" is disabled").arg(item.id));
        if (entry->portion >= 0) {
            portions[static_cast<std::size_t>(entry->portion)].quantity += item.quantity;
            continue;
        }
        entry->portion = static_cast<int>(portions.size());
        Portion &portion = portions.emplace_back();
        portion.source = entry->source;
        portion.quantity = item.quantity;
        portion.queueID = item.queueID;
        portion.nozzleValveID = item.nozzleValveID;
        portion.speed = item.speed;
    }
    return true;
}

bool fail(FW_DriverError *error, const char *code, const QString &text)
{
    return FW_DriverError::D_E(QLatin1String(code), text, error);
}

} // namespace quv
