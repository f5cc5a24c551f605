// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"

#include "commandline.h"

#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_error.h>

#include <cmath>

namespace quv {

namespace {

std::chrono::milliseconds timeoutOf(const CommandLine &line)
{
    return std::chrono::milliseconds(std::llround(line.decimal("timeout", 60, 0.001, 86400) * 1000));
}

} // namespace

Driver::Driver(const CommandLine &line)
    : m_client(line.value("host", QStringLiteral("127.0.0.1")), line.number("port", 9333, 1, 65535),
               timeoutOf(line))
{}

const XmlRpcAnswer &Driver::execute(ProtoCommand &command) const
{
    const auto reply = m_client.call(ProtoCommandList::functionCallStr(ProtoCommandList::BlockingCall),
                                     command.toXmlRpcValue(QString()));
    FW_DriverError error;
    if (!command.setAnswer(reply, false, &error))
        throw FW_DriverError(error);
    return *command.getXmlRpcAnswer();
}

} // namespace quv
