// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The variables, key names and default bindings that the game comes with.
#include "core/Text.h"
#include "input/GameInput.h"
#include "input/InputManager.h"
#include "support/ConsoleFixture.h"
#include "support/Places.h"

#include <gmock/gmock.h>

#include <set>

namespace bc {
namespace {

class ShippedDataTest : public ConsoleFixture {
  protected:
    ShippedDataTest() {
        files::setFolders(user(), test::sourcePath("assets"));
        log = logOf([this] {
            vars().loadDeclarations("data/gamevars.xml");
            input.loadKeymap("data/keymaps.xml");
            bindings.init();
        });
    }

    InputManager input;
    GameInput bindings;
    std::string log;
};

TEST_F(ShippedDataTest, EveryVariableIsTypedDescribedAndOfItsType) {
    EXPECT_EQ(log, "Found on disk: data/gamevars.xml\nFound on disk: data/keymaps.xml\n");
    EXPECT_GT(vars().all().size(), 40U);
    for (const auto& [name, var] : vars().all()) {
        EXPECT_NE(var->type, VarType::untyped) << name;
        EXPECT_FALSE(var->description.empty()) << name;
        if (var->type == VarType::integer) {
            EXPECT_EQ(var->value(), std::to_string(var->intValue())) << name;
        }
        // Strings with a blank would be read back as their first word only.
        EXPECT_EQ(var->value().find_first_of(" ;"), std::string::npos) << name;
        EXPECT_EQ(var->value().find("//"), std::string::npos) << name;
    }
}

TEST_F(ShippedDataTest, KeysThatTheGameComparesHaveTheirNames) {
    for (const auto& [code, name] : std::vector<std::pair<int, const char*>>{{27, "ESCAPE"},
                                                                             {13, "RETURN"},
                                                                             {271, "KP_ENTER"},
                                                                             {8, "BACKSPACE"},
                                                                             {280, "PAGEUP"},
                                                                             {281, "PAGEDOWN"},
                                                                             {273, "UP"},
                                                                             {274, "DOWN"},
                                                                             {9, "TAB"},
                                                                             {96, "`"},
                                                                             {32, "SPACE"},
                                                                             {97, "A"},
                                                                             {122, "Z"},
                                                                             {48, "0"},
                                                                             {57, "9"},
                                                                             {282, "F1"},
                                                                             {296, "F15"},
                                                                             {304, "LSHIFT"}})
        EXPECT_EQ(input.keyName(code), name);
}

TEST_F(ShippedDataTest, KeyNamesAreUniqueAndCanBeBound) {
    std::set<std::string> seen;
    for (int code = 0; code < 512; ++code) {
        const std::string& name = input.keyName(code);
        if (name.empty())
            continue;
        EXPECT_TRUE(seen.insert(name).second) << name;
        run("bind " + name + " test");
        EXPECT_EQ(bindings.bindings().at(lowerCase(name)), "test") << name;
        run("unbind " + name);
        EXPECT_EQ(bindings.bindings().at(lowerCase(name)), "") << name;
    }
    EXPECT_GT(seen.size(), 120U);
}

TEST_F(ShippedDataTest, DefaultBindingsAreOfKeysThatExist) {
    run("exec config.txt");
    EXPECT_THAT(lines, testing::ElementsAre("Found: data/config.txt", "executed data/config.txt"));
    run("exec userconfig.txt");
    EXPECT_EQ(lines.size(), 2U);
    EXPECT_GT(bindings.bindings().size(), 30U);
    const std::set<std::string> mouse = {"mouse1", "mouse2", "mouse3", "mwheelup", "mwheeldown"};
    for (const auto& [key, command] : bindings.bindings())
        EXPECT_TRUE(mouse.contains(key) || input.findKey(key)) << key;
    for (const char* command :
         {"+moveleft", "+moveright", "+moveup", "+movedown", "+showupgrades", "+showmap", "+attack",
          "+fire 1", "+fire 10", "useitem pistol", "useitem lightninggun", "nextweap", "prevweap"})
        EXPECT_NE(bindings.keyForCommand(command), "unbound") << command;
}

}  // namespace
}  // namespace bc
