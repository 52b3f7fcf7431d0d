// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"

namespace bc {

/// Shows a message in the middle of the screen when the player touches it, and sets off its
/// targets (type "messagebody").
class MessageBody : public TriggerBody {
  public:
    MessageBody();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    /// Only puts it to rest.
    void onTriggered(GameBody* activator) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    std::string message;
};

/// Shows its message when something sets it off (type "messengerbody").
class MessengerBody final : public MessageBody {
  public:
    MessengerBody();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo&) override {}
    void onTriggered(GameBody* activator) override;
};

}  // namespace bc
