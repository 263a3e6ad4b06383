// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/ChoiceDialog.h"

#include <QLabel>
#include <QListWidget>
#include <utility>

#include "dialogs/AnsweredDialog.h"
#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"

namespace lumui::dialogs {

namespace {

ChoiceDialogAnswerer& CurrentAnswerer() {
  static ChoiceDialogAnswerer sAnswerer;
  return sAnswerer;
}

}  // namespace

ChoiceDialogAnswerer SetChoiceDialogAnswerer(ChoiceDialogAnswerer inAnswerer) {
  return std::exchange(CurrentAnswerer(), std::move(inAnswerer));
}

int RunChoiceDialog(const ChoiceDialogArgs& inArgs) {
  const int count = static_cast<int>(inArgs.items.size());
  // A copy: an answerer may put another in its place.
  const ChoiceDialogAnswerer answerer = CurrentAnswerer();
  const std::optional<int> answer = answerer ? answerer(inArgs) : std::nullopt;
  RequireAnswer(answer.has_value(), inArgs.title);
  LUM_INPUT_CONTRACT(!answer || (*answer >= -1 && *answer < count));
  AnsweredDialog dialog(inArgs.title, inArgs.okButton, inArgs.owner);
  auto* const label = new QLabel(drawbot::ToQt(inArgs.label), dialog.Get());
  label->setTextFormat(Qt::PlainText);
  auto* const list = new QListWidget(dialog.Get());
  for (const lumcore::UTF16String& item : inArgs.items)
    list->addItem(drawbot::ToQt(item));
  label->setBuddy(list);
  dialog.Add(label);
  dialog.Add(list);
  const auto check = [&] { dialog.EnableOK(list->currentRow() >= 0); };
  QObject::connect(list, &QListWidget::currentRowChanged, dialog.Get(), check);
  QObject::connect(list, &QListWidget::itemDoubleClicked, dialog.Get(), &QDialog::accept);
  list->setCurrentRow(inArgs.initial);
  check();
  std::function<bool()> act;
  if (answer) {
    act = [&] {
      list->setCurrentRow(*answer);
      return *answer >= 0;
    };
  }
  return dialog.Run(act) ? list->currentRow() : -1;
}

}  // namespace lumui::dialogs
