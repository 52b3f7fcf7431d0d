// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace bc {

class Console;
class IGame;
class IGUI;
class InputTarget;
class IRenderer;

/// The modifier keys; their numbers are the indices of isModifierDown.
enum class Modifier {
    numLock = 0,
    capsLock,
    mode,
    leftControl,
    rightControl,
    leftShift,
    rightShift,
    leftAlt,
    rightAlt,
    leftMeta,
    rightMeta
};

/// Passes every key and mouse event to the current one of the registered targets, and handles the
/// two keys that change the current target: Escape shows the menus, the backquote opens and closes
/// the console. The application has one; it owns none of the objects that it gets.
class InputManager {
  public:
    /// The objects to work with. A null one is left out. Called again when one was replaced.
    void init(IGame* game, IRenderer* renderer, IGUI* gui, Console* console);

    /// Reads the names of the keys from an XML file (a name for ResourceManager). When that fails
    /// the log says so and all keys have empty names.
    void loadKeymap(const std::string& path);
    /// The name of a key by its SDL code; empty for a key without a name.
    [[nodiscard]] const std::string& keyName(int sym) const;
    /// The lowest SDL code of a key with this name, which is not case-sensitive; nothing when there
    /// is none.
    [[nodiscard]] std::optional<int> findKey(std::string_view name) const;

    /// Adds or replaces the target with this name; null removes it. Not owned.
    void registerTarget(const std::string& name, InputTarget* target);
    /// Makes a target the current one and remembers the previous one. Calls onLoseFocus of the old
    /// and then onGainFocus of the new target. While a name without a target is current, events are
    /// dropped.
    void setTarget(const std::string& name);
    /// Makes a target the current one. Does not call the targets and keeps the previous one.
    void assignTarget(const std::string& name) { currentTarget_ = name; }
    [[nodiscard]] const std::string& getTarget() const { return currentTarget_; }
    [[nodiscard]] const std::string& getPreviousTarget() const { return previousTarget_; }

    // Events. Positions are window pixels from the top left. Buttons have SDL's numbers (the wheel
    // is 4 up and 5 down). sym is SDL's key code; unicode is the typed character or 0.
    void keyEvent(bool pressed, int sym, int unicode);
    void mouseMotion(float x, float y, float relX, float relY);
    void mouseButtonDown(float x, float y, int button);
    void mouseButtonUp(float x, float y, int button);

    /// Called before each key event with SDL's mask of the modifier keys that are down.
    void updateModifiers(int sdlModMask);
    /// False for an index out of range.
    [[nodiscard]] bool isModifierDown(int index) const;
    [[nodiscard]] bool isModifierDown(Modifier modifier) const {
        return isModifierDown(static_cast<int>(modifier));
    }

    /// Hides the menus and goes back to play. Does nothing without a level or visible menus.
    void hideGUI();

    /// The place of the mouse in the overlay, in pixels from the bottom left.
    [[nodiscard]] const Vector& getMouse2D() const { return mouse2D_; }
    /// The place in the world at which the mouse pointed at its last motion, in world units.
    [[nodiscard]] const Vector& getMouseWorld() const { return mouseWorld_; }
    void setMouseWorld(float x, float y) {
        mouseWorld_.x = x;
        mouseWorld_.y = y;
    }
    [[nodiscard]] float getMouseX() const { return mouseX_; }
    [[nodiscard]] float getMouseY() const { return mouseY_; }
    [[nodiscard]] float getMouseRelX() const { return mouseRelX_; }
    [[nodiscard]] float getMouseRelY() const { return mouseRelY_; }

    /// Calls the renderer's begin2D or end2D if wanted is true.
    void begin2DIf(bool wanted);
    void end2DIf(bool wanted);

  private:
    static constexpr std::size_t modifierCount = 11;

    [[nodiscard]] InputTarget* findTarget(const std::string& name) const;
    [[nodiscard]] InputTarget* current() const { return findTarget(currentTarget_); }
    /// True when the key must not reach a target.
    bool handleEscape();
    void toggleConsole();

    float mouseX_ = 0;
    float mouseY_ = 0;
    float mouseRelX_ = 0;
    float mouseRelY_ = 0;
    std::string currentTarget_ = "gui";
    std::string previousTarget_ = "gui";
    std::map<std::string, InputTarget*> targets_;
    Vector mouseWorld_;
    Vector mouse2D_;
    std::map<int, std::string> keyNames_;
    std::array<bool, modifierCount> modifiers_{};
    IGame* game_ = nullptr;
    IRenderer* renderer_ = nullptr;
    IGUI* gui_ = nullptr;
    Console* console_ = nullptr;
};

}  // namespace bc
