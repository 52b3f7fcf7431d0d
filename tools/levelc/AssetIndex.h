// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BodyTypes.h"

#include <set>
#include <string>
#include <vector>

namespace bc::levelc {

/// Knows by their sources which data files the game will have: the files below assets/ that the
/// build renders or copies to the game's folder.
class AssetIndex {
  public:
    /// The folder that holds images/, sounds/, data/ and maps/.
    explicit AssetIndex(std::string folder);

    /// Why what a parameter of this type names will not be there; empty when it will, and for
    /// parameters that name no file.
    [[nodiscard]] std::string checkFile(ParamType type, const std::string& name) const;
    /// The names of the objects that a wave file triggers; none of a file that cannot be read.
    [[nodiscard]] std::vector<std::string> waveTargets(const std::string& name) const;
    /// Whether a map has a spawn point of that name.
    [[nodiscard]] bool hasSpawnPoint(const std::string& map, const std::string& name) const;

  private:
    [[nodiscard]] bool has(const std::string& source) const;
    /// The source of data/<kind>/NAME.<ending>: <sources>/NAME.<sourceEnding>.
    [[nodiscard]] std::string checkImage(const std::string& name) const;
    [[nodiscard]] std::string checkSound(const std::string& name) const;
    [[nodiscard]] std::string checkText(const std::string& name) const;

    std::string folder_;
    std::set<std::string> particles_;
};

}  // namespace bc::levelc
