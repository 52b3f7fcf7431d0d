// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "command/GameVar.h"

#include "command/CommandRegistry.h"
#include "command/ConsoleColours.h"
#include "core/Log.h"
#include "core/Text.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

namespace bc {

namespace {

void readType(const TiXmlElement& declaration, GameVar& var) {
    if (!xml::has(declaration, "type")) {
        logLine("ERROR: no type defined in gamevars.xml for gamevar: " +
                xml::readString(declaration, "name"));
        return;
    }
    const std::string type = xml::readString(declaration, "type");
    if (equalsNoCase(type, "int"))
        var.type = VarType::integer;
    else if (equalsNoCase(type, "float"))
        var.type = VarType::real;
    else if (equalsNoCase(type, "string"))
        var.type = VarType::text;
}

/// Sets the variable to the first argument. Without arguments the log and the console tell its
/// value.
void showOrSet(GameVar& var, const std::vector<std::string>& args) {
    if (!args.empty()) {
        var.setString(args.front());
        return;
    }
    const std::string line = var.name + " = " + var.value();
    logLine(line);
    consolePrint(line);
}

void listVariables(const VarRegistry& registry, const CommandRegistry& interpreter) {
    const std::string prefix = interpreter.arg(0);
    consolePrintColoured("    Variable Listings", colours::gold);
    consolePrintColoured("    varname = value : description", colours::white);
    int count = 0;
    for (const auto& [name, var] : registry.all()) {
        if (!name.starts_with(prefix))
            continue;
        consolePrint("    " + name + " = " + var->value() + " : " + var->description);
        ++count;
    }
    consolePrintColoured("    Found " + std::to_string(count) + " Variables", colours::gold);
}

}  // namespace

void GameVar::setString(std::string_view text) {
    if (!equalsNoCase(text, value_))
        changed = true;
    value_ = text;
    intValue_ = parseInt(value_);
    floatValue_ = parseFloat(value_);
    if (onChange)
        onChange();
}

void GameVar::setInt(int n) {
    if (n != intValue_)
        changed = true;
    value_ = std::to_string(n);
    intValue_ = n;
    floatValue_ = static_cast<float>(n);
    if (onChange)
        onChange();
}

GameVar* VarRegistry::findVar(std::string_view name) {
    const auto found = vars_.find(lowerCase(name));
    return found != vars_.end() ? found->second.get() : nullptr;
}

GameVar* VarRegistry::getVar(std::string_view name) {
    if (GameVar* var = findVar(name))
        return var;
    logLine(std::string(name) + " var has no initialised value, creating a new var");
    return createOrSet(name, "", "");
}

GameVar* VarRegistry::createOrSet(std::string_view name, std::string_view value,
                                  std::string_view description) {
    std::unique_ptr<GameVar>& slot = vars_[lowerCase(name)];
    if (slot) {
        slot->setString(value);
        return slot.get();
    }
    slot = std::make_unique<GameVar>();
    slot->name = lowerCase(name);
    slot->description = description;
    slot->setString(value);
    slot->changed = false;
    return slot.get();
}

void VarRegistry::setVar(std::string_view name, std::string_view value) {
    if (GameVar* var = findVar(name))
        var->setString(value);
    else
        createOrSet(name, value, "");
}

void VarRegistry::toggleVar(std::string_view name) {
    if (GameVar* var = findVar(name))
        var->setString(var->intValue() == 0 ? "1" : "0");
}

void VarRegistry::writeVariables(std::ostream& out) const {
    out << "\n\n//variables\n\n";
    for (const auto& [name, var] : vars_) {
        switch (var->type) {
            case VarType::integer:
                out << name << ' ' << std::to_string(var->intValue());
                break;
            case VarType::real:
                out << name << ' ' << formatFloat(var->floatValue());
                break;
            case VarType::text:
                out << name << ' ' << var->value();
                break;
            case VarType::untyped:
                break;
        }
        out << '\n';
    }
    out << '\n';
}

void VarRegistry::clearVars() {
    vars_.clear();
}

void VarRegistry::loadDeclarations(const std::string& path) {
    TiXmlDocument document;
    if (!resourceManager().loadXML(document, path)) {
        logLine("Could not load gamevars file: " + path);
        return;
    }
    for (const TiXmlElement* e = document.RootElement()->FirstChildElement(); e != nullptr;
         e = e->NextSiblingElement()) {
        GameVar* var = createOrSet(xml::readString(*e, "name"), xml::readString(*e, "value"),
                                   xml::readString(*e, "description"));
        readType(*e, *var);
    }
}

void VarRegistry::registerBuiltinCommands() {
    CommandRegistry& interpreter = commands();
    interpreter.registerCommand("set a variable", "set", [this, &interpreter] {
        if (interpreter.argCount() < 2)
            consolePrint("Invalid Usage! Proper Usage: set varname value");
        else
            setVar(interpreter.args()[0], interpreter.args()[1]);
    });
    interpreter.registerCommand("toggle a variable", "toggle", [this, &interpreter] {
        if (interpreter.argCount() < 1)
            consolePrint("Invalid Usage! Proper Usage: toggle varname");
        else
            toggleVar(interpreter.args()[0]);
    });
    interpreter.registerCommand("list all the variables", "listvars",
                                [this, &interpreter] { listVariables(*this, interpreter); });
    interpreter.setFallback([this](const std::string& name, const std::vector<std::string>& args) {
        GameVar* var = findVar(name);
        if (var != nullptr)
            showOrSet(*var, args);
        return var != nullptr;
    });
}

VarRegistry& vars() {
    static VarRegistry instance;
    return instance;
}

}  // namespace bc
