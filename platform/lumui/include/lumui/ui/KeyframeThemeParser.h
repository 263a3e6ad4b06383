// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <set>

#include "lumcore/xml/Parser.h"
#include "lumui/Export.h"
#include "lumui/ui/KeyframeThemeEditor.h"

namespace lumui::ui {

// Reads a theme document into an editor: KeyFrame elements, in a Theme or not, and FontSize
// elements. All other elements are wrappers and mean nothing. A number that is none, or a name that
// is missing, is a lumcore::xml::ParseError with its place; what came before it stays.
//
// A document speaks alone for each colour that it names: frames that the colour had from an earlier
// one, at other positions as well, give way. So one of a few frames goes over one of many.
class LUMUI_API KeyframeThemeParser final : public lumcore::xml::AbstractParseHandler {
 public:
  // The editor is borrowed and outlives the parse.
  explicit KeyframeThemeParser(KeyframeThemeEditor& inEditor);
  ~KeyframeThemeParser() override;

  void StartElement(const lumcore::UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override;
  void EndElement(const lumcore::UTF16String& inName) override;

 private:
  void AddKeyFrame(const lumcore::xml::Attributes& inAttributes);
  void AddTextSize(const lumcore::xml::Attributes& inAttributes);
  // A missing attribute is an error in the first, and nothing in the second.
  template <class Number>
  Number Require(const lumcore::xml::Attributes& inAttributes, const char* inName) const;
  template <class Number>
  std::optional<Number> Read(const lumcore::xml::Attributes& inAttributes,
                             const char* inName) const;
  [[noreturn]] void Fail(const char* inKey, const char* inName) const;

  KeyframeThemeEditor& mEditor;
  float mThemePosition = 0.0f;
  std::set<int> mNamed;  // the colours, so far
};

}  // namespace lumui::ui
