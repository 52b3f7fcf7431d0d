// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/BodyPool.h"

#include "gameplay/actors/GameplaySingleton.h"

#include <algorithm>

namespace bc {

void PooledBody::retire(std::unique_ptr<Body> self) {
    detachAllParticleSystems();
    // After the end of gameplay there is nobody left to use it again.
    if (!GameplaySingleton::exists())
        return;
    std::unique_ptr<PooledBody> kept(static_cast<PooledBody*>(self.release()));
    bodyPool().keep(std::move(kept));
}

void PooledBody::renew() {
    static_cast<GameBodyState&>(*this) = {};
    pos = oldpos = renderpos = projectedpos = Vector();
    vel = frozenvel = constantvelocity = Vector();
    angle = 0;
    zShift = 0;
    gravitymultiplier = 1;
    liquidfriction = 0;
    radius = sweptRadius = 0;
    contact = cancleanup = nonmassmover = inliquid = inliquidlastframe = entity = false;
    alwaysActive = solid = visible = true;
    isfiring = placed = inView = false;
    nextthink = 0;
    autoid = 0;
    // Textures may have been loaded anew since.
    textureHandle = -1;
    id = "generic";
    targets.clear();
    targetBodies.clear();
    customAttributes.clear();
}

std::unique_ptr<PooledBody> BodyPool::takeKept(const std::type_info& type) {
    const auto found = std::find_if(bodies_.rbegin(), bodies_.rend(),
                                    [&type](const std::unique_ptr<PooledBody>& body) {
                                        const PooledBody& kept = *body;
                                        return typeid(kept) == type;
                                    });
    if (found == bodies_.rend())
        return nullptr;
    std::unique_ptr<PooledBody> body = std::move(*found);
    bodies_.erase(std::next(found).base());
    return body;
}

void BodyPool::keep(std::unique_ptr<PooledBody> body) {
    if (bodies_.size() < capacity)
        bodies_.push_back(std::move(body));
}

BodyPool& bodyPool() {
    std::shared_ptr<BodyPool>& pool = GameplaySingleton::instance().pool;
    if (!pool)
        pool = std::make_shared<BodyPool>();
    return *pool;
}

}  // namespace bc
