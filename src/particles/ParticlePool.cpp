// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "particles/ParticlePool.h"

#include <algorithm>
#include <limits>

namespace bc {

namespace {

using Block = ParticlePool::Block;

constexpr int lanes = ParticlePool::lanes;
constexpr float immortalLife = std::numeric_limits<float>::max();

// One loop for each member: the compiler vectorises a loop this short, and for a fixed count it
// uses whole vector registers.
void drift(float* value, const float* change, float dt, int count) {
    for (int i = 0; i < count; ++i)
        value[i] += change[i] * dt;
}

void fade(float* channel, const float* change, float dt, int count) {
    for (int i = 0; i < count; ++i)
        channel[i] = std::min(std::max(channel[i] + change[i] * dt, 0.0F), 255.0F);
}

inline void moveLanes(Block& p, float dt, int count) {
    drift(p.x, p.vx, dt, count);
    drift(p.y, p.vy, dt, count);
    drift(p.z, p.vz, dt, count);
    drift(p.vx, p.ax, dt, count);
    drift(p.vy, p.ay, dt, count);
    drift(p.vz, p.az, dt, count);
    fade(p.r, p.dr, dt, count);
    fade(p.g, p.dg, dt, count);
    fade(p.b, p.db, dt, count);
    fade(p.a, p.da, dt, count);
    drift(p.width, p.widthChange, dt, count);
    drift(p.height, p.heightChange, dt, count);
    for (int i = 0; i < count; ++i)
        p.age[i] += dt;
}

bool anyDead(const Block& p) {
    int dead = 0;
    for (int i = 0; i < lanes; ++i)
        dead |= p.age[i] > p.life[i] ? 1 : 0;
    return dead != 0;
}

}  // namespace

void ParticlePool::reset(int limit) {
    limit_ = std::max(limit, 0);
    size_ = 0;
    const auto needed = static_cast<std::size_t>((limit_ + lanes - 1) / lanes);
    if (blocks_.size() < needed)
        blocks_.resize(needed);
}

void ParticlePool::add(const Particle& particle) {
    if (size_ >= limit_)
        return;
    ++size_;
    set(size_ - 1, particle);
}

Particle ParticlePool::get(int index) const {
    const Block& p = blocks_[static_cast<std::size_t>(index / lanes)];
    const int i = index % lanes;
    Particle out;
    out.pos = {p.x[i], p.y[i], p.z[i]};
    out.second = {p.secondX[i], p.secondY[i], p.secondZ[i]};
    out.vel = {p.vx[i], p.vy[i], p.vz[i]};
    out.acc = {p.ax[i], p.ay[i], p.az[i]};
    out.colour = {p.r[i], p.g[i], p.b[i], p.a[i]};
    out.colourVel = {p.dr[i], p.dg[i], p.db[i], p.da[i]};
    out.setSize(p.width[i], p.height[i]);
    out.setSizeChange(p.widthChange[i], p.heightChange[i]);
    out.age = p.age[i];
    out.immortal = p.life[i] == immortalLife;
    out.lifeTime = p.life[i];
    out.variant = p.variant[i];
    return out;
}

void ParticlePool::set(int index, const Particle& particle) {
    Block& p = blocks_[static_cast<std::size_t>(index / lanes)];
    const int i = index % lanes;
    p.x[i] = particle.pos.x;
    p.y[i] = particle.pos.y;
    p.z[i] = particle.pos.z;
    p.secondX[i] = particle.second.x;
    p.secondY[i] = particle.second.y;
    p.secondZ[i] = particle.second.z;
    p.vx[i] = particle.vel.x;
    p.vy[i] = particle.vel.y;
    p.vz[i] = particle.vel.z;
    p.ax[i] = particle.acc.x;
    p.ay[i] = particle.acc.y;
    p.az[i] = particle.acc.z;
    p.width[i] = particle.width;
    p.height[i] = particle.height;
    p.widthChange[i] = particle.widthChange;
    p.heightChange[i] = particle.heightChange;
    p.r[i] = particle.colour.r;
    p.g[i] = particle.colour.g;
    p.b[i] = particle.colour.b;
    p.a[i] = particle.colour.a;
    p.dr[i] = particle.colourVel.r;
    p.dg[i] = particle.colourVel.g;
    p.db[i] = particle.colourVel.b;
    p.da[i] = particle.colourVel.a;
    p.age[i] = particle.age;
    p.life[i] = particle.immortal ? immortalLife : particle.lifeTime;
    p.variant[i] = particle.variant;
}

void ParticlePool::remove(int index) {
    if (index < 0 || index >= size_)
        return;
    const int last = --size_;
    if (index != last)
        set(index, get(last));
}

void ParticlePool::move(float dt) {
    const auto whole = static_cast<std::size_t>(size_ / lanes);
    for (std::size_t b = 0; b < whole; ++b)
        moveLanes(blocks_[b], dt, lanes);
    if (const int rest = size_ % lanes; rest != 0)
        moveLanes(blocks_[whole], dt, rest);
}

void ParticlePool::removeDead() {
    int i = 0;
    while (i < size_) {
        // Most blocks have no dead particle. The unused lanes of the last block are looked at, too;
        // what they contain can only make the block be searched one by one.
        if (i % lanes == 0 && !anyDead(blocks_[static_cast<std::size_t>(i / lanes)])) {
            i += lanes;
            continue;
        }
        const Block& p = blocks_[static_cast<std::size_t>(i / lanes)];
        if (p.age[i % lanes] > p.life[i % lanes])
            remove(i);
        else
            ++i;
    }
}

bool ParticlePool::onlyImmortal() const {
    bool only = true;
    forEach([&](const Block& p, int i) { only = only && p.life[i] == immortalLife; });
    return only;
}

bool ParticlePool::extent(bool twoEnded, Extent& out) const {
    if (size_ == 0)
        return false;
    constexpr float far = std::numeric_limits<float>::max();
    Extent e{far, far, -far, -far};
    float margin = 0;
    forEach([&](const Block& p, int i) {
        e.minX = std::min(e.minX, p.x[i]);
        e.maxX = std::max(e.maxX, p.x[i]);
        e.minY = std::min(e.minY, p.y[i]);
        e.maxY = std::max(e.maxY, p.y[i]);
        margin = std::max({margin, p.width[i], p.height[i]});
        if (twoEnded) {
            e.minX = std::min(e.minX, p.secondX[i]);
            e.maxX = std::max(e.maxX, p.secondX[i]);
            e.minY = std::min(e.minY, p.secondY[i]);
            e.maxY = std::max(e.maxY, p.secondY[i]);
        }
    });
    // A quad reaches half its size to each side, a beam its whole width. The larger one is right
    // for both.
    out = {e.minX - margin, e.minY - margin, e.maxX + margin, e.maxY + margin};
    return true;
}

}  // namespace bc
