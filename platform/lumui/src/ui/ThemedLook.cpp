// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/ThemedLook.h"

#include <QApplication>
#include <QPointer>
#include <QStyle>

#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "ui/ThemeStyle.h"

namespace lumui::ui {

using namespace themev5;

namespace {

// What stood before the theme's look, for as long as that look is in place. The application deletes
// the style with itself.
struct Replaced {
  QPointer<ThemeStyle> style;
  QString styleName;
  QPalette palette;
};

Replaced& Before() {
  static auto* const sReplaced = new Replaced;
  return *sReplaced;
}

// One role in its three groups; nobody tells an inactive window's controls by their colour.
void Set(QPalette& ioPalette, QPalette::ColorRole inRole, Color inColor, Color inDisabled) {
  const QColor color = ThemeColor(inColor);
  ioPalette.setColor(QPalette::Active, inRole, color);
  ioPalette.setColor(QPalette::Inactive, inRole, color);
  ioPalette.setColor(QPalette::Disabled, inRole, ThemeColor(inDisabled));
}

QPalette ControlPalette() {
  QPalette palette;
  Set(palette, QPalette::Window, kColor_PanelBackground, kColor_PanelBackground);
  Set(palette, QPalette::WindowText, kColor_Text, kColor_TextDisabled);
  Set(palette, QPalette::Base, kColor_FieldBackground, kColor_FieldBackgroundDisabled);
  Set(palette, QPalette::AlternateBase, kColor_ListBackgroundAlternate,
      kColor_ListBackgroundAlternate);
  Set(palette, QPalette::Text, kColor_FieldText, kColor_FieldTextDisabled);
  Set(palette, QPalette::PlaceholderText, kColor_FieldPlaceholder, kColor_FieldTextDisabled);
  Set(palette, QPalette::Button, kColor_ButtonBackground, kColor_ButtonBackgroundDisabled);
  Set(palette, QPalette::ButtonText, kColor_ButtonText, kColor_ButtonTextDisabled);
  Set(palette, QPalette::BrightText, kColor_ErrorText, kColor_TextDisabled);
  Set(palette, QPalette::Highlight, kColor_FieldSelection, kColor_ListRowSelectedInactive);
  Set(palette, QPalette::HighlightedText, kColor_FieldSelectionText, kColor_TextDisabled);
  Set(palette, QPalette::Link, kColor_LinkText, kColor_TextDisabled);
  Set(palette, QPalette::LinkVisited, kColor_LinkText, kColor_TextDisabled);
  Set(palette, QPalette::ToolTipBase, kColor_ToolTipBackground, kColor_ToolTipBackground);
  Set(palette, QPalette::ToolTipText, kColor_ToolTipText, kColor_ToolTipText);
  Set(palette, QPalette::Light, kColor_ButtonBackgroundHover, kColor_PanelBackground);
  Set(palette, QPalette::Midlight, kColor_ButtonBackground, kColor_PanelBackground);
  Set(palette, QPalette::Mid, kColor_Divider, kColor_Divider);
  Set(palette, QPalette::Dark, kColor_ButtonBorder, kColor_ButtonBorder);
  Set(palette, QPalette::Shadow, kColor_Shadow, kColor_Shadow);
  return palette;
}

QPalette ListPalette(QPalette inControls) {
  Set(inControls, QPalette::Base, kColor_ListBackground, kColor_FieldBackgroundDisabled);
  Set(inControls, QPalette::Text, kColor_ListText, kColor_TextDisabled);
  Set(inControls, QPalette::Highlight, kColor_ListRowSelected, kColor_ListRowSelectedInactive);
  Set(inControls, QPalette::HighlightedText, kColor_ListTextSelected, kColor_TextDisabled);
  Set(inControls, QPalette::Button, kColor_HeaderBackground, kColor_HeaderBackground);
  Set(inControls, QPalette::ButtonText, kColor_HeaderText, kColor_TextDisabled);
  return inControls;
}

QPalette MenuPalette(QPalette inControls) {
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
    Set(inControls, role, kColor_MenuBackground, kColor_MenuBackground);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    Set(inControls, role, kColor_MenuText, kColor_MenuTextDisabled);
  Set(inControls, QPalette::Highlight, kColor_MenuItemHover, kColor_MenuItemHover);
  Set(inControls, QPalette::HighlightedText, kColor_MenuTextHover, kColor_MenuTextDisabled);
  return inControls;
}

void RestoreLook() {
  Replaced& before = Before();
  if (!before.style) return;
  QApplication::setStyle(before.styleName);
  QApplication::setPalette(before.palette);
  before = {};
}

}  // namespace

void ApplyThemedLook() {
  if (qApp == nullptr) return;
  const auto theme = Theme::Get();
  if (!theme || !theme->HasColor(kColor_PanelBackground) || !theme->HasColor(kColor_ToolTipText)) {
    RestoreLook();
    return;
  }
  Replaced& before = Before();
  if (!before.style) {
    before.styleName = QApplication::style()->name();
    before.palette = QApplication::palette();
    before.style = new ThemeStyle;
    QApplication::setStyle(before.style);
  }
  const QPalette controls = ControlPalette();
  // The first takes away what the others say of before.
  QApplication::setPalette(controls);
  QApplication::setPalette(ListPalette(controls), "QAbstractItemView");
  QApplication::setPalette(MenuPalette(controls), "QMenu");
}

QPalette UnthemedPalette() {
  return Before().style ? Before().palette : QGuiApplication::palette();
}

}  // namespace lumui::ui
