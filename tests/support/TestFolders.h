// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "resources/FileSystem.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <unistd.h>

namespace bc {

/// While it lives, files cannot grow beyond some bytes, as on a disk that is full. The log is such
/// a file as well.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    void (*handler_)(int);
    rlimit before_{};
};

/// A user folder and a data folder of the test's own, empty at its start.
class TestFolders : public testing::Test {
  protected:
    TestFolders() {
        std::string pattern = (std::filesystem::temp_directory_path() / "bcXXXXXX").string();
        root_ = mkdtemp(pattern.data());
        std::filesystem::create_directories(user());
        std::filesystem::create_directories(data());
        files::setFolders(user(), data());
    }
    ~TestFolders() override {
        files::setFolders("", "");
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }

    [[nodiscard]] std::string user() const { return root_ + "/user"; }
    [[nodiscard]] std::string data() const { return root_ + "/data"; }

    /// Bypasses what is tested.
    static void put(const std::string& path, std::string_view contents) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << contents;
    }
    static std::string get(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    /// What action writes to the log.
    template <class Action>
    static std::string logOf(Action action) {
        testing::internal::CaptureStdout();
        action();
        return testing::internal::GetCapturedStdout();
    }

  private:
    std::string root_;
};

}  // namespace bc
