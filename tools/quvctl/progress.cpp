// SPDX-License-Identifier: LGPL-3.0-or-later
#include "progress.h"

#include "bar.h"
#include "terminal.h"

#include "base/cmdstatus.h"

#include <cstdlib>

namespace quv {

namespace {

constexpr int leastChange = 10; // percent

QString inWords(const CmdStatus &status)
{
    const QString percentage = QStringLiteral("%1 %").arg(status.percentage());
    if (status.status() <= 0)
        return percentage + QStringLiteral("  ") + CmdStatus::getDescription(status.status());
    if (status.status() != CmdStatus::Executing || !status.timeTrackingAvailable())
        return status.info();
    // a driver may know a percentage without a time
    return status.timeLeft() == 0 ? percentage : percentage + QStringLiteral("  ") + status.timeLeftStr(true);
}

} // namespace

Progress::Progress() : m_redraws(canRedraw()) {}

Progress::~Progress()
{
    if (m_redraws && m_told)
        printLine(QString());
}

void Progress::tell(const CmdStatus &status)
{
    if (m_redraws)
        redrawLine(bar(status.percentage()) + QLatin1Char(' ') + inWords(status));
    else if (isNews(status))
        printLine(inWords(status));
    else
        return;
    m_told = Told{status.status(), status.percentage()};
}

bool Progress::isNews(const CmdStatus &status) const
{
    return !m_told || status.status() != m_told->state ||
           std::abs(status.percentage() - m_told->percentage) >= leastChange;
}

} // namespace quv
