// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// A window of Qt's with as many menus, items and docks as the outliner's, and nothing behind them,
// from its start to its first painted window, where the process ends.

#include <unistd.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>

#include "start/FirstPaint.h"

namespace {

class Lines : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    for (int line = 0; line < 20; ++line)
      painter.drawText(20, 24 * line + 24, QStringLiteral("Line %1").arg(line));
  }
};

void AddMenu(QMenu& ioMenu, int inItems, int inSubMenus) {
  for (int item = 0; item < inItems; ++item)
    ioMenu.addAction(QStringLiteral("&Item %1\tCtrl+%1").arg(item))->setEnabled(item % 2 == 0);
  for (int sub = 0; sub < inSubMenus; ++sub)
    AddMenu(*ioMenu.addMenu(QStringLiteral("Items")), 4, 0);
}

void AddDock(QMainWindow& ioWindow, QWidget* inContent) {
  auto* const dock = new QDockWidget(QStringLiteral("Panel"));
  dock->setWidget(inContent);
  ioWindow.addDockWidget(Qt::LeftDockWidgetArea, dock);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint paint;
  application.installEventFilter(&paint);
  QMainWindow window;
  const struct {
    int items;
    int subMenus;
  } kMenus[] = {{10, 1}, {14, 0}, {7, 2}, {11, 0}, {1, 0}};
  for (const auto& menu : kMenus)
    AddMenu(*window.menuBar()->addMenu(QStringLiteral("&Menu")), menu.items, menu.subMenus);
  AddDock(window, new Lines);
  AddDock(window, new QPlainTextEdit);
  window.resize(960, 680);
  window.show();
  application.processEvents();
  ::_exit(paint.WasSeen() ? 0 : 1);
}
