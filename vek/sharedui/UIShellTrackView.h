// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <list>

#include "lumcore/Strings.h"
#include "lumcore/filesupport/Dir.h"
#include "vek/sharedui/UIShellTrackViewBase.h"

namespace lumcore::filesupport {
class File;
}
namespace lumcore::proplist {
class PropList;
}

namespace vek::sharedui {

// The file system as the desktop shows it: the Desktop, with the user's documents and the computer
// with its volumes in it, and folders below folders. A folder is read when it opens, on the spot,
// and again each time that it opens; one that cannot be read says why in a row of its own. A folder
// that leads back to one above it cannot open. Files are leaves, all or those of some types.
//
// What is open, and on request what is selected, is kept in a property list of the host's:
//
//   auto* const tree = new UIShellTrackView(&trackView, &settings, true);
//   trackView.InstallOverlay(overlay, false);  // owns it
//   tree->BuildHierarchy();
//   tree->RestoreSelectionState();
//
// Node archives make it as "vek::UIShellTrackView" (UIShellTrackViewAdapter).
class VEK_API UIShellTrackView : public UIShellTrackViewBase {
 public:
  using OpenFunction = boost::function<void(lumcore::filesupport::File const&)>;

  // The settings are borrowed and may be null: then nothing is kept, and all folders begin closed.
  UIShellTrackView(trackview::TrackView* inTrackView, lumcore::proplist::PropList* inFolderSettings,
                   bool inIsSingleSelect);
  ~UIShellTrackView() override;

  // An extension with its dot: ".opml". It is kept in lower case, while that of a file is compared
  // as it stands. No types at all are all files. Without inReset the caller sends a Reset.
  void AddFileType(lumcore::UTF16String const& inExtension, bool inReset);
  void ClearFileTypes();  // a Reset shows it
  std::list<lumcore::UTF16String> const& GetFileTypes() const { return mFileTypes; }
  bool CanDisplayFile(lumcore::filesupport::File const& inFile) const;
  bool CanAddFilesAsLeafNodes() const { return mFilesAtLeafNodes; }
  void SetAddFilesAsLeafNodes(bool inAdd) { mFilesAtLeafNodes = inAdd; }  // a Reset shows it

  // By full path, true for open; "MyComputer" for the computer; "LastSel" for what was selected.
  lumcore::proplist::PropList* GetFolderSettings() const { return mFolderSettings; }
  void SetFolderSettings(lumcore::proplist::PropList* inSettings) { mFolderSettings = inSettings; }
  // What the settings have for the key of an entry; false without settings.
  bool WasExpanded(lumcore::UTF8String const& inKey) const;

  // Opens the way down to the folder, by its volume, and the folder itself, and selects it. False
  // if it is not there, or is not reached.
  bool ExpandAndSelectNode(lumcore::filesupport::Dir const& inDir);
  // Of a file its folder is kept. Neither does anything without settings, but for the root, which
  // is selected where nothing else can be.
  void SaveSelectionState();
  void RestoreSelectionState();
  // Reads all anew, by the settings, and keeps the part of the tree that is seen. What is selected
  // goes.
  void Reset();

  // A double click or Enter on a file. Without it they do nothing there.
  void SetOpenFunction(OpenFunction const& inOpen) { mOpen = inOpen; }
  bool DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) override;

 protected:
  void DoBuildHierarchy() override;
  bool DoProcessOnOpenSelected() override;

 private:
  hierarchyview::HierarchyEntryBase* StepDown(hierarchyview::HierarchyEntryBase& inFrom,
                                              lumcore::filesupport::Dir const& inTo);

  std::list<lumcore::UTF16String> mFileTypes;
  lumcore::proplist::PropList* mFolderSettings;
  bool mFilesAtLeafNodes = true;
  OpenFunction mOpen;
};

}  // namespace vek::sharedui
