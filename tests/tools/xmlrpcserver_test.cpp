// SPDX-License-Identifier: LGPL-3.0-or-later
#include "xmlrpcserver.h"

#include "rawsocket.h"
#include "xmlrpcclient.h"

#include <xmlrpcpp/XmlRpcException.h>

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <future>
#include <limits>
#include <thread>
#include <vector>

namespace {

using namespace quv;
using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;
using XmlRpc::XmlRpcValue;

const std::string GoodCall =
    "<methodCall><methodName>echo</methodName><params><param><value><i4>5</i4></value></param>"
    "</params></methodCall>";
const std::string GoodReply =
    "<methodResponse><params><param><value><array><data><value><i4>5</i4></value></data>"
    "</array></value></param></params></methodResponse>";

constexpr std::size_t LargeContent = 20'000'000;

std::string post(const std::string &body, const std::string &header = {}, const std::string &path = "/RPC2")
{
    return "POST " + path + " HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\n" + header +
           "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string chunk(const std::string &data)
{
    std::array<char, 32> size{};
    std::snprintf(size.data(), size.size(), "%zx\r\n", data.size());
    return size.data() + data + "\r\n";
}

/// "echo" gives the parameters back; every other method fails in a way of its own.
XmlRpcValue handle(const MethodCall &call, Ending & /*gone*/)
{
    if (call.method == QStringLiteral("fault"))
        throw FaultException({42, QString::fromUtf8("perch\xC3\xA9 no")});
    if (call.method == QStringLiteral("standard"))
        throw std::out_of_range("index");
    if (call.method == QStringLiteral("foreign"))
        throw XmlRpc::XmlRpcException("type error");
    if (call.method == QStringLiteral("number"))
        throw 5;
    if (call.method == QStringLiteral("infinity"))
        return std::numeric_limits<double>::infinity();
    if (call.method == QStringLiteral("slow"))
        std::this_thread::sleep_for(300ms);
    return call.params;
}

class XmlRpcServerTest : public testing::Test
{
protected:
    void start(const XmlRpcServerOptions &options)
    {
        m_server = std::make_unique<XmlRpcServer>(handle, options);
        m_server->listen();
        m_thread = std::thread([this] { m_server->run(); });
    }

    void SetUp() override
    {
        XmlRpcServerOptions options;
        options.requestTimeout = 1000ms;
        options.idleTimeout = 2000ms;
        start(options);
    }

    void stop()
    {
        m_server->stop();
        if (m_thread.joinable())
            m_thread.join();
    }

    void TearDown() override
    {
        expectGoodAnswer();
        const auto begin = std::chrono::steady_clock::now();
        stop();
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
    }

    int port() const { return m_server->port(); }

    /// What the server says to \a bytes until it closes.
    std::string answerTo(const std::string &bytes) const
    {
        const RawSocket socket(port());
        socket.send(bytes);
        return socket.receive();
    }

    void expectGoodAnswer() const
    {
        const RawSocket socket(port());
        ASSERT_TRUE(socket.send(post(GoodCall)));
        const std::string answer = socket.receive("</methodResponse>");
        EXPECT_THAT(answer, StartsWith("HTTP/1.1 200"));
        EXPECT_THAT(answer, HasSubstr(GoodReply));
    }

    Fault faultOf(const std::string &method) const
    {
        try {
            XmlRpcClient(QStringLiteral("127.0.0.1"), port(), 5s)
                .call(QString::fromStdString(method), XmlRpcValue(1));
        } catch (const FaultException &error) {
            return error.fault();
        }
        return {};
    }

    std::unique_ptr<XmlRpcServer> m_server{};
    std::thread m_thread{};
};

TEST_F(XmlRpcServerTest, answersOnAnyPath)
{
    for (const char *path : {"/", "/RPC2", "/a/b?c=d", "/%20%ff"})
        EXPECT_THAT(answerTo(post(GoodCall, "Connection: close\r\n", path)), HasSubstr(GoodReply)) << path;
    for (const char *target : {"http://evil.example/", "http://localhost/", "RPC2", "*"})
        EXPECT_THAT(answerTo(post(GoodCall, "", target)), StartsWith("HTTP/1.1 400")) << target;
    const std::string longPath = "/" + std::string(8000, 'a');
    EXPECT_THAT(answerTo(post(GoodCall, "", longPath)), StartsWith("HTTP/1.1 414"));
}

TEST_F(XmlRpcServerTest, keepsTheConnection)
{
    const RawSocket socket(port());
    for (int request = 0; request < 20; ++request) {
        ASSERT_TRUE(socket.send(post(GoodCall)));
        EXPECT_THAT(socket.receive("</methodResponse>\n"), HasSubstr(GoodReply)) << request;
    }
    // Two at once: the second must not get lost in what was read ahead.
    ASSERT_TRUE(socket.send(post(GoodCall) + post(GoodCall, "Connection: close\r\n")));
    const std::string answers = socket.receive();
    const std::size_t first = answers.find(GoodReply);
    ASSERT_NE(first, std::string::npos);
    EXPECT_NE(answers.find(GoodReply, first + 1), std::string::npos);
}

TEST_F(XmlRpcServerTest, takesChunks)
{
    EXPECT_THAT(answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nConnection: "
                         "close\r\nTransfer-Encoding: chunked\r\n\r\n" +
                         chunk(GoodCall.substr(0, 10)) + chunk(GoodCall.substr(10)) + "0\r\n\r\n"),
                HasSubstr(GoodReply));
}

TEST_F(XmlRpcServerTest, refusesOtherMethods)
{
    for (const char *method : {"GET", "PUT", "DELETE", "OPTIONS", "PATCH", "HEAD"}) {
        const std::string answer =
            answerTo(std::string(method) + " /RPC2 HTTP/1.1\r\nHost: localhost\r\n\r\n");
        EXPECT_THAT(answer, StartsWith("HTTP/1.1 405")) << method;
        EXPECT_THAT(answer, HasSubstr("Allow: POST\r\n")) << method;
    }
}

TEST_F(XmlRpcServerTest, answersFaultsToWhatIsNoCall)
{
    const auto answer = [this](const std::string &body) {
        return answerTo(post(body, "Connection: close\r\n"));
    };
    for (const char *body : {"", "hello", "<methodCall>", "<!DOCTYPE a [<!ENTITY b 'c'>]><methodCall/>"}) {
        EXPECT_THAT(answer(body), StartsWith("HTTP/1.1 200")) << body;
        EXPECT_THAT(answer(body), HasSubstr("<i4>-32700</i4>")) << body;
    }
    EXPECT_THAT(answer("<html/>"), HasSubstr("<i4>-32600</i4>"));
    EXPECT_THAT(
        answer("<methodCall><methodName>echo</methodName><params><param><value><i4>4294967301</i4></value>"
               "</param></params></methodCall>"),
        HasSubstr("out of the range of 32 bits: '4294967301'"));
    std::string nested = "<methodCall><methodName>echo</methodName><params><param><value>";
    for (int level = 0; level < 50000; ++level)
        nested += "<array><data><value>";
    nested.resize(1024 * 1024);
    EXPECT_THAT(answer(nested), HasSubstr("<i4>-32600</i4>"));
}

TEST_F(XmlRpcServerTest, answersFaultsForWhatTheHandlerThrows)
{
    EXPECT_EQ(faultOf("fault").code, 42);
    EXPECT_EQ(faultOf("fault").text, QString::fromUtf8("perch\xC3\xA9 no"));
    EXPECT_EQ(faultOf("standard").code, -32603);
    EXPECT_EQ(faultOf("standard").text, QStringLiteral("Internal error: index"));
    EXPECT_EQ(faultOf("foreign").code, -32603);
    EXPECT_EQ(faultOf("foreign").text, QStringLiteral("Internal error: type error"));
    EXPECT_EQ(faultOf("number").code, -32603);
    EXPECT_EQ(faultOf("infinity").code, -32603);
}

TEST_F(XmlRpcServerTest, refusesWhatIsTooLarge)
{
    // By the header alone
    for (const char *length : {"1048577", "104857600", "18446744073709551616", "99999999999999999999999999"})
        EXPECT_THAT(answerTo(std::string("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: ") +
                             length + "\r\n\r\n<methodCall>"),
                    StartsWith("HTTP/1.1 413"))
            << length;
    // Sent in full all the same
    EXPECT_THAT(answerTo(post(std::string(LargeContent, 'x'))), StartsWith("HTTP/1.1 413"));
    // Without telling the size
    std::string chunks;
    for (int count = 0; count < 40; ++count)
        chunks += chunk(std::string(65536, 'x'));
    EXPECT_THAT(
        answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks),
        StartsWith("HTTP/1.1 413"));
    // In the line that tells the size of a chunk
    EXPECT_THAT(answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: chunked\r\n\r\n5;" +
                         std::string(4'000'000, 'x')),
                StartsWith("HTTP/1.1 413"));
}

TEST_F(XmlRpcServerTest, refusesLengthsThatMakeNoSense)
{
    EXPECT_THAT(answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\n\r\n" + GoodCall),
                StartsWith("HTTP/1.1 411"));
    for (const char *header : {"Content-Length: -5\r\n", "Content-Length: abc\r\n", "Content-Length: \r\n",
                               "Content-Length: 0x10\r\n", "Content-Length: 5\r\nContent-Length: 7\r\n",
                               "Content-Length: 5\r\nTransfer-Encoding: chunked\r\n"})
        EXPECT_THAT(answerTo(std::string("POST / HTTP/1.1\r\nContent-Type: text/xml\r\n") + header + "\r\n" +
                             GoodCall),
                    testing::AnyOf(StartsWith("HTTP/1.1 400"), StartsWith("HTTP/1.1 411")))
            << header;
    EXPECT_THAT(
        answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: gzip\r\n\r\n" + GoodCall),
        StartsWith("HTTP/1.1 501"));
    for (const char *encodings : {"gzip, chunked", "chunked, chunked"})
        EXPECT_THAT(answerTo(std::string("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: ") +
                             encodings + "\r\n\r\n" + chunk(GoodCall) + "0\r\n\r\n"),
                    testing::Not(HasSubstr(" 200 ")))
            << encodings;
    for (const char *size : {"zz", "-5", "ffffffffffffffff", "fffffffffffffffff"})
        EXPECT_THAT(
            answerTo(std::string(
                         "POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: chunked\r\n\r\n") +
                     size + "\r\n" + GoodCall),
            testing::Not(HasSubstr(" 200 ")))
            << size;
}

TEST_F(XmlRpcServerTest, refusesContentThatIsCutShort)
{
    for (const std::size_t size : {std::size_t(0), std::size_t(1), GoodCall.size() - 1}) {
        const RawSocket socket(port());
        socket.send("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: " +
                    std::to_string(GoodCall.size()) + "\r\n\r\n" + GoodCall.substr(0, size));
        socket.sendNoMore();
        EXPECT_THAT(socket.receive(), StartsWith("HTTP/1.1 400")) << size;
    }
    // A length that is too short cuts the document; what follows is no request.
    const std::string answer =
        answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: 20\r\n\r\n" + GoodCall);
    EXPECT_THAT(answer, HasSubstr("<i4>-32700</i4>"));
}

TEST_F(XmlRpcServerTest, survivesBrokenHeaders)
{
    const std::string binary("\x16\x03\x01\x00\xA5\xFF\x00\x0A\x0D\x0A\x0D\x0A", 12);
    for (const std::string &bytes :
         {std::string("\r\n\r\n"), binary, std::string("POST\r\n\r\n"),
          std::string("POST / HTTP/9.9\r\n\r\n"), std::string("BREW / HTTP/1.1\r\n\r\n"),
          std::string("POST / HTTP/1.1\r\nno colon\r\n\r\n"),
          "POST / HTTP/1.1\r\nA: " + std::string(100000, 'a'), std::string(5'000'000, 'A'),
          "POST /" + std::string(30000, 'a') + " HTTP/1.1\r\n\r\n",
          post(GoodCall, "Range: bytes=0-1,0-1,0-1\r\n"),
          post(GoodCall, "Range: bytes=99999999999999999999-\r\n"),
          post(GoodCall, "Content-Encoding: gzip\r\n"), post(GoodCall, "Content-Encoding: br\r\n"),
          std::string(
              "POST / HTTP/1.1\r\nContent-Type: multipart/form-data; boundary=a\r\nContent-Length: 7\r\n\r\n"
              "--a\r\n\r\n")}) {
        const std::string answer = answerTo(bytes);
        EXPECT_THAT(answer, testing::Not(HasSubstr(" 200 "))) << bytes.substr(0, 80);
        expectGoodAnswer();
    }
    std::string manyHeaders = "POST / HTTP/1.1\r\n";
    for (int count = 0; count < 100000; ++count)
        manyHeaders += "A" + std::to_string(count) + ": b\r\n";
    EXPECT_THAT(answerTo(manyHeaders + "\r\n"), testing::Not(HasSubstr(" 200 ")));
}

TEST_F(XmlRpcServerTest, tellsWhatIsMalformed)
{
    const std::string nul("A: b\0c\r\n", 9);
    for (const auto &[lines, reason] : std::vector<std::pair<std::string, std::string>>{
             {"Content-Length : 5\r\n", "bad field"},
             {"no colon\r\n", "bad field"},
             {": b\r\n", "bad field"},
             {"A\tB: c\r\n", "bad field"},
             {nul, "bad value"},
             {"A: b\x01\r\n", "bad value"},
             {"A: b\nC: d\r\n", "bad value"},
             {"Content-Length: 5, 6\r\n", "bad Content-Length"},
             {"Transfer-Encoding: chunked\r\nTransfer-Encoding: chunked\r\n", "bad Transfer-Encoding"}}) {
        const std::string answer = answerTo("POST / HTTP/1.1\r\n" + lines + "\r\n" + GoodCall);
        EXPECT_THAT(answer, StartsWith("HTTP/1.1 400")) << lines;
        EXPECT_THAT(answer, testing::EndsWith("\r\n\r\nMalformed HTTP: " + reason + "\n")) << lines;
    }
    EXPECT_THAT(answerTo("POST / HTTP/9.9\r\n\r\n"), testing::EndsWith("Malformed HTTP: bad version\n"));
    EXPECT_THAT(answerTo("\r\n\r\n"), testing::EndsWith("Malformed HTTP: bad method\n"));
    EXPECT_THAT(
        answerTo("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n"),
        testing::EndsWith("Malformed HTTP: bad chunk\n"));
    const RawSocket cut(port());
    cut.send("POST / HTTP/1.1\r\nContent-Type: te");
    cut.sendNoMore();
    EXPECT_THAT(cut.receive(), testing::EndsWith("The request is cut short\n"));
}

TEST_F(XmlRpcServerTest, refusesHeadersThatAreToldTwice)
{
    for (const char *header : {"Host: localhost\r\n", "Content-Type: text/xml\r\n",
                               "Sec-Fetch-Site: none\r\nSec-Fetch-Site: none\r\n",
                               "Authorization: Bearer a\r\nAuthorization: Bearer b\r\n"})
        EXPECT_THAT(answerTo(post(GoodCall, header)), StartsWith("HTTP/1.1 400")) << header;
}

TEST_F(XmlRpcServerTest, tellsThatItIsReadyForTheContent)
{
    const RawSocket socket(port());
    const std::string request = post(GoodCall, "Connection: close\r\nExpect: 100-continue\r\n");
    const std::size_t header = request.size() - GoodCall.size();
    socket.send(request.substr(0, header));
    EXPECT_EQ(socket.receive("\r\n\r\n"), "HTTP/1.1 100 Continue\r\n\r\n");
    socket.send(request.substr(header));
    EXPECT_THAT(socket.receive(), HasSubstr(GoodReply));
}

TEST_F(XmlRpcServerTest, survivesClientsThatGoAway)
{
    for (int count = 0; count < 20; ++count) {
        const RawSocket opened(port());
        const RawSocket begun(port());
        begun.send("POST / HT");
        const RawSocket unread(port());
        unread.send(post(GoodCall));
    }
}

TEST_F(XmlRpcServerTest, endsSlowSenders)
{
    // Silent in the header and in the content
    for (const char *begin :
         {"POST / HTTP/1.1\r\nA: ",
          "POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: 10\r\n\r\n<meth"}) {
        const RawSocket silent(port());
        const auto since = std::chrono::steady_clock::now();
        silent.send(begin);
        EXPECT_THAT(silent.receive(),
                    testing::AnyOf(StartsWith("HTTP/1.1 408"), StartsWith("HTTP/1.1 400"), ""))
            << begin;
        EXPECT_LT(std::chrono::steady_clock::now() - since, 3s) << begin;
    }
    // Never silent for long, and never ready
    const RawSocket trickle(port());
    trickle.send("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: 1000\r\n\r\n");
    std::atomic<bool> isOver{false};
    std::thread sender([&] {
        for (int count = 0; count < 100 && !isOver; ++count) {
            trickle.send("x");
            std::this_thread::sleep_for(50ms);
        }
    });
    const auto since = std::chrono::steady_clock::now();
    EXPECT_THAT(trickle.receive("\r\n\r\n"), StartsWith("HTTP/1.1 408"));
    EXPECT_LT(std::chrono::steady_clock::now() - since, 2s);
    isOver = true;
    sender.join();
}

TEST_F(XmlRpcServerTest, answersOthersBesideSlowSenders)
{
    stop();
    start({}); // with the timeouts of every day
    std::vector<std::unique_ptr<RawSocket>> slow;
    for (int count = 0; count < 60; ++count) {
        slow.push_back(std::make_unique<RawSocket>(port()));
        slow.back()->send("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: 10\r\n\r\n<");
    }
    const auto since = std::chrono::steady_clock::now();
    expectGoodAnswer();
    EXPECT_LT(std::chrono::steady_clock::now() - since, 2s); // long before the first of them times out
}

TEST_F(XmlRpcServerTest, answersEightClientsAtOnce)
{
    std::vector<std::future<int>> clients;
    clients.reserve(8);
    for (int client = 0; client < 8; ++client) {
        clients.push_back(std::async(std::launch::async, [this, client] {
            const XmlRpcClient rpc(QStringLiteral("127.0.0.1"), port(), 5s);
            int right = 0;
            for (int call = 0; call < 25; ++call) {
                XmlRpcValue params;
                params[0] = client * 1000 + call;
                const XmlRpcValue answer = rpc.call(QStringLiteral("echo"), params);
                right +=
                    answer.size() == 1 && static_cast<const int &>(answer[0]) == client * 1000 + call ? 1 : 0;
            }
            return right;
        }));
    }
    for (auto &client : clients)
        EXPECT_EQ(client.get(), 25);
}

/// Serves as long as it lives.
class RunningServer
{
public:
    RunningServer(XmlRpcServer::Handler handler, const XmlRpcServerOptions &options)
        : m_server(std::move(handler), options)
    {
        m_server.listen();
        m_thread = std::thread([this] { m_server.run(); });
    }
    ~RunningServer()
    {
        m_server.stop();
        m_thread.join();
    }
    RunningServer(const RunningServer &) = delete;
    RunningServer &operator=(const RunningServer &) = delete;

    int port() const { return m_server.port(); }

private:
    XmlRpcServer m_server;
    std::thread m_thread{};
};

TEST(XmlRpcServer, stopsWithClientsThatWaitAndThatHang)
{
    XmlRpcServer server(handle);
    server.listen();
    std::thread thread([&] { server.run(); });
    const RawSocket idle(server.port());
    const RawSocket slow(server.port());
    slow.send("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: 10\r\n\r\n<");
    const RawSocket busy(server.port());
    busy.send(post(
        "<methodCall><methodName>slow</methodName><params><param><value><i4>5</i4></value></param></params>"
        "</methodCall>"));
    std::this_thread::sleep_for(100ms);

    const auto begin = std::chrono::steady_clock::now();
    server.stop();
    thread.join();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 2s);
    EXPECT_THAT(busy.receive(), HasSubstr(GoodReply)); // what has begun is finished
    EXPECT_THROW(RawSocket(server.port()), std::runtime_error);
}

TEST(XmlRpcServer, stopsBeforeItRuns)
{
    XmlRpcServer server(handle);
    server.listen();
    server.stop();
    server.run();
    SUCCEED();
}

TEST(XmlRpcServer, closesTheOldestOfTooManyConnections)
{
    XmlRpcServerOptions options;
    options.connections = 3;
    const RunningServer running(handle, options);
    const RawSocket oldest(running.port());
    oldest.send("POST ");
    std::this_thread::sleep_for(50ms);
    const RawSocket second(running.port());
    const RawSocket third(running.port());
    std::this_thread::sleep_for(50ms);
    const RawSocket another(running.port());
    another.send(post(GoodCall));
    EXPECT_THAT(another.receive("</methodResponse>"), HasSubstr(GoodReply));
    EXPECT_EQ(oldest.receive(), "");
    second.send(post(GoodCall));
    EXPECT_THAT(second.receive("</methodResponse>"), HasSubstr(GoodReply));
}

std::string announced(int length)
{
    return "POST / HTTP/1.1\r\nContent-Type: text/xml\r\nContent-Length: " + std::to_string(length) +
           "\r\n\r\n";
}

TEST(XmlRpcServer, takesNoMoreLargeRequestsAtOnceThanThereIsRoomFor)
{
    XmlRpcServerOptions options;
    options.requestBytes = 100000;
    options.smallRequest = 1000;
    const RunningServer running(handle, options);
    const std::string blanks(60000 - std::string(GoodCall).size(), ' ');
    const std::string large = GoodCall + blanks;
    const RawSocket first(running.port());
    first.send(announced(60000) + large.substr(0, 50000));
    std::this_thread::sleep_for(50ms);

    const RawSocket second(running.port());
    second.send(announced(60000));
    EXPECT_THAT(second.receive(), StartsWith("HTTP/1.1 503"));
    const RawSocket chunked(running.port());
    chunked.send("POST / HTTP/1.1\r\nContent-Type: text/xml\r\nTransfer-Encoding: chunked\r\n\r\n");
    EXPECT_THAT(chunked.receive(), StartsWith("HTTP/1.1 503"));
    const RawSocket small(running.port());
    small.send(post(GoodCall));
    EXPECT_THAT(small.receive("</methodResponse>"), HasSubstr(GoodReply));

    first.send(large.substr(50000));
    EXPECT_THAT(first.receive("</methodResponse>"), HasSubstr(GoodReply));
    const RawSocket third(running.port());
    third.send(announced(60000) + large);
    EXPECT_THAT(third.receive("</methodResponse>"), HasSubstr(GoodReply));
    first.send(announced(60000)); // one that has gone away leaves its room as well
    first.sendNoMore();
    EXPECT_THAT(first.receive(), StartsWith("HTTP/1.1 400"));
    const RawSocket fourth(running.port());
    fourth.send(announced(60000) + large);
    EXPECT_THAT(fourth.receive("</methodResponse>"), HasSubstr(GoodReply));
}

/// A server of which the method "last" lasts until its client has gone, and that takes two of these at once.
class LongCalls : public testing::Test
{
protected:
    static XmlRpcServerOptions options()
    {
        XmlRpcServerOptions options;
        options.threads = 1;
        options.longCalls = 2;
        options.mayLast = [](const MethodCall &call) { return call.method == QStringLiteral("last"); };
        options.refuseLongCall = [](const MethodCall &) { return XmlRpcValue("too many"); };
        return options;
    }

    void awaitLasting(int count) const
    {
        for (int turn = 0; turn < 500 && m_lasting != count; ++turn)
            std::this_thread::sleep_for(10ms);
        EXPECT_EQ(m_lasting, count);
    }

    std::atomic<int> m_lasting{0};
    Ending m_end{};
    RunningServer m_running{[this](const MethodCall &call, Ending &gone) {
                                if (call.method == QStringLiteral("last")) {
                                    const Ending either{&m_end, &gone};
                                    ++m_lasting;
                                    either.wait(10s);
                                    --m_lasting;
                                }
                                return call.params;
                            },
                            options()};
    const std::string m_call =
        post("<methodCall><methodName>last</methodName><params><param><value><i4>5</i4></value>"
             "</param></params></methodCall>");
};

TEST_F(LongCalls, leaveTheWayFreeForShortOnes)
{
    const RawSocket first(m_running.port());
    const RawSocket second(m_running.port());
    first.send(m_call);
    second.send(m_call + post(GoodCall, "Connection: close\r\n"));
    awaitLasting(2);
    const RawSocket other(m_running.port());
    other.send(post(GoodCall));
    EXPECT_THAT(other.receive("</methodResponse>"), HasSubstr(GoodReply));
    other.send(m_call);
    EXPECT_THAT(other.receive("</methodResponse>"), HasSubstr("too many"));
    m_end.begin();
    EXPECT_THAT(first.receive("</methodResponse>"), HasSubstr(GoodReply));
    const std::string both = second.receive(); // what came meanwhile has had its turn
    EXPECT_NE(both.find(GoodReply), both.rfind(GoodReply));
}

TEST_F(LongCalls, hearThatTheirClientHasGone)
{
    auto first = std::make_unique<RawSocket>(m_running.port());
    auto second = std::make_unique<RawSocket>(m_running.port());
    first->send(m_call);
    second->send(m_call);
    awaitLasting(2);
    first.reset();
    awaitLasting(1);
    second->send("POST / HT"); // one that has more to say has not gone
    std::this_thread::sleep_for(50ms);
    awaitLasting(1);
    second.reset();
    awaitLasting(0);
}

XmlRpcServer *signalled = nullptr;

TEST(XmlRpcServer, stopsFromASignalHandler)
{
    XmlRpcServer server(handle);
    server.listen();
    signalled = &server;
    struct sigaction action = {};
    struct sigaction before = {};
    action.sa_handler = [](int) { signalled->stop(); };
    ASSERT_EQ(::sigaction(SIGUSR1, &action, &before), 0);
    std::thread thread([&] { server.run(); });
    std::this_thread::sleep_for(50ms);
    ::pthread_kill(thread.native_handle(), SIGUSR1);
    thread.join();
    ASSERT_EQ(::sigaction(SIGUSR1, &before, nullptr), 0);
}

TEST(XmlRpcServer, survivesSignalsThatAreNotMeantForIt)
{
    XmlRpcServer server(handle);
    server.listen();
    struct sigaction action = {};
    struct sigaction before = {};
    action.sa_handler = [](int) {};
    ASSERT_EQ(::sigaction(SIGUSR1, &action, &before), 0);
    std::thread thread([&] { server.run(); });
    std::this_thread::sleep_for(50ms);
    ::pthread_kill(thread.native_handle(), SIGUSR1);
    const RawSocket socket(server.port());
    socket.send(post(GoodCall, "Connection: close\r\n"));
    EXPECT_THAT(socket.receive(), HasSubstr(GoodReply));
    server.stop();
    thread.join();
    ASSERT_EQ(::sigaction(SIGUSR1, &before, nullptr), 0);
}

TEST(XmlRpcServer, saysWhyItCannotListen)
{
    XmlRpcServer first(handle);
    first.listen();
    ASSERT_GT(first.port(), 0);
    XmlRpcServerOptions options;
    options.port = first.port();
    XmlRpcServer second(handle, options);
    try {
        second.listen();
        FAIL() << "two servers on one port";
    } catch (const TransportError &error) {
        EXPECT_EQ(error.what(),
                  "Cannot listen on 127.0.0.1:" + std::to_string(first.port()) + ": Address already in use");
    }
    EXPECT_EQ(second.port(), 0);
}

} // namespace
