// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Dimension.h"
#include "core/RGBAColour.h"
#include "core/Vector.h"

#include <string>

class TiXmlElement;

namespace bc {

/// A named kind of particle system, as the definition file describes it. "low" and "high" are the
/// ends of a uniform random range added to the value before them, each component on its own.
/// Lengths are world units, times seconds, colours 0 to 255.
struct ParticleSystemParams {
    static constexpr int defaultMaxParticles = 32;
    /// More than this many particles in one system could not be told apart on screen; it bounds the
    /// memory that one definition can ask for.
    static constexpr int particleLimit = 4096;
    static constexpr int glowStepLimit = 16;
    /// Blend mode for ordinary transparency; every other number adds light.
    static constexpr int alphaBlendMode = 2;

    /// The name by which it is started. Some names also choose a special kind of system.
    std::string id;
    /// Image below "data/"; empty for plain coloured quads.
    std::string texture;
    /// Particles a second; 0 or less: none but the initial ones.
    int flowRate = 0;
    /// Emitted at once when the system starts.
    int initialParticles = 0;
    int maxParticles = defaultMaxParticles;

    // Where a particle starts, relative to the system.
    Vector posVarLow, posVarHigh;
    // Units a second, and units a second squared.
    Vector vel, velVarLow, velVarHigh;
    Vector acc, accVarLow, accVarHigh;
    RGBAColour colour{0, 0, 0, 0}, colourVarLow{0, 0, 0, 0}, colourVarHigh{0, 0, 0, 0};
    // Change a second.
    RGBAColour colourVel{0, 0, 0, 0}, colourVelVarLow{0, 0, 0, 0}, colourVelVarHigh{0, 0, 0, 0};
    // Size at birth, and one second after it however long the particle lives.
    Dimension dimension, dimensionVarLow, dimensionVarHigh;
    Dimension endDimension, endDimensionVarLow, endDimensionVarHigh;

    /// 0 or less: the system runs until it is stopped.
    float systemLifeTime = 0;
    /// Exactly -1 (after the random part): the particle lives as long as its system.
    float particleLifeTime = 0;
    float particleLifeTimeLow = 0;
    float particleLifeTimeHigh = 0;
    int blendMode = 0;
    /// "sphere": the velocity points in a random direction of the plane, scaled by vel; anything
    /// else, "point": it is vel.
    std::string generationShape;
    float generationShapeVar1 = 0;
    float generationShapeVar2 = 0;
    int animFPS = 0;
    /// How many quads, each fainter, are laid over each other to draw one particle.
    int glowSteps = 1;

    /// Reads the attributes of a definition; missing ones are 0 or empty but for maxParticles and
    /// glowSteps. Counts are cut to their limits (with a log line) and lengths, speeds and times to
    /// a million, so that no particle ever leaves the range of a float.
    void read(const TiXmlElement& element);

    [[nodiscard]] bool isAlphaBlended() const { return blendMode == alphaBlendMode; }
    /// The name under which the renderer knows the texture; empty when there is none.
    [[nodiscard]] const std::string& texturePath() const { return texturePath_; }
    void setTexture(const std::string& name);

  private:
    std::string texturePath_;
};

}  // namespace bc
