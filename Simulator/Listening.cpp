// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Listening.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstdint>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace lodestar::simulator
{

int listeningSocket(const std::string& address, int port)
{
    const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (descriptor < 0) {
        throw std::system_error(errno, std::generic_category(), "socket");
    }
    // Allows a stopped console to listen again while its old connections linger. Two consoles still cannot share an
    // address.
    const int on = 1;
    setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(static_cast<std::uint16_t>(port));
    inet_pton(AF_INET, address.c_str(), &name.sin_addr);
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0 ||
        ::listen(descriptor, SOMAXCONN) != 0) {
        const int error = errno;
        ::close(descriptor);
        throw std::system_error(error, std::generic_category(), address);
    }
    return descriptor;
}

int acceptedSocket(int listener)
{
    const int descriptor = ::accept4(listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    if (descriptor >= 0) {
        const int on = 1;
        setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }
    return descriptor;
}

} // namespace lodestar::simulator
