// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sky/BaseSky.h"

#include "core/Log.h"
#include "ports/IRenderer.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"
#include "sky/SkyServices.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc {

namespace {

/// Particle systems stand this much nearer than their file says, so that they lie over a quad of
/// the same depth.
constexpr float particleLift = 0.2F;

/// What is drawn until the matrix is popped keeps its place in the view.
void pushCamera(IRenderer& renderer, const Vector& camera) {
    renderer.pushMatrix();
    renderer.translate(-camera.x, -camera.y, camera.z);
}

}  // namespace

bool BaseSky::load(const std::string& path) {
    TiXmlDocument document;
    const TiXmlElement* root = nullptr;
    if (resourceManager().loadXML(document, path))
        root = document.RootElement();
    if (!root) {
        logLine("Could not load sky file:" + path);
        return false;
    }
    name_ = path;
    read(*root);
    return true;
}

void BaseSky::read(const TiXmlElement& root) {
    hasLensFlare_ = xml::readBool(root, "lensflare");
    xml::readValue(root, "lensflarepos", lensFlare_.position);
    xml::readValue(root, "lensflarecolour", lensFlare_.colour);
    bool cut = false;
    for (const TiXmlElement* rect = root.FirstChildElement("rect"); rect;
         rect = rect->NextSiblingElement("rect")) {
        if (quads_.size() == maxQuads) {
            cut = true;
            break;
        }
        quads_.emplace_back().read(*rect);
    }
    for (const TiXmlElement* particle = root.FirstChildElement("particle"); particle;
         particle = particle->NextSiblingElement("particle")) {
        const std::string id = xml::readString(*particle, "id");
        if (placements_.size() == maxParticleSystems && !placements_.contains(id)) {
            cut = true;
            continue;
        }
        Vector& position = placements_[id];
        position = {};
        xml::readValue(*particle, "pos", position);
    }
    if (cut)
        logLine("Sky file holds more than can be drawn, the rest is left out: " + name_);
    running_.reserve(placements_.size());
}

void BaseSky::draw(IRenderer& renderer, const Vector& camera, float dt, SkyParticles* particles,
                   SightLine* sight) {
    pushCamera(renderer, camera);
    renderer.setBlending(true);
    renderer.setAlphaBlend();
    // Layers of one depth, and bodies however far behind, are ordered by their drawing alone.
    renderer.setDepthWrite(false);
    for (SkyQuad& quad : quads_) {
        renderer.setTexturing(quad.textured);
        if (quad.blendStyle == SkyQuad::additiveStyle)
            renderer.setAdditiveBlend();
        quad.draw(renderer, dt);
    }
    renderer.setDepthWrite(true);
    renderer.popMatrix();

    if (hasLensFlare_)
        lensFlare_.draw(renderer, camera, dt, sight);

    if (!particles || running_.empty())
        return;
    pushCamera(renderer, camera);
    renderer.setBlending(true);
    renderer.setTexturing(true);
    renderer.setDepthWrite(false);
    for (const int handle : running_)
        particles->draw(renderer, handle);
    renderer.setDepthWrite(true);
    renderer.popMatrix();
}

void BaseSky::startParticles(SkyParticles* particles) {
    running_.clear();
    lensFlare_.reset();
    if (!particles)
        return;
    for (const auto& [id, position] : placements_) {
        const int handle = particles->start(id, position + Vector(0, 0, particleLift));
        if (handle != SkyParticles::none)
            running_.push_back(handle);
    }
}

void BaseSky::stopParticles(SkyParticles* particles, float seconds) {
    if (particles) {
        for (const int handle : running_)
            particles->stop(handle, seconds);
    }
    running_.clear();
}

void BaseSky::dump(TiXmlElement& element) const {
    xml::writeString(element, "name", name_);
    xml::writeInt(element, "quads", static_cast<int>(quads_.size()));
    xml::writeInt(element, "particlesystems", static_cast<int>(running_.size()));
    if (hasLensFlare_) {
        TiXmlElement flare("lensflare");
        lensFlare_.dump(flare);
        element.InsertEndChild(flare);
    }
}

}  // namespace bc
