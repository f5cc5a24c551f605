// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_turntable.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtCore/QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using XmlRpc::XmlRpcValue;

constexpr int MaxDecimals = 9;
constexpr int PurgeMark = 64;
constexpr double MaxWholeNumber = 9007199254740992.0; // 2^53, up to which a double holds every whole number

const bool isRegistered = RegisterTravellingType<Formula>("Formula");

[[noreturn]] void refuse(const char *text)
{
    throw std::invalid_argument(text);
}

// --- decoding

const XmlRpcValue &requiredArray(const XmlRpcValue &value, const char *key)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, key);
    if (!member || member->getType() != XmlRpcValue::TypeArray)
        refuse("an array of the formula is missing");
    return *member;
}

/** An array of \a count elements, or null when it is left out or empty. */
const XmlRpcValue *optionalArray(const XmlRpcValue &value, const char *key, int count)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, key);
    if (!member)
        return nullptr;
    if (member->getType() != XmlRpcValue::TypeArray || (member->size() != 0 && member->size() != count))
        refuse("an array of the formula does not go with its items");
    return member->size() == 0 ? nullptr : member;
}

int decodedInt(const XmlRpcValue *value)
{
    int number = 0;
    if (!value || !DecodeXmlRpcValue(*value, number))
        refuse("an integer of the formula is missing or of another type");
    return number;
}

int optionalInt(const XmlRpcValue &value, const char *key, int otherwise)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, key);
    return member ? decodedInt(member) : otherwise;
}

QString decodedId(const XmlRpcValue &value)
{
    QString text;
    int number = 0;
    if (DecodeXmlRpcValue(value, text))
        return text;
    if (!DecodeXmlRpcValue(value, number))
        refuse("an item of the formula has no name");
    return QString::number(number);
}

double decodedQuantity(const XmlRpcValue &value)
{
    double quantity = 0;
    if (!DecodeXmlRpcValue(value, quantity) || !std::isfinite(quantity))
        refuse("a quantity of the formula is no number");
    return quantity;
}

/** False for a number that a formula cannot hold to its last digit, and for what is not finite. */
bool isHeld(const QVariant &number)
{
    constexpr auto max = static_cast<long long>(MaxWholeNumber);
    switch (number.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return std::isfinite(number.toDouble());
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return number.toLongLong() >= -max && number.toLongLong() <= max;
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return number.toULongLong() <= static_cast<unsigned long long>(max);
    default:
        refuse("a quantity is no number");
    }
}

double quantityOf(const QVariant &variant)
{
    if (!isHeld(variant))
        refuse("a quantity is beyond the numbers that a formula holds");
    return variant.toDouble();
}

// --- a formula against a machine

/** What an item of a formula comes down to. */
struct Source
{
    const FW_Canister *canister = nullptr;
    const FW_Circuit *circuit = nullptr;
};

const FW_Circuit *firstEnabledCircuit(const FW_Canister &canister)
{
    const auto circuit = std::find_if(canister.circuits().cbegin(), canister.circuits().cend(),
                                      [](const FW_Circuit &candidate) { return candidate.isEnabled(); });
    return circuit == canister.circuits().cend() ? nullptr : &*circuit;
}

bool canPour(const Source &source)
{
    return source.canister->isEnabled() && source.circuit && source.circuit->isEnabled();
}

/** The number that a name is, written as QString::number writes it; -1 for any other name. */
int numberNamed(const QString &name)
{
    constexpr int MaxDigits = 9;
    if (name.isEmpty() || name.size() > MaxDigits || (name.size() > 1 && name.at(0) == QLatin1Char('0')))
        return -1;
    int number = 0;
    for (const QChar character : name) {
        const int digit = character.unicode() - '0';
        if (digit < 0 || digit > 9)
            return -1;
        number = number * 10 + digit;
    }
    return number;
}

/**
 * The machine's circuits by what the items of a formula call them, looked up once for all items: sorted by a number that
 * stands for the name, and in the machine's order where several have the same.
 */
class Sources
{
public:
    struct Entry
    {
        int key = 0;
        Source source;
        double asked = 0; ///< by all items of this name; in the first entry of the name
        int portion = -1; ///< the index of what is taken from it
    };

    Sources(int formulaType, const FW_Dispenser &dispenser);

    /** The first entry of a name; null for a name that the machine does not know. */
    Entry *first(const QString &name);
    /** The next entry of the same name; null for none. */
    Entry *next(Entry *entry);

private:
    int keyOf(const QString &name) const { return m_isByCode ? m_keys.value(name, -1) : numberNamed(name); }

    std::vector<Entry> m_entries;
    bool m_isByCode = false;
    QHash<QString, int> m_keys; ///< of colorants
};

bool isBefore(const Sources::Entry &left, const Sources::Entry &right)
{
    return left.key < right.key;
}

Sources::Sources(int formulaType, const FW_Dispenser &dispenser)
    : m_isByCode(formulaType == Formula::ColorantCodes)
{
    m_entries.reserve(static_cast<std::size_t>(dispenser.canisters().size()));
    for (int i = 0; m_isByCode && i < dispenser.colorants().size(); ++i)
        m_keys.insert(dispenser.colorants().at(i).code(), i);
    for (const FW_Canister &canister : dispenser.canisters()) {
        switch (formulaType) {
        case Formula::CircuitPositions:
            for (const FW_Circuit &circuit : canister.circuits())
                m_entries.push_back({circuit.positionId(), {&canister, &circuit}});
            break;
        case Formula::CircuitIDs:
            for (const FW_Circuit &circuit : canister.circuits())
                m_entries.push_back({circuit.id(), {&canister, &circuit}});
            break;
        case Formula::CanisterIDs:
            m_entries.push_back({canister.id(), {&canister, firstEnabledCircuit(canister)}});
            break;
        case Formula::ColorantCodes: {
            const int key = keyOf(canister.colorantCode());
            if (key < 0)
                break;
            // a disabled one has a canister, but no way out of it
            const bool isEnabled = dispenser.colorants().at(key).isEnabled();
            m_entries.push_back({key, {&canister, isEnabled ? firstEnabledCircuit(canister) : nullptr}});
            break;
        }
        default:
            break;
        }
    }
    if (!std::is_sorted(m_entries.cbegin(), m_entries.cend(), isBefore))
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
}

Sources::Entry *Sources::first(const QString &name)
{
    const int key = keyOf(name);
    const auto entry = std::lower_bound(m_entries.begin(), m_entries.end(), Entry{key, {}}, isBefore);
    return key >= 0 && entry != m_entries.end() && entry->key == key ? &*entry : nullptr;
}

Sources::Entry *Sources::next(Entry *entry)
{
    Entry *following = entry + 1;
    const bool isSame = following != m_entries.data() + m_entries.size() && following->key == entry->key;
    return isSame ? following : nullptr;
}

/** A pour of one circuit, all items that name it added up. */
struct Portion
{
    Source source;
    double quantity = 0;
    int queueID = 0;
    int nozzleValveID = 0;
};

bool fail(FW_DriverError *error, const char *code, const QString &text)
{
    return FW_DriverError::D_E(QLatin1String(code), text, error);
}

/** A whole number of steps or strokes. */
template <class Number>
CircuitFormulaItem::Result<Number> wholeNumber(double value)
{
    const double limit = std::min(double(std::numeric_limits<Number>::max()), MaxWholeNumber);
    if (!(std::abs(value) <= limit))
        return {};
    return {static_cast<Number>(std::llround(value)), true};
}

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
        CircuitFormulaItem::Result<long long> steps;
        steps.value = circuit.calibration().steps(portion.quantity, &steps.ok);
        return steps;
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

bool isByCalibration(int unit)
{
    return unit != Formula::Steps && unit != Formula::Strokes;
}

CircuitFormulaItem::Result<int> speedOf(const Portion &portion, int unit)
{
    const FW_Circuit &circuit = *portion.source.circuit;
    CircuitFormulaItem::Result<int> speed{circuit.maxSpeed(), circuit.maxSpeed() > 0};
    if (isByCalibration(unit))
        speed.value = circuit.calibration().speed(portion.quantity, &speed.ok);
    return speed;
}

CircuitFormulaItem::Result<int> nozzleValveOf(const Portion &portion, int unit)
{
    const FW_Circuit &circuit = *portion.source.circuit;
    CircuitFormulaItem::Result<int> valve{portion.nozzleValveID, true};
    if (valve.value == 0 && isByCalibration(unit))
        valve.value = circuit.calibration().nozzleValveID(portion.quantity, &valve.ok);
    if (valve.value != 0 && !circuit.nozzleValvesID().contains(valve.value))
        valve.ok = false;
    return valve;
}

int contentInSteps(const Source &source)
{
    const long long steps = source.circuit->calibration().steps(source.canister->currentQuantity());
    return static_cast<int>(std::clamp(steps, 0LL, static_cast<long long>(std::numeric_limits<int>::max())));
}

CircuitFormulaItem itemOf(const Portion &portion, int unit)
{
    CircuitFormulaItem item(*portion.source.circuit);
    const auto steps = stepsOf(portion, unit);
    item.setSteps(steps);
    item.setStrokes(strokesOf(portion, unit, steps));
    item.setSpeed(speedOf(portion, unit));
    item.setNozzleValveID(nozzleValveOf(portion, unit));
    item.setQueueID(portion.queueID != 0 ? portion.queueID : portion.source.circuit->queueID());
    item.setCurrentCheckLevelSteps(contentInSteps(portion.source));
    return item;
}

/** The weight or volume of a portion; false when its circuit cannot tell. */
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

bool holds(const Source &source, double quantity, int unit)
{
    double weight = 0;
    return weightOf({source, quantity}, unit, weight) && source.canister->currentQuantity() >= weight;
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

bool portionsOf(const Formula &formula, const FW_Dispenser *dispenser, QVector<Portion> &portions,
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
    portions.reserve(formula.items().size());
    for (int i = 0; i < formula.items().size(); ++i) {
        const FormulaItem &item = formula.items().at(i);
        if (!named[i])
            return fail(error, "DE03021",
                        QStringLiteral("Formula: the dispenser does not have \"%1\"").arg(item.id));
        Sources::Entry *entry = chosen(sources, named[i], formula.quantityUnit());
        if (!entry)
            return fail(error, "DE03022", QStringLiteral("Formula: \"%1\" is disabled").arg(item.id));
        if (entry->portion >= 0) {
            portions[entry->portion].quantity += item.quantity;
            continue;
        }
        entry->portion = portions.size();
        portions.append({entry->source, item.quantity, item.queueID, item.nozzleValveID});
    }
    return true;
}

/** Nearest first, beginning with the circuit nearest to \a position. */
void sortAround(const FW_Turntable &table, int position, CircuitFormulaItemList &items)
{
    for (auto next = items.begin(); next != items.end(); ++next) {
        const auto nearest = std::min_element(
            next, items.end(), [&](const CircuitFormulaItem &left, const CircuitFormulaItem &right) {
                return table.distance(position, left.positionId()) <
                       table.distance(position, right.positionId());
            });
        std::rotate(next, nearest, nearest + 1);
        position = next->positionId();
    }
}

// --- words

QString quantityText(const Formula &formula, double quantity)
{
    return QString::number(quantity, 'f', isByCalibration(formula.quantityUnit()) ? formula.decimals() : 0);
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

bool FormulaItem::operator==(const FormulaItem &other) const
{
    return id == other.id && quantity == other.quantity && queueID == other.queueID &&
           nozzleValveID == other.nozzleValveID;
}

Formula::Formula(QList<QString> &ids, QList<QVariant> &quantities, QList<int> &queueIDs, int formulaType,
                 int quantityUnit, int executionCriterion, int decimals, int levelsPolicy,
                 QList<int> nozzleValves)
    : m_type(formulaType),
      m_quantityUnit(quantityUnit),
      m_executionCriterion(executionCriterion),
      m_levelsPolicy(levelsPolicy),
      m_decimals(decimals)
{
    checkMembers();
    const int count = ids.size();
    const auto fits = [count](int size) { return size == 0 || size == count; };
    if (quantities.size() != count || !fits(queueIDs.size()) || !fits(nozzleValves.size()))
        refuse("the lists of the formula are of different lengths");
    m_items.reserve(count);
    for (int i = 0; i < count; ++i)
        m_items.append({ids.at(i), quantityOf(quantities.at(i)), queueIDs.value(i), nozzleValves.value(i)});
}

Formula::Formula(const XmlRpcValue &value)
    : m_type(decodedInt(FindXmlRpcMember(value, FORMULA_TYPE))),
      m_quantityUnit(decodedInt(FindXmlRpcMember(value, QUANTITY_UNIT))),
      m_executionCriterion(optionalInt(value, EXEC_CRITERION, 0)),
      m_levelsPolicy(optionalInt(value, LEVELS_POLICY, 0)),
      m_decimals(optionalInt(value, DECIMALS, 3))
{
    checkMembers();
    const XmlRpcValue &ids = requiredArray(value, IDS);
    const XmlRpcValue &quantities = requiredArray(value, QUANTITIES);
    const int count = ids.size();
    if (quantities.size() != count)
        refuse("the formula has not as many quantities as items");
    const XmlRpcValue *queues = optionalArray(value, QUEUE_IDS, count);
    const XmlRpcValue *valves = optionalArray(value, NOZZLE_VALVES, count);
    m_items.reserve(count);
    for (int i = 0; i < count; ++i) {
        m_items.append({decodedId(ids[i]), decodedQuantity(quantities[i]),
                        queues ? decodedInt(FindXmlRpcElement(*queues, i)) : 0,
                        valves ? decodedInt(FindXmlRpcElement(*valves, i)) : 0});
    }
}

void Formula::checkMembers() const
{
    if (!checkFormulaType(m_type))
        refuse("there is no such type of formula");
    if (!checkQuantityUnit(m_quantityUnit))
        refuse("there is no such unit of quantities");
    if (!checkExecutionCriterion(m_executionCriterion))
        refuse("there is no such execution criterion");
    if (m_decimals < 0 || m_decimals > MaxDecimals)
        refuse("there cannot be so many decimals");
}

bool Formula::checkFormulaType(int type)
{
    return type >= CircuitPositions && type <= ColorantCodes;
}

bool Formula::checkQuantityUnit(int unit)
{
    return unit >= MachineUnit && unit <= WeightOrVolume;
}

bool Formula::checkExecutionCriterion(int criterion)
{
    return criterion == 0 || criterion == 1 || criterion == 2 || criterion == 8 || criterion == 16;
}

int Formula::convertExecutionCriterionFromFw(int criterion)
{
    return criterion & ~PurgeMark;
}

bool Formula::hasNegativeValues(const FW_Dispenser *) const
{
    return std::any_of(m_items.cbegin(), m_items.cend(),
                       [](const FormulaItem &item) { return item.quantity < 0; });
}

bool Formula::hasNullValues() const
{
    return std::any_of(m_items.cbegin(), m_items.cend(),
                       [](const FormulaItem &item) { return item.quantity == 0; });
}

bool Formula::convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError *error)
{
    CanisterFormulaItemList canisters;
    if (!getCanisterItems(&canisters, dispenser, error))
        return false;
    m_type = CanisterIDs;
    m_quantityUnit = WeightOrVolume;
    m_items.clear();
    m_items.reserve(canisters.size());
    for (const CanisterFormulaItem &canister : canisters)
        m_items.append({QString::number(canister.id()), -canister.quantity()});
    return true;
}

bool Formula::convertToNegativeQuantities(const FW_Dispenser *dispenser, FW_DriverError &error)
{
    return convertToNegativeQuantities(dispenser, &error);
}

bool Formula::checkDispenserLevels(const FW_Dispenser *dispenser, int *result, bool delta) const
{
    CanisterFormulaItemList canisters;
    if (!getCanisterItems(&canisters, dispenser, nullptr))
        return false;
    int worst = LevelsGood;
    for (const CanisterFormulaItem &canister : canisters) {
        const double level = canister.quantity() + (delta ? canister.currentQuantity() : 0);
        worst = std::max(worst, level > canister.maximumQuantity()   ? int(AboveMaximum)
                                : level < 0                          ? int(BelowZero)
                                : level < canister.reserveQuantity() ? int(BelowReserve)
                                : level < canister.warningQuantity() ? int(BelowWarning)
                                                                     : int(LevelsGood));
    }
    if (result)
        *result = worst;
    return true;
}

bool Formula::getCircuitFormulaItems(CircuitFormulaItemList &items, const FW_Dispenser *dispenser,
                                     FW_DriverError *error) const
{
    items.clear();
    QVector<Portion> portions;
    if (!portionsOf(*this, dispenser, portions, error))
        return false;
    items.setParallelism(dispenser->tintingParallelism());
    items.reserve(portions.size());
    for (const Portion &portion : portions)
        items.append(itemOf(portion, m_quantityUnit));
    return true;
}

bool Formula::getCircuitFormulaItems(CircuitFormulaItemList &items, const FW_Dispenser *dispenser,
                                     FW_DriverError &error) const
{
    return getCircuitFormulaItems(items, dispenser, &error);
}

bool Formula::getCircuitFormulaItems(CircuitFormulaItemList &items, int position,
                                     const FW_Dispenser *dispenser, FW_DriverError *error) const
{
    if (!getCircuitFormulaItems(items, dispenser, error))
        return false;
    if (const auto *table = dynamic_cast<const FW_Turntable *>(dispenser->getDevice(FW_Device::Turntable)))
        sortAround(*table, position, items);
    return true;
}

bool Formula::getCanisterItems(CanisterFormulaItemList *items, const FW_Dispenser *dispenser,
                               FW_DriverError *error) const
{
    CanisterFormulaItemList found;
    QVector<Portion> portions;
    if (!portionsOf(*this, dispenser, portions, error))
        return false;
    QHash<int, int> indexes;
    for (const Portion &portion : portions) {
        double weight = 0;
        if (!weightOf(portion, m_quantityUnit, weight))
            return fail(error, "DE03023",
                        QStringLiteral("Formula: the calibration of circuit %1 tells no quantity")
                            .arg(portion.source.circuit->positionId()));
        const FW_Canister &canister = *portion.source.canister;
        const auto known = indexes.constFind(canister.id());
        if (known != indexes.constEnd()) {
            found[*known].setQuantity(found.at(*known).quantity() + weight);
            continue;
        }
        indexes.insert(canister.id(), found.size());
        found.append(CanisterFormulaItem(canister, weight));
    }
    if (items)
        *items = found;
    return true;
}

bool Formula::convertToCircuitPositions(Formula &converted, const FW_Dispenser *dispenser,
                                        FW_DriverError *error) const
{
    QVector<Portion> portions;
    if (!portionsOf(*this, dispenser, portions, error))
        return false;
    Formula formula = *this;
    formula.setFormulaType(CircuitPositions);
    formula.m_items.clear();
    for (const Portion &portion : portions)
        formula.addItem({QString::number(portion.source.circuit->positionId()), portion.quantity,
                         portion.queueID, portion.nozzleValveID});
    converted = formula;
    return true;
}

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

XmlRpcValue Formula::toXmlRpcValue(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue value;
    value[FORMULA_TYPE] = m_type;
    value[QUANTITY_UNIT] = m_quantityUnit;
    value[EXEC_CRITERION] = m_executionCriterion;
    value[LEVELS_POLICY] = m_levelsPolicy;
    value[DECIMALS] = m_decimals;
    XmlRpcValue &ids = value[IDS];
    XmlRpcValue &quantities = value[QUANTITIES];
    ids.setSize(m_items.size());
    quantities.setSize(m_items.size());
    for (int i = 0; i < m_items.size(); ++i) {
        ids[i] = EncodeXmlRpcText(m_items.at(i).id);
        quantities[i] = m_items.at(i).quantity;
    }
    const auto writeNumbers = [&](const char *key, int FormulaItem::*number) {
        const bool isUsed = std::any_of(m_items.cbegin(), m_items.cend(),
                                        [number](const FormulaItem &item) { return item.*number != 0; });
        for (int i = 0; isUsed && i < m_items.size(); ++i)
            value[key][i] = m_items.at(i).*number;
    };
    writeNumbers(QUEUE_IDS, &FormulaItem::queueID);
    writeNumbers(NOZZLE_VALVES, &FormulaItem::nozzleValveID);
    return value;
}

bool Formula::operator==(const Formula &other) const
{
    return m_type == other.m_type && m_quantityUnit == other.m_quantityUnit &&
           m_executionCriterion == other.m_executionCriterion && m_levelsPolicy == other.m_levelsPolicy &&
           m_decimals == other.m_decimals && m_items == other.m_items;
}
