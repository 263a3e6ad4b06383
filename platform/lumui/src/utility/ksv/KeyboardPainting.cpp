// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "lumui/DrawUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/utility/ksv/KeyboardView.h"
#include "utility/ksv/KeyboardColors.h"

namespace lumui::utility::ksv {

namespace {

using drawbot::ColorRGBA;
using lumcore::UTF16String;
using lumcore::geom::RectT;
namespace colors = ui::themev5;

// In units.
constexpr float kGap = 1.5f;  // between a key's place and its edge
constexpr float kRadius = 4;
constexpr float kMargin = 4;  // between a key's edge and its texts
constexpr float kNameMargin = 2;

// Of the pitch; the limits are in units.
constexpr float kCapSize = 0.25f;
constexpr float kNameSize = 0.19f;
constexpr float kLeastText = 7;
constexpr float kMostCap = 15;
constexpr float kMostName = 11;

// How much of the colour of its use a key has.
constexpr float kTint = 0.22f;
constexpr float kHoverTint = 0.1f;

RectT<float> Inset(const RectT<float>& inRect, float inBy) {
  return RectT<float>(inRect.x + inBy, inRect.y + inBy, inRect.width - 2 * inBy,
                      inRect.height - 2 * inBy);
}

// In two lines, broken at a blank; what is too long for its line is shortened when it is drawn.
struct Lines {
  UTF16String first;
  UTF16String second;
};

Lines Broken(const UTF16String& inText, const drawbot::FontP& inFont, float inWidth) {
  if (inFont->MeasureWidth(inText) <= inWidth) return {inText, UTF16String()};
  std::size_t at = UTF16String::npos;
  for (std::size_t i = inText.find(' '); i != UTF16String::npos; i = inText.find(' ', i + 1)) {
    if (at != UTF16String::npos && inFont->MeasureWidth(inText.substr(0, i)) > inWidth) break;
    at = i;
  }
  if (at == UTF16String::npos) return {inText, UTF16String()};
  return {inText.substr(0, at), inText.substr(at + 1)};
}

}  // namespace

void KeyboardView::UI_Draw(drawbot::Drawbot* inDrawbot) const {
  const RectT<float> damage = inDrawbot->GetClipBounds();
  for (std::size_t i = 0; i < mKeys.size(); ++i) {
    if (Placed(mKeys[i].rect.Join(mKeys[i].wing)).Intersects(damage)) DrawKey(*inDrawbot, i);
  }
}

void KeyboardView::DrawKey(drawbot::Drawbot& ioDrawbot, std::size_t inKey) const {
  const KeyShape& key = mKeys[inKey];
  const KeyUse& use = mUses[inKey];
  const bool dumb = key.code == ui::KeyboardCode();
  const bool on = !key.modifier.IsEmpty() && GetModifiers().Has(key.modifier.GetBits());
  const ColorRGBA accent = ThemeColor(colors::kColor_AccentButtonBackground, 0.4f);

  ColorRGBA surface = ThemeColor(
      dumb ? colors::kColor_ButtonBackgroundDisabled : colors::kColor_ButtonBackground, 0.95f);
  if (on) surface = accent;
  if (use.command != 0) {
    const ColorRGBA tint =
        use.isProtected ? ThemeColor(colors::kColor_WarningBackground, 0.7f) : accent;
    surface = Mixed(surface, tint, kTint);
  }
  const ColorRGBA text = ThemeColor(on     ? colors::kColor_AccentButtonText
                                    : dumb ? colors::kColor_TextSecondary
                                           : colors::kColor_ButtonText,
                                    on ? 1.0f : 0.1f);
  if (mHovered == inKey) surface = Mixed(surface, text, kHoverTint);

  // A high Enter is two rectangles in one outline: the edge's colour first, the surface over it.
  ColorRGBA edge = ThemeColor(colors::kColor_ButtonBorder, 0.6f);
  float edgeWidth = 1;
  if (mSelected == inKey || mDrop == inKey) {
    edge = ThemeColor(mDrop == inKey ? colors::kColor_DropTarget : colors::kColor_Focus, 0.2f);
    edgeWidth = mDrop == inKey || UI_HasKeyboardFocus() ? 3 : 2;
  }
  const RectT<float> body = Inset(Placed(key.rect), kGap);
  const RectT<float> wing = Inset(Placed(key.wing), kGap);
  const auto fill = [&](const ColorRGBA& inColor, float inInset) {
    for (const RectT<float>& part : {body, wing}) {
      if (part.IsEmpty()) continue;
      ioDrawbot.FillPath(GetRoundedRectPath(Inset(part, inInset), kRadius - inInset / 2), inColor);
    }
  };
  fill(edge, 0);
  fill(surface, edgeWidth);

  const float pitch = GetPitch();
  const drawbot::FontP font =
      ioDrawbot.GetSupplier()->NewFont(nullptr, std::clamp(pitch * kCapSize, kLeastText, kMostCap));
  const float line = font->GetLineHeight();
  const RectT<float> cap(body.x + kMargin, body.y + kMargin - 1, body.width - 2 * kMargin, line);
  ioDrawbot.DrawStringInRect(key.cap, font, text, cap);
  if (use.command != 0) DrawUse(ioDrawbot, body, cap.Bottom(), use);
}

void KeyboardView::DrawUse(drawbot::Drawbot& ioDrawbot, const RectT<float>& inRect,
                           float inCapBottom, const KeyUse& inUse) const {
  const auto found = mCommands.find(inUse.command);
  if (found == mCommands.end()) return;
  const float pitch = GetPitch();
  const drawbot::FontP font = ioDrawbot.GetSupplier()->NewFont(
      nullptr, std::clamp(pitch * kNameSize, kLeastText, kMostName));
  const float line = font->GetAscent() + font->GetDescent();
  const float width = inRect.width - 2 * (kMargin + kNameMargin) + 4;
  // Small keys have room for one line below the cap.
  const bool roomForTwo = inRect.height >= inCapBottom - inRect.y + 2 * line + 4;
  const Lines lines = roomForTwo ? Broken(found->second.name, font, width)
                                 : Lines{found->second.name, lumcore::UTF16String()};
  const float height = (roomForTwo ? 2 : 1) * line + 2;
  const RectT<float> plate(inRect.x + 3, inRect.Bottom() - height - 3, inRect.width - 6, height);
  ioDrawbot.FillPath(GetRoundedRectPath(plate, kRadius - 1),
                     inUse.isProtected ? ThemeColor(colors::kColor_WarningBackground, 0.7f)
                                       : ThemeColor(colors::kColor_AccentButtonBackground, 0.4f));
  const ColorRGBA text = inUse.isProtected ? ThemeColor(colors::kColor_WarningText, 0)
                                           : ThemeColor(colors::kColor_AccentButtonText, 1);
  const bool one = lines.second.empty();
  const RectT<float> first(plate.x + kNameMargin, plate.y + (one ? (height - line) / 2 : 1),
                           plate.width - 2 * kNameMargin, line);
  ioDrawbot.DrawStringInRect(lines.first, font, text, first, drawbot::TextAlignment::kCenter);
  if (one) return;
  const RectT<float> second(first.x, first.y + line, first.width, line);
  ioDrawbot.DrawStringInRect(lines.second, font, text, second, drawbot::TextAlignment::kCenter);
}

}  // namespace lumui::utility::ksv
