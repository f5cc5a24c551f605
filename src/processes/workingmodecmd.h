// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** WORKING_MODE: changes the working mode of the machine; the answer is a WorkingModeAnswer. */
class QUVPROTOCOL_EXPORT WorkingModeCmd : public quv::DescribedCommand<WorkingModeCmd, SerialProtoCommand>
{
public:
    struct Description;

    WorkingModeCmd() = default;
    /** Throws DE01003 for a mode that FW_Dispenser::checkWorkingMode refuses. */
    explicit WorkingModeCmd(int workingMode);
    /** The mode (int), which may be left out. Throws DE00317 for another type, DE01004 for a mode that there is not. */
    explicit WorkingModeCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00318 and DE01005 likewise. */
    explicit WorkingModeCmd(QList<QVariant> list);
    explicit WorkingModeCmd(bool) = delete; // would read as a mode, as would the next two
    explicit WorkingModeCmd(double) = delete;
    explicit WorkingModeCmd(const char *) = delete;

    WorkingModeCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** In family 1 the mode and two numbers; none in family 2, whose code says all. */
    QList<int> serialParameters(int family) const override;

    int workingMode() const { return m_workingMode; }

private:
    static constexpr int unset = 245;

    int m_workingMode = unset;
};
