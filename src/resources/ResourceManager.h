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

/// Finds data files by name: first on disk (files::resolve), then in the opened archives in the
/// order in which they were added. Nothing is cached; every failure is a log line and a null,
/// empty or false result.
class ResourceManager {
  public:
    ResourceManager();
    ~ResourceManager();
    ResourceManager(const ResourceManager&) = delete;
    ResourceManager& operator=(const ResourceManager&) = delete;

    /// Opens an archive (a name for files::resolve) and appends it, also when opening failed, as
    /// an archive without entries. False only for an empty name.
    bool addZip(const std::string& name);
    /// size bytes and one zero byte behind them. size is written only when something was found.
    std::unique_ptr<char[]> getBytes(const std::string& name, std::size_t& size, bool& error);
    /// A document that was loaded has a root element. Texts with NUL bytes or nested deeper than
    /// 256 elements are refused before they are parsed.
    bool loadXML(TiXmlDocument& document, const std::string& name);
    /// Empty on failure.
    std::string loadText(const std::string& name);
    /// Closes every archive.
    void release();
    [[nodiscard]] std::unique_ptr<ZipResultsBundle> findInArchives(const std::string& name) const;

  private:
    std::vector<std::unique_ptr<ZipFile>> archives_;
};

/// The process-wide manager.
ResourceManager& resourceManager();

}  // namespace bc
