// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** SET_BOARD_POWER: switches the power of a board. The position is the serial address. */
class QUVPROTOCOL_EXPORT SetBoardPowerCmd : public quv::DescribedCommand<SetBoardPowerCmd, SerialProtoCommand>
{
public:
    struct Description;

    SetBoardPowerCmd() = default; ///< no power yet
    // The next two believe what they are given.
    SetBoardPowerCmd(int powerType, int powerAction);
    SetBoardPowerCmd(int position, int powerType, int powerAction);
    /**
     * Power type and power action, or position, power type and power action (ints). Throws DE01316 for another type of argument,
     * DE01317 or DE01318 for a power type or a power action that there is not.
     */
    explicit SetBoardPowerCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01319 for another type of argument, DE01320 for what there is not. */
    explicit SetBoardPowerCmd(QList<QVariant> list);
    explicit SetBoardPowerCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetBoardPowerCmd(int) = delete;
    explicit SetBoardPowerCmd(double) = delete;
    explicit SetBoardPowerCmd(const char *) = delete;

    SetBoardPowerCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< power type, power action
    QString commandString() const override;                 ///< translated

    int powerType() const { return m_powerType; }
    int powerAction() const { return m_powerAction; }

    static bool checkPowerType(int powerType);     ///< 1 to 3
    static bool checkPowerAction(int powerAction); ///< 1 to 3

private:
    int m_powerType = 0;
    int m_powerAction = 0;
};
