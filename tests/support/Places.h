// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc::test {

/// A path of the sources, "assets/data/weapons.xml", as an absolute one.
[[nodiscard]] std::string sourcePath(const std::string& name);
/// The same of the finished game in the build's folder, "data/fonts/vera.xml".
[[nodiscard]] std::string gamePath(const std::string& name);

}  // namespace bc::test
