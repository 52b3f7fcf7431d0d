// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "BodyTypes.h"

#include "BodyTypesReader.h"

#include "core/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace bc::levelc {

namespace {

template <class Named>
const Named* findNamed(const std::vector<Named>& list, std::string_view name) {
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const Named& n) { return n.name == name; });
    return found == list.end() ? nullptr : &*found;
}

bool isInteger(const std::string& text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

bool isVector(const std::string& text) {
    std::vector<std::string> parts;
    tokenise(",", text, parts);
    const auto commas = static_cast<std::size_t>(std::count(text.begin(), text.end(), ','));
    return (parts.size() == 2 || parts.size() == 3) && commas == parts.size() - 1 &&
           std::all_of(parts.begin(), parts.end(),
                       [](const std::string& part) { return parseNumber(part).has_value(); });
}

bool isPlainText(const std::string& text) {
    return std::none_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t';
    });
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::string> gameColour(const std::string& text) {
    if ((text.size() != 7 && text.size() != 9) || text[0] != '#')
        return std::nullopt;
    const std::string digits = (text.size() == 7 ? "ff" : "") + text.substr(1);
    int argb[4] = {};
    for (std::size_t i = 0; i < 4; ++i) {
        const char* begin = digits.data() + 2 * i;
        const auto result = std::from_chars(begin, begin + 2, argb[i], 16);
        if (result.ec != std::errc() || result.ptr != begin + 2)
            return std::nullopt;
    }
    return std::to_string(argb[1]) + "," + std::to_string(argb[2]) + "," + std::to_string(argb[3]) +
           "," + std::to_string(argb[0]);
}

const Param* BodyType::find(std::string_view param) const {
    return findNamed(params, param);
}

std::string BodyTypes::read(std::string_view xml) {
    BodyTypes fresh;
    std::string error = BodyTypesReader(fresh).read(xml);
    if (error.empty())
        *this = std::move(fresh);
    return error;
}

const BodyType* BodyTypes::find(std::string_view name) const {
    return findNamed(types_, name);
}

const BodyUse* BodyTypes::findUse(std::string_view name) const {
    return findNamed(uses_, name);
}

std::string BodyTypes::checkText(const Param& param, const std::string& text) const {
    switch (param.type) {
        case ParamType::Int:
            return isInteger(text) ? "" : "should be a whole number";
        case ParamType::Float:
            return parseNumber(text) ? "" : "should be a number";
        case ParamType::Bool:
            return text == "true" || text == "false" ? "" : "should be true or false";
        case ParamType::Vector:
            return isVector(text) ? "" : "should be two or three numbers with commas between";
        case ParamType::Colour:
            return gameColour(text) ? "" : "should be a colour, #aarrggbb";
        case ParamType::Enum: {
            const std::vector<std::string>& values = enums_.at(param.enumName);
            if (std::find(values.begin(), values.end(), text) != values.end())
                return "";
            std::string list;
            for (const std::string& value : values)
                list += (list.empty() ? "" : ", ") + value;
            return "should be one of " + list;
        }
        default:
            return isPlainText(text) ? "" : "holds control characters";
    }
}

}  // namespace bc::levelc
