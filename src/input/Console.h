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
    static constexpr std::uint32_t normal = 1;
    static constexpr std::uint32_t warning = 2;
    static constexpr std::uint32_t debug = 4;

    std::string text;
    RGBAColour colour;
    BitFlags kind;
};

/// The text panel over the top of the screen, input target "console": keeps every line printed to
/// it, takes command lines while it is open and hands them to the interpreter. Works as an output
/// of the command registry from its construction on; drawing and commands need init.
class Console final : public InputTarget, public ConsoleOutput {
  public:
    /// The input line never grows longer.
    static constexpr std::size_t maxInput = 73;

    Console() { uses2D = true; }
    /// The registry prints nowhere any more if it printed here.
    ~Console() override;
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    /// Registers the console's commands, whose handlers use this object and the game, and binds
    /// its variables. Neither is owned.
    void init(IGame* game);
    /// Window pixels.
    void setScreenSize(int width, int height);

    void print(std::string_view text) override;
    void printColoured(std::string_view text, int r, int g, int b, int a) override;
    void printWarning(std::string_view text) override;
    void printDebug(std::string_view text) override;

    /// Once a frame, between the renderer's begin2D and end2D; nothing while closed.
    void draw(IRenderer& renderer);
    /// Forgets all lines.
    void clear();
    /// Writes all lines to a file of the user folder. A failure is only logged.
    void dump(const std::string& fileName);

    void keyDown(int sym, int unicode, const std::string& keyName) override;
    void mouseDown(float x, float y, int button) override;

    [[nodiscard]] bool isOpen() const { return open_; }
    /// Which target gets the keys is the input manager's business.
    void setOpen(bool open) { open_ = open; }
    void clearInput() { input_.clear(); }

    [[nodiscard]] const std::string& getInput() const { return input_; }
    [[nodiscard]] const std::vector<ConLine>& getLines() const { return lines_; }
    [[nodiscard]] const std::vector<std::string>& getHistory() const { return history_; }
    /// Index of the lowest line in view and of the newest line; -1 when there is none.
    [[nodiscard]] int getScroll() const { return scroll_; }
    [[nodiscard]] int getLastIndex() const { return lastIndex_; }
    /// How many pixels at the top of the screen the open console covers.
    [[nodiscard]] int getHeight() const;
    /// The lines that an open console shows with lines of textHeight pixels, lowest (newest)
    /// first. The pointers are good until the next line is printed.
    [[nodiscard]] std::vector<const ConLine*> visibleLines(float textHeight = 14) const;

  private:
    void addLine(std::string_view text, const RGBAColour& colour, std::uint32_t kind);
    void scrollBy(int lines);
    void recall(int step);
    void submit();
    void complete();
    void drawPanel(IRenderer& renderer, int height);
    void drawLines(IRenderer& renderer, int height);
    void drawInput(IRenderer& renderer, int height);
    [[nodiscard]] bool isShown(const ConLine& line) const;
    /// Calls place(line, y) for each line in view from the lowest up; y is its baseline.
    template <class Place>
    void forEachVisible(float y, float textHeight, Place place) const;

    int screenWidth_ = 0;
    int screenHeight_ = 0;
    bool open_ = false;
    int historyCursor_ = 0;
    int scroll_ = -1;
    int lastIndex_ = -1;
    std::vector<ConLine> lines_;
    std::vector<std::string> history_;
    std::string input_;
    /// Scratch: what is drawn of the input line.
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
