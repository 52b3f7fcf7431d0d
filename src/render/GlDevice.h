// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "render/RenderDevice.h"
#include "render/TexturePages.h"

#include <vector>

namespace bc {

/// Draws through OpenGL in batches from client memory: corners are collected as long as primitive
/// and state stay the same, and GL state is only touched where it differs from what is set.
/// Needs a current context from the first reset to close.
class GlDevice final : public RenderDevice {
  public:
    GlDevice();

    void uploadTexture(int id, const Image& image, bool clamp) override;
    void deleteTexture(int id) override;
    QuadVertex* allot(Primitive primitive, const DrawState& state, std::size_t corners) override;
    TexturePlace placeOf(int texture, bool tiles) const override;
    void reset() override;
    void setProjection(const Matrix4& projection) override;
    void setViewport(int x, int y, int width, int height) override;
    void clear() override;
    void makeBlankTexture(int id, int width, int height) override;
    void copyFrameToTexture(int id, int width, int height) override;
    std::optional<Image> readFrame(int width, int height) override;

    /// Draws what is still collected.
    void flush();
    /// The context is gone or about to go; nothing reaches GL until the next reset.
    void close() { open_ = false; }

  private:
    void apply(const DrawState& state);
    void applyBlend(Blend blend);
    void bind(int id);

    bool open_ = false;
    std::vector<QuadVertex> corners_;
    std::size_t count_ = 0;
    Primitive primitive_ = Primitive::quads;
    DrawState pending_;
    /// What GL has at this moment. The texture survives in its binding while texturing is off.
    DrawState actual_;
    int boundTexture_ = 0;
    TexturePages pages_;
    /// By texture id; texture 0: it stands alone.
    std::vector<TexturePlace> places_;
};

}  // namespace bc
