// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "fw_command.h"

struct FW_Version;

/** GET_FW_COMMANDS: asks a machine's firmware which commands it has; the answer is a FirmwareCommandsAnswer. */
class QUVPROTOCOL_EXPORT FirmwareCommandsCmd
    : public quv::DescribedCommand<FirmwareCommandsCmd, SerialProtoCommand>
{
public:
    struct Description;

    FirmwareCommandsCmd() = default;
    /** \a execution goes to the firmware as it is. */
    explicit FirmwareCommandsCmd(CmdExecution execution);
    /** The execution (int), which may be left out; any number is taken. Throws DE02596 for another type. */
    explicit FirmwareCommandsCmd(const XmlRpc::XmlRpcValue &value);
    explicit FirmwareCommandsCmd(QList<QVariant> list); ///< the same as a list
    explicit FirmwareCommandsCmd(bool) = delete;        // would be an XML-RPC value, as would the next three
    explicit FirmwareCommandsCmd(int) = delete;
    explicit FirmwareCommandsCmd(double) = delete;
    explicit FirmwareCommandsCmd(const char *) = delete;

    FirmwareCommandsCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< the execution

    CmdExecution execution() const { return static_cast<CmdExecution>(m_execution); }

    /** Whether the firmware reads the execution. */
    static bool isCommandsExecParamSupported(const FW_Version &version);

private:
    int m_execution = static_cast<int>(CmdExecution::No);
};
