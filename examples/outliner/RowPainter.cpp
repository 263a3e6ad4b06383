// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "RowPainter.h"

#include <algorithm>
#include <cmath>

#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::drawbot::Drawbot;
using lumui::drawbot::FontP;
using lumui::drawbot::FontStyle;
using lumui::drawbot::Path;
using lumui::drawbot::Pen;

namespace {

constexpr float kTextSize = 14;
constexpr float kNoteSize = 12;
constexpr float kLeftMargin = 26;    // to the middle of the bullets of the first level
constexpr float kBulletToText = 14;  // from the middle of a bullet
constexpr float kRightMargin = 18;
constexpr float kNoteGap = 14;
constexpr float kLeafRadius = 2.5f;
constexpr float kBranchRadius = 3.5f;
constexpr float kFieldPadding = 6;
constexpr float kFieldRadius = 4;
constexpr float kSelectionInset = 6;
constexpr float kSelectionRadius = 5;
// Rows that lie deeper are indented no further: they would leave the window.
constexpr float kDeepestShare = 0.5f;

float BulletX(const RowLook& inLook, const RowPainter::Rect& inRow) {
  const float deepest = std::floor(inRow.width * kDeepestShare / RowPainter::kIndent);
  const float level = std::min(static_cast<float>(inLook.depth - 1), std::max(0.0f, deepest));
  return inRow.x + kLeftMargin + level * RowPainter::kIndent;
}

Path Circle(float inX, float inY, float inRadius) {
  Path path;
  path.AddEllipse({inX - inRadius, inY - inRadius, 2 * inRadius, 2 * inRadius});
  return path;
}

Path RoundedRect(const RowPainter::Rect& inRect, float inRadius) {
  Path path;
  path.AddRoundedRect(inRect, inRadius);
  return path;
}

UTF16String FirstLine(const UTF16String& inText) {
  return inText.substr(0, inText.find('\n'));
}

// On the band of a selection with the keyboard there is one ink for all.
lumui::drawbot::ColorRGBA InkOn(const RowLook& inLook, const lumui::drawbot::ColorRGBA& inColor) {
  return inLook.isSelected && inLook.isFocused ? palette::SelectionInk() : inColor;
}

}  // namespace

RowPainter::RowPainter() {
  const auto* supplier = lumui::drawbot::GetDefaultSupplier();
  mPlain = supplier->NewFont(nullptr, kTextSize);
  mBold = supplier->NewFont(nullptr, kTextSize, FontStyle::kBold);
  mItalic = supplier->NewFont(nullptr, kTextSize, FontStyle::kItalic);
  mSmall = supplier->NewFont(nullptr, kNoteSize);
}

void RowPainter::Draw(Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const {
  DrawGuides(inDrawbot, inRow, inLook);
  if (inLook.isSelected) {
    const auto fill = inLook.isFocused ? palette::Selection() : palette::IdleSelection();
    const Rect band(inRow.x + kSelectionInset, inRow.y, inRow.width - 2 * kSelectionInset,
                    inRow.height);
    inDrawbot.FillPath(RoundedRect(band, kSelectionRadius), fill);
  }
  DrawBullet(inDrawbot, inRow, inLook);
  if (inLook.edit) {
    DrawEdit(inDrawbot, inRow, inLook);
  } else {
    DrawTexts(inDrawbot, inRow, inLook);
  }
}

std::size_t RowPainter::FindCaret(const RowLook& inLook, const Rect& inRow, float inX) const {
  const UTF16String& text = inLook.edit ? inLook.edit->GetText() : *inLook.text;
  const auto& font = FontOf(inLook);
  const float left = TextLeft(inLook, inRow);
  const float scroll = inLook.edit ? EditScroll(inLook, inRow.Right() - kRightMargin - left) : 0.0f;
  const float wanted = inX - left + scroll;
  // The first place that lies behind the point; widths grow with the length.
  std::size_t low = 0;
  std::size_t high = text.size();
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    if (font->MeasureWidthOnce(text.substr(0, middle)) < wanted) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  if (low == 0) return 0;
  const float behind = font->MeasureWidthOnce(text.substr(0, low));
  const float before = font->MeasureWidthOnce(text.substr(0, low - 1));
  return wanted - before < behind - wanted ? low - 1 : low;
}

float RowPainter::TextLeft(const RowLook& inLook, const Rect& inRow) const {
  return BulletX(inLook, inRow) + kBulletToText;
}

float RowPainter::Baseline(const Rect& inRow) const {
  const float height = mPlain->GetAscent() + mPlain->GetDescent();
  return std::round(inRow.y + (inRow.height - height) / 2 + mPlain->GetAscent());
}

const FontP& RowPainter::FontOf(const RowLook& inLook) const {
  if (inLook.isComment) return mItalic;
  return inLook.depth == 1 && inLook.hasChildren ? mBold : mPlain;
}

void RowPainter::DrawGuides(Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const {
  const Pen pen(palette::Guide());
  for (float x = BulletX(inLook, inRow) - kIndent; x >= inRow.x + kLeftMargin; x -= kIndent) {
    const float line = std::floor(x) + 0.5f;
    inDrawbot.StrokeLine({line, inRow.y}, {line, inRow.Bottom()}, pen);
  }
}

void RowPainter::DrawBullet(Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const {
  const float x = BulletX(inLook, inRow) + 0.5f;
  const float y = inRow.y + inRow.height / 2;
  const float radius = inLook.hasChildren ? kBranchRadius : kLeafRadius;
  const auto color = inLook.hasChildren ? palette::Accent() : palette::LeafBullet();
  inDrawbot.FillPath(Circle(x, y, radius), InkOn(inLook, color));
}

void RowPainter::DrawTexts(Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const {
  const float left = TextLeft(inLook, inRow);
  const float right = inRow.Right() - kRightMargin;
  const float baseline = Baseline(inRow);
  const auto& font = FontOf(inLook);
  const auto ink = InkOn(inLook, inLook.isComment ? palette::FaintInk() : palette::RowInk());
  inDrawbot.DrawString(*inLook.text, font, ink, {left, baseline},
                       lumui::drawbot::TextTruncation::kEnd, right - left);
  if (!inLook.note) return;
  const float noteLeft = left + font->MeasureWidth(*inLook.text) + kNoteGap;
  if (noteLeft + kIndent > right) return;
  inDrawbot.DrawString(FirstLine(*inLook.note), mSmall, InkOn(inLook, palette::FaintInk()),
                       {noteLeft, baseline}, lumui::drawbot::TextTruncation::kEnd,
                       right - noteLeft);
}

// How far the edited text is moved to the left, so that the caret is to be seen.
float RowPainter::EditScroll(const RowLook& inLook, float inWidth) const {
  const UTF16String before = inLook.edit->GetText().substr(0, inLook.edit->GetCaret());
  return std::max(0.0f, FontOf(inLook)->MeasureWidthOnce(before) + 1 - inWidth);
}

void RowPainter::DrawEdit(Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const {
  const TextEdit& edit = *inLook.edit;
  const auto& font = FontOf(inLook);
  const float left = TextLeft(inLook, inRow);
  const float width = inRow.Right() - kRightMargin - left;
  const Rect field(left - kFieldPadding + 0.5f, inRow.y + 1.5f, width + kFieldPadding,
                   inRow.height - 3);
  inDrawbot.FillPath(RoundedRect(field, kFieldRadius), palette::EditField());
  inDrawbot.StrokePath(RoundedRect(field, kFieldRadius), Pen(palette::Accent()));

  const lumui::drawbot::StDrawbotState state(inDrawbot, field);
  const float scroll = EditScroll(inLook, width);
  inDrawbot.DrawString(edit.GetText(), font, palette::EditInk(), {left - scroll, Baseline(inRow)});
  const float caretX =
      std::floor(left - scroll +
                 font->MeasureWidthOnce(edit.GetText().substr(0, edit.GetCaret()))) +
      0.5f;
  inDrawbot.StrokeLine({caretX, inRow.y + 5}, {caretX, inRow.Bottom() - 5},
                       Pen(palette::Accent(), 1.5f));
}

}  // namespace outliner
