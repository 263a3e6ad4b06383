// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/ui/KeyframeThemeParser.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/utility/VekResources.h"

namespace vek::test {

inline std::string ThemeDocument(const char* inName) {
  const auto bytes =
      utility::GetResourceManager()->GetRequiredBinary(lumcore::utility::ToUTF16(inName), "xml");
  return {bytes.begin(), bytes.end()};
}

// Takes the handler over.
inline void ParseTheme(const std::string& inDocument,
                       lumcore::xml::AbstractParseHandler* inHandler) {
  std::auto_ptr<lumcore::xml::AbstractParseHandler> handler(inHandler);
  lumcore::xml::GetParser(handler)->Parse(lumcore::utility::ToUTF8(inDocument),
                                          lumcore::utility::ToUTF16("theme"));
}

// Into the theme in force, which is a KeyframeThemeEditor. Nobody is told.
inline void LoadTheme(const char* inName) {
  const auto theme = lumui::ui::Theme::Get();
  ParseTheme(ThemeDocument(inName), new lumui::ui::KeyframeThemeParser(
                                        static_cast<lumui::ui::KeyframeThemeEditor&>(*theme)));
}

}  // namespace vek::test
