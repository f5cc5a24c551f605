// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/resetting.h"

#include "firmware/wirereply.h"

namespace quv {

std::vector<FirmwareCode> Resetting::codes()
{
    return {{QStringLiteral("0001"), {}, [this](int, const QList<int> &) { return begin(); }}};
}

FirmwareReply Resetting::begin()
{
    constexpr double Duration = 6000; // milliseconds
    // What writes a memory is not cut off, and the search is not begun anew while it goes on.
    if (m_machine.isHeld() ||
        m_machine.isAt({Process::Resetting, Process::Finalising, Process::UpdatingBoards}))
        return refused(Reason::NotAvailable);
    for (const auto &part : m_machine.parts()) {
        part->stop();
        part->reset();
    }
    m_end = m_machine.endOf(Duration);
    return begun();
}

void Resetting::tellStatus(StatusWords &status, int /*module*/) const
{
    // a mixer has no such bit: there it means that the plates are being positioned anew
    if (m_machine.type() == SerialDeviceType::Dispenser)
        status.words.set(1, 6, !atWork().isEmpty());
}

ProcessSet Resetting::atWork() const
{
    return m_machine.now() < m_end ? ProcessSet{Process::Resetting} : ProcessSet();
}

} // namespace quv
