// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/MessageBody.h"
#include "world/Creatable.h"

namespace bc {

/// Shows its message when something sets it off (type "messengerbody").
class MessengerBody final : public Creatable<MessengerBody, MessageBody> {
  public:
    MessengerBody();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo&) override {}
    void onTriggered(GameBody* activator) override;
};

}  // namespace bc
