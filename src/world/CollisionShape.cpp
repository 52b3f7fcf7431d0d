// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/CollisionShape.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <unordered_map>

namespace bc {

namespace {

/// Shapes in use, by a hash of their corners.
class LivingShapes {
  public:
    std::shared_ptr<const CollisionShape> find(std::uint64_t key, std::span<const Vector> corners) {
        const auto [begin, end] = shapes_.equal_range(key);
        for (auto it = begin; it != end; ++it)
            if (auto shape = it->second.lock(); shape && shape->isOf(corners))
                return shape;
        return nullptr;
    }

    void add(std::uint64_t key, const std::shared_ptr<const CollisionShape>& shape) {
        if (shapes_.size() >= sweepAt_) {
            std::erase_if(shapes_, [](const auto& entry) { return entry.second.expired(); });
            sweepAt_ = std::max(smallest, 2 * shapes_.size());
        }
        shapes_.emplace(key, shape);
    }

  private:
    static constexpr std::size_t smallest = 1024;
    std::unordered_multimap<std::uint64_t, std::weak_ptr<const CollisionShape>> shapes_;
    std::size_t sweepAt_ = smallest;
};

std::uint64_t hashOf(std::span<const Vector> corners) {
    std::uint64_t hash = 1469598103934665603ULL;
    for (const Vector& corner : corners)
        for (const float coordinate : {corner.x, corner.y}) {
            std::uint32_t bits = 0;
            std::memcpy(&bits, &coordinate, sizeof bits);
            hash = (hash ^ bits) * 1099511628211ULL;
        }
    return hash;
}

}  // namespace

std::shared_ptr<const CollisionShape> CollisionShape::of(std::span<const Vector> corners) {
    static LivingShapes living;
    const std::uint64_t key = hashOf(corners);
    if (auto shape = living.find(key, corners))
        return shape;
    // Not make_shared: the list's weak pointers shall not keep the memory of shapes gone by.
    std::shared_ptr<const CollisionShape> shape(new CollisionShape(corners));
    living.add(key, shape);
    return shape;
}

CollisionShape::CollisionShape(std::span<const Vector> corners)
    : cornerCount_(static_cast<int>(corners.size())) {
    corners_.resize(static_cast<std::size_t>(groups()) * 8);
    for (std::size_t i = 0; i < static_cast<std::size_t>(groups()) * 4; ++i) {
        const Vector& corner = corners[std::min(i, corners.size() - 1)];
        corners_[i / 4 * 8 + i % 4] = corner.x;
        corners_[i / 4 * 8 + 4 + i % 4] = corner.y;
    }
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vector& from = corners[i];
        const Vector& to = corners[i + 1 < corners.size() ? i + 1 : 0];
        Axis axis{-(to.y - from.y), to.x - from.x, 0, 0, 0};
        axis.length = std::sqrt(axis.x * axis.x + axis.y * axis.y);
        const auto sameLine = [&](const Axis& other) {
            return (other.x == axis.x && other.y == axis.y) ||
                   (other.x == -axis.x && other.y == -axis.y);
        };
        if (!(axis.length > 0) || std::any_of(axes_.begin(), axes_.end(), sameLine))
            continue;
        axis.min = axis.max = corners[0].x * axis.x + corners[0].y * axis.y;
        for (const Vector& corner : corners) {
            const float along = corner.x * axis.x + corner.y * axis.y;
            axis.min = std::min(axis.min, along);
            axis.max = std::max(axis.max, along);
        }
        axes_.push_back(axis);
    }
}

bool CollisionShape::isOf(std::span<const Vector> corners) const {
    if (static_cast<int>(corners.size()) != cornerCount_)
        return false;
    for (std::size_t i = 0; i < corners.size(); ++i)
        if (corners[i].x != corners_[i / 4 * 8 + i % 4] ||
            corners[i].y != corners_[i / 4 * 8 + 4 + i % 4])
            return false;
    return true;
}

}  // namespace bc
