// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "turntablemovement.h"

/** TURNTABLE_MOVE_STEPS: turns the turntable by a number of steps. */
class QUVPROTOCOL_EXPORT TurntableMoveStepsCmd
    : public quv::DescribedCommand<TurntableMoveStepsCmd, SerialProtoCommand>,
      public TurntableMovement
{
public:
    struct Description;

    TurntableMoveStepsCmd() = default;
    TurntableMoveStepsCmd(int direction, int speed, long long steps);
    /** Direction, speed (ints) and steps (whole number). Throws DE01759, DE01760, DE01761 for other types. */
    explicit TurntableMoveStepsCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list, which is not what parameters() gives. Throws DE01762, DE01763, DE01764 likewise. */
    explicit TurntableMoveStepsCmd(QList<QVariant> list);
    explicit TurntableMoveStepsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit TurntableMoveStepsCmd(int) = delete;
    explicit TurntableMoveStepsCmd(double) = delete;
    explicit TurntableMoveStepsCmd(const char *) = delete;

    TurntableMoveStepsCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** The integers that go to the firmware; a list of them does not read back. */
    QList<QVariant> parameters() const override;
    /** Direction, speed, number of digits of the steps, digits; nothing at all for negative steps. */
    QList<int> serialParameters(int family) const override;

    TString actionString(bool detailed) const override;

    long long steps() const { return m_steps; }

private:
    long long m_steps = 0;
};
