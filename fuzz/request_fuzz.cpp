// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"
#include "fuzzinput.h"
#include "requests.h"
#include "xmlrpccodec.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <memory>

namespace {

/** A command that was built writes a request that builds it again. */
void checkCommand(const ProtoCommand &command)
{
    bool ok = false;
    const XmlRpc::XmlRpcValue request = command.toXmlRpcValue(QString(), &ok);
    quv::require(ok && request.size() >= 1, "a command of the catalogue has a request");
    const std::unique_ptr<ProtoCommand> copy(command.clone());
    quv::require(copy->parameters() == command.parameters(), "a copy has the parameters of its original");
    command.commandString();
    command.actionString(true);
}

void makeCommand(const XmlRpc::XmlRpcValue &params, const FW_Machine *machine)
{
    QString name;
    if (!DecodeXmlRpcValue(params, 0, name))
        return;
    XmlRpc::XmlRpcValue arguments = quv::argumentsOf(params);
    const std::unique_ptr<ProtoCommand> command(ProtoCommandList::getProtoCommand(name, arguments, machine));
    checkCommand(*command);
    FW_DriverError error;
    if (!command->setAnswer(arguments.size() > 0 ? arguments[0] : XmlRpc::XmlRpcValue(), false, &error))
        quv::require(!error.code().isEmpty() && !error.text().isEmpty(),
                     "a refused answer has its code and its text");
}

} // namespace

/** An XML-RPC call, as the driver receives it, gives a command, or a refusal with its code. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray document(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const FW_Dispenser dispenser;
    try {
        const quv::MethodCall call = quv::parseMethodCall(document);
        makeCommand(call.params, &dispenser);
    } catch (const quv::CodecError &) {
        return 0; // refused before there was a request
    } catch (const FW_Exception &refusal) {
        quv::require(!refusal.code().isEmpty() && !refusal.text().isEmpty(),
                     "a refusal has its code and its text");
    }
    return 0;
}
