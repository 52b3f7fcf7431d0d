// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/Body.h"
#include "world/QuadTree.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace bc {

class Frustum;

/// The bodies of the running level and the passes that advance them by a step. Owns every body
/// given to it as a unique_ptr; the player is the application's.
/// Lists may grow while they are walked (a body's hooks spawn others): walk allBodies by index.
class World {
  public:
    /// Bodies that are not alwaysActive stand still at this distance from the player and beyond.
    static constexpr float activityRadius = 800;
    /// The player has id 1.
    static constexpr std::int32_t firstBodyId = 2;
    static constexpr std::int32_t playerId = 1;
    static constexpr std::int32_t largestStartId = 1 << 30;
    static constexpr std::int32_t playerCategory = 1;

    /// While one lives, destroyed bodies are kept in memory; they are deleted with the last one.
    class DeferredDeletion {
      public:
        explicit DeferredDeletion(World& world) : world_(world) { ++world_.deferrals_; }
        ~DeferredDeletion();
        DeferredDeletion(const DeferredDeletion&) = delete;
        DeferredDeletion& operator=(const DeferredDeletion&) = delete;

      private:
        World& world_;
    };

    World();
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// Not owned, and outlives the world or its last clear; the centre of the activity radius.
    /// Null: only alwaysActive bodies are moved.
    void setPlayer(Body* player) { player_ = player; }
    [[nodiscard]] Body* player() const { return player_; }

    /// Every body, in the order of insertion.
    [[nodiscard]] const std::vector<Body*>& allBodies() const { return allBodies_; }
    /// Those that are simulated.
    [[nodiscard]] const std::vector<Body*>& activeBodies() const { return activeBodies_; }
    /// As gathered last.
    [[nodiscard]] const std::vector<Body*>& visibleBodies() const { return visibleBodies_; }
    [[nodiscard]] QuadTree& quadtree() { return quadtree_; }
    [[nodiscard]] const QuadTree& quadtree() const { return quadtree_; }
    [[nodiscard]] std::int32_t nextBodyId() const { return nextBodyId_; }
    /// An id that no game could have counted up to becomes the largest one.
    void setNextBodyId(std::int32_t id) { nextBodyId_ = std::min(id, largestStartId); }
    /// The first body with that autoid, or null.
    [[nodiscard]] Body* findById(std::int32_t autoid) const;

    /// Appends to allBodies and returns the body's id; assignId gives it the next one.
    int addBody(std::unique_ptr<Body> body, bool assignId);
    /// The same for a body that stays the caller's (the player).
    int addBody(Body* body, bool assignId);
    void activateBody(Body* body);
    /// Puts allBodies into this order, which has the same bodies, and activeBodies into the like.
    /// Not during a pass.
    void reorder(std::vector<Body*> order);
    /// Takes the first occurrence out of allBodies. The result owns it if the world did.
    std::unique_ptr<Body> removeFromAll(Body* body);
    void removeFromActive(Body* body);
    /// addBody with a new id, activateBody and into the spatial index. A body outside the level's
    /// square is simulated but never met.
    Body* spawnBody(std::unique_ptr<Body> body);
    /// Deleted by the next moveBodies, also when it has not been simulated so far.
    void markForRemoval(Body* body);
    /// Takes the body out of everything; every other body forgets it. A body the world owns is
    /// deleted: at once, or when the pass that is running ends.
    void destroyBody(Body* body);
    /// Destroys every body but those of category 1.
    void deleteBodies();
    /// An empty world: no bodies, no index, ids from firstBodyId again. The player lives on but is
    /// in no list.
    void clear();

    // One simulation step: the four passes in this order; step in seconds.
    /// gravity in units/s^2, upwards. Also for bodies beyond the activity radius.
    void applyGravity(float step, float gravity);
    /// frozenvel = vel.
    void freezeVelocities();
    void interactBodies(float step);
    void collideBody(Body* body, float step);
    void moveBodies(float step);
    /// The four in one, with fewer walks over the bodies.
    void simulate(float step, float gravity);

    /// Places renderpos at the fraction alpha of the way from oldpos to pos.
    void interpolate(float alpha);
    /// Fills visibleBodies anew (variables frustumcull and frustumcull2).
    void gatherVisible(const Frustum& view);
    /// By zShift, lowest first; equal ones keep their order.
    void sortVisible();

  private:
    [[nodiscard]] bool isNearPlayer(const Body& body) const;
    void interactAll(float step);
    std::unique_ptr<Body> releaseOwned(Body* body);
    static void dispose(std::unique_ptr<Body> body);

    std::vector<Body*> allBodies_;
    std::vector<Body*> activeBodies_;
    std::vector<Body*> collisionCandidates_;
    std::vector<Body*> visibleBodies_;
    std::vector<std::unique_ptr<Body>> owned_;
    /// Destroyed during a pass; deleted when it ends.
    std::vector<std::unique_ptr<Body>> gone_;
    QuadTree quadtree_;
    Body* player_ = nullptr;
    /// Next places of the walks over activeBodies and collisionCandidates; removals keep them
    /// valid.
    std::size_t bodyCursor_ = 0;
    std::size_t candidateCursor_ = 0;
    std::int32_t nextBodyId_ = firstBodyId;
    int deferrals_ = 0;
};

}  // namespace bc
