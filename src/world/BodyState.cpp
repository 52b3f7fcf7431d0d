// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Text forms of a body: level attributes, saved state, dumps.
#include "core/Log.h"
#include "core/Text.h"
#include "world/Body.h"
#include "world/BodyFields.h"
#include "world/StateVisitors.h"

#include <algorithm>

namespace bc {

namespace {

// Each step is a drawing pass over the body.
constexpr int maxGlowSteps = 64;

// What a level calls static.
constexpr float staticMass = 1e-7F;

}  // namespace

void Body::setTexture(const std::string& name) {
    texture = name;
    textureHandle = -1;
}

void Body::fields(BodyFields& f) {
    // Level tools list these by rank; files hold them in the order in which they stand here.
    f.placed("targets", targets,
             "Names of the objects this one acts on, separated by commas; a name may stand for "
             "several.",
             "")
        .kind(ParamKind::ids)
        .rank(1);
    f.placed("solid", solid, "Other bodies cannot pass.").inLevels("false").rank(2);
    f.placed(
         "entity", entity,
         "Has something to remember: numbered, and kept in saved games. What has mass is one by "
         "itself.",
         entity)
        .inLevels("false")
        .rank(3);
    f.placed(
         "outlined", outlined,
         "Draws the luminous line of the game around an untextured polygon; follows bodies that "
         "move.")
        .inLevels("false")
        .rank(12);
    f.placed("outlinecolour", outlinecolour, "Colour of that line.").inLevels("#ff58e0ff").rank(13);
    f.placed("outlinewidth", outlinewidth, "Width of that line.").rank(14);
    f.placed("texhscale", texhscale, "Repeats the picture this many times as often sideways.")
        .rank(7);
    f.placed("texhshift", texhshift, "Shifts the picture sideways, in pictures.").rank(9);
    f.placed("texvscale", texvscale, "The same upwards.").rank(8);
    f.placed("texvshift", texvshift, "Shifts the picture upwards, in pictures.").rank(10);
    f.placed("texrotate", texrotate, "Turns the picture, degrees anticlockwise.").rank(11);
    f.placed("textured", textured, "Is drawn with its texture; when it is not set: if it has one.")
        .leftOut()
        .rank(5);
    f.placedAs(
         "texture", texture, [this](const std::string& name) { setTexture(name); },
         "Picture, as the game names it: data/images/metal1.png.")
        .kind(ParamKind::texture)
        .inLevels("")
        .rank(6);
    f.placed("visible", visible, "Is drawn.").inLevels("true").rank(4);
    f.placed(
         "z-shift", zShift,
         "Depth: lower is drawn first and farther away, so that it moves slower than the level.")
        .rank(15);
    f.placedAs(
         "mass", mass,
         [this](float given) {
             mass = given > staticMass ? given : 0;
             invMass = given > staticMass ? 1 / given : 0;
         },
         "0 stands fast; anything else can be pushed and falls.")
        .inLevels("0")
        .rank(16);

    f.param("glow", hasGlow, "Drawn in the bloom pass as well.").leftOut().common().rank(-3);
    f.param(
         "glowsteps", glowSteps,
         [this](int given) { glowSteps = std::clamp(given, 0, maxGlowSteps); },
         "Additive passes of the glow picture of bodies that have one.")
        .leftOut()
        .common()
        .rank(-3);

    f.saved("renderpos", renderpos);
    f.saved("oldpos", oldpos);
    f.saved("pos", pos);
    f.saved("vel", vel);
    f.saved("frozenvel", frozenvel);
    f.saved("constantvelocity", constantvelocity);
    f.saved("nonmassmover", nonmassmover);
    f.saved("isfiring", isfiring);
    f.saved("nextthink", nextthink);
    f.saved("gravitymultiplier", gravitymultiplier);
    f.saved("liquidfriction", liquidfriction);
    f.saved("inliquid", inliquid);
    f.saved("inliquidlastframe", inliquidlastframe);
    f.saved("cancleanup", cancleanup);
    f.saved("texture", texture);
    f.saved("autoid", autoid);
    f.saved("contact", contact);
    f.saved("angle", angle);

    f.shown("category", category);
    f.shown("contact", contact);
    f.shown("alwaysactive", alwaysActive);
    f.shown("massive", isMassive());
    f.shown("invmass", invMass);
    f.shown("friction", friction);
    f.shown("bounce", bounce);
    f.shown("angle", angle);
    f.shown("radius", radius);
    f.shown("sweptradius", sweptRadius);
    f.shown("minx", bounds.minX);
    f.shown("maxx", bounds.maxX);
    f.shown("miny", bounds.minY);
    f.shown("maxy", bounds.maxY);
    f.shown("glow", hasGlow);
    f.shown("glowsteps", glowSteps);
    f.shown("thinks", thinks);
    f.shown("particlesystems", static_cast<int>(particleSystems_.size()));
    f.shown("resolvedtargets", [this] { return resolvedTargets(); });
    f.shown("nodedepth", indexDepth());
}

void Body::applyAttributes(const std::map<std::string, std::string>& attributes) {
    if (attributes.empty())
        return;
    AttributeVisitor visitor(attributes);
    fields(visitor);
    for (const auto& [name, value] : attributes) {
        if (equalsNoCase(name, "glow"))
            logLine(std::string("bHasGlow: ") + (hasGlow ? "1" : "0"));
        else if (equalsNoCase(name, "glowsteps"))
            logLine("glowSteps: " + std::to_string(glowSteps));
    }
}

void Body::loadState(const TiXmlElement& e, Digits digits) {
    StateReader reader(e, digits);
    fields(reader);
    // The texture may be another one.
    textureHandle = -1;
    onStateRead();
}

// The declarations serve reading and writing alike; a visitor that writes changes nothing.

void Body::saveState(TiXmlElement& e, Digits digits) const {
    StateWriter writer(e, digits);
    const_cast<Body&>(*this).fields(writer);
}

void Body::dumpState(TiXmlElement& debug) const {
    DumpWriter writer(debug);
    const_cast<Body&>(*this).fields(writer);
}

std::string Body::resolvedTargets() const {
    std::string text;
    for (const Body* target : targetBodies)
        text += (text.empty() ? "" : ",") + std::to_string(target->autoid) + ':' + target->id;
    return text;
}

std::string Body::describe() const {
    std::string text = " pos: " + pos.toString() + " vel: " + vel.toString() + " type: " + type +
                       " id: " + id + " targets: " + targets;
    if (!targetBodies.empty()) {
        text += " target pointers: ";
        for (const Body* target : targetBodies)
            text += target->id + ", ";
    }
    text += " mass: " + formatFloat(mass) + " invMass: " + formatFloat(invMass);
    text += std::string(" visible: ") + (visible ? "1" : "0") + " solid: " + (solid ? "1" : "0");
    return text + " camera: " + camera.toString();
}

}  // namespace bc
