// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/filesupport/Volumes.h"
#include "lumcore/proplist/PropList.h"
#include "lumui/UITest.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/UI_NodeBuilder.h"
#include "support/UserFolders.h"
#include "vek/hierarchyview/EntryWalk.h"
#include "vek/selection/Manager.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/sharedui/UIShellTrackViewAdapter.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace vek;
using namespace vek::sharedui;
using hierarchyview::HierarchyEntryBase;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::proplist::PropList;
using lumui::test::Point;
using lumui::test::Rect;
using lumui::test::U16;
using lumui::ui::KeyboardCode;
namespace input = lumui::testing;

class ShellTrees : public lumui::test::UITest {
 protected:
  ShellTrees() : mWindow(MakeWindow()), mScroll(trackview::PlatformScrollView::Create()) {
    mWindow->UI_SetLocalRectF(Rect(0, 0, 300, 400));
    mWindow->UI_AddChild(mScroll);
    mScroll->UI_SetLocalRectF(Rect(0, 0, 300, 400));
    auto& trackView = *mScroll->GetPlatformView().GetTrackView();
    mTree = new UIShellTrackView(&trackView, &mSettings, false);
    std::auto_ptr<trackview::Overlay> overlay(mTree);
    trackView.InstallOverlay(overlay, false);
  }
  ~ShellTrees() override { mWindow->UI_DestroyWindow(); }

  // What is below the entry: "a [b *c] d"; a star marks what is selected. The computer's volumes
  // are left out, as they are those of this machine.
  std::string Below(HierarchyEntryBase const& inEntry) {
    std::string text;
    for (auto const& child : inEntry.GetChildren()) {
      lumcore::UTF16String name;
      child->GetCellText(0, name);
      text += std::string(text.empty() ? "" : " ") +
              (child->Selected(mTree->GetSelectionManager()) ? "*" : "") +
              lumcore::utility::ToStdString(name);
      const bool isComputer = dynamic_cast<UIShellMyComputerNode*>(child.get()) != nullptr;
      if (child->GetNodeState() != hierarchyview::kNodeCollapsed && !isComputer)
        text += " [" + Below(*child) + "]";
    }
    return text;
  }
  std::string Tree() { return Below(*mTree->GetRootEntry()); }
  HierarchyEntryBase* Find(const std::string& inPath) {
    HierarchyEntryBase* found = nullptr;
    hierarchyview::ForEachEntry(mTree->GetRootEntry(), [&](HierarchyEntryBase* inEntry) {
      auto const* const dir = dynamic_cast<UIShellDirNode*>(inEntry);
      auto const* const file = dynamic_cast<UIShellFileNode*>(inEntry);
      if ((dir && dir->GetDir()->GetPath() == inPath) ||
          (file && file->GetFile().GetPath() == inPath))
        found = inEntry;
    });
    return found;
  }
  void Open(const std::string& inPath) { mTree->ExpandNode(Find(inPath), true); }
  void Close(const std::string& inPath) { mTree->CollapseNode(Find(inPath), true); }
  void Tap(unsigned short inCode) {
    input::TapKey(*mWindow, KeyboardCode::CreateFromControlCode(inCode, false));
  }
  Point MiddleOf(HierarchyEntryBase const* inEntry) {
    const Rect rect = mTree->GetHighlightRect(inEntry);
    return Point(rect.x + rect.width / 2, rect.y + rect.height / 2);
  }

  UserFolders mHome;
  PropList mSettings;
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow;
  boost::intrusive_ptr<trackview::PlatformScrollView> mScroll;
  UIShellTrackView* mTree = nullptr;
};

TEST_F(ShellTrees, ReadFoldersAsTheyOpenAndKeepThemInTheSettings) {
  mHome.MakeFile("Documents/letter.TXT");
  mHome.MakeFile("Desktop/note.txt");
  mHome.MakeFile("Desktop/Desktop.xml");
  mHome.MakeFolder("Desktop/work/old");
  mHome.MakeFile("Desktop/work/plan.txt");
  mTree->BuildHierarchy();
  EXPECT_EQ(Tree(), "My Documents My Computer work Desktop.xml note.txt");
  Open(mHome.GetPath("Desktop/work"));
  Open(mHome.GetPath("Desktop/work/old"));
  Open(mHome.GetPath("Documents"));
  EXPECT_EQ(Tree(),
            "My Documents [letter.TXT] My Computer work [old [] plan.txt] "
            "Desktop.xml note.txt");
  Close(mHome.GetPath("Documents"));
  EXPECT_EQ(mSettings.Get<bool>(mHome.GetPath("Desktop/work").c_str(), false), true);
  EXPECT_EQ(mSettings.Get<bool>(mHome.GetPath("Documents").c_str(), true), false);
  EXPECT_EQ(mSettings.GetSize(), 3u);

  // Building anew by them writes nothing, and sees what has come meanwhile.
  mHome.MakeFolder("Desktop/work/new");
  const PropList before = mSettings;
  mTree->Reset();
  EXPECT_EQ(Tree(), "My Documents My Computer work [new old [] plan.txt] Desktop.xml note.txt");
  EXPECT_TRUE(mSettings == before);

  // The extension of the file is compared as it stands.
  mTree->AddFileType(U16(".TXT"), true);
  Open(mHome.GetPath("Documents"));
  EXPECT_EQ(Tree(), "My Documents [] My Computer work [new old [] plan.txt] note.txt");
  mTree->SetAddFilesAsLeafNodes(false);
  mTree->SetFolderSettings(nullptr);
  mTree->Reset();
  Open(mHome.GetPath("Desktop/work"));
  EXPECT_EQ(Tree(), "My Documents My Computer work [new old]");
  EXPECT_EQ(Find(mHome.GetPath("Desktop/work/old"))->CanExpand(), true);
}

TEST_F(ShellTrees, ListTheVolumesOfTheComputer) {
  mTree->BuildHierarchy();
  auto const computer = std::next(mTree->GetRootEntry()->GetChildren().begin())->get();
  mTree->ExpandNode(computer, true);
  EXPECT_EQ(mSettings.Get<bool>("MyComputer", false), true);
  const auto volumes = lumcore::filesupport::GetVolumes();
  ASSERT_EQ(computer->GetChildren().size(), volumes.size());
  lumcore::UTF16String name;
  computer->GetChildren().front()->GetCellText(0, name);
  const auto label = FindVolumeLabel(volumes.front());
  EXPECT_EQ(lumcore::utility::ToStdString(name),
            (label->empty() ? "Local Disk" : lumcore::utility::ToStdString(*label)) + " (/)");
  mTree->Reset();
  auto const again = std::next(mTree->GetRootEntry()->GetChildren().begin())->get();
  EXPECT_EQ(again->GetChildren().size(), volumes.size());
}

TEST_F(ShellTrees, FindAFolderByItsVolumeAndComeBackToIt) {
  mHome.MakeFolder("Desktop/a/b");
  mTree->BuildHierarchy();
  EXPECT_TRUE(mTree->ExpandAndSelectNode(mHome.GetDir("Desktop/a/../a/b/")));
  EXPECT_EQ(mTree->NumSelectedEntries(), 1);
  EXPECT_EQ(mTree->GetSelectedEntry()->GetDir()->GetPath(), mHome.GetPath("Desktop/a/b"));
  EXPECT_EQ(mTree->GetSelectedEntry()->GetNodeState(), hierarchyview::kNodeExpanded);
  // One that has come since its parent was read.
  mHome.MakeFolder("Desktop/a/c");
  EXPECT_TRUE(mTree->ExpandAndSelectNode(mHome.GetDir("Desktop/a/c")));
  EXPECT_FALSE(mTree->ExpandAndSelectNode(mHome.GetDir("none")));
  mTree->SaveSelectionState();
  mTree->SelectRoot();
  mTree->RestoreSelectionState();
  EXPECT_EQ(mTree->GetSelectedEntry()->GetDir()->GetPath(), mHome.GetPath("Desktop/a/c"));
  EXPECT_EQ(mTree->NumSelectedEntries(), 1);
  // In view, however long the way.
  const Rect row = mTree->GetHighlightRect(mTree->GetSelectedEntry());
  EXPECT_TRUE(mTree->GetTrackView()->DataArea().Intersects(row));

  mHome.GetDir("Desktop/a/c").RemoveAll();
  mTree->RestoreSelectionState();
  EXPECT_EQ(mTree->GetSelectedEntry(), mTree->GetRootEntry());
  mTree->SaveSelectionState();
  EXPECT_EQ(mSettings.Get<lumcore::UTF16String>("LastSel", {}), U16(mHome.GetPath("Desktop")));
  mTree->DeselectAll();
  mTree->SaveSelectionState();
  EXPECT_FALSE(mSettings.Has("LastSel"));
  mTree->RestoreSelectionState();
  EXPECT_EQ(mTree->GetSelectedEntry(), mTree->GetRootEntry());
}

TEST_F(ShellTrees, LeaveCirclesClosedAndTellWhatCannotBeRead) {
  mHome.MakeFolder("Desktop/work/deep");
  mHome.MakeLink("Desktop/work/deep/up", mHome.GetPath("Desktop/work"));
  mHome.MakeLink("Desktop/work/aside", mHome.GetPath("Documents"));
  mHome.MakeLink("Documents/across", mHome.GetPath("Desktop"));
  mHome.MakeFolder("Desktop/gone");
  mHome.MakeFolder("Desktop/\xFE");
  mHome.MakeFolder("Desktop/\xFF/in");
  // As if it had been a plain folder when it was opened.
  mSettings.Set<bool>(mHome.GetPath("Desktop/work/deep/up").c_str(), true);
  mTree->BuildHierarchy();
  mHome.GetDir("Desktop/gone").RemoveAll();
  Open(mHome.GetPath("Desktop/work"));
  Open(mHome.GetPath("Desktop/work/deep"));
  EXPECT_FALSE(Find(mHome.GetPath("Desktop/work/deep/up"))->CanExpand());
  Open(mHome.GetPath("Desktop/work/aside"));
  EXPECT_FALSE(Find(mHome.GetPath("Desktop/work/aside/across"))->CanExpand());
  Open(mHome.GetPath("Desktop/gone"));
  Open(mHome.GetPath("Desktop/\xFF"));
  EXPECT_EQ(Tree(),
            "My Documents My Computer gone [Cannot be read: No such file or directory] "
            "work [aside [across] deep [up]] \xEF\xBF\xBD \xEF\xBF\xBD [in]");
  // The note is no folder and no file, and cannot be selected.
  mTree->SelectEntry(Find(mHome.GetPath("Desktop/gone"))->GetChildren().front().get(), false);
  EXPECT_EQ(mTree->NumSelectedEntries(), 0);
  mHome.MakeFolder("Desktop/gone/back");
  Open(mHome.GetPath("Desktop/gone"));
  mTree->Reset();
  EXPECT_EQ(Tree(),
            "My Documents My Computer gone [back] work [aside [across] deep [up]] "
            "\xEF\xBF\xBD \xEF\xBF\xBD [in]");
  EXPECT_TRUE(mTree->ExpandAndSelectNode(mHome.GetDir("Desktop/\xFF/in")));
  mTree->SaveSelectionState();
  mTree->SelectRoot();
  mTree->RestoreSelectionState();
  EXPECT_EQ(mTree->GetSelectedEntry()->GetDir()->GetPath(), mHome.GetPath("Desktop/\xFF/in"));
}

TEST_F(ShellTrees, TakeClicksAndKeysAndSelectNothingThatIsGone) {
  mHome.MakeFolder("Desktop/work/old");
  mHome.MakeFile("Desktop/work/plan.txt");
  std::string opened;
  mTree->SetOpenFunction([&](File const& inFile) { opened += inFile.GetPath() + " "; });
  mTree->BuildHierarchy();
  App().PumpPendingEvents();
  const std::string work = mHome.GetPath("Desktop/work"),
                    plan = mHome.GetPath("Desktop/work/plan.txt");
  input::DoubleClickMouse(*mWindow, MiddleOf(Find(work)));
  EXPECT_EQ(Tree(), "My Documents My Computer *work [old plan.txt]");
  Tap(KeyboardCode::kDownArrow);
  Tap(KeyboardCode::kDownArrow);
  EXPECT_EQ(Tree(), "My Documents My Computer work [old *plan.txt]");
  input::TapKey(*mWindow, KeyboardCode::CreateFromControlCode(KeyboardCode::kReturn, false));
  EXPECT_EQ(opened, plan + " ");
  input::DoubleClickMouse(*mWindow, MiddleOf(Find(plan)));
  EXPECT_EQ(opened, plan + " " + plan + " ");

  const boost::intrusive_ptr<HierarchyEntryBase> held(Find(plan));
  const boost::intrusive_ptr<selection::Manager> manager(mTree->GetSelectionManager());
  input::ClickMouse(*mWindow, MiddleOf(Find(work)), lumui::ui::PointerEvent::kLeftButton,
                    lumui::ui::ModifierKeys(lumui::ui::kModCommand));
  EXPECT_EQ(mTree->NumSelectedEntries(), 2);
  Close(work);
  EXPECT_EQ(Tree(), "My Documents My Computer *work");
  manager->Select({held->GetDataAsSelNode()}, selection::eKeepOthers, selection::eSendMessages);
  EXPECT_EQ(mTree->NumSelectedEntries(), 1);  // nobody knows it any more
  input::TypeText(*mWindow, U16("my c"));
  Tap(KeyboardCode::kRightArrow);
  EXPECT_EQ(mSettings.Get<bool>("MyComputer", false), true);
  // Neither an entry nor the manager needs the tree.
  mScroll->GetPlatformView().GetTrackView()->RemoveOverlay(mTree);
  held->SetNodeState(hierarchyview::kNodeExpanded);
  EXPECT_FALSE(manager->AnySelectableNodes());
  EXPECT_TRUE(manager->SelectedSelectables().empty());
}

TEST_F(ShellTrees, ComeOutOfArchivesAndGoIntoThem) {
  lumui::ui::UI_NodeAdapterRegistry::Get().Register(std::make_unique<UIShellTrackViewAdapter>());
  mHome.MakeFile("Desktop/a.opml");
  mHome.MakeFile("Desktop/b.txt");
  mTree->AddFileType(U16(".opml"), true);
  const auto copy = [&] {
    lumui::ui::UI_NodeBuilder::NodeMap nodes;
    return lumui::ui::UI_NodeBuilder(lumui::ui::UI_NodeBuilder::Write(*mScroll))
        .Build(nullptr, nodes);
  };
  const auto filtered = copy();
  EXPECT_EQ(Below(*UIShellTrackViewAdapter::FindTree(*filtered)->GetRootEntry()),
            "My Documents My Computer a.opml");
  mTree->SetAddFilesAsLeafNodes(false);
  const auto folders = copy();
  EXPECT_FALSE(UIShellTrackViewAdapter::FindTree(*folders)->CanAddFilesAsLeafNodes());
  EXPECT_EQ(Below(*UIShellTrackViewAdapter::FindTree(*folders)->GetRootEntry()),
            "My Documents My Computer");
  lumui::ui::UI_NodeAdapterRegistry::Reset();
}

}  // namespace
