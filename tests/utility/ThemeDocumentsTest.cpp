// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "support/ThemeDocuments.h"

namespace {

using lumcore::utility::ToStdString;
using lumui::ui::KeyframeThemeEditor;
using lumui::ui::Theme;
using vek::test::LoadTheme;
using vek::test::ParseTheme;
using vek::test::ThemeDocument;

constexpr float kPositions[] = {0.0f, 0.5f, 0.5001f, 1.0f};

using Keys = std::map<std::string, int>;

std::size_t Entities(const std::string& inDocument) {
  return static_cast<std::size_t>(QString::fromStdString(inDocument).count("<!ENTITY "));
}

// The names that stand for whole numbers, which are the keys; values have a point.
Keys KeysIn(const std::string& inText, const char* inPattern) {
  const QString text = QString::fromStdString(inText);
  const QRegularExpression pattern(inPattern);
  Keys keys;
  for (auto it = pattern.globalMatch(text); it.hasNext();) {
    const QRegularExpressionMatch match = it.next();
    const std::string name = match.captured(1).toStdString();
    EXPECT_TRUE(keys.emplace(name, match.captured(2).toInt()).second) << name << " twice";
  }
  return keys;
}
Keys KeysOf(const std::string& inDocument) {
  return KeysIn(inDocument, "<!ENTITY kColor_(\\w+) +\"(\\d+)\">");
}

// At which positions each colour has a frame.
class FramePositions : public lumcore::xml::AbstractParseHandler {
 public:
  explicit FramePositions(std::map<int, std::multiset<std::string>>& outPositions)
      : mPositions(outPositions) {}
  void StartElement(const lumcore::UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override {
    const std::string name = ToStdString(inName);
    if (name == "Theme") mTheme = ToStdString(*inAttributes.Find("t"));
    if (name == "KeyFrame")
      mPositions[std::stoi(ToStdString(*inAttributes.Find("name")))].insert(mTheme);
  }

 private:
  std::map<int, std::multiset<std::string>>& mPositions;
  std::string mTheme;
};

TEST(ThemeDocuments, NameEachKeyOnceAndGiveItAllItsValues) {
  const struct {
    const char* name;
    const char* root;
    std::size_t entities;
    int first;
    int last;
  } kDocuments[] = {
      {"LUMColorThemesV1", "ThemeColors", 139, 0, 90},
      {"LUMColorThemesV2", "ThemeParameters", 712, 0, 384},
      {"LUMColorThemesV3", "ThemeParameters", 132, 3000000, 3000060},
      {"LUMColorThemesV4", "ThemeParameters", 85, 4000000, 4000033},
      {"LUMColorThemesV5", "ThemeParameters", 182, 5000000, 5000089},
      {"DesignAppColorThemesV5", "ThemeParameters", 199, 5000000, 5000106},
      {"HighContrastColorThemeV5", "ThemeParameters", 104, 5000000, 5000089},
  };
  const std::multiset<std::string> kGeneral{"0.0000"};
  const std::multiset<std::string> kEach{"0.0000", "0.5000", "0.5001", "1.0000"};
  for (const auto& row : kDocuments) {
    SCOPED_TRACE(row.name);
    const std::string document = ThemeDocument(row.name);
    EXPECT_EQ(Entities(document), row.entities);
    EXPECT_NE(document.find(std::string("<!DOCTYPE ") + row.root + " ["), std::string::npos);

    std::set<int> numbers;
    for (const auto& [name, number] : KeysOf(document))
      EXPECT_TRUE(numbers.insert(number).second) << name << " shares its number";
    EXPECT_EQ(*numbers.begin(), row.first);
    EXPECT_EQ(*numbers.rbegin(), row.last);
    EXPECT_EQ(numbers.size(), static_cast<std::size_t>(row.last - row.first + 1));

    std::map<int, std::multiset<std::string>> positions;
    ParseTheme(document, new FramePositions(positions));
    for (const int number : numbers) {
      const auto& found = positions[number];
      EXPECT_TRUE(found == kGeneral || found == kEach) << number << " has not each of its values";
    }
    EXPECT_EQ(positions.size(), numbers.size()) << "a value for what has no name";
  }
}

TEST(ThemeDocuments, AgreeWithTheConstants) {
  std::ifstream file(VEK_THEME_COLORS);
  std::stringstream text;
  text << file.rdbuf();
  const std::string header = text.str();
  const std::size_t middle = header.find("themev5 {");
  const char* const kConstant = "kColor_(\\w+) = (\\d+),";
  EXPECT_EQ(KeysIn(header.substr(middle), kConstant),
            KeysOf(ThemeDocument("DesignAppColorThemesV5")));

  const Keys present = KeysOf(ThemeDocument("LUMColorThemesV5"));
  const Keys design = KeysOf(ThemeDocument("DesignAppColorThemesV5"));
  EXPECT_TRUE(std::includes(design.begin(), design.end(), present.begin(), present.end()));
  EXPECT_EQ(present, KeysOf(ThemeDocument("HighContrastColorThemeV5")));

  const Keys bevelled = KeysOf(ThemeDocument("LUMColorThemesV2"));
  const Keys painted = KeysIn(header.substr(0, middle), kConstant);
  EXPECT_TRUE(std::includes(bevelled.begin(), bevelled.end(), painted.begin(), painted.end()));
  // Trees and headers ask for these by number.
  std::string names;
  for (const int number : {232, 233, 234, 237, 238, 239, 247, 248, 249, 250, 251, 252, 324, 329}) {
    for (const auto& [name, other] : painted)
      if (other == number) names += name + " ";
  }
  EXPECT_EQ(names,
            "TreeHeaderLine TreeBackground TreeSelectedRow TreeInsertionFeedback TreeDropBoxFill "
            "TreeDropBoxStroke HeaderOuterGradientTop HeaderOuterGradientBottom "
            "HeaderInnerGradientTop HeaderInnerGradientBottom HeaderColumnGroove "
            "HeaderColumnRidge TreeBorder TreeRowSeparator ");
}

class ThemeColors : public ::testing::Test {
 protected:
  ThemeColors() { Theme::Initialize(new KeyframeThemeEditor(385, 3, 1)); }
  ~ThemeColors() override { Theme::Terminate(); }

  void Load(const char* inName) {
    mKeys = KeysOf(ThemeDocument(inName));
    LoadTheme(inName);
  }
  lumui::drawbot::ColorRGBA Color(const std::string& inKey) const {
    const auto found = mKeys.find(inKey);
    if (found == mKeys.end()) {
      ADD_FAILURE() << "no key " << inKey;
      return {};
    }
    return Theme::Get()->GetColor(found->second);
  }
  // The relative luminance and the ratio of two of them, as the accessibility guidelines for the
  // web define both.
  static double Luminance(const lumui::drawbot::ColorRGBA& inColor) {
    const auto linear = [](double inPart) {
      return inPart <= 0.04045 ? inPart / 12.92 : std::pow((inPart + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(inColor.red) + 0.7152 * linear(inColor.green) +
           0.0722 * linear(inColor.blue);
  }
  double Contrast(const std::string& inKey, const std::string& inGround) const {
    const double a = Luminance(Color(inKey)) + 0.05;
    const double b = Luminance(Color(inGround)) + 0.05;
    return std::max(a, b) / std::min(a, b);
  }

  Keys mKeys;
};

// "documents NAME...", "atleast RATIO" and "KEY: GROUND..." lines; a document with what it owes.
struct Demand {
  double atLeast;
  std::string key;
  std::string ground;
};
std::map<std::string, std::vector<Demand>> ReadContrasts() {
  std::ifstream file(VEK_THEME_CONTRASTS);
  std::map<std::string, std::vector<Demand>> demands;
  std::vector<std::string> documents;
  double atLeast = 0;
  for (std::string line, first; std::getline(file, line);) {
    std::istringstream words(line);
    if (!(words >> first) || first == "#") continue;
    if (first == "documents") documents.clear();
    if (first == "atleast") words >> atLeast;
    for (std::string word; words >> word;) {
      if (first == "documents") documents.push_back(word);
      for (const auto& name : documents) {
        if (first.back() == ':')
          demands[name].push_back({atLeast, first.substr(0, first.size() - 1), word});
      }
    }
  }
  return demands;
}

TEST_F(ThemeColors, AreReadAtEachPosition) {
  const auto demands = ReadContrasts();
  EXPECT_EQ(demands.size(), 5U);
  for (const auto& [name, pairs] : demands) {
    Theme::Initialize(new KeyframeThemeEditor(385, 3, 1));
    Load(name.c_str());
    for (const float position : kPositions) {
      Theme::SetBrightness(position);
      for (const Demand& pair : pairs) {
        EXPECT_GE(Contrast(pair.key, pair.ground), pair.atLeast)
            << name << " at " << position << ": " << pair.key << " on " << pair.ground;
      }
    }
  }
}

TEST_F(ThemeColors, JumpBetweenTheFamiliesAndKeepTheFontsTable) {
  Load("LUMColorThemesV2");
  Load("LUMColorThemesV4");
  Load("LUMColorThemesV5");
  const auto isDark = [this](float inBrightness) {
    Theme::SetBrightness(inBrightness);
    return Luminance(Color("PanelBackground")) < Luminance(Color("Text"));
  };
  EXPECT_TRUE(isDark(0.5f));
  EXPECT_FALSE(isDark(0.5001f));
  Theme::SetBrightness(0.25f);
  EXPECT_NEAR(Color("Gray_10").red, (0.9020 + 0.9608) / 2, 1e-4) << "a blend within a family";
  Theme::SetBrightness(0.0f);
  EXPECT_NEAR(Color("Gray_01").red, 0.0863, 1e-4);
  Theme::SetBrightness(1.0f);
  EXPECT_NEAR(Color("Gray_10").red, 0.1725, 1e-4);
  EXPECT_EQ(Color("Gray_10").red, Color("Gray_10").blue) << "no tint in a gray";
  EXPECT_TRUE(Theme::Get()->HasColor(384) && Theme::Get()->HasColor(4000000)) << "kept beside";

  std::string sizes;
  for (const int text : {Theme::kTextMainSmall, Theme::kTextMainLarge, Theme::kTextTitle}) {
    for (int scheme = 0; scheme < Theme::kFontSizeSchemes; ++scheme) {
      Theme::Get()->SetFontSizeScheme(static_cast<Theme::FontSizeScheme>(scheme));
      sizes +=
          std::to_string(std::lround(Theme::Get()->GetTextSize(static_cast<Theme::Text>(text)))) +
          " ";
    }
  }
  EXPECT_EQ(sizes, "8 9 13 9 11 15 11 13 17 ");
}

}  // namespace
