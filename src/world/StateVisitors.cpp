// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/StateVisitors.h"

#include "core/Log.h"
#include "core/Text.h"
#include "resources/XmlAttributes.h"
#include "world/Body.h"
#include "world/Simd.h"

#include <tinyxml.h>

namespace bc {

namespace {

// One function for each kind of field: from a text, from and to an attribute.
void parse(const std::string& text, bool& out) {
    out = parseBool(text);
}
void parse(const std::string& text, int& out) {
    out = parseInt(text);
}
void parse(const std::string& text, float& out) {
    out = parseFloat(text);
}
void parse(const std::string& text, std::string& out) {
    out = text;
}
template <class Value>
void parse(const std::string& text, Value& out) {
    out.fromString(text);
}

void read(const TiXmlElement& e, const char* name, Digits, bool& out) {
    out = xml::readBool(e, name);
}
void read(const TiXmlElement& e, const char* name, Digits, int& out) {
    out = xml::readInt(e, name);
}
void read(const TiXmlElement& e, const char* name, Digits digits, float& out) {
    out = xml::readFloat(e, name, digits);
}
void read(const TiXmlElement& e, const char* name, Digits, std::string& out) {
    out = xml::readString(e, name);
}
template <class Value>
void read(const TiXmlElement& e, const char* name, Digits digits, Value& out) {
    xml::readValue(e, name, out, digits);
}

void write(TiXmlElement& e, const char* name, Digits, bool value) {
    xml::writeBool(e, name, value);
}
void write(TiXmlElement& e, const char* name, Digits, int value) {
    xml::writeInt(e, name, value);
}
void write(TiXmlElement& e, const char* name, Digits digits, float value) {
    xml::writeFloat(e, name, value, digits);
}
void write(TiXmlElement& e, const char* name, Digits, const std::string& value) {
    xml::writeString(e, name, value);
}
template <class Value>
void write(TiXmlElement& e, const char* name, Digits digits, const Value& value) {
    xml::writeValue(e, name, value, digits);
}

void readInto(const TiXmlElement& e, const char* name, Digits digits, BodyFields::Ref value) {
    std::visit([&](auto* field) { read(e, name, digits, *field); }, value);
}
void writeFrom(TiXmlElement& e, const char* name, Digits digits, BodyFields::Ref value) {
    std::visit([&](const auto* field) { write(e, name, digits, *field); }, value);
}

}  // namespace

BodyFields::Visit AttributeVisitor::onParam(const Declared& param) {
    for (const auto& [name, text] : given_)
        if (equalsNoCase(name, param.name)) {
            std::visit([&](auto* field) { parse(text, *field); }, param.value);
            return {Outcome::given};
        }
    return {};
}

BodyFields::Visit PlacedReader::onPlaced(const Declared& param) {
    if (!xml::has(params_, param.name))
        return {Outcome::absent};
    readInto(params_, param.name, digits_, param.value);
    return {Outcome::given};
}

BodyFields::Visit PlacedWriter::onPlaced(const Declared& param) {
    writeFrom(params_, param.name, digits_, param.value);
    return {};
}

BodyFields::Outcome StateReader::onSaved(const char* name, Ref value, bool /*wanted*/) {
    if (!xml::has(e_, name))
        return Outcome::absent;
    Vector* const* place = std::get_if<Vector*>(&value);
    if (place == nullptr) {
        readInto(e_, name, digits_, value);
        return Outcome::given;
    }
    // One that could not have come from a running game is left out.
    Vector found = **place;
    xml::readValue(e_, name, found, digits_);
    if (!simd::within(simd::load(found), Body::maxCoordinate)) {
        logLine(std::string("Refused value of ") + name + ": " + xml::readString(e_, name));
        return Outcome::absent;
    }
    **place = found;
    return Outcome::given;
}

BodyFields::Outcome StateWriter::onSaved(const char* name, Ref value, bool wanted) {
    if (wanted)
        writeFrom(e_, name, digits_, value);
    return Outcome::none;
}

void DumpWriter::onShown(const char* name, Ref value) {
    writeFrom(debug_, name, Digits::usual, value);
}

}  // namespace bc
