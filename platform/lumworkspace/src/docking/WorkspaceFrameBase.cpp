// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/WorkspaceFrameBase.h"

#include <QCloseEvent>
#include <QResizeEvent>

#include "datatransfer/DragEvents.h"
#include "docking/DockArea.h"
#include "docking/Docking.h"
#include "docking/FramePeer.h"
#include "drawbot/QtConvert.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/utility/OS_Menu.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "ui/EventGate.h"

namespace lumworkspace::workspace {

using lumui::ui::EventGate;

// The dock never closes by itself: the workspace takes the panel away, and the frame with it.
class WorkspaceFrameBase::Peer::Dock : public lumui::ui::NodeWidgetT<QDockWidget> {
 public:
  Dock(Peer& inPeer, QWidget* inParent) : NodeWidgetT<QDockWidget>(inPeer, inParent) {}
  WorkspaceFrameBase* mFrame = nullptr;

 protected:
  bool event(QEvent* inEvent) override {
    return lumui::datatransfer::HandleDragEvent(*this, *inEvent) ||
           NodeWidgetT<QDockWidget>::event(inEvent);
  }
  void closeEvent(QCloseEvent* inEvent) override {
    inEvent->ignore();
    if (mFrame && mFrame->mDocking) {
      EventGate::Get()->RunGuarded([&] { mFrame->mDocking->Close(mFrame->mTabType); });
    }
  }
};

class WorkspaceFrameBase::Peer::Body : public QWidget {
 public:
  using QWidget::QWidget;
  QSize sizeHint() const override { return QSize(240, 180); }
  std::function<void()> mResized;

 protected:
  void resizeEvent(QResizeEvent* inEvent) override {
    QWidget::resizeEvent(inEvent);
    if (mResized) EventGate::Get()->RunGuarded(mResized);
  }
};

// The widgets may live until the end of the running event.
WorkspaceFrameBase::Peer::~Peer() {
  if (mDock) mDock->mFrame = nullptr;
  if (mBody) mBody->mResized = nullptr;
}

QDockWidget* WorkspaceFrameBase::Peer::GetDock() const {
  return mDock;
}

QWidget* WorkspaceFrameBase::Peer::DoMakeWidget(QWidget* inParent) {
  WorkspaceFrameBase& frame = GetFrame();
  auto* const dock = new Dock(*this, inParent);
  dock->mFrame = &frame;
  dock->setAcceptDrops(true);
  dock->setFeatures(
      QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
      (mClosable ? QDockWidget::DockWidgetClosable : QDockWidget::NoDockWidgetFeatures));
  auto* const body = new Body(dock);
  body->setMinimumSize(mLeastSize.x, mLeastSize.y);
  body->mResized = [this, body] {
    // The dock may be on its way out.
    if (mBody == body) FitPanel();
  };
  dock->setWidget(body);
  docking::TitleBar::Actions actions;
  actions.openMenu = [this](QWidget& inButton) { OpenFlyoutMenu(inButton); };
  actions.toggleFloating = [&frame] {
    if (frame.mDocking) frame.mDocking->ToggleFloating(frame.mTabType);
  };
  if (mClosable) {
    actions.close = [&frame] {
      if (frame.mDocking) frame.mDocking->Close(frame.mTabType);
    };
  }
  auto* const bar = new docking::TitleBar(dock, std::move(actions));
  dock->setTitleBarWidget(bar);
  QObject::connect(dock, &QDockWidget::dockLocationChanged, dock, [&frame] {
    if (frame.mDocking) frame.mDocking->MovedByUser(frame);
  });
  QObject::connect(dock, &QDockWidget::topLevelChanged, dock, [&frame](bool inFloating) {
    if (frame.mDocking && inFloating) frame.mDocking->LeftByUser(frame);
  });
  mDock = dock;
  mBody = body;
  mTitleBar = bar;
  ShowTitle();
  return dock;
}

QWidget* WorkspaceFrameBase::Peer::DoGetContainer() {
  return mBody;
}

void WorkspaceFrameBase::Peer::ShowTitle() {
  const TabPanel* const panel = GetFrame().GetTabPanel();
  if (!mDock || !panel) return;
  const QString title = lumui::drawbot::ToQt(panel->GetTitle());
  // A tab takes an ampersand for the mark of a mnemonic.
  mDock->setWindowTitle(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
  mDock->setAccessibleName(title);
  mTitleBar->SetTitle(title);
  mTitleBar->ShowMenuButton(panel->HasFlyoutMenu());
  mTitleBar->ShowFloating(GetFrame().IsFloating());
}

void WorkspaceFrameBase::Peer::FitPanel() {
  if (!mBody) return;
  if (TabPanel* const panel = GetFrame().GetTabPanel()) {
    panel->UI_SetLocalRectF(lumcore::geom::RectT<float>(0, 0, static_cast<float>(mBody->width()),
                                                        static_cast<float>(mBody->height())));
  }
}

void WorkspaceFrameBase::Peer::OpenFlyoutMenu(QWidget& inButton) {
  using lumui::ui::OS_Menu;
  const boost::intrusive_ptr<TabPanel> panel = GetFrame().GetTabPanel();
  lumui::ui::OS_Window* const window = GetFrame().UI_GetWindowNode();
  if (!panel || !window) return;
  const HMENU handle = OS_Menu::Create(true);
  lumui::utility::OS_Menu menu(handle);
  panel->BuildFlyoutMenu(menu);
  const QPoint below = inButton.mapToGlobal(QPoint(0, inButton.height()));
  const unsigned command =
      OS_Menu::TrackPopup(handle, *window, lumcore::geom::PointT<int>(below.x(), below.y()));
  OS_Menu::Destroy(handle);
  if (command != 0) panel->RunFlyoutMenuCommand(command);
}

WorkspaceFrameBase::WorkspaceFrameBase(docking::Docking& inDocking,
                                       const lumcore::UTF8String& inTabType, bool inClosable,
                                       const lumcore::geom::PointT<int>& inLeastSize)
    : UI_SubView(std::make_unique<Peer>(inClosable, inLeastSize)),
      mDocking(&inDocking),
      mTabType(inTabType) {
  UI_SetNodeID(inTabType);
}

WorkspaceFrameBase::~WorkspaceFrameBase() = default;

WorkspaceFrameBase::Peer& WorkspaceFrameBase::GetFramePeer() const {
  return static_cast<Peer&>(*GetPeer());
}

TabPanel* WorkspaceFrameBase::GetTabPanel() const {
  return dynamic_cast<TabPanel*>(UI_GetChild(0));
}

std::vector<lumcore::UTF8String> WorkspaceFrameBase::GetTabTypesOfGroup() const {
  const auto* const area = dynamic_cast<const docking::DockArea*>(UI_GetParentNode());
  return area ? area->GetGroupOf(*this).types : std::vector<lumcore::UTF8String>{mTabType};
}

bool WorkspaceFrameBase::IsInFront() const {
  const auto* const area = dynamic_cast<const docking::DockArea*>(UI_GetParentNode());
  return area && area->GetGroupOf(*this).current == mTabType;
}

bool WorkspaceFrameBase::IsFloating() const {
  const auto* const area = dynamic_cast<const docking::DockArea*>(UI_GetParentNode());
  return area && !area->IsMain();
}

void WorkspaceFrameBase::TitleChanged() {
  GetFramePeer().ShowTitle();
  if (mDocking) mDocking->TitlesChanged();
}

}  // namespace lumworkspace::workspace
