// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/PlayLog.h"

#include "command/GameVar.h"
#include "core/Log.h"
#include "core/Text.h"
#include "world/Body.h"

#include <string>

namespace bc::playlog {

namespace {

bool isOn(std::string_view variable) {
    const GameVar* var = vars().findVar(variable);
    return var != nullptr && var->intValue() == 1;
}

std::string idOf(const Body* body) {
    return body != nullptr ? std::to_string(body->autoid) : "none";
}

std::string place(const Vector& v) {
    return formatFloat(v.x) + ',' + formatFloat(v.y);
}

}  // namespace

void shot(std::string_view weapon, const Body* shooter, const Vector& from, const Vector& to,
          const Body* hit) {
    if (isOn("logshots"))
        logLine("shot " + std::string(weapon) + " by " + idOf(shooter) + " from " + place(from) +
                " to " + place(to) + " hit " + idOf(hit));
}

void damage(const Body& body, int amount, int damageType, int absorbed, int health) {
    if (isOn("logdamage"))
        logLine("damage " + idOf(&body) + " amount " + std::to_string(amount) + " type " +
                std::to_string(damageType) + " absorbed " + std::to_string(absorbed) + " health " +
                std::to_string(health));
}

void trigger(const Body& body, const Body* activator) {
    if (isOn("logtriggers"))
        logLine("triggered " + idOf(&body) + " by " + idOf(activator));
}

}  // namespace bc::playlog
