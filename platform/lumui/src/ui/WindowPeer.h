// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

#include "lumui/ui/OS_Frame.h"
#include "ui/NodePeer.h"

class QMenuBar;

namespace lumui::ui {

// The peer of a top-level window. From the first menu on, the nodes stand in a widget of their own,
// and a layout of Qt's keeps the bar above it.
class LUMUI_API WindowPeer : public NodePeer {
 public:
  WindowPeer();
  ~WindowPeer() override;

  // Of a window with a widget. Null takes the bar away.
  void ShowMenu(HMENU inMenu);
  QMenuBar* GetBar() const;  // null without a menu
  // Stands at the right end of the bar, and of each that comes after it, while there is room for it
  // beside the menus; hidden otherwise. The window's native part takes it along. Null for none.
  void SetBarCorner(QWidget* inCorner);
  // The frame's icon, if its module has one.
  void ApplyIcon(const OS_Frame::Description& inFrame);

 protected:
  QWidget* DoMakeWidget(QWidget* inParent) override;
  QWidget* DoGetContainer() override;

 private:
  class Bar;
  void MakeContainer();
  void DropBar();
  void PlaceCorner();
  void HideCorner();

  QPointer<Bar> mBar;
  QPointer<QWidget> mCorner;
  QPointer<QWidget> mContainer;
};

}  // namespace lumui::ui
