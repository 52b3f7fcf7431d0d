// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class ParticleSystem;

/// Told when a particle system ends, so that whoever keeps a pointer to the system lets go of it.
/// Systems do not own their observers: an observer takes itself off (removeObserver) before it
/// goes away.
class ParticleSystemObserver {
  public:
    virtual ~ParticleSystemObserver() = default;

    /// Called once for each registration, by the particle manager, just before the system is given
    /// up: when its life has run out and when all systems are cleared. The system is already out of
    /// the manager's list; the pointer is no longer valid after the call. The observer need not
    /// take itself off here. New systems may be started.
    virtual void onParticleSystemEnded(ParticleSystem& system) = 0;
};

}  // namespace bc
