// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace bc {

struct Image;

/// Where textures live once they are decoded.
class TextureStore {
  public:
    virtual ~TextureStore() = default;
    /// Takes the picture under an id that was never used before. clamp: edges do not wrap round.
    virtual void uploadTexture(int id, const Image& image, bool clamp) = 0;
    virtual void deleteTexture(int id) = 0;
};

/// One cached image; sizes in pixels of the file.
struct Texture {
    int height = 0;
    int width = 0;
    int bitsPerPixel = 0;
    std::string name;
    /// Never given to a second texture in the life of the manager, so that an id that outlived
    /// its texture is recognised and never shows another image.
    int glId = 0;
};

/// The cache of textures by image file name. An image is read the first time its name is bound
/// and kept until it is unloaded. One that cannot be read is logged at each attempt and the
/// fallback image takes its place.
class TextureManager {
  public:
    /// The store is not owned and outlives the manager.
    explicit TextureManager(TextureStore& store) : store_(store) {}
    ~TextureManager();
    TextureManager(const TextureManager&) = delete;
    TextureManager& operator=(const TextureManager&) = delete;

    /// Null when the image is missing, damaged or not of 24 or 32 bits; nothing is cached then.
    Texture* load(const std::string& name, bool clamp);
    /// Null when not cached; never loads.
    [[nodiscard]] Texture* find(const std::string& name);
    /// Position in name order, -1 when no cached texture has that id.
    [[nodiscard]] int indexOf(int glId) const;
    /// The id that what is drawn next is textured with; -1 when there is not even a fallback.
    int bind(const std::string& name, bool clamp);
    [[nodiscard]] static int idOf(int id) { return id; }
    /// An id whose texture is gone binds the fallback. The result is the argument.
    int bindId(int id);
    int bindFallback();
    /// -1 each when not cached.
    [[nodiscard]] int getId(const std::string& name);
    [[nodiscard]] int getWidth(const std::string& name);
    [[nodiscard]] int getHeight(const std::string& name);
    void unload(const std::string& name);
    void unloadAll();
    void dump(std::ostream& out) const;

    /// An id for a texture that is no image; known from now on to bindId.
    [[nodiscard]] int reserveId();
    void releaseId(int id);
    void unbind() { bound_ = 0; }
    /// Bound last, 0 when none is.
    [[nodiscard]] int boundId() const { return bound_; }
    /// Null for an id that is not of a cached image.
    [[nodiscard]] const Texture* byId(int id) const;

  private:
    using Map = std::map<std::string, std::unique_ptr<Texture>, std::less<>>;

    [[nodiscard]] bool isKnown(int id) const;
    void forget(const Texture& texture);

    TextureStore& store_;
    Map textures_;
    /// By id: the texture, null when it is gone, &reserved_ when it is no image.
    std::vector<const Texture*> ids_{nullptr};
    Texture reserved_;
    /// Found last; most bindings repeat it.
    Texture* recent_ = nullptr;
    int bound_ = 0;
};

}  // namespace bc
