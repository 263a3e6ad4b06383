// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/TextDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <utility>

#include "dialogs/AnsweredDialog.h"
#include "drawbot/QtConvert.h"
#include "lumcore/config/ThrowError.h"
#include "ui/EventGate.h"

namespace lumui::dialogs {

namespace {

using lumcore::UTF16String;

constexpr int kFieldWidth = 280;

TextDialogAnswerer& CurrentAnswerer() {
  static TextDialogAnswerer sAnswerer;
  return sAnswerer;
}

}  // namespace

TextDialogAnswerer SetTextDialogAnswerer(TextDialogAnswerer inAnswerer) {
  return std::exchange(CurrentAnswerer(), std::move(inAnswerer));
}

TextDialogResult RunTextDialog(const TextDialogArgs& inArgs) {
  // A copy: an answerer may put another in its place.
  const TextDialogAnswerer answerer = CurrentAnswerer();
  const std::optional<TextDialogResult> answer = answerer ? answerer(inArgs) : std::nullopt;
  RequireAnswer(answer.has_value(), inArgs.title);
  if (answer && *answer && inArgs.check) {
    const UTF16String cause = inArgs.check(**answer);
    if (!cause.empty()) throw lumcore::config::Error(cause);
  }
  AnsweredDialog dialog(inArgs.title, inArgs.okButton, inArgs.owner);
  auto* const label = new QLabel(drawbot::ToQt(inArgs.label), dialog.Get());
  label->setTextFormat(Qt::PlainText);
  auto* const field = new QLineEdit(drawbot::ToQt(inArgs.initial), dialog.Get());
  field->setMinimumWidth(kFieldWidth);
  field->selectAll();
  label->setBuddy(field);
  auto* const cause = new QLabel(dialog.Get());
  cause->setTextFormat(Qt::PlainText);
  cause->setWordWrap(true);
  for (QWidget* const each :
       {static_cast<QWidget*>(label), static_cast<QWidget*>(field), static_cast<QWidget*>(cause)}) {
    dialog.Add(each);
  }
  const auto check = [&] {
    UTF16String text;
    if (inArgs.check) text = inArgs.check(drawbot::FromQt(field->text()));
    cause->setText(drawbot::ToQt(text));
    dialog.EnableOK(text.empty());
  };
  QObject::connect(field, &QLineEdit::textChanged, dialog.Get(),
                   [&] { ui::EventGate::Get()->RunGuarded(check); });
  check();
  std::function<bool()> act;
  if (answer) {
    act = [&] {
      if (*answer) field->setText(drawbot::ToQt(**answer));
      return answer->has_value();
    };
  }
  if (!dialog.Run(act)) return std::nullopt;
  return drawbot::FromQt(field->text());
}

}  // namespace lumui::dialogs
