// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Saved and dumped form of the inventory.
#include "core/Text.h"
#include "gameplay/player/Inventory.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <string>

namespace bc {

namespace {

TiXmlElement& appendChild(TiXmlElement& parent, const char* name) {
    return *parent.LinkEndChild(new TiXmlElement(name))->ToElement();
}

/// One attribute for each number that is not 0: the letter and the place.
template <class Numbers>
void writeNumbers(TiXmlElement& node, char letter, const Numbers& numbers) {
    for (std::size_t i = 0; i < numbers.size(); ++i)
        if (numbers[i] != 0)
            xml::writeInt(node, (letter + std::to_string(i)).c_str(), numbers[i]);
}

/// Calls take(place, text) for every attribute: the place is the number after the first letter.
template <class Take>
void forEachNumbered(const TiXmlElement* node, Take take) {
    if (node == nullptr)
        return;
    for (const TiXmlAttribute* a = node->FirstAttribute(); a != nullptr; a = a->Next()) {
        const std::string name = a->Name();
        if (name.size() > 1)
            take(parseInt(std::string_view(name).substr(1)), a->Value());
    }
}

/// What the file leaves out is 0; places there are none of are passed over.
template <class Numbers>
void readNumbers(const TiXmlElement* node, Numbers& numbers) {
    numbers.fill(0);
    forEachNumbered(node, [&](int place, const char* text) {
        if (place >= 0 && place < static_cast<int>(numbers.size()))
            numbers[static_cast<std::size_t>(place)] = parseInt(text);
    });
}

}  // namespace

void Inventory::saveState(TiXmlElement& parent, Digits digits) const {
    TiXmlElement& node = appendChild(parent, "inventory");
    xml::writeInt(node, "activeweap", activeWeapon_);
    xml::writeFloat(node, "nextnoammosound", nextNoAmmoSound_, digits);
    xml::writeFloat(node, "nextquadfiresound", nextQuadFireSound_, digits);
    xml::writeFloat(node, "nextnoammochange", nextNoAmmoChange_, digits);
    xml::writeInt(node, "bestweaponrating", pendingWeapon_);
    writeNumbers(appendChild(node, "weapons"), 'w', owned_);
    writeNumbers(appendChild(node, "ammo"), 'a', ammo_);
    TiXmlElement& delays = appendChild(node, "delays");
    for (int id = 1; id <= weapon::lastFiring; ++id)
        if (const FireableWeapon* w = weaponObject(id))
            xml::writeFloat(delays, ('w' + std::to_string(id)).c_str(), w->nextFireTime, digits);
}

void Inventory::loadState(const TiXmlElement& parent, Digits digits) {
    const TiXmlElement* node = parent.FirstChildElement("inventory");
    if (node == nullptr)
        return;
    const int active = xml::readInt(*node, "activeweap");
    activeWeapon_ = active >= 1 && active <= weapon::last ? active : weapon::pistol;
    nextNoAmmoSound_ = xml::readFloat(*node, "nextnoammosound", digits);
    nextQuadFireSound_ = xml::readFloat(*node, "nextquadfiresound", digits);
    nextNoAmmoChange_ = xml::readFloat(*node, "nextnoammochange", digits);
    pendingWeapon_ = xml::readInt(*node, "bestweaponrating");
    readNumbers(node->FirstChildElement("weapons"), owned_);
    readNumbers(node->FirstChildElement("ammo"), ammo_);
    forEachNumbered(node->FirstChildElement("delays"), [this](int id, const char* text) {
        if (FireableWeapon* w = weaponObject(id))
            w->nextFireTime = parseFloat(text);
    });
}

void Inventory::dumpState(TiXmlElement& parent) const {
    saveState(parent, Digits::usual);
    for (int id = 1; id <= weapon::lastFiring; ++id) {
        const FireableWeapon* w = weaponObject(id);
        if (w == nullptr)
            continue;
        TiXmlElement& node = appendChild(parent, "weapon");
        xml::writeInt(node, "id", id);
        w->dumpState(node);
    }
}

}  // namespace bc
