// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_Button.h"

#include <utility>

#include "controls/ButtonPeer.h"
#include "lumui/ui/OS_Window.h"

namespace lumui::controls {

namespace {

bool CanBeClicked(const ui::UI_Node& inNode) {
  for (const ui::UI_Node* node = &inNode; node; node = node->UI_GetParentNode()) {
    if (!node->UI_IsVisible() || node->UI_IsDisabled()) return false;
  }
  return true;
}

}  // namespace

QWidget* ButtonPeer::Connect(QAbstractButton* inWidget) {
  const auto button = [this] { return static_cast<UI_Button*>(GetNode()); };
  QObject::connect(inWidget, &QAbstractButton::pressed, inWidget,
                   [this, button] { ByUser([&] { button()->HandlePressed(); }); });
  QObject::connect(inWidget, &QAbstractButton::clicked, inWidget,
                   [this, button] { ByUser([&] { button()->HandleClicked(); }); });
  return inWidget;
}

UI_Button::UI_Button(std::unique_ptr<ui::NodePeer> inPeer)
    : UI_InteractiveControlView(std::move(inPeer)) {}

UI_Button::~UI_Button() = default;

void UI_Button::SetOptions(const ButtonOptions& inOptions) {
  mOptions = inOptions;
  ShowState();
}

void UI_Button::DoShowState() {
  auto* const widget = static_cast<QAbstractButton*>(GetPeer()->GetWidget());
  widget->setCheckable(!mOptions.springLoaded);
  widget->setChecked(GetDownState());
  const Qt::FocusPolicy wanted = mOptions.changeFocusOnClick ? Qt::StrongFocus : Qt::TabFocus;
  widget->setFocusPolicy(UI_WantsKeyboardFocus() ? wanted : Qt::NoFocus);
}

void UI_Button::Press() {
  if (!CanBeClicked(*this)) return;
  if (auto* const widget = static_cast<QAbstractButton*>(GetPeer()->GetWidget())) {
    widget->click();
    return;
  }
  if (!mOptions.springLoaded) SetDownStateByUser(!GetDownState());
  TellPressed();
}

// What is being typed counts first: whoever hears of the button reads it.
void UI_Button::TellPressed() {
  const ui::OS_Window* const window = UI_GetWindowNode();
  ui::UI_Node* const focus = window ? window->UI_GetFocusNode() : nullptr;
  auto* const control = dynamic_cast<UI_InteractiveControlView*>(focus);
  if (control && control != this) control->Commit();
  TellChanged(UI_InteractiveControlChangedMessage::kChanged, true);
}

void UI_Button::HandlePressed() {
  if (!mOptions.springLoaded || !mOptions.notificationOnMouseDown) return;
  TellPressed();
}

void UI_Button::HandleClicked() {
  if (mOptions.springLoaded && mOptions.notificationOnMouseDown) return;
  if (!mOptions.springLoaded) {
    SetDownStateByUser(static_cast<QAbstractButton*>(GetPeer()->GetWidget())->isChecked());
  }
  TellPressed();
}

}  // namespace lumui::controls
