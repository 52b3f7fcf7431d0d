// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/Body.h"

#include <memory>
#include <string>
#include <vector>

namespace bc {

/// Makes bodies of a named type: all that the level reader needs of a factory.
class BodyCreator {
  public:
    virtual ~BodyCreator() = default;
    [[nodiscard]] virtual bool knows(const std::string& type) const = 0;
    /// Never null: an unknown type gives a plain body, and a line in the log.
    [[nodiscard]] virtual std::unique_ptr<Body> create(const std::string& type) = 0;
};

/// Makes bodies by copying the class of a prototype. The game installs one that falls back to the
/// factory of the gameplay controller.
class BodyFactory : public BodyCreator {
  public:
    BodyFactory() = default;
    BodyFactory(const BodyFactory&) = delete;
    BodyFactory& operator=(const BodyFactory&) = delete;

    /// A plain body, type "default".
    virtual void registerDefaults();
    /// Prototypes are searched in the order of their registration.
    void registerPrototype(std::unique_ptr<Body> prototype);
    [[nodiscard]] bool knows(const std::string& type) const override;
    [[nodiscard]] std::unique_ptr<Body> create(const std::string& type) override;
    /// Null when neither this factory nor its fallback knows the type.
    [[nodiscard]] std::unique_ptr<Body> tryCreate(const std::string& type);
    /// Asked for the types this factory does not know. Not owned; null for none.
    void setFallback(BodyFactory* factory) { fallback_ = factory; }
    [[nodiscard]] const std::vector<std::unique_ptr<Body>>& prototypes() const {
        return prototypes_;
    }

  private:
    std::vector<std::unique_ptr<Body>> prototypes_;
    BodyFactory* fallback_ = nullptr;
};

}  // namespace bc
