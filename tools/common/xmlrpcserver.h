// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "xmlrpccodec.h"

#include <chrono>
#include <functional>
#include <memory>

namespace quv {

struct XmlRpcServerOptions
{
    QString host = QStringLiteral("127.0.0.1");
    int port = 0; ///< 0: any free one
    XmlRpcLimits limits{};
    std::chrono::milliseconds readTimeout{5000}; ///< longest pause of a sender
    std::chrono::milliseconds requestTimeout{
        15000}; ///< for a whole request to arrive, and for its answer to leave
    std::chrono::milliseconds idleTimeout{5000}; ///< longest pause between two requests of a connection
    /// Connections served at once. A slow sender holds one of them until its time is over.
    int workers = 128;
};

/**
 * Serves XML-RPC by POST on any path. Whatever a client sends, it gets a response, a fault or an HTTP error within the
 * timeouts, and the server goes on: 405 for other methods, 411 without a length, 413 beyond the size limit, 408 for a
 * sender that is too slow; a fault for what is no XML-RPC call, and for whatever the handler throws.
 */
class XmlRpcServer
{
public:
    /// Answers a call. Called from several threads at once. A FaultException becomes its fault, any other exception a
    /// fault with the code FaultInternal.
    using Handler = std::function<XmlRpc::XmlRpcValue(const MethodCall &call)>;

    explicit XmlRpcServer(Handler handler, XmlRpcServerOptions options = {});
    ~XmlRpcServer();
    XmlRpcServer(const XmlRpcServer &) = delete;
    XmlRpcServer &operator=(const XmlRpcServer &) = delete;

    /// Binds the port. From here on clients can connect, and are answered when run() runs.
    /// \throws TransportError when the host is unknown or the port is taken
    void listen();
    /// The port that listen() bound, else 0.
    int port() const;
    /// Serves until stop(); then waits for the calls that are being handled. listen() comes first.
    void run();
    /// Ends run(), for good. From any thread, before or during run(), also from a signal handler.
    void stop() noexcept;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace quv
