// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/FileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>
#include <utility>

#include "dialogs/ModalDialog.h"
#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Window.h"
#include "ui/NodePeer.h"

namespace lumui::dialogs {

namespace {

using lumcore::UTF16String;

FileDialogAnswerer& CurrentAnswerer() {
  static FileDialogAnswerer sAnswerer;
  return sAnswerer;
}

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

QString FilterText(const FileFilter& inFilter) {
  QStringList patterns;
  for (const UTF16String& extension : inFilter.extensions) {
    patterns << QStringLiteral("*.") + drawbot::ToQt(extension);
  }
  const QString all = patterns.isEmpty() ? QStringLiteral("*") : patterns.join(QLatin1Char(' '));
  if (inFilter.description.empty()) return all;
  return drawbot::ToQt(inFilter.description) + QStringLiteral(" (") + all + QLatin1Char(')');
}

void Prepare(QFileDialog& ioDialog, const FileDialogArgs& inArgs) {
  const bool isOpen = inArgs.kind == FileDialogArgs::kOpen;
  ioDialog.setAcceptMode(isOpen ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  ioDialog.setFileMode(isOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  if (!inArgs.title.empty()) ioDialog.setWindowTitle(drawbot::ToQt(inArgs.title));
  QStringList filters;
  for (const FileFilter& filter : inArgs.filters)
    filters << FilterText(filter);
  if (!filters.isEmpty()) ioDialog.setNameFilters(filters);
  ioDialog.setDefaultSuffix(drawbot::ToQt(inArgs.saveExtension));
  if (inArgs.initialPath.empty()) return;
  const QFileInfo initial(drawbot::ToQt(inArgs.initialPath));
  ioDialog.setDirectory(initial.isDir() ? initial.filePath() : initial.path());
  if (!initial.isDir()) ioDialog.selectFile(initial.fileName());
}

// The dialog is seen as a user sees it, and then ended as the answer says. The path is the answer's
// own: the name field would refuse a file that is not there yet, or ask about one that is.
UTF16String RunAnswered(QFileDialog& ioDialog, const UTF16String& inAnswer) {
  ioDialog.setOption(QFileDialog::DontUseNativeDialog);
  QDialog* const dialog = &ioDialog;
  const int result = inAnswer.empty() ? QDialog::Rejected : QDialog::Accepted;
  QTimer::singleShot(0, dialog, [dialog, result] { dialog->done(result); });
  return RunModalDialog(ioDialog) == QDialog::Accepted ? inAnswer : UTF16String();
}

}  // namespace

FileDialogAnswerer SetFileDialogAnswerer(FileDialogAnswerer inAnswerer) {
  return std::exchange(CurrentAnswerer(), std::move(inAnswerer));
}

UTF16String RunFileDialog(const FileDialogArgs& inArgs) {
  LUM_INPUT_CONTRACT(ui::Application::Get() != nullptr);
  // A copy: an answerer may put another in its place.
  const FileDialogAnswerer answerer = CurrentAnswerer();
  const std::optional<UTF16String> answer = answerer ? answerer(inArgs) : std::nullopt;
  if (!answer && ui::Application::Get()->IsHeadless()) {
    throw lumcore::config::Error(lumcore::utility::ReplaceInString(
        Localized(
            "$$$/lumui/dialogs/Error/UnansweredFile=Nobody chooses a file for \"@0\" in a run "
            "without a display"),
        {inArgs.title}));
  }
  QWidget* const owner = inArgs.owner ? inArgs.owner->GetPeer()->GetWidget() : nullptr;
  // On the heap and watched: the owner may be destroyed while the dialog is open, and the dialog
  // with it, which counts as a cancel.
  const QPointer<QFileDialog> dialog = new QFileDialog(owner);
  Prepare(*dialog, inArgs);
  UTF16String path;
  if (answer) {
    path = RunAnswered(*dialog, *answer);
  } else if (RunModalDialog(*dialog) == QDialog::Accepted && dialog &&
             !dialog->selectedFiles().isEmpty()) {
    path = drawbot::FromQt(QDir::toNativeSeparators(dialog->selectedFiles().front()));
  }
  delete dialog;
  return path;
}

}  // namespace lumui::dialogs
