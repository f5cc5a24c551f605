// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "machines/refusal.h"
#include "pouringmachine.h"
#include "procedures/procedure.h"
#include "procedures/waiting.h"

#include "processes/stirringcmd.h"
#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"

#include <future>
#include <thread>

namespace {

using namespace std::chrono_literals;
using quv::DrivenMachine;
using quv::FirmwareReply;
using quv::WaitEnd;
using quv::test::ScriptedFirmware;

FirmwareReply statusTokens(const char *tokens)
{
    return {false, QString::fromLatin1(tokens).split(QLatin1Char(' '))};
}

/// A machine that replies the same again and again, but for the first times.
class WaitingTest : public testing::Test
{
protected:
    DrivenMachine &machine(std::unique_ptr<FW_Machine> made, const char *later, int firstTimes = 0,
                           const char *first = "")
    {
        auto firmware = std::make_unique<ScriptedFirmware>(
            ScriptedFirmware::CodeScript([=, times = firstTimes](const QString &) mutable {
                return statusTokens(times-- > 0 ? first : later);
            }));
        m_firmware = firmware.get();
        m_machine = std::make_unique<DrivenMachine>(std::move(made), std::move(firmware));
        return *m_machine;
    }
    DrivenMachine &stirring(int times)
    {
        return machine(std::make_unique<FW_Dispenser>(pouringMachine()), Still, times, Stirs);
    }

    static constexpr char Stirs[] = "E 0 1 10 0 0 0 0 F5 F5 4 0 0 0 0";
    static constexpr char Still[] = "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
    quv::Ending m_ending{};
    ScriptedFirmware *m_firmware = nullptr;
    std::unique_ptr<DrivenMachine> m_machine{};
};

const auto stirsNoMore = quv::hasFallen(&DispenserStatusAnswer::stirring);

TEST_F(WaitingTest, untilAFlagOfACircuitHasFallen)
{
    quv::WaitRules rules;
    rules.module = 3;
    EXPECT_EQ(quv::waitUntil(stirsNoMore, stirring(2), rules, m_ending), WaitEnd::Held);
    EXPECT_EQ(m_firmware->asked, (QStringList{"0006 3 0", "0006 3 0", "0006 3 0"}));
}

TEST_F(WaitingTest, untilTheTimeIsUp)
{
    quv::WaitRules rules;
    rules.expected = 100000; // asked ten times a second
    rules.limit = 20ms;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(quv::waitUntil(stirsNoMore, stirring(1000000), rules, m_ending), WaitEnd::TimeIsUp);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 20ms);
    EXPECT_EQ(m_firmware->asked.size(), 2); // at once, and when the time is up
}

TEST_F(WaitingTest, untilSomebodyStopsIt)
{
    DrivenMachine &stirred = stirring(1000000);
    std::thread other([this] {
        std::this_thread::sleep_for(10ms);
        m_ending.begin();
    });
    EXPECT_EQ(quv::waitUntil(stirsNoMore, stirred, {}, m_ending), WaitEnd::Stopped);
    other.join();
}

TEST_F(WaitingTest, theStatusIsLookedAtEvenWhenItIsStopped)
{
    m_ending.begin();
    EXPECT_EQ(quv::waitUntil(stirsNoMore, stirring(0), {}, m_ending), WaitEnd::Held);
}

/// A dispenser whose link is lost, and comes back after so many questions.
DrivenMachine silentMachine(int questions, double speed)
{
    const auto script = [=](const QString &) mutable {
        if (questions-- > 0)
            throw std::runtime_error("no reply within 2 s");
        return FirmwareReply{false, quv::test::IdleTokens};
    };
    return {std::make_unique<FW_Dispenser>(pouringMachine()),
            std::make_unique<ScriptedFirmware>(ScriptedFirmware::CodeScript(script), speed)};
}

constexpr int Never = 1000000;

TEST_F(WaitingTest, aLinkThatComesBackIsWaitedFor)
{
    DrivenMachine machine = silentMachine(3, 1);
    EXPECT_EQ(quv::waitUntil(stirsNoMore, machine, {}, m_ending), WaitEnd::Held);
}

TEST_F(WaitingTest, aLinkThatIsGoneFailsAfterHalfAMinuteOfTheMachine)
{
    constexpr double Speed = 1000;
    DrivenMachine machine = silentMachine(Never, Speed);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THROW(quv::waitUntil(stirsNoMore, machine, {}, m_ending), std::runtime_error);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 30ms);
}

TEST_F(WaitingTest, whoStopsItDoesNotWaitForALostLink)
{
    DrivenMachine machine = silentMachine(Never, 1);
    m_ending.begin();
    EXPECT_EQ(quv::waitUntil(stirsNoMore, machine, {}, m_ending), WaitEnd::Stopped);
    EXPECT_EQ(quv::askPatiently(machine, ProtoCommandList::GET_STATUS, 0, m_ending), std::nullopt);
}

TEST_F(WaitingTest, aMixersStatus)
{
    // mask 1, bit 4: it mixes; then cycle, two digits of time, speed, force, two digits of height
    DrivenMachine &mixer = machine(std::make_unique<FW_Mixer>(), "F 0 1 0 0 0 0 0 0 0 0 0 0 0 0 0", 2,
                                   "F 0 1 10 0 0 0 0 0 1 5 0 1 1 1 0");
    EXPECT_EQ(quv::waitUntil(quv::hasFallen(&MixerStatusAnswer::mixing), mixer, {}, m_ending), WaitEnd::Held);
    EXPECT_EQ(m_firmware->asked, (QStringList{"0033 0 0", "0033 0 0", "0033 0 0"}));
}

TEST_F(WaitingTest, aFlagOfTheOtherKindOfMachineIsNone)
{
    DrivenMachine &mixer = machine(std::make_unique<FW_Mixer>(), "F 0 1 7F 7F 7F 7F 7F 7F 0 0 0 0 0 0 0");
    EXPECT_EQ(quv::waitUntil(stirsNoMore, mixer, {}, m_ending), WaitEnd::Held);
}

TEST_F(WaitingTest, aMachineThatDoesNotTell)
{
    auto firmware = std::make_unique<ScriptedFirmware>(ScriptedFirmware::Script([] {
        return FirmwareReply{true, statusTokens("6 8 0 0 0 0 0").tokens};
    }));
    DrivenMachine silent(std::make_unique<FW_Dispenser>(), std::move(firmware));
    EXPECT_EQ(quv::waitUntil(stirsNoMore, silent, {}, m_ending), WaitEnd::Untold);
}

/// A procedure whose steps are noted, and which is stopped at one of them.
class ProcedureRunTest : public WaitingTest
{
protected:
    QStringList m_steps{};
    quv::Ending m_stopped{};
    std::shared_ptr<quv::Progress> m_progress = std::make_shared<quv::Progress>();
    StirringCmd m_command{3, 30, false};

    quv::ProcedureRun run()
    {
        const auto ask = [this](SerialProtoCommand &command) { m_steps.append(command.command()); };
        return {m_command, stirring(0), ask, m_progress, m_stopped, m_ending};
    }
    /// What it throws; empty for nothing.
    template <class Work>
    static std::string refusalOf(Work work)
    {
        try {
            work();
            return {};
        } catch (const quv::CallRefusal &refusal) {
            EXPECT_EQ(refusal.retCode, quv::Interrupted);
            const auto &error = dynamic_cast<const FW_DriverError &>(*refusal.errors[0]);
            return (error.code() + QLatin1Char(' ') + error.text()).toStdString();
        }
    }
};

TEST_F(ProcedureRunTest, aStopWaitsForTheStepThatHasBegun)
{
    DrivenMachine &stirred = stirring(0);
    std::future<void> stop;
    const auto ask = [&](SerialProtoCommand &command) {
        m_steps.append(command.command());
        stop = std::async(std::launch::async, [&] { stirred.asOneStep([this] { m_stopped.begin(); }); });
        EXPECT_EQ(stop.wait_for(20ms), std::future_status::timeout);
        EXPECT_FALSE(m_stopped.hasBegun());
    };
    const quv::ProcedureRun run{m_command, stirred, ask, m_progress, m_stopped, m_ending};
    run.begin(m_command);
    stop.get();
    EXPECT_EQ(refusalOf([&] { run.begin(m_command); }), "DE03410 STIRRING was stopped before its end");
    EXPECT_EQ(m_steps, QStringList{"STIRRING"});
}

TEST_F(ProcedureRunTest, whatWasStoppedBeforeDoesNotBegin)
{
    m_stopped.begin();
    EXPECT_EQ(refusalOf([this] { run().begin(m_command); }), "DE03410 STIRRING was stopped before its end");
    EXPECT_TRUE(m_steps.isEmpty());
}

TEST_F(ProcedureRunTest, aWaitEndsWithAStopAndWithTheDriver)
{
    EXPECT_EQ(refusalOf([this] { run().wait(1ms); }), "");
    m_ending.begin();
    EXPECT_EQ(refusalOf([this] { run().wait(1h); }),
              "DE03116 The driver ends before the command has; the machine goes on by itself");
    m_stopped.begin();
    EXPECT_EQ(refusalOf([this] { run().wait(1h); }), "DE03410 STIRRING was stopped before its end");
}

TEST_F(ProcedureRunTest, whatIsLeftOfAProcedureIsForItToSay)
{
    quv::Progress progress(1000000);
    EXPECT_EQ(progress.percentage(), 0);
    progress.expect(500);
    EXPECT_LE(progress.timeLeft(), 500);
    EXPECT_GE(progress.expected(), 500);
    EXPECT_LT(progress.expected(), 500000); // beside what has passed since it began
    std::this_thread::sleep_for(2ms);
    progress.expect(0);
    EXPECT_EQ(progress.timeLeft(), 0);
    EXPECT_EQ(progress.percentage(), 99);
}

} // namespace
