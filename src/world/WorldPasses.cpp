// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The passes of a simulation step.
#include "console/GameVar.h"
#include "world/Collision.h"
#include "world/QuadTreeNode.h"
#include "world/World.h"

namespace bc {

namespace {

void pullDown(Body& body, float step, float gravity) {
    if (body.isMassive())
        body.applyForce(Vector(0, body.mass * body.gravitymultiplier * gravity), step);
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
        Body* body = activeBodies_[bodyCursor_++];
        if (body->alwaysActive || isNearPlayer(*body))
            collideBody(body, step);
    }
}

void World::collideBody(Body* body, float step) {
    collisionCandidates_.clear();
    quadtree_.queryCandidates(*body, collisionCandidates_);
    candidateCursor_ = 0;
    while (candidateCursor_ < collisionCandidates_.size() && !body->isGone())
        collide(*body, *collisionCandidates_[candidateCursor_++], step);
}

void World::moveBodies(float step) {
    const DeferredDeletion deferred(*this);
    bodyCursor_ = 0;
    while (bodyCursor_ < activeBodies_.size()) {
        Body* body = activeBodies_[bodyCursor_++];
        if (body->cancleanup) {
            destroyBody(body);
            continue;
        }
        if (body->alwaysActive || isNearPlayer(*body))
            body->advance(step);
        if (body->isMassive() || body->nonmassmover) {
            body->followGeometry();
            quadtree_.reinsert(*body);
        }
    }
}

void World::simulate(float step, float gravity) {
    for (Body* body : activeBodies_) {
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
