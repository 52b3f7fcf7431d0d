// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/NullDevice.h"
#include "render/RendererBase.h"

namespace bc {

namespace detail {

struct NullDeviceHolder {
    NullDevice device;
};

}  // namespace detail

/// The renderer without a window: nothing is drawn, but places, textures, fonts, pictures and
/// frame dumps are those of a window of 1024 x 768, whatever mode is asked for. Pictures that it
/// takes are black.
class HeadlessRenderer final : private detail::NullDeviceHolder, public RendererBase {
  public:
    HeadlessRenderer();

    bool init() override;
    bool initWindow() override;
    bool setVideoMode(int width, int height, bool fullscreen) override;

  protected:
    void present() override {}
};

}  // namespace bc
