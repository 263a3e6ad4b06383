// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>
#include <functional>
#include <map>
#include <utility>

#include "lumui/ui/Accessible.h"

namespace lumui::ui {

class NodePeer;

// Once, before anybody asks.
void InstallAccessibleNodes();

// The widget of a node that tells of items: they come before the widgets of the nodes within.
class AccessibleNode : public QAccessibleWidget {
 public:
  AccessibleNode(QWidget& inWidget, NodePeer& inPeer);
  ~AccessibleNode() override;

  // Null for a widget of no such node.
  static AccessibleNode* Of(QWidget* inWidget);

  int childCount() const override;
  QAccessibleInterface* child(int inIndex) const override;
  int indexOfChild(const QAccessibleInterface* inChild) const override;
  QAccessibleInterface* childAt(int inX, int inY) const override;
  QAccessibleInterface* focusChild() const override;

  // Null for the node itself. Kept until it is gone, since readers keep them.
  QAccessibleInterface* InterfaceOf(const AccessibleID& inItem) const;
  void ForgetGone() const;

  // Null when the node has gone.
  AccessibleItems* GetItems() const;
  // No exception of the node's passes through Qt. False if it threw, or the node has gone.
  bool Ask(const std::function<void(AccessibleItems&)>& inQuestion) const;
  // On the screen.
  QRect PlaceOf(const AccessibleItem& inItem) const;
  bool IsSeen(const AccessibleItem& inItem) const;

 private:
  int ItemCount() const;

  mutable std::map<std::pair<const void*, std::uint64_t>, QAccessible::Id> mEntries;
};

}  // namespace lumui::ui
