// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/BodyFactory.h"

#include "core/Log.h"

#include <algorithm>
#include <utility>

namespace bc {

void BodyFactory::registerDefaults() {
    registerPrototype(std::make_unique<Body>());
}

void BodyFactory::registerPrototype(std::unique_ptr<Body> prototype) {
    if (prototype)
        prototypes_.push_back(std::move(prototype));
}

bool BodyFactory::knows(const std::string& type) const {
    const bool own = std::ranges::any_of(
        prototypes_, [&type](const auto& prototype) { return prototype->type == type; });
    return own || (fallback_ != nullptr && fallback_ != this && fallback_->knows(type));
}

std::unique_ptr<Body> BodyFactory::tryCreate(const std::string& type) {
    for (const std::unique_ptr<Body>& prototype : prototypes_)
        if (prototype->type == type) {
            if (auto body = prototype->create()) {
                body->type = type;
                return body;
            }
            break;
        }
    return fallback_ != nullptr && fallback_ != this ? fallback_->tryCreate(type) : nullptr;
}

std::unique_ptr<Body> BodyFactory::create(const std::string& type) {
    if (auto body = tryCreate(type))
        return body;
    logLine("Defaulting to Body for: " + type);
    return std::make_unique<Body>();
}

}  // namespace bc
