// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// How many digits the text of a float has.
enum class Digits {
    /// Six significant ones: what people and most files see.
    usual,
    /// As many as the number needs to read back unchanged: saves, from which a run goes on exactly.
    exact,
};

}  // namespace bc
