// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Reads the input as every value type: only finite numbers, and what is written reads back as it
// is.
#include "core/BasicTimer.h"
#include "core/Dimension.h"
#include "core/RGBAColour.h"
#include "core/TexCoord.h"
#include "core/Text.h"
#include "core/Ticks.h"
#include "core/Vector.h"
#include "resources/FileSystem.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void require(bool condition) {
    if (!condition)
        std::abort();
}

template <class Value>
void roundTrip(std::string_view text) {
    Value value;
    value.fromString(text);
    const std::string written = value.toString();
    require(written.find("nan") == std::string::npos && written.find("inf") == std::string::npos);
    Value again;
    again.fromString(written);
    require(again.toString() == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    roundTrip<bc::Vector>(text);
    roundTrip<bc::RGBAColour>(text);
    roundTrip<bc::Dimension>(text);
    roundTrip<bc::TexCoord>(text);
    bc::Dimension dimension;
    dimension.fromSizeString(text);
    require(std::isfinite(dimension.width) && std::isfinite(dimension.height));

    bc::useVirtualTicks(1000);
    bc::BasicTimer timer;
    timer.fromString(text);
    require(timer.current == 1000);

    require(std::isfinite(bc::parseFloat(text)));
    (void)bc::parseInt(text);
    std::string base;
    std::string extension;
    require(bc::splitExtension(text, base, extension) == (text.find('.') != text.npos));
    require(!extension.empty() ? base + extension == text : base.empty());
    if (bc::files::isSafeName(text)) {
        require(text.front() != '/' && text.find("/../") == text.npos && text != "..");
        require(!text.starts_with("../") && !text.ends_with("/.."));
    }
    return 0;
}
