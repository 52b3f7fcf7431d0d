// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/TypeNotes.h"

#include <string>
#include <vector>

namespace bc {

class Body;

/// What a body class declares of itself, for level tools, documents and tests.
struct TypeDescription {
    LevelTraits traits;
    /// Those of the element "params" first, by rank; then the custom attributes as declared.
    std::vector<ParamInfo> params;
    // Names in saves and in dumps, in their order.
    std::vector<std::string> saved;
    std::vector<std::string> shown;
};

/// Asks a new body of the type; nothing in it changes.
[[nodiscard]] TypeDescription describeType(Body& prototype);

}  // namespace bc
