// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/Bytes.h"

#include <zlib.h>

#include <vector>

namespace bc {

/// A member of an archive. Its headers claim a size and a place other than the true ones if these
/// are not negative.
struct ZipMember {
    std::string name;
    std::string contents;
    std::uint16_t method = 0;
    std::int64_t claimedSize = -1;
    std::int64_t claimedOffset = -1;
    std::string localExtra = {};
    std::string centralExtra = {};
};

/// The contents deflated without the header and the trailer of zlib.
inline std::string deflated(const std::string& contents) {
    uLongf size = compressBound(contents.size());
    std::string out(size, '\0');
    compress(reinterpret_cast<Bytef*>(out.data()), &size,
             reinterpret_cast<const Bytef*>(contents.data()), contents.size());
    return out.substr(2, size - 6);
}

/// The bytes of a ZIP archive, whose end record, which the game does not read, has only zeros.
inline std::string zipOf(const std::vector<ZipMember>& members) {
    std::string out;
    std::string directory;
    const auto claim = [](std::int64_t claimed, std::size_t truth) {
        return little(claimed >= 0 ? static_cast<std::uint64_t>(claimed) : truth, 4);
    };
    for (const ZipMember& m : members) {
        const std::string packed = m.method == 8 ? deflated(m.contents) : m.contents;
        const std::string common = little(m.method, 2) + little(0, 8) + little(packed.size(), 4) +
                                   claim(m.claimedSize, m.contents.size()) +
                                   little(m.name.size(), 2);
        directory += "PK\1\2" + little(20, 2) + little(20, 4) + common +
                     little(m.centralExtra.size(), 2) + little(0, 10) +
                     claim(m.claimedOffset, out.size()) + m.name + m.centralExtra;
        out += "PK\3\4" + little(20, 4) + common + little(m.localExtra.size(), 2) + m.name +
               m.localExtra + packed;
    }
    return out + directory + "PK\5\6" + little(0, 18);
}

}  // namespace bc
