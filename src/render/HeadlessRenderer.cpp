// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/HeadlessRenderer.h"

#include "ports/FontRenderer.h"
#include "render/DevilImage.h"

namespace bc {

namespace {

constexpr int headlessWidth = 1024;
constexpr int headlessHeight = 768;

}  // namespace

HeadlessRenderer::HeadlessRenderer() : RendererBase(device) {}

bool HeadlessRenderer::init() {
    bindStartVariables();
    startDevil();
    return setVideoMode(headlessWidth, headlessHeight, false) && initWindow();
}

bool HeadlessRenderer::initWindow() {
    modes_ = {Dimension(headlessWidth, headlessHeight)};
    restartFrameClock();
    bindWindowVariables();
    createBloomTexture(256, 256);
    return true;
}

bool HeadlessRenderer::setVideoMode(int /*width*/, int /*height*/, bool /*fullscreen*/) {
    setFullscreen(false);
    modeChanged(headlessWidth, headlessHeight);
    return true;
}

}  // namespace bc
