// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/NodePeer.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <limits>

#include "drawbot/QtConvert.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_NodeManager.h"
#include "ui/EventGate.h"
#include "ui/NodeManagerImpl.h"

namespace lumui::ui {

namespace {

QHash<const QWidget*, NodePeer*>& Peers() {
  static QHash<const QWidget*, NodePeer*> sPeers;
  return sPeers;
}

int Rounded(double inValue) {
  const double rounded = std::floor(inValue + 0.5);
  // Qt's own limit for the sizes of widgets leaves room for sums of two.
  constexpr double kLimit = QWIDGETSIZE_MAX;
  if (!(rounded > -kLimit)) return -QWIDGETSIZE_MAX;
  return rounded < kLimit ? static_cast<int>(rounded) : QWIDGETSIZE_MAX;
}

// A window may have a node for its parent that only keeps windows together.
bool IsWindow(const UI_Node& inNode) {
  return dynamic_cast<const OS_Window*>(&inNode) != nullptr;
}

}  // namespace

NodePeer::~NodePeer() {
  Destroy();
}

UI_Node* NodePeer::NodeOf(const QWidget* inWidget) {
  for (const QWidget* widget = inWidget; widget; widget = widget->parentWidget()) {
    if (NodePeer* const peer = Peers().value(widget)) return peer->GetNode();
    if (widget->isWindow()) break;
  }
  return nullptr;
}

void NodePeer::DropAllWidgets() {
  while (!Peers().isEmpty())
    Peers().begin().value()->Destroy();
}

QWidget* NodePeer::GetContainer() {
  return mWidget ? DoGetContainer() : nullptr;
}

QWidget* NodePeer::DoMakeWidget(QWidget* inParent) {
  return new NodeWidgetT<QWidget>(*this, inParent);
}

void NodePeer::Connect(QWidget* inWidget, NodeWidgetLink* inLink) {
  mWidget = inWidget;
  mLink = inLink;
  inLink->mPeer = this;
  Peers().insert(inWidget, this);
  inWidget->setMouseTracking(true);
  if (IsDrawn()) inWidget->setAttribute(Qt::WA_InputMethodEnabled);
  if (mIsOpaque) inWidget->setAttribute(Qt::WA_OpaquePaintEvent);
}

void NodePeer::WidgetGone() {
  Peers().remove(mWidget);
  mWidget = nullptr;
  mLink = nullptr;
}

void NodePeer::Unlink() {
  mLink->mPeer = nullptr;
  WidgetGone();
}

void NodePeer::PlaceIn(QWidget* inParent) {
  if (!mWidget) {
    DoMakeWidget(inParent);
  } else if (mWidget->parentWidget() != inParent) {
    mWidget->setParent(inParent);
  }
  ApplyToolTip();
  ApplyDisabled();
  ApplyRect();
  for (std::size_t i = 0; i < mNode->UI_GetChildCount(); ++i) {
    UI_Node* const child = mNode->UI_GetChild(i);
    if (!IsWindow(*child)) child->GetPeer()->PlaceIn(GetContainer());
  }
  // Last, so that everything shows at once. A top-level window waits until it has its native part.
  if (inParent) ApplyVisible();
}

void NodePeer::PlaceChild(UI_Node& inChild, UI_Node* inNextSibling) {
  QWidget* const container = GetContainer();
  if (!container || IsWindow(inChild)) return;
  inChild.GetPeer()->PlaceIn(container);
  QWidget* const widget = inChild.GetPeer()->GetWidget();
  QWidget* const next = inNextSibling ? inNextSibling->GetPeer()->GetWidget() : nullptr;
  if (!widget) return;
  if (next && next->parentWidget() == container) {
    widget->stackUnder(next);
  } else {
    widget->raise();
  }
}

void NodePeer::TakeOut() {
  if (!mWidget || !mWidget->parentWidget()) return;
  mWidget->hide();
  if (mWidget) mWidget->setParent(nullptr);
}

void NodePeer::Destroy() {
  if (!mWidget) return;
  QWidget* const widget = mWidget;
  for (std::size_t i = 0; i < mNode->UI_GetChildCount(); ++i) {
    mNode->UI_GetChild(i)->GetPeer()->TakeOut();
  }
  // Unlinked first: hiding sends events, and the node may be half destroyed.
  if (mWidget != widget) return;
  Unlink();
  EventGate* const gate = EventGate::Get();
  if (gate && gate->IsInEvent()) {
    // What it still does before it goes is told to nobody.
    widget->blockSignals(true);
    widget->hide();
    widget->deleteLater();
  } else {
    delete widget;
  }
}

QRect NodePeer::RoundedRect() const {
  const auto& rect = mNode->UI_GetLocalRectF();
  const int left = Rounded(rect.x);
  const int top = Rounded(rect.y);
  const auto size = [](double inEnd, int inStart) {
    return std::clamp(Rounded(inEnd) - inStart, 0, QWIDGETSIZE_MAX);
  };
  return QRect(left, top, size(double(rect.x) + rect.width, left),
               size(double(rect.y) + rect.height, top));
}

QRect NodePeer::WithoutChrome(const QRect& inGeometry) const {
  return QRect(inGeometry.topLeft(),
               QSize(inGeometry.width(), std::max(0, inGeometry.height() - mChromeHeight)));
}

void NodePeer::SetChromeHeight(int inHeight) {
  if (inHeight == mChromeHeight) return;
  mChromeHeight = inHeight;
  mContentOrigin.y = -inHeight;
  if (!mWidget) return;
  // A window that has no place yet keeps none.
  if (!mNode->UI_GetLocalRectF().IsEmpty()) HandleGeometry();
  mWidget->update();
}

void NodePeer::ApplyRect() {
  if (!mWidget || mApplyingRect) return;
  // A window that nobody has given a place gets one from the window system.
  if (mWidget->isWindow() && mNode->UI_GetLocalRectF().IsEmpty()) return;
  const lumcore::utility::StScopedValue<bool> applying(mApplyingRect, true);
  mWidget->setGeometry(RoundedRect().adjusted(0, 0, 0, mChromeHeight));
}

void NodePeer::ApplySize(int inWidth, int inHeight) {
  const lumcore::utility::StScopedValue<bool> applying(mApplyingRect, true);
  mWidget->resize(inWidth, inHeight + mChromeHeight);
  mNode->UI_SetLocalRectF(drawbot::FromQt(QRectF(WithoutChrome(mWidget->geometry()))));
}

void NodePeer::ApplyVisible() {
  if (mWidget) mWidget->setVisible(mNode->UI_IsVisible());
}

void NodePeer::ApplyDisabled() {
  if (mWidget) mWidget->setEnabled(!mNode->UI_IsDisabled());
}

void NodePeer::SetOpaque(bool inOpaque) {
  mIsOpaque = inOpaque;
  if (mWidget) mWidget->setAttribute(Qt::WA_OpaquePaintEvent, inOpaque);
}

void NodePeer::ApplyToolTip() {
  if (mWidget) mWidget->setToolTip(drawbot::ToQt(mNode->UI_GetToolTip()).toHtmlEscaped());
}

lumcore::geom::PointT<float> NodePeer::WithContentOrigin(const QPointF& inPosition) const {
  return lumcore::geom::PointT<float>(static_cast<float>(inPosition.x() + mContentOrigin.x),
                                      static_cast<float>(inPosition.y() + mContentOrigin.y));
}

void NodePeer::Invalidate(const lumcore::geom::RectT<int>& inRect) {
  if (!mWidget || inRect.IsEmpty()) return;
  const QRectF moved(inRect.x - mContentOrigin.x, inRect.y - mContentOrigin.y, inRect.width,
                     inRect.height);
  const QRectF seen = moved & QRectF(mWidget->rect());
  if (!seen.isEmpty()) mWidget->update(seen.toAlignedRect());
}

void NodePeer::InvalidateAll() {
  if (!mWidget) return;
  mIsAllInvalid = IsDrawn();
  mWidget->update();
}

}  // namespace lumui::ui
