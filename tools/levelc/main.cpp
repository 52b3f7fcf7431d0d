// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "AssetIndex.h"
#include "BodyTypes.h"
#include "EditorTypes.h"
#include "Level.h"
#include "LevelCompiler.h"
#include "Problems.h"
#include "TiledMap.h"
#include "XmlFile.h"

#include "resources/FileSystem.h"
#include "resources/GameFolders.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

using namespace bc::levelc;

constexpr const char* usage =
    "levelc [--game DIR] [--user DIR] MAP.tmx LEVEL   compiles a map of the Tiled editor into a "
    "level\n"
    "levelc ASSETS MAP.tmx LEVEL                      the same beside the sources of the game's "
    "data\n"
    "levelc --write ASSETS                            makes the editor's types and "
    "docs/bodytypes.md anew\n"
    "\n"
    "LEVEL is the level file or the folder that it goes to, as USER/maps. The pictures, sounds and "
    "skies\n"
    "that the map names must be in the game's folder (--game, with data/ in it; without it the "
    "installed\n"
    "game's) or in the user's (--user), or have a source in ASSETS.\n";

int fail(const std::string& text) {
    std::cerr << text << '\n';
    return 1;
}

int misuse(const std::string& text) {
    std::cerr << text << '\n' << usage;
    return 2;
}

/// The level file that a map becomes.
std::string levelFile(const std::string& map, const std::string& target) {
    const std::filesystem::path path = target;
    std::error_code ignored;
    if (!std::filesystem::is_directory(path, ignored))
        return target;
    return (path / std::filesystem::path(map).stem()).string() + ".xml";
}

int compile(const AssetIndex& assets, const std::string& map, const std::string& target) {
    Problems problems(map);
    std::string text;
    std::string error = readFile(map, text);
    if (!error.empty())
        return fail(map + ": " + error);
    const TiledMap tiled = readTiledMap(text, problems);
    const Level level = compileLevel(tiled, BodyTypes(), assets, problems);
    for (const std::string& line : problems.lines())
        std::cerr << line << '\n';
    if (!problems.empty())
        return 1;
    const std::string file = levelFile(map, target);
    error = replaceFile(file, writeLevel(level));
    return error.empty() ? 0 : fail(file + ": " + error);
}

int compileBesideSources(const std::string& assets, const std::string& map,
                         const std::string& target) {
    if (!std::filesystem::is_directory(assets + "/images"))
        return fail(assets + ": holds no sources of the game's data");
    return compile(SourceAssets(assets), map, target);
}

int compileForGame(std::string game, std::string user, const std::string& map,
                   const std::string& target) {
    if (game.empty())
        game = bc::shippedFolder().string();
    if (!bc::isGameFolder(game))
        return fail(game + ": holds no game; name its folder with --game");
    if (user.empty())
        user = bc::personalFolder().string();
    bc::files::setFolders(user, game);
    return compile(GameAssets(), map, target);
}

int writeEditorTypes(const std::string& assets) {
    const BodyTypes types;
    const std::vector<std::pair<std::string, std::string>> files{
        {assets + "/maps/brightclash.tiled-project", tiledProject(types)},
        {assets + "/maps/objecttypes.xml", objectTypes(types)},
        {assets + "/../docs/bodytypes.md", levelReference(types)}};
    for (const auto& [path, text] : files) {
        std::string error = replaceFile(path, text);
        if (!error.empty())
            return fail(error.insert(0, path + ": "));
    }
    return 0;
}

int run(std::vector<std::string> arguments) {
    std::map<std::string, std::string> options{{"--game", ""}, {"--user", ""}, {"--write", ""}};
    std::vector<std::string> names;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (word == "--help" || word == "-h") {
            std::cout << usage;
            return 0;
        }
        if (word.rfind("--", 0) != 0) {
            names.push_back(word);
            continue;
        }
        const auto option = options.find(word);
        if (option == options.end() || i + 1 == arguments.size())
            return misuse(option == options.end() ? "unknown option " + word
                                                  : word + " needs a folder");
        option->second = arguments[++i];
    }
    if (!options["--write"].empty() && names.empty())
        return writeEditorTypes(options["--write"]);
    if (names.size() == 2)
        return compileForGame(options["--game"], options["--user"], names[0], names[1]);
    if (names.size() == 3)
        return compileBesideSources(names[0], names[1], names[2]);
    return misuse("expected a map and a level");
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& e) {
        return fail(e.what());
    }
}
