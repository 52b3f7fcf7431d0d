// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// Frames a second of the monitor that shows the current OpenGL window; 0 when unknown.
[[nodiscard]] double monitorRefreshRate();

}  // namespace bc
