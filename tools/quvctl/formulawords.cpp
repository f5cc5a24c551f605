// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulawords.h"

#include "commandline.h"
#include "excerpt.h"
#include "jsonvalue.h"
#include "quantities.h"
#include "suggestions.h"

#include <cmath>

namespace quv {

namespace {

/// A motor turns whole steps, and strokes are whole ones to a machine; what a weight becomes only the driver knows.
double nearestAmount(double quantity, int unit)
{
    const bool isCounted = unit == Formula::Steps || unit == Formula::Strokes;
    return isCounted && quantity > 0 ? nearestCount(quantity) : quantity;
}

struct Choice
{
    const char *word;
    int value;
};

constexpr Choice types[] = {{"colorant", Formula::ColorantCodes},
                            {"position", Formula::CircuitPositions},
                            {"circuit", Formula::CircuitIDs},
                            {"canister", Formula::CanisterIDs}};
constexpr Choice units[] = {
    {"weight", Formula::WeightOrVolume}, {"steps", Formula::Steps}, {"strokes", Formula::Strokes}};

/// The value of the word that \a option has; the first choice when it has none.
template <std::size_t Count>
int chosen(const CommandLine &line, const char *option, const Choice (&choices)[Count])
{
    QStringList words;
    for (const Choice &choice : choices)
        words.append(QLatin1String(choice.word));
    return choices[words.indexOf(line.choice(option, words.first(), words))].value;
}

void setLevelsCheck(Formula &formula, bool check)
{
    const int policy = formula.levelsManagementPolicy();
    formula.setLevelsManagementPolicy(check ? policy | Formula::CheckLevels : policy & ~Formula::CheckLevels);
}

/// A formula may hold more than is read of it. What has nearly the name of a member is misspelt, and would be passed over.
void refuseMisspeltMembers(const nlohmann::json &formula)
{
    static const QStringList members = {
        Formula::FORMULA_TYPE,  Formula::QUANTITY_UNIT, Formula::IDS,    Formula::QUANTITIES,
        Formula::QUEUE_IDS,     Formula::NOZZLE_VALVES, Formula::SPEEDS, Formula::EXEC_CRITERION,
        Formula::LEVELS_POLICY, Formula::DECIMALS};
    for (const auto &[name, value] : formula.items()) {
        const QString member = QString::fromStdString(name);
        const QString meant = members.contains(member) ? QString() : nameMeant(member, members);
        if (!meant.isEmpty())
            throw UsageError(QStringLiteral("the formula has no member \"%1\"; did you mean \"%2\"?")
                                 .arg(excerpt(member), meant));
    }
}

Formula formulaFromJson(const QString &word)
{
    try {
        const nlohmann::json json = parseJson(word.toStdString());
        refuseMisspeltMembers(json);
        Formula formula(toXmlRpcValue(json));
        if (!json.contains(Formula::LEVELS_POLICY))
            setLevelsCheck(formula, true);
        return formula;
    } catch (const JsonError &error) {
        throw UsageError(QStringLiteral("the formula: %1").arg(QString::fromUtf8(error.what())));
    } catch (const std::invalid_argument &error) {
        throw UsageError(QStringLiteral("the formula: %1").arg(QString::fromUtf8(error.what())));
    }
}

FormulaItem itemFromWord(const QString &word, int type)
{
    const int equals = word.lastIndexOf(QLatin1Char('='));
    FormulaItem item;
    item.id = word.left(equals);
    bool isNumber = false;
    item.quantity = word.mid(equals + 1).toDouble(&isNumber);
    if (equals < 1 || !isNumber || !std::isfinite(item.quantity))
        throw UsageError(QStringLiteral("%1 is no ID=QUANTITY, such as B=12.5").arg(excerpt(word)));
    bool isId = type == Formula::ColorantCodes;
    if (!isId)
        item.id.toInt(&isId);
    if (!isId)
        throw UsageError(QStringLiteral("%1: %2 is no whole number").arg(excerpt(word), excerpt(item.id)));
    return item;
}

Formula formulaFromWords(const CommandLine &line)
{
    Formula formula;
    formula.setFormulaType(chosen(line, "by", types));
    formula.setQuantityUnit(chosen(line, "unit", units));
    for (const QString &word : line.words())
        formula.addItem(itemFromWord(word, formula.formulaType()));
    setLevelsCheck(formula, true);
    return formula;
}

} // namespace

Formula formulaOf(const CommandLine &line)
{
    const QString on = QStringLiteral("on");
    const QString check = line.choice("levels-check", on, {on, QStringLiteral("off")});
    const QString word = line.words().first();
    const bool isJson = word.startsWith(QLatin1Char('{'));
    if (isJson && line.words().size() > 1)
        throw UsageError(QStringLiteral("unexpected \"%1\"").arg(excerpt(line.words()[1])));
    if (isJson && (line.isSet("by") || line.isSet("unit")))
        throw UsageError(
            QStringLiteral("a formula as JSON tells its own type and unit, without --by and --unit"));
    Formula formula = isJson ? formulaFromJson(word) : formulaFromWords(line);
    if (line.isSet("levels-check"))
        setLevelsCheck(formula, check == on);
    return formula;
}

QList<FW_DriverError> correctAmounts(Formula &formula)
{
    QList<FW_DriverError> wrong;
    Formula corrected = formula;
    corrected.setItems({});
    const Formula once = addedUp(formula);
    for (FormulaItem item : once.items()) {
        if (item.quantity == 0) {
            wrong.append({QStringLiteral("DE03140"),
                          QStringLiteral("%1: a quantity of 0 cannot be poured").arg(excerpt(item.id))});
            continue;
        }
        if (const double nearest = nearestAmount(item.quantity, formula.quantityUnit());
            !isNear(nearest, item.quantity)) {
            wrong.append({QStringLiteral("DE03141"),
                          QStringLiteral("%1: %2 %3 cannot be poured, the nearest is %4")
                              .arg(excerpt(item.id), quantityInWords(item.quantity),
                                   formula.quantityUnit() == Formula::Steps ? QStringLiteral("steps")
                                                                            : QStringLiteral("strokes"),
                                   quantityInWords(nearest))});
            item.quantity = nearest;
        }
        corrected.addItem(item);
    }
    if (!wrong.isEmpty())
        formula = corrected;
    return wrong;
}

} // namespace quv
