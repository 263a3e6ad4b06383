// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/testing/Menus.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/RefCounted.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/OS_Window.h"
#include "ui/Menu.h"
#include "ui/MenuPeer.h"
#include "ui/WindowPeer.h"

namespace lumui::testing {

namespace {

QString TitleOf(const QAction& inAction) {
  const QString text = inAction.text().section(u'\t', 0, 0);
  QString title;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && i + 1 < text.size()) ++i;
    title += text[i];
  }
  return title;
}

QString Describe(const QAction& inAction) {
  if (inAction.isSeparator()) return QStringLiteral("---");
  const char* mark = "";
  if (inAction.isChecked()) mark = inAction.actionGroup() ? "(*)" : "*";
  return QLatin1String(inAction.isEnabled() ? "" : "~") + QLatin1String(mark) + inAction.text() +
         QLatin1String(inAction.menu() ? " >" : "");
}

QString Describe(const QWidget& inMenu) {
  QStringList items;
  for (const QAction* action : inMenu.actions())
    items += Describe(*action);
  return items.join(QStringLiteral(" | "));
}

[[noreturn]] void ThrowNoItem(const lumcore::UTF16String& inTitle, const QWidget* inMenu) {
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(
          "$$$/lumui/Error/NoMenuItem=No menu item \"@0\" can be chosen among: @1"),
      {inTitle, drawbot::FromQt(inMenu ? Describe(*inMenu) : QString())}));
}

QMenu* OpenPopup() {
  return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QAction& Find(const QWidget& inMenu, const lumcore::UTF16String& inTitle) {
  for (QAction* action : inMenu.actions()) {
    if (!action->isSeparator() && TitleOf(*action) == drawbot::ToQt(inTitle)) return *action;
  }
  ThrowNoItem(inTitle, &inMenu);
}

void Tap(ui::OS_Window& inWindow, unsigned inKey) {
  TapKey(inWindow, ui::KeyboardCode(inKey));
}

// Down and down until the item is lit, at most once around.
void Light(ui::OS_Window& inWindow, const lumcore::UTF16String& inTitle) {
  QMenu* const popup = OpenPopup();
  if (!popup) ThrowNoItem(inTitle, nullptr);
  const QAction& wanted = Find(*popup, inTitle);
  for (qsizetype i = 0; i <= popup->actions().size(); ++i) {
    if (popup->activeAction() == &wanted && wanted.isEnabled()) return;
    Tap(inWindow, ui::KeyboardCode::kDownArrow);
  }
  ThrowNoItem(inTitle, popup);
}

void ClickBar(ui::OS_Window& inWindow, const lumcore::UTF16String& inTitle) {
  const QMenuBar* const bar = static_cast<ui::WindowPeer*>(inWindow.GetPeer())->GetBar();
  if (!bar) ThrowNoItem(inTitle, nullptr);
  QAction& action = Find(*bar, inTitle);
  const QPoint at = bar->actionGeometry(&action).center();
  // The bar lies above the nodes.
  ClickMouse(inWindow,
             Position(static_cast<float>(at.x()),
                      static_cast<float>(at.y() - inWindow.GetPeer()->GetChromeHeight())));
  // A command that stands in the bar itself opens nothing.
  if (action.menu() && OpenPopup() != action.menu()) ThrowNoItem(inTitle, bar);
}

}  // namespace

void OpenMenu(ui::OS_Window& inWindow, const MenuPath& inPath) {
  for (const lumcore::UTF16String& title : inPath) {
    if (!OpenPopup()) {
      ClickBar(inWindow, title);
      continue;
    }
    Light(inWindow, title);
    const QMenu* const above = OpenPopup();
    Tap(inWindow, ui::KeyboardCode::kRightArrow);
    if (OpenPopup() == above) ThrowNoItem(title, above);
  }
}

void ChooseMenuItem(ui::OS_Window& inWindow, const MenuPath& inPath) {
  if (inPath.empty()) return;
  const lumcore::utility::StKeepAlive keepAlive(inWindow);
  if (inPath.size() == 1 && !OpenPopup()) return ClickBar(inWindow, inPath[0]);
  OpenMenu(inWindow, MenuPath(inPath.begin(), inPath.end() - 1));
  Light(inWindow, inPath.back());
  PressKey(inWindow, ui::KeyboardCode(ui::KeyboardCode::kReturn));
  // The command may have taken the window away.
  if (inWindow.UI_GetHandle()) ReleaseKey(inWindow, ui::KeyboardCode(ui::KeyboardCode::kReturn));
}

void CloseMenus(ui::OS_Window& inWindow) {
  while (const QMenu* const popup = OpenPopup()) {
    Tap(inWindow, ui::KeyboardCode::kEscape);
    if (OpenPopup() == popup) return;
  }
  // The bar keeps the keyboard, and the next arrow would open a menu again.
  const QMenuBar* const bar = static_cast<ui::WindowPeer*>(inWindow.GetPeer())->GetBar();
  if (bar && bar->activeAction()) Tap(inWindow, ui::KeyboardCode::kEscape);
}

lumcore::UTF16String MenuAsText(HMENU inMenu) {
  if (!inMenu)
    return OpenPopup() ? drawbot::FromQt(Describe(*OpenPopup())) : lumcore::UTF16String();
  ui::Menu* const menu = ui::FindMenu(inMenu);
  if (!menu) return lumcore::UTF16String();
  return drawbot::FromQt(Describe(ui::MenuPeer::Of(*menu).GetPopup()));
}

}  // namespace lumui::testing
