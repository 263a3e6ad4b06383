// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/UITest.h"
#include "lumui/testing/VirtualClock.h"
#include "support/TreeRig.h"
#include "vek/selection/Restorer.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace test_support;
using lumui::test::U16;
using lumui::ui::KeyboardCode;

// A ready-made tree in a real window of 200 by 100, with the keyboard.
class TreeWindow : public lumui::test::UITest {
 protected:
  TreeWindow() {
    mScroll->UI_SetLocalRectF(tv::Rect(0, 0, 200, 100));
    mWindow->UI_AddChild(mScroll);
    std::auto_ptr<tv::Overlay> overlay(mTree = new BasicTreeControlBase(&Track()));
    const char* parent = nullptr;
    for (const char* name : {"Fruits", "-Apple", "-Cherry", "Roots", "-Beet", "-Carrot", "Zebra"}) {
      const bool isChild = *name == '-';
      if (!isChild) parent = name;
      HierarchyEntryBase* const above = isChild ? mNodes.at(parent) : nullptr;
      mNodes[isChild ? name + 1 : name] = mTree->AddNode(above, U16(isChild ? name + 1 : name));
    }
    mTree->BuildHierarchy();
    Track().InstallOverlay(overlay, false);
    mScroll->GetPlatformView().UI_SetKeyboardFocus(0);
    App().PumpPendingEvents();
  }
  tv::TrackView& Track() { return *mScroll->GetPlatformView().GetTrackView(); }
  std::string Rows() {
    std::string text;
    auto row = mTree->GetGeometry()->begin();
    for (++row; row != mTree->GetGeometry()->end(); ++row) {
      text += (text.empty() ? "" : " ") + NameOf(*row);
      if ((*row)->Selected(mTree->GetSelectionManager())) text += '*';
      if (*row == mTree->GetFocusItem()) text += '!';
    }
    App().PumpPendingEvents();
    return text;
  }
  void Tap(KeyboardCode::ControlCode inKey) {
    lumui::testing::TapKey(*mWindow, KeyboardCode::CreateFromControlCode(inKey, false));
  }
  void Click(float inX, float inY, unsigned char inModifiers = 0) {
    lumui::testing::ClickMouse(*mWindow, tv::Point(inX, inY), lumui::ui::PointerEvent::kLeftButton,
                               tv::Modifiers(inModifiers));
  }

  lumui::testing::VirtualClock mClock;
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<tv::PlatformScrollView> mScroll = tv::PlatformScrollView::Create();
  BasicTreeControlBase* mTree = nullptr;
  std::map<std::string, BasicTreeNode*> mNodes;
};

TEST_F(TreeWindow, KeysAndClicksOpenSelectAndFind) {
  EXPECT_EQ(Rows(), "Fruits Roots Zebra");
  Tap(KeyboardCode::kUpArrow);
  EXPECT_EQ(Rows(), "Fruits Roots Zebra*");
  Click(30, 10);
  Tap(KeyboardCode::kRightArrow);
  Tap(KeyboardCode::kDownArrow);
  EXPECT_EQ(Rows(), "Fruits Apple*! Cherry Roots Zebra");
  Click(8, 66);  // the twisty of Roots, in the fourth row
  EXPECT_EQ(Rows(), "Fruits Apple*! Cherry Roots Beet Carrot Zebra");
  Click(50, 48, 4);
  EXPECT_EQ(Rows(), "Fruits Apple* Cherry*! Roots Beet Carrot Zebra");
  Click(30, 66, 2);
  EXPECT_EQ(Rows(), "Fruits Apple* Cherry* Roots*! Beet Carrot Zebra");
  lumui::testing::TypeText(*mWindow, U16("ca"));
  EXPECT_EQ(Rows(), "Fruits Apple Cherry Roots Beet Carrot*! Zebra");
  // What is typed is kept for 0.95 seconds.
  mClock.Advance(0.9);
  lumui::testing::TypeText(*mWindow, U16("z"));
  EXPECT_EQ(Rows(), "Fruits Apple Cherry Roots Beet Carrot*! Zebra");
  mClock.Advance(0.96);
  lumui::testing::TypeText(*mWindow, U16("z"));
  EXPECT_EQ(Rows(), "Fruits Apple Cherry Roots Beet Carrot Zebra*!");
  EXPECT_EQ(AsText(mScroll->GetPlatformView().DataPos()), "0,32");  // Zebra's text ends at 132
  EXPECT_EQ(vek::selection::GetActiveManager(), mTree->GetSelectionManager());
}

TEST_F(TreeWindow, DoubleClicksAndEnterOpenWhatTheHostSays) {
  lumui::testing::DoubleClickMouse(*mWindow, tv::Point(30, 10));
  EXPECT_EQ(Rows(), "Fruits*! Apple Cherry Roots Zebra");
  std::string opened;
  mTree->SetOpenFunction([&](const TreeControlBase::EntryList& inEntries) {
    for (const HierarchyEntryBase* entry : inEntries)
      opened += NameOf(entry) + " ";
  });
  lumui::testing::DoubleClickMouse(*mWindow, tv::Point(50, 48));
  Click(30, 66, 4);
  Tap(KeyboardCode::kReturn);
  EXPECT_EQ(opened, "Cherry Cherry Roots ");
}

TEST_F(TreeWindow, ALeavingNodeIsForgottenAndAManagerOutlivesItsTree) {
  const boost::intrusive_ptr<vek::selection::Manager> manager(mTree->GetSelectionManager());
  mTree->RevealEntry(mNodes["Carrot"]);
  mTree->SelectEntry(mNodes["Carrot"], false);
  mTree->SelectEntry(mNodes["Zebra"], true);
  mNodes["Fruits"]->SetSelectable(false);
  mTree->SelectEntry(mNodes["Fruits"], true);
  EXPECT_EQ(Rows(), "Fruits Roots Beet Carrot* Zebra*!");
  const EntryP roots(mNodes["Roots"]);
  mTree->RemoveNode(roots.get());
  EXPECT_EQ(mTree->NumSelectedEntries(), 1);
  mTree->AddEntry(mNodes["Zebra"], roots);
  manager->SelectAll();
  mTree->ExpandAll();
  EXPECT_EQ(Rows(), "Fruits Apple* Cherry* Zebra*! Roots* Beet* Carrot*");
  mTree->RemoveAllNodes();
  mTree->ResizeHierarchy();
  EXPECT_EQ(Rows() + std::to_string(mTree->NumSelectedEntries()), "0");
  mTree->AddNode(nullptr, U16("new"));
  manager->SelectAll();
  EXPECT_EQ(mTree->NumSelectedEntries(), 1);
  Track().RemoveOverlay(mTree);
  EXPECT_TRUE(manager->SelectedSelectables().empty());
  manager->SelectAll();
  EXPECT_FALSE(manager->AnySelectableNodes());
}

// Rows that a deed takes out and puts back are found again, wherever they stand by then.
TEST_F(TreeWindow, ARestorerBringsBackSelectionAndFocusOfWhatIsThere) {
  const boost::intrusive_ptr<vek::selection::Manager> manager(mTree->GetSelectionManager());
  const std::unique_ptr<vek::selection::RestorerFactory> factory(manager->NewRestorerFactory());
  mTree->ExpandAll();
  for (const char* name : {"Beet", "Apple", "Zebra"})
    mTree->SelectEntry(mNodes[name], true);
  const std::unique_ptr<vek::selection::Restorer> restorer(factory->NewRestorer());
  const EntryP zebra(mNodes["Zebra"]);
  mTree->RemoveNode(zebra.get());
  mTree->RemoveNode(mNodes["Apple"]);  // for good
  mTree->SelectEntry(mNodes["Roots"], false);
  restorer->Restore();
  EXPECT_EQ(Rows(), "Fruits Cherry Roots Beet* Carrot");
  mTree->AddEntry(mNodes["Fruits"], zebra);
  restorer->Restore();
  EXPECT_EQ(Rows(), "Fruits Cherry Zebra*! Roots Beet* Carrot");
  Track().RemoveOverlay(mTree);
  restorer->Restore();
  EXPECT_TRUE(manager->SelectedSelectables().empty());
}

}  // namespace
