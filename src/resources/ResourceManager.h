// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class TiXmlDocument;

namespace bc {

class ZipFile;
struct ZipResultsBundle;

/// Reads data files by name: from the disk (files::resolve) or else from the first opened archive
/// that contains the name. Keeps nothing that it has read. Every failure is logged.
class ResourceManager {
  public:
    ResourceManager();
    ~ResourceManager();
    ResourceManager(const ResourceManager&) = delete;
    ResourceManager& operator=(const ResourceManager&) = delete;

    /// Opens an archive; its name is one for files::resolve. An archive that cannot be opened is
    /// logged and kept without entries. False only for an empty name.
    bool addZip(const std::string& name);
    /// The contents of a file: size bytes and one zero byte after them. On failure the result is
    /// null and size unchanged; error is false when an archive has the file but cannot extract it,
    /// otherwise true.
    std::unique_ptr<char[]> getBytes(const std::string& name, std::size_t& size, bool& error);
    /// Parses a file into the document. False when the file cannot be read, when xmlRefusal keeps
    /// it from the parser, when the parser finds a fault or when there is no root element.
    bool loadXML(TiXmlDocument& document, const std::string& name);
    /// The contents of a file; empty on failure.
    std::string loadText(const std::string& name);
    /// Closes all archives.
    void release();
    /// The first entry with this name in the archives; null when there is none.
    [[nodiscard]] std::unique_ptr<ZipResultsBundle> findInArchives(const std::string& name) const;

  private:
    std::vector<std::unique_ptr<ZipFile>> archives_;
};

/// The process-wide manager.
ResourceManager& resourceManager();

}  // namespace bc
