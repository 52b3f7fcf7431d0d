// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/Options.h"

#include "core/Dimension.h"

#include <charconv>

namespace bc {

namespace {

// Pixels. Smaller windows have no room for a menu; larger ones exceed every screen.
constexpr int minWindow = 160;
constexpr int maxWindow = 16384;
// The simulation counts no more than 250 ms of a pass, so longer ones are mistakes.
constexpr std::uint32_t maxFrameMs = 10000;

bool readNumber(const std::string& text, std::uint32_t& out) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, out);
    return result.ec == std::errc() && result.ptr == end;
}

bool readWindow(const std::string& text, Options& options) {
    const std::size_t x = text.find('x');
    std::uint32_t w = 0;
    std::uint32_t h = 0;
    if (x == std::string::npos || !readNumber(text.substr(0, x), w) ||
        !readNumber(text.substr(x + 1), h))
        return false;
    if (w < minWindow || h < minWindow || w > maxWindow || h > maxWindow)
        return false;
    options.width = static_cast<int>(w);
    options.height = static_cast<int>(h);
    return true;
}

/// True for options that take the word behind them.
bool takesValue(const std::string& name) {
    return name == "--user" || name == "--data" || name == "--window" || name == "--seed" ||
           name == "--frames" || name == "--frame-ms" || name == "--script";
}

bool setFlag(const std::string& name, Options& options) {
    if (name == "--help" || name == "-h")
        options.action = Options::Action::help;
    else if (name == "--version")
        options.action = Options::Action::version;
    else if (name == "--fullscreen")
        options.fullscreen = true;
    else if (name == "--headless")
        options.headless = options.virtualClock = options.skipLogo = true;
    else if (name == "--virtual-clock")
        options.virtualClock = true;
    else if (name == "--no-logo")
        options.skipLogo = true;
    else
        return false;
    return true;
}

bool setValue(const std::string& name, const std::string& value, Options& options) {
    std::uint32_t n = 0;
    if (name == "--window")
        return readWindow(value, options);
    if (name == "--user" || name == "--data" || name == "--script") {
        (name == "--user"   ? options.userFolder
         : name == "--data" ? options.dataFolder
                            : options.scriptFile) = value;
        return !value.empty();
    }
    if (!readNumber(value, n))
        return false;
    if (name == "--seed")
        options.seed = n;
    else if (name == "--frames")
        options.frames = n;
    else if (n < 1 || n > maxFrameMs)
        return false;
    else
        options.frameMs = n;
    return true;
}

}  // namespace

std::optional<Options> parseOptions(const std::vector<std::string>& args, std::string& error) {
    Options options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string name = args[i];
        if (name.size() > 1 && name[0] == '+') {
            options.commands.push_back(name.substr(1));
            continue;
        }
        // Words behind a command are its arguments, negative numbers among them. Two dashes begin
        // an option again.
        if (!options.commands.empty() && name.rfind("--", 0) != 0) {
            options.commands.back() += ' ' + name;
            continue;
        }
        const std::size_t equals = name.find('=');
        std::optional<std::string> value;
        if (name.rfind("--", 0) == 0 && equals != std::string::npos) {
            value = name.substr(equals + 1);
            name.resize(equals);
        }
        if (takesValue(name)) {
            if (!value) {
                if (i + 1 == args.size()) {
                    error = "option " + name + " needs a value";
                    return std::nullopt;
                }
                value = args[++i];
            }
            if (!setValue(name, *value, options)) {
                error = "option " + name + " cannot take '" + *value + "'";
                return std::nullopt;
            }
        } else if (value || !setFlag(name, options)) {
            error = "unknown option '" + args[i] + "'";
            return std::nullopt;
        }
    }
    return options;
}

std::string usageText() {
    return "Usage: brightclash [options] [+command arguments ...]\n"
           "\n"
           "  --help              show this text and quit\n"
           "  --version           show the version and quit\n"
           "  --user DIR          folder for settings, saves, screenshots and logs\n"
           "  --data DIR          folder with the game's data/ and maps/\n"
           "  --window WxH        window size in pixels, for this run only\n"
           "  --fullscreen        fill the screen, for this run only\n"
           "  --no-logo           go straight to the game\n"
           "  --seed N            start the random generator from N\n"
           "\n"
           "  --headless          no window, no sound; virtual clock, nothing waits\n"
           "  --virtual-clock     each pass of the main loop counts as --frame-ms\n"
           "  --frame-ms N        milliseconds a pass counts (default 25)\n"
           "  --frames N          quit after N passes of the main loop\n"
           "  --script FILE       lines 'FRAME COMMAND', run at the start of that pass;\n"
           "                      also @key NAME, @keyup NAME, @type TEXT, @move X Y,\n"
           "                      @press N and @release N\n"
           "\n"
           "Each +command group is run as one console line once the game is up, in order:\n"
           "  brightclash +map hangar +give all\n"
           "Without a +map the game starts in the hangar.\n";
}

}  // namespace bc
