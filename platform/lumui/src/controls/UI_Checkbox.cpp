// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_Checkbox.h"

#include <QCheckBox>
#include <memory>

#include "controls/ButtonPeer.h"

namespace lumui::controls {

namespace {

class CheckboxPeer : public ButtonPeer {
  QWidget* DoMakeControl(QWidget* inParent) override {
    return Connect(new ButtonWidgetT<QCheckBox, QStyleOptionButton>(*this, inParent));
  }
};

}  // namespace

UI_Checkbox::UI_Checkbox() : UI_TextButton(std::make_unique<CheckboxPeer>()) {
  UI_SetNodeID("UI_Checkbox");
  ButtonOptions options;
  options.springLoaded = false;
  options.changeFocusOnClick = true;
  SetOptions(options);
}

UI_Checkbox::~UI_Checkbox() = default;

}  // namespace lumui::controls
