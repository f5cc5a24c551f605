// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/safety.h"

#include "firmware/errorcodes.h"

#include <utility>

namespace quv {

void Safety::tellStatus(StatusWords &status, int /*module*/) const
{
    const MachineFaults &faults = std::as_const(m_machine).faults();
    status.words.set(1, 0, faults.offlinePressed);
    status.words.set(3, 4, m_machine.isHeld());
    status.words.set(3, 6, faults.emergencyPressed);
    status.words.set(4, 3, faults.canPresent);
    status.words.set(5, 6, faults.doorOpen);
}

void Safety::tellSensors(SensorWords &sensors) const
{
    const MachineFaults &faults = std::as_const(m_machine).faults();
    sensors.set(1, 0, faults.offlinePressed);
    sensors.set(1, 1, faults.canPresent);
    sensors.set(1, 4, faults.emergencyPressed);
    sensors.set(3, 5);                           // the supply of 48 V
    sensors.set(3, 6, !faults.emergencyPressed); // behind the button, where the motors are
    sensors.set(4, 0);                           // that of 24 V
    if (FW_Dispenser::isZANDORDispenser(m_machine.dispenser().modelName())) {
        sensors.set(9, 4, faults.doorOpen);
        sensors.set(9, 5, !faults.doorOpen);
    }
}

void Safety::goOn()
{
    const MachineFaults &faults = std::as_const(m_machine).faults();
    if (faults.emergencyPressed && !m_known.emergencyPressed)
        m_machine.raise({EmergencyPressedError});
    for (const int board : risingNumbers(faults.refusingBoards)) {
        if (!m_known.refusingBoards.contains(board))
            m_machine.raise({BoardRefusesError, board});
    }
    if (m_machine.isHeld())
        m_machine.stop(ProcessSet::all());
    else if (faults.doorOpen)
        m_machine.stop(SimulatedMachine::processesInReach());
    m_known = faults;
}

} // namespace quv
