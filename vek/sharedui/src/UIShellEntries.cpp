// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIShellEntries.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/filesupport/UserDirs.h"
#include "lumcore/filesupport/Volumes.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Cursors.h"
#include "vek/sharedui/UIShellIcons.h"
#include "vek/sharedui/UIShellTrackView.h"

namespace vek::sharedui {

using hierarchyview::ENodeState;
using hierarchyview::kNodeCollapsed;
using hierarchyview::kNodeExpanded;
using hierarchyview::TreeControlBase;
using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumcore::filesupport::FileError;
using lumcore::filesupport::FindUserDir;
using lumcore::filesupport::UserDir;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

}  // namespace

UTF16String DescribeUnreadable(FileError const& inError) {
  return lumcore::utility::ReplaceInString(
      Localized("$$$/vek/sharedui/UIShellView/CannotRead=Cannot be read: @0"),
      {inError.GetSystemWords()});
}

UIShellHierarchyEntryBase::UIShellHierarchyEntryBase(ENodeState inState,
                                                     HierarchyEntryBase* inParent,
                                                     JunctionP const& inJunction,
                                                     TreeControlBase* inTree)
    : DynamicHierarchyEntry(inState, inParent), mJunction(inJunction), mTreeControl(inTree) {
  mJunction->Join(this);
}

UIShellHierarchyEntryBase::~UIShellHierarchyEntryBase() {
  mJunction->Leave(this);
}

bool UIShellHierarchyEntryBase::CanExpand() const {
  return true;
}

bool UIShellHierarchyEntryBase::CanCollapse() const {
  return true;
}

selection::Node* UIShellHierarchyEntryBase::GetDataAsSelNode() const {
  return const_cast<UIShellHierarchyEntryBase*>(this);
}

Dir const* UIShellHierarchyEntryBase::GetDir() const {
  return nullptr;
}

void UIShellHierarchyEntryBase::BuildChildList() {
  const lumui::ui::StBusyCursor busy;
  ClearChildList();
  if (GetShellTree() && CanExpand()) DoAddChildren();
}

void UIShellHierarchyEntryBase::ClearChildList() {
  if (GetChildren().empty()) return;
  if (UIShellTrackViewBase* const tree = mJunction->GetTree()) tree->ForgetBelow(this);
  RemoveAllChildren();
}

void UIShellHierarchyEntryBase::DoAddChildren() {}

void UIShellHierarchyEntryBase::Link(
    boost::intrusive_ptr<UIShellHierarchyEntryBase> const& inChild) {
  AddChild(inChild, false);
  if (inChild->GetNodeState() != kNodeCollapsed) inChild->BuildChildList();
}

void UIShellHierarchyEntryBase::AddContentsOf(Dir const& inDir) {
  try {
    auto [dir, file] = inDir.BeginContents();
    for (; dir != inDir.EndSubdirs(); ++dir)
      Link(new UIShellDirNode(*dir, this, mJunction, mTreeControl));
    UIShellTrackView const& tree = *GetShellTree();
    if (!tree.CanAddFilesAsLeafNodes()) return;
    for (; file != inDir.EndFiles(); ++file) {
      const File shown = *file;
      if (tree.CanDisplayFile(shown))
        Link(new UIShellFileNode(shown, this, mJunction, mTreeControl));
    }
  } catch (const FileError& error) {
    // For the user, who sees it where the contents would be.
    Link(new UIShellNoteNode(DescribeUnreadable(error), this, mJunction, mTreeControl));
  }
}

void UIShellHierarchyEntryBase::StoreState(UTF8String const& inKey) {
  UIShellTrackView const* const tree = GetShellTree();
  if (!tree || !tree->GetFolderSettings()) return;
  tree->GetFolderSettings()->Set<bool>(inKey, GetNodeState() != kNodeCollapsed);
}

UIShellTrackView* UIShellHierarchyEntryBase::GetShellTree() const {
  return dynamic_cast<UIShellTrackView*>(mJunction->GetTree());
}

lumui::drawbot::SupplierInterface const& UIShellHierarchyEntryBase::GetImageSupplier() const {
  UIShellTrackViewBase const* const tree = mJunction->GetTree();
  return tree ? tree->GetImageSupplier() : *lumui::drawbot::GetDefaultSupplier();
}

UIShellRootNode::UIShellRootNode(ENodeState inState, JunctionP const& inJunction,
                                 TreeControlBase* inTree)
    : UIShellHierarchyEntryBase(inState, nullptr, inJunction, inTree),
      mDesktop(FindUserDir(UserDir::kDesktop)) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellRootNode::GetNodeIcon() {
  return ImageUIRootIcon(GetImageSupplier());
}

void UIShellRootNode::GetCellText(unsigned int const&, UTF16String& outText) const {
  outText = Localized("$$$/vek/sharedui/UIShellView/RootNode=Desktop");
}

Dir const* UIShellRootNode::GetDir() const {
  return mDesktop ? &*mDesktop : nullptr;
}

void UIShellRootNode::DoAddChildren() {
  if (const auto documents = FindUserDir(UserDir::kDocuments))
    Link(new UIShellMyDocsNode(*documents, this, GetJunction(), GetTreeControl()));
  UIShellTrackView const* const tree = GetShellTree();
  const bool wasExpanded = tree && tree->WasExpanded(UIShellMyComputerNode::GetSettingsKey());
  Link(new UIShellMyComputerNode(wasExpanded ? kNodeExpanded : kNodeCollapsed, this, GetJunction(),
                                 GetTreeControl()));
  if (mDesktop) AddContentsOf(*mDesktop);
}

UIShellMyComputerNode::UIShellMyComputerNode(ENodeState inState, HierarchyEntryBase* inParent,
                                             JunctionP const& inJunction, TreeControlBase* inTree)
    : UIShellHierarchyEntryBase(inState, inParent, inJunction, inTree) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellMyComputerNode::GetNodeIcon() {
  return ImageComputerIcon(GetImageSupplier());
}

void UIShellMyComputerNode::GetCellText(unsigned int const&, UTF16String& outText) const {
  outText = Localized("$$$/vek/sharedui/UIShellView/MyComputer=My Computer");
}

UTF8String UIShellMyComputerNode::GetSettingsKey() {
  return lumcore::utility::ToUTF8("MyComputer");
}

void UIShellMyComputerNode::DoAddChildren() {
  for (auto const& volume : lumcore::filesupport::GetVolumes())
    Link(new UIShellVolumeNode(volume, this, GetJunction(), GetTreeControl()));
}

void UIShellMyComputerNode::EntryStateChanged() {
  StoreState(GetSettingsKey());
}

UIShellFileNode::UIShellFileNode(File const& inFile, HierarchyEntryBase* inParent,
                                 JunctionP const& inJunction, TreeControlBase* inTree)
    : UIShellHierarchyEntryBase(kNodeCollapsed, inParent, inJunction, inTree), mFile(inFile) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellFileNode::GetNodeIcon() {
  return ImageFileIcon(mFile, GetImageSupplier());
}

void UIShellFileNode::GetCellText(unsigned int const&, UTF16String& outText) const {
  outText = mFile.GetName();
}

Dir const* UIShellFileNode::GetDir() const {
  if (mFolder.GetPath().empty()) mFolder = mFile.Parent();
  return &mFolder;
}

UIShellNoteNode::UIShellNoteNode(UTF16String const& inText, HierarchyEntryBase* inParent,
                                 JunctionP const& inJunction, TreeControlBase* inTree)
    : UIShellHierarchyEntryBase(kNodeCollapsed, inParent, inJunction, inTree), mText(inText) {}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIShellNoteNode::GetNodeIcon() {
  return nullptr;
}

void UIShellNoteNode::GetCellText(unsigned int const&, UTF16String& outText) const {
  outText = mText;
}

}  // namespace vek::sharedui
