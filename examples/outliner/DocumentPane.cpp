// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DocumentPane.h"

#include <algorithm>
#include <string>
#include <utility>

#include "CommandSystem.h"
#include "DocumentCommands.h"
#include "LineField.h"
#include "OutlineDocument.h"
#include "OutlineEntries.h"
#include "OutlineList.h"
#include "OutlineTreeList.h"
#include "OutlinerCommands.h"
#include "Palette.h"
#include "RowEditor.h"
#include "StatusLine.h"
#include "Texts.h"
#include "TitleStrip.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ReplaceInString;
using lumcore::utility::ToUTF16;

namespace {

constexpr float kFindHeight = 26;
constexpr float kFindMargin = 6;
constexpr float kFindLeft = 18;  // below the title
constexpr float kFindBand = kFindHeight + 2 * kFindMargin;
constexpr float kMostFindWidth = 360;

}  // namespace

DocumentPane::DocumentPane(OutlineDocument& inDocument, Functions inFunctions)
    : mDocument(&inDocument), mFunctions(std::move(inFunctions)) {
  BuildNodes();
  mDocument->SetChangedFunction([this] { ShowState(); });
  mDocument->GetEditor().SetChangedFunction([this] {
    mList->ShowEditor();
    ShowState();
  });
  mDocument->GetCommands().SetRowSteps({[this](bool inDown) { mList->GetRows().Step(inDown); },
                                        [this] { mList->GetRows().SelectAllShown(); }});
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
  mFunctions = Functions();
  mFind->SetFunctions(LineField::Functions());
  mDocument->SetChangedFunction(nullptr);
  mDocument->GetEditor().SetChangedFunction(nullptr);
  mDocument->GetCommands().SetRowSteps({});
  mDocument->GetSelection().GetSelectionChangeNotifier()->RemoveListener(this);
  mDocument->GetUndoer().GetItemsChangedNotifier()->RemoveListener(this);
  mList->Detach();
  mDocument = nullptr;
  if (IsCurrentCommandHandler()) SetCurrentCommandHandler(nullptr);
}

void DocumentPane::BuildNodes() {
  mTitleStrip.reset(new TitleStrip);
  OutlineList::Functions functions;
  functions.focusChanged = [this] { FocusChanged(); };
  functions.openRowMenu = [this](const auto& inPlace) { mFunctions.openRowMenu(inPlace); };
  functions.getColumns = mFunctions.getColumns;
  functions.keepColumns = mFunctions.keepColumns;
  mList.reset(new OutlineList(*mDocument, std::move(functions)));
  mFind.reset(new LineField);
  mFind->SetPlaceholder(Localized("$$$/outliner/Find/Placeholder=Find rows"));
  mFind->UI_SetNodeID("find");
  const auto focusRows = [this] {
    FocusRows();
    if (mDocument->CountSelectedRows() == 0) mList->GetRows().Step(true);
  };
  mFind->SetFunctions({[this](const UTF16String& inText) { Find(inText); }, focusRows, focusRows,
                       focusRows, [this] { FocusChanged(); }});
  mStatusLine.reset(new StatusLine);
  UI_AddChild(mTitleStrip);
  UI_AddChild(mFind);
  UI_AddChild(mList);
  UI_AddChild(mStatusLine);
}

void DocumentPane::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  const float top = TitleStrip::kHeight + kFindBand;
  const float rows = std::max(0.0f, inRect.height - top - StatusLine::kHeight);
  mTitleStrip->UI_SetLocalRectF({0, 0, inRect.width, TitleStrip::kHeight});
  mFind->UI_SetLocalRectF({kFindLeft, TitleStrip::kHeight + kFindMargin,
                           std::min(kMostFindWidth, std::max(0.0f, inRect.width - 2 * kFindLeft)),
                           kFindHeight});
  mList->UI_SetLocalRectF({0, top, inRect.width, rows});
  mStatusLine->UI_SetLocalRectF({0, top + rows, inRect.width, StatusLine::kHeight});
}

void DocumentPane::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
}

void DocumentPane::FocusRows() {
  mList->FocusRows();
}

void DocumentPane::FocusFind() {
  mFind->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  mFind->SelectAll();
}

void DocumentPane::Find(const UTF16String& inText) {
  mDocument->CommitTyping();
  mList->GetRows().SetFilter(TextSearch({inText}));
  ShowState();
}

void DocumentPane::FocusChanged() {
  if (!mDocument) return;
  if (mList->HasKeyboard() || mFind->UI_HasKeyboardFocus()) {
    SetAsCurrentCommandHandler(false);
  } else {
    // The release of a key that is held now goes to somebody else.
    vek::uisupport::KeyCommandManager::Get().RouteEndHoldCommand();
  }
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
  mList->GetRows().DocumentSelectionChanged();
  ShowSelection(1);
  ShowState();
}

// An edit may have moved what is selected out of view, also where the selection stays the same.
void DocumentPane::ListenToMessage(const vek::undo::ItemsChangedMsg&) {
  mList->DocumentChanged();
  ShowSelection(mDocument->GetTree().GetLines().size());
  ShowState();
}

// Many selected rows leave the view where it is, unless the caller says how many may move it: with
// them the first is shown, as the others cannot all be.
void DocumentPane::ShowSelection(std::size_t inMostRows) {
  const auto selected = mDocument->GetSelectedRows();
  mSelectedCount = selected.size();
  if (!selected.empty() && selected.size() <= inMostRows)
    mList->GetRows().ShowRow(*selected.front());
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
  if (mFunctions.stateChanged) mFunctions.stateChanged();
}

UTF16String DocumentPane::DescribeCounts() const {
  const std::size_t rows = mDocument->GetTree().GetLines().size();
  const UTF16String counts =
      ReplaceInString(Localized(rows == 1 ? "$$$/outliner/Status/OneRow=@0 row"
                                          : "$$$/outliner/Status/Rows=@0 rows"),
                      {NumberText(rows)});
  if (!mList->GetRows().GetEntries()->GetFilter().IsEmpty()) {
    return ReplaceInString(Localized("$$$/outliner/Status/Found=@0 of @1 shown"),
                           {NumberText(mList->GetRows().CountShownRows()), counts});
  }
  if (mSelectedCount == 0) return counts;
  return ReplaceInString(Localized("$$$/outliner/Status/Selected=@0, @1 selected"),
                         {counts, NumberText(mSelectedCount)});
}

UTF16String DocumentPane::DescribeNews() const {
  bool isEnabled = false;
  bool isChecked = false;
  UTF16String title;
  mDocument->GetCommands().CommandEnabled(kCommandUndo, isEnabled, isChecked, title);
  return isEnabled ? title : UTF16String();
}

}  // namespace outliner
