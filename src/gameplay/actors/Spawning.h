// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "world/Body.h"

#include <memory>

namespace bc {

/// Moves a body to a place, its corners and bounds with it.
void placeAt(Body& body, const Vector& position);

/// Puts a new body into the running level at a place. Null, the body dropped, when there is no
/// world. Its post-load hooks are the caller's business.
Body* spawnInWorld(std::unique_ptr<Body> body, const Vector& position);

/// The same for a body that is at its place already.
Body* addToWorld(std::unique_ptr<Body> body);

/// spawnInWorld for the class the body was given as.
template <class T>
T* spawnAt(std::unique_ptr<T> body, const Vector& position) {
    return static_cast<T*>(spawnInWorld(std::move(body), position));
}

/// The world deletes the body when it moves next.
void removeFromWorld(Body& body);

}  // namespace bc
