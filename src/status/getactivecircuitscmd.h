// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "circuitprocess.h"

struct FW_Version;

/** GET_ACTIVE_CIRCUITS: asks a dispenser's firmware which circuits are engaged in a process; the answer is a GetActiveCircuitsAnswer. */
class QUVPROTOCOL_EXPORT GetActiveCircuitsCmd
    : public quv::DescribedCommand<GetActiveCircuitsCmd, SerialProtoCommand>
{
public:
    struct Description;

    GetActiveCircuitsCmd() = default; ///< no process yet
    explicit GetActiveCircuitsCmd(CircuitProcess process);
    /** The process (int, 1 to 13). Throws DE02452 for another type or number. */
    explicit GetActiveCircuitsCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02453. */
    explicit GetActiveCircuitsCmd(QList<QVariant> list);

    GetActiveCircuitsCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< the process
    using DescribedCommand::buildProtoAnswer;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
    bool isSupportedCommand(const FW_Version &version) const override; ///< for no process in particular

    CircuitProcess circuitProcess() const { return static_cast<CircuitProcess>(m_circuitProcess); }

    static bool checkCircuitProcess(int process); ///< 1 to 13
    static bool isCommandSupported(const FW_Version &version);
    /** Whether the firmware can tell of this process; false for a number that is none. */
    static bool isCircuitProcessSupported(CircuitProcess process, const FW_Version &version);

private:
    int m_circuitProcess = static_cast<int>(CircuitProcess::None);
};
