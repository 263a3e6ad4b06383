// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_ScrollBar.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "controls/ScrollBarPeer.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/controls/UI_InteractiveControlChangedMessage.h"
#include "lumui/controls/UI_ScrollView.h"
#include "ui/EventGate.h"

namespace lumui::controls {

namespace {

// Leaves room below the limit of int for the page that Qt adds to the value.
constexpr double kLargestBarRange = 1 << 30;

// Qt's bar draws all of itself for each change of its slider, which takes several times as long as
// the slider alone. This one asks for drawing only from where the slider was seen last to where it
// is now, while nothing else of the bar can look different. And it is opaque whatever the style
// says, since it lies over the content, which would be drawn below it otherwise.
class BarWidget final : public ui::NodeWidgetT<QScrollBar> {
 public:
  using NodeWidgetT::NodeWidgetT;

 protected:
  void sliderChange(SliderChange inChange) override {
    const Look look = GetLook();
    const bool moved = inChange != SliderOrientationChange && look.ends == mSeen.ends &&
                       !style()->styleHint(QStyle::SH_ScrollBar_Transient, nullptr, this);
    if (!moved) return NodeWidgetT::sliderChange(inChange);
    if (look.slider != mSeen.slider) {
      // Styles may draw an edge or a shadow around it.
      update((look.slider | mSeen.slider).adjusted(-kAround, -kAround, kAround, kAround));
    }
  }
  bool event(QEvent* inEvent) override {
    const bool isTaken = NodeWidgetT::event(inEvent);
    // Styles have their say in these.
    if (inEvent->type() == QEvent::Polish || inEvent->type() == QEvent::StyleChange) {
      setAttribute(Qt::WA_OpaquePaintEvent);
    }
    return isTaken;
  }
  void paintEvent(QPaintEvent* inEvent) override {
    QPainter(this).fillRect(inEvent->rect(), palette().window());
    mSeen = GetLook();
    NodeWidgetT::paintEvent(inEvent);
  }

 private:
  // Units that a style may draw around the slider.
  static constexpr int kAround = 2;

  struct Look {
    QRect slider;
    // Whether it is at the one end and at the other: an arrow that leads nowhere may look so.
    std::pair<bool, bool> ends;
  };

  Look GetLook() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return {
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this),
        {sliderPosition() <= minimum(), sliderPosition() >= maximum()}};
  }

  Look mSeen;
};

}  // namespace

UI_ScrollBar::Peer::Peer(bool inHorizontal) : NodePeer(Kind::kNative), mHorizontal(inHorizontal) {}

QWidget* UI_ScrollBar::Peer::DoMakeWidget(QWidget* inParent) {
  auto* const bar = new BarWidget(*this, mHorizontal ? Qt::Horizontal : Qt::Vertical, inParent);
  bar->setContextMenuPolicy(Qt::NoContextMenu);
  QObject::connect(bar, &QScrollBar::actionTriggered, bar, [this](int inAction) {
    ui::EventGate::Get()->RunGuarded([&] { HandleAction(inAction); });
  });
  mBar = bar;
  Apply();
  return bar;
}

void UI_ScrollBar::Peer::ShowOffset(double inRange, double inOffset, double inViewed) {
  mRange = inRange;
  mOffset = inOffset;
  mViewed = inViewed;
  Apply();
}

void UI_ScrollBar::Peer::Apply() {
  if (!mBar) return;
  const lumcore::utility::StScopedValue<bool> showing(mShowing, true);
  const double factor = mRange > kLargestBarRange ? kLargestBarRange / mRange : 1;
  const auto toBar = [&](double inUnits) {
    return static_cast<int>(std::lround(inUnits * factor));
  };
  mBar->setRange(0, toBar(mRange));
  mBar->setPageStep(std::max(1, toBar(std::min(mViewed, kLargestBarRange / factor))));
  // Only what differs: while the user drags, the slider stays where the hand is.
  const int value = toBar(mOffset);
  if (mBar->value() != value || mBar->sliderPosition() != value) mBar->setValue(value);
}

// Qt has already moved the slider by a step of its own. Lines and pages are units of the content
// here, and the end of the bar is the exact end.
void UI_ScrollBar::Peer::HandleAction(int inAction) {
  if (mShowing) return;
  auto* const node = static_cast<UI_ScrollBar*>(GetNode());
  auto* const view = dynamic_cast<UI_ScrollView*>(node->UI_GetParentNode());
  if (!view) return;
  const lumcore::utility::StKeepAlive keepAlive(*view);
  const int position = mBar->sliderPosition();
  const int last = mBar->maximum();
  const double line = view->GetLineStep();
  const double page = std::max(line, mViewed - line);
  if (inAction != QAbstractSlider::SliderMove) {
    const lumcore::utility::StScopedValue<bool> showing(mShowing, true);
    mBar->setSliderPosition(mBar->value());
  }
  const bool x = mHorizontal;
  switch (inAction) {
    case QAbstractSlider::SliderSingleStepAdd:
      return view->ScrollByUser(x, line);
    case QAbstractSlider::SliderSingleStepSub:
      return view->ScrollByUser(x, -line);
    case QAbstractSlider::SliderPageStepAdd:
      return view->ScrollByUser(x, page);
    case QAbstractSlider::SliderPageStepSub:
      return view->ScrollByUser(x, -page);
    case QAbstractSlider::SliderToMinimum:
      return view->SetBarOffsetByUser(x, 0);
    case QAbstractSlider::SliderToMaximum:
      return view->SetBarOffsetByUser(x, mRange);
    case QAbstractSlider::SliderMove:
      return view->SetBarOffsetByUser(
          x, position >= last ? mRange : mRange * position / std::max(1, last));
    default:
      return;
  }
}

UI_ScrollBar::UI_ScrollBar(bool inHorizontal)
    : UI_SubView(std::make_unique<Peer>(inHorizontal)), mHorizontal(inHorizontal) {
  UI_SetNodeID("UI_ScrollBar");
}

UI_ScrollBar::~UI_ScrollBar() = default;

UI_ScrollBar::Peer* UI_ScrollBar::GetBarPeer() const {
  return static_cast<Peer*>(GetPeer());
}

float UI_ScrollBar::GetThickness() const {
  return static_cast<float>(QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void UI_ScrollBar::NotifyWhenChangedInteractively(
    const boost::shared_ptr<ChangedFunction>& inFunction) {
  LUM_INPUT_CONTRACT(inFunction != nullptr);
  auto& functions = mChangedFunctions;
  const auto cleared = [](const auto& inEntry) { return inEntry->empty(); };
  functions.erase(std::remove_if(functions.begin(), functions.end(), cleared), functions.end());
  functions.push_back(inFunction);
}

void UI_ScrollBar::NotifyChanged() {
  UI_InteractiveControlChangedMessage message(this);
  // From a copy, since a function may install another.
  const auto functions = mChangedFunctions;
  for (const auto& function : functions) {
    if (*function) (*function)(&message);
  }
}

bool UI_ScrollBar::UI_DoMouseWheel(ui::UI_Node* inNode, const ui::WheelEvent& inEvent) {
  ui::UI_Node* const view = UI_GetParentNode();
  return view && view->UI_DoMouseWheel(inNode, inEvent);
}

}  // namespace lumui::controls
