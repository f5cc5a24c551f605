// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/scenario.h"

#include "excerpt.h"
#include "jsonvalue.h"
#include "savedfile.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_members.h>

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace quv {
namespace {

using nlohmann::json;

struct EventKind
{
    const char *name = nullptr;
    FaultKind fault{};
    const char *number =
        nullptr; ///< the member that tells what the fault is about; null for the machine as a whole
    Range range{};
};

constexpr EventKind eventKinds[] = {
    {"emergency", FaultKind::Emergency, nullptr, {}},
    {"offline", FaultKind::Offline, nullptr, {}},
    {"door_open", FaultKind::DoorOpen, nullptr, {}},
    {"can_present", FaultKind::CanPresent, nullptr, {}},
    {"link_lost", FaultKind::LinkLost, nullptr, {}},
    {"circuit_blocked", FaultKind::CircuitBlocked, "circuit", {1, 245}},
    {"sensor_lies", FaultKind::SensorLies, "canister", {1, MaxInt}},
    {"board_refuses", FaultKind::BoardRefuses, "board", {1, 255}},
};

[[noreturn]] void refuseAt(const QString &place, const QString &text)
{
    throw std::runtime_error((place + QStringLiteral(": ") + text).toStdString());
}

/// Reads the members of an event. What nobody has asked for is refused at the end.
class EventReader
{
public:
    EventReader(const json &source, QString place) : m_source(source), m_place(std::move(place))
    {
        if (!m_source.is_object())
            refuseAt(m_place, QStringLiteral("must be an object"));
    }

    QString placeOf(const char *key) const { return memberPath(m_place, QLatin1String(key)); }
    bool has(const char *key) const { return m_source.contains(key); }

    /// In milliseconds, of seconds.
    double time(const char *key, double least)
    {
        constexpr double MostSeconds = 1000000;
        constexpr double MillisecondsOfSecond = 1000;
        const json &value = member(key);
        const double seconds = value.is_number() ? value.get<double>() : -1;
        if (!(seconds >= least && seconds <= MostSeconds))
            refuseAt(placeOf(key), QStringLiteral("must be a number of seconds from %1 to %2")
                                       .arg(least)
                                       .arg(static_cast<int>(MostSeconds)));
        return seconds * MillisecondsOfSecond;
    }

    int integer(const char *key, Range range)
    {
        const json &value = member(key);
        const long long number = value.is_number_integer() ? value.get<long long>() : range.min - 1;
        if (number < range.min || number > range.max)
            refuseAt(placeOf(key), mustBeInteger(range));
        return static_cast<int>(number);
    }

    QString text(const char *key)
    {
        const json &value = member(key);
        if (!value.is_string())
            refuseAt(placeOf(key), QStringLiteral("must be a text"));
        return QString::fromStdString(value.get_ref<const std::string &>());
    }

    void refuseOthers() const
    {
        for (const auto &other : m_source.items()) {
            if (m_taken.count(other.key()) == 0)
                refuseAt(memberPath(m_place, excerpt(QString::fromStdString(other.key()))),
                         QStringLiteral("unknown member"));
        }
    }

private:
    const json &member(const char *key)
    {
        m_taken.insert(key);
        const auto found = m_source.find(key);
        if (found == m_source.end())
            refuseAt(placeOf(key), QStringLiteral("is missing"));
        return *found;
    }

    const json &m_source;
    const QString m_place;
    std::set<std::string> m_taken{};
};

/// What goes wrong; not when.
FaultSpan faultIn(EventReader &reader)
{
    const QString name = reader.text("event");
    QStringList known;
    for (const EventKind &kind : eventKinds) {
        known.append(QLatin1String(kind.name));
        if (name == QLatin1String(kind.name))
            return {kind.fault, kind.number ? reader.integer(kind.number, kind.range) : 0};
    }
    refuseAt(reader.placeOf("event"), QStringLiteral("must be one of ") + known.join(QStringLiteral(", ")));
}

Scenario::Event eventIn(const json &source, const QString &place)
{
    constexpr double Shortest = 0.001; // seconds
    static const QRegularExpression machineName(QStringLiteral("^(dispenser|mixer)(:[0-9]{1,9})?$"));
    EventReader reader(source, place);
    Scenario::Event event{faultIn(reader), place, {}};
    event.span.begin = reader.time("at", 0);
    if (reader.has("for"))
        event.span.end = event.span.begin + reader.time("for", Shortest);
    if (reader.has("machine")) {
        event.machine = reader.text("machine");
        if (!machineName.match(event.machine).hasMatch())
            refuseAt(reader.placeOf("machine"),
                     QStringLiteral("must be \"dispenser\", \"mixer\", or one of them with its ID as "
                                    "\"dispenser:2\""));
    }
    reader.refuseOthers();
    return event;
}

std::vector<Scenario::Event> eventsIn(const json &document)
{
    constexpr char Events[] = "events";
    if (!document.is_object() || document.size() != 1 || !document.contains(Events) ||
        !document[Events].is_array())
        throw std::runtime_error("it must hold an object with the one member \"events\", an array");
    std::vector<Scenario::Event> events;
    for (const json &source : document[Events])
        events.push_back(
            eventIn(source, elementPath(QLatin1String(Events), static_cast<int>(events.size()))));
    return events;
}

void checkFaultFits(const FaultSpan &span, const QString &place, const FW_Machine &machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine);
    if (span.fault == FaultKind::CircuitBlocked &&
        !(dispenser && dispenser->hasCircuitPosition(span.number, false)))
        refuseAt(place + QStringLiteral(".circuit"),
                 QStringLiteral("the machine has no circuit at position %1").arg(span.number));
    if (span.fault != FaultKind::SensorLies)
        return;
    const FW_Canister *canister = dispenser ? dispenser->getCanisterById(span.number) : nullptr;
    if (!canister || !canister->canisterLevelSensor())
        refuseAt(place + QStringLiteral(".canister"),
                 QStringLiteral("the machine has no canister %1 with a level sensor").arg(span.number));
}

} // namespace

Scenario::Scenario(const QString &path) : m_path(path)
{
    try {
        const QByteArray text = loadFile(path, MaxFileSize + 1);
        if (text.size() > MaxFileSize)
            throw std::runtime_error("it is greater than 1 MiB");
        m_events = eventsIn(parseJson({text.constData(), static_cast<std::size_t>(text.size())}));
    } catch (const std::runtime_error &error) {
        refuse(QString::fromUtf8(error.what()));
    }
}

std::vector<FaultSpan> Scenario::faultsOfNext(const FW_Machine &machine)
{
    const bool isFirst = m_names.isEmpty();
    const bool isDispenser = machine.machineType() == SerialDeviceType::Dispenser;
    const QString kind = QLatin1String(isDispenser ? "dispenser" : "mixer");
    QStringList names{QStringLiteral("%1:%2").arg(kind).arg(machine.id())};
    if (!m_names.contains(kind))
        names.append(kind);
    m_names += names;
    std::vector<FaultSpan> faults;
    for (const Event &event : m_events) {
        if (event.machine.isEmpty() ? !isFirst : !names.contains(event.machine))
            continue;
        try {
            checkFaultFits(event.span, event.place, machine);
        } catch (const std::runtime_error &error) {
            refuse(QString::fromUtf8(error.what()));
        }
        faults.push_back(event.span);
    }
    return faults;
}

void Scenario::checkMachines() const
{
    for (const Event &event : m_events) {
        const bool isThere = event.machine.isEmpty() ? !m_names.isEmpty() : m_names.contains(event.machine);
        if (!isThere)
            refuse(event.place + QStringLiteral(".machine: the driver has no such machine"));
    }
}

void Scenario::refuse(const QString &text) const
{
    throw std::runtime_error(QStringLiteral("Scenario \"%1\": %2").arg(excerpt(m_path), text).toStdString());
}

std::vector<FaultSpan> standingFaults(const json &faults, const FW_Machine &machine)
{
    std::vector<FaultSpan> spans;
    for (const json &source : faults) {
        const QString place = elementPath(QStringLiteral("faults"), static_cast<int>(spans.size()));
        EventReader reader(source, place);
        spans.push_back(faultIn(reader));
        reader.refuseOthers();
        checkFaultFits(spans.back(), place, machine);
    }
    return spans;
}

} // namespace quv
