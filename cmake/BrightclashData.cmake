# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# Where the build leaves the game ready to run: the program beside data/ and maps/.
set(BRIGHTCLASH_GAME_DIR ${CMAKE_BINARY_DIR}/game)
file(MAKE_DIRECTORY ${BRIGHTCLASH_GAME_DIR})
