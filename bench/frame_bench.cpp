// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What the renderer adds to the bare cost of drawing: one frame of sprites, particles and a
// backdrop at 1024 x 768 through IRenderer, and the same corners by one glDrawArrays a texture,
// both in one context. Processor time of all threads counts, since a software renderer works on
// several. Needs a display: tests/with_display bench/frame_bench
#include "command/GameVar.h"
#include "core/Ticks.h"
#include "render/Renderer.h"
#include "resources/FileSystem.h"

#include <GL/gl.h>
#include <SDL/SDL.h>
#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace {

using bc::QuadVertex;

constexpr int width = 1024;
constexpr int height = 768;
constexpr std::size_t spriteCount = 300;
constexpr float spriteSize = 32;
constexpr std::size_t particleCount = 2000;
constexpr float particleSize = 8;
constexpr int imageSide = 32;
/// The bare program's textures; far above any number that the renderer gives out.
constexpr GLuint bareTextures = 1000000;

struct Place {
    float x, y;
};

/// Even, but without a pattern: a linear congruential sequence.
class Places {
  public:
    Place next() {
        return {number() * static_cast<float>(width), number() * static_cast<float>(height)};
    }

  private:
    float number() {
        state_ = state_ * 1664525U + 1013904223U;
        return static_cast<float>(state_ >> 8) / 16777216.0F;
    }
    unsigned state_ = 1;
};

void appendQuad(std::vector<QuadVertex>& corners, float x, float y, float w, float h) {
    const auto corner = [&](float px, float py, float u, float v) {
        corners.push_back({px, py, 0, u, v, 255, 255, 255, 255});
    };
    corner(x, y, 0, 1);
    corner(x + w, y, 1, 1);
    corner(x + w, y - h, 1, 0);
    corner(x, y - h, 0, 0);
}

/// A soft white disc, as most of the game's small pictures are.
std::vector<unsigned char> disc() {
    std::vector<unsigned char> pixels;
    for (int y = 0; y < imageSide; ++y)
        for (int x = 0; x < imageSide; ++x) {
            const float dx = (static_cast<float>(x) - 15.5F) / 16;
            const float dy = (static_cast<float>(y) - 15.5F) / 16;
            const float alpha = 1 - dx * dx - dy * dy;
            pixels.insert(pixels.end(),
                          {255, 255, 255, static_cast<unsigned char>(alpha > 0 ? alpha * 255 : 0)});
        }
    return pixels;
}

void writeTga(const std::string& path) {
    std::array<char, 18> header{};
    header[2] = 2;
    header[12] = header[14] = imageSide;
    header[16] = 32;
    header[17] = 0x28;
    std::ofstream out(path, std::ios::binary);
    out.write(header.data(), header.size());
    const std::vector<unsigned char> pixels = disc();
    for (const unsigned char byte : pixels)
        out.put(static_cast<char>(byte));
}

/// The scene, the window and the game's renderer, once for all measurements. spriteImages
/// pictures alternate among the sprites.
class Scene {
  public:
    static Scene& get() {
        static Scene scene;
        return scene;
    }

    void drawThroughRenderer(int spriteImages) {
        renderer_.beginFrame();
        renderer_.begin2D();
        renderer_.setColour(255, 255, 255);
        renderer_.drawImage(0, height, 0, width, height, backdrop_, false, true);
        for (std::size_t i = 0; i < spriteCount; ++i)
            renderer_.drawSprite(sprites_[i % static_cast<std::size_t>(spriteImages)],
                                 spritePlaces_[i].x, spritePlaces_[i].y, 0, spriteSize);
        renderer_.bindTexture(particle_);
        renderer_.setAdditiveBlend();
        renderer_.drawQuads(particleCorners_);
        renderer_.end2D();
        renderer_.endFrame();
    }

    void beginBare() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glPushClientAttrib(GL_CLIENT_ALL_ATTRIB_BITS);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glOrtho(0, width, 0, height, -1, 1);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glLoadIdentity();
        glDisable(GL_DEPTH_TEST);
        glDisable(GL_SCISSOR_TEST);
        glEnable(GL_TEXTURE_2D);
        glEnable(GL_BLEND);
    }
    void endBare() {
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        glPopClientAttrib();
        glPopAttrib();
    }
    void drawBare(int spriteImages) {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        drawArray(0, backdropCorners_, 0, 4);
        // The sprites of one picture stand together: as few calls as there are pictures.
        std::size_t first = 0;
        for (int i = 0; i < spriteImages; ++i) {
            const std::size_t end = spriteCorners_.size() / 4 * static_cast<std::size_t>(i + 1) /
                                    static_cast<std::size_t>(spriteImages) * 4;
            drawArray(1 + i, spriteCorners_, first, end - first);
            first = end;
        }
        glBlendFunc(GL_SRC_ALPHA, GL_ONE);
        drawArray(maxSpriteImages + 1, particleCorners_, 0, particleCorners_.size());
        SDL_GL_SwapBuffers();
    }

    static constexpr int maxSpriteImages = 8;

  private:
    Scene() {
        setenv("SDL_AUDIODRIVER", "dummy", 0);
        const std::string folder =
            (std::filesystem::temp_directory_path() / "brightclash_frame_bench").string();
        std::filesystem::create_directories(folder);
        bc::files::setFolders(folder, folder);
        if (!renderer_.init() || !renderer_.setVideoMode(width, height, false)) {
            std::fprintf(stderr, "frame_bench: no window: %s\n", SDL_GetError());
            std::exit(1);
        }
        const std::vector<unsigned char> pixels = disc();
        for (int i = 0; i < maxSpriteImages + 2; ++i) {
            const std::string name = "image" + std::to_string(i) + ".tga";
            std::string path = folder;
            path += '/';
            writeTga(path += name);
            (i == 0 ? backdrop_ : i > maxSpriteImages ? particle_ : sprites_.emplace_back()) = name;
            makeBareTexture(bareTextures + static_cast<GLuint>(i), pixels);
        }
        Places places;
        for (std::size_t i = 0; i < spriteCount; ++i) {
            const Place p = places.next();
            spritePlaces_.push_back(p);
            appendQuad(spriteCorners_, p.x - spriteSize / 2, p.y + spriteSize / 2, spriteSize,
                       spriteSize);
        }
        for (std::size_t i = 0; i < particleCount; ++i) {
            const Place p = places.next();
            appendQuad(particleCorners_, p.x, p.y, particleSize, particleSize);
        }
        appendQuad(backdropCorners_, 0, height, width, height);
        for (int i = 0; i < 5; ++i)
            drawThroughRenderer(maxSpriteImages);
    }

    /// Sampled as the renderer's textures are, which fill the same way.
    static void makeBareTexture(GLuint id, const std::vector<unsigned char>& pixels) {
        glPushAttrib(GL_TEXTURE_BIT);
        glBindTexture(GL_TEXTURE_2D, id);
        glTexParameteri(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, GL_TRUE);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, imageSide, imageSide, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                     pixels.data());
        glPopAttrib();
    }

    static void drawArray(int image, const std::vector<QuadVertex>& corners, std::size_t first,
                          std::size_t count) {
        glBindTexture(GL_TEXTURE_2D, bareTextures + static_cast<GLuint>(image));
        glVertexPointer(3, GL_FLOAT, sizeof(QuadVertex), &corners[0].x);
        glTexCoordPointer(2, GL_FLOAT, sizeof(QuadVertex), &corners[0].u);
        glColorPointer(4, GL_UNSIGNED_BYTE, sizeof(QuadVertex), &corners[0].r);
        glDrawArrays(GL_QUADS, static_cast<GLint>(first), static_cast<GLsizei>(count));
    }

    bc::Renderer renderer_;
    std::string backdrop_;
    std::string particle_;
    std::vector<std::string> sprites_;
    std::vector<Place> spritePlaces_;
    std::vector<QuadVertex> spriteCorners_;
    std::vector<QuadVertex> particleCorners_;
    std::vector<QuadVertex> backdropCorners_;
};

double processSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Blocks of frames of both kinds in turn, so that whatever else the machine does hits both. The
/// time is that of the renderer; "ratio" is what it takes beside the bare program.
void BM_Frame(benchmark::State& state) {
    Scene& scene = Scene::get();
    const int images = static_cast<int>(state.range(0));
    constexpr int block = 5;
    double ours = 0;
    double bare = 0;
    for (auto step : state) {
        static_cast<void>(step);
        const double start = processSeconds();
        for (int i = 0; i < block; ++i)
            scene.drawThroughRenderer(images);
        glFinish();
        const double middle = processSeconds();
        scene.beginBare();
        for (int i = 0; i < block; ++i)
            scene.drawBare(images);
        glFinish();
        scene.endBare();
        const double end = processSeconds();
        ours += middle - start;
        bare += end - middle;
        state.SetIterationTime((middle - start) / block);
    }
    const auto blocks = static_cast<double>(state.iterations()) * block;
    state.counters["renderer_ms"] = ours / blocks * 1000;
    state.counters["bare_ms"] = bare / blocks * 1000;
    state.counters["ratio"] = ours / bare;
}
BENCHMARK(BM_Frame)
    ->ArgName("spriteImages")
    ->Arg(1)
    ->Arg(8)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
