// SPDX-License-Identifier: LGPL-3.0-or-later
#include "trace.h"

#include "drivercalls.h"

#include "base/xmlrpcanswer.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using quv::FirmwareReply;
using quv::MethodCall;
using quv::Trace;
using quv::test::arrayOf;
using quv::test::ScriptedFirmware;
using testing::MatchesRegex;
using XmlRpc::XmlRpcValue;

class TraceTest : public testing::Test
{
protected:
    /// The one line since the last question.
    std::string line()
    {
        EXPECT_EQ(m_lines.size(), 1U);
        const std::string line = m_lines.empty() ? "" : m_lines.front();
        m_lines.clear();
        return line;
    }
    Trace::Write write()
    {
        return [this](const std::string &line) { m_lines.push_back(line); };
    }

    std::vector<std::string> m_lines{};
    Trace m_people{Trace::Form::People, write()};
    Trace m_json{Trace::Form::Json, write()};
};

MethodCall callOf(const char *method, const XmlRpcValue &params)
{
    return {QString::fromUtf8(method), params};
}

TEST_F(TraceTest, aCallIsToldWithItsEnd)
{
    const XmlRpcValue envelope = XmlRpcAnswer(4, QStringLiteral("told"), XmlRpcValue(42)).toXmlRpcValue();
    XmlRpcValue given = m_people.call(callOf("EXEC_B", arrayOf("TINT", "x")), [&] { return envelope; });
    EXPECT_TRUE(given == envelope);
    EXPECT_THAT(
        line(),
        MatchesRegex("....-..-..T.*Z  call  method EXEC_B  command TINT  ret_code 4  errors -  ms [0-9]+\n"));
}

TEST_F(TraceTest, whatNobodyKnowsIsNotTold)
{
    const auto nothing = [] { return XmlRpcValue(); };
    m_json.call(callOf("EXEC_B", arrayOf("secret", "secret", 5)), nothing);
    EXPECT_THAT(line(), testing::HasSubstr(R"("method":"EXEC_B","command":"",)"));
    m_json.call(callOf("EXEC_B", arrayOf(5)), nothing);
    EXPECT_THAT(line(), testing::HasSubstr(R"("command":"",)"));
    m_people.call({QString(100, QLatin1Char('x')) + QChar(0x202e), XmlRpcValue()}, nothing);
    EXPECT_THAT(line(), testing::HasSubstr("method " + std::string(40, 'x') + "...  command"));
    m_people.call({QString(QChar(0x202e)) + QLatin1Char('\n'), XmlRpcValue()}, nothing);
    EXPECT_THAT(line(), testing::HasSubstr("method \xEF\xBF\xBD\xEF\xBF\xBD  command"));
}

TEST_F(TraceTest, aCallThatThrowsIsToldToo)
{
    const auto fault = []() -> XmlRpcValue { throw quv::FaultException({-32601, QStringLiteral("no")}); };
    EXPECT_THROW(m_json.call(callOf("EXEC", arrayOf("TINT")), fault), quv::FaultException);
    EXPECT_THAT(line(), testing::HasSubstr(R"("command":"TINT","fault":-32601,"ms":)"));
    const auto failure = []() -> XmlRpcValue { throw std::runtime_error("no"); };
    EXPECT_THROW(m_json.call(callOf("EXEC", arrayOf("TINT")), failure), std::runtime_error);
    EXPECT_THAT(line(), testing::HasSubstr(R"("command":"TINT","failed":true,"ms":)"));
}

TEST_F(TraceTest, anExchangeIsToldWithItsReply)
{
    FirmwareReply reply{false, {QStringLiteral("1"), QString(50, QLatin1Char('A'))}};
    const auto firmware =
        m_json.watching(std::make_unique<ScriptedFirmware>([&] { return reply; }), QStringLiteral("mixer:2"));
    EXPECT_EQ(firmware->execute(QStringLiteral("0017"), 3, {1, 245}).tokens, reply.tokens);
    EXPECT_THAT(
        line(),
        testing::HasSubstr(
            R"("what":"exchange","machine":"mixer:2","code":"0017","module":3,"out":[1,245],"in":["1",")" +
            std::string(40, 'A') + R"(..."],"ms":)"));
    reply.refused = true;
    EXPECT_TRUE(firmware->execute(QStringLiteral("0017"), 0, {}).refused);
    EXPECT_THAT(line(), testing::HasSubstr(R"("out":[],"refused":["1",)"));
}

TEST_F(TraceTest, anExchangeThatFailsIsToldToo)
{
    const auto firmware = m_people.watching(
        std::make_unique<ScriptedFirmware>([]() -> FirmwareReply { throw std::runtime_error("no reply"); }),
        QStringLiteral("dispenser:1"));
    EXPECT_THROW(firmware->execute(QStringLiteral("0006"), 0, {}), std::runtime_error);
    EXPECT_THAT(line(), testing::HasSubstr(
                            "exchange  machine dispenser:1  code 0006  module 0  out -  failed true  ms "));
}

/// Works at a speed of its own, and knows what it was filled with.
class FilledFirmware final : public quv::Firmware
{
public:
    explicit FilledFirmware(double &filled) : m_filled(filled) {}
    FirmwareReply execute(const QString &, int, const QList<int> &) override { return {}; }
    double speed() const override { return 2.5; }
    void canisterFilled(int canisterID, double quantity) override { m_filled = canisterID + quantity; }

private:
    double &m_filled;
};

TEST_F(TraceTest, theFirmwareIsAsItWas)
{
    double filled = 0;
    const auto firmware = m_people.watching(std::make_unique<FilledFirmware>(filled), QString());
    EXPECT_EQ(firmware->speed(), 2.5);
    firmware->canisterFilled(7, 0.5);
    EXPECT_EQ(filled, 7.5);
    EXPECT_TRUE(m_lines.empty());
}

} // namespace
