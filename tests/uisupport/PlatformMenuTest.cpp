// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/PlatformMenu.h"

#include <gtest/gtest.h>

#include "lumworkspace/workspace/CommandCheckStyle.h"
#include "support/MenuText.h"

namespace vek::uisupport {
namespace {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumworkspace::workspace::IsCommandCheckStyleRadio;
using test_support::MenuText;

constexpr unsigned kNone = 0xFFFFFFFF;

class PlatformMenu : public testing::Test {
 protected:
  ~PlatformMenu() override { DestroyPlatformMenu(mMenu); }
  const HMENU mMenu = CreatePlatformMenu(true);
  const HMENU mGone = [] {
    const HMENU menu = CreatePlatformMenu(false);
    DestroyPlatformMenu(menu);
    return menu;
  }();
};

}  // namespace

TEST_F(PlatformMenu, ItemsGoWhereTheyAreAskedFor) {
  EXPECT_TRUE(AppendItem(mMenu, ToUTF16("Last"), 3, true));
  EXPECT_TRUE(InsertItem(mMenu, 0, ToUTF16("First"), 1, false));
  EXPECT_TRUE(InsertSeparator(mMenu, 1, 7));
  EXPECT_TRUE(AppendSeparator(mMenu, 0));
  EXPECT_TRUE(InsertItem(mMenu, 99, ToUTF16("End"), 4, false));
  CheckItem(mMenu, 2, true);
  EnableItem(mMenu, 0, false);
  EXPECT_EQ(MenuText(mMenu), "~First=1 | ---=7 | *Last=3 | ---=0 | End=4");
  EXPECT_TRUE(IsCommandCheckStyleRadio(3));
  EXPECT_FALSE(IsCommandCheckStyleRadio(1));
  EXPECT_TRUE(IsItemChecked(mMenu, 2));
  EXPECT_FALSE(IsItemChecked(mMenu, 0));
  EXPECT_FALSE(IsItemEnabled(mMenu, 0) || IsItemEnabled(mMenu, 4) || IsItemEnabled(mGone, 0));
  SetItem(mMenu, 0, ToUTF16("One"), 11);
  SetItemID(mMenu, 2, 13);
  SetItemTitle(mMenu, 2, ToUTF16("Three"));
  EnableItem(mMenu, 0, true);
  RemoveItem(mMenu, 1);
  EXPECT_EQ(MenuText(mMenu), "One=11 | *Three=13 | ---=0 | End=4");
}

TEST_F(PlatformMenu, InsertedSubMenusAreAttachedToTheLastItem) {
  const HMENU first = AppendSubMenu(mMenu, ToUTF16("A"), 1);
  AppendItem(mMenu, ToUTF16("B"), 2, false);
  const HMENU middle = InsertSubMenu(mMenu, 1, ToUTF16("C"), 3);
  EXPECT_EQ(MenuText(mMenu), "A=1> | C=3 | B=2>");
  EXPECT_EQ(GetSubMenu(mMenu, 2), middle);
  EXPECT_EQ(GetItemID(mMenu, 0), kNone);
  SetSubMenu(mMenu, 2, nullptr);
  EXPECT_EQ(GetItemID(mMenu, 2), 2u);
  RemoveItem(mMenu, 0);
  EXPECT_EQ(GetItemCount(first), 0u);  // lives on
  DestroyPlatformMenu(first);
  EXPECT_EQ(GetItemCount(first), kNone);
  SetSubMenu(mMenu, 0, middle);
  DestroyPlatformMenu(mMenu);
  EXPECT_EQ(GetItemCount(middle), kNone);
}

TEST_F(PlatformMenu, PositionsAreThoseOfTheFirstExactMatch) {
  EXPECT_EQ(GetItemPosition(mMenu, 0u), kNone);
  EXPECT_EQ(GetItemPosition(mMenu, UTF16String()), kNone);
  AppendItem(mMenu, ToUTF16("Cut\tCtrl+X"), 5, false);
  AppendItem(mMenu, ToUTF16("cut"), 6, false);
  AppendSubMenu(mMenu, ToUTF16("Cut"), 5);
  AppendItem(mMenu, ToUTF16("Cut"), 6, false);
  EXPECT_EQ(GetItemPosition(mMenu, 6u), 1u);
  EXPECT_EQ(GetItemPosition(mMenu, 5u), 0u);
  EXPECT_EQ(GetItemPosition(mMenu, ToUTF16("Cut")), 2u);
  EXPECT_EQ(GetItemPosition(mMenu, ToUTF16("Cu")), kNone);
}

TEST_F(PlatformMenu, UserDataIsExchanged) {
  int one = 0, two = 0;
  AppendItem(mMenu, ToUTF16("A"), 1, false);
  EXPECT_EQ(SetMenuItemUserData(mMenu, 0, &one), nullptr);
  EXPECT_EQ(SetMenuItemUserData(mMenu, 0, &two), &one);
  EXPECT_EQ(GetMenuItemUserData(mMenu, 0), &two);
  EXPECT_EQ(SetMenuItemUserData(mMenu, 1, &one), nullptr);
}

TEST_F(PlatformMenu, WhatIsNoMenuFails) {
  for (const HMENU menu : {HMENU(), mGone}) {
    UTF16String title = ToUTF16("kept");
    unsigned id = 42;
    GetItem(menu, 0, title, id);
    EXPECT_EQ(title, ToUTF16("kept"));
    EXPECT_EQ(id, 42u);
    EXPECT_FALSE(AppendItem(menu, title, 43, true));
    EXPECT_FALSE(IsCommandCheckStyleRadio(43));
    EXPECT_FALSE(AppendSeparator(menu, 0));
    EXPECT_EQ(GetItemCount(menu), kNone);
    EXPECT_EQ(GetItemPosition(menu, 0u), kNone);
    EXPECT_TRUE(IsItemChecked(menu, 0));
    EXPECT_EQ(GetMenuItemUserData(menu, 0), nullptr);
    const HMENU unattached = AppendSubMenu(menu, title, 1);
    EXPECT_EQ(GetItemCount(unattached), 0u);
    DestroyPlatformMenu(unattached);
  }
}

}  // namespace vek::uisupport
