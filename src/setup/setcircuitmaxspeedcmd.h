// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

class FW_Dispenser;

/** SET_CIRCUIT_MAX_SPEED: sets how fast a circuit's pump may turn; carried out by the driver. */
class QUVPROTOCOL_EXPORT SetCircuitMaxSpeedCmd
    : public quv::DescribedCommand<SetCircuitMaxSpeedCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetCircuitMaxSpeedCmd() = default;
    /**
     * The circuit's position and the speed (int, turns per minute), then whether the user chose it (bool), which may be left out.
     * Throws DE01015, DE01017 and DE01018 for another type, DE01014 for a position that the dispenser does not have, and DE01016
     * for a speed that no motor may have (FW_DosingMotor::checkMaxSpeed); the base counts two arguments before (DE00312).
     */
    SetCircuitMaxSpeedCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list. Throws DE01019, DE01021, DE01024, DE01020 and DE01023, and the base DE00313. */
    SetCircuitMaxSpeedCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    SetCircuitMaxSpeedCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int positionID() const { return m_positionID; }
    int maxSpeed() const { return m_maxSpeed; }
    bool isUserSpeed() const { return m_userSpeed; }

private:
    int m_positionID = 0;
    int m_maxSpeed = 0;
    bool m_userSpeed = false;
};
