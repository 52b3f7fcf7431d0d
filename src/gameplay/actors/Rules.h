// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace bc {

class Body;
class Race;
struct Vector;

/// What bodies ask of the rules of play. One implementation, DefaultGameplay; bodies find it
/// through GameplaySingleton.
class Rules {
  public:
    virtual ~Rules() = default;
    /// A new body of a level type, owned by the caller; null for an unknown type.
    virtual std::unique_ptr<Body> createBody(const std::string& typeName) = 0;
    /// Lowers count to what the gib budget still grants and takes it from there.
    virtual void reserveGibs(int& count) = 0;
    /// Gives the unit of one gib back to the budget.
    virtual void returnGib() = 0;
    /// Throws one gib, whose unit has been reserved, from the position.
    virtual void launchGib(const Vector& position) = 0;
    /// Shows a text that rises from the position, fades and is gone after two seconds. size is that
    /// of the font, scale a factor on it.
    virtual void floatText(const Vector& position, std::string_view text, int size, bool shadow,
                           float scale, const std::string& font) = 0;
    virtual Race& race() = 0;
};

}  // namespace bc
