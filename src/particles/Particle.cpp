// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/Particle.h"

#include <algorithm>

namespace bc {

namespace {

/// A colour channel after dt seconds, kept within 0 to 255.
float fade(float channel, float change, float dt) {
    return std::clamp(channel + change * dt, 0.0F, 255.0F);
}

}  // namespace

void Particle::setSize(float newWidth, float newHeight) {
    width = newWidth;
    height = newHeight;
    halfWidth = newWidth * 0.5F;
    halfHeight = newHeight * 0.5F;
}

void Particle::setEndSize(float endWidth, float endHeight) {
    setSizeChange(endWidth - width, endHeight - height);
}

void Particle::setSizeChange(float newWidthChange, float newHeightChange) {
    widthChange = newWidthChange;
    heightChange = newHeightChange;
}

bool Particle::update(float dt) {
    pos += vel * dt;
    vel += acc * dt;
    colour.set(fade(colour.r, colourVel.r, dt), fade(colour.g, colourVel.g, dt),
               fade(colour.b, colourVel.b, dt), fade(colour.a, colourVel.a, dt));
    setSize(width + widthChange * dt, height + heightChange * dt);
    age += dt;
    return immortal || age <= lifeTime;
}

}  // namespace bc
