// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "particles/Particle.h"
#include "particles/ParticlePool.h"
#include "particles/ParticleSystemParams.h"
#include "particles/QuadBatch.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace bc {

class Frustum;
class IRenderer;
class ParticleSystemObserver;

/// Which class a system has. The name with which it is started decides.
enum class ParticleKind { plain, rail, tracer, lightning, plasma, text };
inline constexpr std::size_t particleKinds = 6;

/// A running effect: particles that are born at its position, move, change colour and size and die.
/// ParticleManager makes and owns all systems and uses the object of one that has ended again for
/// another one. So whoever keeps a pointer must add an observer, or keep id() and use
/// ParticleManager::find instead. This class draws particles as quads; derived classes draw them as
/// beams or as text.
class ParticleSystem {
  public:
    explicit ParticleSystem(ParticleKind kind = ParticleKind::plain) : kind_(kind) {}
    virtual ~ParticleSystem() = default;
    ParticleSystem(const ParticleSystem&) = delete;
    ParticleSystem& operator=(const ParticleSystem&) = delete;

    /// Turns the object into a new system without particles. ParticleManager calls it for new
    /// objects and for those that it uses again.
    virtual void init(std::shared_ptr<const ParticleSystemParams> definition, int id);

    [[nodiscard]] const ParticleSystemParams& definition() const { return *definition_; }
    [[nodiscard]] const std::string& definitionId() const { return definition_->id; }
    /// Each system has another id, until ParticleManager::clear.
    [[nodiscard]] int id() const { return id_; }
    [[nodiscard]] const Vector& position() const { return position_; }
    [[nodiscard]] const Vector& secondPosition() const { return second_; }
    [[nodiscard]] bool isAlive() const { return alive_; }
    [[nodiscard]] bool isEmitting() const { return emitting_; }
    /// True when its particles have died, it will not emit any by itself and it has no observers.
    [[nodiscard]] bool isSpent() const;
    [[nodiscard]] int liveCount() const { return pool_.size(); }
    [[nodiscard]] int maxParticles() const { return pool_.limit(); }
    /// Allocates memory for this many particles, whatever definitions the object is used for.
    /// Called once, before init.
    void reserve(int particles) {
        pool_.reset(particles);
        // Most systems have one observer, few have none or two.
        observers_.reserve(2);
    }
    /// The number of particles for which there is memory.
    [[nodiscard]] int capacity() const { return pool_.capacity(); }
    [[nodiscard]] const ParticlePool& pool() const { return pool_; }
    [[nodiscard]] ParticleKind kind() const { return kind_; }

    /// Makes the system end after this many seconds. With 0 or less, only the systemLifeTime of the
    /// definition ends it, which counts in both cases. Values that are not finite are ignored.
    void setRemainingLife(float seconds);
    [[nodiscard]] float remainingLife() const { return remainingLife_; }
    /// Stops emitting. The system ends after this many seconds; with 0 or less, when its last
    /// particle has died.
    void stop(float seconds);

    /// Where new particles are born, and the other end of beams; living particles are not moved.
    /// Positions that are not finite are ignored.
    void setPosition(const Vector& position, const Vector& second);
    void setPosition(const Vector& position) { setPosition(position, position); }

    /// Emits particles, at most as many as the pool has room for. Positions that are not finite are
    /// ignored.
    void emit(const Vector& position, const Vector& second, int count);
    void emitOne(const Vector& position, const Vector& second);
    /// Emits the definition's initialParticles at the system's position.
    void emitInitial();
    /// Emits a beam, a bolt or a stream from one place to another. This class emits its
    /// initialParticles, but at least one, at the first place.
    virtual void emitBetween(const Vector& from, const Vector& to);
    void emitAtSelf() { emitBetween(position_, second_); }

    /// Whether the manager may move the particles less often and need not draw them while the
    /// system is out of view; true at first.
    void setCulled(bool culled) { culled_ = culled; }
    /// The manager moves an invisible system but does not draw it. Its owner, such as a sky, draws
    /// it by ParticleManager::drawSystem.
    void setVisible(bool visible) { visible_ = visible; }
    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] bool isCulled() const { return culled_; }
    /// Whether the system calls emitAtSelf each time it has no particles left.
    void setRefill(bool refill) { refill_ = refill; }

    /// Adds an observer, which is not owned; null is ignored. One that is added twice is called
    /// twice.
    void addObserver(ParticleSystemObserver* observer);
    /// Removes the observer once. Does nothing when it was not added.
    void removeObserver(ParticleSystemObserver* observer);
    /// Calls the observers in the order in which they were added, and removes them.
    void notifyObservers();

    /// Advances the system by dt seconds. With offScreen it neither emits nor moves particles, but
    /// its time goes on. False when the system has ended.
    bool update(float dt, bool offScreen);
    /// Seconds since the particles were last moved.
    [[nodiscard]] float sinceLastStep() const { return sinceUpdate_; }

    /// Draws the particles with one call of drawQuads for each texture. Texture and blending stay
    /// as it has set them.
    virtual void draw(IRenderer& renderer, QuadBatch& batch);
    /// Makes the next call of draw look up the textures by their names again.
    virtual void forgetTextures() { texture_ = {}; }

    /// True when neither its position nor a particle is in the view.
    [[nodiscard]] bool isOutside(const Frustum& view) const;

  protected:
    /// The renderer's id of a texture; -1 before it was looked up and when there is no image.
    struct TextureHandle {
        bool resolved = false;
        int id = -1;
    };

    /// Does the work of update for a dt that is finite and not negative.
    virtual bool step(float dt, bool offScreen);
    /// Called for each particle before it is moved, if usesParticleHook() is true.
    virtual void updateParticle(float dt, Particle& particle);
    [[nodiscard]] virtual bool usesParticleHook() const { return false; }
    /// Whether the particles are drawn as far as their second places.
    [[nodiscard]] virtual bool drawsBeams() const { return false; }
    /// Sets the position and velocity of a particle that is born at origin.
    virtual void spawnShape(const Vector& origin, Vector& position, Vector& velocity);
    /// Adds a new particle to the pool if that has room. Derived classes may change it first.
    virtual void addParticle(Particle& particle);
    void removeParticle(int index) { pool_.remove(index); }

    /// The number of particles that may be added.
    [[nodiscard]] int room() const { return pool_.limit() - pool_.size(); }
    /// Turns blending on in the mode of the definition.
    void setBlendMode(IRenderer& renderer) const;
    /// Binds a texture by its id or, the first time, by its name. An empty name turns texturing
    /// off.
    static void bind(IRenderer& renderer, const std::string& path, TextureHandle& handle);
    /// Adds the particles with this variant to the batch as upright quads; all particles when
    /// variant is negative.
    void addQuads(QuadBatch& batch, int variant) const;
    /// The colour of a particle for drawing.
    static QuadBatch::Bytes bytes(const ParticlePool::Block& block, int lane);

    TextureHandle texture_;
    ParticlePool pool_;

  private:
    /// Emits the particles that the definition's flowRate asks for in dt seconds.
    void emitForStep(float dt);
    void moveParticles(float dt);

    ParticleKind kind_;
    std::shared_ptr<const ParticleSystemParams> definition_;
    Vector position_;
    Vector second_;
    std::vector<ParticleSystemObserver*> observers_;
    /// Seconds since the start, the last movement and the last emission. They are counted
    /// separately, because the first one becomes too coarse for differences in a long run.
    float systemTime_ = 0;
    float sinceUpdate_ = 0;
    float sinceEmission_ = 0;
    float remainingLife_ = 0;
    int id_ = 0;
    bool alive_ = false;
    bool emitting_ = true;
    bool refill_ = false;
    bool culled_ = true;
    bool visible_ = true;
};

}  // namespace bc
