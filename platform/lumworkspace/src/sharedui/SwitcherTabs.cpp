// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "sharedui/SwitcherTabs.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyleOptionTab>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "ui/EventGate.h"

namespace lumworkspace::sharedui {

using lumcore::UTF16String;
using lumui::drawbot::FromQt;
using lumui::drawbot::ToQt;
using lumui::ui::EventGate;

SwitcherTabs::SwitcherTabs(Functions inFunctions) : mFunctions(std::move(inFunctions)) {
  setMovable(true);
  setExpanding(false);
  setDrawBase(false);
  // The keyboard stays where it is: it has the menu of workspaces.
  setFocusPolicy(Qt::NoFocus);
  setContextMenuPolicy(Qt::CustomContextMenu);
  setAccessibleName(ToQt(lumcore::config::Localizer::Get()->GetLocalizedString(
      "$$$/lumworkspace/Switcher/Name=Workspaces")));
  connect(this, &QTabBar::currentChanged, this, &SwitcherTabs::Choose);
  connect(this, &QTabBar::tabMoved, this,
          [this] { EventGate::Get()->RunGuarded([this] { mFunctions.keepPlaces(GetNames()); }); });
  connect(this, &QWidget::customContextMenuRequested, this, [this](const QPoint& inPoint) {
    const QPoint point = mapToGlobal(inPoint);
    EventGate::Get()->RunGuarded([&] { mFunctions.openMenu({point.x(), point.y()}); });
  });
}

bool SwitcherTabs::Show(const std::vector<UTF16String>& inNames, const UTF16String& inCurrent) {
  const QSignalBlocker blocker(this);
  const bool isChange = inNames != GetNames();
  if (isChange) {
    while (count() > 0)
      removeTab(0);
    for (const UTF16String& name : inNames) {
      const int tab = addTab(ToQt(name).replace(QLatin1Char('&'), QLatin1String("&&")));
      setTabData(tab, ToQt(name));
    }
    updateGeometry();
  }
  mCurrent = inCurrent;
  const auto current = std::find(inNames.begin(), inNames.end(), inCurrent);
  if (current != inNames.end()) setCurrentIndex(static_cast<int>(current - inNames.begin()));
  update();
  return isChange;
}

// As high as the menus beside them.
QSize SwitcherTabs::tabSizeHint(int inTab) const {
  constexpr int kHeightBesideText = 4;
  return {QTabBar::tabSizeHint(inTab).width(), fontMetrics().height() + kHeightBesideText};
}

// There is always a current tab, but not always one of the current workspace.
void SwitcherTabs::initStyleOption(QStyleOptionTab* outOption, int inTab) const {
  QTabBar::initStyleOption(outOption, inTab);
  outOption->state.setFlag(QStyle::State_Selected, FromQt(tabData(inTab).toString()) == mCurrent);
}

// The tab that is pressed may be the current one already, of a workspace that is not.
void SwitcherTabs::mousePressEvent(QMouseEvent* inEvent) {
  const int tab = tabAt(inEvent->position().toPoint());
  QTabBar::mousePressEvent(inEvent);
  if (inEvent->button() == Qt::LeftButton) Choose(tab);
}

// Nobody changes the whole window by a turn of the wheel.
void SwitcherTabs::wheelEvent(QWheelEvent* inEvent) {
  inEvent->ignore();
}

std::vector<UTF16String> SwitcherTabs::GetNames() const {
  std::vector<UTF16String> names;
  for (int tab = 0; tab < count(); ++tab)
    names.push_back(FromQt(tabData(tab).toString()));
  return names;
}

// A press says so twice where it changes the current tab.
void SwitcherTabs::Choose(int inTab) {
  if (inTab < 0) return;
  const bool isWaiting = mChosen.has_value();
  mChosen = FromQt(tabData(inTab).toString());
  if (isWaiting) return;
  const auto apply = [this] {
    const UTF16String name = *std::exchange(mChosen, std::nullopt);
    EventGate::Get()->RunGuarded([&] { mFunctions.apply(name); });
  };
  QMetaObject::invokeMethod(this, apply, Qt::QueuedConnection);
}

}  // namespace lumworkspace::sharedui
