// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/wiredigits.h"

#include <QtCore/QList>

namespace quv {

/// Walks the integers of a request. The first that is missing or out of its range spoils it for good.
class WireReader
{
public:
    static constexpr int MaxDigits = 6; ///< of one number: 2.2e14

    explicit WireReader(const QList<int> &numbers, int first = 0) : m_numbers(numbers), m_next(first) {}

    bool isGood() const { return m_good; }
    bool atEnd() const { return !m_good || m_next >= m_numbers.size(); }
    int place() const { return m_next; }

    int next(int min, int max)
    {
        m_good =
            m_good && m_next < m_numbers.size() && m_numbers.at(m_next) >= min && m_numbers.at(m_next) <= max;
        return m_good ? m_numbers.at(m_next++) : 0;
    }

    /// A number of two digits.
    int nextPair()
    {
        const int low = next(0, WireBase - 1);
        return low + WireBase * next(0, WireBase - 1);
    }

    /// A number of at least so many digits, after their count.
    qint64 nextCounted(int minDigits)
    {
        qint64 number = 0;
        qint64 weight = 1;
        for (int left = next(minDigits, MaxDigits); left > 0; --left) {
            number += weight * next(0, WireBase - 1);
            weight *= WireBase;
        }
        return m_good ? number : 0;
    }

private:
    const QList<int> &m_numbers;
    int m_next = 0;
    bool m_good = true;
};

} // namespace quv
