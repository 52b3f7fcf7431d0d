// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// The number that the version command shows; versionText is its usual form.
inline constexpr int versionNumber = 105;
inline const char* versionText() {
    return "1.0.5";
}

}  // namespace bc
