// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/IndexEntries.h"

#include <algorithm>

namespace bc {

void IndexHits::sort() {
    constexpr std::size_t few = 24;
    if (count_ > few) {
        std::sort(hits_.begin(), hits_.begin() + static_cast<std::ptrdiff_t>(count_));
        return;
    }
    for (std::size_t i = 1; i < count_; ++i) {
        const IndexHit hit = hits_[i];
        std::size_t to = i;
        for (; to > 0 && hit < hits_[to - 1]; --to)
            hits_[to] = hits_[to - 1];
        hits_[to] = hit;
    }
}

}  // namespace bc
