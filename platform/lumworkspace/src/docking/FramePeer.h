// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDockWidget>
#include <QPointer>

#include "docking/TitleBar.h"
#include "lumcore/geom/Point.h"
#include "lumworkspace/workspace/WorkspaceFrameBase.h"
#include "ui/NodePeer.h"

namespace lumworkspace::workspace {

// The dock widget of a frame. The panel stands in a body of its own, which tells it its size.
class WorkspaceFrameBase::Peer : public lumui::ui::NodePeer {
 public:
  Peer(bool inClosable, const lumcore::geom::PointT<int>& inLeastSize)
      : NodePeer(Kind::kNative), mClosable(inClosable), mLeastSize(inLeastSize) {}
  ~Peer() override;

  QDockWidget* GetDock() const;  // null before the frame stands in a window
  void ShowTitle();
  void FitPanel();

 private:
  class Dock;
  class Body;

  QWidget* DoMakeWidget(QWidget* inParent) override;
  QWidget* DoGetContainer() override;
  WorkspaceFrameBase& GetFrame() const { return static_cast<WorkspaceFrameBase&>(*GetNode()); }
  void OpenFlyoutMenu(QWidget& inButton);

  bool mClosable;
  lumcore::geom::PointT<int> mLeastSize;
  QPointer<Dock> mDock;
  QPointer<Body> mBody;
  QPointer<docking::TitleBar> mTitleBar;
};

}  // namespace lumworkspace::workspace
