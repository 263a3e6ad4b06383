// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Theme.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/ui/KeyframeThemeParser.h"

namespace {

using lumui::ui::KeyframeThemeEditor;
using lumui::ui::Theme;

class Themes : public ::testing::Test {
 protected:
  Themes() { Theme::Initialize(new KeyframeThemeEditor(10, 3, 1)); }
  ~Themes() override { Theme::Terminate(); }

  static void Read(const std::string& inDocument) {
    const auto theme = Theme::Get();
    std::auto_ptr<lumcore::xml::AbstractParseHandler> handler(
        new lumui::ui::KeyframeThemeParser(static_cast<KeyframeThemeEditor&>(*theme)));
    lumcore::xml::GetParser(handler)->Parse(lumcore::utility::ToUTF8(inDocument),
                                            lumcore::utility::ToUTF16("theme"));
  }
  // Parts of 255, as "red green blue alpha".
  static std::string Color(int inColor, float inBrightness) {
    Theme::SetBrightness(inBrightness);
    const auto color = Theme::Get()->GetColor(inColor);
    std::string text;
    for (const float part : {color.red, color.green, color.blue, color.alpha}) {
      text += (text.empty() ? "" : " ") + std::to_string(std::lround(part * 255));
    }
    return text;
  }
};

TEST_F(Themes, BlendKeyframesByBrightness) {
  Read(R"(<?xml version="1.0"?>
<!DOCTYPE ThemeParameters [
  <!ATTLIST KeyFrame hold (true|false) "false">
  <!ENTITY kDark "0.5000"> <!ENTITY kLight "0.5001"> <!ENTITY kFar "5000025">
]>
<ThemeParameters><ThemeColors>
  <Theme t="&kDark;"><KeyFrame name="1" v="0.2"/><KeyFrame name="&kFar;" v="1"/></Theme>
  <Theme t="&kLight;"><KeyFrame name="1" v="0.8"/></Theme>
  <KeyFrame name="2" t="0" h="0.9" s="1" v="1" a="0"/>
  <KeyFrame name="2" t="1" h="0.1" s="1" v="1"/>
  <KeyFrame name="3" t="0.3" v="0" hold="true"/> <KeyFrame name="3" t="0.6" v="1"/>
  <KeyFrame name="4" t="0" v="1"/> <KeyFrame name="4" t="1" h="0.3333333" s="1" v="1"/>
</ThemeColors></ThemeParameters>)");
  EXPECT_EQ(Color(1, 0.0f), "51 51 51 255") << "before the first position";
  EXPECT_EQ(Color(1, 0.5f), "51 51 51 255");
  EXPECT_EQ(Color(1, 0.5001f), "204 204 204 255") << "a jump between the families";
  EXPECT_EQ(Color(5000025, 1.0f), "255 255 255 255");
  EXPECT_EQ(Color(2, 0.5f), "255 0 0 128") << "the shorter way round the circle";
  EXPECT_EQ(Color(3, 0.59f), "0 0 0 255");
  EXPECT_EQ(Color(3, 0.6f), "255 255 255 255");
  EXPECT_EQ(Color(4, 0.5f), "128 255 128 255") << "a grey takes the other's hue";
  EXPECT_EQ(Color(2, NAN), "255 0 153 0") << "no number is the darkest";
  EXPECT_EQ(Color(9, 0.5f), "255 0 255 255") << "unknown";

  Read("<x><KeyFrame name='1' t='0.5' v='0.4'/></x>");
  EXPECT_EQ(Color(1, 0.5f), "102 102 102 255");
  EXPECT_EQ(Color(1, 1.0f), "102 102 102 255") << "a later document speaks alone for its colours";
  EXPECT_EQ(Color(3, 0.6f), "255 255 255 255") << "and for no others";
}

TEST_F(Themes, TextSizesFollowTheSchemeAndChangesAreTold) {
  Read(
      "<ThemeFonts><FontSize name='2' size='13' scheme='1'/>"
      "<FontSize name='2' size='17.5' scheme='2'/></ThemeFonts>");
  EXPECT_EQ(Theme::Get()->GetTextSize(Theme::kTextTitle), 13);
  Theme::Get()->SetFontSizeScheme(Theme::kFontSizesLarge);
  EXPECT_EQ(Theme::Get()->GetTextSize(Theme::kTextTitle), 17.5);

  int told = 0;
  const Theme::ChangeCallback callback(new boost::function<void()>([&told] { ++told; }));
  Theme::AddThemeChangedCallback(callback);
  Theme::SetBrightness(0.3f);
  EXPECT_EQ(told, 0);
  Theme::NotifyThemeChanged();
  callback->clear();
  Theme::NotifyThemeChanged();
  EXPECT_EQ(told, 1);
}

TEST_F(Themes, RefuseWhatIsNoNumberWithItsPlace) {
  const char* const kCases[][2] = {
      {"<KeyFrame name='1' v='0,5'/>", "The attribute \"v\" is no number"},
      {"<KeyFrame name='1' v='nan'/>", "The attribute \"v\" is no number"},
      {"<KeyFrame name='1'/>", "The attribute \"v\" is missing"},
      {"<KeyFrame name='-1' v='1'/>", "The attribute \"name\" is no colour"},
      {"<KeyFrame name='99999999999' v='1'/>", "The attribute \"name\" is no number"},
      {"<Theme/>", "The attribute \"t\" is missing"},
      {"<FontSize name='3' size='9' scheme='0'/>", "The attribute \"name\" is no kind of text"},
  };
  for (const auto& [element, cause] : kCases) {
    try {
      Read(std::string("<a>\n ") + element + "</a>");
      ADD_FAILURE() << element << " was taken";
    } catch (const lumcore::xml::ParseError& error) {
      EXPECT_EQ(error.what(), std::string("theme:2:2: ") + cause);
    }
  }
}

}  // namespace
