// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"

namespace bc {

/// One particle as a value. A system fills one in for each new particle; ParticlePool stores the
/// same members in arrays. Lengths are world units, times seconds, colour channels 0 to 255.
struct Particle {
    Vector pos;
    /// The other end of a beam.
    Vector second;
    Vector vel;
    Vector acc;
    RGBAColour colour;
    /// Change of the colour in a second.
    RGBAColour colourVel{0, 0, 0, 0};
    float width = 0;
    float height = 0;
    /// Change of the size in a second.
    float widthChange = 0;
    float heightChange = 0;
    float halfWidth = 0;
    float halfHeight = 0;
    float age = 0;
    float lifeTime = 0;
    /// True when the particle does not die at the end of lifeTime.
    bool immortal = false;
    /// The index of the image with which it is drawn, for systems with several images.
    int variant = 0;

    /// Sets the size and the half sizes.
    void setSize(float newWidth, float newHeight);
    /// Sets the change of the size so that one second later the particle has this size, however
    /// long it lives. Called after setSize.
    void setEndSize(float endWidth, float endHeight);
    /// Sets the change of the size in units a second.
    void setSizeChange(float newWidthChange, float newHeightChange);
    /// Moves, fades, grows and ages the particle by dt seconds. False when it is dead afterwards.
    bool update(float dt);
};

}  // namespace bc
