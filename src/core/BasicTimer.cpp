// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/BasicTimer.h"

#include "core/Text.h"
#include "core/Ticks.h"

#include <vector>

namespace bc {

void BasicTimer::restart() {
    rate = 1000;
    running = true;
    paused = false;
    start = current = previous = ticksNow();
}

void BasicTimer::tick() {
    previous = current;
    current = ticksNow();
}

void BasicTimer::pause() {
    pauseTime = current;
    paused = true;
}

void BasicTimer::resume() {
    paused = false;
    const float now = ticksNow();
    start = now - (pauseTime - start);
    previous = now - (pauseTime - previous);
    current = now;
}

std::string BasicTimer::toString(Digits digits) const {
    return formatFloat(start, digits) + ',' + formatFloat(current, digits) + ',' +
           formatFloat(previous, digits) + ',' + formatFloat(rate, digits) + ',' +
           boolText(running);
}

void BasicTimer::fromString(std::string_view text) {
    std::vector<std::string> fields;
    tokenise(",", text, fields);
    if (fields.size() >= 5) {
        start = parseFloat(fields[0]);
        current = parseFloat(fields[1]);
        previous = parseFloat(fields[2]);
        rate = parseFloat(fields[3]);
        running = parseBool(fields[4]);
    }
    paused = false;
    const float now = ticksNow();
    start = now - (current - start);
    previous = now - (current - previous);
    current = now;
}

}  // namespace bc
