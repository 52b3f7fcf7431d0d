// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/ResourceManager.h"

#include "core/Log.h"
#include "resources/FileSystem.h"
#include "resources/XmlGuard.h"
#include "resources/ZipFile.h"

#include <tinyxml.h>

#include <cstring>
#include <optional>

namespace bc {

namespace {

std::unique_ptr<char[]> copyOf(const std::string& contents) {
    auto buffer = std::make_unique<char[]>(contents.size() + 1);
    std::memcpy(buffer.get(), contents.data(), contents.size());
    return buffer;
}

}  // namespace

ResourceManager::ResourceManager() = default;
ResourceManager::~ResourceManager() = default;

bool ResourceManager::addZip(const std::string& name) {
    if (name.empty()) {
        logLine("Failed to load " + name);
        return false;
    }
    auto archive = std::make_unique<ZipFile>(name);
    archive->open();
    archives_.push_back(std::move(archive));
    return true;
}

std::unique_ptr<char[]> ResourceManager::getBytes(const std::string& name, std::size_t& size,
                                                  bool& error) {
    if (files::resolve(name)) {
        const std::optional<std::string> contents = files::readAll(name);
        if (!contents) {
            logLine("Could not read from disk (unreadable or above 256 MiB): " + name);
            error = true;
            return nullptr;
        }
        size = contents->size();
        error = false;
        logLine("Found on disk: " + name);
        return copyOf(*contents);
    }
    logLine("NOT Found on disk: " + name);
    const std::unique_ptr<ZipResultsBundle> found = findInArchives(name);
    if (!found) {
        logLine("NULL ZipResultsBundle");
        logLine("NULL PTR getting Zip file bytes");
        error = true;
        return nullptr;
    }
    error = false;
    // error stays false for a member that was found but cannot be extracted; only the result is
    // null then.
    bool extractionError = false;
    return found->file->getBytes(size, *found->entry, extractionError);
}

bool ResourceManager::loadXML(TiXmlDocument& document, const std::string& name) {
    std::size_t size = 0;
    bool error = false;
    const std::unique_ptr<char[]> bytes = getBytes(name, size, error);
    if (error || !bytes || size == 0) {
        logLine("Error reading bytes for: " + name);
        logLine(std::string("Reason: ") + (error ? " Error" : "") +
                (bytes ? "" : " NULL filedata") + (size == 0 ? " numBytes==0" : ""));
        return false;
    }
    const std::string_view text(bytes.get(), size);
    const std::string refusal = xmlRefusal(text);
    if (!refusal.empty()) {
        logLine("Failed to parse: " + name + " Error: " + refusal);
        return false;
    }
    document.Parse(bytes.get(), nullptr,
                   isUtf8(text) ? TIXML_DEFAULT_ENCODING : TIXML_ENCODING_LEGACY);
    if (document.Error() || document.RootElement() == nullptr) {
        logLine("Failed to parse: " + name +
                " Error: " + (document.Error() ? document.ErrorDesc() : "no root element"));
        return false;
    }
    return true;
}

std::string ResourceManager::loadText(const std::string& name) {
    std::size_t size = 0;
    bool error = false;
    const std::unique_ptr<char[]> bytes = getBytes(name, size, error);
    return bytes ? std::string(bytes.get(), size) : std::string();
}

void ResourceManager::release() {
    archives_.clear();
}

std::unique_ptr<ZipResultsBundle> ResourceManager::findInArchives(const std::string& name) const {
    for (const auto& archive : archives_) {
        if (const ZipEntry* entry = archive->find(name))
            return std::make_unique<ZipResultsBundle>(ZipResultsBundle{archive.get(), entry});
    }
    return nullptr;
}

ResourceManager& resourceManager() {
    static ResourceManager instance;
    return instance;
}

}  // namespace bc
