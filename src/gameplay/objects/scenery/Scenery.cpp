// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/scenery/Scenery.h"

#include "gameplay/actors/GameCategories.h"

namespace bc {

Clip::Clip() {
    type = "clip";
    category = category::clip;
    visible = false;
    showDamage = false;
}

std::unique_ptr<Body> Clip::create() const {
    return std::make_unique<Clip>();
}

void Clip::onLoaded() {
    GameBody::onLoaded();
    // Whatever the level says of it.
    visible = false;
    solid = true;
}

DetailBody::DetailBody() {
    type = "detail";
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

std::unique_ptr<Body> DetailBody::create() const {
    return std::make_unique<DetailBody>();
}

DebugMoveable::DebugMoveable() {
    type = "debugmoveable";
    // What a spawner makes has no level to dress it.
    texture = "data/images/crate.png";
    textured = true;
    clampTexture = true;
    outlined = false;
    showDamage = false;
}

std::unique_ptr<Body> DebugMoveable::create() const {
    return std::make_unique<DebugMoveable>();
}

}  // namespace bc
