// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "lumui/ui/Application.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "support/ThemeDocuments.h"

namespace {

using lumui::ui::KeyframeThemeEditor;
using lumui::ui::Theme;
using namespace lumui::ui::themev5;

void Load(const char* inName) {
  vek::test::LoadTheme(inName);
  Theme::NotifyThemeChanged();
}

class ThemedControls : public ::testing::Test {
 protected:
  ThemedControls() {
    mWindow.resize(300, 340);
    const auto place = [this](QWidget& inWidget, int inTop, int inHeight) {
      inWidget.setParent(&mWindow);
      inWidget.setGeometry(10, inTop, 160, inHeight);
    };
    place(mField, 10, 26);
    place(mDisabled, 40, 26);
    mDisabled.setEnabled(false);
    place(mButton, 70, 26);
    place(mAccent, 100, 26);
    mAccent.setDefault(true);
    place(mCheck, 130, 26);
    mCheck.setChecked(true);
    place(mList, 160, 60);
    mList.addItem(QStringLiteral("row"));
    mList.item(0)->setSelected(true);
    place(mTabs, 225, 30);
    mTabs.addTab(QString());
    mTabs.addTab(QString());
    place(mBar, 260, 16);
    mBar.setRange(0, 100);
    place(mSpin, 280, 26);
    mMenu.addAction(QStringLiteral("item"));
  }
  ~ThemedControls() override { Theme::Terminate(); }

  // The application tells its windows of a palette at the next turn of the loop.
  QImage Picture() {
    lumui::ui::Application::Get()->PumpPendingEvents();
    return mWindow.grab().toImage();
  }
  // "name: is, not wanted" for each place that has not the colour of its key.
  std::string Differences() {
    lumui::ui::Application::Get()->PumpPendingEvents();
    std::string text;
    const auto look = [&text](const char* inName, QWidget& inWidget, int inX, int inY,
                              Color inKey) {
      const auto wanted = Theme::Get()->GetColor(inKey);
      const QColor there = inWidget.grab().toImage().pixelColor(inX, inY);
      const QColor key = QColor::fromRgbF(wanted.red, wanted.green, wanted.blue);
      if (there.name() == key.name()) return;
      text += std::string(inName) + ": " + there.name().toStdString() + ", not " +
              key.name().toStdString() + "\n";
    };
    look("window", mWindow, 290, 330, kColor_PanelBackground);
    look("field", mField, 140, 13, kColor_FieldBackground);
    look("border of the field", mField, 0, 13, kColor_FieldBorder);
    look("disabled field", mDisabled, 140, 13, kColor_FieldBackgroundDisabled);
    look("button", mButton, 10, 13, kColor_ButtonBackground);
    look("border of the button", mButton, 0, 13, kColor_ButtonBorder);
    look("default button", mAccent, 10, 13, kColor_AccentButtonBackground);
    look("check", mCheck, 3, 9, kColor_CheckBackgroundOn);
    look("list", mList, 100, 50, kColor_ListBackground);
    look("border of the list", mList, 0, 50, kColor_ListBorder);
    look("selected row", mList, 100, 8, kColor_ListRowSelected);
    look("other tab", mTabs, mTabs.tabRect(1).right() - 4, 15, kColor_TabBackground);
    look("line of the tab", mTabs, 10, mTabs.tabRect(0).top(), kColor_Focus);
    look("thumb", mBar, 24, 8, kColor_ScrollThumb);
    look("track", mBar, 130, 8, kColor_ScrollTrack);
    look("border of the spin box", mSpin, 0, 13, kColor_FieldBorder);
    look("menu", mMenu, 4, 4, kColor_MenuBackground);
    look("border of the menu", mMenu, 0, 4, kColor_MenuBorder);
    return text;
  }

  QWidget mWindow;
  QLineEdit mField, mDisabled;
  QPushButton mButton, mAccent;
  QCheckBox mCheck;
  QListWidget mList;
  QTabBar mTabs;
  QScrollBar mBar{Qt::Horizontal};
  QSpinBox mSpin;
  QMenu mMenu;
};

TEST_F(ThemedControls, FollowTheThemeAtEachPositionAndGoBackWithoutOne) {
  const QImage before = Picture();
  const QPalette menuBefore = mMenu.palette();
  const float brightness = lumui::ui::GetDefaultBrightness();

  Theme::Initialize(new KeyframeThemeEditor(385, 3, 1));
  Load("LUMColorThemesV2");
  EXPECT_EQ(Picture(), before) << "no colours of the present controls yet";
  Load("LUMColorThemesV5");
  for (const float position : {0.0f, 0.5f, 0.5001f, 1.0f}) {
    Theme::SetBrightness(position);
    Theme::NotifyThemeChanged();
    EXPECT_EQ(Differences(), "") << "at " << position;
    EXPECT_EQ(lumui::ui::GetDefaultBrightness(), brightness) << "asked of the theme's own colours";
  }
  Theme::Initialize(new KeyframeThemeEditor(385, 3, 1));
  EXPECT_EQ(Picture(), before) << "a theme without values";
  Load("HighContrastColorThemeV5");
  EXPECT_EQ(Differences(), "");

  Theme::Terminate();
  EXPECT_EQ(Picture(), before);
  EXPECT_EQ(mMenu.palette(), menuBefore);
  EXPECT_EQ(QApplication::style()->name(), QStringLiteral("fusion"));
}

// As it counts for what can be read.
double Luminance(const QColor& inColor) {
  const auto part = [](double inPart) {
    return inPart <= 0.03928 ? inPart / 12.92 : std::pow((inPart + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(inColor.redF()) + 0.7152 * part(inColor.greenF()) +
         0.0722 * part(inColor.blueF());
}

// Of the ink that stands out most from the ground in the corner.
double GreatestContrast(const QImage& inPicture) {
  const double ground = Luminance(inPicture.pixelColor(1, 1)) + 0.05;
  double greatest = 1.0;
  for (int y = 0; y < inPicture.height(); ++y) {
    for (int x = 0; x < inPicture.width(); ++x) {
      const double ink = Luminance(inPicture.pixelColor(x, y)) + 0.05;
      greatest = std::max({greatest, ink / ground, ground / ink});
    }
  }
  return greatest;
}

TEST_F(ThemedControls, TheButtonForMenusThatHaveNoRoomIsSeenOnEachGround) {
  Theme::Initialize(new KeyframeThemeEditor(385, 3, 1));
  Load("LUMColorThemesV5");
  QMenuBar bar(&mWindow);
  for (int menu = 0; menu < 5; ++menu)
    bar.addMenu(QStringLiteral("menu"));
  bar.setGeometry(0, 0, 120, 24);
  Picture();
  auto* const more = bar.findChild<QToolButton*>();
  ASSERT_TRUE(more && more->isVisibleTo(&bar));
  for (const float position : {0.0f, 0.5f, 0.5001f, 1.0f}) {
    Theme::SetBrightness(position);
    Theme::NotifyThemeChanged();
    lumui::ui::Application::Get()->PumpPendingEvents();
    EXPECT_GE(GreatestContrast(more->grab().toImage()), 3.0) << "at " << position;
  }
}

}  // namespace
