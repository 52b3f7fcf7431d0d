// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Runs the input line by line as commands, types it into the console, and uses it as a script that
// may run itself.
#include "FuzzFolder.h"

#include "command/CommandRegistry.h"
#include "command/GameVar.h"
#include "input/Console.h"
#include "input/GameInput.h"

#include <cstdlib>
#include <sstream>

namespace {

/// The file commands are left out: they write and list by themselves.
void setUp(bc::Console& console, bc::GameInput& input) {
    bc::commands().clearCommands();
    bc::vars().clearVars();
    bc::commands().setOutput(&console);
    bc::commands().registerCommand("", "condump", [] {});
    bc::commands().registerBuiltinCommands();
    bc::vars().registerBuiltinCommands();
    console.init(nullptr);
    input.init();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static bc::FuzzFolder folder;
    std::filesystem::create_directories(bc::files::userFolder() + "/data");
    folder.put("data/s", data, size);
    {
        bc::Console console;
        bc::GameInput input;
        setUp(console, input);
        bc::commands().execute("exec s");
        if (bc::commands().argCount() != 0)
            std::abort();
        for (std::size_t i = 0; i < size && i < 200; ++i)
            console.keyDown(data[i], data[i],
                            data[i] == '\n' ? "return" : (data[i] == '\t' ? "tab" : ""));
        if (console.getInput().size() > bc::Console::maxInput)
            std::abort();
        for (const auto& [key, command] : input.bindings()) {
            input.keyDown(0, 0, key);
            input.keyUp(0, 0, key);
            if (console.getLines().size() > 20000)
                break;
        }
        std::ostringstream out;
        input.writeBindings(out);
        bc::vars().writeVariables(out);
        bc::commands().clearCommands();
    }
    return 0;
}
