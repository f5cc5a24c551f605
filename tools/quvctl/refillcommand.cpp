// SPDX-License-Identifier: LGPL-3.0-or-later
#include "canisters.h"
#include "excerpt.h"
#include "executed.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"

#include "dispensing/setlevelscmd.h"
#include "masterdata/getcanisterlistanswer.h"

#include <QuvFramework/formula.h>

#include <cmath>
#include <optional>

namespace quv {

namespace {

/// What somebody has filled into one canister.
struct Refill
{
    QString name{};
    std::optional<double> amount{}; ///< nothing for all that the canister holds
};

Refill refillOf(const QString &word)
{
    const int equals = word.lastIndexOf(QLatin1Char('='));
    const QString amount = word.mid(equals + 1);
    Refill refill{word.left(equals), std::nullopt};
    if (equals > 0 && amount == QLatin1String("full"))
        return refill;
    bool isNumber = false;
    refill.amount = amount.toDouble(&isNumber);
    if (equals < 1 || !isNumber || !std::isfinite(*refill.amount))
        throw UsageError(
            QStringLiteral("%1 is no CANISTER=AMOUNT, such as B=500 or B=full").arg(excerpt(word)));
    if (*refill.amount < 0)
        throw UsageError(
            QStringLiteral("%1 is less than nothing; a level that is too high is set right by --level")
                .arg(excerpt(word)));
    return refill;
}

QList<Refill> refillsOf(const CommandLine &line)
{
    QList<Refill> refills;
    for (const QString &word : line.words())
        refills.append(refillOf(word));
    return refills;
}

/// The canister with this colorant, or of this number. \throws UsageError
const CanisterData &canisterOf(const QString &name, const QList<CanisterData> &canisters)
{
    QList<const CanisterData *> found;
    for (const CanisterData &canister : canisters)
        if (canister.colorantCode == name)
            found.append(&canister);
    for (const CanisterData &canister : canisters)
        if (found.isEmpty() && QString::number(canister.id) == name)
            found.append(&canister);
    if (found.size() == 1)
        return *found.first();
    if (found.isEmpty())
        throw UsageError(QStringLiteral("the machine has no canister %1%2")
                             .arg(excerpt(name), didYouMeanColorant(name, canisters)));
    QStringList numbers;
    for (const CanisterData *canister : qAsConst(found))
        numbers.append(QString::number(canister->id));
    throw UsageError(QStringLiteral("the colorant %1 is in the canisters %2: name one by its number")
                         .arg(excerpt(name), numbers.join(QStringLiteral(", "))));
}

/// The quantities as the command takes them: what is added, or with \a isLevel what is there then.
Formula formulaOfRefills(const QList<Refill> &refills, const QList<CanisterData> &canisters, bool isLevel)
{
    Formula formula;
    formula.setFormulaType(Formula::CanisterIDs);
    formula.setQuantityUnit(Formula::WeightOrVolume);
    for (const Refill &refill : refills) {
        const CanisterData &canister = canisterOf(refill.name, canisters);
        FormulaItem item;
        item.id = QString::number(canister.id);
        const double full = canister.maximumQuantity - (isLevel ? 0 : canister.currentQuantity);
        item.quantity = refill.amount.value_or(full);
        formula.addItem(item);
    }
    return formula;
}

QList<CanisterData> filledOf(const Formula &formula, const QList<CanisterData> &canisters)
{
    QList<CanisterData> filled;
    for (const CanisterData &canister : canisters)
        for (const FormulaItem &item : formula.items())
            if (item.id == QString::number(canister.id)) {
                filled.append(canister);
                break;
            }
    return filled;
}

QList<CanisterData> toldCanisters(const Driver &driver)
{
    return answerTo<GetCanisterListAnswer>(ProtoCommandList::GET_CANISTER_LIST, driver).canisterList();
}

ExitStatus runRefill(const CommandLine &line)
{
    const QList<Refill> refills = refillsOf(line);
    const bool isLevel = line.isSet("level");
    const Driver driver(line);
    const Formula formula = formulaOfRefills(refills, toldCanisters(driver), isLevel);
    SetLevelsCmd command(formula, !isLevel, true);
    requireDone(driver.execute(command));
    const QList<CanisterData> filled = filledOf(formula, toldCanisters(driver));
    if (line.isSet("json")) {
        OrderedJson reply = success();
        reply["canisters"] = canistersJson(filled);
        printJson(reply);
    } else if (!line.isQuiet()) {
        printCanisters(filled);
    }
    return Done;
}

} // namespace

const Subcommand refillSubcommand = {
    "refill",
    "CANISTER=AMOUNT...",
    "tells a driver what was filled into canisters",
    "Tells how much was filled into canisters, each called by its colorant's code or by its number: B=500 "
    "adds\n"
    "500 to what is there, B=full fills the canister up. With --level the amounts are what is there now.\n"
    "Amounts are weight or volume, whichever the machine is calibrated in. Shows the new levels.",
    1,
    -1,
    withDriverOptions({{"level", nullptr, "an amount is the new level, not what was added"},
                       quietOption,
                       {"json", nullptr, "the canisters as one JSON object"}}),
    runRefill,
    SerialDeviceType::Dispenser};

} // namespace quv
