// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/WeaponDefinitions.h"

#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

/// Far beyond any use; what follows from it stays finite.
constexpr int largest = 1000000;

/// Tells of a number that was cut to its bounds.
template <class Number>
Number within(const TiXmlElement& e, const char* name, Number value, Number lowest) {
    const Number cut = std::clamp(value, lowest, static_cast<Number>(largest));
    if (cut != value)
        logLine("Weapon " + e.ValueStr() + ": " + name + ' ' + xml::readString(e, name) +
                " cut to " + formatFloat(static_cast<float>(cut)));
    return cut;
}

int readInt(const TiXmlElement& e, const char* name) {
    return within(e, name, xml::readInt(e, name), 0);
}

float readFloat(const TiXmlElement& e, const char* name) {
    return within(e, name, xml::readFloat(e, name), 0.0F);
}

/// A negative push pulls.
float readPush(const TiXmlElement& e, const char* name) {
    return within(e, name, xml::readFloat(e, name), static_cast<float>(-largest));
}

void read(const TiXmlElement& e, WeaponDefinitions::Pistol& w) {
    w.damage = readInt(e, "damage");
    w.delay = readFloat(e, "delay");
    w.knockback = readPush(e, "knockback");
    w.range = readFloat(e, "range");
    w.dualDamage = readFloat(e, "dualdamage");
    w.dualDelay = readFloat(e, "dualdelay");
    w.dualKnockback = readPush(e, "dualknockback");
}

void read(const TiXmlElement& e, WeaponDefinitions::Scatter& w) {
    w.damage = readInt(e, "damage");
    w.delay = readFloat(e, "delay");
    w.knockback = readPush(e, "knockback");
    w.range = readFloat(e, "range");
    w.spread = readFloat(e, "spread");
}

void read(const TiXmlElement& e, WeaponDefinitions::MagneticGun& w) {
    w.damage = readInt(e, "damage");
    w.delay = readFloat(e, "delay");
    w.radius = readFloat(e, "radius");
}

void read(const TiXmlElement& e, WeaponDefinitions::Shotgun& w) {
    read(e, static_cast<WeaponDefinitions::Scatter&>(w));
    w.numShots = readInt(e, "numshots");
}

void read(const TiXmlElement& e, WeaponDefinitions::Chaingun& w) {
    read(e, static_cast<WeaponDefinitions::Scatter&>(w));
    w.explosionDamage = readFloat(e, "explosiondamage");
    w.explosionRadius = readFloat(e, "explosionradius");
}

void read(const TiXmlElement& e, WeaponDefinitions::Grenade& w) {
    w.damage = readInt(e, "damage");
    w.delay = readFloat(e, "delay");
    w.radius = readFloat(e, "radius");
    w.mass = readFloat(e, "mass");
    w.lifetime = readFloat(e, "lifetime");
    w.speed = readFloat(e, "speed");
    w.bounceEnergy = readFloat(e, "bounceenergy");
}

void read(const TiXmlElement& e, WeaponDefinitions::Rocket& w) {
    w.damage = readInt(e, "damage");
    w.delay = readFloat(e, "delay");
    w.radius = readFloat(e, "radius");
    w.speed = readFloat(e, "speed");
    w.knockback = readPush(e, "knockback");
}

void read(const TiXmlElement& e, WeaponDefinitions::Railgun& w) {
    w.damage = readInt(e, "damage");
    w.delay = readFloat(e, "delay");
    w.knockback = readPush(e, "knockback");
    w.range = readFloat(e, "range");
}

template <class Weapon>
void readElement(const TiXmlElement& root, const char* name, const std::string& path,
                 Weapon& weapon) {
    if (const TiXmlElement* e = root.FirstChildElement(name))
        read(*e, weapon);
    else
        logLine(std::string("Couldn't read ") + name + " weapon info from: " + path);
}

}  // namespace

bool WeaponDefinitions::load(const std::string& path) {
    TiXmlDocument document;
    const bool loaded = resourceManager().loadXML(document, path);
    const TiXmlElement* root = loaded ? document.RootElement() : nullptr;
    if (root == nullptr) {
        logLine("Can't load weapon definition file: " + path);
        return false;
    }
    readElement(*root, "pistol", path, pistol);
    readElement(*root, "plasmagun", path, plasmaGun);
    readElement(*root, "magneticgun", path, magneticGun);
    readElement(*root, "shotgun", path, shotgun);
    readElement(*root, "chaingun", path, chaingun);
    readElement(*root, "grenade", path, grenade);
    readElement(*root, "rocket", path, rocket);
    readElement(*root, "railgun", path, railgun);
    readElement(*root, "lightninggun", path, lightningGun);
    return true;
}

WeaponDefinitions& weaponDefinitions() {
    std::shared_ptr<WeaponDefinitions>& numbers = GameplaySingleton::instance().weapons;
    if (!numbers)
        numbers = std::make_shared<WeaponDefinitions>();
    return *numbers;
}

}  // namespace bc
