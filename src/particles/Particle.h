// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"

namespace bc {

/// One particle as a value: what a system fills in at its birth, and the view that the per-particle
/// hook gets of one in the pool. World units and seconds.
struct Particle {
    Vector pos;
    /// The far end of a beam.
    Vector second;
    Vector vel;
    Vector acc;
    RGBAColour colour;
    /// Change a second.
    RGBAColour colourVel{0, 0, 0, 0};
    float width = 0;
    float height = 0;
    float widthChange = 0;
    float heightChange = 0;
    float halfWidth = 0;
    float halfHeight = 0;
    float age = 0;
    float lifeTime = 0;
    /// Never dies of age.
    bool immortal = false;
    /// Which of its system's images it is drawn with.
    int variant = 0;

    /// Sets the half sizes as well.
    void setSize(float newWidth, float newHeight);
    /// The size it has one second after its birth, however long it lives; after setSize.
    void setEndSize(float endWidth, float endHeight);
    /// Units a second.
    void setSizeChange(float newWidthChange, float newHeightChange);
    /// Moves, fades, grows and ages by dt seconds. False when it has outlived its time.
    bool update(float dt);
};

}  // namespace bc
