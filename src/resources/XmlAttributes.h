// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Text.h"

#include <string>

class TiXmlElement;

namespace bc {

// Attributes of data files and saves. Reading: a missing or empty number is 0, a missing bool is
// false (true only for exactly "true"), a missing value leaves the target unchanged.
namespace xml {

[[nodiscard]] float readFloat(const TiXmlElement& e, const char* name);
[[nodiscard]] int readInt(const TiXmlElement& e, const char* name);
[[nodiscard]] bool readBool(const TiXmlElement& e, const char* name);
[[nodiscard]] bool has(const TiXmlElement& e, const char* name);
/// Empty when missing.
[[nodiscard]] std::string readString(const TiXmlElement& e, const char* name);

/// While one lives, a number whose usual text reads back as another one is written a second time,
/// to the last bit, under its name with ".exact" behind it; and read from there, if it is there.
/// For saves: a run that goes on from one stays the same run.
class ExactNumbers {
  public:
    ExactNumbers();
    ~ExactNumbers();
    ExactNumbers(const ExactNumbers&) = delete;
    ExactNumbers& operator=(const ExactNumbers&) = delete;
    [[nodiscard]] static bool inForce();
};

/// The text of an attribute that holds numbers.
[[nodiscard]] std::string numberText(const TiXmlElement& e, const char* name);
void writeExactText(TiXmlElement& e, const char* name, const std::string& text);

/// For types with fromString and toString (Vector, RGBAColour, Dimension, TexCoord, BasicTimer).
template <class Value>
void readValue(const TiXmlElement& e, const char* name, Value& value) {
    if (has(e, name))
        value.fromString(numberText(e, name));
}

void writeString(TiXmlElement& e, const char* name, const std::string& value);
/// "%d"
void writeInt(TiXmlElement& e, const char* name, int value);
/// "true" or "false"
void writeBool(TiXmlElement& e, const char* name, bool value);
/// "%f"
void writeFloat(TiXmlElement& e, const char* name, float value);
template <class Value>
void writeValue(TiXmlElement& e, const char* name, const Value& value) {
    const std::string text = value.toString();
    writeString(e, name, text);
    if (!ExactNumbers::inForce())
        return;
    const ExactFloats exact;
    if (const std::string longer = value.toString(); longer != text)
        writeExactText(e, name, longer);
}

}  // namespace xml
}  // namespace bc
