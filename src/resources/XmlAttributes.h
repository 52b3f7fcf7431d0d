// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

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

/// For types with fromString and toString (Vector, RGBAColour, Dimension, TexCoord, BasicTimer).
template <class Value>
void readValue(const TiXmlElement& e, const char* name, Value& value) {
    if (has(e, name))
        value.fromString(readString(e, name));
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
    writeString(e, name, value.toString());
}

}  // namespace xml
}  // namespace bc
