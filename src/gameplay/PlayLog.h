// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

class Body;
class GameBody;
struct Vector;

/// Events of play for the log, each while its variable (logshots, logdamage, logtriggers) is 1.
/// Bodies are told by their numeric ids.
namespace playlog {

/// hit is null for a shot that hit nothing.
void shot(std::string_view weapon, const Body* shooter, const Vector& from, const Vector& to,
          const Body* hit);
/// Written after the armour took its share; amount is what reached the armour.
void damage(const GameBody& body, int amount, int damageType, int absorbed);
void trigger(const GameBody& body, const GameBody* activator);

}  // namespace playlog
}  // namespace bc
