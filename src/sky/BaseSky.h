// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "sky/LensFlare.h"
#include "sky/SkyQuad.h"

#include <map>
#include <string>
#include <vector>

class TiXmlElement;

namespace bc {

class IRenderer;
class SightLine;
class SkyParticles;

/// One sky read from a file: quads in the order in which they are drawn, particle systems and an
/// optional lens flare. Everything keeps its place in the view wherever the camera goes.
class BaseSky {
  public:
    // What a file may hold at most; the rest of a larger one is left out with a log line.
    static constexpr std::size_t maxQuads = 256;
    static constexpr std::size_t maxParticleSystems = 64;

    /// False, with a log line, when the file cannot be read.
    bool load(const std::string& path);
    /// Adds what the root element of a sky file holds.
    void read(const TiXmlElement& root);
    /// camera is the place the camera looks at, its z the negative distance of the eye.
    void draw(IRenderer& renderer, const Vector& camera, float dt, SkyParticles* particles,
              SightLine* sight);
    /// Runs the particle systems, those that ran before not ended.
    void startParticles(SkyParticles* particles);
    /// Tells them to end within that many seconds and forgets them.
    void stopParticles(SkyParticles* particles, float seconds);
    void dump(TiXmlElement& element) const;

    /// The path it was loaded from.
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::vector<SkyQuad>& quads() const { return quads_; }
    [[nodiscard]] const std::map<std::string, Vector>& placements() const { return placements_; }
    [[nodiscard]] bool hasLensFlare() const { return hasLensFlare_; }
    [[nodiscard]] const LensFlare& lensFlare() const { return lensFlare_; }

  private:
    std::string name_;
    std::vector<SkyQuad> quads_;
    /// By name of the particle system: where it stands, relative to the camera.
    std::map<std::string, Vector> placements_;
    std::vector<int> running_;
    bool hasLensFlare_ = false;
    LensFlare lensFlare_;
};

}  // namespace bc
