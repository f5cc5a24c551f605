// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <bitset>
#include <initializer_list>
#include <optional>

namespace quv {

/// What a machine can be at.
enum class Process {
    Resetting,
    Finalising, ///< the configuration is being written
    Pouring,
    Stirring,
    Recirculating,
    Cleaning,
    Rinsing, ///< a cleaning by the closed cap
    MovingShelf,
    MovingTurntable,
    MovingCap,
    MovingStation, ///< the capping station
    MovingPlates,  ///< of a mixer
    Mixing,
    UpdatingBoards,
    ReadingLevels,
};

/// Any number of processes.
class ProcessSet
{
public:
    ProcessSet() = default;
    ProcessSet(std::initializer_list<Process> processes)
    {
        for (const Process process : processes)
            m_bits.set(static_cast<std::size_t>(process));
    }
    static ProcessSet all()
    {
        ProcessSet set;
        set.m_bits.set();
        return set;
    }

    /// What a movement of the machine excludes: what goes on within the canisters goes on beside it.
    static ProcessSet outsideCanisters()
    {
        return all().without({Process::Stirring, Process::Recirculating});
    }

    bool isEmpty() const { return m_bits.none(); }
    bool has(Process process) const { return m_bits.test(static_cast<std::size_t>(process)); }
    bool hasAny(ProcessSet others) const { return (m_bits & others.m_bits).any(); }
    std::optional<Process> first() const
    {
        for (std::size_t bit = 0; bit < m_bits.size(); ++bit)
            if (m_bits.test(bit))
                return static_cast<Process>(bit);
        return std::nullopt;
    }
    ProcessSet without(ProcessSet others) const
    {
        ProcessSet set = *this;
        set.m_bits &= ~others.m_bits;
        return set;
    }

private:
    std::bitset<static_cast<std::size_t>(Process::ReadingLevels) + 1> m_bits{};
};

} // namespace quv
