// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/PlatformScrollView.h"

#include "lumui/controls/UI_InteractiveControlChangedMessage.h"

namespace vek::trackview {

namespace {

using Flags = lumcore::utility::Flags<unsigned int>;
using lumui::controls::UI_InteractiveControlChangedMessage;
using ChangedFunction = lumui::controls::UI_ScrollBar::ChangedFunction;

}  // namespace

PlatformScrollView::PlatformScrollView(Flags inFlags, boost::intrusive_ptr<LUMPlatformView> inView)
    : UI_ScrollView(inFlags, inView),
      mScrolled(new ChangedFunction(
          [view = inView.get()](UI_InteractiveControlChangedMessage* inMessage) {
            view->ScrollBarChanged(inMessage);
          })) {
  UI_SetNodeID("PlatformScrollView");
  GetScrollBarX()->NotifyWhenChangedInteractively(mScrolled);
  GetScrollBarY()->NotifyWhenChangedInteractively(mScrolled);
}

// A bar that somebody keeps may outlive the view.
PlatformScrollView::~PlatformScrollView() {
  mScrolled->clear();
}

boost::intrusive_ptr<PlatformScrollView> PlatformScrollView::Create() {
  const boost::intrusive_ptr<LUMPlatformView> view(new LUMPlatformView);
  std::auto_ptr<TrackView> trackView(new TrackView(*view, false, 1, 1));
  view->SetTrackView(trackView);
  view->UI_Show(true);
  boost::intrusive_ptr<PlatformScrollView> scroll(new PlatformScrollView(Flags(), view));
  scroll->UI_Show(true);
  return scroll;
}

LUMPlatformView& PlatformScrollView::GetPlatformView() const {
  return static_cast<LUMPlatformView&>(*GetContentNode());
}

}  // namespace vek::trackview
