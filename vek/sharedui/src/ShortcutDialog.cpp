// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ShortcutDialog.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/datatransfer/Clipboard.h"
#include "lumui/dialogs/Messagebox.h"
#include "lumui/dialogs/SimpleInputBox.h"
#include "lumui/utility/ResourceManager.h"
#include "vek/app/App.h"
#include "vek/uisupport/MainWindowLookup.h"
#include "vek/utility/VekResources.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
namespace controls = lumui::controls;
namespace messagebox = lumui::dialogs::messagebox;

namespace {

// In units.
constexpr float kLeastWidth = 425;
constexpr float kLeastHeight = 339;

constexpr const char* kArchive = "ShortcutDialog";

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

const lumui::utility::ResourceManager& ResourcesOf(bool inApplication) {
  if (inApplication) {
    const auto* const resources = app::App::GetApp()->GetAppResourceManager();
    if (resources && resources->HasBinary(ToUTF16(kArchive), "xml")) return *resources;
  }
  return *utility::GetResourceManager();
}

boost::intrusive_ptr<lumui::ui::UI_Node> MakeControl(const UTF16String& inName) {
  if (inName == ToUTF16("SearchBoxDCC")) return new controls::UI_TextEdit;
  if (inName == ToUTF16("TreeListDCC")) return new CommandsTree;
  return nullptr;
}

}  // namespace

ShortcutDialog::ShortcutDialog(const UTF16String& inCurrentSet,
                               const lumcore::UTF8String& inDefaultKeys, bool inUseAppResources)
    : UI_ArchivedDialog(
          uisupport::FindDrawSupplier(), ResourcesOf(inUseAppResources), ToUTF16(kArchive),
          Localized("$$$/vek/sharedui/ShortcutDialog/KeyboardShortcuts=Keyboard Shortcuts"),
          uisupport::FindMainWindow(), &MakeControl),
      mOKButton(NeedControl<controls::UI_TextButton>("OkButtonID")),
      mCancelButton(NeedControl<controls::UI_TextButton>("CancelButtonID")),
      mKeysetLabel(NeedControl<controls::UI_StaticText>("KeysetLabelID")),
      mKeysetPopup(NeedControl<controls::UI_Popup>("KeysetPopupID")),
      mSaveKeysetAsButton(NeedControl<controls::UI_Button>("SaveKeysetAsButtonID")),
      mDeleteKeysetButton(NeedControl<controls::UI_Button>("DeleteKeysetButtonID")),
      mSearchBox(NeedControl<controls::UI_TextEdit>("SearchBoxID")),
      mMatchCase(NeedControl<controls::UI_Button>("MatchCaseCBID")),
      mTree(NeedControl<CommandsTree>("TreeListID")),
      mUndoButton(NeedControl<controls::UI_Button>("UndoButtonID")),
      mAddButton(NeedControl<controls::UI_Button>("AddShortcutButtonID")),
      mRemoveAllButton(NeedControl<controls::UI_Button>("RemoveAllShortcutsButtonID")),
      mCopyButton(NeedControl<controls::UI_Button>("CopyToClipboardButtonID")),
      mWarningIcon(NeedControl<controls::UI_StaticImage>("WarningIconID")),
      mWarningText(NeedControl<controls::UI_StaticText>("WarningTextID")),
      mGotoButton(NeedControl<controls::UI_Button>("GotoButtonID")),
      mEditor(inCurrentSet, inDefaultKeys, *this) {
  SetButtons(mOKButton, mCancelButton);
  OnChange(*mKeysetPopup, &ShortcutDialog::SetChosen);
  OnChange(*mSaveKeysetAsButton, &ShortcutDialog::SaveAs);
  OnChange(*mDeleteKeysetButton, &ShortcutDialog::DeleteSet);
  OnChange(*mSearchBox, &ShortcutDialog::FilterChanged);
  OnChange(*mMatchCase, &ShortcutDialog::FilterChanged);
  OnChange(*mTree, &ShortcutDialog::SelectionChanged, false);
  OnChange(*mUndoButton, &ShortcutDialog::Undo);
  OnChange(*mAddButton, &ShortcutDialog::AddShortcut);
  OnChange(*mRemoveAllButton, &ShortcutDialog::RemoveAllShortcuts);
  OnChange(*mCopyButton, &ShortcutDialog::CopyList);
  OnChange(*mGotoButton, &ShortcutDialog::GoToCommand);
  mTree->Fill(mEditor.GetCaches());
  mEditor.Open();
}

ShortcutDialog::~ShortcutDialog() {
  for (const auto& function : mFunctions)
    function->clear();
}

template <class Control>
boost::intrusive_ptr<Control> ShortcutDialog::NeedControl(const char* inID) const {
  boost::intrusive_ptr<Control> control(dynamic_cast<Control*>(GetNodeForID(inID).get()));
  if (!control) {
    lumcore::config::ThrowError(
        "$$$/lumcore/utility/Error/InvalidTypeConversion=Invalid type conversion.");
  }
  return control;
}

void ShortcutDialog::OnChange(controls::UI_InteractiveControlView& inControl,
                              void (ShortcutDialog::*inDo)(), bool inByUserOnly) {
  mFunctions.emplace_back(new ChangedFunction([this, inDo](auto*) { (this->*inDo)(); }));
  if (inByUserOnly) {
    inControl.NotifyWhenChangedInteractively(mFunctions.back());
  } else {
    inControl.NotifyWhenChanged(mFunctions.back());
  }
}

int ShortcutDialog::RunModal() {
  SetMinimumSize(kLeastWidth, kLeastHeight);
  mSearchBox->UI_SetWantsKeyboardFocus(true);
  mSearchBox->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  const int result = UI_ArchivedDialog::RunModal();
  mEditor.Finish(result == kOK);
  return result;
}

UTF16String ShortcutDialog::GetCurrentShortcutSetName() const {
  return mEditor.GetCurrentShortcutSetName();
}

void ShortcutDialog::GetColumnWidths(float& outCommand, float& outShortcut,
                                     float& outDescription) const {
  outCommand = mTree->GetColumnWidth(CommandsTree::kCommand);
  outShortcut = mTree->GetColumnWidth(CommandsTree::kShortcut);
  outDescription = mTree->GetColumnWidth(CommandsTree::kDescription);
}

void ShortcutDialog::SetColumnWidths(float inCommand, float inShortcut, float inDescription) {
  mTree->SetColumnWidth(CommandsTree::kCommand, inCommand);
  mTree->SetColumnWidth(CommandsTree::kShortcut, inShortcut);
  mTree->SetColumnWidth(CommandsTree::kDescription, inDescription);
}

void ShortcutDialog::SetSetItems(const std::vector<UTF16String>& inItems) {
  mKeysetPopup->SetItems(inItems);
}

int ShortcutDialog::GetSetIndex() const {
  return mKeysetPopup->GetValue();
}

void ShortcutDialog::ChooseSet(int inIndex) {
  mKeysetPopup->SetValue(inIndex);
}

void ShortcutDialog::ShowSetText(const UTF16String& inText) {
  mKeysetPopup->SetShownText(inText);
}

void ShortcutDialog::Tell(const UTF16String& inText) {
  messagebox::Messagebox(inText, messagebox::Buttons::kOK, this);
}

ShortcutDialog::Answer ShortcutDialog::Ask(const UTF16String& inText, bool inMayCancel) {
  using messagebox::Buttons;
  switch (
      messagebox::Messagebox(inText, inMayCancel ? Buttons::kYesNoCancel : Buttons::kYesNo, this)) {
    case messagebox::Answer::kYes:
      return Answer::kYes;
    case messagebox::Answer::kNo:
      return Answer::kNo;
    default:
      return Answer::kCancel;
  }
}

bool ShortcutDialog::AskName(UTF16String& ioName) {
  return lumui::dialogs::SimpleInputBox(
      Localized("$$$/vek/sharedui/ShortcutDialog/SaveKeyboardLayoutPreset=Save Keyboard Layout "
                "Preset"),
      Localized("$$$/vek/sharedui/ShortcutDialog/PresetName=Preset Name:"), ioName, this);
}

void ShortcutDialog::SetWarningText(const UTF16String& inText) {
  mWarningText->SetText(inText);
  mWarningText->UI_SetToolTip(inText);
}

void ShortcutDialog::UpdateButtons() {
  mDeleteKeysetButton->UI_SetEnabled(GetSetIndex() > 0);
  mUndoButton->UI_SetEnabled(mEditor.CanUndo());
  mAddButton->UI_SetEnabled(mField && !mField->HasNew());
  mRemoveAllButton->UI_SetEnabled(mField && !mField->GetBubbles().empty());
  const bool warns = mEditor.GetGotoCommand() != -1;
  mWarningIcon->UI_Show(warns);
  mWarningText->UI_Show(warns);
  mGotoButton->UI_Show(warns);
}

void ShortcutDialog::CommandChanged(int inCommand) {
  mTree->ShowShortcuts(mEditor.GetCaches().Get(inCommand));
}

void ShortcutDialog::AllCommandsChanged() {
  mTree->ShowAllShortcuts();
  mTree->SetSelectedRow(CommandsTree::kNoRow, true);
}

void ShortcutDialog::SetChosen() {
  mEditor.SetChosen();
}

void ShortcutDialog::SaveAs() {
  mEditor.SaveAs();
}

void ShortcutDialog::DeleteSet() {
  mEditor.DeleteSet();
}

void ShortcutDialog::CopyList() {
  lumui::datatransfer::NewClipboardSendData(MakeShortcutList(mEditor.GetCaches()));
}

}  // namespace vek::sharedui
