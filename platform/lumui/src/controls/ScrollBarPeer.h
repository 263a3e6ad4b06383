// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QScrollBar>

#include "lumui/controls/UI_ScrollBar.h"
#include "ui/NodePeer.h"

namespace lumui::controls {

// Qt's bar as a picture of an offset in double: the range of int is too small for the content, and
// its steps are not ours. What the user does with it goes to the scroll view, which tells it back
// what to show.
class UI_ScrollBar::Peer : public ui::NodePeer {
 public:
  explicit Peer(bool inHorizontal);

  // Of the content's units: how far the offset can go, where it is, and how much is to be seen.
  void ShowOffset(double inRange, double inOffset, double inViewed);

 private:
  QWidget* DoMakeWidget(QWidget* inParent) override;
  void HandleAction(int inAction);
  void Apply();

  bool mHorizontal;
  QPointer<QScrollBar> mBar;  // the widget, which may go before the peer
  bool mShowing = false;
  double mRange = 0;
  double mOffset = 0;
  double mViewed = 0;
};

}  // namespace lumui::controls
