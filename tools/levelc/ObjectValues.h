// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BodyTypes.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace bc::levelc {

class AssetIndex;
struct MapObject;

/// The checked values of one object: what is set on it or on its layer, else the defaults of its
/// type.
class ObjectValues {
  public:
    /// What other objects and files there are, for the parameters that name them.
    struct Surroundings {
        const BodyTypes& types;
        const AssetIndex& assets;
        const std::set<std::string>& names;
    };

    ObjectValues(const MapObject& object, const BodyType& type, const Surroundings& around);

    /// What is wrong with the object's values, one text each.
    [[nodiscard]] const std::vector<std::string>& faults() const { return faults_; }
    [[nodiscard]] const BodyType& type() const { return type_; }
    /// True when it is set or has a default.
    [[nodiscard]] bool has(const std::string& param) const;
    /// Empty when it is not there.
    [[nodiscard]] const std::string& text(const std::string& param) const;
    [[nodiscard]] double number(const std::string& param) const;
    [[nodiscard]] bool flag(const std::string& param) const;
    /// "r,g,b,a"
    [[nodiscard]] std::string colour(const std::string& param) const;

  private:
    void readSet(const MapObject& object, const Surroundings& around);
    void checkValue(const Param& param, const std::string& text, const Surroundings& around);
    [[nodiscard]] static std::string checkReference(const Param& param, const std::string& text,
                                                    const Surroundings& around);
    void settleTexture();
    void checkExit(const AssetIndex& assets);

    const BodyType& type_;
    std::map<std::string, std::string> values_;
    std::vector<std::string> faults_;
};

}  // namespace bc::levelc
