// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Replaces the allocation functions of the program: include it in one source of a test program.
#pragma once

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

}  // namespace bc::test

// Replacements of the allocation functions must not be inline.
// NOLINTBEGIN(misc-definitions-in-headers)
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++bc::test::allocations;
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void* operator new(std::size_t size, std::align_val_t alignment) {
    ++bc::test::allocations;
    const auto unit = static_cast<std::size_t>(alignment);
    if (void* memory = std::aligned_alloc(unit, (size + unit) / unit * unit))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
// NOLINTEND(misc-definitions-in-headers)
