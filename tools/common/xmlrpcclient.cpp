// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpcclient.h"

#include "httpstream_p.h"

namespace quv {
namespace {

constexpr std::size_t MaxHeaderBytes = 32 * 1024;
constexpr int StatusOk = 200;

/// The library's client on a socket that bounds the whole exchange, where the library bounds each read alone.
class HttpClient : public httplib::ClientImpl
{
public:
    HttpClient(const std::string &host, int port, std::chrono::milliseconds timeout)
        : httplib::ClientImpl(host, port),
          m_deadline(BoundedSocket::Clock::now() + timeout),
          m_timeout(timeout)
    {
        set_connection_timeout(timeout);
        set_tcp_nodelay(true);
    }

    BoundedSocket::Trouble trouble() const { return m_trouble; }

private:
    bool process_socket(const Socket &socket, std::function<bool(httplib::Stream &)> callback) override
    {
        BoundedSocket bounded(socket.sock, m_timeout);
        bounded.allowUntil(m_deadline);
        bounded.allowBytes(2 * static_cast<std::size_t>(ReplyLimits.documentSize) + MaxHeaderBytes);
        HttpStream stream(bounded, m_timeout);
        const bool isDone = callback(stream);
        m_trouble = bounded.trouble();
        return isDone;
    }

    BoundedSocket::Clock::time_point m_deadline{};
    std::chrono::milliseconds m_timeout{};
    BoundedSocket::Trouble m_trouble = BoundedSocket::Trouble::None;
};

} // namespace

XmlRpcClient::XmlRpcClient(const QString &host, int port, std::chrono::milliseconds timeout)
    : m_host(host),
      m_port(port),
      m_timeout(timeout)
{}

QByteArray XmlRpcClient::post(const QByteArray &document) const
{
    const QString server = QStringLiteral("%1:%2").arg(m_host).arg(m_port);
    QByteArray reply;
    bool isTooLarge = false;

    httplib::Request request;
    request.method = "POST";
    request.path = "/RPC2";
    request.set_header("Content-Type", "text/xml");
    request.body = document.toStdString();
    request.content_receiver = [&](const char *data, std::size_t size, std::uint64_t, std::uint64_t) {
        isTooLarge = size > static_cast<std::size_t>(ReplyLimits.documentSize - reply.size());
        if (!isTooLarge)
            reply.append(data, static_cast<int>(size));
        return !isTooLarge;
    };

    HttpClient http(m_host.toStdString(), m_port, m_timeout);
    httplib::Response response;
    httplib::Error error = httplib::Error::Success;
    const bool isDone = http.send(request, response, error);
    if (isTooLarge || http.trouble() == BoundedSocket::Trouble::TooMuch)
        throw TransportError(QStringLiteral("The answer of %1 is too large").arg(server));
    if (http.trouble() == BoundedSocket::Trouble::TimedOut || error == httplib::Error::ConnectionTimeout)
        throw TransportError(QStringLiteral("No answer from %1 within %2 s")
                                 .arg(server)
                                 .arg(std::chrono::duration<double>(m_timeout).count()));
    if (error == httplib::Error::Connection)
        throw TransportError(QStringLiteral("Cannot connect to %1").arg(server));
    if (!isDone)
        throw TransportError(QStringLiteral("%1 closed the connection without an answer").arg(server));
    if (response.status != StatusOk)
        throw TransportError(
            QStringLiteral("%1 answered with the HTTP status %2").arg(server).arg(response.status));
    return reply;
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
