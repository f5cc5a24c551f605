// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tintreport.h"

#include "quantities.h"
#include "terminal.h"

#include "dispensing/genericformulacmd.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/getdispensedformulacmd.h"
#include "dispensing/getlowlevelformulaanswer.h"

#include <algorithm>
#include <optional>

namespace quv {

namespace {

QString headingOf(int formulaType)
{
    switch (formulaType) {
    case Formula::CircuitPositions:
        return QStringLiteral("POSITION");
    case Formula::CircuitIDs:
        return QStringLiteral("CIRCUIT");
    case Formula::CanisterIDs:
        return QStringLiteral("CANISTER");
    default:
        return QStringLiteral("COLORANT");
    }
}

bool isIn(const Formula &told, int type, int unit)
{
    return told.formulaType() == type && told.quantityUnit() == unit;
}

/// The driver's report in steps. Not all drivers know other names than circuit positions.
GetDispensedFormulaAnswer reportInSteps(const Driver &driver, int formulaType)
{
    GetDispensedFormulaCmd command(formulaType, Formula::Steps);
    return executed<GetDispensedFormulaAnswer>(driver, command);
}

/// The report in the formula's own unit; nothing when that is steps, or the driver cannot tell it so.
std::optional<GetDispensedFormulaAnswer> reportInUnit(const Driver &driver, const Formula &formula)
{
    if (formula.quantityUnit() == Formula::Steps)
        return std::nullopt;
    try {
        GetDispensedFormulaCmd command(formula.formulaType(), formula.quantityUnit());
        const auto &answer = executed<GetDispensedFormulaAnswer>(driver, command);
        if (isIn(answer.totalFormula(), formula.formulaType(), formula.quantityUnit()))
            return answer;
    } catch (const RequestRefused &) {
        return std::nullopt; // the steps are known
    }
    return std::nullopt;
}

/// Whether a pour of the formula has this total, as far as its names and its unit tell.
bool isTotalOf(const Formula &total, const Formula &formula)
{
    if (total.formulaType() != formula.formulaType())
        return true;
    const QVector<FormulaItem> asked = addedUp(formula).items();
    const bool inUnit = total.quantityUnit() == formula.quantityUnit();
    const auto isIn = [&](const FormulaItem &item) {
        const auto &all = total.items();
        const bool isThere = std::any_of(all.begin(), all.end(),
                                         [&item](const FormulaItem &other) { return other.id == item.id; });
        return isThere && (!inUnit || isNear(quantityIn(total, item.id), item.quantity));
    };
    return total.items().size() == asked.size() && std::all_of(asked.begin(), asked.end(), isIn);
}

/// Those that the machine was to pour, and where it calls them alike those that were asked for and left out.
QStringList reportedIds(const Formula &total, const Formula &asked)
{
    QStringList ids;
    for (const FormulaItem &item : total.items())
        ids.append(item.id);
    if (total.formulaType() == asked.formulaType())
        for (const FormulaItem &item : asked.items())
            if (!ids.contains(item.id))
                ids.append(item.id);
    return ids;
}

QStringList headings(const PourReport &report, bool inUnit)
{
    QStringList cells(headingOf(report.formulaType));
    if (inUnit) {
        const QString unit = report.quantityUnit == Formula::Strokes ? QStringLiteral(" STROKES") : QString();
        cells << QStringLiteral("ASKED") + unit << QStringLiteral("POURED") + unit
              << QStringLiteral("LEFT TO POUR");
    }
    cells << QStringLiteral("ASKED STEPS") << QStringLiteral("POURED STEPS");
    if (!inUnit)
        cells << QStringLiteral("LEFT TO POUR");
    return cells;
}

QString lastLine(const QStringList &lacking)
{
    return lacking.isEmpty()
               ? QStringLiteral("poured: all")
               : QStringLiteral("poured less than asked: %1").arg(lacking.join(QStringLiteral(", ")));
}

/// Nothing is left of an amount whose steps have all been poured, even where the machine rounds them.
double leftOf(const PourReport::Item &item, double asked, double poured)
{
    return item.isAll ? 0 : std::max(asked - poured, 0.0);
}

QStringList cellsOf(const PourReport::Item &item, bool inUnit)
{
    QStringList cells(item.id);
    if (inUnit)
        cells << quantityInWords(*item.asked) << quantityInWords(*item.poured) << quantityInWords(*item.left);
    cells << quantityInWords(item.askedSteps) << quantityInWords(item.pouredSteps);
    if (!inUnit)
        cells << quantityInWords(leftOf(item, item.askedSteps, item.pouredSteps));
    return cells;
}

} // namespace

QStringList PourReport::lacking() const
{
    QStringList ids;
    for (const Item &item : items)
        if (!item.isAll)
            ids.append(item.id);
    return ids;
}

std::optional<PourReport> pourReport(const Driver &driver, const PourOrder &order)
{
    const Formula &sent = order.sent;
    const GetDispensedFormulaAnswer steps = reportInSteps(driver, sent.formulaType());
    const auto inUnit = reportInUnit(driver, sent);
    if (!isTotalOf(steps.totalFormula(), sent) || (inUnit && !isTotalOf(inUnit->totalFormula(), sent)))
        return std::nullopt;
    const Formula &total = steps.totalFormula();
    const Formula &asked = order.asked;
    const bool inSteps = isIn(total, sent.formulaType(), sent.quantityUnit());
    PourReport report{total.formulaType(), sent.quantityUnit(), {}};
    for (const QString &id : reportedIds(total, asked)) {
        PourReport::Item item;
        item.id = id;
        item.pouredSteps = quantityIn(steps.dispensedFormula(), id);
        item.isAll = item.pouredSteps >= quantityIn(total, id);
        item.askedSteps = quantityIn(inSteps ? asked : total, id);
        if (inUnit) {
            item.asked = quantityIn(asked, id);
            item.poured = quantityIn(inUnit->dispensedFormula(), id);
            item.left = leftOf(item, *item.asked, *item.poured);
        }
        report.items.append(item);
    }
    return report;
}

void printReport(const PourReport &report)
{
    const bool inUnit = !report.items.isEmpty() && report.items.first().asked.has_value();
    Columns columns;
    columns.add(headings(report, inUnit));
    for (const PourReport::Item &item : report.items)
        columns.add(cellsOf(item, inUnit));
    columns.print(true);
    const QStringList lacking = report.lacking();
    printLine(lastLine(lacking), lacking.isEmpty() ? Colour::Bold : Colour::Red);
}

OrderedJson reportJson(const PourReport &report)
{
    OrderedJson items = OrderedJson::array();
    for (const PourReport::Item &item : report.items) {
        OrderedJson told = {{"id", toJson(item.id)}};
        if (item.asked) {
            told["asked"] = *item.asked;
            told["poured"] = *item.poured;
            told["left"] = *item.left;
        }
        told["asked_steps"] = item.askedSteps;
        told["poured_steps"] = item.pouredSteps;
        items.push_back(std::move(told));
    }
    return items;
}

PourPlan pourPlan(const Driver &driver, const PourOrder &order)
{
    const Formula &formula = order.sent;
    const QString name = ProtoCommandList::cmdStr(ProtoCommandList::GET_LOW_LEVEL_FORMULA);
    GenericFormulaCmd command(name, formula);
    const Formula &steps = executed<GetLowLevelFormulaAnswer>(driver, command).formula();
    const QVector<FormulaItem> sent = addedUp(formula).items();
    const bool isPaired = sent.size() == steps.items().size(); // each in the formula's order
    PourPlan plan;
    plan.formulaType = formula.formulaType();
    for (int i = 0; i < steps.items().size(); ++i) {
        PourPlan::Item item;
        if (isPaired) {
            item.id = sent[i].id;
            item.asked = quantityIn(order.asked, item.id);
        }
        item.position = steps.items().at(i).id;
        item.steps = std::max(steps.items().at(i).quantity, 1.0);
        plan.items.append(item);
    }
    return plan;
}

void printPlan(const PourPlan &plan)
{
    const bool isPaired = !plan.items.isEmpty() && plan.items.first().asked.has_value();
    Columns columns;
    columns.add({isPaired ? headingOf(plan.formulaType) : QString(), QStringLiteral("ASKED"),
                 QStringLiteral("POSITION"), QStringLiteral("STEPS")});
    for (const PourPlan::Item &item : plan.items)
        columns.add({item.id, item.asked ? quantityInWords(*item.asked) : QString(), item.position,
                     quantityInWords(item.steps)});
    columns.print(true);
    if (plan.time > 0)
        printLine(QStringLiteral("would take %1 s").arg(QString::number(double(plan.time) / 1000, 'f', 1)));
    printLine(plan.isEnough ? QStringLiteral("the canisters hold enough")
                            : QStringLiteral("the canisters do not hold enough"),
              plan.isEnough ? Colour::Bold : Colour::Red);
    printLine(QStringLiteral("nothing has been poured"));
}

OrderedJson planJson(const PourPlan &plan)
{
    OrderedJson items = OrderedJson::array();
    for (const PourPlan::Item &item : plan.items) {
        OrderedJson told = OrderedJson::object();
        if (item.asked) {
            told["id"] = toJson(item.id);
            told["asked"] = *item.asked;
        }
        told["position"] = toJson(item.position);
        told["steps"] = item.steps;
        items.push_back(std::move(told));
    }
    return {{"exec_time", plan.time}, {"enough", plan.isEnough}, {"items", std::move(items)}};
}

} // namespace quv
