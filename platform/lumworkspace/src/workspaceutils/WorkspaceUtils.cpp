// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspaceutils/WorkspaceUtils.h"

#include <algorithm>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/ChoiceDialog.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/dialogs/TextDialog.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/TopLevelWindow.h"

namespace lumworkspace::workspaceutils {

using lumcore::UTF16String;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

UTF16String CancelButton() {
  return Localized("$$$/lumui/dialogs/Button/Cancel=Cancel");
}

// A name that is free, with the first number that makes it so.
UTF16String FreeName(const Manager& inManager) {
  for (int number = 1;; ++number) {
    const UTF16String name =
        lumcore::utility::ReplaceInString(Localized("$$$/lumworkspace/Dialog/NewName=Workspace @0"),
                                          {lumcore::utility::ToUTF16(std::to_string(number))});
    if (inManager.CheckName(name, UTF16String()).empty()) return name;
  }
}

}  // namespace

bool RequestCreateNewWorkspace(Supplier*, Window* inWindow, Manager& ioManager) {
  lumui::dialogs::TextDialogArgs args;
  args.title = Localized("$$$/lumworkspace/Dialog/New=New Workspace");
  args.label = Localized("$$$/lumworkspace/Dialog/Name=Name:");
  args.initial = FreeName(ioManager);
  args.okButton = Localized("$$$/lumworkspace/Dialog/Create=Create");
  args.owner = inWindow;
  args.check = [&](const UTF16String& inName) {
    return ioManager.CheckName(inName, UTF16String());
  };
  const auto name = lumui::dialogs::RunTextDialog(args);
  if (!name) return false;
  ioManager.SaveWorkspace(*name);
  return true;
}

bool ConfirmRevertCurrWorkspace(Supplier*, Window* inWindow, Manager& ioManager) {
  if (!ioManager.HasCurrentWorkspace()) return false;
  const UTF16String name = ioManager.GetCurrentWorkspace();
  const bool builtIn = ioManager.CanRevertToBuiltIn(name);
  lumui::dialogs::MessageDialogArgs args;
  args.title = Localized("$$$/lumworkspace/Dialog/Revert=Revert Workspace");
  args.text = lumcore::utility::ReplaceInString(
      Localized("$$$/lumworkspace/Dialog/RevertText=Shall the workspace \"@0\" be again what it "
                "was? What you have moved since is lost."),
      {name});
  args.buttons.push_back(Localized("$$$/lumworkspace/Dialog/ToSaved=As Saved"));
  if (builtIn) args.buttons.push_back(Localized("$$$/lumworkspace/Dialog/ToBuiltIn=As Built In"));
  args.buttons.push_back(CancelButton());
  args.cancelButton = static_cast<int>(args.buttons.size()) - 1;
  args.icon = lumui::dialogs::MessageIcon::kQuestion;
  args.owner = inWindow;
  const int button = lumui::dialogs::RunMessageDialog(args);
  if (button == args.cancelButton) return false;
  if (button == 1) return ioManager.RevertToBuiltIn(name);
  ioManager.RevertWorkspace(name);
  return true;
}

bool ChooseDeleteWorkspace(Supplier*, Window* inWindow, Manager& ioManager) {
  lumui::dialogs::ChoiceDialogArgs args;
  args.items = ioManager.GetWorkspaceNames();
  if (args.items.size() < 2) return false;
  args.title = Localized("$$$/lumworkspace/Dialog/Delete=Delete Workspace");
  args.label = Localized("$$$/lumworkspace/Dialog/DeleteText=Workspace to delete:");
  args.okButton = Localized("$$$/lumworkspace/Dialog/DeleteButton=Delete");
  args.owner = inWindow;
  const auto current =
      std::find(args.items.begin(), args.items.end(), ioManager.GetCurrentWorkspace());
  if (current != args.items.end()) args.initial = static_cast<int>(current - args.items.begin());
  const int chosen = lumui::dialogs::RunChoiceDialog(args);
  if (chosen < 0) return false;
  ioManager.DeleteWorkspace(args.items[static_cast<std::size_t>(chosen)]);
  return true;
}

bool SaveCurrentWorkspace(Supplier*, Window*, Manager& ioManager) {
  if (!ioManager.HasCurrentWorkspace()) return false;
  ioManager.SaveWorkspace(ioManager.GetCurrentWorkspace());
  return true;
}

}  // namespace lumworkspace::workspaceutils
