// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DocumentPane.h"

#include <algorithm>
#include <string>
#include <utility>

#include "CommandSystem.h"
#include "DocumentCommands.h"
#include "OutlineDocument.h"
#include "OutlineView.h"
#include "OutlinerCommands.h"
#include "RowEditor.h"
#include "StatusLine.h"
#include "TitleStrip.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollView.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ReplaceInString;
using lumcore::utility::ToUTF16;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

UTF16String Number(std::size_t inNumber) {
  return ToUTF16(std::to_string(inNumber));
}

}  // namespace

DocumentPane::DocumentPane(OutlineDocument& inDocument, std::function<void()> inStateChanged)
    : mDocument(&inDocument), mStateChanged(std::move(inStateChanged)) {
  BuildNodes();
  mDocument->SetChangedFunction([this] { ShowState(); });
  mDocument->GetEditor().SetChangedFunction([this] {
    mView->EditorChanged();
    ShowState();
  });
  mDocument->GetSelection().GetSelectionChangeNotifier()->AddListener(this);
  mDocument->GetUndoer().GetItemsChangedNotifier()->AddListener(this);
  ShowSelection(1);
  ShowState();
}

DocumentPane::~DocumentPane() {
  Detach();
}

// Nodes hear of the loss of the keyboard while they go; by then nothing may be left for them to
// work on.
void DocumentPane::Detach() {
  if (!mDocument) return;
  mStateChanged = nullptr;
  mDocument->SetChangedFunction(nullptr);
  mDocument->GetEditor().SetChangedFunction(nullptr);
  mDocument->GetSelection().GetSelectionChangeNotifier()->RemoveListener(this);
  mDocument->GetUndoer().GetItemsChangedNotifier()->RemoveListener(this);
  mView->Detach();
  mDocument = nullptr;
  if (IsCurrentCommandHandler()) SetCurrentCommandHandler(nullptr);
}

void DocumentPane::BuildNodes() {
  mTitleStrip.reset(new TitleStrip);
  mView.reset(new OutlineView(*mDocument));
  using Flags = lumcore::utility::Flags<unsigned int>;
  mScrollView.reset(new lumui::controls::UI_ScrollView(
      Flags(lumui::controls::UI_ScrollView::kNoHorizontalBar), mView));
  mScrollView->UI_SetNodeID("rows");
  mStatusLine.reset(new StatusLine);
  mView->SetScrollView(mScrollView.get());
  UI_AddChild(mTitleStrip);
  UI_AddChild(mScrollView);
  UI_AddChild(mStatusLine);
}

void DocumentPane::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  const float rows = std::max(0.0f, inRect.height - TitleStrip::kHeight - StatusLine::kHeight);
  mTitleStrip->UI_SetLocalRectF({0, 0, inRect.width, TitleStrip::kHeight});
  mScrollView->UI_SetLocalRectF({0, TitleStrip::kHeight, inRect.width, rows});
  mStatusLine->UI_SetLocalRectF({0, TitleStrip::kHeight + rows, inRect.width, StatusLine::kHeight});
}

void DocumentPane::FocusRows() {
  mView->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

bool DocumentPane::DoHandleCommand(int) {
  return false;
}

bool DocumentPane::DoCommandEnabled(int, bool&, bool&, UTF16String&) {
  return false;
}

const lumcore::UTF8String& DocumentPane::DoGetCommandContext() {
  const bool isEditing = mDocument && mDocument->GetEditor().IsActive();
  return isEditing ? TextContext() : CommandHandler::DoGetCommandContext();
}

void DocumentPane::ListenToMessage(const vek::selection::SelectionChangeMessage&) {
  ShowSelection(1);
  ShowState();
}

// An edit may have moved what is selected out of view, also where the selection stays the same.
void DocumentPane::ListenToMessage(const vek::undo::ItemsChangedMsg&) {
  ShowSelection(mDocument->GetTree().GetLines().size());
  ShowState();
}

// Many selected rows leave the view where it is, unless the caller says how many may move it: with
// them the first is shown, as the others cannot all be.
void DocumentPane::ShowSelection(std::size_t inMostRows) {
  const auto selected = mDocument->GetSelectedRows();
  mSelectedCount = selected.size();
  if (!selected.empty() && selected.size() <= inMostRows) mView->ShowRow(*selected.front());
}

void DocumentPane::ShowState() {
  const UTF16String& title = mDocument->GetTree().GetEnvelope().title;
  mTitleStrip->SetTexts(title.empty() ? mDocument->GetTitle() : title,
                        ToUTF16(mDocument->GetProjectFile().GetPath()));
  mStatusLine->SetTexts(
      DescribeCounts(), DescribeNews(),
      Localized(mDocument->GetEditor().IsActive()
                    ? "$$$/outliner/Status/EditHints=Return: next row    Esc: give up the text"
                    : "$$$/outliner/Status/Hints=Return: new row    Tab: indent    F2: edit    "
                      "Ctrl+Z: undo"));
  if (mStateChanged) mStateChanged();
}

UTF16String DocumentPane::DescribeCounts() const {
  const std::size_t rows = mDocument->GetTree().GetLines().size();
  const UTF16String counts =
      ReplaceInString(Localized(rows == 1 ? "$$$/outliner/Status/OneRow=@0 row"
                                          : "$$$/outliner/Status/Rows=@0 rows"),
                      {Number(rows)});
  if (mSelectedCount == 0) return counts;
  return ReplaceInString(Localized("$$$/outliner/Status/Selected=@0, @1 selected"),
                         {counts, Number(mSelectedCount)});
}

UTF16String DocumentPane::DescribeNews() const {
  bool isEnabled = false;
  bool isChecked = false;
  UTF16String title;
  mDocument->GetCommands().CommandEnabled(kCommandUndo, isEnabled, isChecked, title);
  return isEnabled ? title : UTF16String();
}

}  // namespace outliner
