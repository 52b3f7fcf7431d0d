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

/// Modifier keys by the index that isModifierDown takes.
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

/// Sends every key and mouse event to exactly one of the registered targets, the current one, and
/// handles the two keys that change it: Escape brings up the menus, the backquote the console.
/// One object of the application; owns none of what it is given.
class InputManager {
  public:
    /// What the manager works with. Any of them may be null until it exists; what needs it is
    /// then left out. Set again after one of them was replaced.
    void init(IGame* game, IRenderer* renderer, IGUI* gui, Console* console);

    /// Names of the keys, from an XML file for the resource manager. When it cannot be read a log
    /// line says so and keys have empty names.
    void loadKeymap(const std::string& path);
    /// Empty for a key without a name.
    [[nodiscard]] const std::string& keyName(int sym) const;
    /// The lowest code of that name without regard to case; nothing when no key has it.
    [[nodiscard]] std::optional<int> findKey(std::string_view name) const;

    /// A null target takes the name away.
    void registerTarget(const std::string& name, InputTarget* target);
    /// Makes name the current target and tells the old and the new one.
    void setTarget(const std::string& name);
    /// The same without telling anyone and without remembering the old one.
    void assignTarget(const std::string& name) { currentTarget_ = name; }
    [[nodiscard]] const std::string& getTarget() const { return currentTarget_; }
    [[nodiscard]] const std::string& getPreviousTarget() const { return previousTarget_; }

    // Events. Positions are window pixels from the top left, buttons SDL's numbers (the wheel is
    // 4 up and 5 down), unicode the typed character or 0.
    void keyEvent(bool pressed, int sym, int unicode);
    void mouseMotion(float x, float y, float relX, float relY);
    void mouseButtonDown(float x, float y, int button);
    void mouseButtonUp(float x, float y, int button);

    /// Before each key event, with SDL's modifier mask.
    void updateModifiers(int sdlModMask);
    /// False for an index that is none.
    [[nodiscard]] bool isModifierDown(int index) const;
    [[nodiscard]] bool isModifierDown(Modifier modifier) const {
        return isModifierDown(static_cast<int>(modifier));
    }

    /// Back to play: hides the menus, if a level is loaded.
    void hideGUI();

    /// Overlay pixels from the bottom left.
    [[nodiscard]] const Vector& getMouse2D() const { return mouse2D_; }
    /// World units; where the mouse was at its last motion.
    [[nodiscard]] const Vector& getMouseWorld() const { return mouseWorld_; }
    void setMouseWorld(float x, float y) {
        mouseWorld_.x = x;
        mouseWorld_.y = y;
    }
    [[nodiscard]] float getMouseX() const { return mouseX_; }
    [[nodiscard]] float getMouseY() const { return mouseY_; }
    [[nodiscard]] float getMouseRelX() const { return mouseRelX_; }
    [[nodiscard]] float getMouseRelY() const { return mouseRelY_; }

    /// The renderer's begin2D or end2D when wanted.
    void begin2DIf(bool wanted);
    void end2DIf(bool wanted);

  private:
    static constexpr std::size_t modifierCount = 11;

    [[nodiscard]] InputTarget* findTarget(const std::string& name) const;
    [[nodiscard]] InputTarget* current() const { return findTarget(currentTarget_); }
    /// True when the key is used up.
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
