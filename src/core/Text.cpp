// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <locale.h>

namespace bc {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

locale_t classicLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

/// Calls visit(token) for each piece between delimiters that is not empty, until visit returns
/// false.
template <class Visit>
void forEachToken(std::string_view delimiters, std::string_view text, Visit visit) {
    std::size_t begin = text.find_first_not_of(delimiters);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(delimiters, begin), text.size());
        if (!visit(text.substr(begin, end - begin)))
            return;
        begin = text.find_first_not_of(delimiters, end);
    }
}

}  // namespace

void tokenise(std::string_view delimiters, std::string_view text, std::vector<std::string>& out) {
    forEachToken(delimiters, text, [&](std::string_view token) {
        out.emplace_back(token);
        return true;
    });
}

std::string lowerCase(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), lower);
    return out;
}

int compareNoCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const char ca = upper(a[i]);
        const char cb = upper(b[i]);
        if (ca != cb)
            return static_cast<unsigned char>(ca) < static_cast<unsigned char>(cb) ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

bool splitExtension(std::string_view fileName, std::string& base, std::string& extension) {
    const std::size_t dot = fileName.rfind('.');
    const bool found = dot != std::string_view::npos;
    std::string newBase(found ? fileName.substr(0, dot) : std::string_view{});
    std::string newExtension(found ? fileName.substr(dot) : std::string_view{});
    base = std::move(newBase);
    extension = std::move(newExtension);
    return found;
}

const char* boolText(bool value) {
    return value ? "true" : "false";
}
bool parseBool(std::string_view text) {
    return text == "true";
}
bool parseBool(const char* text) {
    return text != nullptr && std::string_view(text) == "true";
}

std::string formatFloat(float value, Digits digits) {
    char buffer[32];
    char* const limit = buffer + sizeof buffer;
    const auto end = digits == Digits::exact
                         ? std::to_chars(buffer, limit, value, std::chars_format::general).ptr
                         : std::to_chars(buffer, limit, value, std::chars_format::general, 6).ptr;
    return {buffer, end};
}

float parseFloat(std::string_view text) {
    // strtod_l needs a terminated text. Only the first 127 characters count; no number in a data
    // file is longer.
    char buffer[128];
    const std::size_t skip = static_cast<std::size_t>(
        std::find_if_not(text.begin(), text.end(), isSpace) - text.begin());
    text.remove_prefix(skip);
    const std::size_t n = std::min(text.size(), sizeof buffer - 1);
    std::copy_n(text.data(), n, buffer);
    buffer[n] = '\0';
    const auto value = static_cast<float>(strtod_l(buffer, nullptr, classicLocale()));
    return std::isfinite(value) ? value : 0.0F;
}

int parseInt(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isSpace(text[i]))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        negative = text[i++] == '-';
    long long value = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        value = std::min(value * 10 + (text[i] - '0'), 1LL << 40);
    return static_cast<int>(std::clamp<long long>(negative ? -value : value, INT_MIN, INT_MAX));
}

int parseFloats(std::string_view text, std::string_view delimiters, float* out, int max) {
    int count = 0;
    forEachToken(delimiters, text, [&](std::string_view token) {
        out[count++] = parseFloat(token);
        return count < max;
    });
    return count;
}

}  // namespace bc
