// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QPointer>

#include "docking/DockArea.h"
#include "ui/NodePeer.h"

class QTabBar;

namespace lumworkspace::docking {

// A main window of Qt's as a widget within ours: it has the docks and nothing else of what it can.
class DockArea::Peer : public lumui::ui::NodePeer {
 public:
  explicit Peer(bool inForTouch) : NodePeer(Kind::kNative), mForTouch(inForTouch) {}
  ~Peer() override;

  QMainWindow* GetMain() const;
  void ShowCentral();
  std::vector<QTabBar*> GetTabBars() const;

 private:
  class Main;
  class Style;

  QWidget* DoMakeWidget(QWidget* inParent) override;
  DockArea& GetArea() const { return static_cast<DockArea&>(*GetNode()); }

  bool mForTouch;
  QPointer<Main> mMain;
};

}  // namespace lumworkspace::docking
