// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/XmlGuard.h"

#include <algorithm>

namespace bc {

namespace {

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 128;
}
bool isNameCharacter(char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == ':';
}

/// Steps through the tags of a text as the parser does and counts levels, attributes and tags. It
/// stops at the first tag that is not well formed, since it cannot know how the parser goes on.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    std::string run() {
        for (;;) {
            at_ = text_.find('<', at_);
            if (at_ == std::string_view::npos)
                return {};
            const std::size_t markup = at_;
            if (!scanMarkup())
                return judgeRest(markup);
            if (depth_ > maxXmlDepth)
                return "elements are nested deeper than " + std::to_string(maxXmlDepth) + " levels";
            if (++pieces_ > maxXmlPieces)
                return "more than " + std::to_string(maxXmlPieces) + " tags and attributes";
        }
    }

  private:
    /// The answer for a text whose tag at byte markup is not well formed. The parser may take every
    /// "<" from there on as the start of one more level.
    std::string judgeRest(std::size_t markup) const {
        if (attributes_ > maxXmlAttributes)
            return "an element has more than " + std::to_string(maxXmlAttributes) + " attributes";
        const auto more =
            std::count(text_.begin() + static_cast<std::string_view::difference_type>(markup),
                       text_.end(), '<');
        if (depth_ + more <= maxXmlDepth)
            return {};
        return "malformed markup at byte " + std::to_string(markup);
    }

    /// Steps past the tag, comment or other markup at at_. False when it is not well formed; where
    /// at_ is then does not matter.
    bool scanMarkup() {
        if (startsWith("<!--"))
            return skipPast("-->", 4);
        if (startsWith("<![CDATA["))
            return skipPast("]]>", 9);
        if (startsWith("<!"))
            return skipPast(">", 2);
        if (startsWith("<?"))
            return scanInstruction();
        if (startsWith("</"))
            return scanEndTag();
        return scanStartTag();
    }

    [[nodiscard]] bool startsWith(std::string_view what) const {
        return text_.substr(at_, what.size()) == what;
    }

    /// Looks for `what` at least `from` bytes after at_ and moves past it; to the end of the text
    /// when it is not there. Always true.
    bool skipPast(std::string_view what, std::size_t from) {
        const std::size_t found = text_.find(what, at_ + from);
        at_ = found == std::string_view::npos ? text_.size() : found + what.size();
        return true;
    }

    /// The parser reads quoted values only in an XML declaration. It ends every other instruction
    /// at the first ">", even between quotes.
    bool scanInstruction() {
        const auto letter = [this](std::size_t i) {
            return at_ + i < text_.size() ? static_cast<char>(text_[at_ + i] | 0x20) : '\0';
        };
        if (letter(2) != 'x' || letter(3) != 'm' || letter(4) != 'l')
            return skipPast(">", 2);
        at_ += 5;
        for (;;) {
            const bool spaced = skipSpaces();
            if (startsWith("?>")) {
                at_ += 2;
                return true;
            }
            if (!spaced)
                return false;
            const std::size_t name = at_;
            if (!skipName())
                return false;
            const std::string_view word = text_.substr(name, at_ - name);
            if (word != "version" && word != "encoding" && word != "standalone")
                return false;
            if (!skipValue())
                return false;
        }
    }

    bool scanStartTag() {
        ++at_;
        if (!skipName())
            return false;
        if (++depth_ > maxXmlDepth)
            return true;
        attributes_ = 0;
        for (;;) {
            const bool spaced = skipSpaces();
            if (startsWith(">")) {
                ++at_;
                return true;
            }
            if (startsWith("/>")) {
                at_ += 2;
                --depth_;
                return true;
            }
            if (!spaced || ++attributes_ > maxXmlAttributes)
                return false;
            if (!skipName() || !skipValue())
                return false;
            ++pieces_;
        }
    }

    bool scanEndTag() {
        at_ += 2;
        if (!skipName())
            return false;
        skipSpaces();
        if (!startsWith(">"))
            return false;
        ++at_;
        depth_ = std::max(depth_ - 1, 0);
        return true;
    }

    bool skipName() {
        if (at_ >= text_.size() || !isLetter(text_[at_]))
            return false;
        while (at_ < text_.size() && isNameCharacter(text_[at_]))
            ++at_;
        return true;
    }

    bool skipSpaces() {
        const std::size_t from = at_;
        while (at_ < text_.size() && isSpace(text_[at_]))
            ++at_;
        return at_ != from;
    }

    bool skipValue() {
        skipSpaces();
        if (!startsWith("="))
            return false;
        ++at_;
        skipSpaces();
        if (at_ >= text_.size() || (text_[at_] != '"' && text_[at_] != '\''))
            return false;
        const std::size_t end = text_.find(text_[at_], at_ + 1);
        if (end == std::string_view::npos)
            return false;
        at_ = end + 1;
        return true;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int depth_ = 0;
    int attributes_ = 0;
    int pieces_ = 0;
};

/// The length in bytes of a UTF-8 sequence with this first byte; 0 when it cannot be a first byte.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

}  // namespace

std::string xmlRefusal(std::string_view text) {
    if (text.find('\0') != std::string_view::npos)
        return "the text holds NUL bytes";
    return Scanner(text).run();
}

bool isUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = sequenceLength(static_cast<unsigned char>(text[i]));
        if (length == 0 || length > text.size() - i)
            return false;
        for (std::size_t k = 1; k < length; ++k) {
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0U) != 0x80U)
                return false;
        }
        i += length;
    }
    return true;
}

}  // namespace bc
