// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/BodyFields.h"

#include <map>
#include <string>

namespace bc {

// The visitors behind Body::applyAttributes, loadState, saveState and dumpState and behind the
// level format. Each looks at the declarations of its purpose and passes the others over.

/// Sets what a level's custom attributes give.
class AttributeVisitor final : public BodyFields {
  public:
    explicit AttributeVisitor(const std::map<std::string, std::string>& given) : given_(given) {}

  protected:
    Visit onParam(const Declared& param) override;

  private:
    const std::map<std::string, std::string>& given_;
};

/// Reads the element "params" of a level object.
class PlacedReader final : public BodyFields {
  public:
    PlacedReader(const TiXmlElement& params, Digits digits) : params_(params), digits_(digits) {}

  protected:
    Visit onPlaced(const Declared& param) override;

  private:
    const TiXmlElement& params_;
    Digits digits_;
};

/// Writes it.
class PlacedWriter final : public BodyFields {
  public:
    PlacedWriter(TiXmlElement& params, Digits digits) : params_(params), digits_(digits) {}

  protected:
    Visit onPlaced(const Declared& param) override;

  private:
    TiXmlElement& params_;
    Digits digits_;
};

/// Reads the saved state of a body. Places beyond Body::maxCoordinate are refused with a log line.
class StateReader final : public BodyFields {
  public:
    StateReader(const TiXmlElement& e, Digits digits) : e_(e), digits_(digits) {}

  protected:
    Outcome onSaved(const char* name, Ref value, bool wanted) override;
    Reading readingState() override { return {&e_, digits_}; }

  private:
    const TiXmlElement& e_;
    Digits digits_;
};

/// Writes it.
class StateWriter final : public BodyFields {
  public:
    StateWriter(TiXmlElement& e, Digits digits) : e_(e), digits_(digits) {}

  protected:
    Outcome onSaved(const char* name, Ref value, bool wanted) override;
    Writing writingState() override { return {&e_, digits_}; }

  private:
    TiXmlElement& e_;
    Digits digits_;
};

/// Writes what a world dump tells of a body.
class DumpWriter final : public BodyFields {
  public:
    explicit DumpWriter(TiXmlElement& debug) : debug_(debug) {}

  protected:
    [[nodiscard]] bool wantsShown() const override { return true; }
    void onShown(const char* name, Ref value) override;
    TiXmlElement* dumping() override { return &debug_; }

  private:
    TiXmlElement& debug_;
};

}  // namespace bc
