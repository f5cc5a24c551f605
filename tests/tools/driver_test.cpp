// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/driver.h"

#include "drivercalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using quv::FirmwareReply;
using testing::HasSubstr;
using namespace quv::test;

const QStringList IdleMixerTokens = QStringLiteral("F 0 1 0 0 0 0 0 0 0 0 0 0 0 0 0").split(QLatin1Char(' '));

class DriverTest : public DriverFixture
{};

TEST_F(DriverTest, theStatusComesAsTheStructOfItsAnswer)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    const Envelope envelope = call("EXEC_B", "GET_STATUS");
    EXPECT_EQ(envelope.retCode, 0);
    EXPECT_EQ(envelope.info, QStringLiteral("GET_STATUS command executed successfully!"));
    EXPECT_TRUE(envelope.failures.isEmpty());
    EXPECT_TRUE(envelope.flag("head1_can_dose"));
    EXPECT_FALSE(envelope.flag("resetting"));
    EXPECT_EQ(firmware.asked, QStringList{QStringLiteral("0006 0 0")});
}

/// The reply to EXEC_B with \a params as the document that a client reads.
template <class... Params>
std::string documentFor(quv::Driver &driver, const Params &...params)
{
    quv::MethodCall call;
    call.method = QStringLiteral("EXEC_B");
    call.params = arrayOf(params...);
    quv::Ending never;
    return driver.reply(call, never).toStdString();
}

TEST_F(DriverTest, aStatusThatIsToldAgainIsTheOneThatTheMachineHasNow)
{
    constexpr char Resets[] = "<name>resetting</name><value><boolean>1</boolean>";
    constexpr char Rests[] = "<name>resetting</name><value><boolean>0</boolean>";
    QStringList resetting = IdleTokens;
    resetting[3] = QStringLiteral("40");
    FirmwareReply reply{false, IdleTokens};
    const ScriptedFirmware &firmware =
        addScripted(std::make_unique<FW_Dispenser>(), [&reply] { return reply; });
    for (int round = 0; round < 3; ++round) {
        reply = {false, IdleTokens};
        EXPECT_THAT(documentFor(*m_driver, "GET_STATUS"), HasSubstr(Rests));
        EXPECT_THAT(documentFor(*m_driver, "GET_STATUS", 5), HasSubstr(Rests));
        reply = {false, resetting};
        EXPECT_THAT(documentFor(*m_driver, "", "GET_STATUS"), HasSubstr(Resets));
        reply = {true, QStringList{QStringLiteral("6")}};
        EXPECT_THAT(documentFor(*m_driver, "GET_STATUS"), HasSubstr("DE03106"));
        reply = {false, QStringList{QStringLiteral("0")}};
        EXPECT_THAT(documentFor(*m_driver, "GET_STATUS"), HasSubstr("DE00066"));
    }
    EXPECT_EQ(firmware.asked.size(), 15); // each time
    const std::string failure = documentFor(*m_driver, "GET_STATUS");
    std::this_thread::sleep_for(5ms);
    EXPECT_NE(documentFor(*m_driver, "GET_STATUS"), failure); // its error tells when it happened
    EXPECT_THAT(documentFor(*m_driver, "GET_STATUS", "text"), HasSubstr("DE00298"));
    EXPECT_THAT(documentFor(*m_driver, "RESET", 1, 2), HasSubstr("<methodResponse>"));
}

TEST_F(DriverTest, argumentsReachTheFirmware)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    EXPECT_EQ(call("EXEC_B", "GET_STATUS", 5).retCode, 0);
    EXPECT_EQ(firmware.asked, QStringList{QStringLiteral("0006 5 0")});
}

TEST_F(DriverTest, anEmptyLeadingTextIsPassedOver)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    EXPECT_EQ(call("EXEC_B", "session 12", "GET_STATUS", 5).retCode, 1);
    EXPECT_EQ(call("EXEC_B", "", "GET_STATUS", 6).retCode, 0);
    EXPECT_EQ(firmware.asked, QStringList{QStringLiteral("0006 6 0")});
}

TEST_F(DriverTest, aCommandsNameIsNoLeadingText)
{
    addDispenser(IdleTokens);
    const Envelope envelope = call("EXEC_B", "GET_STATUS", "RESET");
    EXPECT_EQ(envelope.retCode, 1);
    EXPECT_EQ(envelope.error(), "DE00298 Position ID: expected INT parameter");
}

TEST_F(DriverTest, aDispenserOfFamily2IsAskedByItsOwnCode)
{
    auto dispenser = std::make_unique<FW_Dispenser>();
    dispenser->setCommandFamily(FW_Dispenser::CommandFamily2);
    const ScriptedFirmware &firmware = addScripted(std::move(dispenser), [] {
        return FirmwareReply{false, IdleTokens};
    });
    EXPECT_EQ(call("EXEC_B", "GET_STATUS").retCode, 0);
    EXPECT_EQ(firmware.asked, QStringList{QStringLiteral("I3 0 0")});
    const Envelope reset = call("EXEC_B", "RESET");
    EXPECT_EQ(reset.retCode, 3);
    EXPECT_EQ(reset.error(), "DE03105 The machine's firmware has no code for this command");
    EXPECT_EQ(firmware.asked.size(), 1);
}

TEST_F(DriverTest, aCommandGoesToTheMachineThatItIsFor)
{
    const ScriptedFirmware &mixer = addMixer(IdleMixerTokens);
    const ScriptedFirmware &dispenser = addDispenser({QStringLiteral("0")});
    EXPECT_EQ(call("EXEC_B", "MIXER_STATUS").retCode, 0);
    EXPECT_EQ(mixer.asked, QStringList{QStringLiteral("0033 0 0")});
    EXPECT_EQ(call("EXEC_B", "RESET").retCode, 0); // for both kinds
    EXPECT_EQ(dispenser.asked, QStringList{QStringLiteral("0001 0 0")});
    EXPECT_EQ(mixer.asked.size(), 1);
}

TEST_F(DriverTest, aMixerAloneGetsWhatIsForBothKinds)
{
    const ScriptedFirmware &mixer = addMixer({QStringLiteral("0")});
    EXPECT_EQ(call("EXEC_B", "RESET").retCode, 0);
    EXPECT_EQ(mixer.asked, QStringList{QStringLiteral("0001 0 0")});
    const Envelope status = call("EXEC_B", "GET_STATUS");
    EXPECT_EQ(status.retCode, 5);
    EXPECT_EQ(status.error(), "DE03104 This driver has no machine that carries out this command");
}

TEST_F(DriverTest, aSecondMachineOfTheSameIDIsRefused)
{
    addDispenser(IdleTokens);
    EXPECT_FALSE(m_driver->addMachine(std::make_unique<FW_Dispenser>(),
                                      std::make_unique<quv::SimulatedFirmware>(FW_Dispenser())));
}

TEST_F(DriverTest, requestsThatCannotBeUnderstood)
{
    const Envelope empty = call("EXEC_B");
    EXPECT_EQ(empty.retCode, 1);
    EXPECT_EQ(empty.error(), "DE03101 The request holds no command name");
    EXPECT_EQ(empty.info, QStringLiteral("Command failed! : Failed! Xml-rpc command invalid for Driver."));

    EXPECT_EQ(call("EXEC_B", 2147483647).error(),
              "DE03102 The command name must be a text, not the integer 2147483647");
    EXPECT_EQ(call("EXEC_B", 0.1).error(), "DE03102 The command name must be a text, not the double 0.1");
    EXPECT_EQ(call("EXEC_B", 0.30000000000000004).error(),
              "DE03102 The command name must be a text, not the double 0.30000000000000004");
    EXPECT_EQ(call("EXEC_B", true, "GET_STATUS").error(),
              "DE03102 The command name must be a text, not a boolean");
    EXPECT_EQ(call("EXEC_B", arrayOf("GET_STATUS")).error(),
              "DE03102 The command name must be a text, not an array");
}

TEST_F(DriverTest, anUnknownCommandIsNamedInAnyScript)
{
    const Envelope envelope = call("EXEC_B", "T\xC3\x8FNT \xE8\x89\xB2", 1);
    EXPECT_EQ(envelope.retCode, 1);
    ASSERT_EQ(envelope.failures.size(), 2);
    EXPECT_EQ(envelope.failures[0], QStringLiteral("DE00337 Command type not recognized"));
    EXPECT_EQ(envelope.failures[1],
              QString::fromUtf8("DE03103 The catalogue has no command \"T\xC3\x8FNT \xE8\x89\xB2\""));
    EXPECT_EQ(envelope.info,
              QString::fromUtf8("T\xC3\x8FNT ? : Failed! Xml-rpc command invalid for Driver."));
}

TEST_F(DriverTest, refusalsRepeatNoMoreThanIsNeeded)
{
    const QString quoted = QString(40, QLatin1Char('x')) + QStringLiteral("...");
    const std::string longText(500000, 'x');
    const Envelope unknown = call("EXEC_B", longText);
    ASSERT_EQ(unknown.failures.size(), 2);
    EXPECT_EQ(unknown.failures[1], QStringLiteral("DE03103 The catalogue has no command \"%1\"").arg(quoted));
    EXPECT_EQ(unknown.info, quoted + QStringLiteral(" : Failed! Xml-rpc command invalid for Driver."));
    EXPECT_EQ(call("EXEC_B", "GET_CMD_STATUS", longText).error(),
              "DE03111 There is no ticket \"" + quoted.toStdString() +
                  "\"; a result is kept for a minute, that of a pour for an hour or until it has been read");
    try {
        call(longText.c_str(), "GET_STATUS");
        ADD_FAILURE() << "no fault";
    } catch (const quv::FaultException &error) {
        EXPECT_EQ(error.fault().text, QStringLiteral("Unknown method \"%1\"").arg(quoted));
    }
}

TEST_F(DriverTest, aReplyThatCannotBeDecoded)
{
    addDispenser({QStringLiteral("2"), QStringLiteral("0"), QStringLiteral("1")});
    const Envelope envelope = call("EXEC_B", "GET_STATUS");
    EXPECT_EQ(envelope.retCode, 2);
    EXPECT_EQ(envelope.error(), "DE00066 Error during command answer decoding: bad length");
    EXPECT_EQ(envelope.info, QStringLiteral("GET_STATUS : Failed! Serial answer invalid for Driver."));
}

TEST_F(DriverTest, aCodeThatTheFirmwareDoesNotKnow)
{
    addDispenser(QStringLiteral("6 8 0 0 0 0 0").split(QLatin1Char(' ')), true);
    const Envelope envelope = call("EXEC_B", "RESET");
    EXPECT_EQ(envelope.retCode, 3);
    EXPECT_EQ(envelope.error(),
              "DE03106 The firmware refused the code 0001: Unknown command code (masks 0x8 and 0x0)");
}

TEST_F(DriverTest, aCommandThatTheFirmwareRefuses)
{
    addDispenser(QStringLiteral("6 10 1 0 0 0 0").split(QLatin1Char(' ')), true);
    const Envelope envelope = call("EXEC_B", "GET_STATUS");
    EXPECT_EQ(envelope.retCode, 4);
    EXPECT_EQ(envelope.error(), "DE03106 The firmware refused the code 0006: Wrong position ID, Command "
                                "refused because of errors (masks 0x10 and 0x1)");
    EXPECT_EQ(envelope.info,
              QStringLiteral("GET_STATUS : Failed! Command not executed due to errors on firmware."));
}

TEST_F(DriverTest, thePacketsOfErrorsAreNumberedFrom1)
{
    const ScriptedFirmware &firmware = addDispenser(QStringLiteral("3 1 1 1").split(QLatin1Char(' ')));
    for (const int wrong : {0, 245}) {
        const Envelope envelope = call("EXEC_B", "GET_ERROR_PKT", wrong);
        EXPECT_EQ(envelope.retCode, 1);
        EXPECT_EQ(envelope.error(),
                  "DE03420 A packet of errors has a number from 1 to 244, not " + std::to_string(wrong));
    }
    EXPECT_TRUE(firmware.asked.isEmpty());
    for (const int number : {1, 244})
        EXPECT_EQ(call("EXEC_B", "GET_ERROR_PKT", number).retCode, 2); // it was asked
    EXPECT_EQ(firmware.asked.size(), 2);
}

TEST_F(DriverTest, aLinkThatFails)
{
    addScripted(std::make_unique<FW_Dispenser>(),
                []() -> FirmwareReply { throw std::runtime_error("no reply within 2 s"); });
    const Envelope envelope = call("EXEC_B", "GET_STATUS");
    EXPECT_EQ(envelope.retCode, 8);
    EXPECT_EQ(envelope.error(), "DE03110 no reply within 2 s");
}

TEST_F(DriverTest, whatTheDriverDoesNotCarryOutYet)
{
    addDispenser(IdleTokens);
    for (const char *name : {"GET_DRIVER_INFO", "CHECK_BUSY"}) {
        const Envelope envelope = call("EXEC_B", name);
        EXPECT_EQ(envelope.retCode, 6) << name;
        EXPECT_EQ(envelope.error(),
                  "DE03107 This driver does not yet carry out this command, which needs no firmware")
            << name;
    }
}

TEST_F(DriverTest, aPlainLayoutOfTheWaitingMethodDoesNotWait)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS").retCode, 0);
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", 5).retCode, 0);
    EXPECT_EQ(firmware.asked, (QStringList{QStringLiteral("0006 0 0"), QStringLiteral("0006 5 0")}));
}

/// The last answer of a client that saw the machine idle.
XmlRpcValue idleAnswer(const XmlRpcValue &status)
{
    XmlRpcValue last;
    last["last_answer"] = status;
    return last;
}

TEST_F(DriverTest, waitingEndsWhenTheAnswerIsAnotherOne)
{
    int asked = 0;
    addScripted(std::make_unique<FW_Dispenser>(), [&asked] {
        QStringList tokens = IdleTokens;
        if (++asked > 3)
            tokens[3] = QStringLiteral("4"); // tinting
        return FirmwareReply{false, tokens};
    });
    const XmlRpcValue idle = call("EXEC_B", "GET_STATUS").answer;
    const Envelope changed = call("EXEC_NC", "", "GET_STATUS", idleAnswer(idle), 10, 10000);
    EXPECT_EQ(changed.retCode, 0);
    EXPECT_TRUE(changed.flag("tinting"));
    EXPECT_EQ(asked, 4);
}

TEST_F(DriverTest, waitingWithTheCommandsOwnArguments)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    XmlRpcValue parameters;
    parameters["cmd_parameters"] = arrayOf(5);
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", parameters, 10, 0).retCode, 0);
    EXPECT_EQ(firmware.asked, QStringList{QStringLiteral("0006 5 0")});
}

TEST_F(DriverTest, waitingEndsWithItsTimeAndTheSameAnswer)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    const XmlRpcValue idle = call("EXEC_B", "GET_STATUS").answer;
    const auto begin = std::chrono::steady_clock::now();
    const Envelope same = call("EXEC_NC", "GET_STATUS", idleAnswer(idle), 10, 100);
    const auto time = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(same.retCode, 0);
    EXPECT_FALSE(same.flag("tinting"));
    EXPECT_GE(time, 95ms);
    EXPECT_LT(time, 5s);
    EXPECT_GE(firmware.asked.size(), 3);
}

TEST_F(DriverTest, withoutALastAnswerThereIsNothingToWaitFor)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", 600, 600000).retCode, 0);
    EXPECT_EQ(firmware.asked.size(), 1);
}

TEST_F(DriverTest, whatCannotBeWaitedFor)
{
    const ScriptedFirmware &firmware = addDispenser(IdleTokens);
    const std::string times = "DE03114 The interval must be at least 10 ms, the timeout 0 to 600000 ms";
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", 9, 1000).error(), times);
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", 10, 600001).error(), times);
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", 10, -1).error(), times);
    XmlRpcValue parameters;
    parameters["cmd_parameters"] = arrayOf(formula({}));
    const Envelope pour = call("EXEC_NC", "PRIMING2", parameters, 10, 1000);
    EXPECT_NE(pour.retCode, 0);
    EXPECT_TRUE(firmware.asked.isEmpty());
    EXPECT_EQ(call("EXEC_NC", "GET_DRIVER_INFO", 10, 1000).retCode, 6);
    XmlRpcValue noAnswer;
    noAnswer["last_answer"] = "idle";
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", noAnswer, 10, 1000).retCode, 1);
}

TEST_F(DriverTest, aRefusalEndsTheWaiting)
{
    int asked = 0;
    addScripted(std::make_unique<FW_Dispenser>(), [&asked] {
        if (++asked > 2)
            return FirmwareReply{true, QStringLiteral("6 10 0 0 0 0 0").split(QLatin1Char(' '))};
        return FirmwareReply{false, IdleTokens};
    });
    const XmlRpcValue idle = call("EXEC_B", "GET_STATUS").answer;
    EXPECT_EQ(call("EXEC_NC", "GET_STATUS", idleAnswer(idle), 10, 10000).retCode, 4);
    EXPECT_EQ(asked, 3);
}

TEST_F(DriverTest, theDriversEndInterruptsTheWaiting)
{
    addDispenser(IdleTokens);
    const XmlRpcValue idle = call("EXEC_B", "GET_STATUS").answer;
    auto waiting = std::async(
        std::launch::async, [&] { return call("EXEC_NC", "GET_STATUS", idleAnswer(idle), 600000, 600000); });
    EXPECT_EQ(waiting.wait_for(50ms), std::future_status::timeout);
    m_driver->stop();
    ASSERT_EQ(waiting.wait_for(5s), std::future_status::ready);
    const Envelope envelope = waiting.get();
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.error(), "DE03116 The driver ends before the command has");
}

TEST_F(DriverTest, aClientThatGoesInterruptsItsWaitingAndNothingElse)
{
    addDispenser(IdleTokens);
    const XmlRpcValue idle = call("EXEC_B", "GET_STATUS").answer;
    auto waiting = std::async(
        std::launch::async, [&] { return call("EXEC_NC", "GET_STATUS", idleAnswer(idle), 600000, 600000); });
    EXPECT_EQ(waiting.wait_for(50ms), std::future_status::timeout);
    m_gone.begin();
    ASSERT_EQ(waiting.wait_for(5s), std::future_status::ready);
    const Envelope envelope = waiting.get();
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.error(), "DE03131 The client has gone before the answer has changed");
    EXPECT_EQ(call("EXEC_B", "GET_STATUS").retCode, 0);
}

TEST_F(DriverTest, whatPoursOrWaitsMayLast)
{
    const auto mayLast = [](const char *method, const auto &...params) {
        return quv::Driver::mayLast({QLatin1String(method), arrayOf(params...)});
    };
    const XmlRpcValue last = idleAnswer(5);
    EXPECT_TRUE(mayLast("EXEC_B", "TINT"));
    EXPECT_TRUE(mayLast("EXEC_NC", "PURGE", 1));
    EXPECT_TRUE(mayLast("EXEC_B", "lead", "FINALIZE_CONFIG"));
    EXPECT_TRUE(mayLast("EXEC_NC", "GET_STATUS", last, 10, 10));
    EXPECT_TRUE(mayLast("EXEC_NC", "lead", "GET_STATUS", 10, 10));
    EXPECT_FALSE(mayLast("EXEC_B", "GET_STATUS", last, 10, 10));
    EXPECT_FALSE(mayLast("EXEC_NC", "GET_STATUS"));
    EXPECT_FALSE(mayLast("EXEC_B", "STOP"));
    EXPECT_FALSE(mayLast("EXEC_NB", "TINT"));
    EXPECT_FALSE(mayLast("EXEC_NB", "FINALIZE_CONFIG"));
    EXPECT_FALSE(mayLast("EXEC_B", "NOPE"));
    EXPECT_FALSE(mayLast("EXEC_B", 5));
    EXPECT_FALSE(mayLast("OTHER", "TINT"));
}

TEST_F(DriverTest, aCallTooManyOfThoseThatLastIsRefused)
{
    const Envelope envelope(quv::Driver::refuseLongCall({QStringLiteral("EXEC_B"), arrayOf("TINT")}));
    EXPECT_EQ(envelope.retCode, 6);
    EXPECT_EQ(envelope.error(),
              "DE03130 Too many calls wait for their end; a call with a ticket (EXEC_NB) does not");
}

TEST_F(DriverTest, anUnknownMethodIsAFault)
{
    for (const char *method : {"", "exec_b", "EXEC_", "system.listMethods"}) {
        try {
            m_driver->call({QLatin1String(method), arrayOf("GET_STATUS")}, m_gone);
            ADD_FAILURE() << method;
        } catch (const quv::FaultException &error) {
            EXPECT_EQ(error.fault().code, -32601) << method;
        }
    }
}

TEST_F(DriverTest, aProcessShowsInTheStatusThatFollows)
{
    qint64 now = 0;
    auto machine = std::make_unique<FW_Dispenser>();
    auto firmware = std::make_unique<quv::SimulatedFirmware>(*machine, 1, [&now] { return now; });
    m_driver->addMachine(std::move(machine), std::move(firmware));
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("resetting"));
    EXPECT_EQ(call("EXEC_B", "RESET").retCode, 0);
    EXPECT_TRUE(call("EXEC_B", "GET_STATUS").flag("resetting"));
    EXPECT_EQ(call("EXEC_B", "RESET").retCode, 4);
    now = 6000;
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("resetting"));
}

TEST_F(DriverTest, aMachineIsAskedByOneRequestAtATime)
{
    std::atomic<int> inside{0};
    std::atomic<int> most{0};
    addScripted(std::make_unique<FW_Dispenser>(), [&] {
        const int now = ++inside;
        if (now > most)
            most = now;
        std::this_thread::sleep_for(2ms);
        --inside;
        return FirmwareReply{false, IdleTokens};
    });
    std::vector<std::thread> clients;
    clients.reserve(8);
    for (int i = 0; i < 8; ++i)
        clients.emplace_back([&] {
            for (int n = 0; n < 5; ++n)
                EXPECT_EQ(call("EXEC_B", "GET_STATUS").retCode, 0);
        });
    for (std::thread &client : clients)
        client.join();
    EXPECT_EQ(most, 1);
}

TEST_F(DriverTest, aBusyMachineHoldsUpNobodyElse)
{
    std::promise<void> entered;
    std::promise<void> release;
    addScripted(std::make_unique<FW_Dispenser>(), [&] {
        entered.set_value();
        release.get_future().wait();
        return FirmwareReply{false, IdleTokens};
    });
    addMixer(IdleMixerTokens);
    auto busy = std::async(std::launch::async, [&] { return call("EXEC_B", "GET_STATUS").retCode; });
    entered.get_future().wait();

    auto others = std::async(std::launch::async, [&] {
        return std::vector<int>{call("EXEC_B", "MIXER_STATUS").retCode,
                                call("EXEC_B", "GET_DRIVER_INFO").retCode, call("EXEC_B", "NOPE").retCode};
    });
    EXPECT_EQ(others.wait_for(5s), std::future_status::ready);
    EXPECT_EQ(busy.wait_for(0s), std::future_status::timeout);
    release.set_value();
    EXPECT_EQ(others.get(), (std::vector<int>{0, 6, 1}));
    EXPECT_EQ(busy.get(), 0);
}

} // namespace
