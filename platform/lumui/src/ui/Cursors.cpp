// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Cursors.h"

#include <QGuiApplication>

#include "lumui/ui/UI_NodeManager.h"

namespace lumui::ui {

namespace {

CursorShape ShapeOf(int inCursor) {
  switch (inCursor) {
    case kCursorBusy:
      return CursorShape::kWait;
    case kCursorColumnResize:
    case kCursorColumnEdge:
      return CursorShape::kResizeHorizontal;
    case kCursorColumnMove:
      return CursorShape::kClosedHand;
    default:
      return CursorShape::kArrow;
  }
}

}  // namespace

void SetCursorByID(int inCursor) {
  if (UI_NodeManager* const manager = UI_NodeManager::Get(false))
    manager->SetCursor(ShapeOf(inCursor));
}

StBusyCursor::StBusyCursor() : mIsShown(qobject_cast<QGuiApplication*>(qApp) != nullptr) {
  if (mIsShown) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

StBusyCursor::~StBusyCursor() {
  if (mIsShown && qobject_cast<QGuiApplication*>(qApp)) QGuiApplication::restoreOverrideCursor();
}

}  // namespace lumui::ui
