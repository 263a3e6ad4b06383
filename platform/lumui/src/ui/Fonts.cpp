// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <string>

namespace lumui::ui {

namespace {

constexpr float kInterfaceFontSize = 12.0f;  // units
// An alias that every font configuration answers; it stands in until an application object runs.
constexpr const char* kFallbackFamily = "Sans Serif";

}  // namespace

const char* GetFontName(int /*inFont*/) {
  if (qGuiApp == nullptr) return kFallbackFamily;
  static const std::string sFamily =
      QFontInfo(QFontDatabase::systemFont(QFontDatabase::GeneralFont)).family().toStdString();
  return sFamily.empty() ? kFallbackFamily : sFamily.c_str();
}

float GetFontSize(int /*inFont*/) {
  return kInterfaceFontSize;
}

}  // namespace lumui::ui
