// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "dialogs/ModalDialog.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>

#include "dialogs/AnnouncedModal.h"
#include "ui/QuitWatch.h"

namespace lumui::dialogs {

int RunModalDialog(QDialog& ioDialog) {
  const StAnnouncedModal announced;
  const ui::QuitWatch watch([dialog = QPointer<QDialog>(&ioDialog)] {
    // What Qt itself asks stands on top, such as whether a file is to be replaced.
    auto* const top = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (top && top != dialog) top->done(QDialog::Rejected);
    if (dialog) dialog->done(QDialog::Rejected);
  });
  return watch.HasQuit() ? QDialog::Rejected : ioDialog.exec();
}

}  // namespace lumui::dialogs
