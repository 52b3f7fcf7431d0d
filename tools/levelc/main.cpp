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

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace bc::levelc;

constexpr const char* usage =
    "levelc ASSETS MAP.tmx LEVEL.xml   compiles a map of the Tiled editor into a level\n"
    "levelc --write ASSETS             makes the editor's types and docs/bodytypes.md anew\n"
    "ASSETS is the folder with maps/bodytypes.xml and the sources of pictures and sounds.\n";

int fail(const std::string& text) {
    std::cerr << text << '\n';
    return 1;
}

/// 0, or 1 when the table is not in order.
int readTypes(const std::string& assets, BodyTypes& types) {
    const std::string path = assets + "/maps/bodytypes.xml";
    std::string text;
    std::string error = readFile(path, text);
    if (error.empty())
        error = types.read(text);
    return error.empty() ? 0 : fail(path + ": " + error);
}

int compile(const std::string& assets, const std::string& map, const std::string& target) {
    BodyTypes types;
    if (readTypes(assets, types) != 0)
        return 1;
    Problems problems(map);
    std::string text;
    std::string error = readFile(map, text);
    if (!error.empty())
        return fail(map + ": " + error);
    const TiledMap tiled = readTiledMap(text, problems);
    const Level level = compileLevel(tiled, types, AssetIndex(assets), problems);
    for (const std::string& line : problems.lines())
        std::cerr << line << '\n';
    if (!problems.empty())
        return 1;
    error = replaceFile(target, writeLevel(level));
    return error.empty() ? 0 : fail(target + ": " + error);
}

int writeEditorTypes(const std::string& assets) {
    BodyTypes types;
    if (readTypes(assets, types) != 0)
        return 1;
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

}  // namespace

int main(int argc, char** argv) {
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        if (arguments.size() == 2 && arguments[0] == "--write")
            return writeEditorTypes(arguments[1]);
        if (arguments.size() == 3 && arguments[0].rfind("--", 0) != 0)
            return compile(arguments[0], arguments[1], arguments[2]);
        std::cerr << usage;
        return 2;
    } catch (const std::exception& e) {
        return fail(e.what());
    }
}
