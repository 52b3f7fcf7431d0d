// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/GlDevice.h"

#include "view/Matrix4.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <array>

namespace bc {

namespace {

/// Room for several grants, so that a full buffer is the exception.
constexpr std::size_t bufferCorners = RenderDevice::maxCorners * 2;

void setCapability(GLenum capability, bool on) {
    if (on)
        glEnable(capability);
    else
        glDisable(capability);
}

GLenum glPrimitive(Primitive primitive) {
    constexpr std::array<GLenum, 3> names{GL_QUADS, GL_TRIANGLES, GL_LINES};
    return names[static_cast<std::size_t>(primitive)];
}

void setSampling(GLint wrap, GLint minify) {
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrap);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, minify);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
}

}  // namespace

GlDevice::GlDevice() : corners_(bufferCorners) {}

void GlDevice::reset() {
    open_ = true;
    count_ = 0;
    // A new context starts with GL's own settings, an old one with ours: set everything.
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, 0);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    glClearColor(0, 0, 0, 1);
    glClearDepth(1);
    glDepthFunc(GL_LEQUAL);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
    glDisable(GL_SCISSOR_TEST);
    glShadeModel(GL_SMOOTH);
    glLineWidth(1);
    glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST);
    for (const GLenum smoothing : {GL_POINT_SMOOTH, GL_LINE_SMOOTH, GL_POLYGON_SMOOTH})
        glEnable(smoothing);
    for (const GLenum hint : {GL_POINT_SMOOTH_HINT, GL_LINE_SMOOTH_HINT, GL_POLYGON_SMOOTH_HINT})
        glHint(hint, GL_NICEST);
    // Rows of any width, in both directions.
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();

    constexpr GLsizei stride = sizeof(QuadVertex);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
    glVertexPointer(3, GL_FLOAT, stride, &corners_[0].x);
    glTexCoordPointer(2, GL_FLOAT, stride, &corners_[0].u);
    glColorPointer(4, GL_UNSIGNED_BYTE, stride, &corners_[0].r);

    pages_.removeAll();
    places_.clear();
    boundTexture_ = 0;
    actual_ = DrawState{};
    actual_.depthTest = true;
    glDisable(GL_TEXTURE_2D);
}

QuadVertex* GlDevice::allot(Primitive primitive, const DrawState& state, std::size_t corners) {
    if (!open_)
        return nullptr;
    if (primitive != primitive_ || count_ + corners > corners_.size() || state != pending_) {
        flush();
        primitive_ = primitive;
        pending_ = state;
    }
    QuadVertex* room = &corners_[count_];
    count_ += corners;
    return room;
}

void GlDevice::flush() {
    if (count_ == 0)
        return;
    apply(pending_);
    glDrawArrays(glPrimitive(primitive_), 0, static_cast<GLsizei>(count_));
    count_ = 0;
}

void GlDevice::apply(const DrawState& state) {
    // An upload since may have left another texture bound.
    if (state.texture != 0)
        bind(state.texture);
    if (state == actual_)
        return;
    if ((state.texture != 0) != (actual_.texture != 0))
        setCapability(GL_TEXTURE_2D, state.texture != 0);
    if (state.blend != actual_.blend)
        applyBlend(state.blend);
    if (state.depthTest != actual_.depthTest)
        setCapability(GL_DEPTH_TEST, state.depthTest);
    if (state.depthWrite != actual_.depthWrite)
        glDepthMask(state.depthWrite ? GL_TRUE : GL_FALSE);
    if (state.scissorTest != actual_.scissorTest)
        setCapability(GL_SCISSOR_TEST, state.scissorTest);
    if (state.scissor != actual_.scissor)
        glScissor(state.scissor.x, state.scissor.y, state.scissor.width, state.scissor.height);
    if (state.lineWidth != actual_.lineWidth)
        glLineWidth(state.lineWidth);
    actual_ = state;
}

void GlDevice::applyBlend(Blend blend) {
    if ((blend != Blend::none) != (actual_.blend != Blend::none))
        setCapability(GL_BLEND, blend != Blend::none);
    switch (blend) {
        case Blend::none:
            break;
        case Blend::alpha:
            glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
            break;
        case Blend::additive:
            glBlendFunc(GL_SRC_ALPHA, GL_ONE);
            break;
        case Blend::shade:
            glBlendFunc(GL_ZERO, GL_ONE_MINUS_SRC_ALPHA);
            break;
    }
}

void GlDevice::bind(int id) {
    if (id == boundTexture_)
        return;
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(id));
    boundTexture_ = id;
}

void GlDevice::setProjection(const Matrix4& projection) {
    if (!open_)
        return;
    flush();
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(projection.m.data());
    glMatrixMode(GL_MODELVIEW);
}

void GlDevice::setViewport(int x, int y, int width, int height) {
    if (!open_)
        return;
    flush();
    glViewport(x, y, width, height);
}

void GlDevice::clear() {
    if (!open_)
        return;
    flush();
    DrawState whole = actual_;
    whole.scissorTest = false;
    whole.depthWrite = true;
    apply(whole);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void GlDevice::uploadTexture(int id, const Image& image, bool clamp) {
    if (!open_)
        return;
    bind(id);
    setSampling(clamp ? GL_CLAMP_TO_EDGE : GL_REPEAT, GL_LINEAR_MIPMAP_LINEAR);
    const GLenum format = image.bitsPerPixel == 32 ? GL_RGBA : GL_RGB;
    gluBuild2DMipmaps(GL_TEXTURE_2D, static_cast<GLint>(format), image.width, image.height, format,
                      GL_UNSIGNED_BYTE, image.pixels.data());
    if (const std::optional<TexturePlace> place = pages_.add(image, clamp)) {
        const auto index = static_cast<std::size_t>(id);
        if (index >= places_.size())
            places_.resize(index + 1);
        places_[index] = *place;
        boundTexture_ = place->texture;
    }
}

TexturePlace GlDevice::placeOf(int texture, bool tiles) const {
    const auto index = static_cast<std::size_t>(texture);
    if (!tiles && index < places_.size() && places_[index].texture != 0)
        return places_[index];
    return {.texture = texture};
}

void GlDevice::deleteTexture(int id) {
    if (!open_)
        return;
    flush();
    const auto name = static_cast<GLuint>(id);
    glDeleteTextures(1, &name);
    if (boundTexture_ == id)
        boundTexture_ = 0;
    const auto index = static_cast<std::size_t>(id);
    if (index < places_.size() && places_[index].texture != 0) {
        pages_.remove(places_[index]);
        places_[index] = TexturePlace{};
    }
}

void GlDevice::makeBlankTexture(int id, int width, int height) {
    if (!open_)
        return;
    bind(id);
    setSampling(GL_REPEAT, GL_LINEAR);
    const std::vector<std::uint8_t> zeros(static_cast<std::size_t>(width) *
                                          static_cast<std::size_t>(height) * 16);
    glTexImage2D(GL_TEXTURE_2D, 0, 4, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, zeros.data());
}

void GlDevice::copyFrameToTexture(int id, int width, int height) {
    if (!open_)
        return;
    flush();
    bind(id);
    glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 0, 0, width, height, 0);
}

std::optional<Image> GlDevice::readFrame(int width, int height) {
    if (!open_ || width <= 0 || height <= 0)
        return std::nullopt;
    flush();
    Image image{width, height, 24, {}};
    image.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, image.pixels.data());
    return image;
}

}  // namespace bc
