// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <netinet/in.h>
#include <sys/types.h>

#include <istream>
#include <optional>

/// One end of a connection of this computer with itself.
struct LoopbackEnd {
    in_addr_t address;  ///< Network byte order.
    in_port_t port;     ///< Host byte order.
};

/// The end that a socket's address tells; none where it is no IPv4 address, plain or as IPv6 has
/// them.
std::optional<LoopbackEnd> EndOf(const sockaddr_storage& address);

/// Who owns the `peer`'s end of its connection to `own`, by a table of the kernel's connections,
/// the text of /proc/self/net/tcp or tcp6. None where the table does not have it.
std::optional<uid_t> OwnerOfPeer(std::istream& table, const LoopbackEnd& peer,
                                 const LoopbackEnd& own);
