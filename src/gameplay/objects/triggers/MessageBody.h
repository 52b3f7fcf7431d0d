// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// Shows a message in the middle of the screen when the player touches it, and sets off its
/// targets (type "messagebody").
class MessageBody : public Creatable<MessageBody, TriggerBody> {
  public:
    MessageBody();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    /// Only puts it to rest.
    void onTriggered(GameBody* activator) override;

    std::string message;
};

}  // namespace bc
