// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QShortcutEvent>

#include "controls/ControlPeer.h"
#include "lumui/controls/UI_Button.h"

namespace lumui::controls {

// What all buttons of the window system have in common.
class ButtonPeer : public ControlPeer {
 protected:
  QWidget* Connect(QAbstractButton* inWidget);
};

// A button whose mnemonic clicks at once: Qt's would show it down for a while first.
template <class Base, class Option>
class ButtonWidgetT : public ControlWidgetT<Base, Option> {
 public:
  using ControlWidgetT<Base, Option>::ControlWidgetT;

 protected:
  bool event(QEvent* inEvent) override {
    if (inEvent->type() != QEvent::Shortcut ||
        static_cast<QShortcutEvent*>(inEvent)->isAmbiguous()) {
      return ControlWidgetT<Base, Option>::event(inEvent);
    }
    this->click();
    return true;
  }
};

}  // namespace lumui::controls
