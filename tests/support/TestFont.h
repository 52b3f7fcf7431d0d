// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace bc::test {

struct TestGlyph {
    int width = 0;
    int height = 0;
    int top = 0;
    float advance = 0;
};

/// A font file of count descriptors, whose glyphs all lie at the top left corner of its one page.
inline std::string fontFile(int count, const std::string& page,
                            const std::function<TestGlyph(int code)>& glyph) {
    std::string text = "<f size='99' name='inner'><descriptors>";
    for (int code = 0; code < count; ++code) {
        const TestGlyph g = glyph(code);
        text += "<c charcode='" + std::to_string(code) + "' image='" + page +
                "' x='0' y='256' s='9' width='" + std::to_string(g.width) + "' height='" +
                std::to_string(g.height) + "' top='" + std::to_string(g.top) + "' xadvance='" +
                std::to_string(g.advance) + "'/>";
    }
    return text + "</descriptors><imageindex><i filename='" + page + "'/></imageindex></f>";
}

}  // namespace bc::test
