// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/EventPump.h"

#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace bc {

namespace {

constexpr int shiftKeys = KMOD_LSHIFT | KMOD_RSHIFT;

/// The character that the window system would report for a key press, 0 for none. Shift changes
/// letters only: its effect on other keys depends on the keyboard layout.
int characterOf(int sym, int modifiers) {
    switch (sym) {
        case SDLK_RETURN:
        case SDLK_KP_ENTER:
            return '\r';
        case SDLK_TAB:
        case SDLK_BACKSPACE:
        case SDLK_ESCAPE:
            return sym;
        default:
            break;
    }
    const bool capital = ((modifiers & shiftKeys) != 0) != ((modifiers & KMOD_CAPS) != 0);
    if (sym >= 'a' && sym <= 'z' && capital)
        return sym - 'a' + 'A';
    return sym >= 32 && sym < 127 ? sym : 0;
}

/// SDL's modifier bit of a key, 0 for a key that is no modifier.
int modifierOf(int sym) {
    switch (sym) {
        case SDLK_LSHIFT:
            return KMOD_LSHIFT;
        case SDLK_RSHIFT:
            return KMOD_RSHIFT;
        case SDLK_LCTRL:
            return KMOD_LCTRL;
        case SDLK_RCTRL:
            return KMOD_RCTRL;
        case SDLK_LALT:
            return KMOD_LALT;
        case SDLK_RALT:
            return KMOD_RALT;
        case SDLK_LMETA:
            return KMOD_LMETA;
        case SDLK_RMETA:
            return KMOD_RMETA;
        // SDL reports a lock key as held while the lock is on.
        case SDLK_NUMLOCK:
            return KMOD_NUM;
        case SDLK_CAPSLOCK:
            return KMOD_CAPS;
        case SDLK_MODE:
            return KMOD_MODE;
        default:
            return 0;
    }
}

/// The code of the key that types a character, 0 beyond ASCII.
int symOfCharacter(unsigned char c) {
    if (c >= 'A' && c <= 'Z')
        return c - 'A' + 'a';
    return c < 127 ? c : 0;
}

std::string restBehind(const std::string& line, std::size_t wordLength) {
    const std::size_t begin = line.find_first_not_of(' ', wordLength);
    return begin == std::string::npos ? std::string() : line.substr(begin);
}

}  // namespace

bool EventPump::poll(SDL_Event& event) {
    if (!injected_.empty()) {
        event = injected_.front();
        injected_.pop_front();
        return true;
    }
    while (hasWindow_ && SDL_PollEvent(&event) != 0) {
        if (event.type != SDL_MOUSEMOTION)
            return true;
        if (pointerIsScripted_)
            continue;
        mouseX_ = event.motion.x;
        mouseY_ = event.motion.y;
        return true;
    }
    return false;
}

void EventPump::pushKey(bool pressed, int sym, int unicode) {
    modifiers_ = pressed ? modifiers_ | modifierOf(sym) : modifiers_ & ~modifierOf(sym);
    SDL_Event event{};
    event.type = static_cast<Uint8>(pressed ? SDL_KEYDOWN : SDL_KEYUP);
    event.key.state = static_cast<Uint8>(pressed ? SDL_PRESSED : SDL_RELEASED);
    event.key.keysym.sym = static_cast<SDLKey>(sym);
    event.key.keysym.mod = static_cast<SDLMod>(modifiers_);
    event.key.keysym.unicode = static_cast<Uint16>(unicode);
    injected_.push_back(event);
}

void EventPump::typeCharacter(unsigned char c) {
    // Text boxes look at the shift key, not at the case of the character.
    const int before = modifiers_;
    if (c >= 'A' && c <= 'Z')
        modifiers_ |= KMOD_LSHIFT;
    pushKey(true, symOfCharacter(c), c);
    pushKey(false, symOfCharacter(c), 0);
    modifiers_ = before;
}

void EventPump::pushButton(bool pressed, int button) {
    SDL_Event event{};
    event.type = static_cast<Uint8>(pressed ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP);
    event.button.button = static_cast<Uint8>(button);
    event.button.state = static_cast<Uint8>(pressed ? SDL_PRESSED : SDL_RELEASED);
    event.button.x = static_cast<Uint16>(mouseX_);
    event.button.y = static_cast<Uint16>(mouseY_);
    injected_.push_back(event);
}

void EventPump::pushMotion(int x, int y) {
    SDL_Event event{};
    event.type = SDL_MOUSEMOTION;
    event.motion.x = static_cast<Uint16>(x);
    event.motion.y = static_cast<Uint16>(y);
    event.motion.xrel = static_cast<Sint16>(x - scriptX_);
    event.motion.yrel = static_cast<Sint16>(y - scriptY_);
    mouseX_ = scriptX_ = x;
    mouseY_ = scriptY_ = y;
    pointerIsScripted_ = true;
    injected_.push_back(event);
}

void EventPump::cursorIsAt(int x, int y) {
    if (pointerIsScripted_)
        return;
    scriptX_ = x;
    scriptY_ = y;
}

bool EventPump::inject(const std::string& line,
                       const std::function<int(const std::string&)>& symOf) {
    std::vector<std::string> words;
    tokenise(" ", line, words);
    if (words.empty())
        return false;
    const std::string& kind = words[0];
    if (kind == "@type") {
        const std::string text = restBehind(line, kind.size());
        for (const char c : text)
            typeCharacter(static_cast<unsigned char>(c));
        return !text.empty();
    }
    if ((kind == "@key" || kind == "@keyup") && words.size() == 2) {
        const int sym = symOf(words[1]);
        if (sym < 0)
            return false;
        pushKey(kind == "@key", sym, kind == "@key" ? characterOf(sym, modifiers_) : 0);
        return true;
    }
    if (kind == "@move" && words.size() == 3) {
        // The range of SDL's relative motion.
        constexpr int limit = 32767;
        pushMotion(std::clamp(parseInt(words[1]), 0, limit),
                   std::clamp(parseInt(words[2]), 0, limit));
        return true;
    }
    if ((kind == "@press" || kind == "@release") && words.size() == 2) {
        const int button = parseInt(words[1]);
        if (button < 1 || button > 255)
            return false;
        pushButton(kind == "@press", button);
        return true;
    }
    return false;
}

}  // namespace bc
