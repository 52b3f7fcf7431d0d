// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/SkyManager.h"

#include "core/Log.h"
#include "hud/OverlayEffect.h"
#include "resources/XmlAttributes.h"
#include "sky/BaseSky.h"

#include <tinyxml.h>

#include <algorithm>
#include <utility>

namespace bc {

namespace {

constexpr std::string_view folder = "data/sky/";

}  // namespace

SkyManager::SkyManager() = default;

SkyManager::~SkyManager() = default;

void SkyManager::setServices(SkyParticles* particles, SightLine* sight) {
    particles_ = particles;
    sight_ = sight;
}

void SkyManager::init() {
    reserved_ = {pathOf("hcsky1"), pathOf("hcsky2")};
}

std::string SkyManager::pathOf(std::string_view name) {
    if (name.starts_with(folder))
        return std::string(name);
    return std::string(folder).append(name).append(".xml");
}

bool SkyManager::isReserved(std::string_view path) const {
    return std::find(reserved_.begin(), reserved_.end(), path) != reserved_.end();
}

BaseSky* SkyManager::find(std::string_view path) const {
    for (const auto& sky : skies_) {
        if (sky->name() == path)
            return sky.get();
    }
    return nullptr;
}

void SkyManager::makeCurrent(BaseSky* sky) {
    if (current_)
        current_->stopParticles(particles_, particleEndTime);
    current_ = sky;
    if (current_)
        current_->startParticles(particles_);
}

void SkyManager::switchSky(const std::string& path) {
    if (current_ && current_->name() == path)
        return;
    BaseSky* sky = find(path);
    if (!sky) {
        logLine("Tried to switch to a sky which hasn't been loaded: " + path);
        return;
    }
    makeCurrent(sky);
    fade_ = SimpleFadeOverlay::fromBlack();
}

bool SkyManager::loadSky(const std::string& path) {
    if (isReserved(path) || find(path))
        return true;
    auto sky = std::make_unique<BaseSky>();
    if (!sky->load(path))
        return false;
    skies_.push_back(std::move(sky));
    if (!current_)
        makeCurrent(skies_.back().get());
    return true;
}

void SkyManager::switchSkyByName(std::string_view name) {
    switchSky(pathOf(name));
}

bool SkyManager::loadSkyByName(std::string_view name) {
    return loadSky(pathOf(name));
}

bool SkyManager::replaceAllByName(std::string_view name) {
    const std::string path = pathOf(name);
    if (isReserved(path)) {
        unloadAll();
        return true;
    }
    auto sky = std::make_unique<BaseSky>();
    if (!sky->load(path))
        return false;
    unloadAll();
    skies_.push_back(std::move(sky));
    makeCurrent(skies_.back().get());
    return true;
}

void SkyManager::unloadAll() {
    makeCurrent(nullptr);
    skies_.clear();
    fade_.reset();
}

void SkyManager::restartParticles() {
    if (current_)
        current_->startParticles(particles_);
}

void SkyManager::draw(IRenderer& renderer, const Vector& camera, float dt) {
    if (current_)
        current_->draw(renderer, camera, dt, particles_, sight_);
    if (!fade_)
        return;
    fade_->draw(renderer, dt);
    if (!fade_->active)
        fade_.reset();
}

void SkyManager::dump(TiXmlElement& element) const {
    xml::writeString(element, "current", current_ ? current_->name() : std::string());
    xml::writeBool(element, "fading", fade_ != nullptr);
    for (const auto& sky : skies_) {
        TiXmlElement child("sky");
        sky->dump(child);
        element.InsertEndChild(child);
    }
}

}  // namespace bc
