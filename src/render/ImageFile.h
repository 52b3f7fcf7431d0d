// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/Image.h"

#include <optional>
#include <string>

namespace bc {

/// Reads an image file of the user or the data folder. Nothing when it is missing, damaged, too
/// large or not a colour image of 24 or 32 bits.
[[nodiscard]] std::optional<Image> loadImage(const std::string& name);

}  // namespace bc
