// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/XmlAttributes.h"

#include "core/Text.h"

#include <tinyxml.h>

#include <array>
#include <charconv>

namespace bc::xml {

namespace {

std::string_view text(const TiXmlElement& e, const char* name) {
    const char* value = e.Attribute(name);
    return value != nullptr ? std::string_view(value) : std::string_view();
}

std::string exactName(const char* name) {
    return std::string(name) + ".exact";
}

}  // namespace

std::string numberText(const TiXmlElement& e, const char* name, Digits digits) {
    if (digits == Digits::exact)
        if (const char* exact = e.Attribute(exactName(name).c_str()))
            return exact;
    return readString(e, name);
}
void writeExactText(TiXmlElement& e, const char* name, const std::string& text) {
    writeString(e, exactName(name).c_str(), text);
}

float readFloat(const TiXmlElement& e, const char* name, Digits digits) {
    return digits == Digits::exact ? parseFloat(numberText(e, name, digits))
                                   : parseFloat(text(e, name));
}
int readInt(const TiXmlElement& e, const char* name) {
    return parseInt(text(e, name));
}
bool readBool(const TiXmlElement& e, const char* name) {
    return parseBool(text(e, name));
}
bool has(const TiXmlElement& e, const char* name) {
    return e.Attribute(name) != nullptr;
}
std::string readString(const TiXmlElement& e, const char* name) {
    return std::string(text(e, name));
}

void writeString(TiXmlElement& e, const char* name, const std::string& value) {
    e.SetAttribute(name, value.c_str());
}
void writeInt(TiXmlElement& e, const char* name, int value) {
    e.SetAttribute(name, value);
}
void writeBool(TiXmlElement& e, const char* name, bool value) {
    e.SetAttribute(name, boolText(value));
}

void writeFloat(TiXmlElement& e, const char* name, float value, Digits digits) {
    // The largest float has 39 digits before the point and six are written behind it.
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size() - 1, value,
                                   std::chars_format::fixed, 6)
                         .ptr;
    *end = '\0';
    e.SetAttribute(name, buffer.data());
    if (digits == Digits::exact && parseFloat(buffer.data()) != value)
        writeExactText(e, name, formatFloat(value, digits));
}

}  // namespace bc::xml
