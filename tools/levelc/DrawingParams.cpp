// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "DrawingParams.h"

#include <utility>

namespace bc::levelc {

namespace {

Param drawing(const char* name, ParamKind kind, const char* doc) {
    Param param;
    param.name = name;
    param.kind = kind;
    param.doc = doc;
    param.place = ParamPlace::Drawing;
    param.common = true;
    return param;
}

Param withDefault(Param param, const char* text) {
    param.defaultText = text;
    return param;
}

Param choice(const char* name, std::vector<std::string> values, const char* doc) {
    Param param = drawing(name, ParamKind::choice, doc);
    param.choiceName = name;
    param.defaultText = values.front();
    param.choices = std::move(values);
    return param;
}

}  // namespace

std::vector<Param> drawingParams() {
    return {
        withDefault(
            drawing("colour", ParamKind::colour, "Colour of the polygon, or tint of its texture."),
            "#ffffffff"),
        drawing("colour2", ParamKind::colour, "Colour at the far end of a gradient."),
        choice("gradient", {"down", "up", "right", "left"},
               "Direction in which colour turns into colour2."),
        choice("texmap", {"world", "fit"},
               "world: the picture continues over neighbouring objects; fit: it covers the object "
               "once."),
        withDefault(drawing("texsize", ParamKind::number,
                            "World units that one picture covers when it is mapped to the world."),
                    "128"),
        drawing(
            "edge", ParamKind::colour,
            "Lays a luminous line along the edges, except where another edged polygon adjoins."),
        withDefault(
            drawing("edgewidth", ParamKind::number, "Width of that line, with its soft sides."),
            "7"),
        withDefault(drawing("edgeglow", ParamKind::boolean, "That line takes part in the bloom."),
                    "true"),
    };
}

}  // namespace bc::levelc
