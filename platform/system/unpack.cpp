// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/unpack.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>

namespace {

constexpr int anyHeader = 32;  // gzip or zlib, as the first bytes say

}  // namespace

std::optional<std::string> Unpack(std::string_view packed, std::size_t most) {
    if (packed.size() > std::numeric_limits<uInt>::max()) return std::nullopt;
    std::string input(packed);
    z_stream stream{};
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    if (inflateInit2(&stream, MAX_WBITS + anyHeader) != Z_OK) return std::nullopt;
    const std::unique_ptr<z_stream, decltype(&inflateEnd)> ending(&stream, inflateEnd);

    std::string text;
    std::array<char, 64 * 1024> piece{};
    for (;;) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        const int state = inflate(&stream, Z_NO_FLUSH);
        text.append(piece.data(), piece.size() - stream.avail_out);
        if (text.size() > most) return std::nullopt;
        if (state == Z_STREAM_END && stream.avail_in == 0) return text;
        // A file may hold several packed pieces in a row.
        const bool next = state == Z_STREAM_END && inflateReset(&stream) == Z_OK;
        if (!next && state != Z_OK) return std::nullopt;
    }
}
