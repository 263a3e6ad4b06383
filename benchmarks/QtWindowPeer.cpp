// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtWindowPeer.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QWidget>

class QtWindowPeer::Impl {
 public:
  static constexpr int kRows = 10;

  Impl() {
    auto* const grid = new QGridLayout(&mWindow);
    for (int row = 0; row < kRows; ++row) {
      grid->addWidget(new QPushButton(QStringLiteral("Button")), row, 0);
      grid->addWidget(new QLineEdit(QStringLiteral("Field")), row, 1);
      grid->addWidget(new QCheckBox(QStringLiteral("Check")), row, 2);
      auto* const popup = new QComboBox;
      popup->addItem(QStringLiteral("Popup"));
      grid->addWidget(popup, row, 3);
      grid->addWidget(new QSlider(Qt::Horizontal), row, 4);
    }
    mWindow.show();
    QApplication::processEvents();
  }

  QWidget mWindow;
  bool mDark = false;
};

QtWindowPeer::QtWindowPeer() : mImpl(std::make_unique<Impl>()) {}

QtWindowPeer::~QtWindowPeer() = default;

void QtWindowPeer::ChangePalette() {
  mImpl->mDark = !mImpl->mDark;
  QApplication::setPalette(QPalette(mImpl->mDark ? QColor(60, 62, 64) : QColor(230, 232, 234)));
}

void QtWindowPeer::Repaint() {
  QApplication::processEvents();
  mImpl->mWindow.repaint();
}
