// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <chrono>

namespace quv {

/// How far something is that began now and should take so many milliseconds; 0 or less when nobody knows.
class Progress
{
public:
    explicit Progress(qint64 expected = 0) : m_expected(std::max(expected, qint64(0))) {}

    /// 0 to 99: that it has ended is not for a clock to say.
    int percentage() const
    {
        return m_expected == 0
                   ? 0
                   : static_cast<int>(std::min(99.0, 100 * double(elapsed()) / double(m_expected)));
    }
    qint64 timeLeft() const { return std::max(m_expected - elapsed(), qint64(0)); } ///< milliseconds

private:
    using Clock = std::chrono::steady_clock;

    qint64 elapsed() const
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count();
    }

    qint64 m_expected = 0;
    Clock::time_point m_begin = Clock::now();
};

} // namespace quv
