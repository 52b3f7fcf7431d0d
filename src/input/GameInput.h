// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "input/InputTarget.h"

#include <map>
#include <ostream>
#include <string>
#include <string_view>

namespace bc {

class GameVar;
class IRenderer;

/// The target "game", in force during play: turns keys and mouse buttons into command text through
/// the key bindings, releases into the "-" twins of "+" commands, and keeps a cursor of its own
/// that works while the mouse is grabbed. The player's commands are in a class derived from it.
class GameInput : public InputTarget {
  public:
    /// The cursor stays on this renderer's screen. Not owned; without one the cursor stands still.
    void setRenderer(IRenderer* renderer) { renderer_ = renderer; }

    void mouseMove(float x, float y, float relX, float relY) override;
    void mouseDown(float x, float y, int button) override;
    void mouseUp(float x, float y, int button) override;
    void keyDown(int sym, int unicode, const std::string& keyName) override;
    void keyUp(int sym, int unicode, const std::string& keyName) override;

    /// Registers bind, unbind and listbinds, whose handlers use this object: the registry must be
    /// cleared when it goes.
    virtual void init();
    /// The first key in name order that is bound to exactly this command, else "unbound".
    [[nodiscard]] virtual std::string keyForCommand(const std::string& command) const;
    /// The section of the configuration file that restores the bindings when it is executed.
    virtual void writeBindings(std::ostream& out) const;
    /// Lets go of everything held, when a level starts.
    virtual void clearActions() {}

    /// Key and command become lower case. A key named "unbound" cannot be bound.
    void setBinding(std::string_view key, std::string_view command);
    /// Commands by lower-case key name; an empty one is none.
    [[nodiscard]] const std::map<std::string, std::string>& bindings() const { return bindings_; }
    /// The name under which a mouse button is bound, empty for one that has none.
    [[nodiscard]] const std::string& mouseButtonName(int button) {
        return mouseButtonNames_[button];
    }

  private:
    void bindCommand();
    void unbindCommand();
    void listBindsCommand();
    /// Empty when nothing is bound.
    [[nodiscard]] std::string boundTo(std::string_view key) const;

    std::map<std::string, std::string> bindings_;
    std::map<int, std::string> mouseButtonNames_;
    GameVar* sensitivity_ = nullptr;
    IRenderer* renderer_ = nullptr;
};

}  // namespace bc
