// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"

#include "base/nccommand.h"
#include "base/protoanswer.h"
#include "base/serialprotocommand.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <xmlrpcpp/XmlRpcException.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QLocale>

#include <algorithm>
#include <mutex>
#include <optional>
#include <stdexcept>

namespace quv {
namespace {

using XmlRpc::XmlRpcValue;

constexpr int UnknownMethod = -32601;

/// The return codes of the envelope that this driver gives.
enum RetCode {
    InvalidRequest = 1,
    InvalidSerialAnswer = 2,
    UnknownToFirmware = 3,
    RefusedByFirmware = 4,
    NotConfigured = 5,
    NotOffered = 6,
    OtherFailure = 8
};

/// A request that the driver itself refuses. Caught where the envelope is made.
struct Refusal
{
    RetCode retCode = OtherFailure;
    FW_DriverError error{};
};

[[noreturn]] void refuse(RetCode retCode, const char *code, const QString &text)
{
    throw Refusal{retCode, FW_DriverError(QLatin1String(code), text)};
}

/// A value in words, for a text that refuses it; numbers to the last digit.
QString described(const XmlRpcValue &value)
{
    switch (value.getType()) {
    case XmlRpcValue::TypeBoolean:
        return QStringLiteral("a boolean");
    case XmlRpcValue::TypeInt:
        return QStringLiteral("the integer %1").arg(static_cast<const int &>(value));
    case XmlRpcValue::TypeDouble:
        return QStringLiteral("the double %1")
            .arg(QString::number(static_cast<const double &>(value), 'g', QLocale::FloatingPointShortest));
    case XmlRpcValue::TypeString:
        return QStringLiteral("a text");
    case XmlRpcValue::TypeDateTime:
        return QStringLiteral("a time");
    case XmlRpcValue::TypeBase64:
        return QStringLiteral("binary data");
    case XmlRpcValue::TypeArray:
        return QStringLiteral("an array");
    case XmlRpcValue::TypeStruct:
        return QStringLiteral("a struct");
    default:
        return QStringLiteral("nothing");
    }
}

std::optional<QString> commandName(const XmlRpcValue *value)
{
    QString name;
    if (value && DecodeXmlRpcValue(*value, name) && ProtoCommandList::existsCommand(name))
        return name;
    return std::nullopt;
}

/// Whether the arguments are those of a request that waits for a change of the answer: at most two structs, the command's
/// own arguments and the last answer, then interval and timeout.
bool isWaitRequest(const XmlRpcValue &arguments)
{
    const int structs = arguments.size() - 2;
    if (structs < 0 || structs > 2)
        return false;
    for (int i = 0; i < arguments.size(); ++i) {
        const XmlRpcValue &argument = *FindXmlRpcElement(arguments, i);
        const bool fits = i < structs ? FindXmlRpcMember(argument, NCCommand::CMD_PARAMETERS) ||
                                            FindXmlRpcMember(argument, NCCommand::LAST_ANSWER)
                                      : argument.getType() == XmlRpcValue::TypeInt;
        if (!fits)
            return false;
    }
    return true;
}

/// Bit 3 of a refusal's first mask: the firmware does not know the code.
bool isUnknownCode(const FirmwareReply &reply)
{
    constexpr int Bit = 3;
    return ((reply.tokens.value(1).toUInt(nullptr, 16) >> Bit) & 1U) != 0;
}

} // namespace

struct Driver::Machine
{
    std::unique_ptr<FW_Machine> machine{};
    std::unique_ptr<Firmware> firmware{};
    std::mutex mutex{};

    /// Mixers speak the codes of family 1.
    int family() const
    {
        const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
        return dispenser ? dispenser->commandFamily() : FW_Dispenser::CommandFamily1;
    }
};

/// What a call asks for.
struct Driver::Request
{
    explicit Request(const XmlRpcValue &params);

    QString name{};
    XmlRpcValue arguments{}; ///< an array
};

// The leading text may be anything, so it is one only when a command's name follows and it is none itself.
Driver::Request::Request(const XmlRpcValue &params)
{
    const XmlRpcValue *first = FindXmlRpcElement(params, 0);
    if (!first)
        refuse(InvalidRequest, "DE03101", QStringLiteral("The request holds no command name"));
    if (!DecodeXmlRpcValue(*first, name))
        refuse(InvalidRequest, "DE03102",
               QStringLiteral("The command name must be a text, not %1").arg(described(*first)));
    int begin = 1;
    if (!ProtoCommandList::existsCommand(name)) {
        if (const auto second = commandName(FindXmlRpcElement(params, 1))) {
            name = *second;
            begin = 2;
        }
    }
    arguments.setSize(0);
    for (int i = begin; i < params.size(); ++i)
        arguments[i - begin] = *FindXmlRpcElement(params, i);
}

Driver::Driver() = default;
Driver::~Driver() = default;

bool Driver::addMachine(std::unique_ptr<FW_Machine> machine, std::unique_ptr<Firmware> firmware)
{
    const bool isSecond = std::any_of(m_machines.begin(), m_machines.end(), [&](const auto &other) {
        return other->machine->machineType() == machine->machineType();
    });
    if (isSecond)
        return false;
    auto added = std::make_unique<Machine>();
    added->machine = std::move(machine);
    added->firmware = std::move(firmware);
    m_machines.push_back(std::move(added));
    return true;
}

XmlRpcValue Driver::call(const MethodCall &call)
{
    const auto kinds = {ProtoCommandList::BlockingCall, ProtoCommandList::NonBlockingCall,
                        ProtoCommandList::ChangeCall};
    const auto kind = std::find_if(kinds.begin(), kinds.end(), [&](int candidate) {
        return call.method == ProtoCommandList::functionCallStr(candidate);
    });
    if (kind == kinds.end())
        throw FaultException({UnknownMethod, QStringLiteral("Unknown method \"%1\"").arg(call.method)});

    QString name;
    const auto failure = [&name](RetCode retCode, const FW_DriverError &error) {
        return ErrorAnswer::getDriverErrorReturn(retCode, error, name);
    };
    const auto unexpected = [&failure](const QString &text) {
        return failure(OtherFailure, FW_DriverError(QStringLiteral("DE03110"), text));
    };
    try {
        const Request request(call.params);
        name = request.name;
        return carryOut(*kind, request);
    } catch (const Refusal &refusal) {
        return failure(refusal.retCode, refusal.error);
    } catch (const std::exception &error) {
        return unexpected(QString::fromUtf8(error.what()));
    } catch (const XmlRpc::XmlRpcException &error) { // no std::exception
        return unexpected(QString::fromStdString(error.getMessage()));
    }
}

XmlRpcValue Driver::carryOut(ProtoCommandList::CallKind kind, const Request &request)
{
    const QString &name = request.name;
    Machine *machine = machineFor(name);
    XmlRpcValue arguments = request.arguments;
    // Its arguments are no plain ones, and must not be taken for them.
    if (kind == ProtoCommandList::ChangeCall && ProtoCommandList::existsCommand(name) &&
        isWaitRequest(arguments))
        refuse(NotOffered, "DE03109",
               QStringLiteral("This driver does not yet wait for a change of the answer"));

    std::unique_ptr<ProtoCommand> command;
    try {
        command.reset(
            ProtoCommandList::getProtoCommand(name, arguments, machine ? machine->machine.get() : nullptr));
    } catch (const FW_Exception &error) {
        FW_ErrorList errors;
        errors.append(error);
        // The message of the envelope is Latin-1, so a name of any other script is told here.
        if (!ProtoCommandList::existsCommand(name))
            errors.append(FW_DriverError(QStringLiteral("DE03103"),
                                         QStringLiteral("The catalogue has no command \"%1\"").arg(name)));
        return ErrorAnswer::getErrorReturn(InvalidRequest, errors, name);
    }

    auto *serial = dynamic_cast<SerialProtoCommand *>(command.get());
    if (!serial)
        refuse(NotOffered, "DE03107",
               QStringLiteral("This driver does not yet carry out this command, which needs no firmware"));
    if (kind == ProtoCommandList::NonBlockingCall)
        refuse(NotOffered, "DE03108",
               QStringLiteral(
                   "This driver does not yet offer tickets; call EXEC_B, which waits for the answer"));
    if (!machine)
        refuse(NotConfigured, "DE03104",
               QStringLiteral("This driver has no machine that carries out this command"));
    return askFirmware(*serial, name, *machine);
}

XmlRpcValue Driver::askFirmware(SerialProtoCommand &command, const QString &name, Machine &machine)
{
    const QString code = ProtoCommandList::cmdCode(name, machine.family());
    if (code.isEmpty())
        refuse(UnknownToFirmware, "DE03105",
               QStringLiteral("The machine's firmware has no code for this command"));

    QElapsedTimer timer;
    timer.start();
    FirmwareReply reply;
    {
        const std::lock_guard<std::mutex> lock(machine.mutex);
        reply =
            machine.firmware->execute(code, command.moduleID(), command.serialParameters(machine.family()));
    }
    if (reply.refused)
        refuse(isUnknownCode(reply) ? UnknownToFirmware : RefusedByFirmware, "DE03106",
               QStringLiteral("The firmware refused the code %1; masks of the reasons: 0x%2 and 0x%3")
                   .arg(code, reply.tokens.value(1), reply.tokens.value(2)));

    FW_DriverError error;
    if (!command.setSerialAnswer(reply.tokens, &error))
        return ErrorAnswer::getDriverErrorReturn(InvalidSerialAnswer, error, name);
    return SuccessAnswer::getSuccessAnswer(command.getProtoAnswer(nullptr)->toXmlRpcValue(), name,
                                           timer.elapsed());
}

/// A command that both kinds of machines know goes to the dispenser, when there is one.
Driver::Machine *Driver::machineFor(const QString &name)
{
    for (const SerialDeviceType type : {SerialDeviceType::Dispenser, SerialDeviceType::Mixer}) {
        const bool isTarget = type == SerialDeviceType::Dispenser ? ProtoCommandList::targetIsDispenser(name)
                                                                  : ProtoCommandList::targetIsMixer(name);
        for (const auto &machine : m_machines) {
            if (isTarget && machine->machine->machineType() == type)
                return machine.get();
        }
    }
    return nullptr;
}

} // namespace quv
