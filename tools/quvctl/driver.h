// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "xmlrpcclient.h"

class ProtoCommand;
class XmlRpcAnswer;

namespace quv {

class CommandLine;

/// The driver that --host, --port and --timeout name.
class Driver
{
public:
    explicit Driver(const CommandLine &line);

    /**
     * Sends \a command, waits for its end, and gives it the answer.
     * \throws FaultException, TransportError, CodecError as XmlRpcClient, and FW_DriverError for an answer of wrong form
     */
    const XmlRpcAnswer &execute(ProtoCommand &command) const;

private:
    XmlRpcClient m_client;
};

} // namespace quv
