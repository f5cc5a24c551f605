// SPDX-License-Identifier: LGPL-3.0-or-later
#include "boundedsocket_p.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>

namespace quv {
namespace {

using namespace std::chrono_literals;

/// What is being answered when the server stops is still worth this long.
constexpr std::chrono::milliseconds LastWrite = 200ms;

int millisecondsUntil(BoundedSocket::Clock::time_point until)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - BoundedSocket::Clock::now());
    return static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(left.count(), 0, 1000 * 1000));
}

bool mayTryAgain(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

} // namespace

BoundedSocket::BoundedSocket(int socket, std::chrono::milliseconds quiet, int wakeFd)
    : m_socket(socket),
      m_wakeFd(wakeFd),
      m_quiet(quiet)
{}

bool BoundedSocket::isReady(short events) const
{
    pollfd waiting{m_socket, events, 0};
    return ((events & POLLIN) != 0 && m_begin < m_end) || ::poll(&waiting, 1, 0) > 0;
}

/// True when the socket is ready, else the trouble is set.
bool BoundedSocket::wait(short events, Clock::time_point until)
{
    for (;;) {
        std::array<pollfd, 2> waiting{pollfd{m_socket, events, 0}, pollfd{m_wakeFd, POLLIN, 0}};
        const int ready = ::poll(waiting.data(), waiting.size(), millisecondsUntil(until));
        if (waiting[0].revents != 0)
            return true;
        if (ready > 0) {
            m_trouble = Trouble::Stopped;
            return false;
        }
        if ((ready == 0 && Clock::now() >= until) || (ready < 0 && errno != EINTR)) {
            m_trouble = Trouble::TimedOut;
            return false;
        }
    }
}

bool BoundedSocket::waitForData(std::chrono::milliseconds patience)
{
    return m_begin < m_end || wait(POLLIN, Clock::now() + patience);
}

ssize_t BoundedSocket::fill()
{
    for (;;) {
        if (!wait(POLLIN, std::min(m_readDeadline, Clock::now() + m_quiet)))
            return -1;
        // A sender that never pauses must not outrun the deadline either.
        if (Clock::now() >= m_readDeadline) {
            m_trouble = Trouble::TimedOut;
            return -1;
        }
        const ssize_t received = ::recv(m_socket, m_buffer.data(), m_buffer.size(), MSG_DONTWAIT);
        if (received > 0) {
            m_begin = 0;
            m_end = static_cast<std::size_t>(received);
            return received;
        }
        if (received == 0 || !mayTryAgain(errno)) {
            m_trouble = Trouble::Closed;
            return received;
        }
    }
}

ssize_t BoundedSocket::read(char *to, std::size_t size)
{
    if (m_bytesLeft == 0) {
        m_trouble = Trouble::TooMuch;
        return -1;
    }
    if (m_begin == m_end) {
        const ssize_t received = fill();
        if (received <= 0)
            return received;
    }
    const std::size_t count = std::min({size, m_end - m_begin, m_bytesLeft});
    std::memcpy(to, m_buffer.data() + m_begin, count);
    m_begin += count;
    m_bytesLeft -= count;
    return static_cast<ssize_t>(count);
}

ssize_t BoundedSocket::write(const char *from, std::size_t size, std::chrono::milliseconds allowed)
{
    auto deadline = Clock::now() + allowed;
    std::size_t done = 0;
    while (done < size) {
        const ssize_t sent = ::send(m_socket, from + done, size - done, MSG_DONTWAIT | MSG_NOSIGNAL);
        if (sent >= 0) {
            done += static_cast<std::size_t>(sent);
        } else if (!mayTryAgain(errno)) {
            m_trouble = Trouble::Closed;
            return -1;
        } else if (!wait(POLLOUT, std::min(deadline, Clock::now() + m_quiet))) {
            if (m_trouble != Trouble::Stopped || m_wakeFd < 0)
                return -1;
            m_wakeFd = -1;
            deadline = std::min(deadline, Clock::now() + LastWrite);
        }
    }
    return static_cast<ssize_t>(size);
}

void BoundedSocket::finish(std::chrono::milliseconds patience)
{
    ::shutdown(m_socket, SHUT_WR);
    m_readDeadline = Clock::now() + patience;
    while (fill() > 0) {
    }
    m_begin = m_end = 0;
}

} // namespace quv
