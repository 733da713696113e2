// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded where the program draws on a VNC screen: that screen asks for no password, would listen
// on every network of the computer, and says nothing where its port is taken. Here it is bound to
// the computer itself, opens to processes of the same user alone, and tells whether it is open.
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "tools/peer_owner.h"

namespace {

/// 127.0.0.1 as a socket for both kinds of address sees it.
constexpr in6_addr MappedLoopback = {{{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 127, 0, 0, 1}}};

/// The port that the screen is to have; 0 where none was told.
unsigned ScreenPort() {
    const char* port = std::getenv("QUILLON_SCREEN_PORT");
    return port == nullptr ? 0 : static_cast<unsigned>(std::strtoul(port, nullptr, 10));
}

/// Binds the socket. A screen that cannot be had ends the program, which nobody could see.
template <typename Address>
int BindAs(int socket, const Address& address, in_port_t port) {
    const long result = syscall(SYS_bind, socket, &address, sizeof address);
    const unsigned wanted = ntohs(port);
    if (result != 0 && wanted == ScreenPort() && (errno == EADDRINUSE || errno == EACCES)) {
        std::fprintf(
            stderr,
            "Port %u, on which the program was to be seen, cannot be had: %s. Start it again.\n",
            wanted, std::strerror(errno));
        _exit(EXIT_FAILURE);
    }
    return static_cast<int>(result);
}

std::optional<LoopbackEnd> OwnEnd(int socket) {
    sockaddr_storage address{};
    socklen_t length = sizeof address;
    if (getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length) != 0)
        return std::nullopt;
    return EndOf(address);
}

bool IsScreen(int socket) {
    const std::optional<LoopbackEnd> own = OwnEnd(socket);
    return own && own->port != 0 && own->port == ScreenPort();
}

/// Whether the connection comes from a process of the user whose program this is.
bool IsOfThisUser(int connection) {
    sockaddr_storage address{};
    socklen_t length = sizeof address;
    if (getpeername(connection, reinterpret_cast<sockaddr*>(&address), &length) != 0) return false;
    const std::optional<LoopbackEnd> peer = EndOf(address);
    const std::optional<LoopbackEnd> own = OwnEnd(connection);
    if (!peer || !own) return false;
    for (const char* name : {"/proc/self/net/tcp", "/proc/self/net/tcp6"}) {
        std::ifstream table(name);
        if (const std::optional<uid_t> owner = OwnerOfPeer(table, *peer, *own))
            return *owner == geteuid();
    }
    return false;
}

void TellWhereToLook() {
    char computer[256] = "this computer";
    gethostname(computer, sizeof computer - 1);
    std::printf(
        "There is no display here. Look at the program with: vncviewer 127.0.0.1:%u\n"
        "Only programs of your own get in. From another computer, first: ssh -L %u:127.0.0.1:%u "
        "%s\n",
        ScreenPort(), ScreenPort(), ScreenPort(), computer);
    std::fflush(stdout);
}

}  // namespace

extern "C" int accept4(int socket, sockaddr* address, socklen_t* length, int flags) {
    const int connection = static_cast<int>(syscall(SYS_accept4, socket, address, length, flags));
    if (connection < 0 || !IsScreen(socket) || IsOfThisUser(connection)) return connection;
    close(connection);
    errno = EAGAIN;
    return -1;
}

extern "C" int accept(int socket, sockaddr* address, socklen_t* length) {
    return accept4(socket, address, length, 0);
}

extern "C" int listen(int socket, int backlog) noexcept {
    const int result = static_cast<int>(syscall(SYS_listen, socket, backlog));
    if (result == 0 && IsScreen(socket)) TellWhereToLook();
    return result;
}

extern "C" int bind(int socket, const sockaddr* address, socklen_t length) noexcept {
    if (address->sa_family == AF_INET && length >= sizeof(sockaddr_in)) {
        sockaddr_in local{};
        std::memcpy(&local, address, sizeof local);
        local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return BindAs(socket, local, local.sin_port);
    }
    if (address->sa_family == AF_INET6 && length >= sizeof(sockaddr_in6)) {
        sockaddr_in6 local{};
        std::memcpy(&local, address, sizeof local);
        int sixOnly = 0;
        socklen_t size = sizeof sixOnly;
        getsockopt(socket, IPPROTO_IPV6, IPV6_V6ONLY, &sixOnly, &size);
        local.sin6_addr = sixOnly != 0 ? in6addr_loopback : MappedLoopback;
        return BindAs(socket, local, local.sin6_port);
    }
    return static_cast<int>(syscall(SYS_bind, socket, address, length));
}
