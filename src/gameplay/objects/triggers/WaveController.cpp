// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/objects/triggers/WaveController.h"

#include "core/Log.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"
#include "world/BodyFields.h"
#include "world/World.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

/// A timetable longer than this is a mistake.
constexpr std::size_t maxEvents = 10000;
/// Of the time up to which events have been carried out.
constexpr float unknown = -1;

/// Every element called event below this one, wherever it stands.
template <class Visit>
void forEachEvent(const TiXmlElement& e, const Visit& visit) {
    for (const TiXmlElement* c = e.FirstChildElement(); c != nullptr; c = c->NextSiblingElement()) {
        if (c->ValueStr() == "event")
            visit(*c);
        forEachEvent(*c, visit);
    }
}

}  // namespace

WaveController::WaveController() {
    thinks = true;
    visible = false;
    solid = false;
    showDamage = false;
    flags.set(bodyflag::untouchable);
}

void WaveController::fields(BodyFields& f) {
    GameBody::fields(f);
    f.level().box(16, 16).with("entity", "true").with("visible", "false");
    f.param("wavefile", waveFile, "File with the events.").kind(ParamKind::wave).required();
    f.kept("active", active);
    f.kept("starttime", startTime);
    f.saved("fireduntil", firedUntil_, unknown);
    f.shown("fired", static_cast<int>(next_));
    f.shown("events", static_cast<int>(events_.size()));
}

void WaveController::onLoaded() {
    GameBody::onLoaded();
    readWaves();
}

void WaveController::readWaves() {
    events_.clear();
    World* world = GameplaySingleton::instance().world();
    TiXmlDocument document;
    if (!resourceManager().loadXML(document, waveFile)) {
        logLine("Could not load wave file: " + waveFile);
        return;
    }
    if (world == nullptr)
        return;
    forEachEvent(*document.RootElement(), [&](const TiXmlElement& e) {
        const std::string target = xml::readString(e, "target");
        const float time = xml::readFloat(e, "time");
        for (Body* body : world->allBodies())
            if (auto* game = dynamic_cast<GameBody*>(body);
                game != nullptr && body->id == target && events_.size() < maxEvents)
                events_.push_back({time, game});
    });
    std::stable_sort(events_.begin(), events_.end(),
                     [](const Event& a, const Event& b) { return a.time < b.time; });
    // What a save says has been carried out already; one that does not say tells how long it ran.
    if (firedUntil_ == unknown)
        firedUntil_ = active ? std::max(levelTime() - startTime, 0.0F) : 0;
    next_ = 0;
    while (next_ < events_.size() && events_[next_].time < firedUntil_)
        ++next_;
}

void WaveController::onTriggered(GameBody* /*activator*/) {
    active = true;
    startTime = levelTime();
}

void WaveController::onThink(float /*dt*/) {
    if (!active)
        return;
    const float elapsed = levelTime() - startTime;
    firedUntil_ = std::max(firedUntil_, elapsed);
    while (next_ < events_.size() && events_[next_].time < elapsed)
        if (GameBody* body = events_[next_++].body)
            body->trigger(this);
}

void WaveController::onBodyRemoved(const Body& gone) {
    GameBody::onBodyRemoved(gone);
    for (Event& event : events_)
        if (event.body == &gone)
            event.body = nullptr;
}

}  // namespace bc
