// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

namespace quv {

/// The mode in which a dispenser works, and what it does by itself in it (0020, in family 2 FR).
class WorkingMode final : public FirmwarePart
{
public:
    explicit WorkingMode(SimulatedMachine &machine);

    std::vector<FirmwareCode> codes() override;
    void tellStatus(StatusWords &status, int module) const override;
    ProcessSet excluded() const override;
    Reason obstacle() const override { return Reason::WrongWorkingMode; }
    void goOn() override;
    void stop() override;

private:
    FirmwareReply set(const QList<int> &parameters);
    FirmwareReply hold(int mask, int seconds);
    void enter(int mode);
    void follow(qint64 moment);
    bool isReserved() const;

    SimulatedMachine &m_machine;
    int m_mode = 0;
    int m_modeBefore = 0; ///< to which it goes back when nothing is held any more
    int m_enabled = 0;    ///< timed processes that go on when none is held
    int m_held = 0;
    qint64 m_heldUntil = 0;
};

} // namespace quv
