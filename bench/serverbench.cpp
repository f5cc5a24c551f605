// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedfirmware.h"
#include "machines.h"
#include "requests/driver.h"
#include "xmlrpcserver.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/strand.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>
#include <vector>

// How many calls of GET_STATUS a second the driver answers to 8 clients, beside a bare server on the same HTTP library that
// reads requests of the same size and gives answers of the same size. Both run in this process, in turn, with as many threads and
// the same clients. A client that watches a machine asks the same again and again; what a call costs that nobody has asked before is
// measured as well.

namespace {

namespace beast = boost::beast;
namespace http = beast::http;
namespace net = boost::asio;
using net::ip::tcp;
using Clock = std::chrono::steady_clock;

constexpr int Clients = 8;
constexpr int Threads = 8;
constexpr int Rounds = 7;
constexpr auto Round = std::chrono::milliseconds(1000);

/// A call of GET_STATUS.
std::string
request(const std::string &parameters = "<param><value><string>GET_STATUS</string></value></param>")
{
    const std::string call = "<?xml version=\"1.0\"?><methodCall><methodName>EXEC_B</methodName><params>" +
                             parameters + "</params></methodCall>";
    return "POST /RPC2 HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\nContent-Length: " +
           std::to_string(call.size()) + "\r\n\r\n" + call;
}

/// One that nobody has sent before, with an argument too many, which is not read, and for another position than the last ones.
std::string newRequest(int client, long number)
{
    return request("<param><value><string>GET_STATUS</string></value></param><param><value><int>" +
                   std::to_string(number % 256) + "</int></value></param><param><value><string>" +
                   std::to_string(client) + "/" + std::to_string(number) + "</string></value></param>");
}

enum class Calls { Same, Different };

/// Gives each request the same answer.
class BareSession : public std::enable_shared_from_this<BareSession>
{
public:
    BareSession(tcp::socket socket, const std::string &answer) : m_stream(std::move(socket)), m_answer(answer)
    {}

    void read()
    {
        m_request = {};
        http::async_read(m_stream, m_buffer, m_request,
                         [self = shared_from_this()](const beast::error_code &error, std::size_t) {
                             if (!error)
                                 self->write();
                         });
    }

private:
    void write()
    {
        m_response = {http::status::ok, m_request.version()};
        m_response.set(http::field::content_type, "text/xml");
        m_response.keep_alive(m_request.keep_alive());
        m_response.body() = m_answer;
        m_response.prepare_payload();
        http::async_write(m_stream, m_response,
                          [self = shared_from_this()](const beast::error_code &error, std::size_t) {
                              if (!error && self->m_response.keep_alive())
                                  self->read();
                          });
    }

    beast::tcp_stream m_stream;
    beast::flat_buffer m_buffer{};
    http::request<http::string_body> m_request{};
    http::response<http::string_body> m_response{};
    const std::string m_answer;
};

class BareServer
{
public:
    explicit BareServer(const std::string &answer) : m_answer(answer)
    {
        accept();
        for (int count = 0; count < Threads; ++count)
            m_threads.emplace_back([this] { m_io.run(); });
    }
    ~BareServer()
    {
        m_io.stop();
        for (std::thread &thread : m_threads)
            thread.join();
    }
    BareServer(const BareServer &) = delete;
    BareServer &operator=(const BareServer &) = delete;

    int port() const { return m_acceptor.local_endpoint().port(); }

private:
    void accept()
    {
        m_acceptor.async_accept(net::make_strand(m_io),
                                [this](const beast::error_code &error, tcp::socket socket) {
                                    if (!error) {
                                        socket.set_option(tcp::no_delay(true));
                                        std::make_shared<BareSession>(std::move(socket), m_answer)->read();
                                    }
                                    accept();
                                });
    }

    const std::string m_answer;
    net::io_context m_io{};
    tcp::acceptor m_acceptor{m_io, tcp::endpoint(net::ip::address_v4::loopback(), 0)};
    std::vector<std::thread> m_threads{};
};

/// One client that keeps its connection.
class Client
{
public:
    explicit Client(int port)
    {
        m_socket.connect({net::ip::address_v4::loopback(), static_cast<unsigned short>(port)});
        m_socket.set_option(tcp::no_delay(true));
    }

    /// The length of the answer.
    std::size_t call(const std::string &request)
    {
        net::write(m_socket, net::buffer(request));
        http::response_parser<http::string_body> parser;
        http::read(m_socket, m_buffer, parser);
        m_answer = std::move(parser.get().body());
        return m_answer.size();
    }
    const std::string &answer() const { return m_answer; }

private:
    net::io_context m_io{};
    tcp::socket m_socket{m_io};
    beast::flat_buffer m_buffer{};
    std::string m_answer{};
};

/// Calls a second of all clients together.
double rate(int port, Calls kind = Calls::Same)
{
    std::atomic<bool> isOver{false};
    std::atomic<long> calls{0};
    std::vector<std::thread> clients;
    for (int count = 0; count < Clients; ++count) {
        clients.emplace_back([&, count] {
            Client client(port);
            const std::string same = request();
            long own = 0;
            for (; !isOver; ++own) {
                if (kind == Calls::Same)
                    client.call(same);
                else
                    client.call(newRequest(count, own));
            }
            calls += own;
        });
    }
    const auto begin = Clock::now();
    std::this_thread::sleep_for(Round);
    isOver = true;
    const std::chrono::duration<double> time = Clock::now() - begin;
    for (std::thread &client : clients)
        client.join();
    return double(calls) / time.count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main()
{
    auto machine = quv::machineByName(QStringLiteral("dispenser"));
    auto firmware = std::make_unique<quv::SimulatedFirmware>(
        *machine, 1, quv::SimulatedFirmware::steadyClock(), quv::SimulatedConfiguration());
    quv::Driver driver;
    driver.addMachine(std::move(machine), std::move(firmware));
    quv::XmlRpcServerOptions options;
    options.threads = Threads;
    options.mayLast = quv::Driver::mayLast;
    quv::XmlRpcServer server(
        [&](const quv::MethodCall &call, quv::Ending &gone) { return driver.reply(call, gone); }, options);
    server.listen();
    std::thread serving([&] { server.run(); });

    Client first(server.port());
    const std::size_t size = first.call(request());
    const BareServer bare(first.answer());
    std::vector<double> ofBare;
    std::vector<double> ofSame;
    std::vector<double> ofDifferent;
    for (int round = 0; round < Rounds; ++round) {
        ofBare.push_back(rate(bare.port()));
        ofSame.push_back(rate(server.port()));
        ofDifferent.push_back(rate(server.port(), Calls::Different));
    }
    const double most = median(ofBare);
    std::printf("%d clients, requests of %zu bytes, answers of %zu bytes\n", Clients, request().size(), size);
    std::printf("bare server:            %8.0f calls/s\n", most);
    std::printf("driver, same calls:     %8.0f calls/s, ratio %.2f (aim: at least 0.90)\n", median(ofSame),
                median(ofSame) / most);
    std::printf("driver, calls differ:   %8.0f calls/s, ratio %.2f\n", median(ofDifferent),
                median(ofDifferent) / most);
    server.stop();
    serving.join();
    return 0;
}
