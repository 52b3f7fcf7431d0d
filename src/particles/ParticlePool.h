// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/Particle.h"

#include <cstddef>
#include <vector>

namespace bc {

/// The particles of one system, the living ones first. They are kept in blocks of eight, each
/// quantity of the eight side by side, so that the compiler moves several at once and a block
/// touches each cache line once.
class ParticlePool {
  public:
    static constexpr int lanes = 8;

    struct alignas(32) Block {
        float x[lanes], y[lanes], z[lanes];
        float secondX[lanes], secondY[lanes], secondZ[lanes];
        float vx[lanes], vy[lanes], vz[lanes];
        float ax[lanes], ay[lanes], az[lanes];
        float width[lanes], height[lanes], widthChange[lanes], heightChange[lanes];
        float r[lanes], g[lanes], b[lanes], a[lanes];
        float dr[lanes], dg[lanes], db[lanes], da[lanes];
        /// A life of immortalLife never ends.
        float age[lanes], life[lanes];
        int variant[lanes];
    };

    /// Empties it and lets it hold up to limit particles; allocates only when it never held as
    /// many.
    void reset(int limit);

    [[nodiscard]] int size() const { return size_; }
    [[nodiscard]] int limit() const { return limit_; }
    /// What it has room for without allocating.
    [[nodiscard]] int capacity() const { return static_cast<int>(blocks_.size()) * lanes; }
    /// Calls visit(block, lane) for every particle in order.
    template <class Visit>
    void forEach(Visit&& visit) const {
        for (int i = 0; i < size_; ++i)
            visit(blocks_[static_cast<std::size_t>(i / lanes)], i % lanes);
    }

    /// Ignored when size() is limit().
    void add(const Particle& particle);
    [[nodiscard]] Particle get(int index) const;
    void set(int index, const Particle& particle);
    /// The last one takes its place.
    void remove(int index);

    /// Every particle as by Particle::update, dead ones left in their places.
    void move(float dt);
    /// Takes out all that have outlived their time.
    void removeDead();
    /// Whether only immortal particles (or none) are left.
    [[nodiscard]] bool onlyImmortal() const;

    /// The smallest rectangle around all particles as last moved, with their sizes; with their
    /// second places too when twoEnded. False, and nothing written, when there is none.
    struct Extent {
        float minX, minY, maxX, maxY;
    };
    bool extent(bool twoEnded, Extent& out) const;

  private:
    std::vector<Block> blocks_;
    int size_ = 0;
    int limit_ = 0;
};

}  // namespace bc
