// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "dialogs/AnsweredDialog.h"

#include <QVBoxLayout>

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

QString Localized(const char* inKey) {
  return drawbot::ToQt(lumcore::config::Localizer::Get()->GetLocalizedString(inKey));
}

}  // namespace

AnsweredDialog::AnsweredDialog(const lumcore::UTF16String& inTitle,
                               const lumcore::UTF16String& inOKButton, ui::OS_Window* inOwner)
    : mDialog(new QDialog(inOwner ? inOwner->GetPeer()->GetWidget() : nullptr)) {
  mDialog->setWindowTitle(drawbot::ToQt(inTitle));
  auto* const column = new QVBoxLayout(mDialog);
  auto* const buttons = new QDialogButtonBox(mDialog);
  mOK = buttons->addButton(
      inOKButton.empty() ? Localized("$$$/lumui/dialogs/OK=OK") : drawbot::ToQt(inOKButton),
      QDialogButtonBox::AcceptRole);
  mOK->setDefault(true);
  buttons->addButton(Localized("$$$/lumui/dialogs/Button/Cancel=Cancel"),
                     QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::accepted, mDialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, mDialog, &QDialog::reject);
  column->addWidget(buttons);
}

AnsweredDialog::~AnsweredDialog() {
  delete mDialog;
}

void AnsweredDialog::Add(QWidget* inWidget) {
  auto* const column = static_cast<QVBoxLayout*>(mDialog->layout());
  column->insertWidget(column->count() - 1, inWidget);
}

bool AnsweredDialog::Run(const std::function<bool()>& inAnswer) {
  if (inAnswer) {
    QTimer::singleShot(0, mDialog, [this, inAnswer] {
      if (inAnswer()) {
        mOK->click();
      } else {
        mDialog->reject();
      }
    });
  }
  const int result = RunModalDialog(*mDialog);
  return mDialog && result == QDialog::Accepted;
}

void RequireAnswer(bool inAnswered, const lumcore::UTF16String& inTitle) {
  LUM_INPUT_CONTRACT(ui::Application::Get() != nullptr);
  if (inAnswered || !ui::Application::Get()->IsHeadless()) return;
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(
          "$$$/lumui/dialogs/Error/UnansweredDialog=Nobody answers the dialog \"@0\" in a run "
          "without a display"),
      {inTitle}));
}

}  // namespace lumui::dialogs
