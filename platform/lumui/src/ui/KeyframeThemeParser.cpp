// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/KeyframeThemeParser.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"

namespace lumui::ui {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumcore::xml::Attributes;

namespace {

bool IsText(const UTF16String& inText, std::string_view inASCII) {
  return std::equal(inText.begin(), inText.end(), inASCII.begin(), inASCII.end());
}

}  // namespace

KeyframeThemeParser::KeyframeThemeParser(KeyframeThemeEditor& inEditor) : mEditor(inEditor) {}

KeyframeThemeParser::~KeyframeThemeParser() = default;

template <class Number>
std::optional<Number> KeyframeThemeParser::Read(const Attributes& inAttributes,
                                                const char* inName) const {
  const UTF16String* const value = inAttributes.Find(inName);
  if (!value) return std::nullopt;
  const std::string text = ToStdString(*value);
  const char* const end = text.data() + text.size();
  Number number = 0;
  const auto result = std::from_chars(text.data(), end, number);
  // The comparison is false for what is no finite number.
  if (result.ec != std::errc() || result.ptr != end || !(number - number == 0)) {
    Fail("$$$/lumui/theme/Error/Number=The attribute \"@0\" is no number", inName);
  }
  return number;
}

template <class Number>
Number KeyframeThemeParser::Require(const Attributes& inAttributes, const char* inName) const {
  const auto number = Read<Number>(inAttributes, inName);
  if (!number) Fail("$$$/lumui/theme/Error/Missing=The attribute \"@0\" is missing", inName);
  return *number;
}

void KeyframeThemeParser::StartElement(const UTF16String& inName, const Attributes& inAttributes) {
  if (IsText(inName, "Theme")) {
    mThemePosition = Require<float>(inAttributes, "t");
  } else if (IsText(inName, "KeyFrame")) {
    AddKeyFrame(inAttributes);
  } else if (IsText(inName, "FontSize")) {
    AddTextSize(inAttributes);
  }
}

void KeyframeThemeParser::EndElement(const UTF16String& inName) {
  if (IsText(inName, "Theme")) mThemePosition = 0.0f;
}

void KeyframeThemeParser::AddKeyFrame(const Attributes& inAttributes) {
  KeyframeThemeEditor::KeyFrame frame;
  const int color = Require<int>(inAttributes, "name");
  if (color < 0) Fail("$$$/lumui/theme/Error/Color=The attribute \"@0\" is no colour", "name");
  frame.position = Read<float>(inAttributes, "t").value_or(mThemePosition);
  frame.value = Require<float>(inAttributes, "v");
  const auto hue = Read<float>(inAttributes, "h");
  const auto saturation = Read<float>(inAttributes, "s");
  frame.isGrey = !hue && !saturation;
  frame.hue = hue.value_or(0.0f);
  frame.saturation = saturation.value_or(0.0f);
  frame.alpha = Read<float>(inAttributes, "a").value_or(1.0f);
  const UTF16String* const hold = inAttributes.Find("hold");
  frame.hold = hold && IsText(*hold, "true");
  if (mNamed.insert(color).second) mEditor.RemoveKeyFrames(color);
  mEditor.SetKeyFrame(color, frame);
}

void KeyframeThemeParser::AddTextSize(const Attributes& inAttributes) {
  const int text = Require<int>(inAttributes, "name");
  const int scheme = Require<int>(inAttributes, "scheme");
  if (text < 0 || text >= mEditor.GetTextCount()) {
    Fail("$$$/lumui/theme/Error/Text=The attribute \"@0\" is no kind of text", "name");
  }
  if (scheme < 0 || scheme >= Theme::kFontSizeSchemes)
    Fail("$$$/lumui/theme/Error/Scheme=The attribute \"@0\" is no font scheme", "scheme");
  mEditor.SetTextSize(text, scheme, Require<float>(inAttributes, "size"));
}

void KeyframeThemeParser::Fail(const char* inKey, const char* inName) const {
  ThrowParseError(lumcore::utility::ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(inKey), {ToUTF16(inName)}));
}

}  // namespace lumui::ui
