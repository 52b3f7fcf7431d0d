// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <SDL/SDL.h>

#include <deque>
#include <functional>
#include <string>

namespace bc {

/// The one way of events into the game: those of the window, when there is one, and those that a
/// script puts in. Injected events come first in each poll. Once a script has moved the pointer,
/// the motion of the real one is passed over, so that the run is the same wherever that is.
class EventPump {
  public:
    /// Without a window only injected events are seen.
    explicit EventPump(bool hasWindow) : hasWindow_(hasWindow) {}

    /// Next pending event; false when there is none.
    bool poll(SDL_Event& event);

    /// symOf finds the key code of a key name of the key map, -1 for an unknown one.
    /// False (and nothing injected) for a line that is not a known event or misses its arguments.
    bool inject(const std::string& line, const std::function<int(const std::string&)>& symOf);
    /// Where the game's own cursor stands, which follows relative motion only. The first motion of
    /// a script starts there, so that the cursor comes to stand where the script says.
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
    // Where the pointer is, and where a script put it last.
    int mouseX_ = 0;
    int mouseY_ = 0;
    int scriptX_ = 0;
    int scriptY_ = 0;
    bool pointerIsScripted_ = false;
};

}  // namespace bc
