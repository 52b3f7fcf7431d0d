// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// A sound that is heard near a place (type "soundbody").
class SoundBody final : public GameBody {
  public:
    /// World units between the player and the body within which it plays.
    static constexpr float reach = 528;

    SoundBody();
    ~SoundBody() override;

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void dumpState(TiXmlElement& debug) const override;

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
