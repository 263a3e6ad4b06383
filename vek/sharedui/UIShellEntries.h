// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>
#include <optional>

#include "lumcore/filesupport/File.h"
#include "vek/hierarchyview/DynamicHierarchyEntry.h"
#include "vek/selection/Node.h"
#include "vek/sharedui/UIShellSelectionJunction.h"

namespace lumcore::filesupport {
class FileError;
struct Volume;
}  // namespace lumcore::filesupport

namespace lumui::drawbot {
class SupplierInterface;
}
namespace vek::hierarchyview {
class TreeControlBase;
}

namespace vek::sharedui {

class UIShellTrackView;
class UIShellTrackViewBase;

// An entry of a shell tree, and itself the node that is selected. It reads what is below it when it
// opens and drops that when it closes. Who links one that is open from the start has it build its
// children. An entry that outlives its tree stays as it is and builds no more.
class VEK_API UIShellHierarchyEntryBase : public hierarchyview::DynamicHierarchyEntry,
                                          public selection::Node {
 public:
  using JunctionP = boost::shared_ptr<UIShellSelectionJunction>;

  ~UIShellHierarchyEntryBase() override;

  bool CanExpand() const override;
  bool CanCollapse() const override;
  selection::Node* GetDataAsSelNode() const override;  // itself
  // Reads anew what is there already.
  void BuildChildList() override;
  void ClearChildList() override;

  // The folder that the entry is or, for a file, that it lies in; null for the computer, and for a
  // desktop that there is not.
  virtual lumcore::filesupport::Dir const* GetDir() const;

 protected:
  UIShellHierarchyEntryBase(hierarchyview::ENodeState inState, HierarchyEntryBase* inParent,
                            JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  // The children; does nothing here.
  virtual void DoAddChildren();
  void Link(boost::intrusive_ptr<UIShellHierarchyEntryBase> const& inChild);
  // The folders in the folder and then, where the tree wants them, the files; or, where it cannot
  // be read, a row that says so.
  void AddContentsOf(lumcore::filesupport::Dir const& inDir);
  void StoreState(lumcore::UTF8String const& inKey);
  UIShellTrackView* GetShellTree() const;  // null once it is gone
  lumui::drawbot::SupplierInterface const& GetImageSupplier() const;
  JunctionP const& GetJunction() const { return mJunction; }
  hierarchyview::TreeControlBase* GetTreeControl() const { return mTreeControl; }

 private:
  JunctionP mJunction;
  hierarchyview::TreeControlBase* mTreeControl;  // borrowed; good while the junction has its tree
};

class VEK_API UIShellRootNode : public UIShellHierarchyEntryBase {
 public:
  UIShellRootNode(hierarchyview::ENodeState inState, JunctionP const& inJunction,
                  hierarchyview::TreeControlBase* inTree);

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  lumcore::filesupport::Dir const* GetDir() const override;

 protected:
  void DoAddChildren() override;

 private:
  std::optional<lumcore::filesupport::Dir> mDesktop;
};

class VEK_API UIShellMyComputerNode : public UIShellHierarchyEntryBase {
 public:
  UIShellMyComputerNode(hierarchyview::ENodeState inState, HierarchyEntryBase* inParent,
                        JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;

  static lumcore::UTF8String GetSettingsKey();

 protected:
  void DoAddChildren() override;
  void EntryStateChanged() override;
};

class VEK_API UIShellDirNode : public UIShellHierarchyEntryBase {
 public:
  // Open or closed as the settings have it.
  UIShellDirNode(lumcore::filesupport::Dir const& inDir, HierarchyEntryBase* inParent,
                 JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  // Not where it leads back to a folder above it, which would have no end.
  bool CanExpand() const override;
  void ClearChildList() override;
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  lumcore::filesupport::Dir const* GetDir() const override { return &mDir; }
  lumcore::UTF8String const& GetSettingsKey() const { return mKey; }

 protected:
  UIShellDirNode(lumcore::filesupport::Dir const& inDir, lumcore::UTF16String const& inName,
                 HierarchyEntryBase* inParent, JunctionP const& inJunction,
                 hierarchyview::TreeControlBase* inTree);
  void DoAddChildren() override;
  void EntryStateChanged() override;

 private:
  lumcore::filesupport::Dir mDir;
  UIShellTrackView* mShellTree;  // as the tree control of the base
  lumcore::UTF8String mKey;
  lumcore::UTF16String mName;
  mutable std::optional<bool> mLeadsBack;  // once it was looked up
};

class VEK_API UIShellMyDocsNode : public UIShellDirNode {
 public:
  UIShellMyDocsNode(lumcore::filesupport::Dir const& inDir, HierarchyEntryBase* inParent,
                    JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
};

class VEK_API UIShellVolumeNode : public UIShellDirNode {
 public:
  UIShellVolumeNode(lumcore::filesupport::Volume const& inVolume, HierarchyEntryBase* inParent,
                    JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
};

class VEK_API UIShellFileNode : public UIShellHierarchyEntryBase {
 public:
  UIShellFileNode(lumcore::filesupport::File const& inFile, HierarchyEntryBase* inParent,
                  JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  lumcore::filesupport::File const& GetFile() const { return mFile; }

  bool CanExpand() const override { return false; }
  bool CanCollapse() const override { return false; }
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  lumcore::filesupport::Dir const* GetDir() const override;

 private:
  lumcore::filesupport::File mFile;
  mutable lumcore::filesupport::Dir mFolder;  // for GetDir
};

// For the place where the contents of a folder would be.
VEK_API lumcore::UTF16String DescribeUnreadable(lumcore::filesupport::FileError const& inError);

// Stands in a folder that cannot be read, and says why. It cannot be selected.
class VEK_API UIShellNoteNode : public UIShellHierarchyEntryBase {
 public:
  UIShellNoteNode(lumcore::UTF16String const& inText, HierarchyEntryBase* inParent,
                  JunctionP const& inJunction, hierarchyview::TreeControlBase* inTree);

  bool CanExpand() const override { return false; }
  bool CanCollapse() const override { return false; }
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;  // none
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;

 private:
  bool DoSelectable() const override { return false; }

  lumcore::UTF16String mText;
};

}  // namespace vek::sharedui
