// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/FrameScript.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <string_view>

namespace bc {

namespace {

/// Bytes.
constexpr std::size_t maxScriptSize = 64U << 20;

std::string_view trimmed(std::string_view s) {
    const std::size_t begin = s.find_first_not_of(" \t\r");
    if (begin == std::string_view::npos)
        return {};
    return s.substr(begin, s.find_last_not_of(" \t\r") - begin + 1);
}

/// Appends the contents of a file or a pipe. False when it cannot be read or is too long.
bool readScript(const std::string& path, std::string& text) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return false;
    std::array<char, 4096> chunk{};
    while (text.size() <= maxScriptSize) {
        const std::size_t n = std::fread(chunk.data(), 1, chunk.size(), file);
        if (n == 0)
            break;
        text.append(chunk.data(), n);
    }
    const bool whole = std::ferror(file) == 0 && text.size() <= maxScriptSize;
    std::fclose(file);
    return whole;
}

}  // namespace

bool FrameScript::load(const std::string& path, std::string& error) {
    std::string text;
    if (readScript(path, text))
        return parse(text, error);
    error = "cannot be read";
    return false;
}

bool FrameScript::parse(const std::string& text, std::string& error) {
    std::vector<Line> lines;
    std::string_view rest = text;
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        line = trimmed(line.substr(0, line.find('#')));
        if (line.empty())
            continue;
        std::uint32_t frame = 0;
        const auto result = std::from_chars(line.data(), line.data() + line.size(), frame);
        const auto digits = static_cast<std::size_t>(result.ptr - line.data());
        const std::string_view command = trimmed(line.substr(digits));
        if (result.ec != std::errc() || command.empty() ||
            (line[digits] != ' ' && line[digits] != '\t')) {
            error = "line " + std::to_string(number) + ": expected 'FRAME TEXT'";
            return false;
        }
        lines.push_back({frame, std::string(command)});
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const Line& a, const Line& b) { return a.frame < b.frame; });
    lines_ = std::move(lines);
    next_ = 0;
    return true;
}

void FrameScript::runDue(std::uint32_t frame, const std::function<void(const std::string&)>& run) {
    while (next_ < lines_.size() && lines_[next_].frame <= frame)
        run(lines_[next_++].text);
}

}  // namespace bc
