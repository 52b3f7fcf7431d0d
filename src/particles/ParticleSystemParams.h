// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Dimension.h"
#include "core/RGBAColour.h"
#include "core/Vector.h"

#include <string>

class TiXmlElement;

namespace bc {

/// A definition of particle systems. Each new particle gets the value of a member plus a random
/// number between its "Low" and its "High" member, drawn for each component. Lengths are world
/// units, times seconds, colour channels 0 to 255.
struct ParticleSystemParams {
    static constexpr int defaultMaxParticles = 32;
    /// The limit for maxParticles, which limits the memory that a definition can ask for. Single
    /// ones of more particles could not be seen on the screen.
    static constexpr int particleLimit = 4096;
    static constexpr int glowStepLimit = 16;
    /// The blendMode for alpha blending. Every other number means additive blending.
    static constexpr int alphaBlendMode = 2;

    /// The name with which systems are started. ParticleKind lists the names with classes of their
    /// own.
    std::string id;
    /// The name of the image below "data/"; empty for quads without a texture.
    std::string texture;
    /// Particles a second. With 0 or less only the initial ones are emitted.
    int flowRate = 0;
    /// Particles that are emitted together at the start.
    int initialParticles = 0;
    int maxParticles = defaultMaxParticles;

    // The place of birth relative to the position of the system.
    Vector posVarLow, posVarHigh;
    // Velocity in units a second, and acceleration in units per second squared.
    Vector vel, velVarLow, velVarHigh;
    Vector acc, accVarLow, accVarHigh;
    RGBAColour colour{0, 0, 0, 0}, colourVarLow{0, 0, 0, 0}, colourVarHigh{0, 0, 0, 0};
    // Change of the colour in a second.
    RGBAColour colourVel{0, 0, 0, 0}, colourVelVarLow{0, 0, 0, 0}, colourVelVarHigh{0, 0, 0, 0};
    // The size at birth, and the size one second later however long the particle lives.
    Dimension dimension, dimensionVarLow, dimensionVarHigh;
    Dimension endDimension, endDimensionVarLow, endDimensionVarHigh;

    /// With 0 or less the system runs until it is stopped.
    float systemLifeTime = 0;
    /// A particle for which the sum with the random number is exactly -1 is immortal: it lives as
    /// long as its system.
    float particleLifeTime = 0;
    float particleLifeTimeLow = 0;
    float particleLifeTimeHigh = 0;
    int blendMode = 0;
    /// With "sphere" the velocity is vel times a random unit vector in the x-y plane; with every
    /// other text it is vel.
    std::string generationShape;
    // These three are read but not used.
    float generationShapeVar1 = 0;
    float generationShapeVar2 = 0;
    int animFPS = 0;
    /// How often a particle is drawn at its place, each time fainter.
    int glowSteps = 1;

    /// Reads the attributes of an element. A missing one is 0 or empty; maxParticles and glowSteps
    /// get their defaults. Counts are cut to their limits, with a log line, and all other numbers
    /// to one million, so that the position of a particle stays a finite float.
    void read(const TiXmlElement& element);

    [[nodiscard]] bool isAlphaBlended() const { return blendMode == alphaBlendMode; }
    /// The texture's name for the renderer; empty without a texture.
    [[nodiscard]] const std::string& texturePath() const { return texturePath_; }
    /// Sets texture and texturePath.
    void setTexture(const std::string& name);

  private:
    std::string texturePath_;
};

}  // namespace bc
