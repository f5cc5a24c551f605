// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_dosingmotor.h>
#include <QuvFramework/fw_machine.h>

class CPT_cdata;
class FW_CalibrationProfiles;

namespace quv {

/**
 * What the dosing motor of a machine becomes: the pump that \a profiles know, else the motor of the data, set up as the data
 * tell. What no row tells it has of \a former, which is null for data that tell all.
 */
FW_DosingMotor appliedMotor(const CPT_cdata &data, const FW_DosingMotor *former, MachineModel model,
                            const FW_CalibrationProfiles *profiles);

} // namespace quv
