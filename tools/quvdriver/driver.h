// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware.h"

#include "xmlrpccodec.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_machine.h>

#include <memory>
#include <vector>

class ProtoCommand;
class SerialProtoCommand;

namespace quv {

/**
 * Carries out the commands that clients send: EXEC_B, EXEC_NB and EXEC_NC, each with [leading text,] name and arguments,
 * answered by the envelope of XmlRpcAnswer. docs/driver.md tells the return codes and the driver's own error codes.
 *
 * Any number of threads may call it. Requests to one machine are handled one at a time; what needs no machine does not
 * wait for one.
 */
class Driver
{
public:
    Driver();
    ~Driver();
    Driver(const Driver &) = delete;
    Driver &operator=(const Driver &) = delete;

    /// Before the first call. False for a second machine of a kind, which is not added: nobody could address it.
    bool addMachine(std::unique_ptr<FW_Machine> machine, std::unique_ptr<Firmware> firmware);

    /// The envelope; never fails, whatever the parameters are. \throws FaultException -32601 for another method
    XmlRpc::XmlRpcValue call(const MethodCall &call);

private:
    struct Machine;
    struct Request;

    XmlRpc::XmlRpcValue carryOut(ProtoCommandList::CallKind kind, const Request &request);
    XmlRpc::XmlRpcValue askFirmware(SerialProtoCommand &command, const QString &name, Machine &machine);
    Machine *machineFor(const QString &name);

    std::vector<std::unique_ptr<Machine>> m_machines{};
};

} // namespace quv
