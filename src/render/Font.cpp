// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/Font.h"

#include "core/Log.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace bc {

namespace {

/// A byte of a text is a character code.
constexpr std::size_t maxDescriptors = 256;
constexpr std::size_t maxPages = 64;
/// Pages are 256 x 256; a descriptor that points farther than this away from them is damaged.
constexpr int maxPixels = 4096;
constexpr float pageSize = 256;

int readPixels(const TiXmlElement& e, const char* name) {
    return std::clamp(xml::readInt(e, name), -maxPixels, maxPixels);
}

CharacterDescriptor readDescriptor(const TiXmlElement& e) {
    CharacterDescriptor d;
    d.charcode = xml::readInt(e, "charcode");
    d.image = xml::readString(e, "image");
    d.x = readPixels(e, "x");
    d.y = readPixels(e, "y");
    d.px = readPixels(e, "px");
    d.py = readPixels(e, "py");
    d.pwidth = readPixels(e, "pwidth");
    d.pheight = readPixels(e, "pheight");
    d.width = readPixels(e, "width");
    d.height = readPixels(e, "height");
    d.left = readPixels(e, "left");
    d.top = readPixels(e, "top");
    d.xadvance = std::clamp(xml::readFloat(e, "xadvance"), -1.0F * maxPixels, 1.0F * maxPixels);
    // The coordinates in the file are not used: they follow from the pixels.
    d.s = static_cast<float>(d.x) / pageSize;
    d.t = static_cast<float>(d.y) / pageSize;
    d.s2 = static_cast<float>(d.x + d.width) / pageSize;
    d.t2 = static_cast<float>(d.y - d.height) / pageSize;
    return d;
}

}  // namespace

bool Font::load(const std::string& fileName) {
    const std::string path = "data/fonts/" + fileName;
    TiXmlDocument document;
    const bool parsed = resourceManager().loadXML(document, path);
    const TiXmlElement* root = parsed ? document.RootElement() : nullptr;
    if (root == nullptr) {
        logLine("Could not load font file '" + path + "'");
        return false;
    }
    descriptors_.clear();
    images_.clear();
    size = xml::readInt(*root, "size");
    name = xml::readString(*root, "name");
    if (const TiXmlElement* list = root->FirstChildElement("descriptors"))
        readDescriptors(*list);
    if (const TiXmlElement* list = root->FirstChildElement("imageindex"))
        readImages(*list);
    return true;
}

void Font::readDescriptors(const TiXmlElement& list) {
    for (const TiXmlElement* e = list.FirstChildElement();
         e != nullptr && descriptors_.size() < maxDescriptors; e = e->NextSiblingElement())
        descriptors_.emplace_back(readDescriptor(*e));
}

void Font::readImages(const TiXmlElement& list) {
    for (const TiXmlElement* e = list.FirstChildElement();
         e != nullptr && images_.size() < maxPages; e = e->NextSiblingElement())
        images_.push_back(xml::readString(*e, "filename"));
}

const CharacterDescriptor* Font::getDescriptor(int code) const {
    if (code < 0 || static_cast<std::size_t>(code) >= descriptors_.size())
        return nullptr;
    const auto& slot = descriptors_[static_cast<std::size_t>(code)];
    return slot ? &*slot : nullptr;
}

CharacterDescriptor* Font::getDescriptor(int code) {
    return const_cast<CharacterDescriptor*>(std::as_const(*this).getDescriptor(code));
}

void Font::createDescriptor(int code) {
    if (code < 0 || static_cast<std::size_t>(code) >= maxDescriptors)
        return;
    const auto index = static_cast<std::size_t>(code);
    if (index >= descriptors_.size())
        descriptors_.resize(index + 1);
    descriptors_[index].emplace();
}

float Font::glyphHeight(int code) const {
    const CharacterDescriptor* descriptor = getDescriptor(code);
    return descriptor != nullptr ? static_cast<float>(descriptor->height) : 0.0F;
}

}  // namespace bc
