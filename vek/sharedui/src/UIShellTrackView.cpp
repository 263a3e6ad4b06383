// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIShellTrackView.h"

#include <algorithm>
#include <vector>

#include "lumcore/filesupport/File.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/trackview/TrackView.h"

namespace vek::sharedui {

using hierarchyview::HierarchyEntryBase;
using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;

namespace {

constexpr const char* kLastSelectionKey = "LastSel";

UIShellDirNode* FindChild(HierarchyEntryBase const& inParent, Dir const& inDir) {
  for (auto const& child : inParent.GetChildren()) {
    auto* const entry = dynamic_cast<UIShellDirNode*>(child.get());
    if (entry && *entry->GetDir() == inDir) return entry;
  }
  return nullptr;
}

UIShellMyComputerNode* FindComputer(HierarchyEntryBase const& inRoot) {
  for (auto const& child : inRoot.GetChildren()) {
    if (auto* const computer = dynamic_cast<UIShellMyComputerNode*>(child.get())) return computer;
  }
  return nullptr;
}

}  // namespace

UIShellTrackView::UIShellTrackView(trackview::TrackView* inTrackView,
                                   lumcore::proplist::PropList* inFolderSettings,
                                   bool inIsSingleSelect)
    : UIShellTrackViewBase(inTrackView, inIsSingleSelect, false),
      mFolderSettings(inFolderSettings) {}

UIShellTrackView::~UIShellTrackView() = default;

void UIShellTrackView::AddFileType(UTF16String const& inExtension, bool inReset) {
  mFileTypes.push_back(lumcore::utility::ToLowerCase(inExtension));
  if (inReset) Reset();
}

void UIShellTrackView::ClearFileTypes() {
  mFileTypes.clear();
}

bool UIShellTrackView::CanDisplayFile(File const& inFile) const {
  if (mFileTypes.empty()) return true;
  return std::find(mFileTypes.begin(), mFileTypes.end(), inFile.GetExtension(true)) !=
         mFileTypes.end();
}

// The old root goes with all that is selected in it.
void UIShellTrackView::DoBuildHierarchy() {
  const boost::intrusive_ptr<HierarchyEntryBase> old(GetRootEntry());
  SetFocusItem(nullptr, false);
  SetDragFeedback(nullptr, false);
  GetSelectionManager()->DeselectAll();
  const boost::intrusive_ptr<UIShellRootNode> root(
      new UIShellRootNode(hierarchyview::kNodeExpanded, GetSelJunction(), this));
  SetRootEntry(root);
  root->BuildChildList();
}

bool UIShellTrackView::WasExpanded(lumcore::UTF8String const& inKey) const {
  return mFolderSettings && mFolderSettings->Get<bool>(inKey, false);
}

bool UIShellTrackView::ExpandAndSelectNode(Dir const& inDir) {
  if (!inDir.Exists()) return false;
  if (!GetRootEntry()) BuildHierarchy();
  std::vector<Dir> chain(1, Dir(inDir.FullPath()));
  while (!chain.back().IsTopLevelDir())
    chain.push_back(chain.back().Parent());

  boost::intrusive_ptr<HierarchyEntryBase> at(GetRootEntry());
  for (auto link = chain.rbegin(); at && link != chain.rend(); ++link) {
    // The volumes stand one level further down than what lies on the desktop.
    UIShellMyComputerNode* const computer =
        at == GetRootEntry() && !FindChild(*at, *link) ? FindComputer(*at) : nullptr;
    at.reset(StepDown(computer ? *computer : *at, *link));
  }
  ResizeHierarchy();
  if (!at) return false;
  SelectEntry(at.get(), false);
  RevealIfNotVisible(at.get());
  return true;
}

// Opens the entry and the folder of that name in it, which may be one that cannot open.
HierarchyEntryBase* UIShellTrackView::StepDown(HierarchyEntryBase& inFrom, Dir const& inTo) {
  const bool wasOpen = inFrom.GetNodeState() != hierarchyview::kNodeCollapsed;
  if (!wasOpen && CanExpandNode(&inFrom)) ExpandNode(&inFrom, false);
  UIShellDirNode* next = FindChild(inFrom, inTo);
  if (!next && wasOpen && CanExpandNode(&inFrom)) {
    // What is open already was read some time ago.
    ExpandNode(&inFrom, false);
    next = FindChild(inFrom, inTo);
  }
  if (next && next->GetNodeState() == hierarchyview::kNodeCollapsed && CanExpandNode(next))
    ExpandNode(next, false);
  return next;
}

void UIShellTrackView::SaveSelectionState() {
  if (!mFolderSettings) return;
  mFolderSettings->Remove(kLastSelectionKey);
  UIShellHierarchyEntryBase const* const entry = GetSelectedEntry();
  if (entry && entry->GetDir())
    mFolderSettings->Set<UTF16String>(kLastSelectionKey, entry->GetDir()->FullPath());
}

void UIShellTrackView::RestoreSelectionState() {
  if (!GetRootEntry()) BuildHierarchy();
  UTF16String path;
  if (mFolderSettings) path = mFolderSettings->Get<UTF16String>(kLastSelectionKey, UTF16String());
  auto const* const root = dynamic_cast<UIShellHierarchyEntryBase const*>(GetRootEntry());
  const bool isRoot =
      path.empty() || (root && root->GetDir() && root->GetDir()->FullPath() == path);
  if (isRoot || !ExpandAndSelectNode(Dir(path))) SelectRoot();
  if (UIShellHierarchyEntryBase const* const entry = GetSelectedEntry()) RevealIfNotVisible(entry);
}

void UIShellTrackView::Reset() {
  const Rect area = GetTrackView()->DataArea();
  BuildHierarchy();
  GetTrackView()->RevealRectIfNotInView(area, true);
}

bool UIShellTrackView::DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) {
  const auto row = FindRowAt(inDataPoint);
  auto const* const file = dynamic_cast<UIShellFileNode const*>(*row);
  if (!file) return UIShellTrackViewBase::DoDoubleClick(inModifiers, inDataPoint);
  if (!mOpen || !GetEntryGeometry(row)->PointInSelectArea(inDataPoint)) return false;
  mOpen(File(file->GetFile()));
  return true;
}

bool UIShellTrackView::DoProcessOnOpenSelected() {
  auto const* const file = dynamic_cast<UIShellFileNode const*>(GetSelectedEntry());
  if (!file || !mOpen) return false;
  mOpen(File(file->GetFile()));
  return true;
}

}  // namespace vek::sharedui
