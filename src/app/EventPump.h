// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <SDL/SDL.h>

#include <deque>
#include <functional>
#include <string>

namespace bc {

/// Source of all input events: those of the window, if there is one, and those that a script
/// injects. Injected events come first in each poll. Once a script has moved the pointer, motion
/// events of the window are dropped, so that the run does not depend on where the real pointer is.
class EventPump {
  public:
    /// Without a window there are injected events only.
    explicit EventPump(bool hasWindow) : hasWindow_(hasWindow) {}

    /// Next pending event; false when there is none.
    bool poll(SDL_Event& event);

    /// Turns a script line ("@key NAME", "@keyup NAME", "@type TEXT", "@move X Y", "@press N",
    /// "@release N") into events. symOf finds SDL's code of a key name, -1 for an unknown one.
    /// False (and nothing injected) for a line that is not such an event or misses its arguments.
    bool inject(const std::string& line, const std::function<int(const std::string&)>& symOf);
    /// Tells where the game's own cursor is, in window pixels from the top left. That cursor
    /// follows relative motion only, so the first injected motion is made relative to it.
    void cursorIsAt(int x, int y);

  private:
    void pushKey(bool pressed, int sym, int unicode);
    /// Down and up, with shift held for a capital letter.
    void typeCharacter(unsigned char c);
    void pushButton(bool pressed, int button);
    void pushMotion(int x, int y);

    bool hasWindow_;
    std::deque<SDL_Event> injected_;
    /// SDL's mask of the modifier keys that injected events hold down.
    int modifiers_ = 0;
    // Window pixels from the top left: the pointer, and where the last injected motion ended.
    int mouseX_ = 0;
    int mouseY_ = 0;
    int scriptX_ = 0;
    int scriptY_ = 0;
    bool pointerIsScripted_ = false;
};

}  // namespace bc
