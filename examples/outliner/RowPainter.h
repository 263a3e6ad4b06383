// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "TextEdit.h"
#include "lumcore/Strings.h"
#include "lumcore/geom/Rect.h"
#include "lumui/drawbot/Font.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace outliner {

// What a row looks like: everything that the painter needs, and nothing of where it comes from.
struct RowLook {
  const lumcore::UTF16String* text = nullptr;
  const lumcore::UTF16String* note = nullptr;  // null for none
  const TextEdit* edit = nullptr;              // in place of the text, while it is typed
  std::size_t depth = 1;
  bool hasChildren = false;
  bool isComment = false;
  bool isSelected = false;
  bool isFocused = false;
};

// Draws one row and knows its measures; all are in units of the content, from the row's own left
// edge. It holds the fonts.
class RowPainter {
 public:
  using Rect = lumcore::geom::RectT<float>;

  static constexpr float kRowHeight = 24;
  static constexpr float kIndent = 22;

  // Needs a running application object, for the fonts.
  RowPainter();

  void Draw(lumui::drawbot::Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const;
  // The place of the caret that is nearest to a point of the row; the row shows the edited text.
  std::size_t FindCaret(const RowLook& inLook, const Rect& inRow, float inX) const;

 private:
  float TextLeft(const RowLook& inLook, const Rect& inRow) const;
  float Baseline(const Rect& inRow) const;
  const lumui::drawbot::FontP& FontOf(const RowLook& inLook) const;
  void DrawGuides(lumui::drawbot::Drawbot& inDrawbot, const Rect& inRow,
                  const RowLook& inLook) const;
  void DrawBullet(lumui::drawbot::Drawbot& inDrawbot, const Rect& inRow,
                  const RowLook& inLook) const;
  void DrawTexts(lumui::drawbot::Drawbot& inDrawbot, const Rect& inRow,
                 const RowLook& inLook) const;
  void DrawEdit(lumui::drawbot::Drawbot& inDrawbot, const Rect& inRow, const RowLook& inLook) const;
  float EditScroll(const RowLook& inLook, float inWidth) const;

  lumui::drawbot::FontP mPlain;
  lumui::drawbot::FontP mBold;
  lumui::drawbot::FontP mItalic;
  lumui::drawbot::FontP mSmall;
};

}  // namespace outliner
