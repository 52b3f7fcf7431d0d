// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"
#include "support/DisplayFixture.h"

#include <string>

namespace bc::test {

class RendererFixture : public DisplayFixture {
  protected:
    // Red, green over blue, white: tells every orientation.
    void makeQuarters(const std::string& name, int side = 32) {
        put(data() + "/" + name, png(side, side, 32, [side](int x, int y) {
                const bool right = x >= side / 2;
                if (y < side / 2)
                    return right ? Pixel{0, 255, 0, 255} : Pixel{255, 0, 0, 255};
                return right ? Pixel{255, 255, 255, 255} : Pixel{0, 0, 255, 255};
            }));
    }
    void begin2D() {
        renderer->beginFrame();
        renderer->begin2D();
    }
    void finish() {
        look();
        renderer->end2D();
        renderer->endFrame();
    }
    // A frame over a point, with the game's usual distance.
    void beginWorld(float x, float y) {
        camera = Vector(x, y);
        renderer->beginFrame();
        renderer->setCamera(x, y, -256);
    }
    Seen world(float x, float y) const { return atWorld(x, y, camera); }

    Vector camera;
};

}  // namespace bc::test
