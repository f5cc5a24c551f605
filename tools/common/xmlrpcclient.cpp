// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpcclient.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http.hpp>

#include <utility>

namespace quv {
namespace {

namespace beast = boost::beast;
namespace http = beast::http;
namespace net = boost::asio;
using boost::system::error_code;
using net::ip::tcp;

constexpr std::size_t MaxHeaderBytes = 32 * 1024;

/// One call over one connection, all of it before one deadline. Each step gives its error.
class Exchange
{
public:
    explicit Exchange(std::chrono::milliseconds timeout) : m_deadline(Clock::now() + timeout)
    {
        m_parser.header_limit(MaxHeaderBytes);
        m_parser.body_limit(static_cast<std::uint64_t>(ReplyLimits.documentSize));
    }

    error_code connect(const std::string &host, int port)
    {
        error_code error;
        const auto found = tcp::resolver(m_io).resolve(host, std::to_string(port), error);
        if (error)
            return error;
        error = inTime([&](auto done) {
            m_stream.async_connect(
                found, [done](const error_code &failure, const tcp::endpoint &) { done(failure); });
        });
        if (!error)
            m_stream.socket().set_option(tcp::no_delay(true), error);
        return error;
    }
    error_code write(const http::request<http::string_body> &request)
    {
        return inTime([&](auto done) {
            http::async_write(m_stream, request,
                              [done](const error_code &failure, std::size_t) { done(failure); });
        });
    }
    error_code readHeader()
    {
        return inTime([&](auto done) {
            http::async_read_header(m_stream, m_buffer, m_parser,
                                    [done](const error_code &failure, std::size_t) { done(failure); });
        });
    }
    error_code readContent()
    {
        return inTime([&](auto done) {
            http::async_read(m_stream, m_buffer, m_parser,
                             [done](const error_code &failure, std::size_t) { done(failure); });
        });
    }

    unsigned status() const { return m_parser.get().result_int(); }
    const std::string &content() const { return m_parser.get().body(); }
    /// What a program says to people, not a page that it shows them.
    bool isPlainText() const { return m_parser.get()[http::field::content_type].starts_with("text/plain"); }

private:
    using Clock = std::chrono::steady_clock;

    template <class Begin>
    error_code inTime(Begin begin)
    {
        error_code error;
        m_stream.expires_at(m_deadline);
        begin([&error](const error_code &failure) { error = failure; });
        m_io.restart();
        m_io.run();
        return error;
    }

    const Clock::time_point m_deadline;
    net::io_context m_io{};
    beast::tcp_stream m_stream{m_io};
    beast::flat_buffer m_buffer{};
    http::response_parser<http::string_body> m_parser{};
};

/// Why the server refuses, when it says so in a line; empty otherwise.
QString reasonIn(Exchange &exchange)
{
    if (!exchange.isPlainText() || exchange.readContent())
        return {};
    const QString content = QString::fromStdString(exchange.content()).trimmed();
    constexpr int Longest = 200;
    return content.size() <= Longest && !content.contains(QLatin1Char('\n')) ? content : QString();
}

} // namespace

XmlRpcClient::XmlRpcClient(const QString &host, int port, std::chrono::milliseconds timeout,
                           XmlRpcClientOptions options)
    : m_host(host),
      m_port(port),
      m_timeout(timeout),
      m_options(std::move(options))
{}

QByteArray XmlRpcClient::post(const QByteArray &document) const
{
    const QString server = QStringLiteral("%1:%2").arg(m_host).arg(m_port);
    const std::string host = m_host.toStdString();
    const auto check = [&](const error_code &error, const QString &otherwise) {
        if (error == beast::error::timeout)
            throw TransportError(QStringLiteral("No answer from %1 within %2 s")
                                     .arg(server)
                                     .arg(std::chrono::duration<double>(m_timeout).count()));
        if (error == http::error::body_limit || error == http::error::header_limit ||
            error == http::error::buffer_overflow)
            throw TransportError(QStringLiteral("The answer of %1 is too large").arg(server));
        if (error)
            throw TransportError(otherwise.arg(server));
    };

    http::request<http::string_body> request(http::verb::post, m_options.path, 11);
    request.set(http::field::host, (host.find(':') == std::string::npos ? host : "[" + host + "]") + ":" +
                                       std::to_string(m_port));
    request.set(http::field::content_type, "text/xml");
    request.set(http::field::connection, "close");
    if (!m_options.token.empty())
        request.set(http::field::authorization, "Bearer " + m_options.token);
    request.body() = document.toStdString();
    request.prepare_payload();

    Exchange exchange(m_timeout);
    check(exchange.connect(host, m_port), QStringLiteral("Cannot connect to %1"));
    const error_code unsent = exchange.write(request);
    if (unsent == beast::error::timeout)
        check(unsent, {});
    // Whoever refuses a request may answer, and close, before it has arrived in full.
    const QString closed = QStringLiteral("%1 closed the connection without an answer");
    check(exchange.readHeader(), closed);
    if (exchange.status() != static_cast<unsigned>(http::status::ok)) {
        const QString reason = reasonIn(exchange);
        throw HttpRefusal(exchange.status(),
                          QStringLiteral("%1 answered with the HTTP status %2%3")
                              .arg(server)
                              .arg(exchange.status())
                              .arg(reason.isEmpty() ? reason : QStringLiteral(": ") + reason));
    }
    check(exchange.readContent(), closed);
    return QByteArray::fromStdString(exchange.content());
}

XmlRpc::XmlRpcValue XmlRpcClient::call(const QString &method, const XmlRpc::XmlRpcValue &params) const
{
    const QByteArray reply = post(writeMethodCall(method, params));
    MethodResponse response;
    try {
        response = parseMethodResponse(reply);
    } catch (const CodecError &error) {
        throw TransportError(QStringLiteral("The answer of %1:%2 cannot be read: %3")
                                 .arg(m_host)
                                 .arg(m_port)
                                 .arg(QString::fromUtf8(error.what())));
    }
    if (response.fault)
        throw FaultException(*response.fault);
    return response.value;
}

} // namespace quv
