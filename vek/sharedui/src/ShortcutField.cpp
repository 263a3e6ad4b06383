// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ShortcutField.h"

#include "lumui/DrawUtils.h"
#include "lumui/drawbot/Brush.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/Font.h"
#include "lumui/drawbot/Pen.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "vek/sharedui/src/KeyCapture.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using Rect = lumcore::geom::RectT<float>;

namespace {

// In units.
constexpr float kRadius = 3;
constexpr float kTextMargin = 7;

}  // namespace

ShortcutField::ShortcutField() {
  UI_SetNodeID("ShortcutField");
  UI_SetWantsKeyboardFocus(true);
  UI_SetClaimsAllKeys(true);
}

ShortcutField::~ShortcutField() = default;

bool ShortcutField::GetKeyboardCode(KeyboardCode& outCode,
                                    lumcore::utility::Flags<unsigned char>& outModifiers) const {
  outCode = mCode;
  outModifiers = mModifiers;
  return mCode != KeyboardCode(0);
}

void ShortcutField::SetKeyboardCode(const KeyboardCode& inCode,
                                    const lumcore::utility::Flags<unsigned char>& inModifiers) {
  mCode = inCode;
  mModifiers = inModifiers;
  mText = uisupport::KeyCommandManager::GetShortcutString(inCode, inModifiers);
  UI_InvalidateAll();
}

void ShortcutField::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  using namespace lumui::ui::themev5;
  const auto theme = lumui::ui::Theme::Get();
  const auto color = [&](int inThemed, float inGrey) {
    return theme ? theme->GetColor(inThemed)
                 : lumui::drawbot::ColorRGBA(inGrey, inGrey, inGrey, 1.0f);
  };
  const bool enabled = UI_IsEnabled();
  const bool focus = enabled && UI_HasKeyboardFocus() && !GetSuppressFocusDrawing();
  const Rect& bounds = UI_GetLocalRectF();
  const float stroke = focus ? 2.0f : 1.0f;
  const Rect frame(stroke / 2, stroke / 2, bounds.width - stroke, bounds.height - stroke);
  const auto path = lumui::GetRoundedRectPath(frame, kRadius);
  inDrawbot->FillPath(path, lumui::drawbot::Brush(color(
                                enabled ? kColor_FieldBackground : kColor_FieldBackgroundDisabled,
                                enabled ? 1.0f : 0.9f)));
  const int edge = focus ? kColor_Focus : kColor_FieldBorder;
  inDrawbot->StrokePath(path, lumui::drawbot::Pen(color(edge, focus ? 0.2f : 0.6f), stroke));
  const auto font =
      UI_GetDrawSupplier()->NewFont(lumui::ui::GetFontName(0), lumui::ui::GetFontSize(0));
  inDrawbot->DrawStringInRect(mText, font,
                              color(enabled ? kColor_FieldText : kColor_FieldTextDisabled, 0),
                              Rect(kTextMargin, 0, bounds.width - 2 * kTextMargin, bounds.height));
}

bool ShortcutField::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode, const KeyboardEvent& inEvent) {
  if (inEvent.GetCode() == KeyboardCode(KeyboardCode::kTab)) {
    return UI_InteractiveControlView::UI_DoKeyboardEvent(inNode, inEvent);
  }
  if (!inEvent.IsActionKeyDown() || IsNoKeyToStore(inEvent)) return true;
  SetKeyboardCode(inEvent.GetCode(), inEvent.GetModKey());
  TellChanged(lumui::controls::UI_InteractiveControlChangedMessage::kChanged, true);
  return true;
}

bool ShortcutField::UI_DoMouseEvent(lumui::ui::UI_Node* inNode,
                                    const lumui::ui::MouseEvent& inEvent) {
  if (inEvent.GetAction() != lumui::ui::PointerEvent::kActionPress || !UI_IsEnabled()) {
    return UI_InteractiveControlView::UI_DoMouseEvent(inNode, inEvent);
  }
  UI_SetKeyboardFocus(lumui::ui::kFocusPointer);
  return true;
}

void ShortcutField::UI_FocusChanged(int inReason) {
  UI_InteractiveControlView::UI_FocusChanged(inReason);
  UI_InvalidateAll();
}

}  // namespace vek::sharedui
