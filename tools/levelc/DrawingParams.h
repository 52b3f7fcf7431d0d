// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BodyTypes.h"

#include <vector>

namespace bc::levelc {

/// What dresses an object of any type: the compiler turns it into corner colours, texture
/// coordinates and lines.
[[nodiscard]] std::vector<Param> drawingParams();

}  // namespace bc::levelc
