// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpcclient.h"

#include "rawsocket.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

namespace {

using namespace quv;
using namespace std::chrono_literals;
using XmlRpc::XmlRpcValue;

/// Accepts one connection, takes the request, and says \a answer: at once, or a byte in 50 ms, or nothing for a while.
class ScriptedServer
{
public:
    enum class Pace { AtOnce, Trickle };

    explicit ScriptedServer(const std::string &answer, Pace pace = Pace::AtOnce)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        if (::bind(m_fd, reinterpret_cast<sockaddr *>(&address), size) != 0 || ::listen(m_fd, 1) != 0 ||
            ::getsockname(m_fd, reinterpret_cast<sockaddr *>(&address), &size) != 0)
            throw std::runtime_error("cannot listen");
        m_port = ntohs(address.sin_port);
        const timeval patience{5, 0};
        ::setsockopt(m_fd, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        m_thread = std::thread([this, answer, pace] { serve(answer, pace); });
    }
    ~ScriptedServer()
    {
        m_thread.join();
        ::close(m_fd);
    }
    ScriptedServer(const ScriptedServer &) = delete;
    ScriptedServer &operator=(const ScriptedServer &) = delete;

    int port() const { return m_port; }
    /// What the client sent; valid after its call.
    const std::string &request() const { return m_request; }

private:
    void serve(const std::string &answer, Pace pace)
    {
        const int connection = ::accept(m_fd, nullptr, nullptr);
        if (connection < 0)
            return;
        std::array<char, 4096> buffer{};
        while (m_request.find("</methodCall>") == std::string::npos) {
            const ssize_t count = ::recv(connection, buffer.data(), buffer.size(), 0);
            if (count <= 0)
                break;
            m_request.append(buffer.data(), static_cast<std::size_t>(count));
        }
        const std::size_t step = pace == Pace::AtOnce ? answer.size() : 1;
        for (std::size_t done = 0; done < answer.size();) {
            const ssize_t sent =
                ::send(connection, answer.data() + done, std::min(step, answer.size() - done), MSG_NOSIGNAL);
            if (sent <= 0)
                break;
            done += static_cast<std::size_t>(sent);
            if (pace == Pace::Trickle)
                std::this_thread::sleep_for(50ms);
        }
        ::close(connection);
    }

    int m_fd = ::socket(AF_INET, SOCK_STREAM, 0);
    int m_port = 0;
    std::string m_request{};
    std::thread m_thread{};
};

std::string http(const std::string &body)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\n\r\n" + body;
}

std::string troubleWith(int port, std::chrono::milliseconds timeout = 5s)
{
    try {
        XmlRpcClient(QStringLiteral("127.0.0.1"), port, timeout)
            .call(QStringLiteral("EXEC_B"), XmlRpcValue(1));
    } catch (const TransportError &error) {
        return error.what();
    }
    return "none";
}

std::string address(int port)
{
    return "127.0.0.1:" + std::to_string(port);
}

TEST(XmlRpcClient, callsAndReadsTheValue)
{
    const ScriptedServer server(
        http("<methodResponse><params><param><value>ok</value></param></params></methodResponse>"));
    const XmlRpcValue value = XmlRpcClient(QStringLiteral("127.0.0.1"), server.port(), 5s)
                                  .call(QStringLiteral("EXEC_B"), XmlRpcValue(5));
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeString);
    EXPECT_EQ(static_cast<const std::string &>(value), "ok");
    EXPECT_THAT(server.request(), testing::StartsWith("POST /RPC2 HTTP/1.1\r\n"));
    EXPECT_THAT(server.request(), testing::HasSubstr("Content-Type: text/xml\r\n"));
    EXPECT_THAT(server.request(), testing::HasSubstr("<methodName>EXEC_B</methodName><params><param><value>"
                                                     "<i4>5</i4></value></param></params>"));
}

TEST(XmlRpcClient, showsTheToken)
{
    const std::string answer =
        http("<methodResponse><params><param><value>ok</value></param></params></methodResponse>");
    for (const std::string &token : {std::string(), std::string("a-token-of-tests")}) {
        const ScriptedServer server(answer);
        XmlRpcClient(QStringLiteral("127.0.0.1"), server.port(), 5s, {token})
            .call(QStringLiteral("EXEC_B"), XmlRpcValue(5));
        const auto shown = testing::HasSubstr("\r\nAuthorization: Bearer a-token-of-tests\r\n");
        if (token.empty())
            EXPECT_THAT(server.request(), testing::Not(testing::HasSubstr("Authorization")));
        else
            EXPECT_THAT(server.request(), shown);
    }
}

TEST(XmlRpcClient, throwsTheFault)
{
    const ScriptedServer server(
        http("<methodResponse><fault><value><struct><member><name>faultCode</name><value><int>7"
             "</int></value></member><member><name>faultString</name><value>no</value></member>"
             "</struct></value></fault></methodResponse>"));
    try {
        XmlRpcClient(QStringLiteral("127.0.0.1"), server.port(), 5s)
            .call(QStringLiteral("EXEC_B"), XmlRpcValue());
        FAIL() << "no fault";
    } catch (const FaultException &error) {
        EXPECT_EQ(error.fault().code, 7);
        EXPECT_EQ(error.fault().text, QStringLiteral("no"));
    }
}

TEST(XmlRpcClient, saysThatNobodyListens)
{
    int port = 0;
    {
        const ScriptedServer server("");
        port = server.port();
        const RawSocket last(port);
    }
    EXPECT_EQ(troubleWith(port), "Cannot connect to " + address(port));
}

TEST(XmlRpcClient, saysWhatIsWrongWithTheAnswer)
{
    {
        const ScriptedServer server("");
        EXPECT_EQ(troubleWith(server.port()),
                  address(server.port()) + " closed the connection without an answer");
    }
    {
        const ScriptedServer server("HTTP/1.1 404 Not Found\r\nContent-Length: 2\r\n\r\nno");
        EXPECT_EQ(troubleWith(server.port()), address(server.port()) + " answered with the HTTP status 404");
    }
    for (const auto &[content, told] : {std::pair{std::string("No\xC3\xA9 \n"), std::string(": No\xC3\xA9")},
                                        {"two\nlines", ""},
                                        {std::string(201, 'x'), ""}}) {
        const ScriptedServer server(
            "HTTP/1.1 401 Unauthorized\r\nContent-Type: text/plain\r\nContent-Length: " +
            std::to_string(content.size()) + "\r\n\r\n" + content);
        EXPECT_EQ(troubleWith(server.port()),
                  address(server.port()) + " answered with the HTTP status 401" + told);
    }
    {
        const ScriptedServer server("\x16\x03\x01 rubbish\r\n\r\n");
        EXPECT_EQ(troubleWith(server.port()),
                  address(server.port()) + " closed the connection without an answer");
    }
    {
        const ScriptedServer server(http("<html/>"));
        EXPECT_EQ(troubleWith(server.port()),
                  "The answer of " + address(server.port()) +
                      " cannot be read: Line 1: expected methodResponse, found 'html'");
    }
}

TEST(XmlRpcClient, doesNotWaitForever)
{
    for (const char *answer : {"HTTP/1.1 200 OK\r\nA: aaaaaaaaaaaaaaaaaaaaaaaaaaaa",
                               "HTTP/1.1 200 OK\r\n\r\n<methodResponse>aaaaaaaaaaaaaaaaaaaa"}) {
        const ScriptedServer server(answer, ScriptedServer::Pace::Trickle);
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(troubleWith(server.port(), 500ms),
                  "No answer from " + address(server.port()) + " within 0.5 s");
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 2000ms);
    }
}

TEST(XmlRpcClient, limitsTheSizeOfTheAnswer)
{
    const ScriptedServer server(http(std::string(16 * 1024 * 1024 + 1, 'x')));
    EXPECT_EQ(troubleWith(server.port()), "The answer of " + address(server.port()) + " is too large");
}

} // namespace
