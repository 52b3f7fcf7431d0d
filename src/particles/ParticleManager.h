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

/// Owns the definitions and all running particle systems. It keeps systems that have ended and uses
/// them again, so that starting an effect allocates nothing when as many effects of its kind have
/// run at once before.
class ParticleManager {
  public:
    /// Limits for definitions and for systems that run at the same time.
    static constexpr std::size_t definitionLimit = 1024;
    static constexpr std::size_t systemLimit = 2048;
    /// The limit for the particles that the pools of all systems, running or kept, have room for. A
    /// particle takes about 110 bytes.
    static constexpr int particleRoomLimit = 1 << 18;

    ParticleManager();
    ~ParticleManager();
    ParticleManager(const ParticleManager&) = delete;
    ParticleManager& operator=(const ParticleManager&) = delete;

    /// Ends all systems, deletes all definitions and restarts the ids.
    void clear();
    /// Adds the built-in definition "default", which is used for unknown names.
    void makeDefaultDefinition();
    /// Adds the definitions of an XML file (a name for ResourceManager). Changes nothing and writes
    /// a log line when the file cannot be read.
    void loadDefinitions(const std::string& fileName);
    /// Adds a definition for each child element, whatever its name. Stops at definitionLimit, with
    /// a log line.
    void readDefinitions(const TiXmlElement& root);
    [[nodiscard]] bool hasDefinition(std::string_view id) const;
    [[nodiscard]] std::size_t definitionCount() const { return definitions_.size(); }
    /// Adds a definition, or replaces the one with the same id. Running systems keep the old one.
    void addDefinition(ParticleSystemParams definition);

    /// Starts a system at the origin, without particles; the manager owns it. An unknown name is
    /// logged and gets the definition "default". Null when there is no definition or the limits are
    /// reached.
    ParticleSystem* createFromDefinition(std::string_view name);

    /// The number of living particles in all systems.
    [[nodiscard]] int particleCount() const;
    /// Advances all systems by dt seconds and ends those whose time is over. The particles of
    /// systems outside the view are moved only ten times a second, in larger steps.
    void update(float dt, const Frustum& view);
    /// Draws the visible systems that are in the renderer's view, in the order in which they were
    /// started. Turns depth writes on and alpha blending on afterwards.
    void draw(IRenderer& renderer);
    /// Draws one system even if it is invisible or out of view. Does not change depth writes.
    void drawSystem(IRenderer& renderer, ParticleSystem& system);
    /// Loads the textures of all definitions and makes the running systems look up theirs again.
    /// Called after definitions were loaded and whenever the renderer has unloaded its textures.
    void reloadTextures(IRenderer& renderer);

    /// Ends all systems and calls their observers.
    void clearSystems();
    /// The running systems in the order in which they were started.
    [[nodiscard]] std::span<const std::unique_ptr<ParticleSystem>> systems() const {
        return systems_;
    }
    /// Null when the system has ended.
    [[nodiscard]] ParticleSystem* find(int id);

  private:
    /// The number of different pool sizes: 16, 32 and so on up to 4096 particles.
    static constexpr std::size_t poolSizes = 9;

    /// A kept or a new system for this name and number of particles; null when the limits are
    /// reached.
    std::unique_ptr<ParticleSystem> createSystem(std::string_view name, int maxParticles);
    /// Calls the observers of a system that has ended and keeps the system.
    void retire(std::unique_ptr<ParticleSystem> system);
    /// Ends the oldest system that is spent (ParticleSystem::isSpent), such as a burst whose
    /// definition has no end. False when there is none.
    bool endSpent();
    /// Deletes kept systems until the limit leaves room for this many particles more. False when
    /// that is not enough.
    bool makeRoom(int particles);

    using Shelf = std::vector<std::unique_ptr<ParticleSystem>>;

    std::map<std::string, std::shared_ptr<const ParticleSystemParams>, std::less<>> definitions_;
    std::vector<std::unique_ptr<ParticleSystem>> systems_;
    /// The kept systems, by kind and pool size.
    std::array<std::array<Shelf, poolSizes>, particleKinds> retired_;
    QuadBatch batch_;
    /// The particles that all pools have room for.
    int particleRoom_ = 0;
    int nextId_ = 1;
    /// The log has said that the limits are reached; it says so again after a system was started.
    bool fullLogged_ = false;
};

/// The process-wide manager.
ParticleManager& particleManager();

/// Starts a system with its initial particles at a place in the world, drawn raise units nearer to
/// the viewer than that. Null when createFromDefinition returns null.
ParticleSystem* startParticles(std::string_view name, const Vector& position, float raise = 0.2F);

/// Starts a system that reaches from one place to another, such as "rail", "tracer", "lightning"
/// and "plasma" (ParticleSystem::emitBetween). Otherwise like startParticles.
ParticleSystem* startBeam(std::string_view name, const Vector& from, const Vector& to,
                          float raise = 0.2F);

}  // namespace bc
