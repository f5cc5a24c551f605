// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/machineregistry.h"
#include "requests/sessions.h"
#include "requests/statusreplies.h"
#include "requests/tickets.h"

#include "ending.h"
#include "xmlrpccodec.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_errorlist.h>
#include <QuvFramework/fw_machine.h>

#include <functional>
#include <memory>

class SerialProtoCommand;

namespace quv {

struct Request;

/**
 * Carries out the commands that clients send: EXEC_B, EXEC_NB and EXEC_NC, each with [session ID,] name and arguments,
 * answered by the envelope of XmlRpcAnswer. docs/driver.md tells the return codes and the driver's own error codes.
 *
 * Any number of threads may call it. A machine's firmware is asked by one of them at a time, and a machine pours once at a
 * time; what needs no machine does not wait for one, and nobody waits for a pour but who has asked for it.
 */
class Driver
{
public:
    Driver();
    ~Driver(); ///< interrupts what waits
    Driver(const Driver &) = delete;
    Driver &operator=(const Driver &) = delete;

    /// Before the first call. False for a machine with the ID of another of its kind, which is not added: nobody could address it.
    /// \a abilities is what its firmware has told of itself.
    bool addMachine(std::unique_ptr<FW_Machine> machine, std::unique_ptr<Firmware> firmware,
                    Abilities abilities = {});

    /// The envelope; never fails, whatever the parameters are. When \a gone begins, a call that waits for a change ends;
    /// what the machine has begun is seen to its end. \throws FaultException -32601 for another method
    XmlRpc::XmlRpcValue call(const MethodCall &call, Ending &gone);
    /// The same as the document that a client reads. A status that has not changed is not written anew.
    QByteArray reply(const MethodCall &call, Ending &gone);

    /// Whether \a call may wait for a change, or for the end of what a machine does.
    static bool mayLast(const MethodCall &call);
    /// The envelope for such a call while there are too many of them.
    static XmlRpc::XmlRpcValue refuseLongCall(const MethodCall &call);

    /// Ends the calls and tickets that wait, for good.
    void stop() noexcept { m_ending.begin(); }

private:
    struct Task;

    XmlRpc::XmlRpcValue carryOut(ProtoCommandList::CallKind kind, const Request &request, Ending &gone);
    XmlRpc::XmlRpcValue waitForChange(const Request &request, Ending &gone);
    std::shared_ptr<Task> prepare(const Request &request);
    static void engage(Task &task);
    static void checkCarriedOut(const Task &task);
    XmlRpc::XmlRpcValue begin(std::shared_ptr<Task> task);
    XmlRpc::XmlRpcValue perform(Task &task);
    XmlRpc::XmlRpcValue askStatus(const Request &request, StatusSource &source, QByteArray &written);
    static FirmwareReply askFirmware(const SerialProtoCommand &command, const Task &task);
    static void takeAnswer(SerialProtoCommand &command, const FirmwareReply &reply);
    FW_ErrorList runProcedure(Task &task);
    static void finish(const Task &task);
    DrivenMachine *machineFor(const Request &request);
    std::function<bool(const QString &)> sessionTest();

    Ending m_ending{};
    MachineRegistry m_machines{};
    Sessions m_sessions{};
    StatusReplies m_statusReplies{};
    Tickets m_tickets{}; ///< last, so that its threads end before what they use
};

} // namespace quv
