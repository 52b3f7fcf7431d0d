// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BodyTypes.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

class TiXmlElement;

namespace bc::levelc {

/// Fills a table of body types from its XML. Every slip in the table is an error, so that nothing
/// in it is silently without effect.
class BodyTypesReader {
  public:
    explicit BodyTypesReader(BodyTypes& types) : types_(types) {}
    /// Empty when it went well.
    [[nodiscard]] std::string read(std::string_view xml);

  private:
    [[nodiscard]] std::string readUse(const TiXmlElement& e);
    [[nodiscard]] std::string readEnum(const TiXmlElement& e);
    [[nodiscard]] std::string readGroup(const TiXmlElement& e);
    [[nodiscard]] std::string readType(const TiXmlElement& e);
    [[nodiscard]] std::string readParams(const TiXmlElement& e, ParamPlace place,
                                         std::vector<Param>& params) const;
    [[nodiscard]] std::string readParam(const TiXmlElement& e, Param& param) const;
    [[nodiscard]] std::string replaceDefaults(const TiXmlElement& e, BodyType& type) const;

    BodyTypes& types_;
    std::map<std::string, std::vector<Param>> groups_;
};

}  // namespace bc::levelc
