// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"

#include "commandline.h"
#include "hints.h"
#include "httpaccess.h"
#include "operations.h"
#include "replies.h"
#include "terminal.h"
#include "xmlrpcerrors.h"

#include "base/protoanswer.h"
#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_error.h>

#include <algorithm>
#include <cmath>

namespace quv {

namespace {

std::chrono::milliseconds timeoutOf(const CommandLine &line)
{
    return std::chrono::milliseconds(std::llround(line.decimal("timeout", 60, 0.001, 86400) * 1000));
}

/// That of --token-file or QUV_TOKEN_FILE; empty without either. \throws UsageError for a file that holds none
std::string tokenOf(const CommandLine &line)
{
    const QString file = line.value("token-file", qEnvironmentVariable("QUV_TOKEN_FILE"));
    if (file.isEmpty() && !line.isSet("token-file"))
        return {};
    try {
        return readToken(file);
    } catch (const std::runtime_error &error) {
        throw UsageError(QString::fromUtf8(error.what()));
    }
}

XmlRpcClientOptions optionsOf(const DriverAddress &address, const CommandLine &line)
{
    XmlRpcClientOptions options;
    options.token = tokenOf(line);
    if (!address.path.isEmpty())
        options.path = address.path.toStdString();
    return options;
}

qint64 millisecondsSince(std::chrono::steady_clock::time_point begin)
{
    using std::chrono::milliseconds;
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin).count();
}

/// Of a driver that has no such command.
bool isUnknownCommand(const RequestRefused &refusal)
{
    constexpr int invalidForDriver = 1;
    return refusal.json()["envelope"]["ret_code"] == invalidForDriver;
}

/// A request that is refused so has not begun. One that names a session of its own may be refused for that.
bool isOfEndedSession(const XmlRpcAnswer &answer, const ProtoCommand &command)
{
    const QStringList own = {ProtoCommandList::cmdStr(ProtoCommandList::LOGOUT),
                             ProtoCommandList::cmdStr(ProtoCommandList::GET_KEY),
                             ProtoCommandList::cmdStr(ProtoCommandList::CERTIFY_SESSION)};
    return answer.retCode() != 0 && !own.contains(command.command()) &&
           firstError(answer).code() == QLatin1String("DE03400");
}

} // namespace

FW_DriverError firstError(const XmlRpcAnswer &envelope, const QString &what)
{
    const QString before = what.isEmpty() ? what : what + QStringLiteral(": ");
    for (int i = 0; i < envelope.errors().size(); ++i)
        if (const auto *error = dynamic_cast<const FW_DriverError *>(envelope.errors()[i]))
            return {error->code(), before + error->text()};
    return {QString(), before + envelope.toPrintableString().join(QLatin1Char(' '))};
}

OrderedJson outcomeOf(const XmlRpcAnswer &envelope)
{
    return errorLines(envelope).isEmpty() ? success() : failureReply(firstError(envelope));
}

RequestRefused::RequestRefused(const XmlRpcAnswer &envelope, const QString &what)
    : std::runtime_error(envelope.infoMsg().toStdString()),
      m_lines(errorLines(envelope)),
      m_json(failureReply(firstError(envelope, what)))
{
    m_lines.append(ProtoAnswer::getRetCodeMessage(envelope.retCode()));
    m_json["envelope"] = envelopeJson(envelope);
    if (!what.isEmpty())
        m_lines.prepend(what);
}

Driver::Driver(const CommandLine &line, std::optional<SerialDeviceType> kept)
    : m_address(driverAddress(line)),
      m_chosen(chosenMachine(line)),
      m_isVerbose(line.isSet("verbose")),
      m_client(m_address.host, m_address.port, timeoutOf(line), optionsOf(m_address, line))
{
    logIn(line, kept);
    m_sameMachine = sameDriver(line, m_chosen);
}

void Driver::logIn(const CommandLine &line, std::optional<SerialDeviceType> kept)
{
    constexpr std::chrono::milliseconds longestFarewell(2000);
    const XmlRpcClient hasty(m_address.host, m_address.port, std::min(timeoutOf(line), longestFarewell),
                             optionsOf(m_address, line));
    const auto sentBy = [this](const XmlRpcClient &client) {
        return [this, client](ProtoCommand &command, const QString &session) -> const XmlRpcAnswer & {
            return sendBy(client, command, ProtoCommandList::BlockingCall, session);
        };
    };
    std::optional<MachineID> machine;
    if (m_chosen)
        machine = machineOf(*m_chosen, sentBy(m_client));
    else if (kept)
        machine = activeMachine(*kept, sentBy(m_client));
    if (!machine)
        return;
    try {
        m_session = std::make_unique<MachineSession>(*machine, sentBy(m_client), sentBy(hasty));
    } catch (const RequestRefused &refusal) {
        if (m_chosen || !isUnknownCommand(refusal))
            throw;
        return;
    } catch (const FaultException &) {
        if (m_chosen)
            throw;
        return;
    }
    m_chosen = MachineChoice{machine->type, machine->id};
}

const XmlRpcAnswer &Driver::execute(ProtoCommand &command) const
{
    return send(command, ProtoCommandList::BlockingCall);
}

const XmlRpcAnswer &Driver::start(ProtoCommand &command) const
{
    return send(command, ProtoCommandList::NonBlockingCall);
}

const XmlRpcAnswer &Driver::send(ProtoCommand &command, ProtoCommandList::CallKind kind) const
{
    const XmlRpcAnswer &answer = sendBy(m_client, command, kind, m_session ? m_session->id() : QString());
    if (!m_session || !isOfEndedSession(answer, command))
        return answer;
    m_session->renew();
    return sendBy(m_client, command, kind, m_session->id());
}

const XmlRpcAnswer &Driver::sendBy(const XmlRpcClient &client, ProtoCommand &command,
                                   ProtoCommandList::CallKind kind, const QString &session) const
{
    const auto begin = std::chrono::steady_clock::now();
    const QString method = ProtoCommandList::functionCallStr(kind);
    if (m_isVerbose)
        printNote(QStringLiteral("%1 %2 to %3:%4")
                      .arg(method, command.command(), m_address.host)
                      .arg(m_address.port));
    const auto reply = client.call(method, command.toXmlRpcValue(session));
    FW_DriverError error;
    if (!command.setAnswer(reply, kind == ProtoCommandList::NonBlockingCall, &error))
        throw FW_DriverError(error);
    if (m_isVerbose)
        printNote(QStringLiteral("return code %1 after %2 ms")
                      .arg(command.getXmlRpcAnswer()->retCode())
                      .arg(millisecondsSince(begin)));
    return *command.getXmlRpcAnswer();
}

} // namespace quv
