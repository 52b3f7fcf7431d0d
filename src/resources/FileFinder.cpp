// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileFinder.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace bc {

namespace fs = std::filesystem;

bool matchesWildcard(std::string_view pattern, std::string_view name) {
    std::size_t p = 0;
    std::size_t n = 0;
    // The latest star in the pattern, and the character of the name from which to compare again
    // once the star stands for one character more.
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

std::optional<FoundFile> FileFinder::findFirst(const std::string& pattern) {
    close();
    const std::size_t slash = pattern.rfind('/');
    const bool hasFolder = slash != std::string::npos;
    const std::string wildcard = hasFolder ? pattern.substr(slash + 1) : pattern;
    std::error_code error;
    fs::directory_iterator it(hasFolder ? pattern.substr(0, slash + 1) : "./", error);
    for (const fs::directory_iterator end; !error && it != end; it.increment(error)) {
        std::string name = it->path().filename().string();
        if (!matchesWildcard(wildcard, name))
            continue;
        std::error_code unreadable;
        found_.push_back({it->is_directory(unreadable), std::move(name)});
    }
    std::sort(found_.begin(), found_.end(),
              [](const FoundFile& a, const FoundFile& b) { return a.name < b.name; });
    return findNext();
}

std::optional<FoundFile> FileFinder::findNext() {
    if (next_ >= found_.size())
        return std::nullopt;
    return found_[next_++];
}

void FileFinder::close() {
    found_.clear();
    next_ = 0;
}

}  // namespace bc
