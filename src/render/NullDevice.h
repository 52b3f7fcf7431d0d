// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/RenderDevice.h"

namespace bc {

/// Draws nothing; its frames are black.
class NullDevice final : public RenderDevice {
  public:
    void uploadTexture(int /*id*/, const Image& /*image*/, bool /*clamp*/) override {}
    void deleteTexture(int /*id*/) override {}
    QuadVertex* allot(Primitive /*primitive*/, const DrawState& /*state*/,
                      std::size_t /*corners*/) override {
        return nullptr;
    }
    TexturePlace placeOf(int texture, bool /*tiles*/) const override {
        return {.texture = texture};
    }
    void reset() override {}
    void setProjection(const Matrix4& /*projection*/) override {}
    void setViewport(int /*x*/, int /*y*/, int /*width*/, int /*height*/) override {}
    void clear() override {}
    void makeBlankTexture(int /*id*/, int /*width*/, int /*height*/) override {}
    void copyFrameToTexture(int /*id*/, int /*width*/, int /*height*/) override {}
    std::optional<Image> readFrame(int width, int height) override {
        const std::size_t bytes =
            static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3;
        return Image{width, height, 24, std::vector<std::uint8_t>(bytes)};
    }
};

}  // namespace bc
