// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/turntable.h"

#include "firmware/parts/resetting.h"
#include "firmware/wiredigits.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

namespace quv {
namespace {

constexpr int TableReference = 0; // the type of move that searches the first circuit

int tableSpeed(WireReader &reader)
{
    constexpr int OwnSpeed = 245;
    const int speed = reader.next(1, OwnSpeed);
    return speed == OwnSpeed ? Table::FullSpeed : speed;
}

FirmwareReply refusedWithoutTable()
{
    return refused(Reason::NotAvailable, QStringLiteral("the machine has no turntable"));
}

} // namespace

std::vector<FirmwareCode> Turntable::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("0016"),
         {},
         [this](int module, const Numbers &numbers) { return move(module, numbers); },
         true},
        {QStringLiteral("0018"),
         {},
         [this](int, const Numbers &numbers) { return moveSteps(numbers); },
         true},
        {QStringLiteral("0019"), {}, [this](int, const Numbers &) { return tellPositions(); }},
    };
}

void Turntable::tellStatus(StatusWords &status, int /*module*/) const
{
    const Table *table = m_machine.table();
    if (!table)
        return;
    constexpr int DosingZone = 0;
    constexpr int RefillZone = 1;
    const qint64 now = m_machine.now();
    status.words.set(5, 2, table->isMoving(now));
    const bool isRefilled = m_refill.move == table->moveCount() && m_refill.position != 0;
    const int standing = isRefilled && !table->isMoving(now) ? m_refill.position : table->position(now);
    if (standing != 0) {
        status.position = standing;
        status.zone = isRefilled ? RefillZone : DosingZone;
    }
}

void Turntable::tellSensors(SensorWords &sensors) const
{
    const Table *table = m_machine.table();
    sensors.set(5, 2, m_unlocksRollbar && table && table->isMoving(m_machine.now()));
}

/// Also while it waits for its next move in a pour.
ProcessSet Turntable::atWork() const
{
    const Table *table = m_machine.table();
    return table && table->hasMoves(m_machine.now()) ? ProcessSet{Process::MovingTurntable} : ProcessSet();
}

/// Its first circuit comes to the dosing point in the time that all have.
void Turntable::reset()
{
    Table *table = m_machine.table();
    if (!table)
        return;
    const qint64 now = m_machine.now();
    const double way = table->wayTo(0, Table::Shortest);
    table->moveWithin(double(m_machine.endOf(ResetDuration) - now), way, double(now));
}

void Turntable::goOn()
{
    if (Table *table = m_machine.table())
        table->settle(m_machine.now());
}

void Turntable::stop()
{
    if (atWork().isEmpty())
        return;
    m_machine.table()->stop(m_machine.now());
    m_refill = {};
}

FirmwareReply Turntable::move(int module, const QList<int> &parameters)
{
    constexpr int WithoutRollbar = 2;
    constexpr int HalfTurn = 180; // degrees
    constexpr int FullTurn = 360;
    Table *table = m_machine.table();
    if (!table)
        return refusedWithoutTable();
    WireReader reader(parameters);
    const int type = reader.next(TableReference, WithoutRollbar);
    const auto direction = static_cast<Table::Direction>(reader.next(Table::Clockwise, Table::Shortest));
    const int angle = reader.next(0, HalfTurn);
    const bool isBack = reader.next(0, 1) != 0;
    const int speed = type == TableReference ? tableSpeed(reader) : Table::FullSpeed;
    if (!reader.isGood() || !reader.atEnd() || speed > Table::FullSpeed)
        return refused(Reason::WrongParameters);
    const auto place = type == TableReference ? 0 : table->placeOf(module);
    if (!place)
        return refused(Reason::WrongModule);
    if (const auto obstacle = m_machine.obstacle(Process::MovingTurntable))
        return refused(*obstacle);
    m_unlocksRollbar = type != WithoutRollbar;
    double way = table->wayTo(*place, direction);
    const bool isRefill = angle > 0 && type != TableReference;
    if (isRefill) {
        const double turned = table->round() * angle / FullTurn;
        way += isBack ? -turned : turned;
    }
    table->move(way, double(m_machine.now()), speed);
    if (isRefill)
        m_refill = {module, table->moveCount()};
    return begun();
}

FirmwareReply Turntable::moveSteps(const QList<int> &parameters)
{
    Table *table = m_machine.table();
    if (!table)
        return refusedWithoutTable();
    WireReader reader(parameters);
    const int direction = reader.next(Table::Clockwise, Table::Shortest);
    const int speed = tableSpeed(reader);
    const qint64 steps = reader.nextCounted(1);
    if (!reader.isGood() || !reader.atEnd() || speed > Table::FullSpeed)
        return refused(Reason::WrongParameters);
    const double way = table->placesOf(double(steps));
    if (way > table->round())
        return refused(Reason::FieldOutOfRange);
    if (const auto obstacle = m_machine.obstacle(Process::MovingTurntable))
        return refused(*obstacle);
    m_unlocksRollbar = true;
    table->move(direction == Table::CounterClockwise ? -way : way, double(m_machine.now()), speed);
    return begun();
}

FirmwareReply Turntable::tellPositions() const
{
    const FW_Turntable *table = m_machine.turntable();
    if (!table)
        return refusedWithoutTable();
    QList<int> numbers{table->positions().size()};
    for (const int position : table->positions()) {
        numbers.append(position);
        appendWireNumber(numbers, m_machine.table()->stepsOf(*m_machine.table()->placeOf(position)));
        appendWireNumber(numbers, table->circuitPinSize());
    }
    return replied(numbers);
}

} // namespace quv
