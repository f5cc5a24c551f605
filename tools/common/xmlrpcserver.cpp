// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpcserver.h"

#include "budget.h"
#include "callthreads.h"
#include "httpaccess.h"
#include "readcalls.h"

#include <xmlrpcpp/XmlRpcException.h>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/posix/stream_descriptor.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/strand.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <system_error>
#include <thread>
#include <unordered_map>
#include <vector>

#include <sys/eventfd.h>
#include <unistd.h>

namespace quv {
namespace {

namespace beast = boost::beast;
namespace http = beast::http;
namespace net = boost::asio;
using boost::system::error_code;
using net::ip::tcp;
using namespace std::chrono_literals;

using Clock = std::chrono::steady_clock;
using Executor = net::strand<net::io_context::executor_type>;
using Socket = net::basic_stream_socket<tcp, Executor>;
using Parser = http::request_parser<http::string_body>;
using Header = http::request<http::string_body>;
using ResponseBody = http::span_body<const char>;
using Response = http::response<ResponseBody>;

constexpr std::size_t MaxHeaderBytes = 32 * 1024;
constexpr std::size_t MaxUnread = 128 * 1024; ///< what a connection keeps of what is not yet understood
constexpr std::size_t MaxRestingBuffer = 4 * 1024;
constexpr std::size_t MaxPathLength = 1024;
constexpr Clock::duration Glance = 50ms; ///< between two looks for those whose time is over
constexpr Clock::duration Overloaded = 10ms;
constexpr Clock::duration Farewell = 2s;
constexpr Clock::duration LastWrite =
    200ms; ///< what is being answered when the server stops is still worth this
constexpr Clock::time_point Never = Clock::time_point::max();

constexpr const char *SecFetchSite = "Sec-Fetch-Site";

/// Who may call.
struct Access
{
    bool isLocal = true; ///< only this computer reaches the server
    std::string host{};
    std::string token{};
};

struct Refusal
{
    int status = 0;
    std::string reason{};
};

/// Where connections read to before they know how much it is.
std::array<char, 64 * 1024> &scratch()
{
    thread_local std::array<char, 64 * 1024> bytes;
    return bytes;
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

/// The document that \a work gives, or the fault for what it throws.
template <class Work>
QByteArray replyOf(Work work)
{
    try {
        return work();
    } catch (const FaultException &error) {
        return writeFault(error.fault());
    } catch (...) {
        return writeFault({FaultInternal, QStringLiteral("Internal error: %1").arg(currentExceptionText())});
    }
}

/// Whether \a line tells a length that is none only because it is too large for a number.
bool isHugeLength(beast::string_view line)
{
    constexpr beast::string_view Name = "content-length:";
    if (!beast::iequals(line.substr(0, Name.size()), Name))
        return false;
    line.remove_prefix(Name.size());
    line = line.substr(0, line.find('\r'));
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    constexpr std::size_t TooManyDigits = 20;
    return line.size() >= TooManyDigits && line.find_first_not_of("0123456789") == line.npos;
}

/// Why what the parser stopped at is refused; \a unread begins with it.
Refusal refusalOf(const error_code &error, bool isHeaderDone, beast::string_view unread)
{
    if (error == http::error::body_limit ||
        (error == http::error::bad_content_length && isHugeLength(unread)))
        return {413, "The content is too large"};
    if (error == http::error::header_limit || (error == http::error::buffer_overflow && !isHeaderDone))
        return {431, "The header is too large"};
    if (error == http::error::buffer_overflow)
        return {413, "The content is too large"};
    return {400, "Malformed HTTP: " + error.message()};
}

std::optional<Refusal> lengthRefusal(const Parser &parser)
{
    const auto &header = parser.get();
    const auto encoding = header[http::field::transfer_encoding];
    if (header.count(http::field::transfer_encoding) > 0 && !beast::iequals(encoding, "chunked"))
        return Refusal{501, "The transfer encoding is not supported"};
    if (!parser.chunked() && !parser.content_length())
        return Refusal{411, "The length of the content is not told"};
    if (header.count(http::field::content_length) > 1)
        return Refusal{400, "The length of the content is told twice"};
    return std::nullopt;
}

std::string_view view(beast::string_view text)
{
    return {text.data(), text.size()};
}

/// Headers that decide who may call, and of which a second one would be read by nobody.
bool isAmbiguous(const Header &header)
{
    constexpr std::array<http::field, 3> Single{http::field::host, http::field::content_type,
                                                http::field::authorization};
    return header.count(SecFetchSite) > 1 ||
           std::any_of(Single.begin(), Single.end(),
                       [&](http::field field) { return header.count(field) > 1; });
}

/// Refuses who may not call.
std::optional<Refusal> accessRefusal(const Header &header, const Access &access)
{
    if (isAmbiguous(header))
        return Refusal{400, "A header is told twice"};
    if (header.count(http::field::origin) > 0 ||
        (header.count(SecFetchSite) > 0 && header[SecFetchSite] != "none"))
        return Refusal{403, "Requests of web pages are refused"};
    if (access.isLocal && header.count(http::field::host) > 0 &&
        !namesThisComputer(view(header[http::field::host]), access.host))
        return Refusal{421, "This is not the host of the request"};
    if (!access.token.empty() && !holdsToken(view(header[http::field::authorization]), access.token))
        return Refusal{401, "The token is missing or wrong"};
    if (!isXmlType(view(header[http::field::content_type])))
        return Refusal{415, "The content must be XML: text/xml or application/xml"};
    return std::nullopt;
}

/// Refuses by the header alone what would be refused later anyhow.
std::optional<Refusal> headerRefusal(const Parser &parser, const Access &access)
{
    const Header &header = parser.get();
    if (header.method() != http::verb::post)
        return Refusal{405, "Only POST is allowed"};
    if (header.target().size() > MaxPathLength)
        return Refusal{414, "The path is too long"};
    if (header.target().empty() || header.target().front() != '/')
        return Refusal{400,
                       "The path begins with /"}; // another host's name would tell more than the header Host
    if (header.count(http::field::range) > 0)
        return Refusal{400, "Ranges are not supported"};
    if (auto refusal = accessRefusal(header, access))
        return refusal;
    if (header.count(http::field::content_encoding) > 0)
        return Refusal{415, "The content must not be encoded"};
    return lengthRefusal(parser);
}

} // namespace

class XmlRpcServer::Impl
{
public:
    class Connection;

    Impl(DocumentHandler handler, XmlRpcServerOptions options)
        : m_handler(std::move(handler)),
          m_options(std::move(options)),
          m_calls(m_options.limits, m_options.mayLast),
          m_requestBytes(m_options.requestBytes),
          m_longCalls(m_options.longCalls)
    {}

    void bind();
    int boundPort() const { return m_port; }
    void run();
    void wake() noexcept;

private:
    void work();
    void accept();
    void welcome(Socket socket);
    bool makeRoom(std::size_t most);
    void watchTimes();
    void endAll();
    std::vector<std::shared_ptr<Connection>> connections();
    void forget(const Connection *connection);

    const DocumentHandler m_handler{};
    const XmlRpcServerOptions m_options{};
    ReadCalls m_calls;
    Budget m_requestBytes;
    Access m_access{};
    int m_port = 0;
    std::atomic<bool> m_isStopping{false};

    std::mutex m_mutex{}; ///< guards the connections that are open
    std::unordered_map<const Connection *, std::weak_ptr<Connection>> m_open{};

    net::io_context m_io{};
    // Listening, waking and watching the time are one thing at a time.
    Executor m_control{net::make_strand(m_io)};
    tcp::acceptor m_acceptor{m_control};
    net::steady_timer m_overloaded{m_control};
    net::steady_timer m_glance{m_control};
    net::posix::stream_descriptor m_wake{m_control};
    bool m_watchesTimes = false;
    CallThreads m_longCalls;
};

/// One client. All but the constructor and what is said otherwise happens in the strand of its socket.
class XmlRpcServer::Impl::Connection : public std::enable_shared_from_this<Connection>
{
public:
    Connection(Impl &server, Socket socket) : m_server(server), m_socket(std::move(socket)) {}
    ~Connection() { m_server.forget(this); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    void rest(); ///< until the next request
    void expire();
    void end(); ///< when the server stops
    void close();

    /// From any thread
    Executor executor() { return m_socket.get_executor(); }
    bool isOver(Clock::time_point now) const { return now >= m_deadline.load(); }
    Clock::time_point restsSince() const { return m_restsSince; } ///< Never while it is being answered

private:
    enum class State { Resting, Receiving, Working, Answering, Leaving, Closed };

    void enter(State state, Clock::duration allowed);
    void watch();
    void onReadable();
    std::size_t read(error_code &error);
    void receive(const error_code &error);
    void take();
    bool parse();
    bool takeShare();
    void allowContent();
    void carryOut();
    void carryOutLong(const std::shared_ptr<const ReadCalls::Call> &read);
    void answer(const QByteArray &document);
    void refuse(const Refusal &refusal);
    void send(Response response, const QByteArray &content);
    void onSent(const error_code &error);
    void leave();

    Impl &m_server;
    Socket m_socket;
    State m_state = State::Resting;
    bool m_isWatching = false;
    std::atomic<Clock::time_point> m_deadline{Never};
    std::atomic<Clock::time_point> m_restsSince{Clock::now()};
    beast::flat_buffer m_unread{MaxUnread};
    std::unique_ptr<Budget::Share> m_share{}; ///< for the content of the request, until it has been answered
    std::optional<Parser> m_parser{};
    bool m_isHeaderRead = false;
    QByteArray m_content{}; ///< of the response; several connections may share one
    Response m_response{};
    std::optional<http::response_serializer<ResponseBody>> m_serializer{};
    std::shared_ptr<Ending> m_gone{}; ///< of a call that lasts
};

void XmlRpcServer::Impl::Connection::enter(State state, Clock::duration allowed)
{
    const bool isIdle = state == State::Resting || state == State::Receiving || state == State::Leaving;
    m_state = state;
    m_deadline = state == State::Working ? Never : Clock::now() + allowed;
    if (!isIdle)
        m_restsSince = Never;
    else if (m_restsSince.load() == Never)
        m_restsSince = Clock::now();
}

void XmlRpcServer::Impl::Connection::rest()
{
    if (m_server.m_isStopping)
        return close();
    m_serializer.reset();
    m_response = {};
    m_content.clear();
    m_parser.emplace();
    m_parser->header_limit(MaxHeaderBytes);
    m_parser->body_limit(static_cast<std::uint64_t>(m_server.m_options.limits.documentSize));
    m_isHeaderRead = false;
    if (m_unread.size() > 0) {
        enter(State::Receiving, m_server.m_options.requestTimeout);
        net::post(executor(), [self = shared_from_this()] {
            if (self->m_state == State::Receiving)
                self->take();
        });
        return;
    }
    if (m_unread.capacity() > MaxRestingBuffer)
        m_unread.shrink_to_fit();
    enter(State::Resting, m_server.m_options.idleTimeout);
    watch();
}

void XmlRpcServer::Impl::Connection::watch()
{
    if (m_isWatching)
        return;
    m_isWatching = true;
    m_socket.async_wait(Socket::wait_read, [self = shared_from_this()](const error_code & /*error*/) {
        self->m_isWatching = false;
        self->onReadable();
    });
}

/// Takes what has arrived: no more than fits, and never waits.
std::size_t XmlRpcServer::Impl::Connection::read(error_code &error)
{
    auto &bytes = scratch();
    const std::size_t room = std::min(bytes.size(), m_unread.max_size() - m_unread.size());
    const std::size_t count = m_socket.read_some(net::buffer(bytes.data(), room), error);
    m_unread.commit(net::buffer_copy(m_unread.prepare(count), net::buffer(bytes.data(), count)));
    return count;
}

void XmlRpcServer::Impl::Connection::onReadable()
{
    if (m_state == State::Closed || m_state == State::Answering)
        return; // it is looked at again when the answer has left
    error_code error;
    read(error);
    if (error == net::error::would_block)
        return watch();
    switch (m_state) {
    case State::Leaving:
        m_unread.clear();
        return error ? close() : watch();
    case State::Working:
        if (error) {
            m_gone->begin();
            close();
        } else if (m_unread.size() < m_unread.max_size()) {
            watch(); // another request, whose turn has not come
        }
        return;
    default:
        return receive(error);
    }
}

void XmlRpcServer::Impl::Connection::receive(const error_code &error)
{
    if (error) {
        const bool hasBegun = m_state == State::Receiving;
        return error == net::error::eof && hasBegun ? refuse({400, "The request is cut short"}) : close();
    }
    if (m_state == State::Resting)
        enter(State::Receiving, m_server.m_options.requestTimeout);
    take();
}

/// Goes on with what has arrived.
void XmlRpcServer::Impl::Connection::take()
{
    try {
        if (parse())
            carryOut();
    } catch (...) { // out of memory at worst, and then for this connection alone
        close();
    }
}

/// Whether the request is whole; else it is refused, or the rest of it awaited.
bool XmlRpcServer::Impl::Connection::parse()
{
    while (!m_parser->is_done() || !m_isHeaderRead) {
        error_code error;
        if (!m_parser->is_done()) {
            if (m_unread.size() == 0) {
                watch();
                return false;
            }
            m_unread.consume(m_parser->put(m_unread.data(), error));
        }
        if (error == http::error::need_more && m_unread.size() < m_unread.max_size()) {
            watch();
            return false;
        }
        if (error == http::error::need_more)
            error = http::error::buffer_overflow;
        if (error) {
            const auto unread = m_unread.data();
            refuse(
                refusalOf(error, m_isHeaderRead, {static_cast<const char *>(unread.data()), unread.size()}));
            return false;
        }
        if (m_parser->is_header_done() && !m_isHeaderRead) {
            m_isHeaderRead = true;
            if (const auto refusal = headerRefusal(*m_parser, m_server.m_access)) {
                refuse(*refusal);
                return false;
            }
            if (!takeShare()) {
                refuse({503, "Too many large requests come at once"});
                return false;
            }
            allowContent();
        }
    }
    return true;
}

/// Whether there is room for the content. Nobody knows how much comes in chunks.
bool XmlRpcServer::Impl::Connection::takeShare()
{
    const auto &options = m_server.m_options;
    const auto length =
        m_parser->content_length().value_or(static_cast<std::uint64_t>(options.limits.documentSize));
    if (length <= options.smallRequest)
        return true;
    m_share = m_server.m_requestBytes.take(length);
    return m_share != nullptr;
}

void XmlRpcServer::Impl::Connection::allowContent()
{
    m_parser->eager(true);
    if (m_unread.size() > 0 || !beast::iequals(m_parser->get()[http::field::expect], "100-continue"))
        return;
    constexpr beast::string_view GoOn = "HTTP/1.1 100 Continue\r\n\r\n";
    error_code ignored; // whoever cannot take it now goes on without it
    m_socket.write_some(net::buffer(GoOn.data(), GoOn.size()), ignored);
}

void XmlRpcServer::Impl::Connection::carryOut()
{
    enter(State::Working, {});
    std::shared_ptr<const ReadCalls::Call> read;
    try {
        read = m_server.m_calls.read(std::move(m_parser->get().body()));
    } catch (const CodecError &error) {
        return answer(writeFault({error.faultCode(), QString::fromUtf8(error.what())}));
    }
    if (read->mayLast)
        return carryOutLong(read);
    Ending never;
    answer(replyOf([&] { return m_server.m_handler(read->call, never); }));
}

void XmlRpcServer::Impl::Connection::carryOutLong(const std::shared_ptr<const ReadCalls::Call> &read)
{
    m_gone = std::make_shared<Ending>();
    const auto job = [self = shared_from_this(), read, gone = m_gone,
                      isAwaited = net::make_work_guard(m_server.m_io)] {
        const QByteArray document = replyOf([&] { return self->m_server.m_handler(read->call, *gone); });
        net::post(self->executor(), [self, document] { self->answer(document); });
    };
    if (m_server.m_longCalls.start(job))
        return watch();
    answer(replyOf([&] { return writeMethodResponse(m_server.m_options.refuseLongCall(read->call)); }));
}

void XmlRpcServer::Impl::Connection::answer(const QByteArray &document)
{
    if (m_state != State::Working)
        return; // the client has gone meanwhile
    Response response(http::status::ok, m_parser->get().version());
    response.set(http::field::content_type, "text/xml");
    response.keep_alive(m_parser->keep_alive() && !m_server.m_isStopping);
    send(std::move(response), document);
}

void XmlRpcServer::Impl::Connection::refuse(const Refusal &refusal)
{
    Response response(static_cast<http::status>(refusal.status), 11);
    if (response.result() == http::status::method_not_allowed)
        response.set(http::field::allow, "POST");
    if (response.result() == http::status::unauthorized) {
        for (const char *scheme : {"Bearer", "Basic"})
            response.insert(http::field::www_authenticate, scheme + std::string(" realm=\"quvdriver\""));
    }
    response.set(http::field::content_type, "text/plain");
    response.keep_alive(false);
    send(std::move(response), QByteArray::fromStdString(refusal.reason + "\n"));
}

void XmlRpcServer::Impl::Connection::send(Response response, const QByteArray &content)
{
    enter(State::Answering, m_server.m_isStopping ? LastWrite : m_server.m_options.answerTimeout);
    std::string().swap(m_parser->get().body());
    m_share.reset();
    m_content = content;
    m_response = std::move(response);
    m_response.body() = {m_content.constData(), static_cast<std::size_t>(m_content.size())};
    m_response.prepare_payload();
    m_serializer.emplace(m_response);
    // It mostly leaves at once, without a detour.
    error_code error;
    http::write(m_socket, *m_serializer, error);
    if (error != net::error::would_block)
        return onSent(error);
    http::async_write(m_socket, *m_serializer,
                      [self = shared_from_this()](const error_code &failure, std::size_t /*count*/) {
                          self->onSent(failure);
                      });
}

void XmlRpcServer::Impl::Connection::onSent(const error_code &error)
{
    if (m_state != State::Answering)
        return;
    if (error)
        close();
    else if (m_response.keep_alive())
        rest();
    else
        leave();
}

/// Says that nothing more comes, and drops what still arrives, so that the last answer is not lost to a reset.
void XmlRpcServer::Impl::Connection::leave()
{
    if (m_server.m_isStopping)
        return close();
    error_code ignored;
    m_socket.shutdown(tcp::socket::shutdown_send, ignored);
    enter(State::Leaving, Farewell);
    m_unread.clear();
    watch();
}

void XmlRpcServer::Impl::Connection::expire()
{
    if (!isOver(Clock::now()))
        return; // not any more
    if (m_state == State::Receiving)
        refuse({408, "The request came too slowly"});
    else
        close();
}

void XmlRpcServer::Impl::Connection::end()
{
    if (m_state == State::Answering)
        m_deadline = std::min(m_deadline.load(), Clock::now() + LastWrite);
    else if (m_state != State::Working)
        close();
}

void XmlRpcServer::Impl::Connection::close()
{
    m_state = State::Closed;
    m_deadline = Never;
    error_code ignored;
    m_socket.close(ignored);
    m_server.forget(this);
}

void XmlRpcServer::Impl::bind()
{
    const std::string host = m_options.host.toStdString();
    const auto fail = [this](const QString &reason) {
        throw TransportError(
            QStringLiteral("Cannot listen on %1:%2: %3").arg(m_options.host).arg(m_options.port).arg(reason));
    };
    error_code error;
    const auto found =
        tcp::resolver(m_io).resolve(host, std::to_string(m_options.port), tcp::resolver::passive, error);
    if (error || found.empty() || host.empty())
        fail(QStringLiteral("unknown host"));
    const tcp::endpoint endpoint = found.begin()->endpoint();
    m_access = {endpoint.address().is_loopback(), host, m_options.token};
    if (!m_access.isLocal && m_access.token.empty() && !m_options.isOpen)
        throw OpenToOthers(QStringLiteral("%1 is reached from other computers").arg(m_options.host));
    m_acceptor.open(endpoint.protocol(), error);
    if (!error)
        m_acceptor.set_option(tcp::acceptor::reuse_address(true), error);
    if (!error)
        m_acceptor.bind(endpoint, error);
    if (!error)
        m_acceptor.listen(net::socket_base::max_listen_connections, error);
    if (!error)
        m_wake.assign(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), error);
    if (error)
        fail(QString::fromStdString(error.message()));
    m_port = m_acceptor.local_endpoint().port();
}

void XmlRpcServer::Impl::wake() noexcept
{
    const std::uint64_t one = 1;
    // A full counter cannot be read either way: whoever waits is awake already.
    [[maybe_unused]] const ssize_t written = ::write(m_wake.native_handle(), &one, sizeof one);
}

void XmlRpcServer::Impl::run()
{
    m_wake.async_wait(net::posix::stream_descriptor::wait_read, [this](const error_code &error) {
        if (!error)
            endAll();
    });
    accept();
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(m_options.threads));
    try {
        for (int count = 1; count < m_options.threads; ++count)
            threads.push_back(startQuietThread([this] { work(); }));
    } catch (const std::system_error &) { // fewer of them serve as well
    }
    work();
    for (std::thread &thread : threads)
        thread.join();
    m_longCalls.waitForAll();
}

void XmlRpcServer::Impl::work()
{
    for (bool isDone = false; !isDone;) {
        try {
            m_io.run();
            isDone = true;
        } catch (...) { // what failed has cost its own connection
        }
    }
}

void XmlRpcServer::Impl::accept()
{
    m_acceptor.async_accept(net::make_strand(m_io), [this](const error_code &error, Socket socket) {
        if (m_isStopping)
            return;
        if (error) { // mostly that there are no descriptors left
            makeRoom(0);
            m_overloaded.expires_after(Overloaded);
            m_overloaded.async_wait([this](const error_code & /*error*/) {
                if (!m_isStopping)
                    accept();
            });
            return;
        }
        try {
            welcome(std::move(socket));
        } catch (...) { // a client that came when there was no memory for it
        }
        accept();
    });
}

void XmlRpcServer::Impl::welcome(Socket socket)
{
    error_code error;
    socket.set_option(tcp::no_delay(true), error);
    socket.non_blocking(true, error);
    if (error || !makeRoom(static_cast<std::size_t>(m_options.connections)))
        return;
    const auto connection = std::make_shared<Connection>(*this, std::move(socket));
    {
        const std::lock_guard lock(m_mutex);
        m_open.emplace(connection.get(), connection);
    }
    net::post(connection->executor(), [connection] { connection->rest(); });
    if (!m_watchesTimes)
        watchTimes();
}

/// Whether fewer than \a most are open; if need be, the one that has rested or sent longest leaves.
bool XmlRpcServer::Impl::makeRoom(std::size_t most)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_open.size() < most)
            return true;
    }
    std::shared_ptr<Connection> oldest;
    const auto all = connections();
    for (const auto &connection : all) {
        if (connection->restsSince() != Never && (!oldest || connection->restsSince() < oldest->restsSince()))
            oldest = connection;
    }
    if (!oldest)
        return false;
    forget(oldest.get());
    net::post(oldest->executor(), [oldest] { oldest->close(); });
    return true;
}

void XmlRpcServer::Impl::watchTimes()
{
    const auto now = Clock::now();
    const auto all = connections();
    m_watchesTimes = !all.empty();
    if (!m_watchesTimes)
        return;
    for (const auto &connection : all) {
        if (connection->isOver(now))
            net::post(connection->executor(), [connection] { connection->expire(); });
    }
    m_glance.expires_after(Glance);
    m_glance.async_wait([this](const error_code & /*error*/) { watchTimes(); });
}

void XmlRpcServer::Impl::endAll()
{
    m_isStopping = true;
    error_code ignored;
    m_acceptor.close(ignored);
    m_overloaded.cancel();
    for (const auto &connection : connections())
        net::post(connection->executor(), [connection] { connection->end(); });
}

std::vector<std::shared_ptr<XmlRpcServer::Impl::Connection>> XmlRpcServer::Impl::connections()
{
    std::vector<std::shared_ptr<Connection>> all;
    const std::lock_guard lock(m_mutex);
    all.reserve(m_open.size());
    for (const auto &[address, connection] : m_open) {
        if (auto open = connection.lock())
            all.push_back(std::move(open));
    }
    return all;
}

void XmlRpcServer::Impl::forget(const Connection *connection)
{
    const std::lock_guard lock(m_mutex);
    m_open.erase(connection);
}

XmlRpcServer::XmlRpcServer(const Handler &handler, XmlRpcServerOptions options)
    : XmlRpcServer(DocumentHandler([handler](const MethodCall &call, Ending &gone) {
                       return writeMethodResponse(handler(call, gone));
                   }),
                   std::move(options))
{}

XmlRpcServer::XmlRpcServer(DocumentHandler handler, XmlRpcServerOptions options)
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
    m_impl->run();
}

void XmlRpcServer::stop() noexcept
{
    m_impl->wake();
}

} // namespace quv
