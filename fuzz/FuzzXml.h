// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "resources/XmlGuard.h"

#include <tinyxml.h>

#include <cstddef>
#include <cstdint>
#include <string>

/// The root of the XML as the game's reader would hand it on; the document owns it. Null for what
/// that reader refuses.
inline const TiXmlElement* readFuzzed(const std::uint8_t* data, std::size_t size,
                                      TiXmlDocument& document) {
    const std::string text(data, data + size);
    if (!bc::xmlRefusal(text).empty())
        return nullptr;
    document.Parse(text.c_str(), nullptr,
                   bc::isUtf8(text) ? TIXML_DEFAULT_ENCODING : TIXML_ENCODING_LEGACY);
    return document.Error() ? nullptr : document.RootElement();
}
