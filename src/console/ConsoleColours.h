// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "console/CommandRegistry.h"
#include "core/RGBAColour.h"

#include <string_view>

namespace bc {

/// The colours of lines in the console.
namespace colours {

/// Titles, counts and the mark of a console that is scrolled back.
inline constexpr RGBAColour gold{255, 205, 22, 255};
inline constexpr RGBAColour white{255, 255, 255, 255};
inline constexpr RGBAColour warning{225, 0, 0, 255};
inline constexpr RGBAColour debug{0, 225, 0, 255};

}  // namespace colours

inline void consolePrintColoured(std::string_view text, const RGBAColour& c) {
    consolePrintColoured(text, static_cast<int>(c.r), static_cast<int>(c.g), static_cast<int>(c.b),
                         static_cast<int>(c.a));
}

}  // namespace bc
