// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/FrameClock.h"
#include "render/GlDevice.h"
#include "render/RendererBase.h"

namespace bc {

namespace detail {

/// A base of its own so that the device is there before RendererBase and goes after it.
struct GlDeviceHolder {
    GlDevice device;
};

}  // namespace detail

/// The renderer with a window: SDL for window and modes, OpenGL for what is in it. The caller
/// quits SDL after the renderer is gone.
class Renderer final : private detail::GlDeviceHolder, public RendererBase {
  public:
    Renderer();
    ~Renderer() override;

    /// Starts SDL with a window of the desktop's size. False when there is no display or no
    /// OpenGL; SDL_GetError tells why.
    bool init() override;
    bool initWindow() override;
    /// A mode that cannot be had becomes a window of 640 x 480; false when not even that can.
    bool setVideoMode(int width, int height, bool fullscreen) override;

  protected:
    void present() override;

  private:
    FrameLimiter limiter_;
};

}  // namespace bc
