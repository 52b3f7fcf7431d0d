// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class TiXmlElement;

namespace bc {

class BaseSky;
class IRenderer;
class OverlayEffect;
class SightLine;
class SkyParticles;

/// Keeps the loaded skies, draws the current one behind the world and switches between them with
/// a fade from black. Owned by the application.
class SkyManager {
  public:
    /// Seconds that the particle systems of a sky have to end when it is left.
    static constexpr float particleEndTime = 10;

    SkyManager();
    ~SkyManager();
    SkyManager(const SkyManager&) = delete;
    SkyManager& operator=(const SkyManager&) = delete;

    /// Neither is owned; both outlive the manager. Without them skies have no particle systems,
    /// and nothing hides a flare.
    void setServices(SkyParticles* particles, SightLine* sight);
    /// Reserves the names of the two skies that are never loaded from a file.
    void init();

    // Paths are names of sky files, as "data/sky/default.xml".
    /// Nothing when that sky is current; an unloaded one is a log line.
    void switchSky(const std::string& path);
    /// False, with a log line, when the file cannot be read. True without a change for a reserved
    /// or loaded one. The first sky becomes the current one at once, without a fade.
    bool loadSky(const std::string& path);
    /// The same with a bare name ("aurora"); a path is taken as it is.
    void switchSkyByName(std::string_view name);
    bool loadSkyByName(std::string_view name);
    /// Only this sky from now on. When it cannot be read the skies stay as they were.
    bool replaceAllByName(std::string_view name);
    void unloadAll();
    /// The current sky keeps its place after the level's particle systems were all cleared: its
    /// own are started again.
    void restartParticles();

    /// camera is the place the camera looks at, its z the negative distance of the eye; dt in
    /// seconds.
    void draw(IRenderer& renderer, const Vector& camera, float dt);

    /// Null when none is loaded.
    [[nodiscard]] const BaseSky* current() const { return current_; }
    [[nodiscard]] std::size_t loadedCount() const { return skies_.size(); }
    /// Attributes current and fading, one child a loaded sky.
    void dump(TiXmlElement& element) const;

    /// "data/sky/" + name + ".xml", or the name itself when it begins with "data/sky/".
    [[nodiscard]] static std::string pathOf(std::string_view name);

  private:
    [[nodiscard]] bool isReserved(std::string_view path) const;
    [[nodiscard]] BaseSky* find(std::string_view path) const;
    void makeCurrent(BaseSky* sky);

    std::vector<std::string> reserved_;
    std::vector<std::unique_ptr<BaseSky>> skies_;
    BaseSky* current_ = nullptr;
    std::unique_ptr<OverlayEffect> fade_;
    SkyParticles* particles_ = nullptr;
    SightLine* sight_ = nullptr;
};

}  // namespace bc
