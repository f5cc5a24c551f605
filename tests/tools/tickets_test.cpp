// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines/refusal.h"
#include "requests/tickets.h"

#include "base/xmlrpcanswer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <vector>

namespace {

using namespace std::chrono_literals;
using quv::Tickets;
using XmlRpc::XmlRpcValue;

XmlRpcValue envelope(int retCode)
{
    return XmlRpcAnswer(retCode, QStringLiteral("told"), XmlRpcValue(42)).toXmlRpcValue();
}

CmdStatus waitForEnd(const Tickets &tickets, const QString &id)
{
    const auto until = std::chrono::steady_clock::now() + 10s;
    while (std::chrono::steady_clock::now() < until) {
        const auto status = tickets.status(id);
        if (!status || status->status() <= 0)
            return status.value_or(CmdStatus());
        std::this_thread::sleep_for(200us);
    }
    return CmdStatus();
}

/// Keeps jobs from ending until it is opened.
class Gate
{
public:
    Tickets::Job job()
    {
        return [this] {
            ++m_inside;
            m_opened.wait();
            return envelope(0);
        };
    }
    void waitForJobs(int count) const
    {
        while (m_inside < count)
            std::this_thread::sleep_for(1ms);
    }
    void open() { m_open.set_value(); }

private:
    std::promise<void> m_open{};
    std::shared_future<void> m_opened = m_open.get_future().share();
    std::atomic<int> m_inside{0};
};

TEST(TicketsTest, aTicketsLife)
{
    Tickets tickets;
    Gate gate;
    const auto id = tickets.add(gate.job(), 0);
    ASSERT_TRUE(id);
    EXPECT_FALSE(id->isEmpty());
    gate.waitForJobs(1);
    const auto running = tickets.status(*id);
    EXPECT_EQ(running->status(), 1);
    EXPECT_EQ(running->percentage(), 0);
    EXPECT_EQ(running->timeLeft(), 0);
    EXPECT_FALSE(running->timeTrackingAvailable()); // nobody knows how long it takes
    EXPECT_EQ(int(running->resultValue()), 0);
    gate.open();
    const CmdStatus ended = waitForEnd(tickets, *id);
    EXPECT_EQ(ended.status(), 0);
    EXPECT_EQ(ended.percentage(), 100);
    EXPECT_EQ(ended.timeLeft(), 0);
    bool ok = false;
    EXPECT_EQ(int(ended.getXmlRpcAnswer(&ok).xmlrpcRetValue()), 42);
    EXPECT_TRUE(ok);
    EXPECT_EQ(tickets.status(*id)->status(), 0); // it can be asked for again
}

TEST(TicketsTest, theReturnCodeTellsHowItEnded)
{
    Tickets tickets;
    for (const auto &[retCode, state] : {std::pair(0, 0), {1, -1}, {4, -1}, {7, -3}, {8, -1}}) {
        const auto id = tickets.add([code = retCode] { return envelope(code); }, 1000);
        EXPECT_EQ(waitForEnd(tickets, *id).status(), state) << retCode;
    }
    const auto none = tickets.add([] { return XmlRpcValue(); }, 0);
    EXPECT_EQ(waitForEnd(tickets, *none).status(), -1);
}

TEST(TicketsTest, progressFollowsTheClock)
{
    Tickets tickets;
    Gate gate;
    const auto id = tickets.add(gate.job(), 400);
    gate.waitForJobs(1);
    int percentage = 0;
    long long timeLeft = 400;
    bool sawMiddle = false;
    for (int i = 0; i < 1000 && timeLeft > 0; ++i) {
        const auto status = tickets.status(*id);
        EXPECT_GE(status->percentage(), percentage);
        EXPECT_LE(status->timeLeft(), timeLeft);
        percentage = status->percentage();
        timeLeft = status->timeLeft();
        sawMiddle = sawMiddle || (percentage > 0 && percentage < 99 && timeLeft > 0);
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_TRUE(sawMiddle);
    EXPECT_EQ(percentage, 99); // a clock does not end a command
    EXPECT_EQ(timeLeft, 0);
    gate.open();
    EXPECT_EQ(waitForEnd(tickets, *id).percentage(), 100);
}

TEST(TicketsTest, anUnknownTicket)
{
    const Tickets tickets;
    EXPECT_FALSE(tickets.status(QString()));
    EXPECT_FALSE(tickets.status(QStringLiteral("1")));
}

TEST(TicketsTest, ticketsDiffer)
{
    Tickets tickets;
    const auto nothing = [] { return envelope(0); };
    EXPECT_NE(*tickets.add(nothing, 0), *tickets.add(nothing, 0));
}

/// Tickets under a clock that goes when it is told to.
class TicketsKeptTest : public testing::Test
{
protected:
    void advance(std::chrono::milliseconds time) { m_time += time.count(); }

    /// A ticket that has ended, and that nobody has asked for.
    QString ended(Tickets::Keeping keeping, const std::string &text = {})
    {
        const int looks = m_looks;
        const auto job = [text] {
            return XmlRpcAnswer(0, QStringLiteral("told"), XmlRpcValue(text)).toXmlRpcValue();
        };
        const QString id = *m_tickets.add(job, 0, keeping);
        while (m_looks < looks + 2) // once for the room, once at the end
            std::this_thread::sleep_for(100us);
        return id;
    }
    std::vector<QString> fill(Tickets::Keeping keeping, std::size_t count = 1000)
    {
        std::vector<QString> ids;
        while (ids.size() < count)
            ids.push_back(ended(keeping));
        return ids;
    }
    bool isTaken(Tickets::Keeping keeping)
    {
        try {
            m_tickets.add([] { return envelope(0); }, 0, keeping);
            return true;
        } catch (const quv::CallRefusal &refusal) {
            EXPECT_EQ(refusal.retCode, quv::NotCarriedOut);
            EXPECT_EQ(dynamic_cast<const FW_DriverError &>(*refusal.errors[0]).code(), "DE03150");
            return false;
        }
    }
    bool isKnown(const QString &id) const { return m_tickets.status(id).has_value(); }

private:
    std::atomic<qint64> m_time{1000};
    std::atomic<int> m_looks{0};

protected:
    Tickets m_tickets{[this] {
        ++m_looks;
        return Tickets::Clock::time_point(std::chrono::milliseconds(m_time));
    }};
};

TEST_F(TicketsKeptTest, aResultIsKeptForAMinute)
{
    const std::vector<QString> ids = fill(Tickets::Shortly);
    EXPECT_FALSE(isTaken(Tickets::Shortly));
    EXPECT_TRUE(isTaken(Tickets::UntilRead)); // pours have a place of their own
    EXPECT_TRUE(isKnown(ids[0]));
    advance(59s);
    EXPECT_FALSE(isTaken(Tickets::Shortly));
    advance(1s);
    EXPECT_TRUE(isTaken(Tickets::Shortly));
    EXPECT_FALSE(isKnown(ids[0])); // no more than needed is forgotten
    EXPECT_TRUE(isKnown(ids[1]));
}

TEST_F(TicketsKeptTest, aPoursResultIsKeptUntilItHasBeenRead)
{
    const std::vector<QString> ids = fill(Tickets::UntilRead);
    EXPECT_TRUE(isTaken(Tickets::Shortly));
    advance(58min);
    EXPECT_FALSE(isTaken(Tickets::UntilRead));
    EXPECT_TRUE(isKnown(ids[5])); // so it has been read
    advance(59s);
    EXPECT_FALSE(isTaken(Tickets::UntilRead));
    EXPECT_TRUE(isKnown(ids[5])); // which does not keep it longer
    advance(1s);
    EXPECT_TRUE(isTaken(Tickets::UntilRead));
    EXPECT_FALSE(isKnown(ids[5]));
    EXPECT_TRUE(isKnown(ids[0]));
}

TEST_F(TicketsKeptTest, aPoursResultThatNobodyReadsIsKeptForAnHour)
{
    const std::vector<QString> ids = fill(Tickets::UntilRead);
    advance(60min - 1ms);
    EXPECT_FALSE(isTaken(Tickets::UntilRead));
    advance(1ms);
    EXPECT_TRUE(isTaken(Tickets::UntilRead));
    EXPECT_FALSE(isKnown(ids[0]));
    EXPECT_TRUE(isKnown(ids[1]));
}

TEST_F(TicketsKeptTest, whatRunsIsNotForgotten)
{
    Gate gate;
    const auto running = m_tickets.add(gate.job(), 0);
    gate.waitForJobs(1);
    fill(Tickets::Shortly, 999);
    advance(2h);
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(isTaken(Tickets::Shortly));
    EXPECT_EQ(m_tickets.status(*running)->status(), 1);
    gate.open();
    EXPECT_EQ(waitForEnd(m_tickets, *running).status(), 0);
}

TEST_F(TicketsKeptTest, theMemoryOfResultsIsBounded)
{
    const std::string megabyte(1024 * 1024, 'x');
    const QString first = ended(Tickets::UntilRead, megabyte);
    for (int i = 1; i < 64; ++i)
        ended(Tickets::Shortly, megabyte);
    EXPECT_FALSE(isTaken(Tickets::Shortly));
    EXPECT_FALSE(isTaken(Tickets::UntilRead));
    advance(1min);
    EXPECT_TRUE(isTaken(Tickets::UntilRead)); // others make room for pours
    EXPECT_TRUE(isKnown(first));
}

TEST(TicketsTest, onlySoManyWaitForTheirTurn)
{
    Tickets tickets;
    Gate gate;
    int running = 0;
    std::vector<QString> ids;
    while (const auto id = tickets.add(gate.job(), 500)) {
        ids.push_back(*id);
        if (running < 4)
            gate.waitForJobs(++running);
    }
    EXPECT_EQ(ids.size(), 104U);
    const auto waiting = tickets.status(ids.back());
    EXPECT_EQ(waiting->status(), 2);
    EXPECT_EQ(waiting->percentage(), 0);
    EXPECT_EQ(waiting->timeLeft(), 500);
    gate.open();
    for (const QString &id : ids)
        EXPECT_EQ(waitForEnd(tickets, id).status(), 0);
    EXPECT_TRUE(tickets.add([] { return envelope(0); }, 0));
}

TEST(TicketsTest, whatAJobHoldsIsFreeWhenItHasEnded)
{
    Tickets tickets;
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = held;
    const auto id = tickets.add([held = std::move(held)] { return envelope(0); }, 0);
    EXPECT_EQ(waitForEnd(tickets, *id).status(), 0);
    EXPECT_TRUE(watched.expired());
}

TEST(TicketsTest, theEndWaitsForWhatRunsAndForgetsWhatWaits)
{
    std::atomic<int> ended{0};
    std::promise<void> begun;
    {
        Tickets tickets;
        tickets.add(
            [&] {
                begun.set_value();
                std::this_thread::sleep_for(50ms);
                ++ended;
                return envelope(0);
            },
            0);
        begun.get_future().wait();
    }
    EXPECT_EQ(ended, 1);
}

} // namespace
