# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# Compiler settings that every target shares, through the interface target brightclash_options.

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

option(BRIGHTCLASH_SANITIZE "Address and undefined-behaviour sanitizers" OFF)

add_library(brightclash_options INTERFACE)
target_compile_options(brightclash_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Werror
  # A recorded run plays back bit for bit on every machine: no fused multiply-add.
  -ffp-contract=off)
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1 -DNDEBUG")
if(BRIGHTCLASH_SANITIZE)
  target_compile_options(brightclash_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(brightclash_options INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
