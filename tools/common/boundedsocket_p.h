// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <array>
#include <chrono>
#include <cstddef>

#include <sys/types.h>

namespace quv {

/**
 * A connected socket whose reads and writes always end: after so long without a byte, at a moment, after so many bytes,
 * or when another thread wakes it. It reads ahead by one buffer and does not own the socket.
 */
class BoundedSocket
{
public:
    using Clock = std::chrono::steady_clock;

    enum class Trouble { None, Closed, TimedOut, TooMuch, Stopped };

    /// \a quiet is the longest wait for the other side; reads end as soon as \a wakeFd can be read (-1: none).
    BoundedSocket(int socket, std::chrono::milliseconds quiet, int wakeFd = -1);

    /// Reads may take \a bytes from here on.
    void allowBytes(std::size_t bytes) { m_bytesLeft = bytes; }
    /// Reads may last until \a deadline.
    void allowUntil(Clock::time_point deadline) { m_readDeadline = deadline; }

    /// Whether a byte arrives within \a patience.
    bool waitForData(std::chrono::milliseconds patience);
    /// At most \a size bytes; 0 when the other side has closed, -1 on trouble.
    ssize_t read(char *to, std::size_t size);
    /// All of it within \a allowed (\a size), or -1.
    ssize_t write(const char *from, std::size_t size, std::chrono::milliseconds allowed);
    bool isReady(short events) const;

    /// Says that nothing more comes, and drops what still arrives, so that the last answer is not lost to a reset.
    void finish(std::chrono::milliseconds patience);

    int socket() const { return m_socket; }
    /// What ended the last read that gave -1.
    Trouble trouble() const { return m_trouble; }

private:
    bool wait(short events, Clock::time_point until);
    ssize_t fill();

    int m_socket = -1;
    int m_wakeFd = -1;
    std::chrono::milliseconds m_quiet{};
    Clock::time_point m_readDeadline = Clock::time_point::max();
    std::size_t m_bytesLeft = 0;
    Trouble m_trouble = Trouble::None;
    std::array<char, 4096> m_buffer{};
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
};

} // namespace quv
