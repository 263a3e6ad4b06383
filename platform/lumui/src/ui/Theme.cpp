// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>
#include <algorithm>

#include "lumcore/utility/CallbackList.h"
#include "ui/ThemedLook.h"

namespace lumui::ui {

namespace {

// The positions of the dark and of the light family, as theme documents name them.
constexpr float kDark = 0.5f;
constexpr float kLight = 1.0f;

boost::intrusive_ptr<Theme>& Instance() {
  static boost::intrusive_ptr<Theme> sTheme;
  return sTheme;
}

lumcore::utility::CallbackList<>& Callbacks() {
  static auto* const sCallbacks = new lumcore::utility::CallbackList<>;
  return *sCallbacks;
}

}  // namespace

float GetDefaultBrightness() {
  if (qGuiApp == nullptr) return kDark;
  const QPalette palette = UnthemedPalette();
  const int text = palette.color(QPalette::WindowText).lightness();
  return text > palette.color(QPalette::Window).lightness() ? kDark : kLight;
}

Theme::Theme(FontSizeScheme inScheme) : mScheme(inScheme), mBrightness(GetDefaultBrightness()) {}

Theme::~Theme() = default;

void Theme::Initialize(Theme* inTheme) {
  Instance().reset(inTheme);
  ApplyThemedLook();
}

void Theme::Terminate() {
  Instance().reset();
  ApplyThemedLook();
}

boost::intrusive_ptr<Theme> Theme::Get() {
  return Instance();
}

void Theme::SetBrightness(float inBrightness) {
  if (!Instance()) return;
  // The comparison also turns what is no number into 0.
  const float brightness = inBrightness > 0.0f ? std::min(inBrightness, 1.0f) : 0.0f;
  Instance()->mBrightness = brightness;
  Instance()->DoSetBrightness(brightness);
}

float Theme::GetBrightness() {
  return Instance() ? Instance()->mBrightness : GetDefaultBrightness();
}

void Theme::NotifyThemeChanged() {
  ApplyThemedLook();
  Callbacks().CallEach();
  if (qApp == nullptr) return;
  const auto widgets = QApplication::allWidgets();
  for (QWidget* const widget : widgets)
    widget->update();
}

void Theme::AddThemeChangedCallback(const ChangeCallback& inCallback) {
  Callbacks().Add(inCallback);
}

void Theme::RemoveThemeChangedCallback(const ChangeCallback& inCallback) {
  Callbacks().Remove(inCallback);
}

}  // namespace lumui::ui
