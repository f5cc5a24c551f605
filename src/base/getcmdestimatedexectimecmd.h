// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confprotocommand.h"
#include "describedcommand.h"

#include <memory>

/**
 * GET_CMD_EST_EXEC_TIME: asks how long another command would take. Over XML-RPC its one argument is a struct with the member
 * "command", an array of the other command's name and arguments; in a list the name comes first and then the arguments.
 */
class QUVPROTOCOL_EXPORT GetCmdEstimatedExecTimeCmd
    : public quv::DescribedCommand<GetCmdEstimatedExecTimeCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char COMMAND_AND_PARAMS[] = "command";

    GetCmdEstimatedExecTimeCmd();
    explicit GetCmdEstimatedExecTimeCmd(ProtoCommand *command); ///< keeps a clone
    /** Throws DE01181 to DE01187 or DE01193, or what the other command's constructor throws. */
    GetCmdEstimatedExecTimeCmd(const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** Throws DE01188 or DE01189, or what the other command's constructor throws. */
    GetCmdEstimatedExecTimeCmd(QList<QVariant> list, const FW_Machine *machine);
    GetCmdEstimatedExecTimeCmd(const GetCmdEstimatedExecTimeCmd &other); ///< deep
    ~GetCmdEstimatedExecTimeCmd() override;

    GetCmdEstimatedExecTimeCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const ProtoCommand *commandToEstimate() const { return m_commandToEstimate.get(); }
    void setCommandToEstimate(ProtoCommand *command); ///< keeps a clone; null changes nothing

private:
    std::unique_ptr<ProtoCommand> m_commandToEstimate;
};
