// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"
#include "world/TypeNotes.h"

#include <string>
#include <type_traits>
#include <utility>
#include <variant>

class TiXmlElement;

namespace bc {

/// What a body class declares of its fields, in Body::fields. One declaration serves everything
/// that is done with them by name: a visitor of this interface reads a level, saves, restores,
/// dumps, or describes the type for level makers. Each purpose takes the declarations that concern
/// it, in the order in which they stand.
///
/// A declaration names the field as files do. fields() changes nothing by itself: what has to
/// happen when a value comes in stands in a setter.
class BodyFields {
  public:
    using Ref = std::variant<bool*, int*, float*, std::string*, Vector*, RGBAColour*>;

    virtual ~BodyFields() = default;

    /// What level tools know of the type beside its parameters.
    LevelNotes level() { return LevelNotes(onLevel()); }

    /// A custom attribute that level makers set by name (without regard to case). What they leave
    /// out stays as the class has it. meaning is for level makers, with the unit.
    template <class T>
    ParamNotes param(const char* name, T& field, const char* meaning) {
        return ParamNotes(onParam({name, meaning, &field}).info);
    }
    /// The same for a value that is more than one field: set(T) is called when it is given.
    template <class T, class Set>
    ParamNotes param(const char* name, T current, Set set, const char* meaning) {
        const Visit visit = onParam({name, meaning, &current});
        if (visit.outcome == Outcome::given)
            set(std::move(current));
        return ParamNotes(visit.info);
    }

    /// An attribute of a level object's element "params", which every body has. Missing numbers
    /// and texts read as nothing, missing values of other types stay.
    template <class T>
    ParamNotes placed(const char* name, T& field, const char* meaning) {
        return placed(name, field, meaning, absentValue(field));
    }
    template <class T>
    ParamNotes placed(const char* name, T& field, const char* meaning,
                      const std::type_identity_t<T>& absent) {
        const T kept = absent;
        const Visit visit = onPlaced({name, meaning, &field});
        if (visit.outcome == Outcome::absent)
            field = kept;
        return ParamNotes(visit.info);
    }
    /// The same for a value that is more than one field.
    template <class T, class Set>
    ParamNotes placedAs(const char* name, T current, Set set, const char* meaning) {
        const Visit visit = onPlaced({name, meaning, &current});
        if (visit.outcome != Outcome::none)
            set(visit.outcome == Outcome::given ? std::move(current) : T{});
        return ParamNotes(visit.info);
    }

    /// An attribute of a save. One that a save lacks reads as absent: by default 0 and false, while
    /// vectors, colours and texts stay as they are.
    template <class T>
    void saved(const char* name, T& field) {
        saved(name, field, absentValue(field));
    }
    template <class T>
    void saved(const char* name, T& field, const std::type_identity_t<T>& absent) {
        savedIf(true, name, field, absent);
    }
    /// The same for one that saves hold only while wanted is true.
    template <class T>
    void savedIf(bool wanted, const char* name, T& field, const std::type_identity_t<T>& absent) {
        const T kept = absent;
        if (onSaved(name, &field, wanted) == Outcome::absent)
            field = kept;
    }
    /// The same for a value that is made up for the save; set(T) takes it back, T{} when it is
    /// missing.
    template <class T, class Set>
    void savedAs(const char* name, T current, Set set) {
        const Outcome outcome = onSaved(name, &current, true);
        if (outcome != Outcome::none)
            set(outcome == Outcome::given ? std::move(current) : T{});
    }
    /// A part with functions of its own for elements: saveState(e, digits), loadState(e, digits).
    template <class Part>
    void savedPart(Part& part) {
        if (const Writing to = writingState(); to.element != nullptr)
            part.saveState(*to.element, to.digits);
        else if (const Reading from = readingState(); from.element != nullptr)
            part.loadState(*from.element, from.digits);
    }

    /// An attribute of the debug element of a world dump.
    template <class T>
    void shown(const char* name, const T& value) {
        if constexpr (std::is_invocable_v<const T&>) {
            if (wantsShown())
                shown(name, value());
        } else {
            T copy = value;
            onShown(name, &copy);
        }
    }
    /// A part with a function of its own: dumpState(e).
    template <class Part>
    void shownPart(const Part& part) {
        if (TiXmlElement* to = dumping())
            part.dumpState(*to);
    }

    /// Saved and shown under the same name.
    template <class T>
    void kept(const char* name, T& field) {
        saved(name, field);
        shown(name, field);
    }
    template <class T>
    void kept(const char* name, T& field, const std::type_identity_t<T>& absent) {
        saved(name, field, absent);
        shown(name, field);
    }

  protected:
    /// What a visitor did with a declaration: it did not read it, or it found no value, or the
    /// field has the value that it found.
    enum class Outcome { none, absent, given };
    struct Visit {
        Outcome outcome = Outcome::none;
        ParamInfo* info = nullptr;
    };
    struct Declared {
        const char* name;
        const char* meaning;
        Ref value;
    };
    struct Writing {
        TiXmlElement* element = nullptr;
        Digits digits = Digits::usual;
    };
    struct Reading {
        const TiXmlElement* element = nullptr;
        Digits digits = Digits::usual;
    };

    virtual LevelTraits* onLevel() { return nullptr; }
    virtual Visit onParam(const Declared&) { return {}; }
    virtual Visit onPlaced(const Declared&) { return {}; }
    virtual Outcome onSaved(const char* /*name*/, Ref, bool /*wanted*/) { return Outcome::none; }
    virtual Writing writingState() { return {}; }
    virtual Reading readingState() { return {}; }
    [[nodiscard]] virtual bool wantsShown() const { return false; }
    virtual void onShown(const char* /*name*/, Ref) {}
    virtual TiXmlElement* dumping() { return nullptr; }

  private:
    template <class T>
    static T absentValue(const T& field) {
        if constexpr (std::is_arithmetic_v<T>)
            return T{};
        else
            return field;
    }
};

}  // namespace bc
