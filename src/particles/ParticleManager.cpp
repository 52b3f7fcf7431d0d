// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/ParticleManager.h"

#include "core/Log.h"
#include "particles/BeamParticleSystems.h"
#include "particles/LightningParticleSystem.h"
#include "particles/PlasmaParticleSystem.h"
#include "particles/TextParticleSystem.h"
#include "ports/IRenderer.h"
#include "resources/ResourceManager.h"
#include "view/Frustum.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

/// Seconds after which the particles of a system out of view are moved again.
constexpr float offScreenStep = 0.1F;

constexpr int smallestPool = 16;

/// The index of the smallest pool for this many particles; the pool with an index holds
/// smallestPool << index.
std::size_t poolIndex(int maxParticles) {
    std::size_t index = 0;
    while ((smallestPool << index) < maxParticles)
        ++index;
    return index;
}

struct KindName {
    std::string_view name;
    ParticleKind kind;
};

constexpr KindName kindNames[] = {{"rail", ParticleKind::rail},
                                  {"tracer", ParticleKind::tracer},
                                  {"lightning", ParticleKind::lightning},
                                  {"plasma", ParticleKind::plasma},
                                  {"text", ParticleKind::text}};

ParticleKind kindOf(std::string_view name) {
    for (const KindName& entry : kindNames) {
        if (entry.name == name)
            return entry.kind;
    }
    return ParticleKind::plain;
}

std::unique_ptr<ParticleSystem> makeSystem(ParticleKind kind) {
    switch (kind) {
        case ParticleKind::rail:
            return std::make_unique<RailParticleSystem>();
        case ParticleKind::tracer:
            return std::make_unique<TracerParticleSystem>();
        case ParticleKind::lightning:
            return std::make_unique<LightningParticleSystem>();
        case ParticleKind::plasma:
            return std::make_unique<PlasmaParticleSystem>();
        case ParticleKind::text:
            return std::make_unique<TextParticleSystem>();
        case ParticleKind::plain:
            break;
    }
    return std::make_unique<ParticleSystem>();
}

}  // namespace

ParticleManager::ParticleManager() {
    systems_.reserve(systemLimit);
}

ParticleManager::~ParticleManager() {
    clear();
}

void ParticleManager::clear() {
    clearSystems();
    definitions_.clear();
    for (auto& sizes : retired_) {
        for (Shelf& shelf : sizes)
            shelf.clear();
    }
    particleRoom_ = 0;
    nextId_ = 1;
    fullLogged_ = false;
}

void ParticleManager::makeDefaultDefinition() {
    ParticleSystemParams d;
    d.id = "default";
    d.setTexture("particles/defaultparticle.tga");
    d.flowRate = 50;
    d.vel = {5, 5, 0};
    d.colour = {255, 255, 255, 255};
    d.dimension = {8, 8};
    d.endDimension = {8, 8};
    d.systemLifeTime = 2;
    d.particleLifeTime = 1;
    d.blendMode = 1;
    d.generationShape = "point";
    addDefinition(std::move(d));
}

void ParticleManager::addDefinition(ParticleSystemParams definition) {
    std::string id = definition.id;
    definitions_.insert_or_assign(
        std::move(id), std::make_shared<const ParticleSystemParams>(std::move(definition)));
}

void ParticleManager::loadDefinitions(const std::string& fileName) {
    TiXmlDocument document;
    if (!resourceManager().loadXML(document, fileName)) {
        logLine("Could not load particle defs file: " + fileName);
        return;
    }
    readDefinitions(*document.RootElement());
}

void ParticleManager::readDefinitions(const TiXmlElement& root) {
    for (const TiXmlElement* e = root.FirstChildElement(); e != nullptr;
         e = e->NextSiblingElement()) {
        ParticleSystemParams definition;
        definition.read(*e);
        if (definitions_.size() >= definitionLimit && !hasDefinition(definition.id)) {
            logLine("Too many particle defs, left out from " + definition.id + " on");
            return;
        }
        addDefinition(std::move(definition));
    }
}

bool ParticleManager::hasDefinition(std::string_view id) const {
    return definitions_.find(id) != definitions_.end();
}

ParticleSystem* ParticleManager::createFromDefinition(std::string_view name) {
    auto found = definitions_.find(name);
    if (found == definitions_.end()) {
        logLine("Couldn't find particle def " + std::string(name) + ", falling back to default");
        found = definitions_.find("default");
        if (found == definitions_.end())
            return nullptr;
    }
    std::unique_ptr<ParticleSystem> system = createSystem(name, found->second->maxParticles);
    if (!system) {
        if (!fullLogged_)
            logLine("Too many particle systems, no more are started");
        fullLogged_ = true;
        return nullptr;
    }
    fullLogged_ = false;
    system->init(found->second, nextId_++);
    systems_.push_back(std::move(system));
    return systems_.back().get();
}

std::unique_ptr<ParticleSystem> ParticleManager::createSystem(std::string_view name,
                                                              int maxParticles) {
    if (systems_.size() >= systemLimit && !endSpent())
        return nullptr;
    const ParticleKind kind = kindOf(name);
    const std::size_t size = poolIndex(maxParticles);
    Shelf& shelf = retired_[static_cast<std::size_t>(kind)][size];
    if (!shelf.empty()) {
        std::unique_ptr<ParticleSystem> system = std::move(shelf.back());
        shelf.pop_back();
        return system;
    }
    const int room = smallestPool << size;
    while (!makeRoom(room)) {
        if (!endSpent())
            return nullptr;
    }
    particleRoom_ += room;
    std::unique_ptr<ParticleSystem> system = makeSystem(kind);
    system->reserve(room);
    return system;
}

bool ParticleManager::makeRoom(int particles) {
    for (auto& sizes : retired_) {
        for (std::size_t size = 0; size < sizes.size(); ++size) {
            Shelf& shelf = sizes[size];
            while (particleRoom_ + particles > particleRoomLimit && !shelf.empty()) {
                shelf.pop_back();
                particleRoom_ -= smallestPool << size;
            }
        }
    }
    return particleRoom_ + particles <= particleRoomLimit;
}

bool ParticleManager::endSpent() {
    const auto spent = std::find_if(systems_.begin(), systems_.end(),
                                    [](const auto& system) { return system->isSpent(); });
    if (spent == systems_.end())
        return false;
    std::unique_ptr<ParticleSystem> ended = std::move(*spent);
    systems_.erase(spent);
    retire(std::move(ended));
    return true;
}

void ParticleManager::retire(std::unique_ptr<ParticleSystem> system) {
    system->notifyObservers();
    const std::size_t size = poolIndex(system->capacity());
    retired_[static_cast<std::size_t>(system->kind())][size].push_back(std::move(system));
}

int ParticleManager::particleCount() const {
    int count = 0;
    for (const auto& system : systems_)
        count += system->liveCount();
    return count;
}

void ParticleManager::update(float dt, const Frustum& view) {
    // By index, because an observer may start new systems and clear all systems.
    for (std::size_t i = 0; i < systems_.size();) {
        ParticleSystem& system = *systems_[i];
        const bool offScreen = system.isCulled() && system.isVisible() &&
                               system.sinceLastStep() <= offScreenStep && system.isOutside(view);
        if (system.update(dt, offScreen)) {
            ++i;
            continue;
        }
        std::unique_ptr<ParticleSystem> ended = std::move(systems_[i]);
        systems_.erase(systems_.begin() + static_cast<std::ptrdiff_t>(i));
        retire(std::move(ended));
    }
}

void ParticleManager::draw(IRenderer& renderer) {
    const Frustum& view = renderer.getFrustum();
    renderer.setBlending(true);
    renderer.setTexturing(true);
    renderer.setDepthWrite(false);
    for (const auto& system : systems_) {
        if (system->isVisible() && !(system->isCulled() && system->isOutside(view)))
            system->draw(renderer, batch_);
    }
    renderer.setDepthWrite(true);
    renderer.setTexturing(true);
    renderer.setAlphaBlend();
}

void ParticleManager::drawSystem(IRenderer& renderer, ParticleSystem& system) {
    system.draw(renderer, batch_);
}

void ParticleManager::reloadTextures(IRenderer& renderer) {
    for (const auto& images :
         {LightningParticleSystem::extraImages(), PlasmaParticleSystem::extraImages()}) {
        for (const std::string& image : images)
            renderer.bindTexture(image, true);
    }
    for (const auto& [id, definition] : definitions_) {
        if (!definition->texturePath().empty())
            renderer.bindTexture(definition->texturePath(), true);
    }
    for (const auto& system : systems_)
        system->forgetTextures();
}

void ParticleManager::clearSystems() {
    // Systems that an observer starts meanwhile are not cleared.
    std::vector<std::unique_ptr<ParticleSystem>> ended;
    ended.swap(systems_);
    systems_.reserve(systemLimit);
    for (auto& system : ended)
        retire(std::move(system));
}

ParticleSystem* ParticleManager::find(int id) {
    // The list is sorted by id, because each new system gets a higher one than all before it.
    const auto at =
        std::lower_bound(systems_.begin(), systems_.end(), id,
                         [](const auto& system, int wanted) { return system->id() < wanted; });
    return at != systems_.end() && (*at)->id() == id ? at->get() : nullptr;
}

ParticleManager& particleManager() {
    static ParticleManager manager;
    return manager;
}

ParticleSystem* startParticles(std::string_view name, const Vector& position, float raise) {
    ParticleSystem* system = particleManager().createFromDefinition(name);
    if (system == nullptr)
        return nullptr;
    system->setPosition(position + Vector(0, 0, raise));
    system->emitInitial();
    return system;
}

ParticleSystem* startBeam(std::string_view name, const Vector& from, const Vector& to,
                          float raise) {
    ParticleSystem* system = particleManager().createFromDefinition(name);
    if (system == nullptr)
        return nullptr;
    const Vector nearer(0, 0, raise);
    system->setPosition(from + nearer, to + nearer);
    system->emitAtSelf();
    return system;
}

}  // namespace bc
