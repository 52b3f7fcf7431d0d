// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>

class TiXmlElement;

namespace bc {

// Attributes of data files and saves. Reading: a missing or empty number is 0, a missing bool is
// false (true only for exactly "true"), a missing value leaves the target unchanged.
namespace xml {

[[nodiscard]] float readFloat(const TiXmlElement& e, const char* name,
                              Digits digits = Digits::usual);
[[nodiscard]] int readInt(const TiXmlElement& e, const char* name);
[[nodiscard]] bool readBool(const TiXmlElement& e, const char* name);
[[nodiscard]] bool has(const TiXmlElement& e, const char* name);
/// Empty when missing.
[[nodiscard]] std::string readString(const TiXmlElement& e, const char* name);

// With exact digits, a number whose usual text reads back as another one is written a second time
// under its name with ".exact" behind it, and read from there if it is there.

/// The text of an attribute that holds numbers.
[[nodiscard]] std::string numberText(const TiXmlElement& e, const char* name, Digits digits);
void writeExactText(TiXmlElement& e, const char* name, const std::string& text);

/// For types with fromString and toString (Vector, RGBAColour, Dimension, TexCoord, BasicTimer).
template <class Value>
void readValue(const TiXmlElement& e, const char* name, Value& value,
               Digits digits = Digits::usual) {
    if (has(e, name))
        value.fromString(numberText(e, name, digits));
}

void writeString(TiXmlElement& e, const char* name, const std::string& value);
/// "%d"
void writeInt(TiXmlElement& e, const char* name, int value);
/// "true" or "false"
void writeBool(TiXmlElement& e, const char* name, bool value);
/// "%f"
void writeFloat(TiXmlElement& e, const char* name, float value, Digits digits = Digits::usual);
template <class Value>
void writeValue(TiXmlElement& e, const char* name, const Value& value,
                Digits digits = Digits::usual) {
    const std::string text = value.toString();
    writeString(e, name, text);
    if (digits == Digits::usual)
        return;
    if (const std::string longer = value.toString(Digits::exact); longer != text)
        writeExactText(e, name, longer);
}

}  // namespace xml
}  // namespace bc
