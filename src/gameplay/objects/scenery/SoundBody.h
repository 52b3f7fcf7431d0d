// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// A sound that is heard near a place (type "soundbody").
class SoundBody final : public Creatable<SoundBody, GameBody> {
  public:
    /// World units between the player and the body within which it plays.
    static constexpr float reach = 528;

    SoundBody();
    void fields(BodyFields& f) override;
    ~SoundBody() override;

    void onThink(float dt) override;

    /// File name of the sample.
    std::string sound;
    /// Percent.
    int volume = 100;
    /// As in ISound: -1 for ever.
    int loops = -1;

  private:
    static constexpr int none = -1;
    /// The mixing channel while it plays.
    int channel_ = none;
};

}  // namespace bc
