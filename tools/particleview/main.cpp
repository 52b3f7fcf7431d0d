// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Shows effects as the game draws them: one row of frames for each effect, in a PNG.
#include "core/Random.h"
#include "core/Text.h"
#include "particles/ParticleManager.h"
#include "render/DevilImage.h"
#include "render/Image.h"
#include "render/Renderer.h"
#include "resources/FileSystem.h"

#include <GL/gl.h>
#include <SDL/SDL.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace bc;

constexpr const char* usage =
    "usage: particleview [--data DIR] [--out DIR] [--frames N] [--every SECONDS] [--tile W H]\n"
    "                    FILE.png EFFECT...\n"
    "An EFFECT is one name or more joined by '+', started together, and may go on with\n"
    "  :to=X,Y    a beam from the craft to that place, in world units\n"
    "  :fly=V     its place moves to the right at V units a second\n"
    "Each is a row of N frames, EVERY seconds apart, W x H pixels round the craft.\n";

constexpr int windowWidth = 1024;
constexpr int windowHeight = 768;
/// The distance of the game's camera from the plane of play.
constexpr float cameraDistance = 256;
constexpr float particleStep = 1.0F / 120;
constexpr float worldStep = 0.025F;

struct Options {
    std::string data = ".";
    std::string out = ".";
    std::string file;
    std::vector<std::string> effects;
    int frames = 8;
    float every = 0.075F;
    int tileWidth = 200;
    int tileHeight = 150;
};

bool parse(int argc, char** argv, Options& options) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto next = [&] { return i + 1 < words.size() ? words[++i] : std::string(); };
        if (words[i] == "--data") {
            options.data = next();
        } else if (words[i] == "--out") {
            options.out = next();
        } else if (words[i] == "--frames") {
            options.frames = std::clamp(parseInt(next()), 1, 64);
        } else if (words[i] == "--every") {
            options.every = std::clamp(parseFloat(next()), particleStep, 10.0F);
        } else if (words[i] == "--tile") {
            options.tileWidth = std::clamp(parseInt(next()), 16, windowWidth);
            options.tileHeight = std::clamp(parseInt(next()), 16, windowHeight);
        } else if (words[i].starts_with("--")) {
            return false;
        } else if (options.file.empty()) {
            options.file = words[i];
        } else {
            options.effects.push_back(words[i]);
        }
    }
    return !options.effects.empty();
}

struct Effect {
    std::vector<std::string> names;
    Vector to;
    bool beam = false;
    float speed = 0;
};

Effect parseEffect(const std::string& text) {
    Effect effect;
    std::vector<std::string> parts;
    tokenise(":", text, parts);
    for (const std::string& part : parts) {
        if (part.starts_with("to=")) {
            effect.to.fromString(part.substr(3));
            effect.beam = true;
        } else if (part.starts_with("fly=")) {
            effect.speed = parseFloat(part.substr(4));
        } else {
            tokenise("+", part, effect.names);
        }
    }
    return effect;
}

/// The dark of the levels' skies, and the craft as a measure of size.
void drawBackdrop(IRenderer& renderer) {
    const float w = 400;
    const float h = 300;
    const Vector corners[] = {{-w, h}, {w, h}, {w, -h}, {-w, -h}};
    const RGBAColour colours[] = {{36, 26, 58}, {36, 26, 58}, {11, 16, 32}, {11, 16, 32}};
    renderer.setTexturing(false);
    renderer.drawPolygon(corners, colours, 4);
    renderer.setColour(255, 255, 255, 255);
    renderer.drawSprite("data/images/player.png", 0, 0, 0, 16);
}

/// Copies the middle of the window into the sheet, tile column and row from the top left.
void copyTile(Image& sheet, const Options& options, int column, int row) {
    const int w = options.tileWidth;
    const int h = options.tileHeight;
    std::vector<std::uint8_t> pixels(static_cast<std::size_t>(w * h * 3));
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels((windowWidth - w) / 2, (windowHeight - h) / 2, w, h, GL_RGB, GL_UNSIGNED_BYTE,
                 pixels.data());
    const auto bytesOf = [](int pixelCount) { return static_cast<std::ptrdiff_t>(pixelCount) * 3; };
    const int bottom = sheet.height - (row + 1) * h;
    for (int y = 0; y < h; ++y) {
        const auto* from = pixels.data() + bytesOf(y * w);
        std::copy(from, from + bytesOf(w),
                  sheet.pixels.begin() + bytesOf((bottom + y) * sheet.width + column * w));
    }
}

/// The scene as it is now, read before it is shown.
void drawFrame(IRenderer& renderer, Image& sheet, const Options& options, int column, int row) {
    renderer.beginFrame();
    renderer.setCamera(0, 0, -cameraDistance);
    drawBackdrop(renderer);
    particleManager().draw(renderer);
    // Whatever the renderer still holds back is drawn when the overlay begins.
    renderer.begin2D();
    renderer.end2D();
    copyTile(sheet, options, column, row);
    renderer.endFrame();
}

void showEffect(IRenderer& renderer, const Effect& effect, Image& sheet, const Options& options,
                int row) {
    particleManager().clearSystems();
    seedRandom(1);
    std::vector<ParticleSystem*> followers;
    for (const std::string& name : effect.names) {
        ParticleSystem* system =
            effect.beam ? startBeam(name, {}, effect.to) : startParticles(name, Vector(0, 0, 0));
        if (system != nullptr && effect.speed != 0) {
            system->setRemainingLife(0);
            followers.push_back(system);
        }
    }
    float time = 0;
    for (int frame = 0; frame < options.frames; ++frame) {
        while (time < options.every * static_cast<float>(frame) + 2 * particleStep) {
            time += particleStep;
            // Bodies carry their systems along in the longer steps of the world.
            const float moved = std::floor(time / worldStep) * worldStep;
            for (ParticleSystem* system : followers)
                system->setPosition(Vector(effect.speed * moved - 60, 0, 0.2F));
            particleManager().update(particleStep, renderer.getFrustum());
        }
        drawFrame(renderer, sheet, options, frame, row);
    }
}

bool run(const Options& options) {
    files::setFolders(options.out, options.data);
    Renderer renderer;
    if (!renderer.init() || !renderer.setVideoMode(windowWidth, windowHeight, false)) {
        std::fprintf(stderr, "particleview: no window: %s\n", SDL_GetError());
        return false;
    }
    particleManager().makeDefaultDefinition();
    particleManager().loadDefinitions("data/particles/particles.xml");
    particleManager().reloadTextures(renderer);
    Image sheet;
    sheet.width = options.tileWidth * options.frames;
    sheet.height = options.tileHeight * static_cast<int>(options.effects.size());
    sheet.bitsPerPixel = 24;
    sheet.pixels.resize(static_cast<std::size_t>(sheet.width) *
                        static_cast<std::size_t>(sheet.height) * 3);
    for (std::size_t row = 0; row < options.effects.size(); ++row)
        showEffect(renderer, parseEffect(options.effects[row]), sheet, options,
                   static_cast<int>(row));
    particleManager().clear();
    const DevilImage image;
    return image.assign(sheet) && image.savePng(options.file);
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!parse(argc, argv, options)) {
        std::fputs(usage, stderr);
        return 2;
    }
    const bool done = run(options);
    SDL_Quit();
    return done ? 0 : 1;
}
