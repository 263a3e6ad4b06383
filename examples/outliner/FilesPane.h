// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <functional>

#include "lumcore/filesupport/File.h"
#include "lumcore/proplist/PropList.h"
#include "lumui/ui/UI_SubView.h"

namespace vek::sharedui {
class UIShellTrackView;
}
namespace vek::trackview {
class PlatformScrollView;
}

namespace outliner {

// The folders of the computer with the outlines in them. No folder is read before the pane is seen.
// Which ones are open, and where the user was, lies in the settings.
class FilesPane final : public lumui::ui::UI_SubView {
 public:
  using Open = std::function<void(const lumcore::filesupport::File&)>;
  // Of the folder that is shown where the settings have none; empty for none.
  using FindFolder = std::function<lumcore::UTF16String()>;

  // The settings are borrowed, and outlive the pane.
  FilesPane(lumcore::proplist::PropList& ioSettings, Open inOpen, FindFolder inFindFolder);
  ~FilesPane() override;

  void FocusTree();
  vek::sharedui::UIShellTrackView* GetTree() const { return mTree; }  // null before it is seen
  void SaveState() const;

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  void BuildTree();

  lumcore::proplist::PropList& mSettings;
  Open mOpen;
  FindFolder mFindFolder;
  boost::intrusive_ptr<vek::trackview::PlatformScrollView> mScrollView;
  vek::sharedui::UIShellTrackView* mTree = nullptr;  // owned by its view
  bool mHasFocus = false;                            // as soon as there is a tree
  // Shared with what is posted; empty once the pane has gone.
  boost::shared_ptr<boost::function<void()>> mBuild;
  mutable bool mIsPosted = false;
};

}  // namespace outliner
