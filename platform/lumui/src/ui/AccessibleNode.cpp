// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/AccessibleNode.h"

#include <QAccessible>
#include <QWidget>

#include "drawbot/QtConvert.h"
#include "ui/AccessibleEntry.h"
#include "ui/EventGate.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

namespace {

NodePeer* PeerOf(QWidget* inWidget) {
  UI_Node* const node = inWidget ? NodePeer::NodeOf(inWidget) : nullptr;
  NodePeer* const peer = node ? node->GetPeer() : nullptr;
  return peer && peer->GetWidget() == inWidget ? peer : nullptr;
}

QAccessibleInterface* MakeInterface(const QString&, QObject* inObject) {
  if (!inObject || !inObject->isWidgetType()) return nullptr;
  auto* const widget = static_cast<QWidget*>(inObject);
  NodePeer* const peer = PeerOf(widget);
  if (!peer || !peer->GetNode()->UI_GetAccessibleItems()) return nullptr;
  return new AccessibleNode(*widget, *peer);
}

QAccessible::Event EventOf(AccessibleChange inChange) {
  switch (inChange) {
    case AccessibleChange::kFocus:
      return QAccessible::Focus;
    case AccessibleChange::kSelection:
      return QAccessible::Selection;
    case AccessibleChange::kName:
      return QAccessible::NameChanged;
    default:
      return QAccessible::ObjectReorder;
  }
}

}  // namespace

AccessibleItems::~AccessibleItems() = default;

void InstallAccessibleNodes() {
  QAccessible::installFactory(&MakeInterface);
}

AccessibleNode::AccessibleNode(QWidget& inWidget, NodePeer&)
    : QAccessibleWidget(&inWidget, QAccessible::Client) {}

AccessibleNode::~AccessibleNode() {
  for (const auto& entry : mEntries)
    QAccessible::deleteAccessibleInterface(entry.second);
}

AccessibleNode* AccessibleNode::Of(QWidget* inWidget) {
  return inWidget ? dynamic_cast<AccessibleNode*>(QAccessible::queryAccessibleInterface(inWidget))
                  : nullptr;
}

AccessibleItems* AccessibleNode::GetItems() const {
  NodePeer* const peer = PeerOf(widget());
  return peer ? peer->GetNode()->UI_GetAccessibleItems() : nullptr;
}

bool AccessibleNode::Ask(const std::function<void(AccessibleItems&)>& inQuestion) const {
  NodePeer* const peer = PeerOf(widget());
  AccessibleItems* const items = GetItems();
  if (!items) return false;
  const lumcore::utility::StKeepAlive keepAlive(*peer->GetNode());
  return EventGate::Get()->RunGuarded([&] { inQuestion(*items); });
}

int AccessibleNode::ItemCount() const {
  int count = 0;
  Ask([&](AccessibleItems& inItems) { count = inItems.GetChildCount(AccessibleID()); });
  return count;
}

int AccessibleNode::childCount() const {
  return ItemCount() + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleNode::child(int inIndex) const {
  const int items = ItemCount();
  if (inIndex < 0) return nullptr;
  if (inIndex >= items) return QAccessibleWidget::child(inIndex - items);
  AccessibleID item;
  Ask([&](AccessibleItems& inItems) { item = inItems.GetChild(AccessibleID(), inIndex); });
  return InterfaceOf(item);
}

int AccessibleNode::indexOfChild(const QAccessibleInterface* inChild) const {
  if (const auto* const entry = dynamic_cast<const AccessibleEntry*>(inChild)) {
    int index = -1;
    Ask([&](AccessibleItems& inItems) { index = inItems.GetIndex(entry->GetItem()); });
    return index;
  }
  const int index = QAccessibleWidget::indexOfChild(inChild);
  return index < 0 ? index : ItemCount() + index;
}

QAccessibleInterface* AccessibleNode::childAt(int inX, int inY) const {
  if (QAccessibleInterface* const within = QAccessibleWidget::childAt(inX, inY)) return within;
  AccessibleID item;
  const NodePeer* const peer = PeerOf(widget());
  if (!peer || !widget()->rect().contains(widget()->mapFromGlobal(QPoint(inX, inY))))
    return nullptr;
  const auto position = peer->WithContentOrigin(widget()->mapFromGlobal(QPointF(inX, inY)));
  Ask([&](AccessibleItems& inItems) { item = inItems.GetAt(position); });
  return InterfaceOf(item);
}

QAccessibleInterface* AccessibleNode::focusChild() const {
  AccessibleID item;
  if (widget()->hasFocus()) Ask([&](AccessibleItems& inItems) { item = inItems.GetFocus(); });
  QAccessibleInterface* const focus = InterfaceOf(item);
  return focus ? focus : QAccessibleWidget::focusChild();
}

QAccessibleInterface* AccessibleNode::InterfaceOf(const AccessibleID& inItem) const {
  if (inItem.IsNode()) return nullptr;
  const auto key = std::make_pair(inItem.owner, inItem.value);
  const auto found = mEntries.find(key);
  if (found != mEntries.end()) return QAccessible::accessibleInterface(found->second);
  auto* const entry = new AccessibleEntry(widget(), inItem);
  mEntries[key] = QAccessible::registerAccessibleInterface(entry);
  return entry;
}

void AccessibleNode::ForgetGone() const {
  for (auto at = mEntries.begin(); at != mEntries.end();) {
    const QAccessibleInterface* const entry = QAccessible::accessibleInterface(at->second);
    if (entry && entry->isValid()) {
      ++at;
      continue;
    }
    QAccessible::deleteAccessibleInterface(at->second);
    at = mEntries.erase(at);
  }
}

QRect AccessibleNode::PlaceOf(const AccessibleItem& inItem) const {
  const NodePeer* const peer = PeerOf(widget());
  if (!peer) return QRect();
  const auto origin = peer->WithContentOrigin(QPointF());
  const QRectF local = drawbot::ToQt(inItem.rect).translated(-origin.x, -origin.y);
  // Far beyond any screen its place says nothing any more.
  const QRectF near = local & QRectF(-32768, -32768, 65536, 65536);
  return QRect(widget()->mapToGlobal(near.toAlignedRect().topLeft()), near.toAlignedRect().size());
}

bool AccessibleNode::IsSeen(const AccessibleItem& inItem) const {
  const QRect view(widget()->mapToGlobal(QPoint()), widget()->size());
  return widget()->isVisible() && PlaceOf(inItem).intersects(view);
}

void NotifyAccessibleChange(UI_Node& inNode, AccessibleChange inChange,
                            const AccessibleID& inItem) {
  QWidget* const widget = inNode.GetPeer()->GetWidget();
  if (!widget || !QAccessible::isActive()) return;
  const AccessibleNode* const node = AccessibleNode::Of(widget);
  if (!node) return;
  if (inChange == AccessibleChange::kItems) node->ForgetGone();
  QAccessibleInterface* const item = node->InterfaceOf(inItem);
  if (inChange == AccessibleChange::kState) {
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    changed.disabled = true;
    QAccessibleStateChangeEvent event(item ? item : const_cast<AccessibleNode*>(node), changed);
    QAccessible::updateAccessibility(&event);
    return;
  }
  QAccessibleEvent event(item ? item : const_cast<AccessibleNode*>(node), EventOf(inChange));
  QAccessible::updateAccessibility(&event);
}

}  // namespace lumui::ui
