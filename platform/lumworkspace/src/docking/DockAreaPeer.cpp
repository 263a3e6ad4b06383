// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/DockAreaPeer.h"

#include <QChildEvent>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTabBar>

#include "lumworkspace/workspace/WorkspaceUIManager.h"

namespace lumworkspace::docking {

namespace {

// The centre gives way to the docks, down to this.
constexpr int kLeastCentre = 64;

workspace::DockMetrics MetricsFor(bool inTouch) {
  const auto* const manager = workspace::WorkspaceUIManager::Get();
  return manager ? manager->GetMetrics(inTouch)
                 : workspace::WorkspaceUIManager::GetDefaultMetrics(inTouch);
}

}  // namespace

// The application's style with our sizes of splitters and tabs.
class DockArea::Peer::Style : public QProxyStyle {
 public:
  explicit Style(const workspace::DockMetrics& inMetrics) : mMetrics(inMetrics) {}

  int pixelMetric(PixelMetric inMetric, const QStyleOption* inOption,
                  const QWidget* inWidget) const override {
    if (inMetric == PM_DockWidgetSeparatorExtent) return mMetrics.splitterWidth;
    return QProxyStyle::pixelMetric(inMetric, inOption, inWidget);
  }
  QSize sizeFromContents(ContentsType inType, const QStyleOption* inOption, const QSize& inSize,
                         const QWidget* inWidget) const override {
    QSize size = QProxyStyle::sizeFromContents(inType, inOption, inSize, inWidget);
    if (inType == CT_TabBarTab) size.setHeight(std::max(size.height(), mMetrics.tabHeight));
    return size;
  }

 private:
  workspace::DockMetrics mMetrics;
};

class DockArea::Peer::Main : public lumui::ui::NodeWidgetT<QMainWindow> {
 public:
  Main(Peer& inPeer, QWidget* inParent, const workspace::DockMetrics& inMetrics)
      : NodeWidgetT<QMainWindow>(inPeer, inParent), mStyle(inMetrics) {
    // Qt makes it a window of its own whatever it is told at first.
    setWindowFlags(Qt::Widget);
    setStyle(&mStyle);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setDockOptions(AllowTabbedDocks | AllowNestedDocks);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
  }
  // Null once the area has let it go.
  DockArea* mArea = nullptr;

 protected:
  bool event(QEvent* inEvent) override {
    const bool press = inEvent->type() == QEvent::MouseButtonPress;
    if (inEvent->type() == QEvent::ChildPolished) {
      PrepareTabs(static_cast<QChildEvent*>(inEvent)->child());
    }
    const bool result = NodeWidgetT<QMainWindow>::event(inEvent);
    // It takes no presses but those between the docks.
    if (press && inEvent->isAccepted() && mArea) mArea->SetEdited(true);
    return result;
  }

 private:
  void PrepareTabs(QObject* inChild) {
    auto* const bar = qobject_cast<QTabBar*>(inChild);
    if (!bar) return;
    bar->setStyle(&mStyle);
    bar->setElideMode(Qt::ElideRight);
    bar->setUsesScrollButtons(true);
    bar->setDocumentMode(true);
  }

  Style mStyle;
};

DockArea::Peer::~Peer() {
  if (mMain) mMain->mArea = nullptr;
}

QMainWindow* DockArea::Peer::GetMain() const {
  return mMain;
}

QWidget* DockArea::Peer::DoMakeWidget(QWidget* inParent) {
  mMain = new Main(*this, inParent, MetricsFor(mForTouch));
  mMain->mArea = &GetArea();
  return mMain;
}

void DockArea::Peer::ShowCentral() {
  UI_Node* const central = GetArea().GetCentralNode();
  QWidget* const widget = central ? central->GetPeer()->GetWidget() : nullptr;
  if (!mMain || mMain->centralWidget() == widget) return;
  mMain->takeCentralWidget();
  if (!widget) return;
  widget->setMinimumSize(kLeastCentre, kLeastCentre);
  mMain->setCentralWidget(widget);
}

std::vector<QTabBar*> DockArea::Peer::GetTabBars() const {
  std::vector<QTabBar*> bars;
  if (!mMain) return bars;
  for (QTabBar* bar : mMain->findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
    // Qt keeps bars for later that show nothing now.
    if (!bar->isHidden() && bar->count() > 0) bars.push_back(bar);
  }
  return bars;
}

}  // namespace lumworkspace::docking
