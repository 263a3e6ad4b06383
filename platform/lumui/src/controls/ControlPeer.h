// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyleOption>
#include <QWidget>
#include <functional>

#include "lumui/controls/UI_ControlView.h"
#include "ui/NodePeer.h"

namespace lumui::controls {

// The peer of a standard control: whoever derives from it makes the widget, and the control brings
// its state into it.
class ControlPeer : public ui::NodePeer {
 public:
  ControlPeer() : NodePeer(Kind::kNative) {}

  void ApplyToolTip() override;
  void ApplyWantsFocus() override;

 protected:
  UI_ControlView& GetControl() const;
  // Runs what follows from a doing of the user: guarded, and with the control held. Nothing if it
  // is the control itself that changes the widget.
  void ByUser(const std::function<void()>& inFunction);
  bool IsInDialog() const;

 private:
  QWidget* DoMakeWidget(QWidget* inParent) final;
  virtual QWidget* DoMakeControl(QWidget* inParent) = 0;
};

// Tells a widget to keep away the frame by which it shows that it has the keyboard.
constexpr const char* kNoFocusFrame = "noFocusFrame";

template <class Base, class Option>
class ControlWidgetT : public ui::NodeWidgetT<Base> {
 public:
  using ui::NodeWidgetT<Base>::NodeWidgetT;

 protected:
  void initStyleOption(Option* outOption) const override {
    Base::initStyleOption(outOption);
    if (this->property(kNoFocusFrame).toBool()) outOption->state &= ~QStyle::State_HasFocus;
  }
};

// Of a widget, in units; 0 for the size of the system's controls.
void ApplyFontSize(QWidget& ioWidget, float inSize);
// A text without the marks of mnemonics, and without the colon at its end.
QString PlainLabel(const QString& inText);

}  // namespace lumui::controls
