// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/MenuPeer.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QPointer>
#include <algorithm>

#include "drawbot/QtConvert.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/OS_Window.h"
#include "ui/EventGate.h"
#include "ui/QuitWatch.h"
#include "ui/WindowRegistry.h"

namespace lumui::ui {

namespace {

constexpr WPARAM kCommandBits = 0xFFFF;

// The last menu that was opened at a point, and on whose behalf.
HMENU sPopUpRoot = nullptr;
HWND sPopUpOwner = nullptr;
// Where a tracked menu leaves the id instead of sending it.
unsigned* sTrackedID = nullptr;

struct Owner {
  HWND window = nullptr;
  unsigned position = kMenuFailed;  // in the menu above
};

// The window whose menu it is part of: the active one where several have the same. Else the one
// that opened it at a point.
Owner OwnerOf(HMENU inMenu) {
  Owner owner;
  ForEachWindow([&](OS_Window& inWindow) {
    if (owner.window && !inWindow.UI_IsActive()) return;
    const unsigned position = FindBelow(inWindow.UI_GetMenu(), inMenu);
    if (position != kMenuFailed) owner = Owner{inWindow.UI_GetHandle(), position};
  });
  if (!owner.window) owner = Owner{sPopUpOwner, FindBelow(sPopUpRoot, inMenu)};
  if (owner.position == kMenuFailed) owner.window = nullptr;
  return owner;
}

void Send(HWND inWindow, unsigned inMessage, WPARAM inWParam, LPARAM inLParam) {
  if (!OS_Window::UI_GetWindow(inWindow)) return;
  OS_Event event(inWindow, inMessage, inWParam, inLParam);
  EventGate::Get()->PassToWindow(event);
}

void TellOpening(HMENU inMenu) {
  const Owner owner = OwnerOf(inMenu);
  Send(owner.window, kMessageInitMenuPopup, reinterpret_cast<WPARAM>(inMenu), owner.position);
}

// At once only where nothing of Qt's own stands on the stack that still uses it.
void LetGo(QObject* inObject) {
  const EventGate* const gate = EventGate::Get();
  if (gate && gate->IsInEvent()) {
    inObject->deleteLater();
  } else {
    delete inObject;
  }
}

}  // namespace

MenuPeer& MenuPeer::Of(Menu& ioMenu) {
  if (!ioMenu.peer) ioMenu.peer = std::make_unique<MenuPeer>(ioMenu);
  return *ioMenu.peer;
}

void MenuPeer::DropAll() {
  ForEachMenu([](Menu& ioMenu) { ioMenu.peer.reset(); });
}

MenuPeer::MenuPeer(Menu& ioMenu) : mMenu(ioMenu), mPopup(new QMenu) {
  QObject::connect(mPopup, &QMenu::aboutToShow, mPopup,
                   [handle = mMenu.handle] { TellOpening(handle); });
  for (unsigned i = 0; i < mMenu.items.size(); ++i)
    ItemInserted(i);
}

MenuPeer::~MenuPeer() {
  // It may still be on the stack, choosing.
  mPopup->disconnect();
  for (QAction* action : mActions)
    action->disconnect();
  mPopup->hide();
  for (const auto& bar : mBars) {
    if (bar) bar->clear();
  }
  LetGo(mPopup);
}

void MenuPeer::ItemInserted(unsigned inPosition) {
  auto* const action = new QAction(mPopup);
  QObject::connect(action, &QAction::triggered, mPopup, [this, action] { Choose(*action); });
  mActions.insert(mActions.begin() + inPosition, action);
  Write(*action, mMenu.items[inPosition]);
  InsertInto(*mPopup, inPosition);
  for (const auto& bar : mBars) {
    if (bar) InsertInto(*bar, inPosition);
  }
}

void MenuPeer::InsertInto(QWidget& ioWidget, unsigned inPosition) {
  QAction* const next = inPosition + 1 < mActions.size() ? mActions[inPosition + 1] : nullptr;
  ioWidget.insertAction(next, mActions[inPosition]);
}

void MenuPeer::ItemRemoved(unsigned inPosition) {
  QAction* const action = mActions[inPosition];
  mActions.erase(mActions.begin() + inPosition);
  // Qt forgets to close what an item has opened.
  if (QMenu* const open = action->menu()) open->hide();
  // Heard by the menu below, which may come to stand in another item.
  action->setMenu(nullptr);
  action->disconnect();
  for (QObject* object : action->associatedObjects()) {
    if (auto* const widget = qobject_cast<QWidget*>(object)) widget->removeAction(action);
  }
  LetGo(action);
}

void MenuPeer::ItemChanged(unsigned inPosition) {
  Write(*mActions[inPosition], mMenu.items[inPosition]);
}

// Qt's setters leave what is the same already alone, apart from menus.
void MenuPeer::Write(QAction& ioAction, const MenuItem& inItem) {
  ioAction.setText(drawbot::ToQt(inItem.text));
  ioAction.setSeparator(inItem.IsSeparator());
  ioAction.setEnabled(inItem.IsEnabled());
  // With a group of its own a mark is drawn as a dot.
  if (inItem.IsRadio() != (ioAction.actionGroup() != nullptr)) {
    delete ioAction.actionGroup();
    if (inItem.IsRadio()) (new QActionGroup(&ioAction))->addAction(&ioAction);
  }
  // An item that has a mark only now and then is drawn with an empty box where it may have one.
  ioAction.setCheckable(inItem.IsChecked());
  ioAction.setChecked(inItem.IsChecked());
  Menu* const sub = FindMenu(inItem.subMenu);
  QMenu* const popup = sub ? &Of(*sub).GetPopup() : nullptr;
  if (ioAction.menu() == popup) return;
  if (QMenu* const open = ioAction.menu()) open->hide();
  ioAction.setMenu(popup);
}

void MenuPeer::FillBar(QMenuBar& ioBar) {
  mBars.erase(std::remove(mBars.begin(), mBars.end(), nullptr), mBars.end());
  mBars.emplace_back(&ioBar);
  for (QAction* action : mActions)
    ioBar.addAction(action);
}

void MenuPeer::PopUp(const OS_Window& inWindow, const lumcore::geom::PointT<int>& inPoint) {
  sPopUpRoot = mMenu.handle;
  sPopUpOwner = inWindow.UI_GetHandle();
  mPopup->popup(QPoint(inPoint.x, inPoint.y));
}

unsigned MenuPeer::Track(const OS_Window& inWindow, const lumcore::geom::PointT<int>& inPoint) {
  unsigned id = 0;
  const lumcore::utility::StScopedValue<unsigned*> tracked(sTrackedID, &id);
  sPopUpRoot = mMenu.handle;
  sPopUpOwner = inWindow.UI_GetHandle();
  const QuitWatch watch([popup = QPointer<QMenu>(mPopup)] {
    if (popup) popup->close();
  });
  if (!watch.HasQuit()) mPopup->exec(QPoint(inPoint.x, inPoint.y));
  return id;
}

void MenuPeer::Choose(const QAction& inAction) {
  const auto found = std::find(mActions.begin(), mActions.end(), &inAction);
  if (found == mActions.end()) return;
  const auto position = static_cast<unsigned>(found - mActions.begin());
  const unsigned id = mMenu.items[position].id;
  // Qt has toggled the mark, which is nobody's but the command's.
  ItemChanged(position);
  if (sTrackedID) {
    *sTrackedID = id;
  } else {
    Send(OwnerOf(mMenu.handle).window, kMessageCommand, id & kCommandBits, 0);
  }
}

}  // namespace lumui::ui
