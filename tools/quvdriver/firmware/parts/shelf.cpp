// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/shelf.h"

#include "firmware/parts/resetting.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

#include <cmath>

namespace quv {
namespace {

constexpr int LowShelf = 0;     // millimetres
constexpr int HighShelf = 1000; // millimetres, as far as the shelf goes
constexpr int UnknownShelf = 245 + 245 * WireBase;

FirmwareReply refusedWithoutShelf()
{
    return refused(Reason::NotAvailable, QStringLiteral("the machine has no shelf"));
}

} // namespace

std::vector<FirmwareCode> Shelf::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("0071"), {}, [this](int, const Numbers &numbers) { return move(numbers); }, true},
        {QStringLiteral("0072"),
         {},
         [this](int, const Numbers &numbers) { return tellHeight(numbers); },
         true},
    };
}

bool Shelf::isThere() const
{
    return m_machine.dispenser().acceptCommands(FW_Device::Shelf);
}

bool Shelf::goesUp() const
{
    return m_to.value_or(LowShelf) > m_from.value_or(LowShelf);
}

void Shelf::tellStatus(StatusWords &status, int /*module*/) const
{
    const bool isMoving = !atWork().isEmpty();
    status.words.set(4, 5, isMoving && goesUp());
    status.words.set(4, 6, isMoving && !goesUp());
}

void Shelf::tellSensors(SensorWords &sensors) const
{
    if (!atWork().isEmpty() || !m_to)
        return;
    sensors.set(2, 2, *m_to > LowShelf);
    sensors.set(2, 3, *m_to <= LowShelf);
}

ProcessSet Shelf::atWork() const
{
    return m_machine.now() < m_end ? ProcessSet{Process::MovingShelf} : ProcessSet();
}

ProcessSet Shelf::excluded() const
{
    return atWork().isEmpty() ? ProcessSet() : ProcessSet::outsideCanisters();
}

void Shelf::reset()
{
    if (isThere())
        begin(LowShelf, m_machine.endOf(ResetDuration));
}

void Shelf::stop()
{
    m_to = heightNow();
    m_end = m_machine.now();
}

void Shelf::begin(double height, qint64 end)
{
    m_from = heightNow();
    m_to = height;
    m_begin = m_machine.now();
    m_end = end;
}

Shelf::Height Shelf::heightNow() const
{
    const qint64 now = m_machine.now();
    if (now >= m_end)
        return m_to;
    if (!m_from || !m_to)
        return std::nullopt;
    return *m_from + (*m_to - *m_from) * double(now - m_begin) / double(m_end - m_begin);
}

FirmwareReply Shelf::move(const QList<int> &parameters)
{
    constexpr int ToCan = 0;
    constexpr int ToLowEnd = 1;
    constexpr double Duration = 5000; // milliseconds
    if (!isThere())
        return refusedWithoutShelf();
    WireReader reader(parameters);
    const int type = reader.next(ToCan, ToLowEnd);
    const int height = reader.nextPair();
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    if (type == ToCan && height > HighShelf)
        return refused(Reason::FieldOutOfRange);
    if (const auto obstacle = m_machine.obstacle(Process::MovingShelf))
        return refused(*obstacle);
    begin(type == ToCan ? height : LowShelf, m_machine.endOf(Duration));
    return begun();
}

FirmwareReply Shelf::tellHeight(const QList<int> &parameters) const
{
    constexpr int OnlyType = 3;
    if (!isThere())
        return refusedWithoutShelf();
    if (parameters != QList<int>{OnlyType})
        return refused(Reason::WrongParameters);
    const Height height = heightNow();
    const int told = height ? static_cast<int>(std::lround(*height)) : UnknownShelf;
    return replied({told % WireBase, told / WireBase});
}

} // namespace quv
