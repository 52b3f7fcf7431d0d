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

/// The input target "game", which is current during play. When a key or mouse button is pressed it
/// executes the commands bound to it; on release it executes the bound commands that begin with
/// "+" again, with "-" in its place. It moves a cursor of its own by the motions of the mouse
/// (mouseX and mouseY, within the window), since the real one does not move while the mouse is
/// grabbed. A derived class has the player's commands.
class GameInput : public InputTarget {
  public:
    /// The renderer whose window limits the cursor; not owned. Without one the cursor does not
    /// move.
    void setRenderer(IRenderer* renderer) { renderer_ = renderer; }

    void mouseMove(float x, float y, float relX, float relY) override;
    void mouseDown(float x, float y, int button) override;
    void mouseUp(float x, float y, int button) override;
    void keyDown(int sym, int unicode, const std::string& keyName) override;
    void keyUp(int sym, int unicode, const std::string& keyName) override;

    /// Registers bind, unbind and listbinds and looks up the variable sensitivity. The commands
    /// keep a pointer to this object; the registry must be cleared before it is deleted.
    virtual void init();
    /// The first key, in the order of their names, that is bound to exactly this command;
    /// "unbound" when there is none.
    [[nodiscard]] virtual std::string keyForCommand(const std::string& command) const;
    /// Writes the section of the configuration file that restores the bindings when executed.
    virtual void writeBindings(std::ostream& out) const;
    /// Releases all held actions. Called when a level starts.
    virtual void clearActions() {}

    /// Binds a command line to a key, both in lower case. The key name "unbound" is ignored.
    void setBinding(std::string_view key, std::string_view command);
    /// The command lines by key name in lower case. An unbound key may have an empty one.
    [[nodiscard]] const std::map<std::string, std::string>& bindings() const { return bindings_; }
    /// The key name of a mouse button; empty for a button that cannot be bound.
    [[nodiscard]] const std::string& mouseButtonName(int button) {
        return mouseButtonNames_[button];
    }

  private:
    void bindCommand();
    void unbindCommand();
    void listBindsCommand();
    /// The command line bound to a key, empty when there is none.
    [[nodiscard]] std::string boundTo(std::string_view key) const;

    std::map<std::string, std::string> bindings_;
    std::map<int, std::string> mouseButtonNames_;
    GameVar* sensitivity_ = nullptr;
    IRenderer* renderer_ = nullptr;
};

}  // namespace bc
