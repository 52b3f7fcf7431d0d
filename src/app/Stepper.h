// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bc {

class IntentSource;
class Subsystems;
struct AppVariables;

/// The fixed steps of the simulation and of the particles: how many of them the time of a frame
/// makes, and what happens in each.
class Stepper {
  public:
    /// Seconds of one step. The speeds of play and recorded runs depend on them.
    static constexpr float simulationStep = 0.025F;
    static constexpr float particleStep = 1.0F / 120.0F;
    /// Seconds of a frame that count at most; the rest of a long one is dropped.
    static constexpr float longestFrame = 0.25F;

    /// All outlive the object; the variables are bound before the first updateWorld.
    Stepper(Subsystems& subsystems, const AppVariables& variables, IntentSource& intents)
        : subsystems_(subsystems), vars_(variables), intents_(intents) {}

    /// Once a pass with a running level: what the player wants, the steps that the frame clock has
    /// paid for, and the places that bodies are drawn at.
    void updateWorld();
    /// Tells the sound system where the player is. Also in passes without steps: the limit on
    /// sounds at once counts those that played at the last call, and a change of the volume sets
    /// all channels to it, the distant ones as well.
    void listen();
    /// Counts the level's steps from 0 and lets go of everything the player holds.
    void beginLevel();

    // Since the program started.
    [[nodiscard]] std::uint32_t stepCount() const { return stepCount_; }
    [[nodiscard]] std::uint32_t particleStepCount() const { return particleStepCount_; }
    /// Since the level began.
    [[nodiscard]] std::uint32_t levelSteps() const { return levelSteps_; }
    /// Seconds not made into steps so far.
    [[nodiscard]] float stepAccumulator() const { return stepAccumulator_; }
    [[nodiscard]] float particleAccumulator() const { return particleAccumulator_; }

  private:
    Subsystems& subsystems_;
    const AppVariables& vars_;
    IntentSource& intents_;
    float stepAccumulator_ = 0;
    float particleAccumulator_ = 0;
    std::uint32_t stepCount_ = 0;
    std::uint32_t particleStepCount_ = 0;
    std::uint32_t levelSteps_ = 0;
};

}  // namespace bc
