// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>

#include <array>

namespace quv {

/// Words of seven bits, numbered from 1 as the firmware numbers them.
template <int Count>
class Words
{
public:
    void set(int word, int bit, bool on = true)
    {
        if (on)
            m_words.at(static_cast<std::size_t>(word - 1)) |= 1 << bit;
    }
    /// The words from the \a first to the \a last.
    QList<int> numbers(int first, int last) const
    {
        QList<int> numbers;
        for (int word = first; word <= last; ++word)
            numbers.append(m_words.at(static_cast<std::size_t>(word - 1)));
        return numbers;
    }

private:
    std::array<int, Count> m_words{};
};

/// What a firmware tells of its state. Parts set their bits in it; where a dispenser tells its position there are no words.
struct StatusWords
{
    static constexpr int NoPosition = 245;

    Words<12> words{};
    int position = NoPosition; ///< of a dispenser's turntable
    int zone = NoPosition;
    QList<int> mixing{}; ///< of a mixer: cycle, time left in two digits, speed, force, height in two digits
};

/// What a firmware tells of its inputs and outputs.
using SensorWords = Words<10>;

} // namespace quv
