// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Where the program starts: the command line, the log file, and the game's life.
#include "app/Folders.h"
#include "app/Game.h"
#include "app/Options.h"
#include "app/OutputLog.h"
#include "app/Version.h"
#include "core/Log.h"
#include "core/Random.h"
#include "core/Ticks.h"
#include "resources/ResourceManager.h"

#include <csignal>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

/// Opens /dev/null as each standard stream that the caller closed. Otherwise the next file that the
/// game opens would take its number and be written to by the log.
void openStandardStreams() {
    int file = 0;
    do {
        file = open("/dev/null", O_RDWR);
    } while (file >= 0 && file <= STDERR_FILENO);
    if (file > STDERR_FILENO)
        close(file);
}

int play(const bc::Options& options) {
    bc::logLine("game starting");
    bc::seedRandom(options.seed.value_or(static_cast<std::uint32_t>(std::time(nullptr))));
    const bc::OutputLog log("outputlog.txt");
    bc::resourceManager().addZip("data.zip");
    if (options.virtualClock)
        bc::useVirtualTicks();
    bc::Game game(options);
    if (!game.init())
        return 0;
    game.run();
    game.shutdown();
    game.closeDown();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    std::string error;
    const auto options = bc::parseOptions(std::vector<std::string>(argv + 1, argv + argc), error);
    if (!options) {
        std::fprintf(stderr, "brightclash: %s (--help lists the options)\n", error.c_str());
        return 2;
    }
    if (options->action == bc::Options::Action::help) {
        std::fputs(bc::usageText().c_str(), stdout);
        return 0;
    }
    if (options->action == bc::Options::Action::version) {
        std::printf("Brightclash %s\n", bc::versionText());
        return 0;
    }
    // A write beyond the limit of file sizes then fails with an error, as on a full disk, and does
    // not end the process.
    std::signal(SIGXFSZ, SIG_IGN);
    if (!bc::chooseFolders(*options, error)) {
        std::fprintf(stderr, "brightclash: %s\n", error.c_str());
        return 2;
    }
    return play(*options);
}
