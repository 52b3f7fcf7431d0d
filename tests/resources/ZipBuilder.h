// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <zlib.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace bc {

/// Makes archives for tests, also ones that lie.
class ZipBuilder {
  public:
    struct Member {
        std::string name;
        std::string contents;
        std::uint16_t method = 0;
        // What the headers claim where it is not the truth.
        std::int64_t claimedSize = -1;
        std::int64_t claimedOffset = -1;
        std::string localExtra = {};
        std::string centralExtra = {};
    };

    static std::string build(const std::vector<Member>& members) {
        std::string out;
        std::string directory;
        for (const Member& m : members) {
            const std::string packed = m.method == 8 ? deflated(m.contents) : m.contents;
            const auto size = static_cast<std::uint32_t>(
                m.claimedSize >= 0 ? m.claimedSize : static_cast<std::int64_t>(m.contents.size()));
            const auto offset = static_cast<std::uint32_t>(
                m.claimedOffset >= 0 ? m.claimedOffset : static_cast<std::int64_t>(out.size()));
            std::string common = u16(m.method);
            common += u32(0) + u32(0) + u32(static_cast<std::uint32_t>(packed.size()));
            common += u32(size) + u16(m.name.size());
            out += "PK\3\4" + u16(20) + u16(0);
            out += common + u16(m.localExtra.size());
            out += m.name + m.localExtra;
            out += packed;
            directory += "PK\1\2" + u16(20) + u16(20) + u16(0);
            directory += common + u16(m.centralExtra.size());
            directory += u16(0) + u16(0) + u16(0) + u32(0) + u32(offset);
            directory += m.name + m.centralExtra;
        }
        const auto start = static_cast<std::uint32_t>(out.size());
        return out + directory + "PK\5\6" + u32(0) + u16(members.size()) + u16(members.size()) +
               u32(static_cast<std::uint32_t>(directory.size())) + u32(start) + u16(0);
    }

    static std::string deflated(const std::string& contents) {
        z_stream stream{};
        if (deflateInit2(&stream, 9, Z_DEFLATED, -15, 8, Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::runtime_error("deflate");
        std::string in = contents;
        std::string out(deflateBound(&stream, in.size()), '\0');
        stream.next_in = reinterpret_cast<unsigned char*>(in.data());
        stream.avail_in = static_cast<uInt>(in.size());
        stream.next_out = reinterpret_cast<unsigned char*>(out.data());
        stream.avail_out = static_cast<uInt>(out.size());
        deflate(&stream, Z_FINISH);
        out.resize(stream.total_out);
        deflateEnd(&stream);
        return out;
    }

  private:
    static std::string number(std::uint64_t value, int bytes) {
        std::string out;
        for (int i = 0; i < bytes; ++i)
            out += static_cast<char>((value >> (8 * i)) & 0xFF);
        return out;
    }
    static std::string u16(std::uint64_t value) { return number(value, 2); }
    static std::string u32(std::uint64_t value) { return number(value, 4); }
};

}  // namespace bc
