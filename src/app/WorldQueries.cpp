// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/WorldQueries.h"

#include "app/CommandFile.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/actors/Sight.h"
#include "world/World.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <sstream>
#include <string>

namespace bc {

namespace {

/// Writes lines to the console and the log, or to the file if one is named.
void report(const std::string& lines, const std::string& file) {
    if (!file.empty()) {
        writeCommandFile(file, lines);
        return;
    }
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) {
        logLine(line);
        consolePrint(line);
    }
}

std::string nameOf(const Body& body) {
    return std::to_string(body.autoid) + ' ' + body.type + ' ' + body.id;
}

/// "x,y" in world units; nothing when it is not that, or beyond any level.
std::optional<Vector> readPlace(const std::string& text) {
    float v[2];
    if (parseFloats(text, ",", v, 2) < 2)
        return std::nullopt;
    const bool isFar =
        std::fabs(v[0]) > Body::maxCoordinate || std::fabs(v[1]) > Body::maxCoordinate;
    return isFar ? std::nullopt : std::optional(Vector(v[0], v[1]));
}

/// A whole number and nothing else: a typing mistake must not be taken for the id 0, which many
/// bodies have.
std::optional<int> readId(const std::string& text) {
    int id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(id) : std::nullopt;
}

}  // namespace

void WorldQueries::registerCommands() {
    commands().registerCommand("trace a line through the world: x,y x,y [file]", "trace",
                               [this] { trace(); });
    commands().registerCommand("whether a body sees another: id id [file]", "sees",
                               [this] { sees(); });
}

void WorldQueries::trace() {
    const std::optional<Vector> from = readPlace(commands().arg(0));
    const std::optional<Vector> to = readPlace(commands().arg(1));
    if (!from || !to) {
        consolePrint("Usage: trace x,y x,y [file]");
        return;
    }
    TraceResults hits;
    world_.quadtree().trace(Ray(*from, *to), hits, true);
    std::string text;
    for (const TraceResult& hit : hits)
        text += formatFloat(hit.t) + ' ' + formatFloat(hit.distance) + ' ' + nameOf(*hit.body) +
                (hit.body->solid ? "" : " (not solid)") + '\n';
    if (text.empty())
        text = "no hits\n";
    report(text, commands().arg(2));
}

void WorldQueries::sees() {
    const std::optional<int> fromId = readId(commands().arg(0));
    const std::optional<int> toId = readId(commands().arg(1));
    if (!fromId || !toId) {
        consolePrint("Usage: sees id id [file]");
        return;
    }
    const Body* from = world_.findById(*fromId);
    const Body* to = world_.findById(*toId);
    if (from == nullptr || to == nullptr) {
        consolePrint("No body has the id " + commands().arg(from == nullptr ? 0 : 1));
        return;
    }
    const Body* blocker = nullptr;
    const bool seen = canSee(*from, *to, false, &blocker);
    std::string text = nameOf(*from) + (seen ? " sees " : " does not see ") + nameOf(*to) + '\n';
    if (blocker != nullptr)
        text += "between: " + nameOf(*blocker) + '\n';
    report(text, commands().arg(2));
}

}  // namespace bc
