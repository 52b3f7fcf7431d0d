// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/weapons/GrappleHolder.h"

#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameplaySingleton.h"

namespace bc {

GrappleHolder* playersGrapple() {
    return dynamic_cast<GrappleHolder*>(GameplaySingleton::instance().craft);
}

}  // namespace bc
