// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "command/GameVar.h"
#include "core/Ticks.h"
#include "render/Renderer.h"
#include "support/TestFolders.h"
#include "support/TestImages.h"

#include <SDL/SDL.h>

#include <array>
#include <cstdlib>
#include <dlfcn.h>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

namespace bc::test {

/// What stands at a place of the window.
struct Seen {
    int r = 0;
    int g = 0;
    int b = 0;
};

inline std::ostream& operator<<(std::ostream& out, const Seen& s) {
    return out << s.r << ',' << s.g << ',' << s.b;
}

/// Whether a colour is what was expected but for the rounding of blending and filtering.
inline testing::AssertionResult isColour(const Seen& seen, int r, int g, int b, int tolerance = 6) {
    if (std::abs(seen.r - r) <= tolerance && std::abs(seen.g - g) <= tolerance &&
        std::abs(seen.b - b) <= tolerance)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << seen << " is not " << r << ',' << g << ',' << b;
}

/// A real window of 640 x 480 for each test, folders of its own and the renderer's variables at
/// plain values (bodies and outlines drawn, nothing else on). The clock is virtual, so that no
/// frame waits. Only for programs that run under tests/with_display.
class DisplayFixture : public TestFolders {
  protected:
    static constexpr int width = 640;
    static constexpr int height = 480;

    DisplayFixture() {
        keepDrivers();
        // Pictures need no sound, and a machine without it complains at length.
        setenv("SDL_AUDIODRIVER", "dummy", 0);
        useVirtualTicks(1000);
        for (const auto& [name, value] :
             {std::pair("drawbodies", "1"), {"drawoutlines", "1"}, {"cachetextureids", "1"}})
            vars().createOrSet(name, value, "");
        makeImage("data/images/fallback.png", 8, {255, 0, 255, 255});
        renderer = std::make_unique<Renderer>();
        logOf([this] {
            started_ = renderer->init() && renderer->setVideoMode(width, height, false);
        });
    }
    ~DisplayFixture() override {
        renderer.reset();
        SDL_Quit();
        vars().clearVars();
        useRealTicks();
    }
    void SetUp() override { ASSERT_TRUE(started_) << SDL_GetError(); }

    /// A square PNG of one colour in the data folder.
    void makeImage(const std::string& name, int side, const Pixel& colour) {
        put(data() + "/" + name, png(side, side, colour));
    }
    /// The picture so far; read it before endFrame.
    void look() { frame_ = renderer->readFrame(); }
    /// Pixels from the bottom left of what look saw last.
    [[nodiscard]] Seen at(int x, int y) const {
        if (!frame_ || x < 0 || y < 0 || x >= frame_->width || y >= frame_->height)
            return {-1, -1, -1};
        const std::uint8_t* p =
            &frame_->pixels[(static_cast<std::size_t>(y) * static_cast<std::size_t>(frame_->width) +
                             static_cast<std::size_t>(x)) *
                            3];
        return {p[0], p[1], p[2]};
    }
    /// The same at a place of the world, with the camera at the usual distance over x, y.
    [[nodiscard]] Seen atWorld(float x, float y, const Vector& camera) const {
        const float pixelsAUnit = static_cast<float>(height) / 512;
        return at(static_cast<int>(width * 0.5F + (x - camera.x) * pixelsAUnit),
                  static_cast<int>(height * 0.5F + (y - camera.y) * pixelsAUnit));
    }
    [[nodiscard]] const std::optional<Image>& frame() const { return frame_; }

    std::unique_ptr<Renderer> renderer;

  private:
    /// Mesa's libraries stay in memory to the end: otherwise the leak checker cannot name what
    /// they leave behind, and reports it.
    static void keepDrivers() {
        for (const char* library :
             {"libGLX_mesa.so.0", "/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so"})
            dlopen(library, RTLD_NOW | RTLD_NODELETE);
    }

    bool started_ = false;
    std::optional<Image> frame_;
};

}  // namespace bc::test
