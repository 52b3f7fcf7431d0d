// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Text forms of a body: level attributes, saved state, dumps.
#include "core/Log.h"
#include "core/Text.h"
#include "resources/XmlAttributes.h"
#include "world/Body.h"
#include "world/Simd.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

// Each step is a drawing pass over the body.
constexpr int maxGlowSteps = 64;

/// A vector of a save; one that could not have come from a running game is left out.
void readPlace(const TiXmlElement& e, const char* name, Vector& value) {
    Vector read = value;
    xml::readValue(e, name, read);
    if (simd::within(simd::load(read), Body::maxCoordinate))
        value = read;
    else
        logLine(std::string("Refused value of ") + name + ": " + xml::readString(e, name));
}

}  // namespace

void Body::setTexture(const std::string& name) {
    texture = name;
    textureHandle = -1;
}

void Body::applyAttributes(const std::map<std::string, std::string>& attributes) {
    for (const auto& [name, value] : attributes) {
        if (equalsNoCase(name, "glow")) {
            hasGlow = parseBool(value);
            logLine(std::string("bHasGlow: ") + (hasGlow ? "1" : "0"));
        } else if (equalsNoCase(name, "glowsteps")) {
            glowSteps = std::clamp(parseInt(value), 0, maxGlowSteps);
            logLine("glowSteps: " + std::to_string(glowSteps));
        }
    }
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

void Body::saveState(TiXmlElement& e) const {
    xml::writeValue(e, "renderpos", renderpos);
    xml::writeValue(e, "oldpos", oldpos);
    xml::writeValue(e, "pos", pos);
    xml::writeValue(e, "vel", vel);
    xml::writeValue(e, "frozenvel", frozenvel);
    xml::writeValue(e, "constantvelocity", constantvelocity);
    xml::writeBool(e, "nonmassmover", nonmassmover);
    xml::writeBool(e, "isfiring", isfiring);
    xml::writeFloat(e, "nextthink", nextthink);
    xml::writeFloat(e, "gravitymultiplier", gravitymultiplier);
    xml::writeFloat(e, "liquidfriction", liquidfriction);
    xml::writeBool(e, "inliquid", inliquid);
    xml::writeBool(e, "inliquidlastframe", inliquidlastframe);
    xml::writeBool(e, "cancleanup", cancleanup);
    xml::writeString(e, "texture", texture);
    xml::writeInt(e, "autoid", autoid);
    xml::writeBool(e, "contact", contact);
    xml::writeFloat(e, "angle", angle);
}

void Body::loadState(const TiXmlElement& e) {
    readPlace(e, "renderpos", renderpos);
    readPlace(e, "oldpos", oldpos);
    readPlace(e, "pos", pos);
    readPlace(e, "vel", vel);
    readPlace(e, "frozenvel", frozenvel);
    readPlace(e, "constantvelocity", constantvelocity);
    nonmassmover = xml::readBool(e, "nonmassmover");
    isfiring = xml::readBool(e, "isfiring");
    nextthink = xml::readFloat(e, "nextthink");
    gravitymultiplier = xml::readFloat(e, "gravitymultiplier");
    liquidfriction = xml::readFloat(e, "liquidfriction");
    inliquid = xml::readBool(e, "inliquid");
    inliquidlastframe = xml::readBool(e, "inliquidlastframe");
    cancleanup = xml::readBool(e, "cancleanup");
    if (xml::has(e, "texture"))
        setTexture(xml::readString(e, "texture"));
    autoid = xml::readInt(e, "autoid");
    contact = xml::readBool(e, "contact");
    angle = xml::readFloat(e, "angle");
}

void Body::dumpState(TiXmlElement& debug) const {
    xml::writeInt(debug, "category", category);
    xml::writeBool(debug, "contact", contact);
    xml::writeBool(debug, "alwaysactive", alwaysActive);
    xml::writeBool(debug, "massive", isMassive());
    xml::writeFloat(debug, "invmass", invMass);
    xml::writeFloat(debug, "friction", friction);
    xml::writeFloat(debug, "bounce", bounce);
    xml::writeFloat(debug, "angle", angle);
    xml::writeFloat(debug, "radius", radius);
    xml::writeFloat(debug, "sweptradius", sweptRadius);
    xml::writeFloat(debug, "minx", bounds.minX);
    xml::writeFloat(debug, "maxx", bounds.maxX);
    xml::writeFloat(debug, "miny", bounds.minY);
    xml::writeFloat(debug, "maxy", bounds.maxY);
    xml::writeBool(debug, "glow", hasGlow);
    xml::writeInt(debug, "glowsteps", glowSteps);
    xml::writeBool(debug, "thinks", thinks);
    xml::writeInt(debug, "particlesystems", static_cast<int>(particleSystems_.size()));
    std::string resolved;
    for (const Body* target : targetBodies)
        resolved +=
            (resolved.empty() ? "" : ",") + std::to_string(target->autoid) + ':' + target->id;
    xml::writeString(debug, "resolvedtargets", resolved);
    xml::writeInt(debug, "nodedepth", indexDepth());
}

}  // namespace bc
