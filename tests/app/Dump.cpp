// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "Dump.h"

#include "core/Text.h"

namespace bc {

std::string Dump::value(const std::string& name, const std::string& attribute) const {
    std::size_t begin = text_.find("<P idname=\"" + name + '"');
    std::size_t end = text_.find("</P>", begin);
    if (begin == std::string::npos) {
        begin = text_.find('<' + name + ' ');
        end = text_.find('>', begin);
    }
    const std::size_t at = text_.find(' ' + attribute + "=\"", begin);
    if (begin == std::string::npos || at >= end)
        return "none";
    const std::size_t from = at + attribute.size() + 3;
    return text_.substr(from, text_.find('"', from) - from);
}

float Dump::number(const std::string& name, const std::string& attribute) const {
    return parseFloat(value(name, attribute));
}

int Dump::count(const std::string& part) const {
    return countIn(text_, part);
}

int countIn(const std::string& text, const std::string& part) {
    int n = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++n;
    return n;
}

}  // namespace bc
