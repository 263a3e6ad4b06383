// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>

#include "lumui/ui/Accessible.h"

namespace lumui::ui {

class AccessibleNode;

// One item of a node, as readers see it. It asks the node anew each time.
class AccessibleEntry : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleEntry(QWidget* inWidget, const AccessibleID& inItem)
      : mWidget(inWidget), mItem(inItem) {}

  const AccessibleID& GetItem() const { return mItem; }

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* parent() const override;
  int childCount() const override;
  QAccessibleInterface* child(int inIndex) const override;
  int indexOfChild(const QAccessibleInterface* inChild) const override;
  QAccessibleInterface* childAt(int inX, int inY) const override;
  QString text(QAccessible::Text inKind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType inType) override;

  QStringList actionNames() const override;
  void doAction(const QString& inName) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  AccessibleNode* GetNode() const;
  bool Describe(AccessibleItem& outItem) const;

  const QPointer<QWidget> mWidget;
  const AccessibleID mItem;
};

}  // namespace lumui::ui
