// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/ParticleSystemParams.h"

#include "core/Log.h"
#include "resources/XmlAttributes.h"

#include <algorithm>

namespace bc {

namespace {

/// The limit for numbers of a definition. It is larger than any level, and products of two such
/// numbers are still far from the largest float.
constexpr float largest = 1e6F;

float bounded(float value) {
    return std::clamp(value, -largest, largest);
}

void readVector(const TiXmlElement& e, const char* name, Vector& out) {
    xml::readValue(e, name, out);
    out.set(bounded(out.x), bounded(out.y), bounded(out.z));
}

void readColour(const TiXmlElement& e, const char* name, RGBAColour& out) {
    xml::readValue(e, name, out);
    out.set(bounded(out.r), bounded(out.g), bounded(out.b), bounded(out.a));
}

void readDimension(const TiXmlElement& e, const char* name, Dimension& out) {
    xml::readValue(e, name, out);
    out.width = bounded(out.width);
    out.height = bounded(out.height);
    out.depth = bounded(out.depth);
}

float readFloat(const TiXmlElement& e, const char* name) {
    return bounded(xml::readFloat(e, name));
}

/// An attribute as a number from 0 to limit, or `missing` without the attribute. The log tells when
/// a number was above the limit.
int readCount(const TiXmlElement& e, const char* name, int missing, int limit,
              const std::string& id) {
    if (!xml::has(e, name))
        return missing;
    const int value = xml::readInt(e, name);
    if (value > limit)
        logLine("Particle def " + id + ": " + name + " " + std::to_string(value) + " cut to " +
                std::to_string(limit));
    return std::clamp(value, 0, limit);
}

}  // namespace

void ParticleSystemParams::setTexture(const std::string& name) {
    texture = name;
    texturePath_ = name.empty() ? "" : "data/" + name;
}

void ParticleSystemParams::read(const TiXmlElement& e) {
    *this = {};
    id = xml::readString(e, "id");
    setTexture(xml::readString(e, "texture"));
    flowRate = xml::readInt(e, "flowRate");
    initialParticles = xml::readInt(e, "initialParticles");
    maxParticles = readCount(e, "maxParticles", defaultMaxParticles, particleLimit, id);
    readVector(e, "posVarLow", posVarLow);
    readVector(e, "posVarHigh", posVarHigh);
    readVector(e, "vel", vel);
    readVector(e, "velVarLow", velVarLow);
    readVector(e, "velVarHigh", velVarHigh);
    readVector(e, "acc", acc);
    readVector(e, "accVarLow", accVarLow);
    readVector(e, "accVarHigh", accVarHigh);
    readColour(e, "colour", colour);
    readColour(e, "colourVarLow", colourVarLow);
    readColour(e, "colourVarHigh", colourVarHigh);
    readColour(e, "colourVel", colourVel);
    readColour(e, "colourVelVarLow", colourVelVarLow);
    readColour(e, "colourVelVarHigh", colourVelVarHigh);
    readDimension(e, "dimension", dimension);
    readDimension(e, "dimensionVarLow", dimensionVarLow);
    readDimension(e, "dimensionVarHigh", dimensionVarHigh);
    readDimension(e, "endDimension", endDimension);
    readDimension(e, "endDimensionVarLow", endDimensionVarLow);
    readDimension(e, "endDimensionVarHigh", endDimensionVarHigh);
    systemLifeTime = readFloat(e, "systemLifeTime");
    particleLifeTime = readFloat(e, "particleLifeTime");
    Dimension lifeRange;
    readDimension(e, "particleLifeTimeVar", lifeRange);
    particleLifeTimeLow = lifeRange.width;
    particleLifeTimeHigh = lifeRange.height;
    blendMode = xml::readInt(e, "blendMode");
    generationShape = xml::readString(e, "generationShape");
    generationShapeVar1 = readFloat(e, "generationShapeVar1");
    generationShapeVar2 = readFloat(e, "generationShapeVar2");
    animFPS = xml::readInt(e, "animFPS");
    glowSteps = readCount(e, "glowSteps", 1, glowStepLimit, id);
}

}  // namespace bc
