// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/workingmode.h"

#include "firmware/processnumbers.h"
#include "firmware/wirereader.h"

namespace quv {
namespace {

constexpr int NormalMode = 1;
constexpr int HoldingMode = 5; // normal, but for the timed processes that are held
constexpr int LastMode = 8;
constexpr int NoMode = 245; // what asks for the mode
constexpr int MaxHoldingTime = 245;
constexpr int UsualHoldingTime = 120;

} // namespace

WorkingMode::WorkingMode(SimulatedMachine &machine)
    : m_machine(machine),
      m_mode(machine.dispenser().initialWorkingMode()),
      m_modeBefore(NormalMode),
      m_enabled(machine.dispenser().timedProcessesStartupMask())
{
    follow(machine.now());
}

std::vector<FirmwareCode> WorkingMode::codes()
{
    return {{QStringLiteral("0020"), QStringLiteral("FR"),
             [this](int, const QList<int> &numbers) { return set(numbers); }, true}};
}

void WorkingMode::tellStatus(StatusWords &status, int /*module*/) const
{
    status.words.set(4, 0, isReserved());
}

/// In a reserved mode somebody works on the machine. What a technician needs goes on.
ProcessSet WorkingMode::excluded() const
{
    return isReserved() ? ProcessSet{Process::Pouring} : ProcessSet();
}

void WorkingMode::goOn()
{
    if (m_mode != HoldingMode || m_machine.now() < m_heldUntil)
        return;
    m_mode = m_modeBefore;
    follow(m_heldUntil);
}

void WorkingMode::stop()
{
    m_machine.timed().beginAnew(m_machine.now());
}

FirmwareReply WorkingMode::set(const QList<int> &parameters)
{
    if (m_machine.dispenser().commandFamily() == FW_Dispenser::CommandFamily2) // there it does this alone
        return parameters.isEmpty() ? hold(0, UsualHoldingTime) : refused(Reason::WrongParameters);
    WireReader reader(parameters);
    const int mode = reader.next(0, NoMode);
    const bool holds = mode == HoldingMode;
    const int mask = reader.next(0, holds ? AllTimedProcesses : 0);
    const int seconds = reader.next(0, holds ? MaxHoldingTime : 0);
    if (!reader.isGood() || !reader.atEnd() || (mode > LastMode && mode != NoMode))
        return refused(Reason::WrongParameters);
    if (holds)
        return hold(mask, seconds);
    if (mode != NoMode) {
        const auto obstacle = m_machine.obstacleByWork({Process::Pouring});
        if (mode != NormalMode && obstacle)
            return refused(*obstacle);
        enter(mode);
    }
    return replied({m_mode});
}

/// Holds the timed processes of the mask, all of them by 0, for so many seconds, by 0 until they are let go.
FirmwareReply WorkingMode::hold(int mask, int seconds)
{
    if (m_mode != HoldingMode)
        m_modeBefore = m_mode;
    m_mode = HoldingMode;
    m_held = mask == 0 ? AllTimedProcesses : mask;
    m_heldUntil = seconds == 0 ? NeverEnds : m_machine.endOf(seconds * MillisecondsOfSecond);
    follow(m_machine.now());
    return replied({m_mode});
}

void WorkingMode::enter(int mode)
{
    m_mode = mode;
    if (mode == NormalMode)
        m_enabled = AllTimedProcesses;
    follow(m_machine.now());
}

/// Lets that go on by itself, from the moment on, which the mode does not hold.
void WorkingMode::follow(qint64 moment)
{
    const int going = isReserved() ? 0 : m_mode == HoldingMode ? m_enabled & ~m_held : m_enabled;
    m_machine.timed().follow(going, moment);
}

bool WorkingMode::isReserved() const
{
    return m_mode != NormalMode && m_mode != HoldingMode;
}

} // namespace quv
