// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/GameDumps.h"

#include "app/CommandFile.h"
#include "app/Game.h"
#include "app/GameHandles.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "core/Text.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Race.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/actors/Sight.h"
#include "gameplay/player/GameplayInput.h"
#include "gameplay/player/Player.h"
#include "gui/GUIManager.h"
#include "hud/GameHUD.h"
#include "hud/OverlayEffect.h"
#include "input/Console.h"
#include "particles/ParticleManager.h"
#include "ports/IGameplay.h"
#include "ports/IRenderer.h"
#include "resources/FileSystem.h"
#include "resources/XmlAttributes.h"
#include "sound/Sound.h"
#include "world/WorldDump.h"

#include <tinyxml.h>

#include <charconv>
#include <cmath>
#include <locale>
#include <optional>
#include <sstream>

namespace bc {

namespace {

TiXmlElement& child(TiXmlElement& parent, const char* name) {
    return *parent.LinkEndChild(new TiXmlElement(name))->ToElement();
}

void writeDocument(const std::string& file, const TiXmlDocument& document) {
    TiXmlPrinter printer;
    document.Accept(&printer);
    writeCommandFile(file, printer.CStr());
}

/// Lines of a report: to the console and the log, or to the file of the given name.
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

/// Collects a text that is not complete yet; the file is replaced when the stream goes, unless
/// nothing came.
class FileWhenReleased final : public std::ostringstream {
  public:
    explicit FileWhenReleased(std::string name) : name_(std::move(name)) {
        imbue(std::locale::classic());
    }
    ~FileWhenReleased() override {
        if (const std::string text = str(); !text.empty())
            writeCommandFile(name_, text);
    }
    FileWhenReleased(const FileWhenReleased&) = delete;
    FileWhenReleased& operator=(const FileWhenReleased&) = delete;

  private:
    std::string name_;
};

std::string nameOf(const Body& body) {
    return std::to_string(body.autoid) + ' ' + body.type + ' ' + body.id;
}

/// A place of the world as a person types it.
std::optional<Vector> readPlace(const std::string& text) {
    float v[2];
    if (parseFloats(text, ",", v, 2) < 2)
        return std::nullopt;
    const bool isFar =
        std::fabs(v[0]) > Body::maxCoordinate || std::fabs(v[1]) > Body::maxCoordinate;
    return isFar ? std::nullopt : std::optional(Vector(v[0], v[1]));
}

/// A whole number and nothing else: many bodies share the id 0, which a slip must not name.
std::optional<int> readId(const std::string& text) {
    int id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(id) : std::nullopt;
}

std::string boxText(const Vector& v) {
    return formatFloat(v.x) + ',' + formatFloat(v.y);
}

}  // namespace

void GameDumps::registerCommands() {
    const auto add = [](const char* description, const char* name, const char* file, auto writer) {
        commands().registerCommand(description, name, [=] { writer(commands().arg(0, file)); });
    };
    add("dump the world to a file", "dumpworld", "worlddump.xml",
        [this](const std::string& f) { dumpWorld(f); });
    add("dump the menus to a file", "dumpgui", "guidump.xml",
        [this](const std::string& f) { dumpGui(f); });
    add("dump the subsystems to a file", "dumpstate", "statedump.xml",
        [this](const std::string& f) { dumpState(f); });
    add("dump the drawing of the next frame to a file", "dumpframe", "framedump.txt",
        [this](const std::string& f) { dumpFrame(f); });
    add("dump the quadtree to a file", "dumpquadtree", "quadtreedump.txt",
        [this](const std::string& f) { dumpQuadTree(f); });
    commands().registerCommand("trace a line through the world: x,y x,y [file]", "trace",
                               [this] { trace(); });
    commands().registerCommand("whether a body sees another: id id [file]", "sees",
                               [this] { sees(); });
}

void GameDumps::dumpWorld(const std::string& file) {
    TiXmlDocument document;
    auto& root = *document.LinkEndChild(new TiXmlElement("world"))->ToElement();
    GameplaySingleton& play = GameplaySingleton::instance();
    xml::writeString(root, "leveltime", formatFloat(play.levelTime()));
    xml::writeInt(root, "step", static_cast<int>(game_.levelSteps_));
    xml::writeBool(root, "paused", game_.paused_);
    xml::writeBool(root, "worldactive", game_.worldActive_);
    xml::writeBool(root, "levelloaded", game_.levelLoaded_);
    xml::writeString(root, "pendingmap", game_.mapLoadPending_ ? game_.pendingMapName_ : "");
    xml::writeBool(root, "pendingsave", game_.savePending_);
    xml::writeInt(root, "gibs", game_.gameplay_->gibCount());
    dumpBodies(game_.world_, root);
    writeParticles(root);
    TiXmlElement& hud = child(root, "Hud");
    if (play.hud != nullptr)
        play.hud->dump(hud);
    if (game_.overlay_)
        game_.overlay_->dump(child(hud, "overlay"));
    writeRace(root);
    writeDocument(file, document);
}

void GameDumps::writeParticles(TiXmlElement& root) const {
    TiXmlElement& list = child(root, "Particles");
    for (const auto& system : particleManager().systems()) {
        TiXmlElement& e = child(list, "system");
        xml::writeString(e, "definition", system->definitionId());
        xml::writeInt(e, "id", system->id());
        xml::writeValue(e, "position", system->position());
        xml::writeInt(e, "live", system->liveCount());
        xml::writeBool(e, "emitting", system->isEmitting());
    }
}

void GameDumps::writeRace(TiXmlElement& root) const {
    Rules* rules = GameplaySingleton::instance().rules;
    TiXmlElement& race = child(root, "Race");
    xml::writeBool(race, "active", rules != nullptr && rules->race().isActive());
    xml::writeString(race, "time", formatFloat(rules != nullptr ? rules->race().time() : 0));
}

void GameDumps::dumpGui(const std::string& file) {
    TiXmlDocument document;
    game_.gui_->dump(*document.LinkEndChild(new TiXmlElement("gui"))->ToElement());
    writeDocument(file, document);
}

void GameDumps::dumpState(const std::string& file) {
    TiXmlDocument document;
    auto& root = *document.LinkEndChild(new TiXmlElement("state"))->ToElement();
    writeLoop(root);
    writeInput(root);
    writeConsole(root);
    writeRenderer(root);
    TiXmlElement& gui = child(root, "gui");
    xml::writeBool(gui, "shown", game_.gui_->isVisible());
    game_.sound_->dumpState(root);
    TiXmlElement& overlay = child(root, "overlay");
    xml::writeBool(overlay, "active", game_.overlay_ != nullptr);
    if (game_.overlay_)
        game_.overlay_->dump(overlay);
    game_.skyManager_.dump(child(root, "sky"));
    writeDocument(file, document);
}

void GameDumps::writeLoop(TiXmlElement& root) const {
    TiXmlElement& e = child(root, "game");
    xml::writeInt(e, "pass", static_cast<int>(game_.pass_));
    xml::writeInt(e, "frames", static_cast<int>(game_.frameCount_));
    xml::writeInt(e, "steps", static_cast<int>(game_.stepCount_));
    xml::writeInt(e, "particlesteps", static_cast<int>(game_.particleStepCount_));
    xml::writeString(e, "stepaccumulator", formatFloat(game_.stepAccumulator_));
    xml::writeString(e, "particleaccumulator", formatFloat(game_.particleAccumulator_));
    xml::writeBool(e, "paused", game_.paused_);
    xml::writeBool(e, "showingmap", game_.showingMap_);
    xml::writeBool(e, "worldactive", game_.worldActive_);
    xml::writeBool(e, "levelloaded", game_.levelLoaded_);
    xml::writeString(e, "currentlevel", game_.currentLevel_);
    xml::writeString(e, "savename", game_.saveName_);
    xml::writeBool(e, "mappending", game_.mapLoadPending_);
    xml::writeString(e, "pendingmap", game_.pendingMapName_);
    xml::writeString(e, "pendingspawn", game_.pendingSpawnName_);
    xml::writeBool(e, "savepending", game_.savePending_);
    xml::writeBool(e, "loadpending", game_.loadPending_);
    xml::writeBool(e, "screenshotpending", game_.screenshotPending_);
}

void GameDumps::writeInput(TiXmlElement& root) const {
    TiXmlElement& e = child(root, "input");
    xml::writeString(e, "target", game_.input_.getTarget());
    xml::writeString(e, "previous", game_.input_.getPreviousTarget());
    const InputTarget& cursor = *game_.gameInput_;
    xml::writeString(e, "cursor", boxText({cursor.mouseX, cursor.mouseY}));
    xml::writeValue(e, "aim", game_.player_->aim);
    xml::writeValue(e, "mouseworld", game_.player_->mouseWorldPos);
}

void GameDumps::writeConsole(TiXmlElement& root) const {
    const Console& console = *game_.console_;
    TiXmlElement& e = child(root, "console");
    xml::writeBool(e, "open", console.isOpen());
    xml::writeInt(e, "scroll", console.getScroll());
    xml::writeInt(e, "lines", static_cast<int>(console.getLines().size()));
    xml::writeString(e, "input", console.getInput());
    for (const ConLine* line : console.visibleLines()) {
        TiXmlElement& l = child(e, "line");
        xml::writeString(l, "text", line->text);
        xml::writeValue(l, "colour", line->colour);
    }
}

void GameDumps::writeRenderer(TiXmlElement& root) const {
    TiXmlElement& e = child(root, "renderer");
    xml::writeInt(e, "width", game_.renderer_->getWidth());
    xml::writeInt(e, "height", game_.renderer_->getHeight());
    xml::writeBool(e, "fullscreen", game_.renderer_->isFullscreen());
    xml::writeValue(e, "camera", game_.renderer_->getCamera());
}

void GameDumps::dumpFrame(const std::string& file) {
    if (files::writable(file))
        game_.renderer_->dumpNextFrame(std::make_unique<FileWhenReleased>(file));
    else
        reportUnwritable(file);
}

void GameDumps::dumpQuadTree(const std::string& file) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    game_.world_.quadtree().dump(text);
    writeCommandFile(file, text.str());
}

void GameDumps::trace() {
    const std::optional<Vector> from = readPlace(commands().arg(0));
    const std::optional<Vector> to = readPlace(commands().arg(1));
    if (!from || !to) {
        consolePrint("Usage: trace x,y x,y [file]");
        return;
    }
    TraceResults hits;
    game_.world_.quadtree().trace(Ray(*from, *to), hits, true);
    std::string text;
    for (const TraceResult& hit : hits)
        text += formatFloat(hit.t) + ' ' + formatFloat(hit.distance) + ' ' + nameOf(*hit.body) +
                (hit.body->solid ? "" : " (not solid)") + '\n';
    if (text.empty())
        text = "no hits\n";
    report(text, commands().arg(2));
}

void GameDumps::sees() {
    const std::optional<int> fromId = readId(commands().arg(0));
    const std::optional<int> toId = readId(commands().arg(1));
    if (!fromId || !toId) {
        consolePrint("Usage: sees id id [file]");
        return;
    }
    const Body* from = game_.world_.findById(*fromId);
    const Body* to = game_.world_.findById(*toId);
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
