// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "xmlrpccodec.h"

#include <chrono>
#include <string>

namespace quv {

struct XmlRpcClientOptions
{
    std::string token{};        ///< that the server wants to be shown; empty: none
    std::string path = "/RPC2"; ///< to which calls are posted
};

/// Calls methods of an XML-RPC server, one connection a call. Several threads may share it.
class XmlRpcClient
{
public:
    /// \a timeout holds for a whole call, the server's own work included.
    XmlRpcClient(const QString &host, int port, std::chrono::milliseconds timeout,
                 XmlRpcClientOptions options = {});

    /// The value that the method \a method gives for \a params (an array, or a single value).
    /// \throws FaultException when the server answers with a fault
    /// \throws TransportError when it cannot be reached, or gives no answer in time or none that can be read
    /// \throws CodecError when \a params cannot be written
    XmlRpc::XmlRpcValue call(const QString &method, const XmlRpc::XmlRpcValue &params) const;

private:
    QByteArray post(const QByteArray &document) const;

    QString m_host{};
    int m_port = 0;
    std::chrono::milliseconds m_timeout{};
    XmlRpcClientOptions m_options{};
};

} // namespace quv
