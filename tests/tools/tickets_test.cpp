// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tickets.h"

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

TEST(TicketsTest, theOldestThatHasEndedIsForgotten)
{
    Tickets tickets;
    Gate gate;
    const auto running = tickets.add(gate.job(), 0);
    gate.waitForJobs(1);
    std::vector<QString> ended;
    for (int i = 0; i < 1000; ++i) {
        ended.push_back(*tickets.add([] { return envelope(0); }, 0));
        EXPECT_EQ(waitForEnd(tickets, ended.back()).status(), 0);
    }
    EXPECT_FALSE(tickets.status(ended[0]));
    EXPECT_TRUE(tickets.status(ended[1]));
    EXPECT_TRUE(tickets.status(ended[999]));
    EXPECT_EQ(tickets.status(*running)->status(), 1);
    gate.open();
    EXPECT_EQ(waitForEnd(tickets, *running).status(), 0);
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
