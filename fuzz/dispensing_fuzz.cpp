// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"
#include "fuzzinput.h"
#include "machines.h"
#include "requests.h"
#include "xmlrpccodec.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <array>
#include <memory>

namespace {

using Machines = std::array<std::unique_ptr<FW_Machine>, 3>;

const Machines &machines()
{
    static const Machines all = {quv::machineByName(QStringLiteral("dispenser")),
                                 quv::machineByName(QStringLiteral("turntable")),
                                 quv::machineByName(QStringLiteral("dual"))};
    return all;
}

/** What a command writes is what it is made of. */
void checkRoundTrip(const ProtoCommand &command, const FW_Machine *machine)
{
    bool ok = false;
    XmlRpc::XmlRpcValue arguments = command.xmlrpc_parameters(&ok);
    quv::require(ok, "a command that was made can be written");
    const std::unique_ptr<ProtoCommand> again(
        ProtoCommandList::getProtoCommand(command.command(), arguments, machine));
    quv::require(again->parameters() == command.parameters(), "a written command reads back the same");
}

void checkFirmwareSide(const ProtoCommand &command)
{
    const auto *serial = dynamic_cast<const SerialProtoCommand *>(&command);
    if (!serial)
        return;
    const QList<int> parameters = serial->serialParameters(1);
    for (const int parameter : parameters)
        quv::require(parameter >= 0, "no integer to the firmware is negative");
}

void makeCommand(const XmlRpc::XmlRpcValue &params, const FW_Machine *machine)
{
    QString name;
    if (!DecodeXmlRpcValue(params, 0, name))
        return;
    XmlRpc::XmlRpcValue arguments = quv::argumentsOf(params);
    const std::unique_ptr<ProtoCommand> command(ProtoCommandList::getProtoCommand(name, arguments, machine));
    if (!ProtoCommandList::erogationCommand(name))
        return;
    checkRoundTrip(*command, machine);
    checkFirmwareSide(*command);
    quv::require(command->getCmdEstimatedExecutionTime(machine) >= -1, "no time is below \"not known\"");
    command->actionString(true);
}

} // namespace

/** An XML-RPC call that pours gives a command for each kind of machine, or a refusal with its code. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray document(reinterpret_cast<const char *>(data), static_cast<int>(size));
    try {
        const quv::MethodCall call = quv::parseMethodCall(document);
        for (const auto &machine : machines()) {
            try {
                makeCommand(call.params, machine.get());
            } catch (const FW_Exception &refusal) {
                quv::require(!refusal.code().isEmpty() && !refusal.text().isEmpty(),
                             "a refusal has its code and its text");
            }
        }
    } catch (const quv::CodecError &) {
        return 0; // refused before there was a request
    }
    return 0;
}
