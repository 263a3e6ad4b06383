// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommonFileDialog.h"

#include "lumui/UITest.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "support/UserFolders.h"
#include "vek/selection/Manager.h"
#include "vek/sharedui/UIMultiTreeList.h"
#include "vek/sharedui/UIMultiTreeListView.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/sharedui/UIShellTrackViewAdapter.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace vek;
using namespace vek::sharedui;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumui::controls::UI_Popup_Combo;
using lumui::controls::UI_TextButton;
using lumui::test::Point;
using lumui::test::Rect;
using lumui::test::U16;
using lumui::ui::KeyboardCode;
using lumui::ui::UI_Dialog;
namespace input = lumui::testing;

class FileDialogs : public lumui::test::UITest {
 protected:
  FileDialogs() {
    for (const char* name : {"in/b.txt", "in/a.txt", "in/B.doc"}) {
      mHome.MakeFolder("in");
      mHome.MakeFile(name);
    }
  }
  ~FileDialogs() override {
    lumui::dialogs::SetDialogDriver(nullptr);
    mDialog.reset();
    lumui::ui::UI_NodeAdapterRegistry::Reset();
  }

  void Make(const char* inFolder, const char* inFile = nullptr) {
    const Dir folder = mHome.GetDir(inFolder ? inFolder : "");
    const File file(mHome.GetPath(inFile ? inFile : ""));
    mDialog.reset(new CommonFileDialog(nullptr, U16("Open"), U16("Take it"),
                                       inFolder ? &folder : nullptr, inFile ? &file : nullptr,
                                       nullptr));
    mTree = UIShellTrackViewAdapter::FindTree(*mDialog->GetNodeForID("FolderTree"));
    mList = static_cast<UIMultiTreeList&>(*mDialog->GetNodeForID("FilesList")).GetTreeControl();
  }
  int Run(const std::function<void()>& inWork) {
    lumui::dialogs::SetDialogDriver([&](UI_Dialog&) { inWork(); });
    return mDialog->RunModal();
  }
  UI_TextButton& OK() { return static_cast<UI_TextButton&>(*mDialog->GetNodeForID("OKButton")); }
  UI_Popup_Combo& Combo() {
    return static_cast<UI_Popup_Combo&>(*mDialog->GetNodeForID("FilenameCombo"));
  }
  hierarchyview::HierarchyEntryBase* Row(const std::string& inName) {
    for (auto const& row : mList->GetRootEntry()->GetChildren()) {
      lumcore::UTF16String name;
      row->GetCellText(UIMultiTreeListNode::kFirstAttribute, name);
      if (lumcore::utility::ToStdString(name) == inName) return row.get();
    }
    return nullptr;
  }
  // "a.txt *b.txt | b.txt typed OK": the rows, the name in the field, whether it was typed, and
  // whether OK can be pressed.
  std::string State() {
    std::string text;
    for (auto const& row : mList->GetRootEntry()->GetChildren()) {
      lumcore::UTF16String name;
      row->GetCellText(UIMultiTreeListNode::kFirstAttribute, name);
      text += (row->Selected(mList->GetSelectionManager()) ? "*" : "") +
              lumcore::utility::ToStdString(name) + " ";
    }
    return text + "| " + lumcore::utility::ToStdString(mDialog->GetFilename()) +
           (mDialog->UserTypedFilename() ? " typed" : "") + (OK().UI_IsEnabled() ? " OK" : "");
  }
  void ClickRow(const std::string& inName, unsigned char inModifiers = 0) {
    input::ClickMouse(*mDialog, PlaceOf(inName), lumui::ui::PointerEvent::kLeftButton,
                      lumui::ui::ModifierKeys(inModifiers));
  }
  // In the dialog: the list begins at (7, 176), its rows below a header of 17.
  Point PlaceOf(const std::string& inName) {
    const Rect row = mList->GetHighlightRect(Row(inName));
    return Point(7 + 40, 176 + 17 + row.y + row.height / 2);
  }
  void Type(const std::string& inText) {
    Combo().UI_SetKeyboardFocus(lumui::ui::kFocusOther);
    input::TapKey(*mDialog, KeyboardCode::CreateFromKeyboardChar('A', false),
                  lumui::ui::ModifierKeys(lumui::ui::kModCommand));
    input::TypeText(*mDialog, U16(inText));
  }
  void TypeAndLeave(const std::string& inText) {
    Type(inText);
    mDialog->GetNodeForID("CancelButton")->UI_SetKeyboardFocus(lumui::ui::kFocusTab);
  }
  std::string Selected() {
    std::string text;
    File file;
    for (unsigned int index = 0; mDialog->GetSelectedFile(index, file); ++index)
      text += lumcore::utility::ToStdString(file.GetName()) + " ";
    EXPECT_FALSE(mDialog->GetSelectedFile(mDialog->GetSelectedFileCount(), file));
    return text;
  }

  UserFolders mHome;
  boost::intrusive_ptr<CommonFileDialog> mDialog;
  UIShellTrackView* mTree = nullptr;
  UIMultiTreeListView* mList = nullptr;
};

TEST_F(FileDialogs, BeginWhereTheHostSays) {
  Make(nullptr);
  EXPECT_EQ(State(), "|  OK");
  EXPECT_EQ(mDialog->GetDirectory().GetPath(), "");
  EXPECT_EQ(lumcore::utility::ToStdString(OK().GetText()), "Take it");
  Make("in", "in/b.txt");
  EXPECT_EQ(State(), "a.txt B.doc *b.txt | b.txt OK");
  EXPECT_EQ(mDialog->GetDirectory().GetPath(), mHome.GetPath("in"));
  EXPECT_EQ(Selected(), "b.txt ");
  // By its name, wherever it lies; but it has to lie somewhere.
  mHome.MakeFile("Desktop/a.txt");
  Make("in", "Desktop/a.txt");
  EXPECT_EQ(Selected(), "a.txt ");
  Make("in", "in/A.TXT");
  EXPECT_EQ(State(), "a.txt B.doc b.txt |  OK");
  Make("none", "in/a.txt");
  EXPECT_EQ(State(), "|  OK");
}

TEST_F(FileDialogs, FollowTheFolderTree) {
  Make("in", "in/a.txt");
  mTree->DeselectAll();
  EXPECT_EQ(State(), "*a.txt B.doc b.txt | a.txt");
  EXPECT_EQ(mDialog->GetDirectory().GetPath(), mHome.GetPath("in"));
  mTree->SelectRoot();
  EXPECT_EQ(State(), "| a.txt OK");
  EXPECT_EQ(mDialog->GetSelectedFileCount(), 0u);
  mTree->ExpandAndSelectNode(mHome.GetDir("in"));
  EXPECT_EQ(State(), "a.txt B.doc b.txt | a.txt OK");
  // What closes takes the selection with it.
  mTree->CollapseNode(mTree->GetSelectedEntry()->GetParent(), true);
  EXPECT_EQ(State(), "a.txt B.doc b.txt | a.txt");
  mTree->SelectEntry(std::next(mTree->GetRootEntry()->GetChildren().begin())->get(), false);
  EXPECT_EQ(State(), "| a.txt");
  EXPECT_EQ(mDialog->GetDirectory().GetPath(), "");
  mTree->ExpandAndSelectNode(mHome.GetDir("in"));
  mTree->SelectRoot();
  mHome.MakeFolder("Desktop/gone");
  mTree->Reset();
  mHome.GetDir("Desktop/gone").RemoveAll();
  mTree->SelectEntry(mTree->GetRootEntry()->GetChildren().back().get(), false);
  EXPECT_EQ(State(), "| a.txt OK");
}

TEST_F(FileDialogs, ChooseByThePointer) {
  Make("in");
  std::string log;
  EXPECT_EQ(Run([&] {
              ClickRow("b.txt");
              log += State() + "; ";
              ClickRow("a.txt", lumui::ui::kModCommand);
              log += State() + "; " + Selected() + "; ";
              input::DoubleClickMouse(*mDialog, PlaceOf("B.doc"));
            }),
            UI_Dialog::kOK);
  EXPECT_EQ(log, "a.txt B.doc *b.txt | b.txt OK; *a.txt B.doc *b.txt | b.txt OK; a.txt b.txt ; ");
  EXPECT_EQ(Selected(), "B.doc ");
  EXPECT_EQ(State(), "a.txt *B.doc b.txt | B.doc OK");
}

TEST_F(FileDialogs, ChooseByTheKeyboardAlone) {
  Make("in");
  std::string log;
  const auto tap = [&](unsigned short inCode) {
    input::TapKey(*mDialog, KeyboardCode::CreateFromControlCode(inCode, false));
    log += State() + "; ";
  };
  EXPECT_EQ(Run([&] {
              tap(KeyboardCode::kTab);
              tap(KeyboardCode::kDownArrow);
              tap(KeyboardCode::kDownArrow);
              tap(KeyboardCode::kReturn);
            }),
            UI_Dialog::kOK);
  EXPECT_EQ(
      log,
      "a.txt B.doc b.txt |  OK; *a.txt B.doc b.txt | a.txt OK; a.txt *B.doc b.txt | B.doc OK; "
      "a.txt *B.doc b.txt | B.doc OK; ");
}

TEST_F(FileDialogs, KeepWhatIsTyped) {
  Make("in", "in/a.txt");
  std::string log;
  EXPECT_EQ(Run([&] {
              TypeAndLeave("New");
              log += State() + "; " + Selected() + "; ";
              TypeAndLeave("nEW");  // an item but for its case
              log += State() + " " + std::to_string(Combo().GetItemCount()) + "; ";
              TypeAndLeave("other");
              log += std::to_string(Combo().GetItemCount()) + "; ";
              mTree->SelectRoot();
              log += State() + "; ";
              mTree->ExpandAndSelectNode(mHome.GetDir("in"));
              ClickRow("b.txt");
              log += State() + "; ";
              Type("last");
              input::TapKey(*mDialog,
                            KeyboardCode::CreateFromControlCode(KeyboardCode::kReturn, false));
            }),
            UI_Dialog::kOK);
  EXPECT_EQ(log,
            "*a.txt B.doc b.txt | New typed OK; a.txt ; "
            "*a.txt B.doc b.txt | New typed OK 1; 2; | other typed OK; "
            "a.txt B.doc *b.txt | b.txt OK; ");
  EXPECT_EQ(State(), "a.txt B.doc *b.txt | last typed OK");
  EXPECT_EQ(Run([&] {
              Type("unsure");
              input::TapKey(*mDialog,
                            KeyboardCode::CreateFromControlCode(KeyboardCode::kEscape, false));
            }),
            UI_Dialog::kCancel);
  EXPECT_EQ(Run([&] {
              Type("pressed");
              const Rect ok = OK().UI_GetLocalRectF();
              input::ClickMouse(*mDialog, Point(ok.x + 5, ok.y + 5));
            }),
            UI_Dialog::kOK);
  EXPECT_EQ(State(), "a.txt B.doc *b.txt | pressed typed OK");
}

TEST_F(FileDialogs, AnswerForTheirOwnListAlone) {
  Make("in", "in/a.txt");
  for (unsigned int column = 0; column < 5; ++column) {
    lumcore::UTF16String text = U16("?");
    if (column > 0 && column < 4) text.clear();
    Row("a.txt")->GetCellText(UIMultiTreeListNode::kFirstAttribute + column, text);
    EXPECT_EQ(lumcore::utility::ToStdString(text), column == 0  ? "a.txt"
                                                   : column < 4 ? ""
                                                                : "Error!");
  }
  UIMultiTreeList other;
  other.GetTreeControl()->SetController(mDialog.get());
  const UIMultiTreeListView::NodeP row(new UIMultiTreeListNode(0));
  other.GetTreeControl()->InsertItem(row);
  other.GetTreeControl()->SelectEntry(row.get(), false);
  lumcore::UTF16String text;
  row->GetCellText(UIMultiTreeListNode::kFirstAttribute, text);
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(State(), "*a.txt B.doc b.txt | a.txt OK");
  other.GetTreeControl()->SetController(nullptr);

  const boost::intrusive_ptr<lumui::ui::UI_Node> combo(mDialog->GetNodeForID("FilenameCombo"));
  const boost::intrusive_ptr<lumui::ui::UI_Node> list(mDialog->GetNodeForID("FilesList"));
  mDialog.reset();
  static_cast<UIMultiTreeList&>(*list).GetTreeControl()->RemoveItems();
}

}  // namespace
