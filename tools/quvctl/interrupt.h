// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <functional>
#include <string>

namespace quv {

/// What becomes of a Ctrl-C, and of a program that is told to end (SIGTERM) or whose terminal is closed (SIGHUP).
struct InterruptPlan
{
    std::function<std::string(const QString &)>
        output{};                     ///< of what has become of the machine, on standard output
    QString text{};                   ///< what has, without a second one
    std::string error{};              ///< what is told on standard error
    bool isTold = false;              ///< false for a plan that only tidies up
    std::function<QString()> again{}; ///< what a second one does, within the time; gives what is told of it
    std::function<void()> beforeTheEnd{}; ///< what is tidied up in any case
    std::string offer{};                  ///< told of the second one, for which only Ctrl-C leaves the time
};

/**
 * While it stands, Ctrl-C ends the program at once with exit status 130 (SIGTERM 143, SIGHUP 129) and a text on standard error, even
 * within a call that the driver does not answer. With --json the failure is on standard output as well, and names the ticket, if any.
 * Of several the one made last tells its text, and each tidies up, that one first. What is ignored stays ignored.
 */
class OnInterrupt
{
public:
    explicit OnInterrupt(InterruptPlan plan);
    OnInterrupt(const QString &text, bool asJson, const QString &ticket = QString());
    ~OnInterrupt();
    OnInterrupt(const OnInterrupt &) = delete;
    OnInterrupt &operator=(const OnInterrupt &) = delete;

    const InterruptPlan &plan() const { return m_plan; }

private:
    const InterruptPlan m_plan{};
};

/// Tells a text; with --json as a failure too, with the ticket, if any.
InterruptPlan toldPlan(const QString &text, bool asJson, const QString &ticket = QString());
/// The same, and a second Ctrl-C within two seconds does \a again, which the text says behind \a offer.
InterruptPlan withSecond(InterruptPlan plan, const QString &offer, std::function<QString()> again);

/// Returns when there was no Ctrl-C: whoever draws asks before, so that nothing is drawn over what is told.
void waitForInterrupt();

} // namespace quv
