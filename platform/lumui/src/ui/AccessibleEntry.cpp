// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/AccessibleEntry.h"

#include <QWindow>

#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "ui/AccessibleNode.h"

namespace lumui::ui {

namespace {

constexpr struct {
  AccessibleRole role;
  QAccessible::Role qt;
} kRoles[] = {
    {AccessibleRole::kTree, QAccessible::Tree},
    {AccessibleRole::kTreeItem, QAccessible::TreeItem},
    {AccessibleRole::kList, QAccessible::List},
    {AccessibleRole::kListItem, QAccessible::ListItem},
    {AccessibleRole::kTable, QAccessible::Table},
    {AccessibleRole::kRow, QAccessible::Row},
    {AccessibleRole::kCell, QAccessible::Cell},
    {AccessibleRole::kColumnHeader, QAccessible::ColumnHeader},
    {AccessibleRole::kGroup, QAccessible::Grouping},
    {AccessibleRole::kGraphic, QAccessible::Graphic},
    {AccessibleRole::kText, QAccessible::StaticText},
    {AccessibleRole::kButton, QAccessible::Button},
};

struct Action {
  AccessibleAction action;
  QString name;
};

// Qt has no names of its own for opening and closing: either toggles, as the state tells.
const Action* GetActions(std::size_t& outCount) {
  static const Action kActions[] = {
      {kAccessiblePress, QAccessibleActionInterface::pressAction()},
      {kAccessibleExpand, QStringLiteral("Expand")},
      {kAccessibleCollapse, QStringLiteral("Collapse")},
      {kAccessibleSelect, QStringLiteral("Select")},
      {kAccessibleShow, QStringLiteral("Show")},
  };
  outCount = std::size(kActions);
  return kActions;
}

QString LevelText(int inLevel) {
  using lumcore::utility::ReplaceInString;
  return drawbot::ToQt(ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString("$$$/lumui/Accessible/Level=Level @0"),
      {lumcore::utility::ToUTF16(std::to_string(inLevel))}));
}

}  // namespace

AccessibleNode* AccessibleEntry::GetNode() const {
  return AccessibleNode::Of(mWidget);
}

bool AccessibleEntry::Describe(AccessibleItem& outItem) const {
  bool described = false;
  const AccessibleNode* const node = GetNode();
  if (!node) return false;
  const bool asked =
      node->Ask([&](AccessibleItems& inItems) { described = inItems.Describe(mItem, outItem); });
  return asked && described;
}

bool AccessibleEntry::isValid() const {
  AccessibleItem item;
  return Describe(item);
}

QWindow* AccessibleEntry::window() const {
  return mWidget ? mWidget->window()->windowHandle() : nullptr;
}

QAccessibleInterface* AccessibleEntry::parent() const {
  AccessibleNode* const node = GetNode();
  if (!node) return nullptr;
  AccessibleID item;
  node->Ask([&](AccessibleItems& inItems) { item = inItems.GetParent(mItem); });
  return item.IsNode() ? node : node->InterfaceOf(item);
}

int AccessibleEntry::childCount() const {
  int count = 0;
  if (const AccessibleNode* const node = GetNode())
    node->Ask([&](AccessibleItems& inItems) { count = inItems.GetChildCount(mItem); });
  return count;
}

QAccessibleInterface* AccessibleEntry::child(int inIndex) const {
  const AccessibleNode* const node = GetNode();
  if (!node || inIndex < 0 || inIndex >= childCount()) return nullptr;
  AccessibleID item;
  node->Ask([&](AccessibleItems& inItems) { item = inItems.GetChild(mItem, inIndex); });
  return node->InterfaceOf(item);
}

int AccessibleEntry::indexOfChild(const QAccessibleInterface* inChild) const {
  const auto* const entry = dynamic_cast<const AccessibleEntry*>(inChild);
  const AccessibleNode* const node = GetNode();
  int index = -1;
  if (entry && node)
    node->Ask([&](AccessibleItems& inItems) { index = inItems.GetIndex(entry->mItem); });
  return index;
}

QAccessibleInterface* AccessibleEntry::childAt(int inX, int inY) const {
  for (int i = 0; i < childCount(); ++i) {
    QAccessibleInterface* const within = child(i);
    if (within && within->rect().contains(inX, inY)) return within;
  }
  return nullptr;
}

QString AccessibleEntry::text(QAccessible::Text inKind) const {
  AccessibleItem item;
  if (!Describe(item)) return QString();
  switch (inKind) {
    case QAccessible::Name:
      return drawbot::ToQt(item.name);
    case QAccessible::Value:
      return drawbot::ToQt(item.value);
    case QAccessible::Description:
      if (item.description.empty() && item.level > 0) return LevelText(item.level);
      return drawbot::ToQt(item.description);
    default:
      return QString();
  }
}

QRect AccessibleEntry::rect() const {
  AccessibleItem item;
  return Describe(item) ? GetNode()->PlaceOf(item) : QRect();
}

QAccessible::Role AccessibleEntry::role() const {
  AccessibleItem item;
  if (!Describe(item)) return QAccessible::NoRole;
  for (const auto& entry : kRoles)
    if (entry.role == item.role) return entry.qt;
  return QAccessible::NoRole;
}

QAccessible::State AccessibleEntry::state() const {
  QAccessible::State state;
  AccessibleItem item;
  if (!Describe(item)) {
    state.invalid = true;
    return state;
  }
  const auto has = [&](unsigned inState) { return (item.states & inState) != 0; };
  state.selectable = has(kAccessibleSelectable);
  state.selected = has(kAccessibleSelected);
  state.focusable = has(kAccessibleFocusable);
  state.focused = has(kAccessibleFocused) && mWidget->hasFocus();
  state.expandable = has(kAccessibleExpandable);
  state.expanded = has(kAccessibleExpanded);
  state.collapsed = has(kAccessibleExpandable) && !has(kAccessibleExpanded);
  state.disabled = has(kAccessibleDisabled) || !mWidget->isEnabled();
  state.offscreen = !GetNode()->IsSeen(item);
  state.invisible = !mWidget->isVisible();
  return state;
}

void* AccessibleEntry::interface_cast(QAccessible::InterfaceType inType) {
  return inType == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList AccessibleEntry::actionNames() const {
  QStringList names;
  AccessibleItem item;
  if (!Describe(item)) return names;
  std::size_t count = 0;
  const Action* const actions = GetActions(count);
  for (std::size_t i = 0; i < count; ++i)
    if ((item.actions & actions[i].action) != 0) names << actions[i].name;
  return names;
}

void AccessibleEntry::doAction(const QString& inName) {
  // What the action does may take this entry away.
  const AccessibleID id = mItem;
  const AccessibleNode* const node = GetNode();
  if (!node || !actionNames().contains(inName)) return;
  std::size_t count = 0;
  const Action* const actions = GetActions(count);
  for (std::size_t i = 0; i < count; ++i) {
    if (actions[i].name != inName) continue;
    const AccessibleAction action = actions[i].action;
    node->Ask([&](AccessibleItems& inItems) { inItems.Perform(id, action); });
    return;
  }
}

}  // namespace lumui::ui
