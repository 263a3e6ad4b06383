// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_ControlView.h"

#include <utility>

#include "controls/ControlPeer.h"
#include "drawbot/QtConvert.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/controls/UI_StaticText.h"

namespace lumui::controls {

namespace {

// The static text right before the control, which labels it for who sees.
const UI_StaticText* LabelOf(const ui::UI_Node& inControl) {
  const ui::UI_Node* const parent = inControl.UI_GetParentNode();
  const ui::UI_Node* before = nullptr;
  for (std::size_t i = 0; parent && i < parent->UI_GetChildCount(); ++i) {
    const ui::UI_Node* const child = parent->UI_GetChild(i);
    if (child == &inControl) return dynamic_cast<const UI_StaticText*>(before);
    before = child;
  }
  return nullptr;
}

}  // namespace

UI_ControlView::UI_ControlView() = default;

UI_ControlView::UI_ControlView(std::unique_ptr<ui::NodePeer> inPeer)
    : UI_SubView(std::move(inPeer)) {}

UI_ControlView::~UI_ControlView() = default;

void UI_ControlView::SetDownState(bool inDown) {
  mDownState = inDown;
  ShowState();
}

void UI_ControlView::SetSuppressFocusDrawing(bool inSuppress) {
  mSuppressFocusDrawing = inSuppress;
  ShowState();
}

void UI_ControlView::ShowState() {
  QWidget* const widget = GetPeer()->GetWidget();
  if (!widget || mShowingState) return;
  const lumcore::utility::StScopedValue<bool> showing(mShowingState, true);
  DoShowState();
  widget->setProperty(kNoFocusFrame, mSuppressFocusDrawing);
  widget->setAccessibleName(PlainLabel(drawbot::ToQt(DoGetAccessibleName())));
  widget->update();
}

void UI_ControlView::ShowStateOfNextSibling() {
  const ui::UI_Node* const parent = UI_GetParentNode();
  for (std::size_t i = 0; parent && i < parent->UI_GetChildCount(); ++i) {
    if (parent->UI_GetChild(i) != this) continue;
    if (auto* const next = dynamic_cast<UI_ControlView*>(parent->UI_GetChild(i + 1))) {
      next->ShowState();
    }
    return;
  }
}

lumcore::UTF16String UI_ControlView::DoGetAccessibleName() const {
  const UI_StaticText* const label = LabelOf(*this);
  return label ? label->GetText() : UI_GetToolTip();
}

void UI_ControlView::DoShowState() {}

}  // namespace lumui::controls
