// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "particles/ParticleSystem.h"
#include "particles/QuadBatch.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class TiXmlElement;

namespace bc {

class Frustum;
class IRenderer;

/// Owns the definitions and every running particle system. Systems that have ended are kept and
/// used again, so that effects cost no allocation once as many of a kind have run before.
class ParticleManager {
  public:
    /// Bounds on what a definition file or a flood of effects can ask for.
    static constexpr std::size_t definitionLimit = 1024;
    static constexpr std::size_t systemLimit = 2048;
    /// Room for particles over all systems, running or kept for later (about 110 bytes each).
    static constexpr int particleRoomLimit = 1 << 18;

    ParticleManager();
    ~ParticleManager();
    ParticleManager(const ParticleManager&) = delete;
    ParticleManager& operator=(const ParticleManager&) = delete;

    /// Back to the state after construction: no systems, no definitions, ids from the beginning.
    void clear();
    /// The built-in definition "default", for names that nobody defined.
    void makeDefaultDefinition();
    /// Adds the file's definitions; a later one of the same id replaces the earlier (systems that
    /// run keep theirs). A file that cannot be read leaves everything as it was, with a log line.
    void loadDefinitions(const std::string& fileName);
    /// Adds a definition for every child element, whatever its name, up to definitionLimit.
    void readDefinitions(const TiXmlElement& root);
    [[nodiscard]] bool hasDefinition(std::string_view id) const;
    [[nodiscard]] std::size_t definitionCount() const { return definitions_.size(); }
    /// Stores one definition, as if it were read from a file.
    void addDefinition(ParticleSystemParams definition);

    /// Starts a system of the named definition at the origin, without particles; the manager keeps
    /// it. An unknown name is logged and "default" used instead. Null when that is missing too or
    /// when the limits above are reached.
    ParticleSystem* createFromDefinition(std::string_view name);

    /// Living particles of all systems.
    [[nodiscard]] int particleCount() const;
    /// Advances every system by dt seconds. What lies outside the view is moved ten times a second
    /// of its own time only.
    void update(float dt, const Frustum& view);
    /// Draws the visible systems that are in the renderer's view, in the order of their start.
    /// Depth writes are on and blending is ordinary transparency afterwards.
    void draw(IRenderer& renderer);
    /// Draws one system wherever it is, visible or not, with depth writes as they are.
    void drawSystem(IRenderer& renderer, ParticleSystem& system);
    /// Loads the textures of all definitions and makes the running systems fetch theirs again.
    /// Called after loading definitions and whenever the renderer has emptied its cache.
    void reloadTextures(IRenderer& renderer);

    /// Ends all systems, their observers told.
    void clearSystems();
    /// The running systems in the order of their start.
    [[nodiscard]] std::span<const std::unique_ptr<ParticleSystem>> systems() const {
        return systems_;
    }
    /// Null when the system has ended.
    [[nodiscard]] ParticleSystem* find(int id);

  private:
    /// Pools are made in sizes of 16 << n particles.
    static constexpr std::size_t poolSizes = 9;

    std::unique_ptr<ParticleSystem> createSystem(std::string_view name, int maxParticles);
    void retire(std::unique_ptr<ParticleSystem> system);
    /// Ends the oldest system of which nothing will be seen again (a burst whose definition gives
    /// it no end); false when there is none.
    bool endSpent();
    /// Throws away kept systems until there is room for this many particles more.
    bool makeRoom(int particles);

    using Shelf = std::vector<std::unique_ptr<ParticleSystem>>;

    std::map<std::string, std::shared_ptr<const ParticleSystemParams>, std::less<>> definitions_;
    std::vector<std::unique_ptr<ParticleSystem>> systems_;
    /// Systems that have ended, by kind and pool size.
    std::array<std::array<Shelf, poolSizes>, particleKinds> retired_;
    QuadBatch batch_;
    int particleRoom_ = 0;
    int nextId_ = 1;
    bool fullLogged_ = false;
};

/// The process-wide manager.
ParticleManager& particleManager();

/// Starts an effect: a system of the named definition at the place, drawn raise units nearer than
/// it, with its initial particles. Null when createFromDefinition has none to give.
ParticleSystem* startParticles(std::string_view name, const Vector& position, float raise = 0.2F);

/// The same between two places: the beam, bolt or streak of "rail", "tracer", "lightning" and
/// "plasma" from one place to the other.
ParticleSystem* startBeam(std::string_view name, const Vector& from, const Vector& to,
                          float raise = 0.2F);

}  // namespace bc
