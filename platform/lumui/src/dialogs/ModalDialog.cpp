// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "dialogs/ModalDialog.h"

#include <QDialog>
#include <QPointer>

#include "dialogs/AnnouncedModal.h"
#include "ui/QuitWatch.h"

namespace lumui::dialogs {

int RunModalDialog(QDialog& ioDialog) {
  const StAnnouncedModal announced;
  const ui::QuitWatch watch([dialog = QPointer<QDialog>(&ioDialog)] {
    if (dialog) dialog->done(QDialog::Rejected);
  });
  return watch.HasQuit() ? QDialog::Rejected : ioDialog.exec();
}

}  // namespace lumui::dialogs
