// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <array>
#include <stdexcept>
#include <string>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

/// A loopback connection that sends whatever a test likes, and waits no longer than 5 s for anything.
class RawSocket
{
public:
    explicit RawSocket(int port)
    {
        const timeval patience{5, 0};
        ::setsockopt(m_fd, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        ::setsockopt(m_fd, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<in_port_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::connect(m_fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
            throw std::runtime_error("cannot connect");
    }
    ~RawSocket() { ::close(m_fd); }
    RawSocket(const RawSocket &) = delete;
    RawSocket &operator=(const RawSocket &) = delete;

    /// Whether all of it could be sent.
    bool send(const std::string &bytes) const
    {
        for (std::size_t done = 0; done < bytes.size();) {
            const ssize_t sent = ::send(m_fd, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
            if (sent <= 0)
                return false;
            done += static_cast<std::size_t>(sent);
        }
        return true;
    }
    void sendNoMore() const { ::shutdown(m_fd, SHUT_WR); }

    /// All that arrives until the other side closes, \a end arrives or 5 s pass without a byte.
    std::string receive(const std::string &end = {}) const
    {
        std::string all;
        std::array<char, 4096> buffer{};
        while (end.empty() || all.find(end) == std::string::npos) {
            const ssize_t count = ::recv(m_fd, buffer.data(), buffer.size(), 0);
            if (count <= 0)
                break;
            all.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return all;
    }

private:
    int m_fd = ::socket(AF_INET, SOCK_STREAM, 0);
};
