// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "turntablemovement.h"

struct FW_Version;

/** TURNTABLE_MOVE: turns the turntable to a circuit, whose position is the serial address, or to its reference position. */
class QUVPROTOCOL_EXPORT TurntableMoveCmd
    : public quv::DescribedCommand<TurntableMoveCmd, SerialProtoCommand>,
      public TurntableMovement
{
public:
    struct Description;

    enum MovementType : int {
        ReferenceSearch = 0,
        CircuitPositioning = 1,
        LockedCircuitPositioning = 2 ///< the rollbar stays locked
    };

    TurntableMoveCmd() = default;
    explicit TurntableMoveCmd(int positionID);                              ///< positions a circuit
    TurntableMoveCmd(int positionID, int refillAngle, int refillDirection); ///< likewise
    /** Only the movement types 1 and 2 take the position. */
    TurntableMoveCmd(int positionID, int movementType, int direction, int refillAngle, int refillDirection,
                     int speed);
    /**
     * Position, movement type, direction, refill angle, refill direction (ints), and optionally the speed (int); none is
     * checked further. Throws DE01659, DE01649 to DE01653 for the first of another type, and DE01652 for four alone.
     */
    explicit TurntableMoveCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01660, DE01654 to DE01658 likewise, DE01657 for four alone. */
    explicit TurntableMoveCmd(QList<QVariant> list);
    explicit TurntableMoveCmd(bool) = delete; // would read as a position, as would the next two
    explicit TurntableMoveCmd(double) = delete;
    explicit TurntableMoveCmd(const char *) = delete;

    TurntableMoveCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Movement type, direction, refill angle and direction; the speed only of other movement types than 1 and 2. */
    QList<int> serialParameters(int family) const override;

    QString commandString() const override;
    TString actionString(bool detailed) const override;

    int movementType() const { return m_movementType; }
    int refillAngle() const { return m_refillAngle; } ///< degrees by which the table turns on
    int refillDirection() const { return m_refillDirection; }

    static bool checkMovementType(int movementType); ///< 0 to 2
    /** Type 2 needs family 69 above revision 1; any other number is supported. */
    static bool isMovementTypeSupported(int movementType, const FW_Version &version);
    /**
     * Turns an angle of the machine's configuration, 0 to 360 degrees, into the shorter rotation to it, 0 to 180 degrees,
     * and its direction, clockwise or counter-clockwise. False, and both stay as they are, for another angle.
     */
    static bool convertFromConfiguration(int angle, int &rotation, int &direction);

private:
    int m_movementType = CircuitPositioning;
    int m_refillAngle = 0;
    int m_refillDirection = 0;
};
