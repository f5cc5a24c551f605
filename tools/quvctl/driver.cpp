// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"

#include "commandline.h"

#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_error.h>

#include <cmath>

namespace quv {

namespace {

std::chrono::milliseconds timeoutOf(const CommandLine &line)
{
    return std::chrono::milliseconds(std::llround(line.decimal("timeout", 60, 0.001, 86400) * 1000));
}

} // namespace

RequestRefused::RequestRefused(const XmlRpcAnswer &envelope, const QString &what)
    : std::runtime_error(envelope.infoMsg().toStdString()),
      m_lines(envelope.toPrintableString())
{
    if (!what.isEmpty())
        m_lines.prepend(what);
}

Driver::Driver(const CommandLine &line)
    : m_client(line.value("host", QStringLiteral("127.0.0.1")), line.number("port", 9333, 1, 65535),
               timeoutOf(line))
{}

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
    const auto reply =
        m_client.call(ProtoCommandList::functionCallStr(kind), command.toXmlRpcValue(QString()));
    FW_DriverError error;
    if (!command.setAnswer(reply, kind == ProtoCommandList::NonBlockingCall, &error))
        throw FW_DriverError(error);
    return *command.getXmlRpcAnswer();
}

} // namespace quv
