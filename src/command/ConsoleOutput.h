// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace bc {

/// Shows lines to the user. Colour channels are 0 to 255.
class ConsoleOutput {
  public:
    virtual ~ConsoleOutput() = default;
    virtual void print(std::string_view text) = 0;
    virtual void printColoured(std::string_view text, int r, int g, int b, int a) = 0;
    virtual void printWarning(std::string_view text) = 0;
    virtual void printDebug(std::string_view text) = 0;
};

}  // namespace bc
