// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulaportions_p.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_utils.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

// The formula by itself: read, checked and written.

namespace {

using XmlRpc::XmlRpcValue;

constexpr int MaxDecimals = 9;
constexpr int PurgeMark = 64;

const bool isRegistered = RegisterTravellingType<Formula>("Formula");

[[noreturn]] void refuse(const char *text)
{
    throw std::invalid_argument(text);
}

/** The members of a formula's struct; null for those that are left out. */
struct Members
{
    const XmlRpcValue *type = nullptr;
    const XmlRpcValue *unit = nullptr;
    const XmlRpcValue *ids = nullptr;
    const XmlRpcValue *quantities = nullptr;
    const XmlRpcValue *queues = nullptr;
    const XmlRpcValue *valves = nullptr;
    const XmlRpcValue *speeds = nullptr;
    const XmlRpcValue *criterion = nullptr;
    const XmlRpcValue *levelsPolicy = nullptr;
    const XmlRpcValue *decimals = nullptr;
};

struct Key
{
    std::string_view name;
    const XmlRpcValue *Members::*member;
};

/** Sorted, as a struct's members are, so that one walk finds all. */
constexpr Key keys[] = {
    {Formula::DECIMALS, &Members::decimals},          {Formula::EXEC_CRITERION, &Members::criterion},
    {Formula::FORMULA_TYPE, &Members::type},          {Formula::IDS, &Members::ids},
    {Formula::LEVELS_POLICY, &Members::levelsPolicy}, {Formula::NOZZLE_VALVES, &Members::valves},
    {Formula::QUANTITIES, &Members::quantities},      {Formula::QUANTITY_UNIT, &Members::unit},
    {Formula::QUEUE_IDS, &Members::queues},           {Formula::SPEEDS, &Members::speeds},
};

constexpr bool isSorted()
{
    for (std::size_t i = 1; i < std::size(keys); ++i) {
        if (keys[i - 1].name >= keys[i].name)
            return false;
    }
    return true;
}
static_assert(isSorted());

Members membersOf(const XmlRpcValue &value)
{
    Members members;
    if (value.getType() != XmlRpcValue::TypeStruct)
        return members;
    auto key = std::begin(keys);
    for (const auto &[name, member] : value) {
        while (key != std::end(keys) && key->name < name)
            ++key;
        if (key != std::end(keys) && key->name == name)
            members.*key->member = &member;
    }
    return members;
}

const XmlRpcValue &requiredArray(const XmlRpcValue *member)
{
    if (!member || member->getType() != XmlRpcValue::TypeArray)
        refuse("an array of the formula is missing");
    return *member;
}

/** An array of \a count elements, or null when it is left out or empty. */
const XmlRpcValue *optionalArray(const XmlRpcValue *member, int count)
{
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

int optionalInt(const XmlRpcValue *member, int otherwise)
{
    return member ? decodedInt(member) : otherwise;
}

QString decodedId(const XmlRpcValue &value)
{
    if (value.getType() == XmlRpcValue::TypeString) {
        const auto &text = static_cast<const std::string &>(value);
        const int number = quv::numberNamed(text);
        return number < 0 ? DecodeXmlRpcText(text) : quv::nameOf(number);
    }
    int number = 0;
    if (!DecodeXmlRpcValue(value, number))
        refuse("an item of the formula has no name");
    return quv::nameOf(number);
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
    constexpr long long max = MaxWholeNumber;
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

} // namespace

bool FormulaItem::operator==(const FormulaItem &other) const
{
    return id == other.id && quantity == other.quantity && queueID == other.queueID &&
           nozzleValveID == other.nozzleValveID && speed == other.speed;
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
        m_items.append(
            {ids.at(i), quantityOf(quantities.at(i)), queueIDs.value(i), nozzleValves.value(i), 0});
}

Formula::Formula(const XmlRpcValue &value)
{
    const Members members = membersOf(value);
    m_type = decodedInt(members.type);
    m_quantityUnit = decodedInt(members.unit);
    m_executionCriterion = optionalInt(members.criterion, m_executionCriterion);
    m_levelsPolicy = optionalInt(members.levelsPolicy, m_levelsPolicy);
    m_decimals = optionalInt(members.decimals, m_decimals);
    checkMembers();
    const XmlRpcValue &ids = requiredArray(members.ids);
    const XmlRpcValue &quantities = requiredArray(members.quantities);
    const int count = ids.size();
    if (quantities.size() != count)
        refuse("the formula has not as many quantities as items");
    const XmlRpcValue *queues = optionalArray(members.queues, count);
    const XmlRpcValue *valves = optionalArray(members.valves, count);
    const XmlRpcValue *speeds = optionalArray(members.speeds, count);
    m_items.resize(count);
    int index = 0;
    for (FormulaItem &item : m_items) {
        item.id = decodedId(ids[index]);
        item.quantity = decodedQuantity(quantities[index]);
        if (queues)
            item.queueID = decodedInt(FindXmlRpcElement(*queues, index));
        if (valves)
            item.nozzleValveID = decodedInt(FindXmlRpcElement(*valves, index));
        if (speeds)
            item.speed = decodedInt(FindXmlRpcElement(*speeds, index));
        ++index;
    }
}

void Formula::addCircuit(const CircuitFormulaItem &item)
{
    const double quantity =
        m_quantityUnit == Steps ? static_cast<double>(item.steps()) : static_cast<double>(item.strokes());
    addItem({quv::nameOf(item.positionId()), quantity, item.queueID(), item.nozzleValveID(), item.speed()});
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
    writeNumbers(SPEEDS, &FormulaItem::speed);
    return value;
}

bool Formula::operator==(const Formula &other) const
{
    return m_type == other.m_type && m_quantityUnit == other.m_quantityUnit &&
           m_executionCriterion == other.m_executionCriterion && m_levelsPolicy == other.m_levelsPolicy &&
           m_decimals == other.m_decimals && m_items == other.m_items;
}
