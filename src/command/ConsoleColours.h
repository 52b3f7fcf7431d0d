// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"

namespace bc {

/// The colours of lines in the console.
namespace colours {

/// For titles and counts, and for the mark that the console shows while it is scrolled back.
inline constexpr RGBAColour gold{255, 205, 22, 255};
inline constexpr RGBAColour white{255, 255, 255, 255};
inline constexpr RGBAColour warning{225, 0, 0, 255};
inline constexpr RGBAColour debug{0, 225, 0, 255};

}  // namespace colours

}  // namespace bc
