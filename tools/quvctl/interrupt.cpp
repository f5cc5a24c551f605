// SPDX-License-Identifier: LGPL-3.0-or-later
#include "interrupt.h"

#include "commandline.h"
#include "operations.h"
#include "terminal.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <iterator>
#include <mutex>
#include <optional>
#include <thread>
#include <unistd.h>
#include <vector>

namespace quv {

namespace {

constexpr timespec secondComesWithin = {2, 0};

/// Held for as long as somebody carries out what becomes of a Ctrl-C, which ends the program.
std::mutex interruptMutex;
std::vector<const OnInterrupt *> standingInterrupts;

bool isIgnored(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

constexpr int interrupting[] = {SIGINT, SIGTERM, SIGHUP};

/// A background job ignores Ctrl-C, and one of nohup the end of its terminal.
sigset_t interruptSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : interrupting)
        if (!isIgnored(signal))
            sigaddset(&signals, signal);
    return signals;
}

void changeMask(int how)
{
    const sigset_t signals = interruptSignals();
    pthread_sigmask(how, &signals, nullptr);
}

void writeAtOnce(int descriptor, const std::string &text)
{
    const ssize_t written = write(descriptor, text.data(), text.size());
    static_cast<void>(written); // it ends either way
}

bool comesAgain()
{
    const sigset_t signals = interruptSignals();
    int signal = 0;
    do
        signal = sigtimedwait(&signals, nullptr, &secondComesWithin);
    while (signal < 0 && errno == EINTR);
    return signal == SIGINT;
}

/// What is told of a second one; nothing when it does not come.
std::optional<QString> carryOutSecond(const std::function<QString()> &again)
{
    if (!comesAgain())
        return std::nullopt;
    changeMask(SIG_UNBLOCK); // whoever has no more patience
    QString told = again();
    writeAtOnce(STDERR_FILENO, printable(told).toStdString() + '\n');
    return told;
}

[[noreturn]] void endInterrupted(int signal)
{
    constexpr int statusOfSignals = 128;
    static_assert(statusOfSignals + SIGINT == Interrupted);

    const auto told = std::find_if(standingInterrupts.rbegin(), standingInterrupts.rend(),
                                   [](const OnInterrupt *each) { return each->plan().isTold; });
    if (told != standingInterrupts.rend()) {
        const InterruptPlan &plan = (*told)->plan();
        writeAtOnce(STDERR_FILENO, plan.error);
        std::optional<QString> second;
        if (plan.again && signal == SIGINT) {
            writeAtOnce(STDERR_FILENO, plan.offer);
            second = carryOutSecond(plan.again);
        }
        if (plan.output)
            writeAtOnce(STDOUT_FILENO, plan.output(second.value_or(plan.text)));
    }
    changeMask(SIG_UNBLOCK);
    std::for_each(standingInterrupts.rbegin(), standingInterrupts.rend(), [](const OnInterrupt *each) {
        if (each->plan().beforeTheEnd)
            each->plan().beforeTheEnd();
    });
    _exit(statusOfSignals + signal);
}

/// In a thread of its own, since what becomes of a Ctrl-C calls the driver while another call is still waiting.
void listenForInterrupt()
{
    const sigset_t signals = interruptSignals();
    int signal = 0;
    while (sigwait(&signals, &signal) != 0) {
    }
    const std::lock_guard<std::mutex> lock(interruptMutex);
    endInterrupted(signal);
}

void beginListening()
{
    static const bool hasBegun = [] {
        std::thread(listenForInterrupt).detach();
        return true;
    }();
    static_cast<void>(hasBegun);
}

} // namespace

OnInterrupt::OnInterrupt(InterruptPlan plan) : m_plan(std::move(plan))
{
    const std::lock_guard<std::mutex> lock(interruptMutex);
    standingInterrupts.push_back(this);
    if (std::all_of(std::begin(interrupting), std::end(interrupting), isIgnored))
        return;
    changeMask(SIG_BLOCK);
    beginListening();
}

OnInterrupt::OnInterrupt(const QString &text, bool asJson, const QString &ticket)
    : OnInterrupt(toldPlan(text, asJson, ticket))
{}

OnInterrupt::~OnInterrupt()
{
    const std::lock_guard<std::mutex> lock(interruptMutex);
    const auto place = std::find(standingInterrupts.begin(), standingInterrupts.end(), this);
    if (place != standingInterrupts.end())
        standingInterrupts.erase(place);
    if (standingInterrupts.empty())
        changeMask(SIG_UNBLOCK);
}

InterruptPlan toldPlan(const QString &text, bool asJson, const QString &ticket)
{
    InterruptPlan plan;
    plan.isTold = true;
    plan.error = printable(text).toStdString() + '\n';
    if (!asJson) {
        plan.error.insert(0, canRedraw() ? "\n" : "");
        return plan;
    }
    plan.text = text;
    plan.output = [ticket](const QString &told) {
        OrderedJson reply = failureReply(told.toStdString());
        if (!ticket.isEmpty())
            reply["ticket"] = toJson(ticket);
        return writeJson(reply) + '\n';
    };
    return plan;
}

InterruptPlan withSecond(InterruptPlan plan, const QString &offer, std::function<QString()> again)
{
    plan.offer = printable(offer).toStdString() + '\n';
    plan.again = std::move(again);
    return plan;
}

void waitForInterrupt()
{
    const std::lock_guard<std::mutex> lock(interruptMutex);
}

} // namespace quv
