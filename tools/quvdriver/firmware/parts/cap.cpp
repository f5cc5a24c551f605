// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/cap.h"

#include "firmware/parts/resetting.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

namespace quv {

std::vector<FirmwareCode> Cap::codes()
{
    return {{QStringLiteral("0041"),
             {},
             [this](int, const QList<int> &parameters) { return move(parameters); },
             true}};
}

bool Cap::isThere() const
{
    return m_machine.dispenser().acceptCommands(FW_Device::Autocap);
}

/// What pours goes through an open cap, and a closed one rinses; afterwards it is as it was.
Cap::Place Cap::placeNow() const
{
    if (isThere() && m_machine.isAt({Process::Pouring}))
        return Place::Open;
    if (m_machine.isAt({Process::Rinsing}))
        return Place::Closed;
    return atWork().isEmpty() ? m_to : Place::Between;
}

void Cap::tellStatus(StatusWords &status, int /*module*/) const
{
    // While it moves it is told to be as it was: open until it has closed.
    const Place place = atWork().isEmpty() ? placeNow() : m_from;
    status.words.set(2, 1, place != Place::Closed);
}

void Cap::tellSensors(SensorWords &sensors) const
{
    if (!isThere())
        return;
    const Place place = placeNow();
    sensors.set(1, 5, place == Place::Open);
    sensors.set(1, 6, place == Place::Closed);
    sensors.set(4, 4, !atWork().isEmpty());
}

ProcessSet Cap::atWork() const
{
    return m_machine.now() < m_end ? ProcessSet{Process::MovingCap} : ProcessSet();
}

ProcessSet Cap::excluded() const
{
    return atWork().isEmpty() ? ProcessSet() : ProcessSet::outsideCanisters();
}

void Cap::reset()
{
    if (!isThere())
        return;
    m_from = placeNow();
    m_to = Place::Closed;
    m_end = m_machine.endOf(ResetDuration);
}

void Cap::stop()
{
    if (atWork().isEmpty())
        return;
    m_to = Place::Between;
    m_end = m_machine.now();
}

FirmwareReply Cap::move(const QList<int> &parameters)
{
    constexpr int Close = 0;
    constexpr int Open = 1;
    constexpr int LastMovement = 3;
    constexpr int LastMovementOfZandor = 6;
    constexpr double Duration = 1200; // milliseconds
    if (!isThere())
        return refused(Reason::NotAvailable, QStringLiteral("the machine has no automatic cap"));
    const bool isZandor = FW_Dispenser::isZANDORDispenser(m_machine.dispenser().modelName());
    WireReader reader(parameters);
    const int movement = reader.next(Close, isZandor ? LastMovementOfZandor : LastMovement);
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    if (const auto obstacle = m_machine.obstacle(Process::MovingCap))
        return refused(*obstacle);
    m_from = placeNow();
    if (movement == Close)
        m_to = Place::Closed;
    else if (movement == Open)
        m_to = Place::Open;
    else
        m_to = m_from; // there and back
    m_end = m_machine.endOf(Duration);
    return begun();
}

} // namespace quv
