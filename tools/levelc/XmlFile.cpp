// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "XmlFile.h"

#include "resources/XmlGuard.h"

#include <tinyxml.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace bc::levelc {

std::string readFile(const std::string& path, std::string& text) {
    std::ifstream in(path, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(in), {});
    return in.is_open() && !in.bad() ? "" : "cannot be read";
}

std::string parseXml(std::string_view text, TiXmlDocument& document) {
    std::string refusal = xmlRefusal(text);
    if (!refusal.empty())
        return refusal;
    const std::string copy(text);
    document.Parse(copy.c_str(), nullptr, TIXML_ENCODING_UTF8);
    if (document.Error())
        return "line " + std::to_string(document.ErrorRow()) + ": " + document.ErrorDesc();
    if (document.RootElement() == nullptr)
        return "has no element";
    return {};
}

std::string replaceFile(const std::string& path, std::string_view text) {
    const std::string beside = path + ".new";
    std::ofstream out(beside, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    std::error_code error;
    if (out)
        std::filesystem::rename(beside, path, error);
    if (out && !error)
        return {};
    std::filesystem::remove(beside, error);
    return "cannot be written";
}

}  // namespace bc::levelc
