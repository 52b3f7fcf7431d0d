// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

#include <cstddef>
#include <memory>
#include <typeinfo>
#include <vector>

namespace bc {

/// A game body whose kind comes and goes all the time (projectiles, gibs): when it leaves the world
/// it is kept in the pool and used again, so that fire fights cost no allocation once warm.
class PooledBody : public GameBody {
  public:
    void retire(std::unique_ptr<Body> self) override;

    /// Puts everything back to what it is after construction, but for the corners. Classes that
    /// keep more extend it; their constructors may call it.
    virtual void renew();
};

/// The bodies that wait to be used again. Owned by GameplaySingleton.
class BodyPool {
  public:
    /// More are deleted instead of kept.
    static constexpr std::size_t capacity = 256;

    /// A body as new, of exactly this class.
    template <class T>
    std::unique_ptr<T> take() {
        std::unique_ptr<PooledBody> kept = takeKept(typeid(T));
        if (!kept)
            return std::make_unique<T>();
        kept->renew();
        return std::unique_ptr<T>(static_cast<T*>(kept.release()));
    }
    void keep(std::unique_ptr<PooledBody> body);
    [[nodiscard]] std::size_t size() const { return bodies_.size(); }

  private:
    std::unique_ptr<PooledBody> takeKept(const std::type_info& type);

    std::vector<std::unique_ptr<PooledBody>> bodies_;
};

/// The pool of play.
[[nodiscard]] BodyPool& bodyPool();

}  // namespace bc
