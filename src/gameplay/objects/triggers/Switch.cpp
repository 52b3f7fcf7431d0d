// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Switch.h"

#include "gameplay/actors/Attributes.h"
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/SoundIds.h"
#include "world/TouchInfo.h"

namespace bc {

Switch::Switch() {
    type = "switch";
    textured = true;
    clampTexture = true;
    outlined = false;
    usesDefaultShape = true;
}

std::unique_ptr<Body> Switch::create() const {
    return std::make_unique<Switch>();
}

void Switch::applyAttributes(const std::map<std::string, std::string>& attributes) {
    TriggerBody::applyAttributes(attributes);
    const Attributes given(attributes);
    given.read("untriggeredimage", untriggeredImage);
    given.read("triggeredimage", triggeredImage);
}

void Switch::onTouch(const TouchInfo& info) {
    if (!isReadyFor(info))
        return;
    arm();
    playSoundAt(sound::switchOn, pos);
    setTexture(triggeredImage);
    fireTargets();
}

void Switch::onRearmed() {
    setTexture(untriggeredImage);
}

}  // namespace bc
