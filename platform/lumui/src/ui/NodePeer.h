// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPaintEvent>
#include <QPointF>
#include <QPointer>
#include <QRegion>
#include <QVariant>
#include <QWidget>
#include <memory>
#include <utility>

#include "lumcore/geom/Point.h"
#include "lumcore/proplist/PropList.h"
#include "lumui/Export.h"
#include "lumui/ui/UI_Node.h"

class QEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace lumui::ui {

class NodePeer;

// The widget's way to its node; null once the node has let the widget go.
class LUMUI_API NodeWidgetLink {
 protected:
  NodeWidgetLink() = default;
  ~NodeWidgetLink() = default;

 private:
  friend class NodePeer;
  template <class Base>
  friend class NodeWidgetT;
  NodePeer* mPeer = nullptr;
};

// The window system's part of a node: the widget that is made when the node is first placed in a
// window and that stays with the node from then on. The node owns the peer, the peer the widget.
//
// A control of the window system derives from this class and makes its own widget, as a NodeWidgetT
// over Qt's class; then every event is offered to the node first and handled by Qt's class if the
// node does not take it.
class LUMUI_API NodePeer {
 public:
  enum class Kind { kDrawn, kNative };

  explicit NodePeer(Kind inKind = Kind::kDrawn) : mKind(inKind) {}
  virtual ~NodePeer();
  NodePeer(const NodePeer&) = delete;
  NodePeer& operator=(const NodePeer&) = delete;

  // The node that a widget belongs to: its own, or that of the nearest widget around it.
  static UI_Node* NodeOf(const QWidget* inWidget);
  // At the end of the application: no widget outlives Qt.
  static void DropAllWidgets();

  UI_Node* GetNode() const { return mNode; }
  QWidget* GetWidget() const { return mWidget; }  // null before the node was placed in a window
  bool IsDrawn() const { return mKind == Kind::kDrawn; }
  // Where the widgets of the node's children go.
  QWidget* GetContainer();

  void Bind(UI_Node& inNode) { mNode = &inNode; }
  // What the archive that the node was built from says of it, without its children; null for a node
  // that was made otherwise.
  const lumcore::proplist::PropList* GetArchived() const { return mArchived.get(); }
  void SetArchived(std::unique_ptr<const lumcore::proplist::PropList> inArchived) {
    mArchived = std::move(inArchived);
  }
  // Makes the widget, or moves it, with those of the nodes below. A null parent makes a window.
  void PlaceIn(QWidget* inParent);
  void PlaceChild(UI_Node& inChild, UI_Node* inNextSibling);
  // Takes the widget off the screen and keeps it.
  void TakeOut();
  // Lets the widget go: at once, or after the event that is running. Widgets of nodes below stay.
  void Destroy();

  void ApplyRect();
  // Of a window with a widget: the size alone, the place stays whose it is.
  void ApplySize(int inWidth, int inHeight);
  void ApplyVisible();
  void ApplyDisabled();
  void SetOpaque(bool inOpaque);
  virtual void ApplyToolTip();
  // After UI_SetWantsKeyboardFocus; a drawn node is asked when it matters.
  virtual void ApplyWantsFocus() {}

  // Added to positions in the widget, for the content of a scroll view.
  void SetContentOrigin(const lumcore::geom::PointT<double>& inOrigin) {
    mContentOrigin = inOrigin;
  }
  lumcore::geom::PointT<float> WithContentOrigin(const QPointF& inPosition) const;
  // Of the widget, at its top, what is none of the node's rectangle.
  int GetChromeHeight() const { return mChromeHeight; }
  void Invalidate(const lumcore::geom::RectT<int>& inRect);
  void InvalidateAll();
  // Whether all of a drawn node waits for drawing: what is on the screen is good for nothing.
  bool IsAllInvalid() const { return mIsAllInvalid; }

  // Of the widget's overrides.
  bool HandleEvent(QEvent& inEvent);  // true if Qt's class shall not see it
  void Paint(const QRegion& inDamage);
  // On behalf of a widget on the way of a key to the window. False leaves it to the walk.
  bool MoveFocusFromWidget(bool inForward);
  bool MoveFocus(bool inForward);
  // Of a window: gives the keyboard to the first node that wants it, if nobody has it.
  void FocusFirst();
  bool WantsInputMethod();

 protected:
  // inParent is null for a top-level window.
  virtual QWidget* DoMakeWidget(QWidget* inParent);
  virtual QWidget* DoGetContainer() { return mWidget; }
  void SetChromeHeight(int inHeight);

 private:
  template <class Base>
  friend class NodeWidgetT;

  void Connect(QWidget* inWidget, NodeWidgetLink* inLink);
  void WidgetGone();
  void Unlink();
  bool Offer(QEvent& inEvent, const std::function<bool(UI_Node*)>& inAsk);
  bool HandleMouse(QMouseEvent& inEvent);
  bool HandleWheel(QWheelEvent& inEvent);
  bool HandleKey(QKeyEvent& inEvent);
  bool HandleInputMethod(QInputMethodEvent& inEvent);
  void HandleLeave();
  void HandleFocus(QEvent& inEvent);
  void HandleGeometry();
  void AskCursor(UI_Node* inStart, QMouseEvent& inEvent);
  QRect RoundedRect() const;
  QRect WithoutChrome(const QRect& inGeometry) const;

  Kind mKind;
  UI_Node* mNode = nullptr;
  QWidget* mWidget = nullptr;
  NodeWidgetLink* mLink = nullptr;
  std::unique_ptr<const lumcore::proplist::PropList> mArchived;
  bool mApplyingRect = false;
  int mChromeHeight = 0;
  bool mIsOpaque = false;
  bool mIsAllInvalid = false;
  lumcore::geom::PointT<double> mContentOrigin;
  lumcore::geom::PointT<float> mLastPosition;
};

// A widget with a node: any widget class of Qt, with the few operations overridden by which events
// and drawing reach the node.
template <class Base>
class NodeWidgetT : public Base, public NodeWidgetLink {
 public:
  template <class... Args>
  explicit NodeWidgetT(NodePeer& inPeer, Args&&... inArgs) : Base(std::forward<Args>(inArgs)...) {
    inPeer.Connect(this, this);
  }
  ~NodeWidgetT() override {
    if (mPeer) mPeer->WidgetGone();
  }

  QVariant inputMethodQuery(Qt::InputMethodQuery inQuery) const override {
    if (mPeer && mPeer->IsDrawn() && inQuery == Qt::ImEnabled) return mPeer->WantsInputMethod();
    return Base::inputMethodQuery(inQuery);
  }

 protected:
  bool event(QEvent* inEvent) override {
    return (mPeer && mPeer->HandleEvent(*inEvent)) || Base::event(inEvent);
  }
  void paintEvent(QPaintEvent* inEvent) override {
    if (mPeer && mPeer->IsDrawn()) {
      mPeer->Paint(inEvent->region());
    } else {
      Base::paintEvent(inEvent);
    }
  }
  bool focusNextPrevChild(bool inNext) override {
    if (mPeer && this->isWindow()) return mPeer->MoveFocusFromWidget(inNext);
    return Base::focusNextPrevChild(inNext);
  }
};

}  // namespace lumui::ui
