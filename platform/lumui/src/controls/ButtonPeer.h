// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>

#include "controls/ControlPeer.h"
#include "lumui/controls/UI_Button.h"

namespace lumui::controls {

// What all buttons of the window system have in common.
class ButtonPeer : public ControlPeer {
 protected:
  QWidget* Connect(QAbstractButton* inWidget);
};

}  // namespace lumui::controls
