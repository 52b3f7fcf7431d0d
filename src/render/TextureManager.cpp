// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/TextureManager.h"

#include "core/Log.h"
#include "render/ImageFile.h"

#include <cstddef>
#include <iterator>
#include <ostream>

namespace bc {

namespace {

const std::string fallbackName = "data/images/fallback.png";

}  // namespace

TextureManager::~TextureManager() {
    unloadAll();
}

Texture* TextureManager::load(const std::string& name, bool clamp) {
    const std::optional<Image> image = loadImage(name);
    if (!image) {
        logLine("FAILED to load texture: " + name);
        return nullptr;
    }
    unload(name);
    auto texture = std::make_unique<Texture>();
    texture->height = image->height;
    texture->width = image->width;
    texture->bitsPerPixel = image->bitsPerPixel;
    texture->name = name;
    texture->glId = reserveId();
    store_.uploadTexture(texture->glId, *image, clamp);
    ids_[static_cast<std::size_t>(texture->glId)] = texture.get();
    recent_ = texture.get();
    textures_[name] = std::move(texture);
    return recent_;
}

Texture* TextureManager::find(const std::string& name) {
    if (recent_ != nullptr && recent_->name == name)
        return recent_;
    const auto found = textures_.find(name);
    if (found == textures_.end())
        return nullptr;
    recent_ = found->second.get();
    return recent_;
}

int TextureManager::indexOf(int glId) const {
    int index = 0;
    for (const auto& [name, texture] : textures_) {
        if (texture->glId == glId)
            return index;
        ++index;
    }
    return -1;
}

int TextureManager::bind(const std::string& name, bool clamp) {
    const Texture* texture = find(name);
    if (texture == nullptr)
        texture = load(name, clamp);
    if (texture == nullptr)
        return bindFallback();
    bound_ = texture->glId;
    return bound_;
}

int TextureManager::bindId(int id) {
    if (isKnown(id))
        bound_ = id;
    else
        bindFallback();
    return id;
}

int TextureManager::bindFallback() {
    const Texture* texture = find(fallbackName);
    if (texture == nullptr)
        texture = load(fallbackName, false);
    if (texture == nullptr)
        return -1;
    bound_ = texture->glId;
    return bound_;
}

int TextureManager::getId(const std::string& name) {
    const Texture* texture = find(name);
    return texture != nullptr ? texture->glId : -1;
}

int TextureManager::getWidth(const std::string& name) {
    const Texture* texture = find(name);
    return texture != nullptr ? texture->width : -1;
}

int TextureManager::getHeight(const std::string& name) {
    const Texture* texture = find(name);
    return texture != nullptr ? texture->height : -1;
}

void TextureManager::unload(const std::string& name) {
    const auto found = textures_.find(name);
    if (found == textures_.end())
        return;
    forget(*found->second);
    textures_.erase(found);
}

void TextureManager::unloadAll() {
    for (const auto& [name, texture] : textures_)
        forget(*texture);
    textures_.clear();
}

void TextureManager::dump(std::ostream& out) const {
    for (const auto& [name, texture] : textures_)
        out << name << " : w,h: " << texture->width << ',' << texture->height
            << " : bpp: " << texture->bitsPerPixel << " : glID: " << texture->glId << '\n';
}

int TextureManager::reserveId() {
    ids_.push_back(&reserved_);
    return static_cast<int>(ids_.size()) - 1;
}

void TextureManager::releaseId(int id) {
    if (!isKnown(id))
        return;
    store_.deleteTexture(id);
    ids_[static_cast<std::size_t>(id)] = nullptr;
    if (bound_ == id)
        bound_ = 0;
}

const Texture* TextureManager::byId(int id) const {
    if (!isKnown(id))
        return nullptr;
    const Texture* texture = ids_[static_cast<std::size_t>(id)];
    return texture != &reserved_ ? texture : nullptr;
}

bool TextureManager::isKnown(int id) const {
    return id > 0 && static_cast<std::size_t>(id) < ids_.size() &&
           ids_[static_cast<std::size_t>(id)] != nullptr;
}

void TextureManager::forget(const Texture& texture) {
    if (recent_ == &texture)
        recent_ = nullptr;
    releaseId(texture.glId);
}

}  // namespace bc
