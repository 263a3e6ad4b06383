// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdio>

#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/Volumes.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Image.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellIcons.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/utility/ParamString.h"

namespace vek::sharedui {

using hierarchyview::kNodeCollapsed;
using hierarchyview::TreeControlBase;
using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::Volume;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// UTF-8 of the path. A byte of a name that is no UTF-8 keeps its number, so that no two folders
// have one key.
UTF8String MakeKey(Dir const& inDir) {
  UTF16String path = inDir.FullPath();
  for (std::size_t at = 0; at < path.size(); ++at) {
    const bool isByte = path[at] >= 0xDC80 && path[at] <= 0xDCFF &&
                        (at == 0 || path[at - 1] < 0xD800 || path[at - 1] > 0xDBFF);
    if (!isByte) continue;
    char number[4];
    std::snprintf(number, sizeof number, "<%02X", path[at] & 0xFFu);
    path.replace(at, 1, lumcore::utility::ToUTF16(number) + lumcore::utility::ToUTF16(">"));
  }
  return lumcore::utility::ToUTF8(path);
}

UTF16String MakeDisplayName(Volume const& inVolume) {
  UTF16String path = inVolume.dir.FullPath();
  std::optional<UTF16String> label = lumcore::filesupport::FindVolumeLabel(inVolume);
  if (!label) return path;
  if (label->empty()) label = Localized("$$$/vek/sharedui/UIShellView/LocalDisk=Local Disk");
  UTF16String name = Localized("$$$/vek/sharedui/UIShellView/LocalDriveFmt=^1 (^2)");
  utility::ParamString(name, &*label, &path, nullptr, nullptr);
  return name;
}

bool LeadsBack(Dir const& inDir) {
  for (Dir above(inDir.FullPath()); !above.IsTopLevelDir();) {
    above = above.Parent();
    if (above.IsSameFolder(inDir)) return true;
  }
  return false;
}

// Where a new folder stands: what the settings have, unless it could not open.
hierarchyview::ENodeState GetFirstState(Dir const& inDir, TreeControlBase* inTree) {
  auto const* const tree = dynamic_cast<UIShellTrackView const*>(inTree);
  if (!tree || !tree->WasExpanded(MakeKey(inDir)) || LeadsBack(inDir)) return kNodeCollapsed;
  return hierarchyview::kNodeExpanded;
}

}  // namespace

UIShellDirNode::UIShellDirNode(Dir const& inDir, HierarchyEntryBase* inParent,
                               JunctionP const& inJunction, TreeControlBase* inTree)
    : UIShellDirNode(inDir, inDir.GetName(), inParent, inJunction, inTree) {}

UIShellDirNode::UIShellDirNode(Dir const& inDir, UTF16String const& inName,
                               HierarchyEntryBase* inParent, JunctionP const& inJunction,
                               TreeControlBase* inTree)
    : UIShellHierarchyEntryBase(GetFirstState(inDir, inTree), inParent, inJunction, inTree),
      mDir(inDir),
      mShellTree(dynamic_cast<UIShellTrackView*>(inTree)),
      mKey(MakeKey(inDir)),
      mName(inName) {}

bool UIShellDirNode::CanExpand() const {
  if (!mLeadsBack) mLeadsBack = LeadsBack(mDir);
  return !*mLeadsBack;
}

void UIShellDirNode::ClearChildList() {
  mLeadsBack.reset();
  UIShellHierarchyEntryBase::ClearChildList();
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellDirNode::GetNodeIcon() {
  return ImageFolderIcon(GetImageSupplier(), mDir);
}

void UIShellDirNode::GetCellText(unsigned int const&, UTF16String& outText) const {
  outText = mName;
}

void UIShellDirNode::DoAddChildren() {
  AddContentsOf(mDir);
}

void UIShellDirNode::EntryStateChanged() {
  const bool isAlone = !GetJunction()->GetTree() || !mShellTree;
  if (isAlone || !mShellTree->GetFolderSettings()) return;
  mShellTree->GetFolderSettings()->Set<bool>(mKey, GetNodeState() != kNodeCollapsed);
}

UIShellMyDocsNode::UIShellMyDocsNode(Dir const& inDir, HierarchyEntryBase* inParent,
                                     JunctionP const& inJunction, TreeControlBase* inTree)
    : UIShellDirNode(inDir, Localized("$$$/vek/sharedui/UIShellView/MyDocuments=My Documents"),
                     inParent, inJunction, inTree) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellMyDocsNode::GetNodeIcon() {
  return ImageMyDocumentsIcon(GetImageSupplier());
}

UIShellVolumeNode::UIShellVolumeNode(Volume const& inVolume, HierarchyEntryBase* inParent,
                                     JunctionP const& inJunction, TreeControlBase* inTree)
    : UIShellDirNode(inVolume.dir, MakeDisplayName(inVolume), inParent, inJunction, inTree) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellVolumeNode::GetNodeIcon() {
  return ImageVolumeIcon(GetImageSupplier());
}

}  // namespace vek::sharedui
