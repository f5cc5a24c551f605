// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

class FW_Dispenser;

/** TURNTABLE_MOVE_TO_REFILL: turns a circuit, whose position is the serial address, to where its canister is refilled. */
class QUVPROTOCOL_EXPORT TurntableMoveToRefillCmd
    : public quv::DescribedCommand<TurntableMoveToRefillCmd, SerialProtoCommand>
{
public:
    struct Description;

    // The dispenser may be null; without one that has a turntable nothing can be sent.
    TurntableMoveToRefillCmd() = default;
    TurntableMoveToRefillCmd(int positionID, const FW_Dispenser *dispenser);
    /** One int, the position. Throws DE01914 for another type. */
    TurntableMoveToRefillCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list. Throws DE01915 for another type. */
    TurntableMoveToRefillCmd(QList<QVariant> list, const FW_Dispenser *dispenser);
    TurntableMoveToRefillCmd(bool, const FW_Dispenser *) =
        delete; // would read as a position, as would the next two
    TurntableMoveToRefillCmd(double, const FW_Dispenser *) = delete;
    TurntableMoveToRefillCmd(const char *, const FW_Dispenser *) = delete;

    TurntableMoveToRefillCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Those of the TurntableMoveCmd to the circuit and on by the turntable's refill angle; 0 for an angle that is none. */
    QList<int> serialParameters(int family) const override;
};
