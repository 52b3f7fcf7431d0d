// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/Switch.h"

#include "gameplay/actors/Effects.h"
#include "gameplay/actors/SoundIds.h"
#include "world/BodyFields.h"
#include "world/TouchInfo.h"

namespace bc {

Switch::Switch() {
    textured = true;
    clampTexture = true;
    outlined = false;
    usesDefaultShape = true;
}

void Switch::fields(BodyFields& f) {
    TriggerBody::fields(f);
    f.level().with("texture", "data/images/switch.png").with("texmap", "fit");
    f.param("untriggeredimage", untriggeredImage, "Picture while it can be thrown.")
        .kind(ParamKind::texture)
        .inLevels("data/images/switch.png");
    f.param("triggeredimage", triggeredImage, "Picture after it was thrown.")
        .kind(ParamKind::texture)
        .inLevels("data/images/switchtriggered.png");
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
