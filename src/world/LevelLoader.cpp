// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/LevelLoader.h"

#include "command/CommandRegistry.h"
#include "command/GameVar.h"
#include "core/Log.h"
#include "core/Text.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"
#include "world/BodyFactory.h"
#include "world/LevelFormat.h"
#include "world/World.h"

#include <tinyxml.h>

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace bc {

namespace {

// The level's square is this much larger than its bodies, so that none lies on its border.
constexpr float margin = 16;
constexpr int initialDepth = 2;
// A body with more targets than this is a mistake, and with names that many bodies share a costly
// one.
constexpr std::size_t maxTargets = 1024;

using BodiesByName = std::unordered_map<std::string, std::vector<Body*>>;

/// Reads the P elements; loadState is called for those with a custom child when withState is set.
void readObjects(BodyCreator& factory, const TiXmlElement& objects, const std::string& file,
                 bool skipEntities, bool withState, LevelBodies& out) {
    for (const TiXmlElement* p = objects.FirstChildElement("P"); p != nullptr;
         p = p->NextSiblingElement("P")) {
        if (out.size() >= static_cast<std::size_t>(levelformat::maxBodies)) {
            logLine("Refused the bodies beyond " + std::to_string(levelformat::maxBodies));
            return;
        }
        if (const std::string type = xml::readString(*p, "type"); !factory.knows(type))
            logLine(file + ": object " + xml::readString(*p, "idname") +
                    " has the unknown type \"" + type + "\"; a plain body stands in for it");
        std::unique_ptr<Body> body = levelformat::readBody(
            factory, *p, skipEntities, withState ? Digits::exact : Digits::usual);
        if (!body)
            continue;
        if (const TiXmlElement* custom = p->FirstChildElement("custom"); withState && custom) {
            body->loadState(*custom, Digits::exact);
            levelformat::readShape(*body, *custom);
        }
        out.push_back(std::move(body));
    }
}

void resolveTargets(Body& body, const BodiesByName& byName) {
    std::vector<std::string> names;
    tokenise(",", body.targets, names);
    for (const std::string& name : names) {
        const auto found = byName.find(name);
        if (found == byName.end())
            continue;
        for (Body* target : found->second) {
            if (target->isGone())
                continue;
            if (body.targetBodies.size() >= maxTargets) {
                logLine("Too many targets of " + body.id + " of type " + body.type);
                return;
            }
            body.addTarget(target);
        }
    }
}

void sizeIndex(QuadTree& index, const std::vector<Body*>& bodies) {
    Box all{0, 0, 0, 0};
    bool any = false;
    for (const Body* body : bodies) {
        const Box box = body->worldBox();
        if (!(box.minX <= box.maxX))
            continue;
        if (!std::exchange(any, true)) {
            all = box;
            continue;
        }
        all.minX = std::min(all.minX, box.minX);
        all.maxX = std::max(all.maxX, box.maxX);
        all.minY = std::min(all.minY, box.minY);
        all.maxY = std::max(all.maxY, box.maxY);
    }
    const Vector centre((all.minX + all.maxX) / 2, (all.minY + all.maxY) / 2);
    index.init(centre, std::max(all.maxX - all.minX, all.maxY - all.minY) + margin, initialDepth);
}

}  // namespace

std::string levelPath(std::string_view name) {
    std::string path = "maps/" + std::string(name);
    if (path.find(".xml") == std::string::npos)
        path += ".xml";
    return path;
}

std::optional<LevelBodies> readLevel(BodyCreator& factory, std::string_view name,
                                     bool skipEntities) {
    const std::string path = levelPath(name);
    TiXmlDocument document;
    if (!resourceManager().loadXML(document, path)) {
        logLine("Could not load level file: " + path);
        return std::nullopt;
    }
    LevelBodies bodies;
    if (const TiXmlElement* objects = document.RootElement()->FirstChildElement("Objects"))
        readObjects(factory, *objects, path, skipEntities, false, bodies);
    return bodies;
}

bool readSavedBodies(BodyCreator& factory, const TiXmlElement& root, const std::string& file,
                     LevelBodies& out) {
    const TiXmlElement* objects = root.FirstChildElement("Objects");
    if (objects == nullptr)
        return false;
    readObjects(factory, *objects, file, false, true, out);
    return true;
}

void shapeIndex(World& world, LevelBodies& bodies) {
    std::vector<Body*> batch;
    for (const std::unique_ptr<Body>& body : bodies)
        batch.push_back(body.get());
    sizeIndex(world.quadtree(), batch);
    for (Body* body : batch)
        world.quadtree().insert(*body);
    for (Body* body : batch)
        world.quadtree().remove(*body);
    std::erase_if(bodies, [](const std::unique_ptr<Body>& body) { return body->entity; });
}

void insertBodies(World& world, LevelBodies bodies, bool restoring) {
    // The hooks may destroy bodies of the batch.
    const World::DeferredDeletion deferred(world);
    std::vector<Body*> batch;
    for (const std::unique_ptr<Body>& body : bodies) {
        body->updateGeometry();
        body->computeBounds();
        batch.push_back(body.get());
    }
    if (world.quadtree().isEmpty())
        sizeIndex(world.quadtree(), batch);
    for (std::unique_ptr<Body>& owned : bodies) {
        Body* body = owned.get();
        world.addBody(std::move(owned), body->entity && !restoring);
        if (body->entity || body->isMassive())
            world.activateBody(body);
        if (!world.quadtree().insert(*body))
            logLine("insertion failed at " + body->pos.toString());
    }
    BodiesByName byName;
    for (Body* body : batch)
        byName[body->id].push_back(body);
    for (Body* body : batch) {
        if (body->isGone())
            continue;
        body->onBeforeTargets();
        resolveTargets(*body, byName);
        body->onLoaded();
        if (restoring)
            body->onRestored();
        else
            body->onSpawned();
        body->onAfterLoad();
    }
}

void placeLevel(World& world, LevelBodies bodies, std::string_view name) {
    std::vector<const Body*> loaded;
    for (const std::unique_ptr<Body>& body : bodies)
        loaded.push_back(body.get());
    const World::DeferredDeletion deferred(world);
    insertBodies(world, std::move(bodies), false);
    const GameVar* debug = vars().findVar("load_leveldebug");
    if (debug != nullptr && debug->intValue() == 1) {
        const std::string line(21, '=');
        for (const Body* body : loaded) {
            logLine(line);
            logLine(body->describe());
            logLine(line);
        }
    }
    consolePrint("Loaded successfuly: " + levelPath(name));
}

bool loadLevel(World& world, BodyCreator& factory, std::string_view name) {
    std::optional<LevelBodies> bodies = readLevel(factory, name);
    if (!bodies) {
        consolePrint("Failed to load: " + levelPath(name));
        return false;
    }
    placeLevel(world, std::move(*bodies), name);
    return true;
}

void saveEntities(const World& world, TiXmlElement& root) {
    TiXmlElement* objects = root.LinkEndChild(new TiXmlElement("Objects"))->ToElement();
    for (const Body* body : world.allBodies())
        if (body->keptInSaves()) {
            TiXmlElement* p = levelformat::writeBody(*body, *objects, Digits::exact);
            levelformat::writeShape(*body, *p->FirstChildElement("custom"));
        }
}

}  // namespace bc
