// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_InteractiveControlView.h"

#include <utility>

#include "lumcore/debug/Contract.h"
#include "ui/NodePeer.h"

namespace lumui::controls {

UI_InteractiveControlChangedMessage::~UI_InteractiveControlChangedMessage() = default;

UI_InteractiveControlView::UI_InteractiveControlView() {
  UI_SetWantsKeyboardFocus(true);
}

UI_InteractiveControlView::UI_InteractiveControlView(std::unique_ptr<ui::NodePeer> inPeer)
    : UI_ControlView(std::move(inPeer)) {
  UI_SetWantsKeyboardFocus(true);
}

UI_InteractiveControlView::~UI_InteractiveControlView() = default;

void UI_InteractiveControlView::NotifyWhenChanged(
    const boost::shared_ptr<ChangedFunction>& inFunction) {
  LUM_INPUT_CONTRACT(inFunction != nullptr);
  mListeners.Add(inFunction);
}

void UI_InteractiveControlView::NotifyWhenChangedInteractively(
    const boost::shared_ptr<ChangedFunction>& inFunction) {
  LUM_INPUT_CONTRACT(inFunction != nullptr);
  mInteractiveListeners.Add(inFunction);
}

void UI_InteractiveControlView::Commit() {}

void UI_InteractiveControlView::TellChanged(UI_InteractiveControlChangedMessage::Change inChange,
                                            bool inByUser) {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  UI_InteractiveControlChangedMessage message(this, inChange);
  const auto getMessage = [&] { return &message; };
  mListeners.CallEach(getMessage);
  if (inByUser) mInteractiveListeners.CallEach(getMessage);
}

}  // namespace lumui::controls
