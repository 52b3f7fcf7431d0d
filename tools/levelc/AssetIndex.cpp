// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "AssetIndex.h"

#include "XmlFile.h"

#include "core/Text.h"
#include "resources/FileSystem.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <filesystem>

namespace bc::levelc {

namespace {

/// The particle system that the game has without a definition.
constexpr const char* builtInParticles = "default";

/// Every element of that name below this one, wherever it stands.
template <class Visit>
void forEachElement(const TiXmlElement& e, const char* name, const Visit& visit) {
    for (const TiXmlElement* c = e.FirstChildElement(); c != nullptr; c = c->NextSiblingElement()) {
        if (c->ValueStr() == name)
            visit(*c);
        forEachElement(*c, name, visit);
    }
}

template <class Visit>
void forEachElementOfFile(const std::string& path, const char* name, const Visit& visit) {
    std::string text;
    TiXmlDocument document;
    if (readFile(path, text).empty() && parseXml(text, document).empty())
        forEachElement(*document.RootElement(), name, visit);
}

bool startsWith(const std::string& text, const std::string& start) {
    return text.rfind(start, 0) == 0;
}

}  // namespace

AssetIndex::AssetIndex(std::string folder) : folder_(std::move(folder)) {
    particles_.insert(builtInParticles);
    std::string text;
    TiXmlDocument document;
    if (!readFile(folder_ + "/data/particles/particles.xml", text).empty() ||
        !parseXml(text, document).empty())
        return;
    const TiXmlElement* e = document.RootElement()->FirstChildElement();
    for (; e != nullptr; e = e->NextSiblingElement())
        particles_.insert(xml::readString(*e, "id"));
}

std::string AssetIndex::checkFile(ParamType type, const std::string& name) const {
    switch (type) {
        case ParamType::Texture:
            return checkImage(name);
        case ParamType::Sound:
            return checkSound(name);
        case ParamType::Wave:
        case ParamType::Cutscene:
            return checkText(name);
        case ParamType::Sky:
            return has("data/sky/" + name + ".xml") ? "" : "there is no sky " + name;
        case ParamType::Skies: {
            std::vector<std::string> skies;
            tokenise(",", name, skies);
            for (const std::string& sky : skies) {
                std::string error = checkFile(ParamType::Sky, sky);
                if (!error.empty())
                    return error;
            }
            return {};
        }
        case ParamType::Map:
            return has("maps/" + name + ".tmx") ? "" : "there is no map " + name;
        case ParamType::Particle:
            return particles_.count(name) != 0 ? "" : "there is no particle system " + name;
        default:
            return {};
    }
}

std::vector<std::string> AssetIndex::waveTargets(const std::string& name) const {
    std::vector<std::string> targets;
    forEachElementOfFile(folder_ + "/" + name, "event", [&](const TiXmlElement& e) {
        targets.push_back(xml::readString(e, "target"));
    });
    return targets;
}

bool AssetIndex::hasSpawnPoint(const std::string& map, const std::string& name) const {
    bool found = false;
    forEachElementOfFile(folder_ + "/maps/" + map + ".tmx", "object", [&](const TiXmlElement& e) {
        // Maps since Tiled 1.9 may say class.
        const std::string type = xml::readString(e, xml::has(e, "type") ? "type" : "class");
        found = found || (type == "spawnpoint" && xml::readString(e, "name") == name);
    });
    return found;
}

bool AssetIndex::has(const std::string& source) const {
    std::error_code error;
    return files::isSafeName(source) &&
           std::filesystem::is_regular_file(folder_ + "/" + source, error);
}

std::string AssetIndex::checkImage(const std::string& name) const {
    std::string base;
    std::string ending;
    splitExtension(name, base, ending);
    // Targa files are made of particle pictures only.
    const bool known =
        ending == ".png" || (ending == ".tga" && startsWith(name, "data/particles/"));
    if (startsWith(name, "data/") && known && has("images/" + base.substr(5) + ".svg"))
        return {};
    return "there is no picture " + name;
}

std::string AssetIndex::checkSound(const std::string& name) const {
    std::string base;
    std::string ending;
    splitExtension(name, base, ending);
    if (startsWith(name, "data/sounds/") && (ending == ".wav" || ending == ".ogg") &&
        has(base.substr(5) + ".csd"))
        return {};
    return "there is no sound " + name;
}

std::string AssetIndex::checkText(const std::string& name) const {
    if (startsWith(name, "data/") && has(name))
        return {};
    return "there is no file " + name;
}

}  // namespace bc::levelc
