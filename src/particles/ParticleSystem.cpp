// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/ParticleSystem.h"

#include "core/Random.h"
#include "particles/ParticleSystemObserver.h"
#include "ports/IRenderer.h"
#include "view/Frustum.h"

#include <algorithm>
#include <cmath>

namespace bc {

namespace {

bool isFinite(const Vector& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

Vector randomIn(const Vector& low, const Vector& high) {
    const float x = looksRandom().range(low.x, high.x);
    const float y = looksRandom().range(low.y, high.y);
    const float z = looksRandom().range(low.z, high.z);
    return {x, y, z};
}

RGBAColour randomAround(const RGBAColour& middle, const RGBAColour& low, const RGBAColour& high) {
    const float r = middle.r + looksRandom().range(low.r, high.r);
    const float g = middle.g + looksRandom().range(low.g, high.g);
    const float b = middle.b + looksRandom().range(low.b, high.b);
    const float a = middle.a + looksRandom().range(low.a, high.a);
    return {r, g, b, a};
}

Dimension randomAround(const Dimension& middle, const Dimension& low, const Dimension& high) {
    const float width = middle.width + looksRandom().range(low.width, high.width);
    const float height = middle.height + looksRandom().range(low.height, high.height);
    return {width, height};
}

}  // namespace

void ParticleSystem::init(std::shared_ptr<const ParticleSystemParams> definition, int id) {
    definition_ = std::move(definition);
    pool_.reset(definition_->maxParticles);
    texture_ = {};
    position_ = {};
    second_ = {};
    observers_.clear();
    systemTime_ = 0;
    sinceUpdate_ = 0;
    sinceEmission_ = 0;
    remainingLife_ = definition_->systemLifeTime;
    id_ = id;
    alive_ = true;
    emitting_ = true;
    refill_ = false;
    culled_ = true;
    visible_ = true;
}

bool ParticleSystem::isSpent() const {
    const bool flows = emitting_ && definition_->flowRate > 0;
    return liveCount() == 0 && systemTime_ > 0 && !flows && !refill_ && observers_.empty();
}

void ParticleSystem::setRemainingLife(float seconds) {
    if (std::isfinite(seconds))
        remainingLife_ = seconds;
}

void ParticleSystem::stop(float seconds) {
    emitting_ = false;
    refill_ = false;
    setRemainingLife(seconds);
}

void ParticleSystem::setPosition(const Vector& position, const Vector& second) {
    if (!isFinite(position) || !isFinite(second))
        return;
    position_ = position;
    second_ = second;
}

void ParticleSystem::emit(const Vector& position, const Vector& second, int count) {
    for (int n = std::min(count, room()); n > 0; --n)
        emitOne(position, second);
}

void ParticleSystem::emitOne(const Vector& position, const Vector& second) {
    if (room() <= 0 || !isFinite(position) || !isFinite(second))
        return;
    const ParticleSystemParams& d = *definition_;
    Particle p;
    p.acc = d.acc + randomIn(d.accVarLow, d.accVarHigh);
    p.colour = randomAround(d.colour, d.colourVarLow, d.colourVarHigh);
    p.colourVel = randomAround(d.colourVel, d.colourVelVarLow, d.colourVelVarHigh);
    const Dimension start = randomAround(d.dimension, d.dimensionVarLow, d.dimensionVarHigh);
    const Dimension end = randomAround(d.endDimension, d.endDimensionVarLow, d.endDimensionVarHigh);
    p.setSize(start.width, start.height);
    p.setEndSize(end.width, end.height);
    p.lifeTime =
        d.particleLifeTime + looksRandom().range(d.particleLifeTimeLow, d.particleLifeTimeHigh);
    p.immortal = p.lifeTime == -1;
    spawnShape(position, p.pos, p.vel);
    p.second = second;
    addParticle(p);
}

void ParticleSystem::emitInitial() {
    emit(position_, second_, definition_->initialParticles);
}

void ParticleSystem::emitBetween(const Vector& from, const Vector& to) {
    emit(from, to, std::max(definition_->initialParticles, 1));
}

void ParticleSystem::spawnShape(const Vector& origin, Vector& position, Vector& velocity) {
    const ParticleSystemParams& d = *definition_;
    position = origin + randomIn(d.posVarLow, d.posVarHigh);
    velocity = d.vel;
    if (d.generationShape == "sphere") {
        const Vector direction = looksRandom().direction();
        velocity = {direction.x * d.vel.x, direction.y * d.vel.y, direction.z * d.vel.z};
    }
    velocity += randomIn(d.velVarLow, d.velVarHigh);
}

void ParticleSystem::addParticle(Particle& particle) {
    pool_.add(particle);
}

void ParticleSystem::addObserver(ParticleSystemObserver* observer) {
    if (observer != nullptr)
        observers_.push_back(observer);
}

void ParticleSystem::removeObserver(ParticleSystemObserver* observer) {
    const auto at = std::find(observers_.begin(), observers_.end(), observer);
    if (at != observers_.end())
        observers_.erase(at);
}

void ParticleSystem::notifyObservers() {
    // An observer may remove and add observers during its call.
    while (!observers_.empty()) {
        ParticleSystemObserver* first = observers_.front();
        observers_.erase(observers_.begin());
        first->onParticleSystemEnded(*this);
    }
}

bool ParticleSystem::update(float dt, bool offScreen) {
    return step(std::isfinite(dt) && dt > 0 ? dt : 0, offScreen);
}

bool ParticleSystem::step(float dt, bool offScreen) {
    systemTime_ += dt;
    sinceUpdate_ += dt;
    sinceEmission_ += dt;
    if (remainingLife_ > 0) {
        remainingLife_ -= dt;
        if (remainingLife_ <= 0)
            alive_ = false;
    }
    if (definition_->systemLifeTime > 0 && definition_->systemLifeTime < systemTime_)
        alive_ = false;
    if (!alive_)
        return false;
    if (offScreen)
        return true;
    emitForStep(dt);
    moveParticles(sinceUpdate_);
    sinceUpdate_ = 0;
    if (liveCount() == 0 && refill_)
        emitAtSelf();
    // A system that was stopped without a time ends with its last particle. Immortal ones do not
    // count, because they would keep it for ever.
    if (!emitting_ && remainingLife_ <= 0 && pool_.onlyImmortal())
        alive_ = false;
    return alive_;
}

void ParticleSystem::emitForStep(float dt) {
    const int flowRate = definition_->flowRate;
    if (!emitting_ || flowRate <= 0 || room() <= 0)
        return;
    const float interval = 1.0F / static_cast<float>(flowRate);
    const float wanted = std::min(dt * static_cast<float>(flowRate), static_cast<float>(room()));
    int n = static_cast<int>(wanted);
    // The sum of the steps may be a little less than the interval because of rounding.
    if (n < 1 && sinceEmission_ >= interval * 0.999F)
        n = 1;
    if (n < 1 && systemTime_ >= interval) {
        const float r = static_cast<float>(looksRandom().integer()) / static_cast<float>(randomMax);
        if (r < wanted)
            n = 1;
    }
    if (n < 1)
        return;
    emit(position_, second_, n);
    sinceEmission_ = 0;
}

void ParticleSystem::moveParticles(float dt) {
    if (usesParticleHook()) {
        for (int i = 0; i < pool_.size(); ++i) {
            Particle p = pool_.get(i);
            updateParticle(dt, p);
            p.update(dt);
            pool_.set(i, p);
        }
    } else {
        pool_.move(dt);
    }
    pool_.removeDead();
}

void ParticleSystem::updateParticle(float, Particle&) {}

bool ParticleSystem::isOutside(const Frustum& view) const {
    if (!view.isRectOutside(position_.x, position_.y, position_.x, position_.y))
        return false;
    ParticlePool::Extent e{};
    if (!pool_.extent(drawsBeams(), e))
        return true;
    return view.isRectOutside(std::min(e.minX, position_.x), std::min(e.minY, position_.y),
                              std::max(e.maxX, position_.x), std::max(e.maxY, position_.y));
}

void ParticleSystem::setBlendMode(IRenderer& renderer) const {
    renderer.setBlending(true);
    if (definition_->isAlphaBlended())
        renderer.setAlphaBlend();
    else
        renderer.setAdditiveBlend();
}

void ParticleSystem::bind(IRenderer& renderer, const std::string& path, TextureHandle& handle) {
    if (path.empty()) {
        renderer.setTexturing(false);
        return;
    }
    renderer.setTexturing(true);
    if (handle.id >= 0) {
        renderer.bindTextureId(handle.id);
        return;
    }
    // The image could not be loaded. It is not tried again in every frame, because each attempt
    // writes to the log.
    if (handle.resolved) {
        renderer.bindTexture("data/images/fallback.png", false);
        return;
    }
    handle.resolved = true;
    renderer.bindTexture(path, true);
    handle.id = renderer.getTextureId(path);
}

QuadBatch::Bytes ParticleSystem::bytes(const ParticlePool::Block& block, int lane) {
    return {RGBAColour::toByte(block.r[lane]), RGBAColour::toByte(block.g[lane]),
            RGBAColour::toByte(block.b[lane]), RGBAColour::toByte(block.a[lane])};
}

void ParticleSystem::addQuads(QuadBatch& batch, int variant) const {
    const int steps = definition_->glowSteps;
    pool_.forEach([&](const ParticlePool::Block& p, int i) {
        QuadBatch::Bytes colour = bytes(p, i);
        // A particle that has shrunk to a negative size is not drawn; it would be a mirror image.
        if (colour.a < 1 || p.width[i] <= 0 || p.height[i] <= 0 ||
            (variant >= 0 && p.variant[i] != variant))
            return;
        const int fainter = steps > 0 ? colour.a / steps : 0;
        for (int pass = 0; pass < steps; ++pass) {
            batch.addCentred(p.x[i], p.y[i], p.z[i], p.width[i] * 0.5F, p.height[i] * 0.5F, colour);
            colour.a = static_cast<std::uint8_t>(colour.a - fainter);
        }
    });
}

void ParticleSystem::draw(IRenderer& renderer, QuadBatch& batch) {
    if (liveCount() == 0)
        return;
    batch.clear();
    addQuads(batch, -1);
    if (batch.quads() == 0)
        return;
    setBlendMode(renderer);
    bind(renderer, definition_->texturePath(), texture_);
    batch.flush(renderer);
}

}  // namespace bc
