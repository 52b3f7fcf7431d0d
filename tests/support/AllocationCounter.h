// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Replaces the allocation functions of the program: include it in one source of a test program.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

namespace bc::test {

inline thread_local long allocations = 0;

/// How often this thread has asked for memory since the counter was made.
class AllocationCounter {
  public:
    [[nodiscard]] long count() const { return allocations - start_; }

  private:
    long start_ = allocations;
};

inline void* countedAlloc(std::size_t size, std::size_t alignment = 0) noexcept {
    ++allocations;
    if (alignment <= alignof(std::max_align_t))
        return std::malloc(size > 0 ? size : 1);
    return std::aligned_alloc(alignment, (size + alignment) / alignment * alignment);
}

/// Kept apart from its callers: inlined, the compiler takes free for a mismatch to new.
[[gnu::noinline]] inline void giveBack(void* memory) noexcept {
    std::free(memory);
}

inline void* orThrow(void* memory) {
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

}  // namespace bc::test

// NOLINTBEGIN(misc-definitions-in-headers): the one source that includes this defines them.
// All forms, since libraries mix them: what one gives out another takes back.
void* operator new(std::size_t size) {
    return bc::test::orThrow(bc::test::countedAlloc(size));
}
void* operator new[](std::size_t size) {
    return bc::test::orThrow(bc::test::countedAlloc(size));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return bc::test::countedAlloc(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return bc::test::countedAlloc(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return bc::test::orThrow(bc::test::countedAlloc(size, static_cast<std::size_t>(alignment)));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return bc::test::orThrow(bc::test::countedAlloc(size, static_cast<std::size_t>(alignment)));
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    return bc::test::countedAlloc(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    return bc::test::countedAlloc(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept {
    bc::test::giveBack(memory);
}
void operator delete[](void* memory) noexcept {
    bc::test::giveBack(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    bc::test::giveBack(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    bc::test::giveBack(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    bc::test::giveBack(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    bc::test::giveBack(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
    bc::test::giveBack(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
    bc::test::giveBack(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    bc::test::giveBack(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
    bc::test::giveBack(memory);
}
// NOLINTEND(misc-definitions-in-headers)
