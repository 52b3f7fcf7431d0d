// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class ParticleSystem;

/// Is called when a particle system ends, so that it can drop its pointer to the system. Systems do
/// not own their observers: an observer must call removeObserver before it is deleted.
class ParticleSystemObserver {
  public:
    virtual ~ParticleSystemObserver() = default;

    /// ParticleManager calls it when the system's time is over and when all systems are cleared.
    /// The system is not in the manager's list any more, and pointers to it are invalid after the
    /// call. The observer need not remove itself here. It may start new systems.
    virtual void onParticleSystemEnded(ParticleSystem& system) = 0;
};

}  // namespace bc
