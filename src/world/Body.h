// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"
#include "ports/Drawable.h"
#include "world/BRect.h"
#include "world/TouchInfo.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class TiXmlElement;

namespace bc {

class BodyFields;
class BodyIndex;
class BodyParticleSystemObserver;
class CollisionShape;
class ParticleSystem;
struct BodyStep;

/// Everything that is in a level derives from it: geometry, doors, pickups, enemies, projectiles,
/// the player. Owned by the World it was added to (the player by the application).
/// Units: world units, seconds, radians; level times in milliseconds.
///
/// Its polygon is localVertices around pos. Collisions use it as it stands, drawing and traces
/// (worldVertices) use it turned by angle. Whoever changes localVertices calls updateGeometry and,
/// where the size changes, computeBounds.
class alignas(64) Body : public Drawable {
  public:
    /// A body of less mass is static: it moves only when it is a nonmassmover.
    static constexpr float minMass = 0.0001F;
    /// No force or impulse makes a body faster (units a second).
    static constexpr float maxSpeed = 950;
    /// Positions and velocities beyond it do not enter the world.
    static constexpr float maxCoordinate = 1.0e6F;

    Body();
    /// Lets go of its particle systems (they stop) and leaves the spatial index.
    ~Body() override;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;

    /// A new object of the same class and type, with that class's defaults.
    [[nodiscard]] virtual std::unique_ptr<Body> create() const;

    // Geometry.
    /// Replaces the polygon by a rectangle centred on pos.
    void makeBox(float width, float height, const RGBAColour& colour);
    void makeBox(float width, float height);
    /// Replaces the polygon by a circle of corners, one a step of 360 / circleCorners degrees.
    void makeCircle(float circleRadius);
    static constexpr int circleCorners = 16;
    virtual void makeDefaultShape();
    /// Drops every corner, colour and texture coordinate.
    void clearGeometry();
    /// Appends a corner in world coordinates; makeLocalVertices then makes the polygon of them.
    void addWorldVertex(float x, float y, float z = 0);
    /// localVertices = the world corners minus pos.
    void makeLocalVertices();
    /// Places the world corners by pos and angle.
    void updateGeometry();
    /// The corners as of the last updateGeometry.
    [[nodiscard]] const std::vector<Vector>& worldVertices() const;
    /// The box around worldVertices, exactly; of nothing for a body without corners.
    [[nodiscard]] Box worldBox() const {
        if ((stepFlags_ & irregular) == 0)
            return {geometry_.x - bounds.left, geometry_.x + bounds.right, geometry_.y - bounds.top,
                    geometry_.y + bounds.bottom};
        return {geometry_.x + geometryBox_.minX, geometry_.x + geometryBox_.maxX,
                geometry_.y + geometryBox_.minY, geometry_.y + geometryBox_.maxY};
    }
    /// Signed; positive for corners that run anticlockwise on screen (y up).
    [[nodiscard]] float polygonArea() const;
    /// Centre of area of the world corners; of a polygon without area the mean of its corners, of
    /// one without corners the origin.
    [[nodiscard]] Vector centroid() const;
    /// Bounds and radius from the world corners (the radius never shrinks).
    void computeBounds();
    /// Bounds for the motion of the next dt seconds.
    void updateSweptBounds(float dt);
    /// True overlap of the swept bounds; touching edges do not count.
    [[nodiscard]] bool overlaps(const Body& other) const;
    /// The polygon as collisions use it; as of the last updateGeometry.
    [[nodiscard]] const CollisionShape& shape() const { return *shape_; }

    // Motion.
    [[nodiscard]] bool isMassive() const { return mass >= minMass; }
    /// Sets pos, renderpos, oldpos and projectedpos. A place that is not finite is ignored.
    void setPosition(const Vector& v);
    /// vel += force * invMass * scale, then the speed limit; static bodies ignore it.
    void applyForce(const Vector& force, float scale);
    /// vel += v, then the speed limit; static bodies ignore it.
    void addVelocity(const Vector& v);
    /// One step of motion, dt seconds.
    void move(float dt);

    // Contacts.
    void touch(Body& other, Body& self, const Vector& normal, float t, const Vector& point);
    /// Called for each contact in the collision phase, up to once for either body's turn, also when
    /// nothing solid is involved. May spawn bodies and mark them for removal.
    virtual void onTouch(const TouchInfo&) {}
    /// A contact is solid when both bodies are solid and accept each other.
    [[nodiscard]] virtual bool acceptsCollision(const Body&) const { return true; }

    // Targets.
    void addTarget(Body* body);
    /// Takes out the first occurrence.
    void removeTarget(Body* body);

    // Life.
    virtual void die() {}
    /// Called by the gameplay controller while thinks is set, whenever nextthink has passed.
    virtual void think(float /*dt*/) {}
    /// Called by the gameplay controller in every simulation step, before the world moves.
    virtual void update(float /*dt*/) {}
    /// Declares every field that files know by name: what a level gives, a save keeps and a dump
    /// shows. Overrides call their base first.
    virtual void fields(BodyFields& f);
    /// Takes over the custom attributes of a level object.
    void applyAttributes(const std::map<std::string, std::string>& attributes);
    /// Called by the loader for each body, in this order, once all bodies of the level are in the
    /// world: onBeforeTargets, (targets are resolved), onLoaded, onRestored or onSpawned (from a
    /// save or from a level file), onAfterLoad. Not called for bodies spawned during play.
    virtual void onBeforeTargets() {}
    virtual void onLoaded() {}
    virtual void onRestored() {}
    virtual void onSpawned() {}
    virtual void onAfterLoad() {}
    /// Another body leaves the world for good: called on every body that stays. Overrides drop
    /// every pointer to it that they keep, and call this one, which drops it from targetBodies.
    virtual void onBodyRemoved(const Body& gone);
    /// The world has let go of the body and would delete it now; self is it. Classes whose bodies
    /// come and go all the time keep it to use it again (the default deletes it).
    virtual void retire(std::unique_ptr<Body> /*self*/) {}
    /// It has left the world and is deleted when the pass that runs has ended.
    [[nodiscard]] bool isGone() const { return gone_; }

    // Attached particle systems follow renderpos. They are not owned.
    void attachParticleSystem(ParticleSystem& system);
    void detachParticleSystem(ParticleSystem& system);
    /// Tells every attached system to stop, each after its own remaining life, and lets them go.
    void detachAllParticleSystems();
    void updateParticleSystems();
    [[nodiscard]] const std::vector<ParticleSystem*>& particleSystems() const {
        return particleSystems_;
    }

    /// Number of its entry in the spatial index it is in.
    [[nodiscard]] std::uint32_t indexEntry() const { return entry_; }
    /// Depth of the index node that stores it (the root has 0), -1 when it is in no index.
    [[nodiscard]] int indexDepth() const;

    /// Whether a save holds it; what it does not hold is gone in a continued run.
    [[nodiscard]] virtual bool keptInSaves() const { return entity; }

    // Text forms.
    void setTexture(const std::string& name);
    /// One line for the log.
    [[nodiscard]] std::string describe() const;
    /// Restores the declared fields from the attributes of a save. See BodyFields for those that
    /// are missing; places beyond maxCoordinate are refused.
    void loadState(const TiXmlElement& e, Digits digits = Digits::usual);
    void saveState(TiXmlElement& e, Digits digits = Digits::usual) const;
    /// Adds the declared fields to the debug element of a world dump.
    void dumpState(TiXmlElement& debug) const;

  protected:
    /// Called at the end of loadState, for what follows from the values.
    virtual void onStateRead() {}

  private:
    friend struct BodyStep;
    friend class QuadTree;
    friend class World;

  public:
    // The order of the next fields is that of the simulation: what a pass of the step uses lies
    // together in as few cache lines as possible.
    float invMass = 0.01F;
    float gravitymultiplier = 1;
    Vector pos;
    Vector vel;
    /// Stands on something: set by the collision phase, cleared at the start of the next one.
    bool contact = false;
    /// False: moves and collides only within 800 units of the player.
    bool alwaysActive = true;
    /// The world deletes the body in its next move phase.
    bool cancleanup = false;
    bool solid = true;
    bool inliquid = false;
    bool inliquidlastframe = false;

  private:
    std::uint8_t stepFlags_ = 0;
    /// Its entry in the spatial index it is in.
    std::uint32_t entry_ = 0;

  public:
    /// radius and the way of the step.
    float sweptRadius = 0;

    /// pos before the last move.
    alignas(64) Vector oldpos;
    /// vel as it was at the start of the step; moves use it.
    Vector frozenvel;
    /// Added to every move whatever the forces.
    Vector constantvelocity;
    /// pos + vel * dt of the last bounds update.
    PlanarPoint projectedpos;

  private:
    /// Where updateGeometry last put the polygon.
    PlanarPoint geometry_;

  public:
    alignas(64) BRect bounds;

    /// Largest distance of a corner from pos seen so far.
    float radius = 0;

  private:
    /// The spatial index it is in, if any.
    BodyIndex* index_ = nullptr;

    alignas(64) std::shared_ptr<const CollisionShape> shape_;

  public:
    /// Sliding friction coefficient.
    float friction = 0.01F;
    /// Restitution.
    float bounce = 0.05F;
    /// Below this tangential speed friction stops sliding altogether.
    float staticFrictionSpeed = 0.1F;
    /// Factor on the motion while in a liquid.
    float liquidfriction = 0;
    /// Moves although it is static (lifts, doors).
    bool nonmassmover = false;
    /// A dynamic object: numbered by the loader and kept in saves.
    bool entity = false;

  private:
    bool gone_ = false;
    /// The angle by which updateGeometry last turned the polygon, and the box around it there.
    float geometryAngle_ = 0;
    Box geometryBox_{};
    std::uint32_t ownedAt_ = 0;
    std::vector<ParticleSystem*> particleSystems_;

    // Where worldVertices_ belong.
    mutable PlanarPoint cornersAt_;
    mutable float cornersAngle_ = 0;
    mutable bool cornersStale_ = false;

  public:
    /// In view as of the last gathering of the visible bodies.
    bool inView = false;
    bool placed = false;

    std::int32_t autoid = 0;
    /// Kind number that collision filters and triggers ask for (1 is the player).
    std::int32_t category = 0;
    /// Names of the bodies it acts on, comma-separated, as the level file gives them.
    std::string targets;
    /// The bodies of those names (not owned). Changed through addTarget and removeTarget.
    std::vector<Body*> targetBodies;

    bool isfiring = false;
    bool thinks = false;
    /// Level time (ms) after which think is called next.
    float nextthink = 0;
    /// Milliseconds between two calls of think.
    float thinkInterval = 200;

    /// The loader shifts the texture coordinates so that the smallest are 0.
    bool normalisedTexCoords = false;
    /// The loader replaces the level polygon by makeDefaultShape.
    bool usesDefaultShape = false;
    float defaultWidth = 16;
    float defaultHeight = 16;

    /// Shown in the debug text.
    Vector camera;
    /// The free-form attributes it was read with, written back with it.
    std::map<std::string, std::string> customAttributes;

  private:
    friend class BodyParticleSystemObserver;

    // Bits of stepFlags_.
    static constexpr std::uint8_t carriesParticles = 1;
    /// The polygon is turned, or its box is not that of the extents in bounds.
    static constexpr std::uint8_t irregular = 2;

    void limitSpeed();
    /// It has left every level there could be: it stays where it is.
    void stop();
    void turnBox();
    void compareBox();
    void noteParticles();
    /// "id:name" of each target, separated by commas.
    [[nodiscard]] std::string resolvedTargets() const;
    void forgetParticleSystem(ParticleSystem& system);

    mutable std::vector<Vector> worldVertices_;
    std::unique_ptr<BodyParticleSystemObserver> observer_;
};

}  // namespace bc
