// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/SkyWiring.h"

#include "particles/ParticleManager.h"
#include "world/World.h"

namespace bc {

int ParticleSkySystems::start(const std::string& name, const Vector& position) {
    ParticleSystem* system = startParticles(name, position, 0);
    if (system == nullptr)
        return none;
    system->setCulled(false);
    system->setVisible(false);
    return system->id();
}

void ParticleSkySystems::stop(int handle, float seconds) {
    if (ParticleSystem* system = particleManager().find(handle))
        system->stop(seconds);
}

void ParticleSkySystems::draw(IRenderer& renderer, int handle) {
    if (ParticleSystem* system = particleManager().find(handle))
        particleManager().drawSystem(renderer, *system);
}

bool WorldSightLine::isClear(const Vector& from, const Vector& to) {
    TraceResults hits;
    world_.quadtree().trace(Ray(from, to), hits, false);
    for (const TraceResult& hit : hits)
        if (hit.body != world_.player())
            return false;
    return true;
}

}  // namespace bc
