// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "AssetIndex.h"

#include "XmlFile.h"

#include "core/Text.h"
#include "resources/FileSystem.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <filesystem>
#include <system_error>
#include <utility>

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
void forEachElementOf(const std::string& text, const char* name, const Visit& visit) {
    TiXmlDocument document;
    if (parseXml(text, document).empty())
        forEachElement(*document.RootElement(), name, visit);
}

bool startsWith(const std::string& text, const std::string& start) {
    return text.rfind(start, 0) == 0;
}

std::string missing(bool there, const char* what, const std::string& name) {
    return there ? "" : std::string("there is no ") + what + ' ' + name;
}

}  // namespace

void AssetIndex::readParticles() {
    particles_.insert(builtInParticles);
    TiXmlDocument document;
    if (!parseXml(readText("data/particles/particles.xml"), document).empty())
        return;
    const TiXmlElement* e = document.RootElement()->FirstChildElement();
    for (; e != nullptr; e = e->NextSiblingElement())
        particles_.insert(xml::readString(*e, "id"));
}

std::string AssetIndex::checkFile(ParamKind kind, const std::string& name) const {
    switch (kind) {
        case ParamKind::texture:
            return missing(startsWith(name, "data/") && hasImage(name), "picture", name);
        case ParamKind::sound:
            return missing(startsWith(name, "data/sounds/") && hasSound(name), "sound", name);
        case ParamKind::wave:
        case ParamKind::cutscene:
            return missing(startsWith(name, "data/") && hasText(name), "file", name);
        case ParamKind::sky:
            return missing(hasText("data/sky/" + name + ".xml"), "sky", name);
        case ParamKind::skies: {
            std::vector<std::string> skies;
            tokenise(",", name, skies);
            for (const std::string& sky : skies) {
                std::string error = checkFile(ParamKind::sky, sky);
                if (!error.empty())
                    return error;
            }
            return {};
        }
        case ParamKind::map:
            return missing(hasMap(name), "map", name);
        case ParamKind::particle:
            return missing(particles_.count(name) != 0, "particle system", name);
        default:
            return {};
    }
}

std::vector<std::string> AssetIndex::waveTargets(const std::string& name) const {
    std::vector<std::string> targets;
    forEachElementOf(readText(name), "event", [&](const TiXmlElement& e) {
        targets.push_back(xml::readString(e, "target"));
    });
    return targets;
}

SourceAssets::SourceAssets(std::string folder) : folder_(std::move(folder)) {
    readParticles();
}

bool SourceAssets::hasSpawnPoint(const std::string& map, const std::string& name) const {
    bool found = false;
    forEachElementOf(readText("maps/" + map + ".tmx"), "object", [&](const TiXmlElement& e) {
        // Maps since Tiled 1.9 may say class.
        const std::string type = xml::readString(e, xml::has(e, "type") ? "type" : "class");
        found = found || (type == "spawnpoint" && xml::readString(e, "name") == name);
    });
    return found;
}

bool SourceAssets::has(const std::string& source) const {
    std::error_code error;
    return files::isSafeName(source) &&
           std::filesystem::is_regular_file(folder_ + "/" + source, error);
}

bool SourceAssets::hasImage(const std::string& name) const {
    std::string base;
    std::string ending;
    splitExtension(name, base, ending);
    // Targa files are made of particle pictures only.
    const bool known =
        ending == ".png" || (ending == ".tga" && startsWith(name, "data/particles/"));
    return known && has("images/" + base.substr(5) + ".svg");
}

bool SourceAssets::hasSound(const std::string& name) const {
    std::string base;
    std::string ending;
    splitExtension(name, base, ending);
    return (ending == ".wav" || ending == ".ogg") && has(base.substr(5) + ".csd");
}

bool SourceAssets::hasMap(const std::string& name) const {
    return has("maps/" + name + ".tmx");
}

bool SourceAssets::hasText(const std::string& name) const {
    return has(name);
}

std::string SourceAssets::readText(const std::string& name) const {
    std::string text;
    if (!files::isSafeName(name) || !readFile(folder_ + "/" + name, text).empty())
        text.clear();
    return text;
}

GameAssets::GameAssets() {
    readParticles();
}

bool GameAssets::hasSpawnPoint(const std::string& map, const std::string& name) const {
    bool found = false;
    forEachElementOf(readText("maps/" + map + ".xml"), "P", [&](const TiXmlElement& e) {
        found = found || (xml::readString(e, "type") == "spawnpoint" &&
                          xml::readString(e, "idname") == name);
    });
    return found;
}

bool GameAssets::hasImage(const std::string& name) const {
    return hasText(name);
}

bool GameAssets::hasSound(const std::string& name) const {
    return hasText(name);
}

bool GameAssets::hasMap(const std::string& name) const {
    return hasText("maps/" + name + ".xml");
}

bool GameAssets::hasText(const std::string& name) const {
    return files::resolve(name).has_value();
}

std::string GameAssets::readText(const std::string& name) const {
    return files::readAll(name).value_or("");
}

}  // namespace bc::levelc
