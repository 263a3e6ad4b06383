// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <optional>

#include "lumui/controls/UI_ScrollView.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Accessible.h"
#include "lumui/ui/UI_NodeManager.h"
#include "uisupport/KeyFixture.h"
#include "vek/sharedui/KeyboardMapDialog.h"

namespace {

using namespace lumui::testing;
using lumcore::geom::RectT;
using lumui::ui::kModAlt;
using lumui::ui::kModCommand;
using lumui::ui::kModShift;
using lumui::utility::ksv::KeyboardForm;
using lumui::utility::ksv::KeyboardView;
using lumui::utility::ksv::KeyShape;
using vek::sharedui::KeyboardMapDialog;
using vek::uisupport::CommandRegistry;

// Cut, Copy and Paste of the category Edit, and Play, which may repeat.
class KeyboardMaps : public KeyFixture {
 protected:
  KeyboardMaps() {
    const auto add = [](int inID, const char* inDisplay, bool inRepeatable) {
      const auto display = lumcore::utility::ToUTF16(inDisplay);
      CommandRegistry::Get().RegisterCommand(inID, display, display, {}, inRepeatable);
    };
    add(1, "Edit.Cut", false);
    add(2, "Edit.Copy...", false);
    add(3, "Edit.Paste", false);
    add(4, "Play...", true);
    Map(1, Char('X'), kModCommand);
    Map(4, Char('P'), kModCommand);
    Map(4, Char('P'), kModCommand, true);
    Map(2, Char('Q'), kModCommand, false, nullptr, true);
    mBefore = Shortcuts();
    mOldAnswerer = lumui::dialogs::SetDialogAnswerer([this](const auto& inBox) {
      mAsked.push_back(lumcore::utility::ToStdString(inBox.text));
      return inBox.buttons.size() == 2 ? std::optional<int>(mAnswer) : std::optional<int>(0);
    });
    mTold.reset(
        new boost::function<void(int)>([this](int inChange) { mChanges.push_back(inChange); }));
    Manager().AddKeyMappingsChangedCallback(mTold);
    mDialog = new KeyboardMapDialog(nullptr);
    mDialog->RunModeless({});
    Keyboard().SetForm(KeyboardForm::kANSI);
    Keyboard().SetModifiers(ModifierKeys(kModCommand));
    ProcessEvents();
  }
  ~KeyboardMaps() override {
    if (mDialog) mDialog->EndDialog(1);
    mDialog = nullptr;
    mTold->clear();
    lumui::dialogs::SetDialogAnswerer(mOldAnswerer);
  }

  KeyboardView& Keyboard() { return mDialog->GetMap().GetKeyboard(); }
  Position Middle(const lumui::ui::UI_Node& inNode, const RectT<float>& inRect) {
    lumcore::geom::PointT<int> point(static_cast<int>(inRect.x + inRect.width / 2),
                                     static_cast<int>(inRect.y + inRect.height / 2));
    inNode.UI_LocalToGlobal(point);
    return Position(static_cast<float>(point.x), static_cast<float>(point.y));
  }
  Position OfKey(KeyboardCode inKey) { return Middle(Keyboard(), Keyboard().GetRectOf(inKey)); }
  // Rows are 22 units high: Play..., the heading, Copy..., Cut, Paste.
  Position OfRow(int inRow) {
    const auto list = mDialog->GetNodeForID("Commands");
    return Middle(*list, RectT<float>(0, 22.0f * static_cast<float>(inRow), 200, 22));
  }
  void Press(const char* inButton) {
    dynamic_cast<lumui::controls::UI_TextButton&>(*mDialog->GetNodeForID(inButton)).Press();
  }
  void ChooseKey(KeyboardCode inKey) {
    ClickMouse(*mDialog, OfKey(inKey));
    ASSERT_EQ(Keyboard().GetSelectedKey(), inKey);
  }
  void Drag(Position inFrom, Position inTo) {
    PressMouse(*mDialog, inFrom);
    MoveMouse(*mDialog, {inFrom.x + 3, inFrom.y - 9});
    MoveMouse(*mDialog, inTo);
  }

  std::string mBefore;
  int mAnswer = 0;
  std::vector<std::string> mAsked;
  std::vector<int> mChanges;
  lumui::dialogs::DialogAnswerer mOldAnswerer;
  boost::shared_ptr<boost::function<void(int)>> mTold;
  boost::intrusive_ptr<KeyboardMapDialog> mDialog;
};

// "Cut=Ctrl+X: Edit > Cut *", a star where it is selected and "~" where it is disabled.
std::string Spoken(lumui::ui::UI_Node& inNode, const std::string& inName) {
  using namespace lumui::ui;
  AccessibleItems* const items = inNode.UI_GetAccessibleItems();
  for (int i = 0; i < items->GetChildCount(AccessibleID()); ++i) {
    const AccessibleID id = items->GetChild(AccessibleID(), i);
    AccessibleItem item;
    if (!items->Describe(id, item) || lumcore::utility::ToStdString(item.name) != inName) continue;
    EXPECT_EQ(items->GetIndex(id), i);
    EXPECT_EQ(items->GetAt({item.rect.x + 2, item.rect.y + 2}), id);
    items->Perform(id, kAccessiblePress);
    const auto text = lumcore::utility::ToStdString(item.value) + ": " +
                      lumcore::utility::ToStdString(item.description);
    const unsigned before = item.states;
    items->Describe(id, item);
    return text + ((before ^ item.states) & kAccessibleSelected ? " toggled" : "") +
           (item.states & kAccessibleDisabled ? " ~" : "");
  }
  return "none";
}

TEST_F(KeyboardMaps, KeysAndCommandsAreToldToThoseWhoDoNotSeeThem) {
  EXPECT_EQ(Spoken(Keyboard(), "X"), "Cut: Edit > Cut toggled");
  EXPECT_EQ(Keyboard().GetSelectedKey(), Char('X'));
  EXPECT_EQ(Spoken(Keyboard(), "K"), ":  toggled");
  EXPECT_EQ(Spoken(Keyboard(), "Caps Lock"), ":  ~");
  EXPECT_EQ(Spoken(Keyboard(), "Ctrl"), ":  toggled");
  EXPECT_EQ(Spoken(Keyboard(), "X"), ":  toggled") << "without Ctrl";
  const auto scroll = mDialog->GetNodeForID("Commands");
  auto& list = *dynamic_cast<lumui::controls::UI_ScrollView&>(*scroll).GetContentNode();
  EXPECT_EQ(Spoken(list, "Edit"), ": ");
  EXPECT_EQ(Shortcuts(), mBefore);
  EXPECT_EQ(Spoken(list, "Paste"), ":  toggled");
  EXPECT_EQ(mDialog->GetMap().GetSelectedCommand(), 3);
  EXPECT_NE(Shortcuts(), mBefore) << "the key that was chosen is given to the command";
}

TEST_F(KeyboardMaps, AFreeKeyIsGivenAndTakenAwayInTheLiveMap) {
  mDialog->GetMap().SelectCommand(4);
  ChooseKey(Char('K'));
  Press("Assign");
  // A repeatable command has a hold mapping too.
  EXPECT_EQ(Shortcuts(), mBefore + " 4:8000004B/4 4:8000004B/4 hold");
  EXPECT_EQ(mChanges, (std::vector<int>{-1}));
  Press("Assign");
  EXPECT_EQ(mChanges.size(), 1u) << "it has the key already";
  Press("Remove");
  EXPECT_EQ(Shortcuts(), mBefore);
  EXPECT_EQ(mChanges.size(), 2u);
  EXPECT_TRUE(mAsked.empty());
}

TEST_F(KeyboardMaps, AKeyOfAnotherCommandIsTakenOnlyAfterTheQuestion) {
  mDialog->GetMap().SelectCommand(3);
  ClickMouse(*mDialog, OfKey(Char('P')));  // which selects Play
  mDialog->GetMap().SelectCommand(3);
  mAnswer = 1;
  Press("Assign");
  EXPECT_EQ(Shortcuts(), mBefore);
  EXPECT_TRUE(mChanges.empty());
  mAnswer = 0;
  Press("Assign");
  EXPECT_EQ(mAsked, (std::vector<std::string>(
                        2,
                        "The shortcut \"Ctrl+P\" is already in use for command \"Play...\". "
                        "Replace it?")));
  EXPECT_EQ(Shortcuts(), "1:80000058/4 2:80000051/4 protected 3:80000050/4");
}

TEST_F(KeyboardMaps, AReservedKeyIsRefusedWhateverIsTried) {
  // By a drag, as the buttons are off for it.
  Drag(OfRow(4), OfKey(Char('Q')));
  ReleaseMouse(*mDialog, OfKey(Char('Q')));
  EXPECT_EQ(mDialog->GetMap().GetSelectedCommand(), 3);
  ASSERT_EQ(mAsked.size(), 1u);
  EXPECT_EQ(mAsked[0], "The selected shortcut is reserved and cannot be used.");
  mDialog->GetMap().Remove();
  EXPECT_EQ(mAsked.size(), 2u);
  EXPECT_EQ(Shortcuts(), mBefore);
  EXPECT_TRUE(mChanges.empty());
}

TEST_F(KeyboardMaps, ACommandIsDraggedOntoAKey) {
  Drag(OfRow(2), OfKey(Char('G')));
  EXPECT_EQ(Shortcuts(), mBefore) << "not before it is let go";
  ReleaseMouse(*mDialog, OfKey(Char('G')));
  EXPECT_EQ(Shortcuts(),
            "1:80000058/4 2:80000051/4 protected 2:80000047/4 4:80000050/4 "
            "4:80000050/4 hold");
  const std::string after = Shortcuts();
  // Beside all keys, and with the window gone in the middle of it, nothing is given.
  Drag(OfRow(2), OfRow(4));
  ReleaseMouse(*mDialog, OfRow(4));
  Drag(OfRow(2), OfKey(Char('H')));
  mDialog->EndDialog(1);
  ProcessEvents();
  EXPECT_EQ(Shortcuts(), after);
  EXPECT_EQ(lumui::ui::UI_NodeManager::Get(true)->GetInputCapture(), nullptr);
}

TEST_F(KeyboardMaps, AKeyOfSeveralCommandsShowsTheOneThatAPressRuns) {
  const auto entry = [](const char* inCommand, char inKey, const char* inMore) {
    return std::string("<keycmd><cmd>") + inCommand + "</cmd><uchar>" + inKey + "</uchar>" +
           inMore + "<mod><cmdkey/></mod></keycmd>";
  };
  // As a file that was written by hand may have it.
  Load(entry("Edit.Paste", 'K', "") + entry("Edit.Cut", 'K', "") + entry("Play...", 'K', "") +
       entry("Edit.Cut", 'L', "<hold/>") + entry("Play...", 'L', "") +
       entry("Edit.Paste", 'M', "<hold/>"));
  Manager().NotifyOfKeyMappingsChanged(-1);
  const vek::sharedui::KSVDelegate delegate;
  for (const char key : {'K', 'L'}) {
    bool ended = false;
    EXPECT_EQ(delegate.GetUse(Char(key), ModifierKeys(kModCommand)).command,
              Manager().GetCommandIdFromKeyEvent(Down(Char(key), kModCommand), ended))
        << key;
  }
  EXPECT_EQ(delegate.GetUse(Char('M'), ModifierKeys(kModCommand)).command, 3);
}

TEST_F(KeyboardMaps, RealKeysChooseTheirPictures) {
  Keyboard().UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  TapKey(*mDialog, Char('X'), ModifierKeys(kModShift | kModAlt));
  EXPECT_EQ(Keyboard().GetSelectedKey(), Char('X'));
  EXPECT_EQ(Keyboard().GetModifiers(), ModifierKeys(kModShift | kModAlt));
  // Modifiers that are held show for as long.
  Keyboard().SetModifiers(ModifierKeys());
  PressKey(*mDialog, KeyboardCode(KeyboardCode::kControlKey));
  EXPECT_EQ(Keyboard().GetModifiers(), ModifierKeys(kModCommand));
  ReleaseKey(*mDialog, KeyboardCode(KeyboardCode::kControlKey));
  EXPECT_EQ(Keyboard().GetModifiers(), ModifierKeys());
  // The arrows walk over the picture, and Delete takes the key away.
  Keyboard().SetModifiers(ModifierKeys(kModCommand));
  Keyboard().SetSelectedKey(Char('A'));
  TapKey(*mDialog, KeyboardCode(KeyboardCode::kDownArrow));
  EXPECT_EQ(Keyboard().GetSelectedKey(), Char('Z'));
  TapKey(*mDialog, KeyboardCode(KeyboardCode::kRightArrow));
  EXPECT_EQ(Keyboard().GetSelectedKey(), Char('X'));
  EXPECT_EQ(mDialog->GetMap().GetSelectedCommand(), 1) << "the list goes along";
  TapKey(*mDialog, KeyboardCode(KeyboardCode::kDelete));
  EXPECT_EQ(Shortcuts(), "2:80000051/4 protected 4:80000050/4 4:80000050/4 hold");
  TapKey(*mDialog, KeyboardCode(KeyboardCode::kRightArrow));
  EXPECT_EQ(Keyboard().GetSelectedKey(), Char('C'));
}

TEST(KeyboardShapes, KeysLieBesideEachOtherAndEachIsThereOnce) {
  for (const KeyboardForm form : {KeyboardForm::kANSI, KeyboardForm::kISO}) {
    const auto keys = lumui::utility::ksv::MakeKeyboard(form);
    const bool iso = form == KeyboardForm::kISO;
    EXPECT_EQ(keys.size(), iso ? 105u : 104u);
    std::set<KeyboardCode> codes;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const KeyShape& key = keys[i];
      EXPECT_GE(key.rect.x, 0);
      EXPECT_LE(key.rect.Right(), lumui::utility::ksv::kKeyboardWidth);
      EXPECT_LE(key.rect.Bottom(), lumui::utility::ksv::kKeyboardHeight);
      if (key.code != KeyboardCode()) {
        EXPECT_TRUE(codes.insert(key.code).second) << i;
      }
      for (std::size_t other = 0; other < keys.size(); ++other) {
        if (other == i) continue;
        EXPECT_FALSE(key.rect.Intersects(keys[other].rect)) << i << " " << other;
        EXPECT_FALSE(key.rect.Intersects(keys[other].wing)) << i << " " << other;
      }
    }
  }
}

}  // namespace
