// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/FileSystem.h"

#include "core/Log.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace bc::files {

namespace {

namespace fs = std::filesystem;

struct Folders {
    std::string user = ".";
    std::string data = ".";
};

Folders& folders() {
    static Folders instance;
    return instance;
}

/// Owns a file descriptor and closes it at the end; -1 stands for no file.
class Descriptor {
  public:
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int get() const { return fd_; }
    /// False when the operating system could not write the last bytes.
    [[nodiscard]] bool close() {
        const int fd = fd_;
        fd_ = -1;
        return ::close(fd) == 0;
    }

  private:
    int fd_;
};

bool isRegularFile(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool writeWhole(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t n = ::write(fd, bytes.data(), bytes.size());
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

/// Writes a new file and waits until it is on the disk.
bool writeNewFile(const std::string& path, std::string_view contents) {
    ::unlink(path.c_str());  // A crash may have left one behind.
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    return file.get() >= 0 && writeWhole(file.get(), contents) && ::fsync(file.get()) == 0 &&
           file.close();
}

void flushFolder(const std::string& path) {
    const Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.get() >= 0)
        ::fsync(folder.get());
}

void logFailure(const std::string& what, std::string_view name, int error) {
    logLine(what + " " + std::string(name) + ": " + std::strerror(error));
}

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 32 || byte == 127;
}

/// The name for a log line, with "?" for every control character, so that it stays on that line.
std::string printable(std::string_view name) {
    std::string out(name);
    std::replace_if(out.begin(), out.end(), isControl, '?');
    return out;
}

}  // namespace

void setFolders(const std::string& userFolder, const std::string& dataFolder) {
    folders().user = userFolder.empty() ? "." : userFolder;
    folders().data = dataFolder.empty() ? "." : dataFolder;
}
const std::string& userFolder() {
    return folders().user;
}
const std::string& dataFolder() {
    return folders().data;
}

bool isSafeName(std::string_view name) {
    if (name.empty() || name.front() == '/')
        return false;
    if (std::any_of(name.begin(), name.end(), isControl))
        return false;
    while (!name.empty()) {
        const std::size_t slash = std::min(name.find('/'), name.size());
        if (name.substr(0, slash) == "..")
            return false;
        name.remove_prefix(std::min(slash + 1, name.size()));
    }
    return true;
}

std::optional<std::string> resolve(std::string_view name) {
    if (!isSafeName(name))
        return std::nullopt;
    for (const std::string* folder : {&folders().user, &folders().data}) {
        std::string path = *folder + '/' + std::string(name);
        if (isRegularFile(path))
            return path;
    }
    return std::nullopt;
}

std::optional<std::string> writable(std::string_view name) {
    if (!isSafeName(name)) {
        logLine("Refused file name: " + printable(name));
        return std::nullopt;
    }
    std::string path = folders().user + '/' + std::string(name);
    std::error_code error;
    fs::create_directories(fs::path(path).parent_path(), error);
    if (error) {
        logFailure("Could not make the folder of", name, error.value());
        return std::nullopt;
    }
    return path;
}

std::optional<std::string> readAll(std::string_view name, std::uint64_t maxBytes) {
    const std::optional<std::string> path = resolve(name);
    if (!path)
        return std::nullopt;
    const Descriptor file(::open(path->c_str(), O_RDONLY | O_CLOEXEC));
    struct stat info {};
    if (file.get() < 0 || ::fstat(file.get(), &info) != 0)
        return std::nullopt;
    if (static_cast<std::uint64_t>(info.st_size) > maxBytes)
        return std::nullopt;
    std::string contents(static_cast<std::size_t>(info.st_size), '\0');
    std::size_t have = 0;
    while (have < contents.size()) {
        const ssize_t n = ::read(file.get(), contents.data() + have, contents.size() - have);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return std::nullopt;
        if (n == 0)
            break;
        have += static_cast<std::size_t>(n);
    }
    contents.resize(have);
    return contents;
}

bool replace(std::string_view name, std::string_view contents) {
    const std::optional<std::string> path = writable(name);
    if (!path)
        return false;
    const std::string temporary = *path + ".new";
    errno = 0;
    // The contents must be on the disk before the file gets its name, and the folder after that.
    // Then a crash leaves either the old or the new file, whenever it happens.
    if (writeNewFile(temporary, contents) && ::rename(temporary.c_str(), path->c_str()) == 0) {
        flushFolder(fs::path(*path).parent_path().string());
        return true;
    }
    const int error = errno;
    ::unlink(temporary.c_str());
    logFailure("Could not write", name, error != 0 ? error : EIO);
    return false;
}

bool append(std::string_view name, std::string_view text) {
    const std::optional<std::string> path = writable(name);
    if (!path)
        return false;
    Descriptor file(::open(path->c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
    if (file.get() >= 0 && writeWhole(file.get(), text) && file.close())
        return true;
    logFailure("Could not append to", name, errno);
    return false;
}

}  // namespace bc::files
