// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware.h"

#include <QuvFramework/fw_machine.h>

#include <functional>
#include <vector>

namespace quv {

/**
 * A machine without hardware. It keeps state: a process that takes time runs on after the command that began it, and is
 * told by the status word until it ends; meanwhile no other process can begin.
 *
 * A dispenser knows its status (code 0006, I3 in command family 2) and the reset (0001, family 1 only). A mixer knows the
 * reset.
 */
class SimulatedFirmware final : public Firmware
{
public:
    /// Milliseconds that never go back, from any origin.
    using Clock = std::function<qint64()>;

    /// The firmware of \a machine. Processes take their usual time divided by \a speed, which is above 0.
    explicit SimulatedFirmware(const FW_Machine &machine, double speed = 1, Clock clock = steadyClock());

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override;

    static Clock steadyClock();

private:
    struct Command;
    using Commands = std::vector<Command>;

    static const Commands &commandsOf(const FW_Machine &machine);
    FirmwareReply status();
    FirmwareReply beginReset();
    bool isResetting() const { return m_clock() < m_resetEnd; }

    const Commands &m_commands;
    int m_heads = 0;
    double m_speed = 1;
    Clock m_clock{};
    qint64 m_resetEnd = 0;
};

} // namespace quv
