// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ending.h"
#include "xmlrpccodec.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace quv {

/// A server that other computers would reach, without a token and without having been told to be open.
class OpenToOthers : public TransportError
{
public:
    using TransportError::TransportError;
};

struct XmlRpcServerOptions
{
    QString host = QStringLiteral("127.0.0.1");
    int port = 0;        ///< 0: any free one
    std::string token{}; ///< that each request must show; empty: none
    bool isOpen = false; ///< to other computers, without a token
    XmlRpcLimits limits{};
    std::chrono::milliseconds requestTimeout{5000}; ///< for a whole request to arrive
    std::chrono::milliseconds answerTimeout{15000}; ///< for its answer to leave
    std::chrono::milliseconds idleTimeout{5000};    ///< longest pause between two requests of a connection
    /// Bytes of requests that come or are being carried out at once; beyond them another large one is refused.
    std::size_t requestBytes = std::size_t(32) * 1024 * 1024;
    std::size_t smallRequest =
        std::size_t(64) * 1024; ///< bytes of a request that is not counted, and always taken
    int connections = 960;      ///< at once; beyond them the one that has rested or sent longest is closed
    int threads = 8;            ///< that read, carry out what is short, and write
    int longCalls = 128;        ///< at once, each on a thread of its own
    /// Whether a call may last. Nothing: none does.
    std::function<bool(const MethodCall &call)> mayLast{};
    /// Answers a call that may last while there are as many as allowed.
    std::function<XmlRpc::XmlRpcValue(const MethodCall &call)> refuseLongCall{};
};

/**
 * Serves XML-RPC by POST on any path. Whatever a client sends, it gets a response, a fault or an HTTP error within the
 * timeouts, and the server goes on: 405 for other methods, 411 without a length, 413 beyond the size limit, 408 for a
 * sender that is too slow, 503 for a large request while too many of them come, 400 with the reason for malformed HTTP; a fault for what is no XML-RPC call, and for whatever
 * the handler throws.
 *
 * No page in a browser can call it: a request with an Origin, or from any site as Sec-Fetch-Site tells, is refused (403),
 * so is any content type but text/xml and application/xml (415) and, on a loopback address, a Host that is neither this
 * computer nor the host of the options (421). A request without the token is refused with 401.
 *
 * A connection that rests, sends, or waits for its answer holds no thread of those that serve all.
 */
class XmlRpcServer
{
public:
    /// Answers a call. Called from several threads at once. A FaultException becomes its fault, any other exception a
    /// fault with the code FaultInternal. Of a call that may last \a gone begins when its client has closed the
    /// connection; that is closed then, and the answer is for nobody.
    using Handler = std::function<XmlRpc::XmlRpcValue(const MethodCall &call, Ending &gone)>;

    /// Gives the document of the reply.
    using DocumentHandler = std::function<QByteArray(const MethodCall &call, Ending &gone)>;

    explicit XmlRpcServer(const Handler &handler, XmlRpcServerOptions options = {});
    explicit XmlRpcServer(DocumentHandler handler, XmlRpcServerOptions options = {});
    ~XmlRpcServer();
    XmlRpcServer(const XmlRpcServer &) = delete;
    XmlRpcServer &operator=(const XmlRpcServer &) = delete;

    /// Binds the port. From here on clients can connect, and are answered when run() runs.
    /// \throws TransportError when the host is unknown or the port is taken
    /// \throws OpenToOthers
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
