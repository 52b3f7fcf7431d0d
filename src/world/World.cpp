// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The lists of the world: how bodies come and go.
#include "world/World.h"

#include "command/GameVar.h"
#include "view/Frustum.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace bc {

namespace {

/// Takes out the first occurrence; its place, or the size of the list when there is none.
std::size_t takeOut(std::vector<Body*>& list, const Body* body) {
    const auto it = std::find(list.begin(), list.end(), body);
    const auto at = static_cast<std::size_t>(it - list.begin());
    if (it != list.end())
        list.erase(it);
    return at;
}

bool isIn(const std::vector<Body*>& list, const Body* body) {
    return std::find(list.begin(), list.end(), body) != list.end();
}

bool isOn(const char* variable) {
    const GameVar* var = vars().findVar(variable);
    return var != nullptr && var->intValue() != 0;
}

}  // namespace

World::DeferredDeletion::~DeferredDeletion() {
    if (--world_.deferrals_ > 0)
        return;
    // By index: a body that goes may destroy others.
    for (std::size_t i = 0; i < world_.gone_.size(); ++i)
        dispose(std::move(world_.gone_[i]));
    world_.gone_.clear();
}

void World::dispose(std::unique_ptr<Body> body) {
    Body& going = *body;
    going.retire(std::move(body));
}

World::World() = default;

World::~World() {
    clear();
}

Body* World::findById(std::int32_t autoid) const {
    const auto it = std::find_if(allBodies_.begin(), allBodies_.end(),
                                 [&](const Body* body) { return body->autoid == autoid; });
    return it != allBodies_.end() ? *it : nullptr;
}

int World::addBody(Body* body, bool assignId) {
    allBodies_.push_back(body);
    if (assignId)
        body->autoid = nextBodyId_++;
    return body->autoid;
}

int World::addBody(std::unique_ptr<Body> body, bool assignId) {
    Body* added = body.get();
    added->gone_ = false;
    added->ownedAt_ = static_cast<std::uint32_t>(owned_.size());
    owned_.push_back(std::move(body));
    return addBody(added, assignId);
}

void World::activateBody(Body* body) {
    activeBodies_.push_back(body);
}

void World::reorder(std::vector<Body*> order) {
    std::unordered_map<const Body*, std::size_t> place;
    for (const Body* body : order)
        place.emplace(body, place.size());
    allBodies_ = std::move(order);
    std::stable_sort(activeBodies_.begin(), activeBodies_.end(),
                     [&](const Body* a, const Body* b) { return place[a] < place[b]; });
}

std::unique_ptr<Body> World::releaseOwned(Body* body) {
    const std::size_t at = body->ownedAt_;
    if (at >= owned_.size() || owned_[at].get() != body)
        return nullptr;
    std::unique_ptr<Body> released = std::move(owned_[at]);
    if (at + 1 < owned_.size()) {
        owned_[at] = std::move(owned_.back());
        owned_[at]->ownedAt_ = static_cast<std::uint32_t>(at);
    }
    owned_.pop_back();
    return released;
}

std::unique_ptr<Body> World::removeFromAll(Body* body) {
    takeOut(allBodies_, body);
    return releaseOwned(body);
}

void World::removeFromActive(Body* body) {
    const std::size_t at = takeOut(activeBodies_, body);
    if (at < bodyCursor_)
        --bodyCursor_;
}

Body* World::spawnBody(std::unique_ptr<Body> body) {
    Body* spawned = body.get();
    addBody(std::move(body), true);
    activateBody(spawned);
    quadtree_.insert(*spawned);
    return spawned;
}

void World::markForRemoval(Body* body) {
    body->cancleanup = true;
    // A static part of the level: it is in no walk over the active bodies yet.
    if (!body->isMassive() && !body->entity && !isIn(activeBodies_, body) && isIn(allBodies_, body))
        activateBody(body);
}

void World::destroyBody(Body* body) {
    quadtree_.remove(*body);
    removeFromActive(body);
    std::unique_ptr<Body> owned = removeFromAll(body);
    if (takeOut(collisionCandidates_, body) < candidateCursor_)
        --candidateCursor_;
    takeOut(visibleBodies_, body);
    for (Body* other : allBodies_)
        other->onBodyRemoved(*body);
    if (player_ != nullptr && player_ != body)
        player_->onBodyRemoved(*body);
    if (!owned)
        return;
    body->gone_ = true;
    if (deferrals_ > 0)
        gone_.push_back(std::move(owned));
    else
        dispose(std::move(owned));
}

void World::deleteBodies() {
    std::vector<std::unique_ptr<Body>> gone;
    std::vector<Body*> staying;
    for (Body* body : allBodies_) {
        if (body->category == playerCategory) {
            staying.push_back(body);
            continue;
        }
        quadtree_.remove(*body);
        if (std::unique_ptr<Body> owned = releaseOwned(body))
            gone.push_back(std::move(owned));
    }
    const auto stays = [](const Body* body) { return body->category == playerCategory; };
    std::erase_if(activeBodies_, std::not_fn(stays));
    allBodies_ = std::move(staying);
    collisionCandidates_.clear();
    visibleBodies_.clear();
    bodyCursor_ = activeBodies_.size();
    candidateCursor_ = 0;
    for (const auto& body : gone) {
        body->gone_ = true;
        for (Body* other : allBodies_)
            other->onBodyRemoved(*body);
        if (player_ != nullptr)
            player_->onBodyRemoved(*body);
    }
    if (deferrals_ > 0)
        std::move(gone.begin(), gone.end(), std::back_inserter(gone_));
}

void World::clear() {
    deleteBodies();
    for (Body* body : allBodies_)
        quadtree_.remove(*body);
    allBodies_.clear();
    activeBodies_.clear();
    bodyCursor_ = 0;
    if (deferrals_ > 0)
        std::move(owned_.begin(), owned_.end(), std::back_inserter(gone_));
    owned_.clear();
    quadtree_.clear();
    nextBodyId_ = firstBodyId;
}

void World::gatherVisible(const Frustum& view) {
    for (Body* body : visibleBodies_)
        body->inView = false;
    visibleBodies_.clear();
    quadtree_.gatherVisible(view, isOn("frustumcull"), isOn("frustumcull2"), visibleBodies_);
}

void World::sortVisible() {
    std::stable_sort(visibleBodies_.begin(), visibleBodies_.end(),
                     [](const Body* a, const Body* b) { return a->zShift < b->zShift; });
}

}  // namespace bc
