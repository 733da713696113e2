// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/peer_owner.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

namespace {

LoopbackEnd End(const char* address, in_port_t port) { return {inet_addr(address), port}; }

/// As /proc/self/net/tcp shows 127.0.0.1:40000 of user 1000 talking to 127.0.0.1:5900 of user 0.
constexpr const char* table =
    "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout "
    "inode\n"
    "   0: 0100007F:170C 00000000:0000 0A 00000000:00000000 00:00000000 00000000     0        0 1 "
    "1\n"
    "   1: 0100007F:170C 0100007F:9C40 01 00000000:00000000 00:00000000 00000000     0        0 2 "
    "1\n"
    "   2: 0100007F:9C40 0100007F:170C 01 00000000:00000000 00:00000000 00000000  1000        0 3 "
    "1\n";

/// The same connection made by a socket for both kinds of address, as /proc/self/net/tcp6 shows it.
constexpr const char* wideTable =
    "  sl  local_address remote_address st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout "
    "inode\n"
    "   0: 0000000000000000FFFF00000100007F:9C40 0000000000000000FFFF00000100007F:170C 01 "
    "00000000:00000000 00:00000000 00000000  1001        0 3 1\n"
    "   1: 00000000000000000000000001000000:9C41 00000000000000000000000001000000:170C 01 "
    "00000000:00000000 00:00000000 00000000  1002        0 3 1\n";

std::optional<uid_t> Owner(const char* text, const LoopbackEnd& peer, const LoopbackEnd& own) {
    std::istringstream stream(text);
    return OwnerOfPeer(stream, peer, own);
}

TEST(PeerOwner, IsTheUserOfThePeersEndAndNotOfOurs) {
    EXPECT_EQ(Owner(table, End("127.0.0.1", 40000), End("127.0.0.1", 5900)), uid_t{1000});
}

TEST(PeerOwner, OfAMappedAddressIsFound) {
    EXPECT_EQ(Owner(wideTable, End("127.0.0.1", 40000), End("127.0.0.1", 5900)), uid_t{1001});
}

TEST(PeerOwner, IsNobodyWhereAddressOrPortDiffer) {
    EXPECT_EQ(Owner(table, End("127.0.0.2", 40000), End("127.0.0.1", 5900)), std::nullopt);
    EXPECT_EQ(Owner(table, End("127.0.0.1", 40001), End("127.0.0.1", 5900)), std::nullopt);
    EXPECT_EQ(Owner(table, End("127.0.0.1", 40000), End("127.0.0.1", 5901)), std::nullopt);
    EXPECT_EQ(Owner(wideTable, End("127.0.0.1", 40001), End("127.0.0.1", 5900)), std::nullopt);
}

TEST(PeerOwner, IsNobodyInAnEmptyOrBrokenTable) {
    EXPECT_EQ(Owner("", End("127.0.0.1", 40000), End("127.0.0.1", 5900)), std::nullopt);
    EXPECT_EQ(Owner("headings\n  2: x y z\n\n", End("127.0.0.1", 40000), End("127.0.0.1", 5900)),
              std::nullopt);
}

TEST(PeerOwner, EndsAreReadFromPlainAndMappedAddresses) {
    sockaddr_storage address{};
    sockaddr_in plain{};
    plain.sin_family = AF_INET;
    plain.sin_port = htons(5900);
    plain.sin_addr.s_addr = inet_addr("127.0.0.1");
    std::memcpy(&address, &plain, sizeof plain);
    EXPECT_EQ(EndOf(address)->port, 5900);
    EXPECT_EQ(EndOf(address)->address, plain.sin_addr.s_addr);

    sockaddr_in6 wide{};
    wide.sin6_family = AF_INET6;
    wide.sin6_port = htons(40000);
    inet_pton(AF_INET6, "::ffff:127.0.0.1", &wide.sin6_addr);
    std::memcpy(&address, &wide, sizeof wide);
    EXPECT_EQ(EndOf(address)->port, 40000);
    EXPECT_EQ(EndOf(address)->address, plain.sin_addr.s_addr);

    wide.sin6_addr = in6addr_loopback;
    std::memcpy(&address, &wide, sizeof wide);
    EXPECT_FALSE(EndOf(address));
    address.ss_family = AF_UNIX;
    EXPECT_FALSE(EndOf(address));
}

}  // namespace
