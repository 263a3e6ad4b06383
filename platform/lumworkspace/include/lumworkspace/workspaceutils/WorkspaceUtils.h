// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "lumcore/Strings.h"
#include "lumworkspace/Export.h"

namespace lumui::drawbot {
class SupplierInterface;
}

namespace lumworkspace::workspace {
class ManagerBase;
class TopLevelWindow;
}  // namespace lumworkspace::workspace

// What the commands of a workspace menu do, with the dialogs that belong to them. The window, which
// may be null, owns the dialogs. Each answers false when the user has cancelled, or there was
// nothing to do. What the manager throws passes.
//
// The dialogs are answered in tests and headless runs as lumui/dialogs/TextDialog.h,
// ChoiceDialog.h and MessageDialog.h tell, and the list of workspaces as below.
namespace lumworkspace::workspaceutils {

using Supplier = lumui::drawbot::SupplierInterface;
using Window = workspace::TopLevelWindow;
using Manager = workspace::ManagerBase;

// Asks for a name and saves what is on screen under it.
LUMWORKSPACE_API bool RequestCreateNewWorkspace(Supplier* inSupplier, Window* inWindow,
                                                Manager& ioManager);
// Asks whether to drop what has changed. Where there is a built-in one too, the user may go back to
// that.
LUMWORKSPACE_API bool ConfirmRevertCurrWorkspace(Supplier* inSupplier, Window* inWindow,
                                                 Manager& ioManager);
// Asks which one to delete. The last one cannot be.
LUMWORKSPACE_API bool ChooseDeleteWorkspace(Supplier* inSupplier, Window* inWindow,
                                            Manager& ioManager);
// Asks nothing.
LUMWORKSPACE_API bool SaveCurrentWorkspace(Supplier* inSupplier, Window* inWindow,
                                           Manager& ioManager);
// A list in which the user renames, moves and deletes; all of it is done when the user agrees.
LUMWORKSPACE_API bool ShowEditWorkspacesDialog(Supplier* inSupplier, Window* inWindow,
                                               Manager& ioManager);

// A row of that list: the name at the start and the one it shall have. Rows that are gone are
// workspaces to delete.
struct EditedWorkspace {
  lumcore::UTF16String oldName;
  lumcore::UTF16String newName;
};
using EditedWorkspaces = std::vector<EditedWorkspace>;
// Gets the rows at the start. The outer optional is the answer itself, the inner one empty for a
// cancel.
using EditWorkspacesAnswerer =
    std::function<std::optional<std::optional<EditedWorkspaces>>(const EditedWorkspaces&)>;
LUMWORKSPACE_API EditWorkspacesAnswerer
SetEditWorkspacesAnswerer(EditWorkspacesAnswerer inAnswerer);

}  // namespace lumworkspace::workspaceutils
