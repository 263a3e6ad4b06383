// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "FilesPane.h"

#include <memory>
#include <utility>

#include "Palette.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/Cursors.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/trackview/LUMPlatformView.h"
#include "vek/trackview/PlatformScrollView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

using lumcore::filesupport::Dir;
using vek::sharedui::UIShellTrackView;

namespace {

constexpr const char* kSelectedKey = "LastSel";

}  // namespace

FilesPane::FilesPane(lumcore::proplist::PropList& ioSettings, Open inOpen, FindFolder inFindFolder)
    : mSettings(ioSettings),
      mOpen(std::move(inOpen)),
      mFindFolder(std::move(inFindFolder)),
      mBuild(new boost::function<void()>([this] { BuildTree(); })) {
  UI_SetNodeID("files");
}

// The nodes may live on for the event that runs.
FilesPane::~FilesPane() {
  mBuild->clear();
  SaveState();
  if (mTree) mTree->SetOpenFunction(UIShellTrackView::OpenFunction());
  if (mTree) mTree->SetFolderSettings(nullptr);
}

void FilesPane::SaveState() const {
  if (mTree) mTree->SaveSelectionState();
}

void FilesPane::BuildTree() {
  if (mTree) return;
  const lumui::ui::StBusyCursor busy;
  mScrollView = vek::trackview::PlatformScrollView::Create();
  auto& trackView = *mScrollView->GetPlatformView().GetTrackView();
  auto tree = std::make_unique<UIShellTrackView>(&trackView, &mSettings, true);
  mTree = tree.get();
  std::auto_ptr<vek::trackview::Overlay> overlay(tree.release());
  trackView.InstallOverlay(overlay, false);
  mTree->AddFileType(lumcore::utility::ToUTF16(".opml"), false);
  mTree->SetOpenFunction([this](const auto& inFile) { mOpen(inFile); });
  UI_AddChild(mScrollView);
  UI_SizeChanged(UI_GetLocalRectF());
  mTree->BuildHierarchy();
  const auto folder = mSettings.Has(kSelectedKey) ? lumcore::UTF16String() : mFindFolder();
  if (folder.empty() || !mTree->ExpandAndSelectNode(Dir(folder))) mTree->RestoreSelectionState();
  if (mHasFocus) FocusTree();
}

void FilesPane::FocusTree() {
  mHasFocus = true;
  if (mTree) mScrollView->GetPlatformView().UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

void FilesPane::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  if (mScrollView) mScrollView->UI_SetLocalRectF({0, 0, inRect.width, inRect.height});
}

void FilesPane::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Paper());
  if (mTree || std::exchange(mIsPosted, true)) return;
  lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([build = mBuild] {
    const boost::function<void()> function = *build;
    if (function) function();
  });
}

}  // namespace outliner
