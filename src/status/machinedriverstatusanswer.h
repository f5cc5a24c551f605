// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machinestatus.h"
#include "machinestatusanswer.h"

#include <memory>

/**
 * What the driver has under way on a machine, and the last status that the machine's firmware told. Each may be absent, and each
 * is held as a clone.
 */
class QUVPROTOCOL_EXPORT MachineDriverStatusAnswer
{
public:
    // Of the structs of those who derive from it.
    static constexpr char driverStatus_TAG[] = "driver_status";
    static constexpr char dispStatus_TAG[] = "disp_status";
    static constexpr char posAvailable_TAG[] = "pos_available";
    static constexpr char posReady_TAG[] = "pos_ready";

    MachineDriverStatusAnswer(); ///< both are absent
    MachineDriverStatusAnswer(const MachineStatus *status, const MachineStatusAnswer *answer);
    MachineDriverStatusAnswer(const MachineDriverStatusAnswer &other);
    MachineDriverStatusAnswer &operator=(const MachineDriverStatusAnswer &other);

    virtual ~MachineDriverStatusAnswer();

    // Pointers stay owned by the answer.
    const MachineStatus *machineStatus() const { return m_status.get(); }
    void setMachineStatus(const MachineStatus *status);
    bool hasMachineStatus() const { return m_status != nullptr; }
    void setActiveMachine(bool active); ///< of the machine status, if there is one
    const MachineStatusAnswer *machineStatusAnswer() const { return m_answer.get(); }
    void setMachineStatusAnswer(const MachineStatusAnswer *answer);
    bool hasMachineStatusAnswer() const { return m_answer != nullptr; }

    // What a machine is ready for. Only acceptPOScommands does without the firmware's word.
    bool acceptCommands() const;        ///< the machine takes commands
    bool acceptProcessCommands() const; ///< it takes them and is at rest
    bool acceptPOScommands() const;     ///< it is active, and the driver has nothing else under way on it
    bool readyForPOScommands() const;   ///< all of this, in normal mode and not in the boot loader

    /** False for null. Both must be absent on both sides, or the same. */
    bool operator==(const MachineDriverStatusAnswer *other) const;
    bool operator!=(const MachineDriverStatusAnswer *other) const { return !(*this == other); }
    bool mds_equalTo(const MachineDriverStatusAnswer *other) const { return *this == other; }

private:
    std::unique_ptr<MachineStatus> m_status;
    std::unique_ptr<MachineStatusAnswer> m_answer;
};
