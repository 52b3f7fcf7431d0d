// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "WorldScene.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace bc::bench {

WorldScene readScene(const std::string& name) {
    const std::string path = std::string(BRIGHTCLASH_SCENES) + '/' + name + ".txt";
    std::ifstream in(path);
    if (!in) {
        std::fprintf(stderr, "no scene %s\n", path.c_str());
        std::exit(1);
    }
    WorldScene scene;
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string kind;
        words >> kind;
        std::vector<float> n;
        for (float value = 0; words >> value;)
            n.push_back(value);
        if (kind == "static" && n.size() >= 6) {
            std::vector<Vector> corners;
            for (std::size_t i = 0; i + 1 < n.size(); i += 2)
                corners.emplace_back(n[i], -n[i + 1]);
            std::reverse(corners.begin(), corners.end());
            scene.statics.push_back(corners);
        } else if (kind == "dynamic" && n.size() == 6) {
            scene.boxes.push_back({Vector(n[0], -n[1]), n[2], n[3], Vector(n[4], -n[5])});
        } else if (kind == "ray" && n.size() == 4) {
            scene.rays.push_back({Vector(n[0], -n[1]), Vector(n[2], -n[3])});
        }
    }
    const bool falling = name.starts_with("s1");
    scene.gravity = falling ? -100.0F : 0.0F;
    scene.friction = falling ? 0.3F : 0.0F;
    scene.restitution = falling ? 0.0F : 1.0F;
    return scene;
}

}  // namespace bc::bench
