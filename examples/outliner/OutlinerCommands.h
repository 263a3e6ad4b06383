// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace outliner {

// The commands of the host, as the command chain passes them. The command file has a record for
// each of these ids and for no other; key maps know the commands by the names that stand there.
enum Command : int {
  kCommandsBegin = 1001,
  kCommandNewSibling = kCommandsBegin,
  kCommandNewChild,
  kCommandDelete,
  kCommandIndent,
  kCommandOutdent,
  kCommandMoveUp,
  kCommandMoveDown,
  kCommandEditText,
  kCommandSelectNext,
  kCommandSelectPrevious,
  kCommandSelectAll,
  kCommandUndo,
  kCommandRedo,
  kCommandSave,
  kCommandClose,
  kCommandQuit,
  kCommandGiveUpText,
  kCommandNew,
  kCommandOpen,
  kCommandSaveAs,
  kCommandCloseAll,
  kCommandNextDocument,
  kCommandPreviousDocument,
  kCommandAbout,
  kCommandDarkest,
  kCommandDark,
  kCommandLight,
  kCommandLightest,
  kCommandShowOutline,
  kCommandShowNotes,
  kCommandShowCommands,
  kCommandWorkspaceNew,
  kCommandWorkspaceSave,
  kCommandWorkspaceRevert,
  kCommandWorkspaceReset,
  kCommandWorkspaceDelete,
  kCommandWorkspaceEdit,
  kCommandShowMap,
  kCommandMapSelect,
  kCommandMapHand,
  kCommandMapZoom,
  kCommandMapZoomIn,
  kCommandMapZoomOut,
  kCommandMapActualSize,
  kCommandMapFit,
  kCommandMapGoToRow,
  kCommandShortcuts,
  kCommandKeyboardMap,
  kCommandOwnFileDialog,
  kCommandShowFiles,
  kCommandShowConsole,
  kCommandShowNodes,
  kCommandFind,
  kCommandExpandAll,
  kCommandCollapseAll,
  kCommandOutlineOrder,
  kCommandShowProperties,
  kCommandShowHistory,
  kCommandShowSearch,
  kCommandFindText,
  kCommandFindNext,
  kCommandFindPrevious,
  kCommandsEnd,

  // Menu items that have neither a name nor keys: the recent files, the open documents and the
  // workspaces, in the order of their menus. Menus send no more than 16 bits of an id.
  kRecentFilesBegin = 2000,
  kRecentFilesEnd = 2050,
  kDocumentsBegin = 2100,
  kDocumentsEnd = 2600,
  kWorkspacesBegin = 2700,
  kWorkspacesEnd = 2800,
};

constexpr bool IsOwnCommand(int inCommand) {
  return inCommand >= kCommandsBegin && inCommand < kCommandsEnd;
}

}  // namespace outliner
