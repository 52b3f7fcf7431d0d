// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/NamedPoint.h"

#include "world/BodyFields.h"

namespace bc {

NamedPoint::NamedPoint() {
    visible = false;
    solid = false;
}

void NamedPoint::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("visible", "false");
}

void NamedPoint::onLoaded() {
    GameBody::onLoaded();
    // Whatever the level says of it.
    visible = false;
    solid = false;
}

}  // namespace bc
