// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/StateDumps.h"

#include "app/CommandFile.h"
#include "app/FrameLoop.h"
#include "app/LevelSession.h"
#include "app/Pause.h"
#include "app/Presenter.h"
#include "app/SaveGames.h"
#include "app/ScreenOverlay.h"
#include "app/Stepper.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Race.h"
#include "gameplay/actors/Rules.h"
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

#include <locale>
#include <memory>
#include <sstream>

namespace bc {

namespace {

TiXmlElement& child(TiXmlNode& parent, const char* name) {
    return *parent.LinkEndChild(new TiXmlElement(name))->ToElement();
}

void writeDocument(const std::string& file, const TiXmlDocument& document) {
    TiXmlPrinter printer;
    document.Accept(&printer);
    writeCommandFile(file, printer.CStr());
}

/// Collects a text that others write later; writes the file when they release the stream, unless
/// it is empty.
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

void writeParticles(TiXmlElement& root) {
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

void writeRace(TiXmlElement& root) {
    Rules* rules = GameplaySingleton::instance().rules;
    TiXmlElement& race = child(root, "Race");
    xml::writeBool(race, "active", rules != nullptr && rules->race().isActive());
    xml::writeString(race, "time", formatFloat(rules != nullptr ? rules->race().time() : 0));
}

std::string boxText(const Vector& v) {
    return formatFloat(v.x) + ',' + formatFloat(v.y);
}

}  // namespace

void StateDumps::registerCommands() {
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
    add("dump texture cache info to file", "dumptextures", "texturecachedump.txt",
        [this](const std::string& f) { dumpTextures(f); });
}

void StateDumps::dumpWorld(const std::string& file) {
    TiXmlDocument document;
    TiXmlElement& root = child(document, "world");
    GameplaySingleton& play = GameplaySingleton::instance();
    xml::writeString(root, "leveltime", formatFloat(play.levelTime()));
    xml::writeInt(root, "step", static_cast<int>(parts_.stepper.levelSteps()));
    xml::writeBool(root, "paused", parts_.pause.isPaused());
    xml::writeBool(root, "worldactive", parts_.levels.isWorldActive());
    xml::writeBool(root, "levelloaded", parts_.levels.isLevelLoaded());
    xml::writeString(root, "pendingmap",
                     parts_.levels.isMapLoadPending() ? parts_.levels.pendingMap() : "");
    xml::writeBool(root, "pendingsave", parts_.saves.isSavePending());
    xml::writeInt(root, "gibs", subsystems_.gameplay().gibCount());
    dumpBodies(subsystems_.world(), root);
    writeParticles(root);
    TiXmlElement& hud = child(root, "Hud");
    if (play.hud != nullptr)
        play.hud->dump(hud);
    if (const OverlayEffect* overlay = parts_.overlay.current())
        overlay->dump(child(hud, "overlay"));
    writeRace(root);
    writeDocument(file, document);
}

void StateDumps::dumpGui(const std::string& file) {
    TiXmlDocument document;
    subsystems_.gui().dump(child(document, "gui"));
    writeDocument(file, document);
}

void StateDumps::dumpState(const std::string& file) {
    TiXmlDocument document;
    TiXmlElement& root = child(document, "state");
    writeGame(root);
    writeInput(root);
    writeConsole(root);
    writeRenderer(root);
    TiXmlElement& gui = child(root, "gui");
    xml::writeBool(gui, "shown", subsystems_.gui().isVisible());
    subsystems_.sound().dumpState(root);
    TiXmlElement& overlay = child(root, "overlay");
    xml::writeBool(overlay, "active", parts_.overlay.current() != nullptr);
    if (const OverlayEffect* effect = parts_.overlay.current())
        effect->dump(overlay);
    subsystems_.sky().dump(child(root, "sky"));
    writeDocument(file, document);
}

void StateDumps::writeGame(TiXmlElement& root) const {
    TiXmlElement& e = child(root, "game");
    xml::writeInt(e, "pass", static_cast<int>(parts_.loop.pass()));
    xml::writeInt(e, "frames", static_cast<int>(parts_.presenter.frameCount()));
    xml::writeInt(e, "steps", static_cast<int>(parts_.stepper.stepCount()));
    xml::writeInt(e, "particlesteps", static_cast<int>(parts_.stepper.particleStepCount()));
    xml::writeString(e, "stepaccumulator", formatFloat(parts_.stepper.stepAccumulator()));
    xml::writeString(e, "particleaccumulator", formatFloat(parts_.stepper.particleAccumulator()));
    xml::writeBool(e, "paused", parts_.pause.isPaused());
    xml::writeBool(e, "showingmap", parts_.pause.isShowingMap());
    xml::writeBool(e, "worldactive", parts_.levels.isWorldActive());
    xml::writeBool(e, "levelloaded", parts_.levels.isLevelLoaded());
    xml::writeString(e, "currentlevel", parts_.levels.getCurrentLevel());
    xml::writeString(e, "savename", parts_.saves.getSaveName());
    xml::writeBool(e, "mappending", parts_.levels.isMapLoadPending());
    xml::writeString(e, "pendingmap", parts_.levels.pendingMap());
    xml::writeString(e, "pendingspawn", parts_.levels.pendingSpawn());
    xml::writeBool(e, "savepending", parts_.saves.isSavePending());
    xml::writeBool(e, "loadpending", parts_.saves.isLoadPending());
    xml::writeBool(e, "screenshotpending", parts_.presenter.isScreenshotPending());
}

void StateDumps::writeInput(TiXmlElement& root) const {
    TiXmlElement& e = child(root, "input");
    xml::writeString(e, "target", subsystems_.input().getTarget());
    xml::writeString(e, "previous", subsystems_.input().getPreviousTarget());
    const InputTarget& cursor = subsystems_.gameInput();
    xml::writeString(e, "cursor", boxText({cursor.mouseX, cursor.mouseY}));
    xml::writeValue(e, "aim", subsystems_.player().aim);
    xml::writeValue(e, "mouseworld", subsystems_.player().mouseWorldPos);
}

void StateDumps::writeConsole(TiXmlElement& root) const {
    const Console& console = subsystems_.console();
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

void StateDumps::writeRenderer(TiXmlElement& root) const {
    TiXmlElement& e = child(root, "renderer");
    xml::writeInt(e, "width", subsystems_.renderer().getWidth());
    xml::writeInt(e, "height", subsystems_.renderer().getHeight());
    xml::writeBool(e, "fullscreen", subsystems_.renderer().isFullscreen());
    xml::writeValue(e, "camera", subsystems_.renderer().getCamera());
}

void StateDumps::dumpFrame(const std::string& file) {
    if (files::writable(file))
        subsystems_.renderer().dumpNextFrame(std::make_unique<FileWhenReleased>(file));
    else
        reportUnwritable(file);
}

void StateDumps::dumpQuadTree(const std::string& file) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    subsystems_.world().quadtree().dump(text);
    writeCommandFile(file, text.str());
}

void StateDumps::dumpTextures(const std::string& file) {
    std::ostringstream text;
    subsystems_.renderer().dumpTextures(text);
    writeCommandFile(file, text.str());
}

}  // namespace bc
