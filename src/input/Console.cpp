// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "input/Console.h"

#include "command/CommandRegistry.h"
#include "command/ConsoleColours.h"
#include "command/GameVar.h"
#include "core/Text.h"
#include "ports/FontRenderer.h"
#include "ports/IGame.h"
#include "ports/IRenderer.h"
#include "resources/FileSystem.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace bc {

namespace {

// Distances in pixels: from the left edge of the screen to the texts, from the lower edge of the
// panel to the lines and to the input line, between two lines, and from the highest line to the top
// of the screen.
constexpr float leftMargin = 10;
constexpr float linesAbove = 25;
constexpr float inputAbove = 5;
constexpr float lineGap = 2;
constexpr float topMargin = 5;

constexpr float edgeWidth = 2;
constexpr int fontSize = 14;
/// Milliseconds. The cursor is visible during the second half of each period.
constexpr float cursorPeriod = 1000;
/// Drawn below the lines while the console is scrolled back.
constexpr std::string_view scrolledMark = "^^^^^^^^^^^^^^^^^^^";

/// The local date and time with the newline that ctime_r appends.
std::string dateAndTime() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 64> buffer{};
    return ctime_r(&now, buffer.data()) != nullptr ? buffer.data() : "\n";
}

}  // namespace

Console::~Console() {
    if (commands().output() == this)
        commands().setOutput(nullptr);
}

void Console::init(IGame* game) {
    cursorClock_.restart();
    shownInput_.reserve(maxInput + 2);
    CommandRegistry& registry = commands();
    registry.registerCommand("Quit the game", "quit", [game] {
        if (game != nullptr)
            game->setQuit(true);
    });
    registry.registerCommand("Clear the console", "clear", [this] { clear(); });
    registry.registerCommand("Dump the console", "condump",
                             [this, &registry] { dump(registry.arg(0, "condump.txt")); });
    registry.registerCommand("Echo the current time and date", "time",
                             [this] { print(dateAndTime()); });
    registry.registerCommand("test function", "tester", [this] {
        printWarning("Warning: test warning");
        printDebug("Debug: some debug output");
    });
    colourVar_ = vars().getVar("con_colour");
    showWarningsVar_ = vars().getVar("con_showWarnings");
    showDebugVar_ = vars().getVar("con_showDebug");
    heightVar_ = vars().getVar("con_height");
}

void Console::setScreenSize(int width, int height) {
    screenWidth_ = width;
    screenHeight_ = height;
}

void Console::print(std::string_view text) {
    addLine(text, textColour_, ConLine::normal);
}
void Console::printColoured(std::string_view text, int r, int g, int b, int a) {
    addLine(text,
            {static_cast<float>(r), static_cast<float>(g), static_cast<float>(b),
             static_cast<float>(a)},
            ConLine::normal);
}
void Console::printWarning(std::string_view text) {
    addLine(text, colours::warning, ConLine::warning);
}
void Console::printDebug(std::string_view text) {
    addLine(text, colours::debug, ConLine::debug);
}

void Console::addLine(std::string_view text, const RGBAColour& colour, std::uint32_t kind) {
    const bool following = scroll_ == lastIndex_;
    lines_.push_back({std::string(text), colour, BitFlags(kind)});
    lastIndex_ = static_cast<int>(lines_.size()) - 1;
    if (following)
        scroll_ = lastIndex_;
}

void Console::clear() {
    lines_.clear();
    scroll_ = lastIndex_ = -1;
}

void Console::dump(const std::string& fileName) {
    std::string out = "=== BEGINNING OF CONSOLE DUMP ===\nTimeStamp: " + dateAndTime() + "\n\n";
    for (const ConLine& line : lines_) {
        out += line.text;
        out += '\n';
    }
    out += "\n\n=== END OF CONSOLE DUMP ===\n";
    files::replace(fileName, out);
}

void Console::scrollBy(int lines) {
    scroll_ = std::min(std::max(scroll_ + lines, 0), lastIndex_);
}

void Console::mouseDown(float /*x*/, float /*y*/, int button) {
    if (button == 4)
        scrollBy(-2);
    else if (button == 5)
        scrollBy(2);
}

void Console::keyDown(int /*sym*/, int unicode, const std::string& keyName) {
    const auto is = [&keyName](std::string_view name) { return equalsNoCase(keyName, name); };
    if (is("`"))
        return;
    if (is("return") || is("kp_enter")) {
        submit();
    } else if (is("backspace")) {
        if (!input_.empty())
            input_.pop_back();
    } else if (is("pageup")) {
        scrollBy(-1);
    } else if (is("pagedown")) {
        scrollBy(1);
    } else if (is("up")) {
        recall(-1);
    } else if (is("down")) {
        recall(1);
    } else if (is("tab")) {
        complete();
    } else if (input_.size() < maxInput && unicode >= 32 && unicode <= 126) {
        input_ += static_cast<char>(unicode);
    }
}

void Console::recall(int step) {
    if (history_.empty())
        return;
    const int size = static_cast<int>(history_.size());
    historyCursor_ += step;
    if (step < 0)
        historyCursor_ = std::clamp(historyCursor_, 0, size - 1);
    if (historyCursor_ < size) {
        input_ = history_[static_cast<std::size_t>(historyCursor_)];
    } else {
        historyCursor_ = size;
        input_.clear();
    }
}

void Console::submit() {
    print(input_);
    history_.push_back(input_);
    if (!input_.empty())
        commands().execute(input_);
    input_.clear();
    historyCursor_ = static_cast<int>(history_.size());
}

void Console::complete() {
    std::vector<std::string> words;
    tokenise(" ", input_, words);
    const std::string prefix = words.empty() ? std::string() : lowerCase(words.front());

    std::vector<std::string_view> commandNames;
    std::vector<std::string_view> variableNames;
    std::string_view best;
    const auto collect = [&](const auto& registry, std::vector<std::string_view>& out) {
        for (const auto& entry : registry.all()) {
            const std::string& name = entry.first;
            if (!name.starts_with(prefix))
                continue;
            out.push_back(name);
            if (best.empty() || name.size() < best.size())
                best = name;
        }
    };
    collect(commands(), commandNames);
    collect(vars(), variableNames);
    const std::size_t matchCount = commandNames.size() + variableNames.size();
    if (matchCount == 0)
        return;

    const auto say = [this](const std::string& text, const RGBAColour& colour) {
        addLine("    " + text, colour, ConLine::normal);
    };
    say("Auto Complete For:  " + input_, colours::gold);
    say("Commands:", colours::gold);
    for (const std::string_view name : commandNames)
        say(std::string(name), colours::white);
    say("Variables:", colours::gold);
    for (const std::string_view name : variableNames)
        say(std::string(name), colours::white);
    say(std::to_string(matchCount) + (matchCount == 1 ? " Match" : " Matches") + " For: " + input_,
        colours::gold);
    if (input_.size() < best.size()) {
        input_ = best.substr(0, maxInput);
        if (input_.size() < maxInput)
            input_ += ' ';
    }
    print(" ");
}

bool Console::isShown(const ConLine& line) const {
    const auto hidden = [&line](std::uint32_t kind, const GameVar* show) {
        return line.kind.test(kind) && show != nullptr && show->intValue() == 0;
    };
    return !hidden(ConLine::warning, showWarningsVar_) && !hidden(ConLine::debug, showDebugVar_);
}

template <class Place>
void Console::forEachVisible(float y, float textHeight, Place place) const {
    const float top = static_cast<float>(screenHeight_) - textHeight - topMargin;
    for (int i = scroll_; i >= 0; --i) {
        const ConLine& line = lines_[static_cast<std::size_t>(i)];
        if (!isShown(line))
            continue;
        y += textHeight + lineGap;
        if (y > top)
            return;
        place(line, y);
    }
}

std::vector<const ConLine*> Console::visibleLines(float textHeight) const {
    std::vector<const ConLine*> out;
    const float mark = scroll_ != lastIndex_ ? textHeight + lineGap : 0;
    forEachVisible(static_cast<float>(screenHeight_ - getHeight()) + linesAbove + mark, textHeight,
                   [&out](const ConLine& line, float) { out.push_back(&line); });
    return out;
}

int Console::getHeight() const {
    const float part = std::clamp(heightVar_ != nullptr ? heightVar_->floatValue() : 0, 0.2F, 1.0F);
    const int height = static_cast<int>(static_cast<float>(screenHeight_) * part);
    return height >= screenHeight_ ? screenHeight_ - 2 : height;
}

void Console::draw(IRenderer& renderer) {
    if (!open_)
        return;
    if (colourVar_ != nullptr && colourVar_->changed) {
        backgroundColour_.fromString(colourVar_->value());
        colourVar_->changed = false;
    }
    const int height = getHeight();
    drawPanel(renderer, height);
    if (FontRenderer* fonts = renderer.getFontRenderer()) {
        fonts->setFont("vera", fontSize);
        renderer.setTexturing(true);
        renderer.setBlending(true);
        drawLines(renderer, height);
        drawInput(renderer, height);
    }
}

void Console::drawPanel(IRenderer& renderer, int height) {
    const auto width = static_cast<float>(screenWidth_);
    const auto top = static_cast<float>(screenHeight_);
    const auto covered = static_cast<float>(height);
    renderer.setTexturing(false);
    renderer.setBlending(false);
    renderer.setColour(backgroundColour_);
    renderer.drawQuad(0, top, 0, width, covered);
    renderer.setColour(edgeColour_);
    renderer.drawLine(0, top - covered, width, top - covered, edgeWidth);
}

void Console::drawLines(IRenderer& renderer, int height) {
    FontRenderer& fonts = *renderer.getFontRenderer();
    float y = static_cast<float>(screenHeight_ - height) + linesAbove;
    if (scroll_ != lastIndex_) {
        renderer.setColour(colours::gold);
        fonts.drawText(leftMargin, y, scrolledMark);
        y += fonts.textHeight(scrolledMark) + lineGap;
    }
    // A character is at least one pixel wide, so more characters than the screen has pixels are
    // never visible.
    const auto mostCharacters = static_cast<std::size_t>(std::max(screenWidth_, 0));
    forEachVisible(y, fonts.textHeight(scrolledMark), [&](const ConLine& line, float lineY) {
        renderer.setColour(line.colour);
        fonts.drawText(leftMargin, lineY, std::string_view(line.text).substr(0, mostCharacters));
    });
}

void Console::drawInput(IRenderer& renderer, int height) {
    cursorClock_.tick();
    if (cursorClock_.elapsed() >= cursorPeriod)
        cursorClock_.restart();
    shownInput_ = ']';
    shownInput_ += input_;
    if (cursorClock_.elapsed() > cursorPeriod / 2)
        shownInput_ += '_';
    renderer.setColour(textColour_);
    renderer.getFontRenderer()->drawText(
        leftMargin, static_cast<float>(screenHeight_ - height) + inputAbove, shownInput_);
}

}  // namespace bc
