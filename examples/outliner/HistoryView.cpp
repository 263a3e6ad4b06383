// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "HistoryView.h"

#include <algorithm>
#include <iterator>

#include "OutlineDocument.h"
#include "Palette.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/undo/Deed.h"

namespace outliner {

using lumcore::UTF16String;
using vek::undo::Deed;
using vek::undo::MultiUndoer;

namespace {

constexpr float kLineHeight = 26;
constexpr float kMargin = 12;
constexpr float kMarkSize = 7;
constexpr float kMarkRoom = 18;
constexpr float kTextSize = 13;

}  // namespace

HistoryView::HistoryView() : LinesView(kLineHeight), mFollower([this] { LinesChanged(); }) {
  UI_SetNodeID("history");
}

std::size_t HistoryView::CountLines() const {
  const OutlineDocument* const document = mFollower.GetDocument();
  const std::size_t deeds = document ? document->GetUndoer().size() : 0;
  return deeds > 0 ? deeds + 1 : 0;
}

std::size_t HistoryView::GetPresentLine() const {
  if (CountLines() == 0) return kNoLine;
  const MultiUndoer& undoer = mFollower.GetDocument()->GetUndoer();
  return undoer.size() - undoer.GetLevel();
}

const Deed* HistoryView::FindDeed(std::size_t inLine) const {
  if (inLine == 0) return nullptr;
  const MultiUndoer& undoer = mFollower.GetDocument()->GetUndoer();
  return *std::next(undoer.begin(), static_cast<std::ptrdiff_t>(inLine - 1));
}

UTF16String HistoryView::TextOfLine(std::size_t inLine) const {
  if (inLine == 0) return Localized("$$$/outliner/History/Before=Before these edits");
  const UTF16String name = FindDeed(inLine)->GetActionString();
  return name.empty() ? Localized("$$$/outliner/History/Nameless=Edit") : name;
}

UTF16String HistoryView::NameOfList() const {
  return Localized("$$$/outliner/Panel/History=History");
}

UTF16String HistoryView::TextOfNoLines() const {
  return Localized(mFollower.GetDocument() ? "$$$/outliner/History/None=Nothing has been edited yet"
                                           : "$$$/outliner/History/NoDocument=No outline is open");
}

UTF16String HistoryView::AsText() const {
  UTF16String text;
  for (std::size_t line = 0; line < CountLines(); ++line) {
    if (line == GetPresentLine()) text += '>';
    text += TextOfLine(line);
    text += '\n';
  }
  return text;
}

// What is being typed is an edit of its own by then, and has taken the place of all that was
// undone.
void HistoryView::Choose(std::size_t inLine, bool) {
  OutlineDocument& document = *mFollower.GetDocument();
  const Deed* const wanted = FindDeed(inLine);
  document.CommitTyping();
  MultiUndoer& undoer = document.GetUndoer();
  const auto found = std::find(undoer.begin(), undoer.end(), wanted);
  if (wanted && found == undoer.end()) return;
  const auto done = wanted ? std::distance(undoer.begin(), found) + 1 : 0;
  const int level = static_cast<int>(undoer.size()) - static_cast<int>(done);
  if (level != static_cast<int>(undoer.GetLevel())) undoer.GotoLevel(level);
}

void HistoryView::DrawLine(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inLine,
                           const Rect& inPlace, bool inIsLit) const {
  const std::size_t present = GetPresentLine();
  const bool isUndone = inLine > present;
  const auto ink = inIsLit    ? palette::SelectionInk()
                   : isUndone ? palette::DisabledInk()
                              : palette::RowInk();
  const float middle = inPlace.y + inPlace.height / 2;
  const float markMiddle = kMargin + kMarkSize / 2;
  // The edits on one string, up to where the outline is.
  const auto string = inIsLit ? ink : palette::Line();
  if (inLine > 0) ioDrawbot.FillRect({markMiddle - 0.5f, inPlace.y, 1, inPlace.height / 2}, string);
  if (inLine + 1 < CountLines()) {
    ioDrawbot.FillRect({markMiddle - 0.5f, middle, 1, inPlace.height / 2}, string);
  }
  const auto mark = inIsLit            ? ink
                    : inLine < present ? palette::FaintInk()
                    : isUndone         ? palette::DisabledInk()
                                       : palette::Accent();
  ioDrawbot.FillRect({kMargin, middle - kMarkSize / 2, kMarkSize, kMarkSize}, mark);
  const auto font =
      ioDrawbot.GetSupplier()->NewFont(nullptr, kTextSize,
                                       inLine == present ? lumui::drawbot::FontStyle::kBold
                                       : inLine == 0     ? lumui::drawbot::FontStyle::kItalic
                                                         : lumui::drawbot::FontStyle::kPlain);
  const float left = kMargin + kMarkRoom;
  ioDrawbot.DrawStringInRect(
      TextOfLine(inLine), font, ink,
      {left, inPlace.y, std::max(0.0f, inPlace.width - left - kMargin), inPlace.height});
}

}  // namespace outliner
