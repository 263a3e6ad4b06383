// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineRowLook.h"

#include <algorithm>
#include <cmath>

#include "AttributeEdits.h"
#include "MarkedText.h"
#include "OutlineEntries.h"
#include "Palette.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/hierarchyview/TreeListGeometry.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::drawbot::ColorRGBA;
using lumui::drawbot::Drawbot;
using lumui::drawbot::FontP;
using lumui::drawbot::FontStyle;
using lumui::drawbot::Path;

namespace {

constexpr float kRowHeight = vek::hierarchyview::TreeListGeometry::kRowHeight;
constexpr float kCellStart = 6;
constexpr float kCellEnd = 4;
constexpr float kBulletX = 11;  // from the left of the row to the middle
constexpr float kBulletRadius = 2;
constexpr float kNoteGap = 14;
constexpr float kLeastNote = 30;
constexpr float kNoteShare = 0.9f;  // of the size of the text

bool IsComment(const OutlineTree& inTree, const OutlineRow& inRow) {
  static const UTF16String kName = lumcore::utility::ToUTF16("isComment");
  const UTF16String* const value = inTree.FindAttribute(inRow, kName);
  return value && *value == lumcore::utility::ToUTF16("true");
}

}  // namespace

OutlineRowLook::OutlineRowLook(OutlineTreeList& inList,
                               const vek::hierarchyview::HierarchyEntryBase* inEntry,
                               const Point& inPosition)
    : BasicTreeListRowGeometry(&inList, inList.GetTrackView(), inEntry, inPosition, false, false),
      mList(inList) {}

bool OutlineRowLook::PointInSelectArea(const Point& inPoint) const {
  return inPoint.y >= GetPosition().y && inPoint.y < GetPosition().y + kRowHeight;
}

bool OutlineRowLook::RectOverlapsSelectArea(const Rect& inRect) const {
  return !inRect.IsEmpty() && inRect.y < GetPosition().y + kRowHeight &&
         GetPosition().y < inRect.Bottom();
}

OutlineRowLook::Rect OutlineRowLook::GetCellRect(unsigned short inColumn) const {
  const float start = mList.GetColumnStartLoc(inColumn);
  const float end = start + mList.GetColumnWidth(inColumn) - kCellEnd;
  const float left = inColumn == 0 ? GetRowRect().x : start + kCellStart;
  return Rect(left, GetPosition().y, std::max(0.0f, end - left), kRowHeight);
}

void OutlineRowLook::ImageNode(const vek::hierarchyview::HierarchyGeometry&, Drawbot& ioDrawbot,
                               const Rect& inRow, bool) {
  const auto* const entry = static_cast<const OutlineEntry*>(GetEntry());
  const OutlineRow* const row = entry->FindRow();
  if (!row) return;
  const bool isMarked = mList.IsLit(*entry);
  if (entry->Selected(mList.GetSelectionManager())) {
    ioDrawbot.FillRect(Rect(0, inRow.y, inRow.width + inRow.x, inRow.height),
                       isMarked ? palette::Selection() : palette::IdleSelection());
  }
  if (!entry->CanExpand()) DrawBullet(ioDrawbot, mList.GetMarkColor(*entry));
  for (unsigned short column = 0; column < mList.GetNumberOfColumns(); ++column)
    DrawCell(ioDrawbot, column, *row, isMarked);
}

void OutlineRowLook::DrawBullet(Drawbot& ioDrawbot, const ColorRGBA& inColor) const {
  Path bullet;
  bullet.AddEllipse({GetPosition().x + kBulletX - kBulletRadius,
                     GetPosition().y + kRowHeight / 2 - kBulletRadius, 2 * kBulletRadius,
                     2 * kBulletRadius});
  ioDrawbot.FillPath(bullet, inColor);
}

void OutlineRowLook::DrawCell(Drawbot& ioDrawbot, unsigned short inColumn, const OutlineRow& inRow,
                              bool inIsMarked) const {
  const unsigned int attribute = mList.GetColumnAttr(inColumn);
  const bool isText = attribute == OutlineColumns::kText;
  const bool isComment = isText && IsComment(mList.GetEntries()->GetTree(), inRow);
  UTF16String text = GetText(attribute);
  std::replace(text.begin(), text.end(), static_cast<unsigned short>('\n'),
               static_cast<unsigned short>(' '));
  // The branches of the first level are the headings of the outline.
  const bool isHeading = isText && inRow.GetChildCount() > 0 && !inRow.GetParent()->GetParent();
  const FontP font = isComment   ? mList.GetFontOf(FontStyle::kItalic)
                     : isHeading ? mList.GetFontOf(FontStyle::kBold)
                                 : GetFont();
  const ColorRGBA ink = inIsMarked             ? palette::SelectionInk()
                        : isText && !isComment ? palette::RowInk()
                                               : palette::FaintInk();
  const Rect cell = GetCellRect(inColumn);
  DrawText(ioDrawbot, text, font, ink, cell);
  if (!isText) return;
  const float used = font->MeasureWidth(text) + kNoteGap;
  DrawNote(ioDrawbot, inRow, Rect(cell.x + used, cell.y, cell.width - used, cell.height),
           inIsMarked);
}

// The note's first line, where there is room behind the text.
void OutlineRowLook::DrawNote(Drawbot& ioDrawbot, const OutlineRow& inRow, Rect inRest,
                              bool inIsMarked) const {
  const UTF16String* const note =
      mList.GetEntries()->GetTree().FindAttribute(inRow, attributes::Note());
  if (!note || note->empty() || inRest.width < kLeastNote) return;
  const FontP font = ioDrawbot.GetSupplier()->NewFont(
      nullptr, std::round(GetFont()->GetSize() * kNoteShare), FontStyle::kPlain);
  DrawText(ioDrawbot, note->substr(0, std::min(note->find('\n'), OutlineEntry::kMostShown)), font,
           inIsMarked ? palette::SelectionInk() : palette::FaintInk(), inRest);
}

// Marked where it was looked for, as far as the cell shows it.
void OutlineRowLook::DrawText(Drawbot& ioDrawbot, const UTF16String& inText, const FontP& inFont,
                              const ColorRGBA& inInk, const Rect& inCell) const {
  DrawMarkedText(ioDrawbot, inText, mList.GetEntries()->GetFilter(), inFont,
                 {inInk, palette::FoundText()}, inCell);
}

std::auto_ptr<vek::hierarchyview::TreeRowGeometry> OutlineRowLooks::ServeRowGeometry(
    const vek::hierarchyview::HierarchyEntryBase* inEntry,
    const lumcore::geom::PointT<float>& inPosition) {
  return std::auto_ptr<vek::hierarchyview::TreeRowGeometry>(
      new OutlineRowLook(mList, inEntry, inPosition));
}

}  // namespace outliner
