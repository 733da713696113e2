// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded where the program draws on a VNC screen: that screen asks for no password and would
// listen on every network of the computer. Here it is bound to the computer itself.
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>

namespace {

/// 127.0.0.1 as a socket for both kinds of address sees it.
constexpr in6_addr MappedLoopback = {{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 127, 0, 0, 1}}};

template <typename Address>
long BindAs(int socket, const Address& address) {
    return syscall(SYS_bind, socket, &address, sizeof address);
}

}  // namespace

extern "C" int bind(int socket, const sockaddr* address, socklen_t length) noexcept {
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local{};
        std::memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return static_cast<int>(BindAs(socket, local));
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 local{};
        std::memcpy(&local, address, sizeof local);
        int sixOnly = 0;
        socklen_t size = sizeof sixOnly;
        getsockopt(socket, IPPROTO_IPV6, IPV6_V6ONLY, &sixOnly, &size);
        local.sin6_addr = sixOnly != 0 ? in6addr_loopback : MappedLoopback;
        return static_cast<int>(BindAs(socket, local));
    }
    return static_cast<int>(syscall(SYS_bind, socket, address, length));
}
