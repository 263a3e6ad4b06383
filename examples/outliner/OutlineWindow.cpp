// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineWindow.h"

#include <algorithm>
#include <exception>
#include <string>

#include "CommandSystem.h"
#include "OutlineView.h"
#include "OutlinerCommands.h"
#include "StatusLine.h"
#include "TitleStrip.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/undo/Deed.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ReplaceInString;
using lumcore::utility::ToUTF16;

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 640;

enum Answer { kAnswerSave, kAnswerDiscard, kAnswerCancel };

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

UTF16String Number(std::size_t inNumber) {
  return ToUTF16(std::to_string(inNumber));
}

}  // namespace

OutlineWindow::OutlineWindow(std::unique_ptr<OutlineDocument> inDocument,
                             vek::uisupport::CommandHandler* inParent)
    : OS_Window(&OutlineWindow::OnEvent, false),
      CommandHandler(inParent),
      mDocument(std::move(inDocument)),
      mEditor(new RowEditor(*mDocument)),
      mCommands(new DocumentCommands(*mDocument, *mEditor, [this] { Save(); })) {
  AddAttachment(mCommands.get());
  BuildNodes();
  mEditor->SetChangedFunction([this] {
    mView->EditorChanged();
    ShowState();
  });
  mDocument->GetSelection().GetSelectionChangeNotifier()->AddListener(this);
  mDocument->GetUndoer().GetItemsChangedNotifier()->AddListener(this);
  UI_ConstructWindow(nullptr);
  UI_SetSize(kWidth, kHeight);
  ShowSelection(1);
  ShowState();
}

OutlineWindow::~OutlineWindow() {
  // Nodes hear of the loss of the keyboard while the native window goes; by then nothing may be
  // left for them to work on.
  mEditor->SetChangedFunction(nullptr);
  mDocument->GetSelection().GetSelectionChangeNotifier()->RemoveListener(this);
  mDocument->GetUndoer().GetItemsChangedNotifier()->RemoveListener(this);
  mView->Detach();
  UI_DestroyWindow();
  RemoveAttachment(mCommands.get());
}

void OutlineWindow::BuildNodes() {
  mTitleStrip.reset(new TitleStrip);
  mView.reset(new OutlineView(*mDocument, *mEditor));
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

void OutlineWindow::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  OS_Window::UI_SizeChanged(inRect);
  const float rows = std::max(0.0f, inRect.height - TitleStrip::kHeight - StatusLine::kHeight);
  mTitleStrip->UI_SetLocalRectF({0, 0, inRect.width, TitleStrip::kHeight});
  mScrollView->UI_SetLocalRectF({0, TitleStrip::kHeight, inRect.width, rows});
  mStatusLine->UI_SetLocalRectF({0, TitleStrip::kHeight + rows, inRect.width, StatusLine::kHeight});
}

void OutlineWindow::FocusRows() {
  mView->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

bool OutlineWindow::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                                       const lumui::ui::KeyboardEvent& inEvent) {
  if (OS_Window::UI_DoKeyboardEvent(inNode, inEvent)) return true;
  const lumcore::utility::StKeepAlive keepAlive(*this);
  try {
    // Keyboards of other scripts have our letters only as a second reading of their keys.
    const bool taken = lumui::ui::OfferReadings(inEvent, [](const auto& inReading) {
      return vek::uisupport::KeyCommandManager::Get().RouteKeyEvent(inReading);
    });
    if (!taken) return false;
  } catch (...) {  // a key whose command fails has meant the command all the same
    lumui::ui::FlushPostActionKeyEvents(inEvent);
    throw;
  }
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  return true;
}

const lumcore::UTF8String& OutlineWindow::DoGetCommandContext() {
  return mEditor->IsActive() ? TextContext() : CommandHandler::DoGetCommandContext();
}

void OutlineWindow::OnEvent(lumui::ui::OS_Event* ioEvent) {
  auto* window = dynamic_cast<OutlineWindow*>(OS_Window::UI_GetWindow(ioEvent->window));
  if (!window) return;
  const bool asksToClose = ioEvent->message == lumui::ui::kMessageClose ||
                           ioEvent->message == lumui::ui::kMessageQueryEndSession;
  if (!asksToClose) return;
  // Refused as long as nothing else is known: what MayClose throws must not lose the document.
  ioEvent->result = 0;
  ioEvent->result = window->MayClose();
}

bool OutlineWindow::DoHandleCommand(int inCommand) {
  if (inCommand != kCommandClose) return false;
  if (MayClose()) UI_DoClose();
  return true;
}

bool OutlineWindow::DoCommandEnabled(int inCommand, bool& ioEnabled, bool&, UTF16String&) {
  if (inCommand != kCommandClose) return false;
  ioEnabled = true;
  return true;
}

void OutlineWindow::Save() {
  SaveAs(mDocument->GetFile());
}

void OutlineWindow::SaveAs(const lumcore::filesupport::File& inFile) {
  mEditor->Commit();
  mDocument->SaveAs(inFile);
  ShowState();
}

bool OutlineWindow::MayClose() {
  mEditor->Commit();
  if (!mDocument->IsDirty()) return true;
  // A second request while the question stands is answered by the first.
  if (mIsAsking) return false;
  const lumcore::utility::StScopedValue<bool> asking(mIsAsking, true);
  switch (AskAboutChanges()) {
    case kAnswerSave:
      return TrySave();
    case kAnswerDiscard:
      return true;
    default:
      return false;
  }
}

int OutlineWindow::AskAboutChanges() {
  lumui::dialogs::MessageDialogArgs args;
  args.title = Localized("$$$/outliner/Close/Title=Unsaved changes");
  args.text = ReplaceInString(
      Localized("$$$/outliner/Close/Text=Save the changes to \"@0\" before it is closed?"),
      {mDocument->GetFile().GetName()});
  args.buttons = {Localized("$$$/outliner/Close/Save=Save"),
                  Localized("$$$/outliner/Close/Discard=Discard"),
                  Localized("$$$/outliner/Close/Cancel=Cancel")};
  args.defaultButton = kAnswerSave;
  args.cancelButton = kAnswerCancel;
  args.icon = lumui::dialogs::MessageIcon::kQuestion;
  args.owner = this;
  return lumui::dialogs::RunMessageDialog(args);
}

bool OutlineWindow::TrySave() {
  return lumui::ui::Application::Get()->RunGuarded([this] { Save(); });
}

void OutlineWindow::UI_DoClose() {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  OS_Window::UI_DoClose();
  if (mClosed) mClosed();
}

void OutlineWindow::ListenToMessage(const vek::selection::SelectionChangeMessage&) {
  ShowSelection(1);
  ShowState();
}

// An edit may have moved what is selected out of view, also where the selection stays the same.
void OutlineWindow::ListenToMessage(const vek::undo::ItemsChangedMsg&) {
  ShowSelection(mDocument->GetTree().GetLines().size());
  ShowState();
}

// Many selected rows leave the view where it is, unless the caller says how many may move it: with
// them the first is shown, as the others cannot all be.
void OutlineWindow::ShowSelection(std::size_t inMostRows) {
  const auto selected = mDocument->GetSelectedRows();
  mSelectedCount = selected.size();
  if (!selected.empty() && selected.size() <= inMostRows) mView->ShowRow(*selected.front());
}

void OutlineWindow::ShowState() {
  const UTF16String name = mDocument->GetFile().GetName();
  UI_SetTitle(ReplaceInString(
      Localized(IsDirty() ? "$$$/outliner/Window/DirtyTitle=*@0 \xE2\x80\x94 outliner"
                          : "$$$/outliner/Window/Title=@0 \xE2\x80\x94 outliner"),
      {name}));
  const UTF16String& title = mDocument->GetTree().GetEnvelope().title;
  mTitleStrip->SetTexts(title.empty() ? name : title, ToUTF16(mDocument->GetFile().GetPath()));
  mStatusLine->SetTexts(
      DescribeCounts(), DescribeNews(),
      Localized(mEditor->IsActive()
                    ? "$$$/outliner/Status/EditHints=Return: next row    Esc: give up the text"
                    : "$$$/outliner/Status/Hints=Return: new row    Tab: indent    F2: edit    "
                      "Ctrl+Z: undo"));
}

UTF16String OutlineWindow::DescribeCounts() const {
  const std::size_t rows = mDocument->GetTree().GetLines().size();
  const UTF16String counts =
      ReplaceInString(Localized(rows == 1 ? "$$$/outliner/Status/OneRow=@0 row"
                                          : "$$$/outliner/Status/Rows=@0 rows"),
                      {Number(rows)});
  if (mSelectedCount == 0) return counts;
  return ReplaceInString(Localized("$$$/outliner/Status/Selected=@0, @1 selected"),
                         {counts, Number(mSelectedCount)});
}

UTF16String OutlineWindow::DescribeNews() const {
  bool isEnabled = false;
  bool isChecked = false;
  UTF16String title;
  mCommands->CommandEnabled(kCommandUndo, isEnabled, isChecked, title);
  return isEnabled ? title : UTF16String();
}

}  // namespace outliner
