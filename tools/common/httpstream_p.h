// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "boundedsocket_p.h"

#include <httplib.h>

#include <poll.h>

namespace quv {

/// The HTTP library's view of a BoundedSocket. Include it in a source only: the library's header is large.
class HttpStream final : public httplib::Stream
{
public:
    HttpStream(BoundedSocket &socket, std::chrono::milliseconds writeTimeout)
        : m_socket(socket),
          m_writeTimeout(writeTimeout)
    {}

    bool is_readable() const override { return m_socket.isReady(POLLIN); }
    bool is_writable() const override { return m_socket.isReady(POLLOUT); }
    ssize_t read(char *to, size_t size) override { return m_socket.read(to, size); }
    ssize_t write(const char *from, size_t size) override
    {
        return m_socket.write(from, size, m_writeTimeout);
    }
    // Nobody asks where a request comes from.
    void get_remote_ip_and_port(std::string & /*ip*/, int & /*port*/) const override {}
    void get_local_ip_and_port(std::string & /*ip*/, int & /*port*/) const override {}
    socket_t socket() const override { return m_socket.socket(); }

private:
    BoundedSocket &m_socket;
    std::chrono::milliseconds m_writeTimeout{};
};

} // namespace quv
