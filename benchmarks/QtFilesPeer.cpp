// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtFilesPeer.h"

#include <QApplication>
#include <QFileSystemModel>
#include <QTreeView>

void ShowFolderInQt(const std::string& inFolder, int inFiles) {
  QFileSystemModel model;
  model.setOption(QFileSystemModel::DontWatchForChanges);
  QTreeView view;
  view.resize(500, 400);
  view.setUniformRowHeights(true);
  view.setModel(&model);
  view.show();
  QApplication::processEvents();
  const QString folder = QString::fromStdString(inFolder);
  view.setRootIndex(model.setRootPath(folder));
  while (model.rowCount(model.index(folder)) < inFiles)
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  view.viewport()->repaint();
}
