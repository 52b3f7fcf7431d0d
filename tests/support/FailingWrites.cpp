// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Preloaded into the game by tests: a process that dies, or a disk that is full, at a chosen one of
// the calls that change a save or the settings.
//   FAIL_AT=N   the N-th such call, counted from 1
//   FAIL_HOW    "die": half of it is done, then the process is gone; "full": ENOSPC from then on
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/types.h>
#include <unistd.h>

namespace {

template <class Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool matters(const char* path) {
    return path != nullptr && (std::strstr(path, "/saves/") != nullptr ||
                               std::strstr(path, "/data/config.txt") != nullptr);
}

bool matters(int fd) {
    char path[4096] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(fd);
    return readlink(link.c_str(), path, sizeof path - 1) > 0 && matters(path);
}

/// Counts a call; what becomes of it.
enum class Fate { goesOn, dies, full };
Fate fate() {
    static const char* const at = std::getenv("FAIL_AT");
    static const char* const how = std::getenv("FAIL_HOW");
    static int calls = 0;
    ++calls;
    if (at == nullptr || how == nullptr || calls < std::atoi(at))
        return Fate::goesOn;
    return std::strcmp(how, "full") == 0 ? Fate::full : Fate::dies;
}

/// Runs the call, or what is left of it.
template <class Call>
auto meetFate(bool counts, Call call) -> decltype(call()) {
    switch (counts ? fate() : Fate::goesOn) {
        case Fate::goesOn:
            return call();
        case Fate::dies:
            _exit(137);
        case Fate::full:
            break;
    }
    errno = ENOSPC;
    return -1;
}

}  // namespace

extern "C" {

ssize_t write(int fd, const void* data, size_t size) {
    const auto real = next<ssize_t (*)(int, const void*, size_t)>("write");
    if (!matters(fd))
        return real(fd, data, size);
    switch (fate()) {
        case Fate::goesOn:
            return real(fd, data, size);
        case Fate::dies:
            (void)!real(fd, data, size / 2);
            _exit(137);
        case Fate::full:
            break;
    }
    errno = ENOSPC;
    return -1;
}

int fsync(int fd) {
    return meetFate(matters(fd), [&] { return next<int (*)(int)>("fsync")(fd); });
}

int rename(const char* from, const char* to) {
    const auto real = next<int (*)(const char*, const char*)>("rename");
    return meetFate(matters(to), [&] { return real(from, to); });
}

int unlink(const char* path) {
    const auto real = next<int (*)(const char*)>("unlink");
    // Taking something away needs no room.
    if (const char* how = std::getenv("FAIL_HOW"); how != nullptr && std::strcmp(how, "full") == 0)
        return real(path);
    return meetFate(matters(path), [&] { return real(path); });
}

int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
    }
    const auto real = next<int (*)(const char*, int, ...)>("open");
    return meetFate((flags & O_CREAT) != 0 && matters(path),
                    [&] { return real(path, flags, mode); });
}
}
