// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/rules/GameBodyFactory.h"

#include "gameplay/rules/BodyTypes.h"

namespace bc {

void GameBodyFactory::registerDefaults() {
    for (const BodyTypeRow& row : bodyTypes()) {
        std::unique_ptr<Body> prototype = row.make();
        prototype->type = row.name;
        registerPrototype(std::move(prototype));
    }
}

}  // namespace bc
