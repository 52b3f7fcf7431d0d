// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The passes of a simulation step.
#include "command/GameVar.h"
#include "world/BodyStep.h"
#include "world/Collision.h"
#include "world/QuadTreeStore.h"
#include "world/World.h"

namespace bc {

namespace {

// In a crowded world memory is what a step waits for, and the list tells early what comes next.
constexpr std::size_t bodiesAhead = 8;
constexpr std::size_t cellsAhead = 4;

void pullDown(Body& body, float step, float gravity) {
    BodyStep::applyForce(body, Vector(0, body.mass * body.gravitymultiplier * gravity), step);
}

}  // namespace

bool World::isNearPlayer(const Body& body) const {
    return player_ != nullptr && distance(body.pos, player_->pos) < activityRadius;
}

void World::applyGravity(float step, float gravity) {
    for (Body* body : activeBodies_)
        pullDown(*body, step, gravity);
}

void World::freezeVelocities() {
    for (Body* body : activeBodies_)
        body->frozenvel = body->vel;
}

void World::interactBodies(float step) {
    for (Body* body : activeBodies_)
        body->contact = false;
    interactAll(step);
}

void World::interactAll(float step) {
    const GameVar* logTouch = vars().findVar("logtouch");
    setTouchLogging(logTouch != nullptr && logTouch->intValue() != 0);
    const DeferredDeletion deferred(*this);
    bodyCursor_ = 0;
    while (bodyCursor_ < activeBodies_.size()) {
        if (bodyCursor_ + bodiesAhead < activeBodies_.size())
            BodyStep::prefetch(*activeBodies_[bodyCursor_ + bodiesAhead]);
        if (bodyCursor_ + cellsAhead < activeBodies_.size())
            quadtree_.prefetchFor(*activeBodies_[bodyCursor_ + cellsAhead]);
        Body* body = activeBodies_[bodyCursor_++];
        if (body->alwaysActive || isNearPlayer(*body))
            collideBody(body, step);
    }
}

void World::collideBody(Body* body, float step) {
    collisionCandidates_.clear();
    quadtree_.queryCandidates(*body, collisionCandidates_, false);
    candidateCursor_ = 0;
    while (candidateCursor_ < collisionCandidates_.size()) {
        Body* candidate = collisionCandidates_[candidateCursor_++];
        if (collide(*body, *candidate, step) && body->isGone())
            return;
    }
}

void World::moveBodies(float step) {
    const DeferredDeletion deferred(*this);
    bodyCursor_ = 0;
    while (bodyCursor_ < activeBodies_.size()) {
        if (bodyCursor_ + bodiesAhead < activeBodies_.size()) {
            const Body& ahead = *activeBodies_[bodyCursor_ + bodiesAhead];
            BodyStep::prefetch(ahead);
            BodyStep::prefetchMotion(ahead);
            BodyStep::prefetchBounds(ahead);
        }
        Body* body = activeBodies_[bodyCursor_++];
        if (body->cancleanup) {
            destroyBody(body);
            continue;
        }
        if (body->alwaysActive || isNearPlayer(*body))
            BodyStep::move(*body, step);
        if (body->isMassive() || body->nonmassmover) {
            BodyStep::followGeometry(*body);
            quadtree_.reinsert(*body);
        }
    }
}

void World::simulate(float step, float gravity) {
    const std::size_t count = activeBodies_.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (i + bodiesAhead < count) {
            BodyStep::prefetch(*activeBodies_[i + bodiesAhead]);
            BodyStep::prefetchMotion(*activeBodies_[i + bodiesAhead]);
        }
        Body* body = activeBodies_[i];
        pullDown(*body, step, gravity);
        body->frozenvel = body->vel;
        body->contact = false;
    }
    interactAll(step);
    moveBodies(step);
}

void World::interpolate(float alpha) {
    for (Body* body : activeBodies_)
        if (body->isMassive() || body->nonmassmover)
            body->renderpos = body->oldpos + (body->pos - body->oldpos) * alpha;
}

}  // namespace bc
