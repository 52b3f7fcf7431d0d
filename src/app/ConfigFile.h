// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

class GameplayInput;

// The files with key bindings and variables as command lines: data/config.txt, written at every
// orderly exit and by the command writeconfig, and data/userconfig.txt, which is only read.

/// Registers writeconfig, which writes the bindings of this input; the input outlives the command.
void registerConfigCommands(const GameplayInput& input);

/// Executes the files of a start in their order. A missing one is told on the console.
void executeConfigFiles();

/// Replaces the file at path (as files::replace takes it). automatic: the header warns that the
/// game overwrites the file; that of data/config.txt always does. False when the file cannot be
/// written; the old one stays then, and the log says why.
bool writeConfig(const GameplayInput& input, const std::string& path, bool automatic);

}  // namespace bc
