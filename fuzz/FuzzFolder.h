// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "resources/FileSystem.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace bc {

/// An empty user and data folder for readers of files, and a log that goes nowhere.
class FuzzFolder {
  public:
    FuzzFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "fuzzXXXXXX").string();
        path_ = mkdtemp(pattern.data());
        files::setFolders(path_, path_);
        if (std::freopen("/dev/null", "w", stdout) == nullptr)
            std::perror("log");
    }
    ~FuzzFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;

    void put(const std::string& name, const std::uint8_t* data, std::size_t size) const {
        std::ofstream out(path_ + '/' + name, std::ios::binary);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }

  private:
    std::string path_;
};

}  // namespace bc
