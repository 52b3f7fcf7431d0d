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

/// Which class a system is; chosen by the name it is started with.
enum class ParticleKind { plain, rail, tracer, lightning, plasma, text };
inline constexpr std::size_t particleKinds = 6;

/// One running effect: a fixed pool of particles that are born at its place, move, change colour
/// and size and die. Made and owned by the ParticleManager, which gives it up once its life has run
/// out and then uses the object again: keep a pointer only together with an observer, or keep id()
/// and ask ParticleManager::find.
/// The base class draws its particles as quads; derived ones (chosen by name) as beams or text.
class ParticleSystem {
  public:
    explicit ParticleSystem(ParticleKind kind = ParticleKind::plain) : kind_(kind) {}
    virtual ~ParticleSystem() = default;
    ParticleSystem(const ParticleSystem&) = delete;
    ParticleSystem& operator=(const ParticleSystem&) = delete;

    /// Makes it a fresh system of the definition, without particles, with room for
    /// definition->maxParticles. Called by the manager, also for objects used again.
    virtual void init(std::shared_ptr<const ParticleSystemParams> definition, int id);

    [[nodiscard]] const ParticleSystemParams& definition() const { return *definition_; }
    [[nodiscard]] const std::string& definitionId() const { return definition_->id; }
    /// Unlike every other living system's; ids are not used again before the manager is cleared.
    [[nodiscard]] int id() const { return id_; }
    [[nodiscard]] const Vector& position() const { return position_; }
    [[nodiscard]] const Vector& secondPosition() const { return second_; }
    [[nodiscard]] bool isAlive() const { return alive_; }
    [[nodiscard]] bool isEmitting() const { return emitting_; }
    /// Has had its particles, makes no more by itself, and nobody watches it.
    [[nodiscard]] bool isSpent() const;
    [[nodiscard]] int liveCount() const { return pool_.size(); }
    [[nodiscard]] int maxParticles() const { return pool_.limit(); }
    /// Room for so many particles from now on, whatever definition it is used with.
    void reserve(int particles) {
        pool_.reset(particles);
        // Most are attached to one body; which of those used again will be, nobody knows.
        observers_.reserve(2);
    }
    [[nodiscard]] int capacity() const { return pool_.capacity(); }
    [[nodiscard]] const ParticlePool& pool() const { return pool_; }
    [[nodiscard]] ParticleKind kind() const { return kind_; }

    /// The time parameter: the system ends when this many seconds are over; 0 or less: it does not
    /// end by itself (but for its definition's systemLifeTime, which goes on counting).
    void setRemainingLife(float seconds);
    [[nodiscard]] float remainingLife() const { return remainingLife_; }
    /// Emits nothing more and ends after this many seconds; with 0 or less, as soon as the last of
    /// its particles is gone.
    void stop(float seconds);

    /// Where new particles are born. Those already there stay where they are. The second position
    /// is the other end of beams. Places that are not finite are ignored.
    void setPosition(const Vector& position, const Vector& second);
    void setPosition(const Vector& position) { setPosition(position, position); }

    /// Nothing is emitted beyond maxParticles.
    void emit(const Vector& position, const Vector& second, int count);
    void emitOne(const Vector& position, const Vector& second);
    /// The definition's initialParticles, at the system's position.
    void emitInitial();
    /// The whole effect between two places: what a beam, a bolt or a stream looks like. Others emit
    /// their initial particles (one at least) at the first place.
    virtual void emitBetween(const Vector& from, const Vector& to);
    void emitAtSelf() { emitBetween(position_, second_); }

    /// Whether being out of view saves it the work of moving its particles (true at first).
    void setCulled(bool culled) { culled_ = culled; }
    /// An invisible system is moved as ever but not drawn by the manager; its owner draws it with
    /// ParticleManager::drawSystem (skies do).
    void setVisible(bool visible) { visible_ = visible; }
    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] bool isCulled() const { return culled_; }
    /// Starts its effect anew (emitAtSelf) whenever its last particle has died.
    void setRefill(bool refill) { refill_ = refill; }

    void addObserver(ParticleSystemObserver* observer);
    /// Takes off one registration of the observer; nothing happens when there is none.
    void removeObserver(ParticleSystemObserver* observer);
    /// Tells every observer, in the order of their registration, and forgets them.
    void notifyObservers();

    /// Advances by dt seconds; off screen only the clocks run. False when the system has ended.
    bool update(float dt, bool offScreen);
    /// Seconds of its own time since its particles were last moved.
    [[nodiscard]] float sinceLastStep() const { return sinceUpdate_; }

    /// Draws with one drawQuads call a texture. Leaves texture and blending as it used them.
    virtual void draw(IRenderer& renderer, QuadBatch& batch);
    /// Forgets the texture, which is fetched again by name at the next drawing.
    virtual void forgetTextures() { texture_ = {}; }

    /// True when nothing of it, the place where new particles appear included, is in the view.
    [[nodiscard]] bool isOutside(const Frustum& view) const;

  protected:
    /// A texture of the renderer by name; the id is fetched at first use.
    struct TextureHandle {
        bool resolved = false;
        int id = -1;
    };

    /// One step; false when the system has ended.
    virtual bool step(float dt, bool offScreen);
    /// Called for each particle before it moves when usesParticleHook() is true.
    virtual void updateParticle(float dt, Particle& particle);
    [[nodiscard]] virtual bool usesParticleHook() const { return false; }
    /// Whether its particles reach to their second places, too.
    [[nodiscard]] virtual bool drawsBeams() const { return false; }
    /// Where a particle born at origin starts and how fast.
    virtual void spawnShape(const Vector& origin, Vector& position, Vector& velocity);
    /// Puts a new particle into the next free place of the pool, if there is one; derived systems
    /// finish it first.
    virtual void addParticle(Particle& particle);
    void removeParticle(int index) { pool_.remove(index); }

    [[nodiscard]] int room() const { return pool_.limit() - pool_.size(); }
    /// Blending on, in the definition's mode.
    void setBlendMode(IRenderer& renderer) const;
    /// Binds the image; an empty name turns texturing off.
    static void bind(IRenderer& renderer, const std::string& path, TextureHandle& handle);
    /// Adds the particles of a variant (all of them when it is negative) as upright quads.
    void addQuads(QuadBatch& batch, int variant) const;
    /// The colour of the lane as it is drawn.
    static QuadBatch::Bytes bytes(const ParticlePool::Block& block, int lane);

    TextureHandle texture_;
    ParticlePool pool_;

  private:
    void emitForStep(float dt);
    void moveParticles(float dt);

    ParticleKind kind_;
    std::shared_ptr<const ParticleSystemParams> definition_;
    Vector position_;
    Vector second_;
    std::vector<ParticleSystemObserver*> observers_;
    /// Its age. The other clocks run from the event they count from, since an old system's age is
    /// too coarse to take short times from.
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
