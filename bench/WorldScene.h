// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <memory>
#include <string>
#include <vector>

namespace bc::bench {

/// A scene of bench/scenes with y upwards. See the README there.
struct WorldScene {
    struct Box {
        Vector centre;
        float width;
        float height;
        Vector vel;
    };
    struct Segment {
        Vector from;
        Vector to;
    };

    std::vector<std::vector<Vector>> statics;
    std::vector<Box> boxes;
    std::vector<Segment> rays;
    /// Units/s^2, upwards.
    float gravity = 0;
    float friction = 0;
    float restitution = 0;
};

inline constexpr float stepSeconds = 0.025F;

/// Ends the program with a message when the file is missing.
[[nodiscard]] WorldScene readScene(const std::string& name);

/// An engine with a scene in it.
class Contender {
  public:
    virtual ~Contender() = default;
    virtual void step() = 0;
    /// Collects every hit of the ray; how many there are.
    virtual int trace(const WorldScene::Segment& ray) = 0;
};

[[nodiscard]] std::unique_ptr<Contender> makeGameWorld(const WorldScene& scene);
[[nodiscard]] std::unique_ptr<Contender> makeBox2D(const WorldScene& scene);
[[nodiscard]] std::unique_ptr<Contender> makeChipmunk(const WorldScene& scene);

}  // namespace bc::bench
