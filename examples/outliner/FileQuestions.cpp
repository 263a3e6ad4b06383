// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "FileQuestions.h"

#include <utility>

#include "OwnFileDialog.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/FileDialog.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/OS_Window.h"
#include "vek/uisupport/MainWindowLookup.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;
using lumui::dialogs::FileDialogArgs;
using vek::uisupport::Alert::Response;

namespace {

constexpr const char* kExtension = "opml";

// In the order of the buttons.
constexpr ChangedFileAnswer kChangedFileAnswers[] = {
    ChangedFileAnswer::kOverwrite, ChangedFileAnswer::kSaveAs, ChangedFileAnswer::kCancel};
constexpr Response kAnswers[] = {vek::uisupport::Alert::eResponseYes,
                                 vek::uisupport::Alert::eResponseNo,
                                 vek::uisupport::Alert::eResponseCancel};

// Whoever answers in the place of the user answers the system's dialog.
bool HasAnswerer() {
  auto answerer = lumui::dialogs::SetFileDialogAnswerer(nullptr);
  const bool has = static_cast<bool>(answerer);
  lumui::dialogs::SetFileDialogAnswerer(std::move(answerer));
  return has;
}

UTF16String Ask(FileDialogArgs::Kind inKind, const char* inTitle, const UTF16String& inPath,
                lumui::ui::OS_Window* inOwner) {
  FileDialogArgs args;
  args.kind = inKind;
  args.title = Localized(inTitle);
  args.initialPath = inPath;
  args.filters = {{Localized("$$$/outliner/Files/Outlines=Outlines (OPML)"),
                   {ToUTF16(kExtension), ToUTF16("xml")}},
                  {Localized("$$$/outliner/Files/All=All files"), {}}};
  args.saveExtension = ToUTF16(kExtension);
  args.owner = inOwner;
  return UsesOwnFileDialog() && !HasAnswerer() ? RunOwnFileDialog(args)
                                               : lumui::dialogs::RunFileDialog(args);
}

}  // namespace

UTF16String AskForFileToOpen(const UTF16String& inPath, lumui::ui::OS_Window* inOwner) {
  return Ask(FileDialogArgs::kOpen, "$$$/outliner/Files/Open=Open an outline", inPath, inOwner);
}

UTF16String AskForFileToSave(const UTF16String& inPath, lumui::ui::OS_Window* inOwner) {
  return Ask(FileDialogArgs::kSave, "$$$/outliner/Files/SaveAs=Save the outline as", inPath,
             inOwner);
}

Response AskToSave(const UTF16String& inTitle) {
  lumui::dialogs::MessageDialogArgs args;
  args.title = Localized("$$$/outliner/Close/Title=Unsaved changes");
  args.text = lumcore::utility::ReplaceInString(
      Localized("$$$/outliner/Close/Text=Save the changes to \"@0\" before it is closed?"),
      {inTitle});
  args.buttons = {Localized("$$$/outliner/Close/Save=Save"),
                  Localized("$$$/outliner/Close/Discard=Discard"),
                  Localized("$$$/outliner/Close/Cancel=Cancel")};
  args.cancelButton = 2;
  args.icon = lumui::dialogs::MessageIcon::kQuestion;
  args.owner = dynamic_cast<lumui::ui::OS_Window*>(vek::uisupport::FindMainWindow());
  return kAnswers[lumui::dialogs::RunMessageDialog(args)];
}

// The usual button is the one by which nobody loses anything.
ChangedFileAnswer AskAboutChangedFile(const UTF16String& inTitle) {
  lumui::dialogs::MessageDialogArgs args;
  args.title = Localized("$$$/outliner/Changed/Title=Changed by another program");
  args.text = lumcore::utility::ReplaceInString(
      Localized("$$$/outliner/Changed/Text=Another program has changed \"@0\" since it was opened "
                "or saved here. If it is overwritten, those changes are lost."),
      {inTitle});
  args.buttons = {Localized("$$$/outliner/Changed/Overwrite=Overwrite"),
                  Localized("$$$/outliner/Changed/SaveAs=Save As..."),
                  Localized("$$$/outliner/Changed/Cancel=Cancel")};
  args.defaultButton = 1;
  args.cancelButton = 2;
  args.icon = lumui::dialogs::MessageIcon::kWarning;
  args.owner = dynamic_cast<lumui::ui::OS_Window*>(vek::uisupport::FindMainWindow());
  return kChangedFileAnswers[lumui::dialogs::RunMessageDialog(args)];
}

}  // namespace outliner
