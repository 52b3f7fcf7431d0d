// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BodyTypes.h"

#include <set>
#include <string>
#include <vector>

namespace bc::levelc {

/// Knows which data files there are for a level to name.
class AssetIndex {
  public:
    virtual ~AssetIndex() = default;

    /// Why what a parameter of this kind names is not there; empty when it is, and for parameters
    /// that name no file.
    [[nodiscard]] std::string checkFile(ParamKind kind, const std::string& name) const;
    /// The names of the objects that a wave file triggers; none of a file that cannot be read.
    [[nodiscard]] std::vector<std::string> waveTargets(const std::string& name) const;
    /// Whether a map has a spawn point of that name.
    [[nodiscard]] virtual bool hasSpawnPoint(const std::string& map,
                                             const std::string& name) const = 0;

  protected:
    [[nodiscard]] virtual bool hasImage(const std::string& name) const = 0;
    [[nodiscard]] virtual bool hasSound(const std::string& name) const = 0;
    [[nodiscard]] virtual bool hasMap(const std::string& name) const = 0;
    /// A text that is the same in the sources and in the game: "data/sky/night.xml".
    [[nodiscard]] virtual bool hasText(const std::string& name) const = 0;
    /// Its contents, empty when it cannot be read.
    [[nodiscard]] virtual std::string readText(const std::string& name) const = 0;

    /// To be called at the end of construction.
    void readParticles();

  private:
    std::set<std::string> particles_;
};

/// The files that the build makes of the sources below a folder with images/, sounds/, data/ and
/// maps/: for levels of the game itself.
class SourceAssets final : public AssetIndex {
  public:
    explicit SourceAssets(std::string folder);

    [[nodiscard]] bool hasSpawnPoint(const std::string& map,
                                     const std::string& name) const override;

  protected:
    [[nodiscard]] bool hasImage(const std::string& name) const override;
    [[nodiscard]] bool hasSound(const std::string& name) const override;
    [[nodiscard]] bool hasMap(const std::string& name) const override;
    [[nodiscard]] bool hasText(const std::string& name) const override;
    [[nodiscard]] std::string readText(const std::string& name) const override;

  private:
    [[nodiscard]] bool has(const std::string& source) const;

    std::string folder_;
};

/// The files of an installed game, a person's own laid over them (files::setFolders): for levels of
/// players.
class GameAssets final : public AssetIndex {
  public:
    GameAssets();

    [[nodiscard]] bool hasSpawnPoint(const std::string& map,
                                     const std::string& name) const override;

  protected:
    [[nodiscard]] bool hasImage(const std::string& name) const override;
    [[nodiscard]] bool hasSound(const std::string& name) const override;
    [[nodiscard]] bool hasMap(const std::string& name) const override;
    [[nodiscard]] bool hasText(const std::string& name) const override;
    [[nodiscard]] std::string readText(const std::string& name) const override;
};

}  // namespace bc::levelc
