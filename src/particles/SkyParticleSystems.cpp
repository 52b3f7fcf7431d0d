// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/SkyParticleSystems.h"

#include "particles/ParticleManager.h"

namespace bc {

int SkyParticleSystems::start(const std::string& name, const Vector& position) {
    ParticleSystem* system = startParticles(name, position, 0);
    if (system == nullptr)
        return none;
    system->setVisible(false);
    return system->id();
}

void SkyParticleSystems::stop(int handle, float seconds) {
    if (ParticleSystem* system = particleManager().find(handle))
        system->stop(seconds);
}

void SkyParticleSystems::draw(IRenderer& renderer, int handle) {
    if (ParticleSystem* system = particleManager().find(handle))
        particleManager().drawSystem(renderer, *system);
}

}  // namespace bc
