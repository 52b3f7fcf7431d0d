// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/WorldOrder.h"

#include "core/Text.h"
#include "resources/XmlAttributes.h"
#include "world/World.h"

#include <tinyxml.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace bc {

namespace {

constexpr const char* listOfTurns = "turns";
constexpr const char* listOfIndex = "index";
constexpr const char* reach = "reach";

bool isPlayer(const Body& body) {
    return body.category == World::playerCategory;
}

bool isOfLevelFile(const Body& body) {
    return !body.entity && body.autoid == 0 && !isPlayer(body);
}

std::string listOf(const std::vector<Body*>& bodies) {
    std::string text;
    int unnamed = 0;
    const auto add = [&text](const std::string& item) {
        text += text.empty() ? "" : ",";
        text += item;
    };
    const auto addUnnamed = [&] {
        if (unnamed > 0)
            add("+" + std::to_string(unnamed));
        unnamed = 0;
    };
    for (const Body* body : bodies) {
        if (isOfLevelFile(*body)) {
            ++unnamed;
        } else if (body->entity || isPlayer(*body)) {
            addUnnamed();
            add(std::to_string(body->autoid));
        }
    }
    addUnnamed();
    return text;
}

/// The bodies in the order of the list.
std::vector<Body*> inOrder(const std::vector<Body*>& bodies, const std::string& list) {
    std::unordered_map<int, Body*> byId;
    std::vector<Body*> unnamed;
    for (Body* body : bodies)
        if (isOfLevelFile(*body))
            unnamed.push_back(body);
        else
            byId.emplace(body->autoid, body);
    std::vector<Body*> result;
    std::unordered_set<const Body*> taken;
    const auto take = [&](Body* body) {
        if (taken.insert(body).second)
            result.push_back(body);
    };
    std::size_t nextUnnamed = 0;
    std::vector<std::string> items;
    tokenise(",", list, items);
    for (const std::string& item : items) {
        if (item.front() != '+') {
            if (const auto found = byId.find(parseInt(item)); found != byId.end())
                take(found->second);
            continue;
        }
        for (int n = parseInt(item); n > 0 && nextUnnamed < unnamed.size(); --n)
            take(unnamed[nextUnnamed++]);
    }
    for (Body* body : bodies)
        take(body);
    return result;
}

bool moves(const Body& body) {
    return body.isMassive() || body.nonmassmover;
}

/// "id,left,right,top,bottom,radius;" for each: a side that a body has not moved to of late keeps
/// its reach from when it did, and the radius never shrinks.
std::string reaches(const World& world) {
    std::string text;
    const auto exact = [](float value) { return formatFloat(value, Digits::exact); };
    for (const Body* body : world.allBodies())
        if (moves(*body) && (body->entity || isPlayer(*body))) {
            const BRect& b = body->bounds;
            text += std::to_string(body->autoid) + ',' + exact(b.sweptLeft) + ',' +
                    exact(b.sweptRight) + ',' + exact(b.sweptTop) + ',' + exact(b.sweptBottom) +
                    ',' + exact(body->radius) + ';';
        }
    return text;
}

void restoreReaches(World& world, const std::string& text, float step) {
    std::unordered_map<int, Body*> byId;
    for (Body* body : world.allBodies())
        if (moves(*body))
            byId.emplace(body->autoid, body);
    std::vector<std::string> items;
    tokenise(";", text, items);
    for (const std::string& item : items) {
        float v[6];
        const auto isReach = [](float f) { return std::fabs(f) <= Body::maxCoordinate; };
        if (parseFloats(item, ",", v, 6) != 6 || !std::all_of(v + 1, v + 6, isReach))
            continue;
        const auto found = byId.find(parseInt(item));
        if (found == byId.end())
            continue;
        BRect& b = found->second->bounds;
        b.sweptLeft = v[1];
        b.sweptRight = v[2];
        b.sweptTop = v[3];
        b.sweptBottom = v[4];
        found->second->radius = std::fabs(v[5]);
        found->second->updateSweptBounds(step);
    }
}

}  // namespace

void saveOrder(const World& world, TiXmlElement& root) {
    auto* order = root.LinkEndChild(new TiXmlElement("Order"))->ToElement();
    xml::writeString(*order, listOfTurns, listOf(world.allBodies()));
    xml::writeString(*order, listOfIndex, listOf(world.quadtree().inOrder()));
    xml::writeString(*order, reach, reaches(world));
}

void restoreOrder(World& world, const TiXmlElement& root, float step) {
    const TiXmlElement* order = root.FirstChildElement("Order");
    if (order == nullptr)
        return;
    restoreReaches(world, xml::readString(*order, reach), step);
    QuadTree& index = world.quadtree();
    for (Body* body : inOrder(index.inOrder(), xml::readString(*order, listOfIndex)))
        index.reinsert(*body);
    world.reorder(inOrder(world.allBodies(), xml::readString(*order, listOfTurns)));
}

}  // namespace bc
