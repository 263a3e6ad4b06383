// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "QtMenuPeer.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <array>
#include <vector>

class QtMenuPeer::Impl {
 public:
  explicit Impl(int inItems) {
    for (int i = 0; i < inItems; ++i) {
      mTexts.push_back({QStringLiteral("Item %1").arg(i), QStringLiteral("Again %1").arg(i)});
      mMenu.addAction(mTexts.back()[0]);
    }
    QObject::connect(&mMenu, &QMenu::aboutToShow, &mMenu, [this] { Update(); });
  }

  QMenu mMenu;
  unsigned mTurn = 0;

 private:
  void Update() {
    ++mTurn;
    const QList<QAction*> actions = mMenu.actions();
    for (int i = 0; i < actions.size(); ++i) {
      const auto at = static_cast<std::size_t>(i);
      const bool checked = i % 3 == 0;
      actions[i]->setText(mTexts[at][i % 10 == 0 ? mTurn % 2 : 0]);
      actions[i]->setEnabled(i % 2 == 0 || mTurn % 2 == 0);
      actions[i]->setCheckable(checked);
      actions[i]->setChecked(checked);
    }
  }

  std::vector<std::array<QString, 2>> mTexts;
};

QtMenuPeer::QtMenuPeer(int inItems) : mImpl(std::make_unique<Impl>(inItems)) {}

QtMenuPeer::~QtMenuPeer() = default;

void QtMenuPeer::Open() {
  mImpl->mMenu.popup(QPoint(20, 20));
}

unsigned QtMenuPeer::GetTurns() const {
  return mImpl->mTurn;
}

void CloseOpenPopup() {
  if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
}
