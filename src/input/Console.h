// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "command/ConsoleOutput.h"
#include "core/BasicTimer.h"
#include "core/BitFlags.h"
#include "core/RGBAColour.h"
#include "input/InputTarget.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace bc {

class GameVar;
class IGame;
class IRenderer;

/// One printed line.
struct ConLine {
    // The kinds of lines. Each is a bit of `kind`.
    static constexpr std::uint32_t normal = 1;
    static constexpr std::uint32_t warning = 2;
    static constexpr std::uint32_t debug = 4;

    std::string text;
    RGBAColour colour;
    BitFlags kind;
};

/// The panel at the top of the screen that shows the lines printed so far and an input line. As
/// input target "console" it executes the lines that the player types. It keeps every line until
/// clear(). Printing works from its construction on; drawing and the commands need init.
class Console final : public InputTarget, public ConsoleOutput {
  public:
    /// The limit for the input line, in characters.
    static constexpr std::size_t maxInput = 73;

    Console() { uses2D = true; }
    /// Removes itself from the command registry if that prints to it.
    ~Console() override;
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Registers the commands of the console and looks up its variables. The commands keep pointers
    /// to this object and to the game, which is not owned; the registry must be cleared before
    /// either is deleted.
    void init(IGame* game);
    /// The size of the window in pixels.
    void setScreenSize(int width, int height);

    void print(std::string_view text) override;
    void printColoured(std::string_view text, int r, int g, int b, int a) override;
    void printWarning(std::string_view text) override;
    void printDebug(std::string_view text) override;

    /// Called once a frame between the renderer's begin2D and end2D. Draws nothing while the
    /// console is closed.
    void draw(IRenderer& renderer);
    /// Deletes all lines.
    void clear();
    /// Writes all lines to a file of the user folder. The log says when that fails.
    void dump(const std::string& fileName);

    void keyDown(int sym, int unicode, const std::string& keyName) override;
    void mouseDown(float x, float y, int button) override;

    [[nodiscard]] bool isOpen() const { return open_; }
    /// Shows or hides the panel. InputManager decides whether the console gets the keys.
    void setOpen(bool open) { open_ = open; }
    void clearInput() { input_.clear(); }

    [[nodiscard]] const std::string& getInput() const { return input_; }
    [[nodiscard]] const std::vector<ConLine>& getLines() const { return lines_; }
    [[nodiscard]] const std::vector<std::string>& getHistory() const { return history_; }
    /// The index of the lowest visible line and of the newest line; -1 when there are no lines.
    [[nodiscard]] int getScroll() const { return scroll_; }
    [[nodiscard]] int getLastIndex() const { return lastIndex_; }
    /// The height of the open panel in pixels: the part con_height of the screen, at least 0.2 of
    /// it and at most all but 2 pixels.
    [[nodiscard]] int getHeight() const;
    /// The lines that the open panel shows in a font of this height in pixels, the lowest (newest)
    /// first. The pointers are valid until the next line is printed.
    [[nodiscard]] std::vector<const ConLine*> visibleLines(float textHeight = 14) const;

  private:
    void addLine(std::string_view text, const RGBAColour& colour, std::uint32_t kind);
    /// Positive numbers scroll towards the newest line.
    void scrollBy(int lines);
    /// Replaces the input line by an older (-1) or newer (1) one of the history.
    void recall(int step);
    /// Prints and executes the input line.
    void submit();
    /// Prints the commands and variables that start with the first word of the input line, and
    /// replaces the line by the shortest of their names if that is longer than the line.
    void complete();
    void drawPanel(IRenderer& renderer, int height);
    void drawLines(IRenderer& renderer, int height);
    void drawInput(IRenderer& renderer, int height);
    [[nodiscard]] bool isShown(const ConLine& line) const;
    /// Calls place(line, y) for each visible line from the lowest to the highest. y is where the
    /// line is drawn; the first one is textHeight and a gap above the given y.
    template <class Place>
    void forEachVisible(float y, float textHeight, Place place) const;

    int screenWidth_ = 0;
    int screenHeight_ = 0;
    bool open_ = false;
    /// The entry of the history that the input line shows; the size of the history for none.
    int historyCursor_ = 0;
    int scroll_ = -1;
    int lastIndex_ = -1;
    std::vector<ConLine> lines_;
    std::vector<std::string> history_;
    std::string input_;
    /// The input line as it is drawn, kept between frames so that drawing does not allocate.
    std::string shownInput_;
    BasicTimer cursorClock_;
    RGBAColour textColour_{27, 209, 255, 255};
    RGBAColour backgroundColour_{0, 0, 0, 255};
    RGBAColour edgeColour_{247, 120, 23, 255};
    GameVar* colourVar_ = nullptr;
    GameVar* showWarningsVar_ = nullptr;
    GameVar* showDebugVar_ = nullptr;
    GameVar* heightVar_ = nullptr;
};

}  // namespace bc
