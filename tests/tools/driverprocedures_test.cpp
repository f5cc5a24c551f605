// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "pouringmachine.h"

#include <QtCore/QDateTime>
#include <QtCore/QMap>

#include <chrono>
#include <future>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using namespace quv::test;
using quv::FirmwareReply;

using ProcClock = std::chrono::steady_clock;

FirmwareReply tokensOf(const char *tokens)
{
    return {false, QString::fromLatin1(tokens).split(QLatin1Char(' '))};
}

/// Notes what it is asked in words and lets the test reply.
class ToldFirmware final : public quv::Firmware
{
public:
    using Reply = std::function<FirmwareReply(const QString &asked)>;
    explicit ToldFirmware(Reply reply) : m_reply(std::move(reply)) {}

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override
    {
        QString words = QStringLiteral("%1@%2").arg(code).arg(module);
        for (const int parameter : parameters)
            words += QStringLiteral(" %1").arg(parameter);
        const std::lock_guard lock(m_mutex);
        m_asked.append(words);
        return m_reply(words);
    }
    double speed() const override { return 1000; }

    /// All but the questions for a status.
    std::string asked(const char *code = "") const
    {
        const std::lock_guard lock(m_mutex);
        QStringList told;
        for (const QString &words : m_asked) {
            if (words.startsWith(QLatin1String(code)) && (*code || !words.startsWith(QLatin1String("0006"))))
                told.append(words);
        }
        return told.join(QStringLiteral(", ")).toStdString();
    }

private:
    const Reply m_reply;
    mutable std::mutex m_mutex{};
    QStringList m_asked{};
};

/// A machine of four circuits that each stir for 30 s, at most two at once.
FW_Dispenser stirringMachine()
{
    FW_Dispenser machine = pouringMachine();
    FW_StirringMotor motor;
    motor.setStirringActivity(30);
    machine.setStirringMotor(motor);
    machine.setStirringParallelism(2);
    return machine;
}

class DriverProceduresTest : public DriverFixture
{
protected:
    ToldFirmware &add(const FW_Dispenser &machine, ToldFirmware::Reply reply)
    {
        auto firmware = std::make_unique<ToldFirmware>(std::move(reply));
        ToldFirmware &added = *firmware;
        m_driver->addMachine(std::make_unique<FW_Dispenser>(machine), std::move(firmware));
        return added;
    }
    std::string begin(const XmlRpcValue &params)
    {
        const Envelope envelope = exec("EXEC_NB", params);
        EXPECT_EQ(envelope.retCode, 0) << envelope.error();
        return envelope.text("ticket_id");
    }
    Envelope ticket(const std::string &id) { return call("EXEC_B", "GET_CMD_STATUS", id); }
    Envelope end(const std::string &id)
    {
        waitFor([&] { return ticket(id).number("status") <= 0; });
        return ticket(id);
    }
    template <class Condition>
    static void waitFor(Condition condition)
    {
        const auto until = ProcClock::now() + 20s;
        while (!condition()) {
            if (ProcClock::now() > until)
                throw std::logic_error("it never comes");
            std::this_thread::sleep_for(1ms);
        }
    }
};

TEST_F(DriverProceduresTest, theErrorsOfAllPackets)
{
    const ToldFirmware &firmware = add(pouringMachine(), [](const QString &asked) {
        if (asked == QLatin1String("000C@0 245"))
            return tokensOf("3 3 0 2");         // three errors in two packets
        if (asked == QLatin1String("000C@0 1")) // two of the hardware: 300 of module 7, 5 of the machine
            return tokensOf("D 1 1 2 7 36 1 0 2 0 5 0 0 0");
        return tokensOf("8 2 2 1 4 9 0 0 1F"); // one of the configuration
    });
    const Envelope envelope = call("EXEC_B", "GET_ERRORS");
    ASSERT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_EQ(firmware.asked(), "000C@0 245, 000C@0 1, 000C@0 2");
    const XmlRpcValue errors = envelope.member("fw_errors");
    ASSERT_EQ(errors.size(), 3);
    const auto number = [&](int i, const char *key) {
        int value = -1;
        DecodeXmlRpcValue(*FindXmlRpcElement(errors, i), key, value);
        return value;
    };
    EXPECT_EQ(number(0, "error_type"), 2);
    EXPECT_EQ(number(1, "error_type"), 2);
    EXPECT_EQ(number(2, "error_type"), 3);
    const FW_HwError first(*FindXmlRpcElement(errors, 0));
    EXPECT_EQ(first.code(), 300);
    EXPECT_EQ(FW_HwError(*FindXmlRpcElement(errors, 1)).code(), 5);
    EXPECT_EQ(FW_ConfError(*FindXmlRpcElement(errors, 2)).code(), 9);
}

TEST_F(DriverProceduresTest, withoutErrorsNoPacketIsAskedFor)
{
    const ToldFirmware &firmware = add(pouringMachine(), [](const QString &) { return tokensOf("3 0 0 0"); });
    EXPECT_EQ(call("EXEC_B", "GET_ERRORS").member("fw_errors").size(), 0);
    EXPECT_EQ(firmware.asked(), "000C@0 245"); // the packet 0 would clear the buffer
}

TEST_F(DriverProceduresTest, anErrorKeepsTheTimeWhenItWasFirstRead)
{
    int raised = 1; // that many times the same error, 2 of module 7
    add(pouringMachine(), [&raised](const QString &asked) {
        if (asked == QLatin1String("000C@0 0"))
            return tokensOf("0");
        if (asked == QLatin1String("000C@0 245"))
            return tokensOf(raised == 1 ? "3 1 0 1" : "3 2 0 1");
        return tokensOf(raised == 1 ? "8 1 1 1 7 2 0 0 0" : "D 1 1 2 7 2 0 0 0 7 2 0 0 0");
    });
    const auto times = [this] {
        std::this_thread::sleep_for(2ms);
        const XmlRpcValue errors = call("EXEC_B", "GET_ERRORS").member("fw_errors");
        std::vector<QDateTime> told;
        for (int i = 0; i < errors.size(); ++i)
            told.push_back(FW_HwError(*FindXmlRpcElement(errors, i)).timestamp());
        return told;
    };
    const std::vector<QDateTime> first = times();
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(times(), first);
    raised = 2;
    const std::vector<QDateTime> second = times();
    ASSERT_EQ(second.size(), 2U);
    EXPECT_EQ(second[0], first[0]);
    EXPECT_GT(second[1], first[0]);
    EXPECT_EQ(times(), second);
    raised = 1;
    ASSERT_EQ(call("EXEC_B", "CLEAR_ERRORS").retCode, 0);
    const std::vector<QDateTime> third = times();
    ASSERT_EQ(third.size(), 1U);
    EXPECT_GT(third[0], second[1]);
}

TEST_F(DriverProceduresTest, whatTheFirmwareRefusesEndsAProcedure)
{
    add(pouringMachine(), [](const QString &) {
        return FirmwareReply{true, tokensOf("6 0 8 0 0 0 0").tokens};
    });
    const Envelope envelope = call("EXEC_B", "GET_ERRORS");
    EXPECT_EQ(envelope.retCode, 4);
    EXPECT_EQ(envelope.error(),
              "DE03106 The firmware refused the code 000C: Machine not available (masks 0x0 and 0x8)");
    EXPECT_EQ(call("EXEC_B", "STIR_ALL").retCode, 1); // it has no stirrers
}

TEST_F(DriverProceduresTest, errorsThatOthersClearMeanwhileAreNoRefusal)
{
    bool isCleared = false;
    const ToldFirmware &firmware = add(pouringMachine(), [&isCleared](const QString &asked) {
        if (asked == QLatin1String("000C@0 245"))
            return tokensOf(isCleared ? "3 1 0 1" : "3 6 0 2"); // one error in one packet, or six in two
        if (asked == QLatin1String("000C@0 1"))
            return tokensOf(isCleared ? "8 1 1 1 2 9 0 0 0" : "8 1 1 1 2 5 0 0 0");
        isCleared = true; // before the second packet
        return FirmwareReply{true, tokensOf("6 20 0 0 0 0 0").tokens};
    });
    const Envelope envelope = call("EXEC_B", "GET_ERRORS");
    ASSERT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_EQ(firmware.asked(), "000C@0 245, 000C@0 1, 000C@0 2, 000C@0 245, 000C@0 1");
    const XmlRpcValue errors = envelope.member("fw_errors");
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(FW_HwError(*FindXmlRpcElement(errors, 0)).code(), 9);
}

TEST_F(DriverProceduresTest, aPacketThatIsRefusedThoughItIsThereEndsTheQuestion)
{
    const ToldFirmware &firmware = add(pouringMachine(), [](const QString &asked) {
        return asked == QLatin1String("000C@0 245") ? tokensOf("3 1 0 1")
                                                    : FirmwareReply{true, tokensOf("6 20 0 0 0 0 0").tokens};
    });
    EXPECT_EQ(call("EXEC_B", "GET_ERRORS").error(),
              "DE03106 The firmware refused the code 000C: Bad command parameters (masks 0x20 and 0x0)");
    EXPECT_EQ(firmware.asked(), "000C@0 245, 000C@0 1, 000C@0 245");
}

TEST_F(DriverProceduresTest, theStatusOfCircuits)
{
    const ToldFirmware &firmware = add(pouringMachine(), [](const QString &asked) {
        return tokensOf(asked == QLatin1String("0006@3") ? "E 0 1 10 0 0 0 0 F5 F5 4 0 0 0 0"
                                                         : "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0");
    });
    const auto stirs = [](const Envelope &envelope) {
        const XmlRpcValue answers = envelope.member("circuits_status_answers");
        QStringList told;
        for (int i = 0; i < answers.size(); ++i) {
            int position = 0;
            XmlRpcValue status;
            bool stirring = false;
            DecodeXmlRpcValue(*FindXmlRpcElement(answers, i), "position_id", position);
            DecodeXmlRpcMember(*FindXmlRpcElement(answers, i), "status_answer", status);
            DecodeXmlRpcValue(status, "stirring", stirring);
            told.append(QStringLiteral("%1 %2").arg(position).arg(stirring));
        }
        return told.join(QStringLiteral(", ")).toStdString();
    };
    EXPECT_EQ(stirs(call("EXEC_B", "GET_CIRCUITS_STATUS")), "1 0, 2 0, 3 1, 4 0");
    EXPECT_EQ(firmware.asked("0006"), "0006@1, 0006@2, 0006@3, 0006@4");
    EXPECT_EQ(stirs(call("EXEC_B", "GET_CIRCUITS_STATUS", 3)), "3 1");
    EXPECT_EQ(call("EXEC_B", "GET_CIRCUITS_STATUS", 9).retCode, 1);

    // a waiting for a change gathers anew each time
    XmlRpcValue last;
    last["last_answer"] = call("EXEC_B", "GET_CIRCUITS_STATUS").answer;
    EXPECT_EQ(stirs(call("EXEC_NC", "GET_CIRCUITS_STATUS", last, 10, 50)), "1 0, 2 0, 3 1, 4 0");
}

TEST_F(DriverProceduresTest, aPauseIsWaitedFor)
{
    const ToldFirmware &firmware = add(pouringMachine(), [](const QString &) { return tokensOf("0"); });
    const auto begun = ProcClock::now();
    EXPECT_EQ(call("EXEC_B", "PAUSE", 50000).retCode, 0); // a thousand times faster
    EXPECT_GE(ProcClock::now() - begun, 50ms);
    EXPECT_EQ(firmware.asked(), "");
    for (const int time : {-1, 600001}) {
        EXPECT_EQ(call("EXEC_B", "PAUSE", time).retCode, 1);
        EXPECT_EQ(call("EXEC_NB", "PAUSE", time).error(), "DE03412 A pause lasts 0 to 600000 ms");
    }
    EXPECT_EQ(call("EXEC_B", "PAUSE", 0).retCode, 0);
}

class SlowPauseTest : public DriverProceduresTest
{
protected:
    SlowPauseTest() { addSimulated(pouringMachine(), 1); }
    std::string pause() { return begin(arrayOf("PAUSE", 600000)); }
};

TEST_F(SlowPauseTest, aPauseIsStopped)
{
    const std::string id = pause();
    waitFor([&] { return ticket(id).number("status") == 1; });
    EXPECT_GT(ticket(id).number("time_left"), 590000);
    EXPECT_EQ(call("EXEC_B", "STOP", 0, 2).retCode, 0); // spares procedures
    EXPECT_EQ(ticket(id).number("status"), 1);
    EXPECT_EQ(call("EXEC_B", "STOP", 0, 1).retCode, 0);
    const Envelope stopped = end(id);
    EXPECT_EQ(stopped.number("status"), -3);
    const Envelope envelope(stopped.member("cmd_answer"));
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.error(), "DE03410 PAUSE was stopped before its end");
    const std::string other = pause();
    EXPECT_EQ(call("EXEC_B", "RESET").retCode, 0);
    EXPECT_EQ(end(other).number("status"), -3);
}

TEST_F(DriverProceduresTest, aPauseOfAFamilyWithoutACodeToStopIsStopped)
{
    FW_Dispenser machine = pouringMachine();
    machine.setCommandFamily(FW_Dispenser::CommandFamily2);
    const WatchedFirmware &firmware = addSimulated(machine, 1);
    const std::string id = begin(arrayOf("PAUSE", 600000));
    waitFor([&] { return ticket(id).number("status") == 1; });
    for (const int type : {0, 2}) {
        const Envelope refused = call("EXEC_B", "STOP", 0, type);
        EXPECT_EQ(refused.retCode, 3);
        EXPECT_EQ(refused.error(), "DE03105 The machine's firmware has no code for this command");
    }
    EXPECT_EQ(ticket(id).number("status"), 1);
    EXPECT_EQ(call("EXEC_B", "STOP", 0, 1).error(), "");
    const Envelope stopped = end(id);
    EXPECT_EQ(stopped.number("status"), -3);
    EXPECT_EQ(Envelope(stopped.member("cmd_answer")).error(), "DE03410 PAUSE was stopped before its end");
    EXPECT_TRUE(firmware.received.isEmpty());
}

TEST_F(SlowPauseTest, theDriversEndEndsAPause)
{
    const std::string id = pause();
    m_driver->stop();
    EXPECT_EQ(Envelope(end(id).member("cmd_answer")).error(),
              "DE03116 The driver ends before the command has; the machine goes on by itself");
}

TEST_F(SlowPauseTest, manyPausesDelayNothingElse)
{
    for (int i = 0; i < 40; ++i)
        pause();
    EXPECT_EQ(end(begin(arrayOf("GET_STATUS"))).number("status"), 0);
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
}

/// Stirrers of 30 ms each, which is 30 s on a machine a thousand times faster than real.
class StirrersTest : public DriverProceduresTest
{
protected:
    ToldFirmware &addStirrers(const FW_Dispenser &machine = stirringMachine())
    {
        return add(machine, [this](const QString &asked) {
            const int module = asked.section(QLatin1Char('@'), 1).section(QLatin1Char(' '), 0, 0).toInt();
            const auto now = ProcClock::now();
            if (asked.startsWith(QLatin1String("0006")))
                return tokensOf(now < m_ends.value(module) ? "E 0 1 10 0 0 0 0 F5 F5 4 0 0 0 0"
                                                           : "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0");
            if (asked.startsWith(QLatin1String("0003")))
                m_ends.clear();
            if (asked.startsWith(QLatin1String("0004"))) {
                int running = 0;
                for (const auto &end : m_ends)
                    running += now < end ? 1 : 0;
                m_most = std::max(m_most, running + 1);
                m_gaps.push_back(now - m_lastEnd);
                m_ends[module] = now + (module > 2 && m_timeOfLater > 0s ? m_timeOfLater : m_time);
                m_lastEnd = std::max(m_lastEnd, m_ends[module]);
            }
            return tokensOf("0");
        });
    }

    // used by the firmware, whose exchanges are one at a time
    ProcClock::duration m_time = 30ms;
    ProcClock::duration m_timeOfLater{}; ///< of the circuits 3 and 4, when it is another
    QMap<int, ProcClock::time_point> m_ends{};
    ProcClock::time_point m_lastEnd{};
    int m_most = 0; ///< that stirred at once
    std::vector<ProcClock::duration> m_gaps{};
};

TEST_F(StirrersTest, circuitsAreStirredInBatches)
{
    const ToldFirmware &firmware = addStirrers();
    const auto begun = ProcClock::now();
    const Envelope envelope =
        call("EXEC_B", "STIR_ALL", -1, 0, false, 20000); // 20 ms between the two batches
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_GE(ProcClock::now() - begun, 80ms);
    EXPECT_EQ(firmware.asked(), "0004@1 30 0 0, 0004@2 30 0 0, 0004@3 30 0 0, 0004@4 30 0 0");
    EXPECT_EQ(m_most, 2);
    EXPECT_GE(m_gaps[2], 20ms); // since all of the first batch stood still
}

TEST_F(StirrersTest, oneAfterTheOther)
{
    const ToldFirmware &firmware = addStirrers();
    XmlRpcValue items;
    items[0]["item"] = 4;
    items[0]["duration"] = 300;
    items[1]["item"] = 2;
    items[1]["duration"] = 10;
    const Envelope envelope = call("EXEC_B", "STIR_ALL", items, 0, true, 0);
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_EQ(firmware.asked(), "0004@4 54 1 0, 0004@2 10 0 0");
    EXPECT_EQ(m_most, 1);
}

TEST_F(StirrersTest, oneMotorForAll)
{
    FW_Dispenser machine = stirringMachine();
    machine.setGlobalStirring(true);
    const ToldFirmware &firmware = addStirrers(machine);
    EXPECT_EQ(call("EXEC_B", "STIR_ALL").retCode, 0);
    EXPECT_EQ(firmware.asked(), "0004@0 30 0 0");
}

TEST_F(StirrersTest, aStopEndsTheSeries)
{
    const ToldFirmware &firmware = addStirrers();
    m_time = 10s;
    const std::string id = begin(arrayOf("STIR_ALL", 60000, 0, false, 500));
    waitFor([&] { return firmware.asked() == "0004@1 222 243 0, 0004@2 222 243 0"; });
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
    const Envelope ended = end(id);
    EXPECT_EQ(ended.number("status"), -3);
    EXPECT_EQ(Envelope(ended.member("cmd_answer")).error(), "DE03410 STIR_ALL was stopped before its end");
    EXPECT_EQ(firmware.asked(), "0004@1 222 243 0, 0004@2 222 243 0, 0003@0 0");
}

TEST_F(StirrersTest, oneSeriesAtATime)
{
    addStirrers();
    m_time = 10s;
    const std::string id = begin(arrayOf("STIR_ALL", 60515));
    for (const char *method : {"EXEC_B", "EXEC_NB"}) {
        const Envelope second = call(method, "STIR_ALL");
        EXPECT_EQ(second.retCode, 6);
        EXPECT_EQ(second.error(),
                  "DE03416 The machine is at STIR_ALL and stirs its circuits in one series at a time");
    }
    XmlRpcValue parameters;
    parameters["cmd_parameters"] = arrayOf(10);
    EXPECT_EQ(call("EXEC_NC", "STIR_ALL", parameters, 10, 100).error(),
              "DE03415 STIR_ALL cannot wait for a change: it would be carried out again and again");
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
    end(id);
    m_time = 1ms;
    EXPECT_EQ(call("EXEC_B", "STIR_ALL", 1).retCode, 0);
}

TEST_F(StirrersTest, nothingToStir)
{
    const ToldFirmware &firmware = addStirrers(pouringMachine());
    const Envelope envelope = call("EXEC_NB", "STIR_ALL");
    EXPECT_EQ(envelope.retCode, 1);
    EXPECT_EQ(envelope.error(),
              "DE03413 There is nothing to stir: the machine has no stirrers, or none of those asked for");
    EXPECT_EQ(firmware.asked(), "");
}

TEST_F(StirrersTest, whatHasNotBeenSeenToStirIsGivenItsTime)
{
    addStirrers();
    m_time = 0ms; // as if the status told nothing of circuits
    const auto begun = ProcClock::now();
    EXPECT_EQ(call("EXEC_B", "STIR_ALL", 40, 0, false, 0).retCode, 0);
    EXPECT_GE(ProcClock::now() - begun, 80ms); // two batches
}

TEST_F(StirrersTest, aMachineThatTellsNoStatusIsGivenItsTime)
{
    add(stirringMachine(), [](const QString &asked) {
        return asked.startsWith(QLatin1String("0006")) ? FirmwareReply{true, tokensOf("6 8 0 0 0 0 0").tokens}
                                                       : tokensOf("0");
    });
    const auto begun = ProcClock::now();
    EXPECT_EQ(call("EXEC_B", "STIR_ALL", 40, 0, false, 0).retCode, 0);
    EXPECT_GE(ProcClock::now() - begun, 80ms);
}

TEST_F(StirrersTest, whatStirsOnLongAfterItsTimeEndsTheSeries)
{
    const ToldFirmware &firmware = addStirrers();
    m_time = 1h;
    const Envelope envelope = call("EXEC_B", "STIR_ALL", 1, 0, true, 0);
    EXPECT_EQ(envelope.retCode, 8);
    EXPECT_EQ(envelope.error(), "DE03414 The circuit at position 1 stirs on, long after its time");
    EXPECT_EQ(firmware.asked(), "0004@1 1 0 0");
}

TEST_F(StirrersTest, aMachineThatEndsItsStirringTellsWhy)
{
    struct Case
    {
        const char *status; ///< when it has ended
        const char *reason;
    };
    for (const Case &ended : {Case{"E 0 1 1 0 10 0 0 F5 F5 4 0 0 0 0", "the offline button is pressed"},
                              Case{"E 0 1 0 0 50 0 0 F5 F5 4 0 0 0 0", "the emergency button is pressed"},
                              Case{"E 0 1 0 0 10 0 0 F5 F5 4 0 0 0 0", "the machine is not ready"}}) {
        for (const int duration : {60000, 60515}) { // a minute on this machine, and without an end
            int questions = 0;
            m_driver = std::make_unique<quv::Driver>();
            const ToldFirmware &firmware = add(stirringMachine(), [&](const QString &asked) {
                if (!asked.startsWith(QLatin1String("0006")))
                    return tokensOf("0");
                return tokensOf(++questions < 3 ? "E 0 1 10 0 0 0 0 F5 F5 4 0 0 0 0" : ended.status);
            });
            const Envelope envelope = call("EXEC_B", "STIR_ALL", duration, 0, true, 0);
            EXPECT_EQ(envelope.retCode, 7);
            EXPECT_EQ(envelope.error(),
                      std::string("DE03417 The circuit at position 1 stirs no more, before its time: ") +
                          ended.reason);
            EXPECT_EQ(firmware.asked(),
                      duration == 60515 ? "0004@1 245 245 0" : "0004@1 222 243 0"); // no other circuit
        }
    }
}

TEST_F(StirrersTest, aMachineThatIsNotReadyIsNotWaitedFor)
{
    add(stirringMachine(), [](const QString &asked) { // it ended before anybody saw it stir
        return tokensOf(asked.startsWith(QLatin1String("0006")) ? "E 0 1 1 0 10 0 0 F5 F5 4 0 0 0 0" : "0");
    });
    EXPECT_EQ(call("EXEC_B", "STIR_ALL", 60000, 0, true, 0).error(),
              "DE03417 The circuit at position 1 stirs no more, before its time: the offline button is "
              "pressed");
}

TEST_F(StirrersTest, whatHasStirredItsTimeHasEndedWell)
{
    const auto begun = ProcClock::now();
    add(stirringMachine(), [begun](const QString &asked) { // not ready only when the time is over
        if (!asked.startsWith(QLatin1String("0006")))
            return tokensOf("0");
        return tokensOf(ProcClock::now() < begun + 150ms ? "E 0 1 10 0 0 0 0 F5 F5 4 0 0 0 0"
                                                         : "E 0 1 1 0 10 0 0 F5 F5 4 0 0 0 0");
    });
    XmlRpcValue items;
    items[0]["item"] = 4;
    items[0]["duration"] = 100; // 100 ms
    EXPECT_EQ(call("EXEC_B", "STIR_ALL", items, 0, true, 0).error(), "");
}

TEST_F(StirrersTest, progressFollowsTheBatches)
{
    const ToldFirmware &firmware = addStirrers();
    m_time = 20ms; // the first batch is over before the 6 s that it should take
    m_timeOfLater = 30s;
    const std::string id = begin(arrayOf("STIR_ALL", 6000, 0, false, 0));
    EXPECT_GT(ticket(id).number("time_left"), 6000);
    waitFor([&] { return firmware.asked().find("0004@4") != std::string::npos; });
    const Envelope status = ticket(id);
    EXPECT_EQ(status.number("status"), 1);
    EXPECT_LE(status.number("time_left"), 6000);
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
    end(id);
}

TEST_F(DriverProceduresTest, aMachineOfTheOtherFamilyHasNoStirrersThatCanBeTold)
{
    FW_Dispenser machine = stirringMachine();
    machine.setCommandFamily(FW_Dispenser::CommandFamily2);
    const ToldFirmware &firmware = add(machine, [](const QString &) { return tokensOf("0"); });
    const Envelope envelope = call("EXEC_B", "STIR_ALL");
    EXPECT_EQ(envelope.retCode, 3);
    EXPECT_EQ(envelope.error(), "DE03105 The machine's firmware has no code for this command");
    EXPECT_EQ(firmware.asked(), "");
}

} // namespace
