// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "controls/ControlPeer.h"

#include <algorithm>

#include "lumcore/utility/RefCounted.h"
#include "lumui/ui/UI_Dialog.h"
#include "ui/EventGate.h"

namespace lumui::controls {

UI_ControlView& ControlPeer::GetControl() const {
  return *static_cast<UI_ControlView*>(GetNode());
}

QWidget* ControlPeer::DoMakeWidget(QWidget* inParent) {
  QWidget* const widget = DoMakeControl(inParent);
  GetControl().ShowState();
  return widget;
}

void ControlPeer::ApplyToolTip() {
  NodePeer::ApplyToolTip();
  GetControl().ShowState();
}

void ControlPeer::ApplyWantsFocus() {
  GetControl().ShowState();
}

void ControlPeer::ByUser(const std::function<void()>& inFunction) {
  if (GetControl().IsShowingState()) return;
  const lumcore::utility::StKeepAlive keepAlive(*GetNode());
  ui::EventGate::Get()->RunGuarded(inFunction);
}

bool ControlPeer::IsInDialog() const {
  return dynamic_cast<const ui::UI_Dialog*>(GetNode()->UI_GetWindowNode()) != nullptr;
}

void ApplyFontSize(QWidget& ioWidget, float inSize) {
  QFont font;
  if (inSize > 0) font.setPixelSize(std::max(1, qRound(inSize)));
  ioWidget.setFont(font);
}

QString PlainLabel(const QString& inText) {
  QString text;
  for (qsizetype at = 0; at < inText.size(); ++at) {
    const bool isMark = inText[at] == QLatin1Char('&') && at + 1 < inText.size();
    text += inText[isMark ? ++at : at];
  }
  text = text.trimmed();
  if (text.endsWith(QLatin1Char(':'))) text.chop(1);
  return text;
}

}  // namespace lumui::controls
