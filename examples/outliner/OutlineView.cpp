// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineView.h"

#include <algorithm>
#include <cmath>
#include <list>
#include <vector>

#include "OutlineDocument.h"
#include "Palette.h"
#include "RowEditor.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/PointerEvent.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::ui::KeyboardEvent;
using lumui::ui::MouseEvent;

namespace {

constexpr float kMargin = 8;  // above the first row and below the last one
constexpr float kHintSize = 14;
// A message about more rows than this repaints everything, which is cheaper than to find each.
constexpr std::size_t kMostSingleRows = 64;

const UTF16String& NoteName() {
  static const UTF16String sName = lumcore::utility::ToUTF16("_note");
  return sName;
}

const UTF16String& CommentName() {
  static const UTF16String sName = lumcore::utility::ToUTF16("isComment");
  return sName;
}

}  // namespace

OutlineView::OutlineView(OutlineDocument& inDocument)
    : mDocument(&inDocument), mEditor(&inDocument.GetEditor()) {
  inDocument.GetSelection().GetSelectionChangeNotifier()->AddListener(this);
  inDocument.GetUndoer().GetItemsChangedNotifier()->AddListener(this);
}

void OutlineView::Detach() {
  if (!mDocument) return;
  mDocument->GetSelection().GetSelectionChangeNotifier()->RemoveListener(this);
  mDocument->GetUndoer().GetItemsChangedNotifier()->RemoveListener(this);
  mDocument = nullptr;
  mEditor = nullptr;
}

void OutlineView::SetScrollView(lumui::controls::UI_ScrollView* inScrollView) {
  mScrollView = inScrollView;
  mScrollView->SetLineStep(RowPainter::kRowHeight);
  UpdateContentSize();
}

void OutlineView::ShowRow(const OutlineRow& inRow) {
  if (!mScrollView || !mDocument) return;
  Rect rect = RectOfLine(mDocument->GetTree().GetLine(inRow));
  rect.y -= kMargin;
  rect.height += 2 * kMargin;
  mScrollView->ScrollIntoView(Rect(0, rect.y, 1, rect.height), false);
}

void OutlineView::EditorChanged() {
  UI_InvalidateAll();
}

void OutlineView::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const Rect clip = inDrawbot->GetClipBounds();
  inDrawbot->FillRect(clip, palette::Paper());
  if (!mDocument || clip.IsEmpty()) return;
  const auto& lines = mDocument->GetTree().GetLines();
  if (lines.empty()) {
    const auto font = inDrawbot->GetSupplier()->NewFont(nullptr, kHintSize);
    const auto hint = lumcore::config::Localizer::Get()->GetLocalizedString(
        "$$$/outliner/View/Empty=Type the first row of your outline");
    inDrawbot->DrawStringInRect(hint, font, palette::FaintInk(),
                                Rect(0, kMargin, UI_GetLocalRectF().width, 4 * kMargin),
                                lumui::drawbot::TextAlignment::kCenter);
    return;
  }
  const auto lineAt = [&](float inY) {
    const float line = std::floor((inY - kMargin) / RowPainter::kRowHeight);
    return static_cast<std::size_t>(std::max(0.0f, line));
  };
  const std::size_t end = std::min(lines.size(), lineAt(clip.Bottom()) + 1);
  for (std::size_t line = lineAt(clip.y); line < end; ++line) {
    mPainter.Draw(*inDrawbot, RectOfLine(line), LookOf(*lines[line]));
  }
}

RowLook OutlineView::LookOf(const OutlineRow& inRow) const {
  const OutlineTree& tree = mDocument->GetTree();
  RowLook look;
  look.text = &inRow.GetText();
  look.note = tree.FindAttribute(inRow, NoteName());
  if (look.note && look.note->empty()) look.note = nullptr;
  if (mEditor->IsEditing(inRow)) look.edit = &mEditor->GetEdit();
  look.depth = inRow.GetDepth();
  look.hasChildren = inRow.GetChildCount() > 0;
  const UTF16String* comment = tree.FindAttribute(inRow, CommentName());
  look.isComment = comment && *comment == lumcore::utility::ToUTF16("true");
  look.isSelected = mDocument->IsSelected(inRow);
  look.isFocused = UI_HasKeyboardFocus();
  return look;
}

OutlineView::Rect OutlineView::RectOfLine(std::size_t inLine) const {
  const float width =
      mScrollView ? mScrollView->GetViewedContentRectF().width : UI_GetLocalRectF().width;
  return Rect(0, kMargin + static_cast<float>(inLine) * RowPainter::kRowHeight, width,
              RowPainter::kRowHeight);
}

OutlineRow* OutlineView::RowAt(float inY) const {
  const auto& lines = mDocument->GetTree().GetLines();
  const float line = std::floor((inY - kMargin) / RowPainter::kRowHeight);
  if (line < 0 || line >= static_cast<float>(lines.size())) return nullptr;
  return lines[static_cast<std::size_t>(line)];
}

bool OutlineView::UI_DoMouseEvent(lumui::ui::UI_Node*, const MouseEvent& inEvent) {
  if (inEvent.GetAction() != MouseEvent::kActionPress || !mDocument) return false;
  const bool isRight = inEvent.IsButton(MouseEvent::kRightButton);
  if (!isRight && !inEvent.IsButton(MouseEvent::kLeftButton)) return false;
  UI_SetKeyboardFocus(lumui::ui::kFocusPointer);
  if (isRight) {
    OpenMenu(inEvent);
  } else {
    Press(inEvent);
  }
  return true;
}

// A row that is selected already stays so with all others: the menu is for them together.
void OutlineView::OpenMenu(const MouseEvent& inEvent) {
  mDocument->CommitTyping();
  OutlineRow* const row = RowAt(inEvent.GetPosition().y);
  if (row && !mDocument->IsSelected(*row)) mDocument->SelectRows({row});
  if (!mOpenMenu) return;
  lumcore::geom::PointT<int> place(static_cast<int>(inEvent.GetPosition().x),
                                   static_cast<int>(inEvent.GetPosition().y));
  if (mScrollView) place.y -= static_cast<int>(mScrollView->GetOffset().y);
  UI_LocalToGlobal(place);
  UI_GetWindowNode()->UI_WindowToScreen(place);
  mOpenMenu(place);
}

void OutlineView::Press(const MouseEvent& inEvent) {
  OutlineRow* row = RowAt(inEvent.GetPosition().y);
  if (!row) {
    mDocument->CommitTyping();
    if (inEvent.GetModKey().IsEmpty()) mDocument->SelectRows({});
    return;
  }
  const bool isPlain = inEvent.GetModKey().IsEmpty();
  const auto placeCaret = [&] {
    const Rect rect = RectOfLine(mDocument->GetTree().GetLine(*row));
    mEditor->SetCaret(mPainter.FindCaret(LookOf(*row), rect, inEvent.GetPosition().x));
  };
  if (isPlain && mEditor->IsEditing(*row)) {
    placeCaret();
  } else if (isPlain && inEvent.GetClickCount() == 2) {
    mEditor->Begin(*row);
    placeCaret();
  } else {
    // Before the selection changes: what is committed selects its own row.
    mDocument->CommitTyping();
    SelectWithMouse(*row, inEvent.GetModKey());
  }
}

void OutlineView::SelectWithMouse(OutlineRow& inRow, lumui::ui::ModifierKeys inModifiers) {
  const lumcore::utility::StScopedValue<bool> selecting(mIsSelecting, true);
  const auto& tree = mDocument->GetTree();
  if (inModifiers.Has(lumui::ui::kModShift)) {
    const auto selected = mDocument->GetSelectedRows();
    const OutlineRow* anchor = tree.FindRow(mAnchor);
    if (!anchor || mAnchor == 0) anchor = selected.empty() ? &inRow : selected.front();
    mAnchor = anchor->GetId();
    const std::size_t from = tree.GetLine(*anchor);
    const std::size_t to = tree.GetLine(inRow);
    const auto first = tree.GetLines().begin();
    mDocument->SelectRows({first + static_cast<std::ptrdiff_t>(std::min(from, to)),
                           first + static_cast<std::ptrdiff_t>(std::max(from, to)) + 1});
    return;
  }
  mAnchor = inRow.GetId();
  if (inModifiers.Has(lumui::ui::kModCommand)) {
    mDocument->GetSelection().ToggleSelectables({&inRow}, vek::selection::eSendMessages);
  } else {
    mDocument->SelectRows({&inRow});
  }
}

bool OutlineView::UI_DoKeyboardEvent(lumui::ui::UI_Node*, const KeyboardEvent& inEvent) {
  if (!mDocument) return false;
  if (inEvent.GetAction() == KeyboardEvent::kActionCharacter) {
    return mEditor->HandleCharacter(inEvent);
  }
  if (!inEvent.IsActionKeyDown()) return false;
  if (mEditor->HandleKey(inEvent)) {
    // The key has done its work: Backspace is no character.
    lumui::ui::FlushPostActionKeyEvents(inEvent);
    return true;
  }
  // In a text a letter is a letter, also where the key map has a command for it.
  return mEditor->IsForTyping(inEvent);
}

void OutlineView::UI_FocusChanged(int inReason) {
  UI_SubView::UI_FocusChanged(inReason);
  if (!mDocument) return;
  UI_InvalidateAll();
  if (!UI_HasKeyboardFocus()) {
    // The release of a key that is held now goes to somebody else.
    vek::uisupport::KeyCommandManager::Get().RouteEndHoldCommand();
    mEditor->Commit();
    return;
  }
  for (UI_Node* node = UI_GetParentNode(); node; node = node->UI_GetParentNode()) {
    if (auto* const handler = dynamic_cast<vek::uisupport::CommandHandler*>(node)) {
      handler->SetAsCurrentCommandHandler(false);
      return;
    }
  }
}

void OutlineView::UI_SizeChanged(const Rect& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  UI_InvalidateAll();
}

void OutlineView::ListenToMessage(const vek::selection::SelectionChangeMessage& inMessage) {
  if (!mIsSelecting) mAnchor = 0;
  const auto& nodes = inMessage.GetAffectedNodes();
  if (nodes.size() > kMostSingleRows) {
    UI_InvalidateAll();
    return;
  }
  for (const auto* node : nodes)
    InvalidateRow(*static_cast<const OutlineRow*>(node));
}

void OutlineView::ListenToMessage(const vek::undo::ItemsChangedMsg&) {
  UpdateContentSize();
  UI_InvalidateAll();
}

void OutlineView::InvalidateRow(const OutlineRow& inRow) {
  const auto& tree = mDocument->GetTree();
  if (tree.FindRow(inRow.GetId()) != &inRow) return;
  const Rect rect = RectOfLine(tree.GetLine(inRow));
  UI_Invalidate(lumcore::geom::RectT<int>(0, static_cast<int>(rect.y),
                                          static_cast<int>(std::ceil(rect.width)),
                                          static_cast<int>(rect.height)),
                lumcore::utility::Flags<unsigned int>());
}

void OutlineView::UpdateContentSize() {
  if (!mScrollView) return;
  const auto count = static_cast<float>(mDocument->GetTree().GetLines().size());
  mScrollView->SetContentRectF(Rect(0, 0, 1, 2 * kMargin + count * RowPainter::kRowHeight));
  mScrollView->Update();
}

}  // namespace outliner
