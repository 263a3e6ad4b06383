// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/Overlay.h"

#include "lumui/ui/Theme.h"

namespace vek::trackview {

Overlay::Overlay(LayerType inLayer, const State& inState) : mLayer(inLayer), mState(inState) {}

Overlay::~Overlay() = default;

void Overlay::DoImageRect(const Rect&, lumui::drawbot::Drawbot&,
                          boost::intrusive_ptr<lumui::ui::Theme>) const {}

bool Overlay::DoDoubleClick(Modifiers, const Point&) {
  return false;
}

bool Overlay::DoContextMenu(const Point&, lumui::ui::UI_Node&) {
  return false;
}

std::auto_ptr<Tracker> Overlay::DoAcquireTracker(const Point&, bool, TrackerDragAndDropInterface*) {
  return std::auto_ptr<Tracker>();
}

bool Overlay::DoKeyEvent(const lumui::ui::KeyboardEvent&) {
  return false;
}

void Overlay::DoTimerEvent(unsigned int) {}

void Overlay::DoGainedKeyFocus() {}

void Overlay::DoLostKeyFocus() {}

void Overlay::DoViewActivation() {}

void Overlay::DoViewPortResized() {}

void Overlay::MouseExitEvent() {}

bool Overlay::DoWantsDragDropEvents() const {
  return false;
}

void Overlay::SetState(const State& inState) {
  mState = inState;
}

}  // namespace vek::trackview
