// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Text.h"

#include <concepts>
#include <memory>
#include <ostream>
#include <string_view>

namespace bc {

/// Writes the operations of one frame as lines: the name, then the arguments, between spaces.
class FrameRecorder {
  public:
    FrameRecorder() = default;
    ~FrameRecorder() = default;
    FrameRecorder(const FrameRecorder&) = delete;
    FrameRecorder& operator=(const FrameRecorder&) = delete;

    /// From the next frame's beginning to its end.
    void request(std::unique_ptr<std::ostream> out) { waiting_ = std::move(out); }
    void frameBegins() {
        if (waiting_)
            out_ = std::move(waiting_);
    }
    void frameEnds() { out_.reset(); }
    [[nodiscard]] bool isActive() const { return out_ != nullptr; }

    template <class... Arguments>
    void operation(std::string_view name, const Arguments&... arguments) {
        if (!out_)
            return;
        put(name);
        (write(arguments), ...);
        *out_ << '\n';
    }

  private:
    void write(std::floating_point auto number) {
        *out_ << ' ' << formatFloat(static_cast<float>(number));
    }
    void write(std::integral auto number) { *out_ << ' ' << +number; }
    void write(bool flag) { *out_ << ' ' << boolText(flag); }
    void write(std::string_view text) {
        *out_ << ' ';
        put(text);
    }
    /// A line break in a text or a name of a level would tear the line apart.
    void put(std::string_view text) {
        for (const char c : text)
            out_->put(static_cast<unsigned char>(c) < ' ' ? ' ' : c);
    }

    std::unique_ptr<std::ostream> waiting_;
    std::unique_ptr<std::ostream> out_;
};

}  // namespace bc
