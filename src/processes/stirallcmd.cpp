// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stirallcmd.h"

#include "base/describedcommand_p.h"
#include "processes/stiritem_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

constexpr char badItem[] = "StirAllCmd failed: invalid StirItem parameter";
constexpr char noItems[] = "Stirring items: invalid parameter";
constexpr char badType[] = "StirAllCmd failed: invalid stirring type parameter";
constexpr char noFlag[] = "Stirring sequential: expected BOOL parameter";
constexpr char noInterval[] = "Stirring interval: expected INT parameter";

// What readItems refuses, told to those who explain the command.
void tellItems(quv::ArgumentTeller &teller)
{
    teller.refuse("another type", {{"DE01875", noItems}, {"DE01890", badItem}});
    teller.refuse("a bad item", {{"DE01874", badItem}, {"DE01890", badItem}});
}
template <class Archive>
void tellItems(const Archive &)
{}

/** The positions that the dispenser can stir by items of the type; none for a type that there is not. */
std::optional<QList<int>> stirredPositions(const FW_Dispenser &dispenser, int type)
{
    QList<int> positions;
    switch (type) {
    case StirItem::CircuitPosition:
    case StirItem::CircuitID:
        return dispenser.getPositionsIDListOfStirringMotors(true, true);
    case StirItem::CanisterID:
        for (const FW_Canister *canister : dispenser.getEnabledCanisters(true))
            positions += canister->getCircuitPositions(true);
        return positions;
    case StirItem::SystemColorantID:
    case StirItem::ColorantCode:
        for (const FW_Colorant *colorant : dispenser.getRealColorants(true))
            positions += colorant->getPositionsID(dispenser, true);
        return positions;
    default:
        return {};
    }
}

/** A duration beyond an int stays one that there is not. */
QList<int> sameFor(const QList<int> &positions, long long duration)
{
    using Int = std::numeric_limits<int>;
    const auto each = static_cast<int>(std::clamp<long long>(duration, Int::min(), Int::max()));
    QList<int> durations;
    for (int i = 0; i < positions.size(); ++i)
        durations.append(each);
    return durations;
}

} // namespace

// made where its description is
extern template class quv::DescribedCommand<StirringCmd, SerialProtoCommand>;

struct StirAllCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::STIR_ALL;
    static constexpr auto commandText = "Stir all";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Stirring all circuits");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.unread({"items",
                        "structs of item and duration, or one duration for all circuits, in seconds; "
                        "-1 for as long as each circuit is configured to"},
                       self.m_items); // readItems does
        tellItems(archive);
        archive.optional({"items_type", "0 circuit positions, 1 circuits, 2 canisters, 3 system colorants, "
                                        "4 colorant codes"},
                         self.m_itemType, {{"DE01878", noFlag}, {"DE01889", badType}});
        archive.refuseUnless(checkStirringItemType(self.m_itemType), {"DE01921", "DE01885", badType});
        archive.optional({"sequential", "one circuit after the other"}, self.m_sequential,
                         {"DE01878", "DE01886", noFlag});
        archive.optional({"interval", "milliseconds after each run, 0 and above"}, self.m_interval,
                         {"DE01879", "DE01887", noInterval});
    }
};

template class quv::DescribedCommand<StirAllCmd, SerialProtoCommand>;

StirAllCmd::StirAllCmd(qlonglong duration, bool sequential, uint interval, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_sequential(sequential),
      m_interval(interval)
{
    if (duration >= 0)
        m_items = {StirItem(duration)};
    requireItems(dispenser, "DE01920", Q_FUNC_INFO);
}

StirAllCmd::StirAllCmd(const QList<QVariant> &items, int type, qlonglong duration, bool sequential,
                       uint interval, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_itemType(type),
      m_sequential(sequential),
      m_interval(interval)
{
    for (const QVariant &item : items)
        m_items.append(StirItem(item, duration));
    requireItems(dispenser, "DE01918", Q_FUNC_INFO);
}

StirAllCmd::StirAllCmd(const QList<StirItem> &items, int type, bool sequential, uint interval,
                       const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_items(items),
      m_itemType(type),
      m_sequential(sequential),
      m_interval(interval)
{
    requireItems(dispenser, "DE01917", Q_FUNC_INFO);
}

StirAllCmd::StirAllCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    readItems(value, Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
    requireItems(dispenser, "DE01922", Q_FUNC_INFO);
}

StirAllCmd::StirAllCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    readItems(list, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
    requireItems(dispenser, "DE01924", Q_FUNC_INFO);
}

void StirAllCmd::readItems(const XmlRpc::XmlRpcValue &value, const char *function)
{
    const XmlRpc::XmlRpcValue *first = FindXmlRpcElement(value, 0);
    if (!first)
        return;
    int duration = 0;
    if (first->getType() == XmlRpc::XmlRpcValue::TypeArray) {
        try {
            for (int i = 0; i < first->size(); ++i)
                m_items.append(StirItem((*first)[i]));
        } catch (...) {
            throw FW_Exception("DE01874", badItem, function);
        }
    } else if (!DecodeXmlRpcValue(*first, duration)) {
        throw FW_Exception("DE01875", noItems, function);
    } else if (duration >= 0) {
        m_items = {StirItem(duration)};
    }
}

void StirAllCmd::readItems(const QList<QVariant> &list, const char *function)
{
    if (list.isEmpty())
        return;
    int duration = 0;
    if (quv::decodeVariant(list.constFirst(), duration) && duration >= 0) {
        m_items = {StirItem(duration)};
        return;
    }
    bool isRead = false;
    try {
        isRead = quv::readObjectsVariant<StirItem>(list.constFirst(), &m_items);
    } catch (const FW_Exception &) {
        isRead = false; // the item has words of its own for it, the command has others
    }
    if (!isRead)
        throw FW_Exception("DE01890", badItem, function);
}

void StirAllCmd::requireItems(const FW_Dispenser *dispenser, const char *code, const char *function) const
{
    if (dispenser && !checkStirItems(*dispenser))
        throw FW_Exception(code, "Stirring items: invalid parameters", function);
}

StirAllCmd *StirAllCmd::clone() const
{
    return new StirAllCmd(*this);
}

const FW_Dispenser *StirAllCmd::dispenser() const
{
    return dynamic_cast<const FW_Dispenser *>(machine());
}

bool StirAllCmd::setStirringItemType(int type)
{
    const bool isKnown = checkStirringItemType(type);
    if (isKnown)
        m_itemType = type;
    return isKnown;
}

bool StirAllCmd::checkStirringItemType(int type)
{
    return type >= StirItem::CircuitPosition && type <= StirItem::ColorantCode;
}

bool StirAllCmd::buildStirItems(long long duration)
{
    if (!dispenser())
        return false;
    const std::optional<QList<int>> positions = stirredPositions(*dispenser(), m_itemType);
    if (!positions)
        return false;
    return setStirItems(*positions, duration == StirItem::ownActivity
                                        ? dispenser()->getStirringActivitiesForPositions(*positions, true)
                                        : sameFor(*positions, duration));
}

bool StirAllCmd::setStirItems(const QList<int> &positions, const QList<int> &durations)
{
    if (positions.size() != durations.size())
        return false;
    QList<StirItem> items;
    for (int i = 0; i < positions.size(); ++i)
        items.append(StirItem(QVariant(positions.at(i)), durations.at(i)));
    m_items = items;
    return true;
}

long long StirAllCmd::getFirstValidDurationInItems() const
{
    const auto found = std::find_if(m_items.cbegin(), m_items.cend(),
                                    [](const StirItem &item) { return item.duration() >= 0; });
    return found == m_items.cend() ? -1 : found->duration();
}

bool StirAllCmd::hasValidDurationsInItems() const
{
    return getFirstValidDurationInItems() >= 0;
}

bool StirAllCmd::checkStirItems(const FW_Dispenser &dispenser) const
{
    const auto namesCircuits = [&](const StirItem &item) {
        QList<int> positions;
        QList<int> durations;
        return item.convertItemToPositionsID(m_itemType, dispenser, positions, durations) &&
               !positions.isEmpty();
    };
    return isNullItemAlone() || std::all_of(m_items.cbegin(), m_items.cend(), namesCircuits);
}

bool StirAllCmd::collectPositions(const FW_Dispenser &dispenser, QList<int> &positions,
                                  QList<int> &durations) const
{
    if (m_items.isEmpty() || isNullItemAlone()) {
        positions = dispenser.getPositionsIDListOfStirringMotors(true, true);
        durations =
            m_items.isEmpty()
                ? dispenser.getStirringActivitiesForPositions(dispenser.getPositionsIDList(true), true)
                : sameFor(positions, m_items.constFirst().duration());
        return true;
    }
    for (const StirItem &item : m_items) {
        QList<int> itsPositions;
        QList<int> itsDurations;
        if (!item.convertItemToPositionsID(m_itemType, dispenser, itsPositions, itsDurations))
            return false;
        positions += itsPositions;
        durations += itsDurations;
    }
    return true;
}

QList<StirringCmd> StirAllCmd::getSingleStirringCommands() const
{
    const FW_Dispenser *stirred = dispenser();
    if (!stirred)
        return {};
    if (stirred->hasGlobalStirring()) {
        const FW_StirringMotor *motor =
            stirred->areStirringMotorsEnabled() ? stirred->firstStirringMotor() : nullptr;
        const long long activity = motor ? motor->stirringActivity() : StirItem::ownActivity;
        return {
            StirringCmd(0, hasValidDurationsInItems() ? getFirstValidDurationInItems() : activity, false)};
    }
    QList<int> positions;
    QList<int> durations;
    if (!collectPositions(*stirred, positions, durations) || positions.size() != durations.size())
        return {};
    QList<StirringCmd> commands;
    for (int i = 0; i < positions.size(); ++i)
        commands.append(StirringCmd(positions.at(i), durations.at(i), false));
    return commands;
}

long long StirAllCmd::getCmdEstimatedExecutionTime(const FW_Machine *machine) const
{
    constexpr long long second = 1000;
    constexpr long long slowLine = 50000;
    const auto *stirred = dynamic_cast<const FW_Dispenser *>(machine);
    if (!stirred)
        return 0;
    const QList<StirringCmd> commands = getSingleStirringCommands();
    const int atOnce = m_sequential ? 1 : std::max(1, stirred->stirringParallelism());
    long long time = 0;
    for (int first = 0; first < commands.size(); first += atOnce)
        time += StirringCmd::maxDuration(commands.mid(first, atOnce)) * second + m_interval;
    const QString model = stirred->modelName();
    if (FW_Dispenser::isSOLA100dispenser(model) || FW_Dispenser::isLUMINAdispenser(model))
        time += slowLine;
    return time;
}
