// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpcserver.h"

#include "httpstream_p.h"

#include <xmlrpcpp/XmlRpcException.h>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdint>

#include <fcntl.h>
#include <netinet/tcp.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quv {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t MaxHeaderBytes = 32 * 1024;
constexpr std::size_t MaxPathLength = 1024;
constexpr int MaxRequestsOfConnection = 1000;
constexpr int MaxConnections = 512;
constexpr int Backlog = 128;
constexpr std::chrono::milliseconds Overloaded = 10ms;
constexpr std::chrono::milliseconds Farewell = 2s;

/// A file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int get() const { return m_fd; }

private:
    int m_fd = -1;
};

/// One request of a connection, for the routines that the HTTP library calls in the same thread.
struct Exchange
{
    BoundedSocket &socket;
    bool wasRead = false; ///< whole, so that another request can follow on the connection
};

thread_local Exchange *currentExchange = nullptr;

void refuse(httplib::Response &response, int status, const char *text)
{
    response.status = status;
    response.set_header("Connection", "close");
    response.set_content(std::string(text) + "\n", "text/plain");
}

/// Text of an exception that the handler threw, which may be of any type.
QString currentExceptionText()
{
    try {
        throw;
    } catch (const std::exception &error) {
        return QString::fromUtf8(error.what());
    } catch (const XmlRpc::XmlRpcException &error) { // no std::exception
        return QString::fromStdString(error.getMessage());
    } catch (...) {
        return QStringLiteral("unknown");
    }
}

} // namespace

class XmlRpcServer::Impl : public httplib::Server
{
public:
    Impl(XmlRpcServer::Handler handler, XmlRpcServerOptions options);
    ~Impl() override;

    void bind();
    int boundPort() const { return m_port; }
    void accept();
    void wake() noexcept;

private:
    void closePort();
    bool isStopped() const;
    void pause() const;
    void serve(int connection);
    bool serveRequest(BoundedSocket &socket, bool isLast);
    HandlerResponse checkRequest(const httplib::Request &request, httplib::Response &response) const;
    void checkLength(const httplib::Request &request, httplib::Response &response) const;
    void answer(const httplib::ContentReader &read, httplib::Response &response);
    QByteArray reply(const QByteArray &document);

    XmlRpcServer::Handler m_handler{};
    XmlRpcServerOptions m_options{};
    Descriptor m_wake{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    int m_port = 0;
    std::atomic<int> m_connections{0};
};

XmlRpcServer::Impl::Impl(XmlRpcServer::Handler handler, XmlRpcServerOptions options)
    : m_handler(std::move(handler)),
      m_options(std::move(options))
{
    // The library's own options would let a second server share the port unnoticed.
    set_socket_options([](socket_t socket) {
        const int on = 1;
        ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    });
    // Only told to the client; serve() keeps to it.
    set_keep_alive_timeout(std::chrono::duration_cast<std::chrono::seconds>(m_options.idleTimeout).count());
    set_keep_alive_max_count(MaxRequestsOfConnection);
    set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        return checkRequest(request, response);
    });
    Post(".*", [this](const httplib::Request & /*request*/, httplib::Response &response,
                      const httplib::ContentReader &read) { answer(read, response); });
}

XmlRpcServer::Impl::~Impl()
{
    closePort();
}

void XmlRpcServer::Impl::closePort()
{
    const int socket = svr_sock_.exchange(INVALID_SOCKET);
    if (socket != INVALID_SOCKET)
        ::close(socket);
}

void XmlRpcServer::Impl::bind()
{
    const std::string host = m_options.host.toStdString();
    errno = 0;
    const int port = m_options.port == 0                  ? bind_to_any_port(host)
                     : bind_to_port(host, m_options.port) ? m_options.port
                                                          : -1;
    if (port <= 0 || m_wake.get() < 0) {
        const QString reason = errno == 0 ? QStringLiteral("unknown host") : qt_error_string(errno);
        throw TransportError(
            QStringLiteral("Cannot listen on %1:%2: %3").arg(m_options.host).arg(m_options.port).arg(reason));
    }
    // The library's own backlog of 5 makes bursts of clients wait for seconds.
    ::listen(svr_sock_, Backlog);
    ::fcntl(svr_sock_, F_SETFL, ::fcntl(svr_sock_, F_GETFL) | O_NONBLOCK);
    ::fcntl(svr_sock_, F_SETFD, FD_CLOEXEC);
    m_port = port;
}

void XmlRpcServer::Impl::wake() noexcept
{
    const std::uint64_t one = 1;
    // A full counter cannot be read either way: whoever waits is awake already.
    [[maybe_unused]] const ssize_t written = ::write(m_wake.get(), &one, sizeof one);
}

bool XmlRpcServer::Impl::isStopped() const
{
    pollfd waiting{m_wake.get(), POLLIN, 0};
    return ::poll(&waiting, 1, 0) > 0;
}

void XmlRpcServer::Impl::pause() const
{
    pollfd waiting{m_wake.get(), POLLIN, 0};
    ::poll(&waiting, 1, static_cast<int>(Overloaded.count()));
}

// The library's own loop ends on the first error of accept that it does not know, and cannot be stopped from a signal.
void XmlRpcServer::Impl::accept()
{
    httplib::ThreadPool workers(static_cast<std::size_t>(m_options.workers));
    while (!isStopped()) {
        std::array<pollfd, 2> waiting{pollfd{svr_sock_, POLLIN, 0}, pollfd{m_wake.get(), POLLIN, 0}};
        if (::poll(waiting.data(), waiting.size(), -1) <= 0 || waiting[0].revents == 0)
            continue;
        if (m_connections >= MaxConnections) {
            pause();
            continue;
        }
        const int connection = ::accept4(svr_sock_, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0) {
            ++m_connections;
            workers.enqueue([this, connection] { serve(connection); });
        } else if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM) {
            pause();
        }
    }
    closePort();
    workers.shutdown();
}

/// All requests of a connection. Nothing leaves it, least of all an exception, which would end the program.
void XmlRpcServer::Impl::serve(int connection)
{
    try {
        const Descriptor descriptor(connection);
        const int on = 1;
        ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        BoundedSocket socket(connection, m_options.readTimeout, m_wake.get());
        int requests = 0;
        while (!isStopped() && socket.waitForData(m_options.idleTimeout)) {
            const bool isLast = ++requests == MaxRequestsOfConnection;
            if (!serveRequest(socket, isLast)) {
                socket.finish(Farewell);
                break;
            }
        }
    } catch (...) { // out of memory at worst, and then for this connection alone
    }
    --m_connections;
}

/// Whether another request can follow.
bool XmlRpcServer::Impl::serveRequest(BoundedSocket &socket, bool isLast)
{
    HttpStream stream(socket, m_options.requestTimeout);
    Exchange exchange{socket};
    currentExchange = &exchange;
    socket.allowBytes(MaxHeaderBytes);
    socket.allowUntil(BoundedSocket::Clock::now() + m_options.requestTimeout);
    bool isClosed = false;
    // Chunks have lines of their own, hence twice the size; the document itself is measured as it comes.
    const bool isAnswered =
        process_request(stream, isLast, isClosed, [this, &socket](httplib::Request & /*request*/) {
            socket.allowBytes(2 * static_cast<std::size_t>(m_options.limits.documentSize) + MaxHeaderBytes);
        });
    currentExchange = nullptr;
    return isAnswered && !isClosed && !isLast && exchange.wasRead;
}

/// Refuses by the header alone what would be refused later anyhow, and what the library does not handle well.
httplib::Server::HandlerResponse XmlRpcServer::Impl::checkRequest(const httplib::Request &request,
                                                                  httplib::Response &response) const
{
    if (request.method != "POST") {
        response.set_header("Allow", "POST");
        refuse(response, 405, "Only POST is allowed");
    } else if (request.path.size() > MaxPathLength) {
        refuse(response, 414, "The path is too long");
    } else if (request.has_header("Range")) {
        refuse(response, 400, "Ranges are not supported");
    } else if (request.is_multipart_form_data()) {
        refuse(response, 415, "The content must be XML");
    } else {
        checkLength(request, response);
    }
    return response.status == -1 ? HandlerResponse::Unhandled : HandlerResponse::Handled;
}

void XmlRpcServer::Impl::checkLength(const httplib::Request &request, httplib::Response &response) const
{
    const std::size_t lengths = request.get_header_value_count("Content-Length");
    const std::size_t encodings = request.get_header_value_count("Transfer-Encoding");
    if (lengths + encodings > 1)
        return refuse(response, 400, "The length of the content is told twice");
    if (lengths + encodings == 0)
        return refuse(response, 411, "The length of the content is not told");
    if (encodings == 1) {
        if (request.get_header_value("Transfer-Encoding") != "chunked")
            refuse(response, 501, "The transfer encoding is not supported");
        return;
    }
    const std::string text = request.get_header_value("Content-Length");
    std::uint64_t length = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), length);
    if (result.ec == std::errc::result_out_of_range ||
        length > static_cast<std::uint64_t>(m_options.limits.documentSize))
        return refuse(response, 413, "The content is too large");
    if (result.ec != std::errc() || result.ptr != text.data() + text.size())
        return refuse(response, 400, "The length of the content is no number");
}

void XmlRpcServer::Impl::answer(const httplib::ContentReader &read, httplib::Response &response)
{
    Exchange &exchange = *currentExchange;
    QByteArray document;
    bool isTooLarge = false;
    const bool isWhole = read([&](const char *data, std::size_t size) {
        isTooLarge = size > static_cast<std::size_t>(m_options.limits.documentSize - document.size());
        if (!isTooLarge)
            document.append(data, static_cast<int>(size));
        return !isTooLarge;
    });
    if (isWhole) {
        exchange.wasRead = true;
        response.status = 200;
        response.set_content(reply(document).toStdString(), "text/xml");
        return;
    }
    const auto trouble = exchange.socket.trouble();
    if (isTooLarge || trouble == BoundedSocket::Trouble::TooMuch)
        refuse(response, 413, "The content is too large");
    else if (trouble == BoundedSocket::Trouble::TimedOut)
        refuse(response, 408, "The content came too slowly");
    else if (trouble == BoundedSocket::Trouble::Stopped)
        refuse(response, 503, "The server stops");
    else
        refuse(response, response.status == 415 ? 415 : 400, "The content cannot be read");
}

QByteArray XmlRpcServer::Impl::reply(const QByteArray &document)
{
    try {
        const MethodCall call = parseMethodCall(document, m_options.limits);
        try {
            return writeMethodResponse(m_handler(call));
        } catch (const FaultException &error) {
            return writeFault(error.fault());
        } catch (...) {
            return writeFault(
                {FaultInternal, QStringLiteral("Internal error: %1").arg(currentExceptionText())});
        }
    } catch (const CodecError &error) {
        return writeFault({error.faultCode(), QString::fromUtf8(error.what())});
    }
}

XmlRpcServer::XmlRpcServer(Handler handler, XmlRpcServerOptions options)
    : m_impl(std::make_unique<Impl>(std::move(handler), std::move(options)))
{}

XmlRpcServer::~XmlRpcServer() = default;

void XmlRpcServer::listen()
{
    m_impl->bind();
}

int XmlRpcServer::port() const
{
    return m_impl->boundPort();
}

void XmlRpcServer::run()
{
    m_impl->accept();
}

void XmlRpcServer::stop() noexcept
{
    m_impl->wake();
}

} // namespace quv
