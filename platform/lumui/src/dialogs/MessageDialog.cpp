// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/MessageDialog.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <utility>

#include "dialogs/ModalDialog.h"
#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/console/Console.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Window.h"
#include "ui/NodePeer.h"

namespace lumui::dialogs {

namespace {

using lumcore::UTF16String;

DialogAnswerer& CurrentAnswerer() {
  static DialogAnswerer sAnswerer;
  return sAnswerer;
}

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

[[noreturn]] void Fail(const char* inKey, const MessageDialogArgs& inArgs) {
  UTF16String buttons;
  for (const UTF16String& button : inArgs.buttons) {
    if (!buttons.empty()) buttons += lumcore::utility::ToUTF16(" | ");
    buttons += button;
  }
  const UTF16String text =
      lumcore::utility::ReplaceInString(Localized(inKey), {inArgs.title, inArgs.text, buttons});
  std::fprintf(stderr, "%s\n", lumcore::utility::ToStdString(text).c_str());
  throw lumcore::config::Error(text);
}

QMessageBox::Icon QtFromIcon(MessageIcon inIcon) {
  switch (inIcon) {
    case MessageIcon::kNone:
      return QMessageBox::NoIcon;
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kWarning:
      return QMessageBox::Warning;
    case MessageIcon::kError:
      return QMessageBox::Critical;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

std::vector<QAbstractButton*> AddButtons(QMessageBox& ioBox, const MessageDialogArgs& inArgs) {
  std::vector<QAbstractButton*> buttons;
  for (const UTF16String& text : inArgs.buttons) {
    // One role for all: by their roles Qt would put them in the desktop's own order.
    QPushButton* const button = ioBox.addButton(drawbot::ToQt(text), QMessageBox::ActionRole);
    if (static_cast<int>(buttons.size()) == inArgs.defaultButton) ioBox.setDefaultButton(button);
    if (static_cast<int>(buttons.size()) == inArgs.cancelButton) ioBox.setEscapeButton(button);
    buttons.push_back(button);
  }
  return buttons;
}

// The application quits, and nobody has read it.
void LogUnanswered(const MessageDialogArgs& inArgs) {
  lumcore::console::ConsoleLogFile::WriteProblem(lumcore::utility::ToStdString(inArgs.title) +
                                                 ": " + lumcore::utility::ToStdString(inArgs.text));
}

int RunBox(const MessageDialogArgs& inArgs, std::optional<int> inAnswer) {
  QWidget* const owner = inArgs.owner ? inArgs.owner->GetPeer()->GetWidget() : nullptr;
  // On the heap and watched: the owner may be destroyed while the box is open, and the box with it.
  const QPointer<QMessageBox> box = new QMessageBox(owner);
  box->setIcon(QtFromIcon(inArgs.icon));
  box->setTextFormat(Qt::PlainText);
  box->setWindowTitle(drawbot::ToQt(inArgs.title));
  box->setText(drawbot::ToQt(inArgs.text));
  const auto buttons = AddButtons(*box, inArgs);
  if (inAnswer) {
    QAbstractButton* const answer = buttons[static_cast<std::size_t>(*inAnswer)];
    QTimer::singleShot(0, answer, [answer] { answer->click(); });
  }
  RunModalDialog(*box);
  if (!box) {
    if (inArgs.cancelButton >= 0) return inArgs.cancelButton;
    Fail("$$$/lumui/dialogs/Error/OwnerGone=The box \"@0\" (@1) closed with its window: @2",
         inArgs);
  }
  QAbstractButton* const clicked = box->clickedButton();
  if (!clicked) LogUnanswered(inArgs);
  int result = inArgs.defaultButton;
  if (inArgs.cancelButton >= 0) {
    result = inArgs.cancelButton;
  } else if (inArgs.quitButton >= 0) {
    result = inArgs.quitButton;
  }
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    if (buttons[i] == clicked) result = static_cast<int>(i);
  }
  delete box;
  return result;
}

}  // namespace

DialogAnswerer SetDialogAnswerer(DialogAnswerer inAnswerer) {
  return std::exchange(CurrentAnswerer(), std::move(inAnswerer));
}

int RunMessageDialog(const MessageDialogArgs& inArgs) {
  LUM_INPUT_CONTRACT(ui::Application::Get() != nullptr);
  MessageDialogArgs args = inArgs;
  if (args.buttons.empty()) args.buttons.push_back(Localized("$$$/lumui/dialogs/OK=OK"));
  const int count = static_cast<int>(args.buttons.size());
  LUM_INPUT_CONTRACT(args.defaultButton >= 0 && args.defaultButton < count);
  LUM_INPUT_CONTRACT(args.cancelButton >= -1 && args.cancelButton < count);
  if (count == 1) args.cancelButton = 0;
  // A copy: an answerer may put another in its place.
  const DialogAnswerer answerer = CurrentAnswerer();
  const std::optional<int> answer = answerer ? answerer(args) : std::nullopt;
  if (answer && (*answer < 0 || *answer >= count)) {
    Fail(
        "$$$/lumui/dialogs/Error/NoSuchButton=The box \"@0\" (@1) was answered with a button that "
        "it does not have: @2",
        args);
  }
  if (!answer && ui::Application::Get()->IsHeadless()) {
    Fail(
        "$$$/lumui/dialogs/Error/Unanswered=Nobody answers the box \"@0\" in a run without a "
        "display: @1 [@2]",
        args);
  }
  return RunBox(args, answer);
}

}  // namespace lumui::dialogs
