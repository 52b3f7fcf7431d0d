// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Apart from the rest because the window system's headers claim common words.
#include "render/RefreshRate.h"

#include <GL/glx.h>

#include <cstdint>
#include <cstring>

namespace bc {

double monitorRefreshRate() {
    Display* display = glXGetCurrentDisplay();
    const GLXDrawable window = glXGetCurrentDrawable();
    if (display == nullptr || window == 0)
        return 0;
    const char* extensions = glXQueryExtensionsString(display, DefaultScreen(display));
    if (extensions == nullptr || std::strstr(extensions, "GLX_OML_sync_control") == nullptr)
        return 0;
    using GetRate = Bool (*)(Display*, GLXDrawable, std::int32_t*, std::int32_t*);
    const auto getRate = reinterpret_cast<GetRate>(
        glXGetProcAddress(reinterpret_cast<const GLubyte*>("glXGetMscRateOML")));
    std::int32_t numerator = 0;
    std::int32_t denominator = 0;
    if (getRate == nullptr || getRate(display, window, &numerator, &denominator) == False ||
        denominator <= 0)
        return 0;
    return static_cast<double>(numerator) / denominator;
}

}  // namespace bc
