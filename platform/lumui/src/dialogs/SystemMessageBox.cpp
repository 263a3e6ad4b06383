// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/SystemMessageBox.h"

#include <cstddef>
#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumui/dialogs/MessageDialog.h"

namespace lumui::dialogs {

namespace {

constexpr int kNoButton = -1;

struct ButtonSet {
  unsigned flag;
  std::vector<int> results;  // one for each button, from the left
  int cancelButton;
  int quitButton = kNoButton;
};

// Where there is no Cancel, closing the box means the one button, or nothing. A quit says no.
const ButtonSet kButtonSets[] = {
    {kBoxOK, {kResultOK}, 0},
    {kBoxOKCancel, {kResultOK, kResultCancel}, 1},
    {kBoxAbortRetryIgnore, {kResultAbort, kResultRetry, kResultIgnore}, kNoButton},
    {kBoxYesNoCancel, {kResultYes, kResultNo, kResultCancel}, 2},
    {kBoxYesNo, {kResultYes, kResultNo}, kNoButton, 1},
    {kBoxRetryCancel, {kResultRetry, kResultCancel}, 1},
};

// In the order of the results, from kResultOK on.
constexpr const char* kButtonTexts[] = {
    "$$$/lumui/dialogs/Button/OK=OK",         "$$$/lumui/dialogs/Button/Cancel=Cancel",
    "$$$/lumui/dialogs/Button/Abort=Abort",   "$$$/lumui/dialogs/Button/Retry=Retry",
    "$$$/lumui/dialogs/Button/Ignore=Ignore", "$$$/lumui/dialogs/Button/Yes=Yes",
    "$$$/lumui/dialogs/Button/No=No",
};

const ButtonSet& FindButtonSet(unsigned inFlags) {
  for (const ButtonSet& set : kButtonSets) {
    if (set.flag == (inFlags & kBoxButtons)) return set;
  }
  return kButtonSets[0];
}

MessageIcon ToIcon(unsigned inFlags) {
  switch (inFlags & kBoxIcons) {
    case kBoxIconStop:
      return MessageIcon::kError;
    case kBoxIconCaution:
      return MessageIcon::kWarning;
    case kBoxIconNote:
      return MessageIcon::kInformation;
    default:
      return MessageIcon::kNone;
  }
}

}  // namespace

int ShowSystemMessageBox(ui::OS_Window* inOwner, const lumcore::UTF16String& inText,
                         const lumcore::UTF16String& inTitle, unsigned inFlags) {
  const ButtonSet& set = FindButtonSet(inFlags);
  MessageDialogArgs args;
  args.title = inTitle;
  args.text = inText;
  for (const int result : set.results) {
    args.buttons.push_back(
        lumcore::config::Localizer::Get()->GetLocalizedString(kButtonTexts[result - kResultOK]));
  }
  args.cancelButton = set.cancelButton;
  args.quitButton = set.quitButton;
  args.icon = ToIcon(inFlags);
  args.owner = inOwner;
  return set.results.at(static_cast<std::size_t>(RunMessageDialog(args)));
}

}  // namespace lumui::dialogs
