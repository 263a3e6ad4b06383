// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <vector>

#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"
#include "ui/Menu.h"

namespace lumui::ui {

class OS_Window;

// The window system's side of a menu: one action an item, by position, shared by the popup and by
// the bars that show the menu. The menu owns it, and it lives no longer than the application. What
// the user sees follows the items; nothing is ever read back from it.
class LUMUI_API MenuPeer {
 public:
  // Makes it where there is none, with those of the menus below.
  static MenuPeer& Of(Menu& ioMenu);
  static void DropAll();

  explicit MenuPeer(Menu& ioMenu);
  ~MenuPeer();
  MenuPeer(const MenuPeer&) = delete;
  MenuPeer& operator=(const MenuPeer&) = delete;

  void ItemInserted(unsigned inPosition);
  void ItemRemoved(unsigned inPosition);
  void ItemChanged(unsigned inPosition);

  QMenu& GetPopup() { return *mPopup; }
  // The bar belongs to the parent.
  void FillBar(QMenuBar& ioBar);
  void PopUp(const OS_Window& inWindow, const lumcore::geom::PointT<int>& inPoint);
  unsigned Track(const OS_Window& inWindow, const lumcore::geom::PointT<int>& inPoint);

 private:
  void InsertInto(QWidget& ioWidget, unsigned inPosition);
  void Write(QAction& ioAction, const MenuItem& inItem);
  void Choose(const QAction& inAction);

  Menu& mMenu;
  QMenu* mPopup;                   // the actions' owner
  std::vector<QAction*> mActions;  // in parallel to the items
  std::vector<QPointer<QMenuBar>> mBars;
};

}  // namespace lumui::ui
