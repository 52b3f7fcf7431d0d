// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "particles/Particle.h"

#include <cstddef>
#include <vector>

namespace bc {

/// The particles of one system. They are stored in blocks of eight particles; in a block, the eight
/// values of each member stand side by side, so that the compiler can compute them together.
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
        /// The life of an immortal particle is the largest float.
        float age[lanes], life[lanes];
        int variant[lanes];
    };

    /// Removes all particles and sets the limit for their number. Allocates only when the limit is
    /// above the capacity.
    void reset(int limit);

    [[nodiscard]] int size() const { return size_; }
    [[nodiscard]] int limit() const { return limit_; }
    /// The number of particles for which there is memory.
    [[nodiscard]] int capacity() const { return static_cast<int>(blocks_.size()) * lanes; }
    /// Calls visit(block, lane) for every particle in the order of their indices.
    template <class Visit>
    void forEach(Visit&& visit) const {
        for (int i = 0; i < size_; ++i)
            visit(blocks_[static_cast<std::size_t>(i / lanes)], i % lanes);
    }

    /// Does nothing when size() has reached limit().
    void add(const Particle& particle);
    /// get and set: the index must be below size().
    [[nodiscard]] Particle get(int index) const;
    void set(int index, const Particle& particle);
    /// Moves the last particle to this index. Does nothing for an index out of range.
    void remove(int index);

    /// Does the same as Particle::update for all particles, but removes none.
    void move(float dt);
    /// Removes all particles that are dead.
    void removeDead();
    /// True when there are none or only immortal particles.
    [[nodiscard]] bool onlyImmortal() const;

    /// A rectangle that contains all particles, with twoEnded also their second places. False
    /// without particles; out stays as it was then.
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
