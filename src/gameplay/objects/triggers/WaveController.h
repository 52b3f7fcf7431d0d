// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

#include <string>
#include <vector>

namespace bc {

/// Sets off bodies after a timetable once something has started it (type "wavecontroller").
class WaveController final : public Creatable<WaveController, GameBody> {
  public:
    WaveController();
    void fields(BodyFields& f) override;

    void onLoaded() override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    void onBodyRemoved(const Body& gone) override;

    /// XML with event elements: time in milliseconds and target, a body id.
    std::string waveFile;
    bool active = false;
    /// Level time (ms).
    float startTime = 0;

  private:
    struct Event {
        float time;
        /// Null once the body is gone.
        GameBody* body;
    };

    void readWaves();

    /// By time; those before next_ have been carried out.
    std::vector<Event> events_;
    std::size_t next_ = 0;
    /// Milliseconds up to which events have been carried out; being started again undoes nothing.
    float firedUntil_ = 0;
};

}  // namespace bc
