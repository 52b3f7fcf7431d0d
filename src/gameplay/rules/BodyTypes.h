// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/TypeNotes.h"

#include <memory>
#include <span>
#include <string_view>

namespace bc {

class Body;

/// A row of the table of body types. What else there is to know of a type its class declares
/// (Body::fields).
struct BodyTypeRow {
    /// As level files and spawners name it.
    std::string_view name;
    /// Groups types in documents and in the level editor.
    std::string_view use;
    /// A new object; its type is set by who asks.
    std::unique_ptr<Body> (*make)();
    /// One line for level makers.
    std::string_view purpose;
    /// Adds to the level traits that the class declares, for types that share a class.
    void (*traits)(LevelNotes notes) = nullptr;
};

/// What types are for. Those of use "runtime" are made by the game alone and stand in no level.
struct BodyUse {
    std::string_view name;
    /// "#rrggbb", the colour of objects in the level editor.
    std::string_view colour;
    std::string_view meaning;
};

/// Plain level geometry: the type "default", which is a body that is nothing more.
[[nodiscard]] const BodyTypeRow& plainBodyType();
/// Every other type, in the order of registration.
[[nodiscard]] std::span<const BodyTypeRow> bodyTypes();
/// In the order of documents.
[[nodiscard]] std::span<const BodyUse> bodyUses();

}  // namespace bc
