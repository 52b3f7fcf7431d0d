// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

/// While it lives, standard output goes to a file of the user folder; afterwards it points again
/// to where it pointed before. A file that cannot be opened leaves standard output as it is.
class OutputLog {
  public:
    explicit OutputLog(const std::string& name);
    ~OutputLog();
    OutputLog(const OutputLog&) = delete;
    OutputLog& operator=(const OutputLog&) = delete;

  private:
    int saved_ = -1;
};

}  // namespace bc
