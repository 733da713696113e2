// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/peer_owner.h"

#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>

namespace {

/// An end as the kernel writes it: the words of its address as hexadecimal numbers of this
/// computer's byte order, a colon, the port. Of IPv6 only what stands for an IPv4 address is an
/// end.
std::optional<LoopbackEnd> ReadEnd(const std::string& text) {
    constexpr std::size_t wordLength = 8;
    const std::size_t colon = text.find(':');
    if (colon != wordLength && colon != 4 * wordLength) return std::nullopt;
    if (colon != wordLength &&
        (text.find_first_not_of('0') < 2 * wordLength ||
         std::stoul(text.substr(2 * wordLength, wordLength), nullptr, 16) != htonl(0xFFFF))) {
        return std::nullopt;
    }
    const std::string lastWord = text.substr(colon - wordLength, wordLength);
    return LoopbackEnd{static_cast<in_addr_t>(std::stoul(lastWord, nullptr, 16)),
                       static_cast<in_port_t>(std::stoul(text.substr(colon + 1), nullptr, 16))};
}

bool Is(const std::optional<LoopbackEnd>& end, const LoopbackEnd& other) {
    return end && end->address == other.address && end->port == other.port;
}

}  // namespace

std::optional<LoopbackEnd> EndOf(const sockaddr_storage& address) {
    if (address.ss_family == AF_INET) {
        sockaddr_in plain;
        std::memcpy(&plain, &address, sizeof plain);
        return LoopbackEnd{plain.sin_addr.s_addr, ntohs(plain.sin_port)};
    }
    if (address.ss_family != AF_INET6) return std::nullopt;
    sockaddr_in6 wide;
    std::memcpy(&wide, &address, sizeof wide);
    if (!IN6_IS_ADDR_V4MAPPED(&wide.sin6_addr)) return std::nullopt;
    LoopbackEnd end{0, ntohs(wide.sin6_port)};
    std::memcpy(&end.address, &wide.sin6_addr.s6_addr[12], sizeof end.address);
    return end;
}

std::optional<uid_t> OwnerOfPeer(std::istream& table, const LoopbackEnd& peer,
                                 const LoopbackEnd& own) {
    std::string line;
    std::getline(table, line);  // The headings.
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        std::string number, local, remote, state, queues, timer, retransmissions;
        uid_t owner = 0;
        if (fields >> number >> local >> remote >> state >> queues >> timer >> retransmissions >>
                owner &&
            Is(ReadEnd(local), peer) && Is(ReadEnd(remote), own)) {
            return owner;
        }
    }
    return std::nullopt;
}
