// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Panels.h"

#include <utility>

#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/workspace/ViewDebuggerTabCreator.h"

namespace outliner {

using lumcore::UTF8String;
using lumcore::utility::ToUTF8;
using namespace lumworkspace::workspace;

namespace {

constexpr int kLeastWidth = 160;
constexpr int kLeastHeight = 80;

}  // namespace

const UTF8String& OutlinePanel() {
  static const UTF8String sType = ToUTF8("outliner.outline");
  return sType;
}

const UTF8String& NotesPanel() {
  static const UTF8String sType = ToUTF8("outliner.notes");
  return sType;
}

const UTF8String& CommandsPanel() {
  static const UTF8String sType = ToUTF8("outliner.commands");
  return sType;
}

const UTF8String& MapPanel() {
  static const UTF8String sType = ToUTF8("outliner.map");
  return sType;
}

const UTF8String& HistoryPanel() {
  static const UTF8String sType = ToUTF8("outliner.history");
  return sType;
}

const UTF8String& FilesPanel() {
  static const UTF8String sType = ToUTF8("outliner.files");
  return sType;
}

const UTF8String& ConsolePanel() {
  static const UTF8String sType = ToUTF8("outliner.console");
  return sType;
}

const UTF8String& NodesPanel() {
  static const UTF8String sType = ToUTF8(vek::workspace::ViewDebuggerTabCreator::kTabType);
  return sType;
}

ViewPanel::ViewPanel(Workspace* inWorkspace, WorkspaceFrameBase* inFrame,
                     const lumcore::UTF16String& inTitle, const UTF8String& inTabType,
                     const boost::intrusive_ptr<lumui::ui::UI_SubView>& inView)
    : TabPanel(inWorkspace, inFrame, inTitle, inTabType, nullptr, true), mView(inView) {
  UI_AddChild(mView);
}

// The view may be in another panel by now.
ViewPanel::~ViewPanel() {
  if (mView->UI_GetParentNode() == this) UI_RemoveChild(mView.get());
}

void ViewPanel::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  TabPanel::UI_SizeChanged(inRect);
  if (mView->UI_GetParentNode() == this) mView->UI_SetLocalRectF(inRect);
}

PanelCreator::PanelCreator(const UTF8String& inTabType, const char* inTitleKey,
                           const TabPlace& inDefaultPlace, MakeView inMakeView)
    : TabCreator(inTabType),
      mTitleKey(inTitleKey),
      mDefaultPlace(inDefaultPlace),
      mMakeView(std::move(inMakeView)) {}

PanelCreator::~PanelCreator() = default;

boost::intrusive_ptr<TabPanel> PanelCreator::CreateTabPanel(Workspace* inWorkspace,
                                                            WorkspaceFrameBase* inFrame) {
  const auto title = Localized(mTitleKey);
  return new ViewPanel(inWorkspace, inFrame, title, GetTabType(), mMakeView());
}

TabPlace PanelCreator::GetDefaultPlace(const Workspace&) const {
  return mDefaultPlace;
}

lumcore::geom::PointT<int> PanelCreator::GetLeastSize() const {
  return {kLeastWidth, kLeastHeight};
}

}  // namespace outliner
