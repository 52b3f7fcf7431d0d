// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

class Body;
struct Vector;

/// Events of play for the log, each while its variable (logshots, logdamage, logtriggers) is 1.
/// Bodies are told by their numeric ids.
namespace playlog {

/// hit is null for a shot that hit nothing.
void shot(std::string_view weapon, const Body* shooter, const Vector& from, const Vector& to,
          const Body* hit);
/// amount reached the armour, which absorbed its share; health is what is left.
void damage(const Body& body, int amount, int damageType, int absorbed, int health);
void trigger(const Body& body, const Body* activator);

}  // namespace playlog
}  // namespace bc
