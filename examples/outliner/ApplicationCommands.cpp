// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ApplicationCommands.h"

#include <algorithm>

#include "FileQuestions.h"
#include "OutlineDocument.h"
#include "OutlinerApp.h"
#include "OutlinerCommands.h"
#include "OwnFileDialog.h"
#include "RowEditor.h"
#include "Shortcuts.h"
#include "Texts.h"
#include "lumcore/config/ClientInfo.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/Theme.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::File;
using vek::uisupport::CommandEnableQuery;

namespace {

bool IsIn(int inCommand, int inBegin, int inEnd) {
  return inCommand >= inBegin && inCommand < inEnd;
}

}  // namespace

ApplicationCommands::ApplicationCommands(OutlinerApp& inApp) : mApp(inApp) {
  const auto always = [] { return true; };
  const auto hasDocument = [this] { return mApp.GetOutline() != nullptr; };
  const auto hasSeveral = [this] { return mApp.GetOutlines().size() > 1; };
  mEntries[kCommandNew] = {always, [this] { mApp.NewOutline(); }, nullptr};
  mEntries[kCommandOpen] = {always, [this] { AskForFile(); }, nullptr};
  mEntries[kCommandClose] = {hasDocument, [this] { mApp.CloseOutline(*mApp.GetOutline()); },
                             nullptr};
  mEntries[kCommandCloseAll] = {hasDocument, [this] { mApp.CloseAllOutlines(); }, nullptr};
  mEntries[kCommandQuit] = {always, [this] { mApp.EndEventLoop(); }, nullptr};
  mEntries[kCommandNextDocument] = {hasSeveral, [this] { Step(1); }, nullptr};
  mEntries[kCommandPreviousDocument] = {hasSeveral, [this] { Step(-1); }, nullptr};
  mEntries[kCommandFindText] = {always, [this] { mApp.Find(); }, nullptr};
  mEntries[kCommandFindNext] = {hasDocument, [this] { mApp.FindNext(true); }, nullptr};
  mEntries[kCommandFindPrevious] = {hasDocument, [this] { mApp.FindNext(false); }, nullptr};
  mEntries[kCommandAbout] = {always, [this] { ShowAbout(); }, nullptr};
  mEntries[kCommandShortcuts] = {always, [this] { EditShortcuts(mApp); }, nullptr};
  mEntries[kCommandKeyboardMap] = {always, [this] { EditKeyboardMap(mApp); }, nullptr};
  mEntries[kCommandOwnFileDialog] = {always, [] { SetUsesOwnFileDialog(!UsesOwnFileDialog()); },
                                     &UsesOwnFileDialog};
  mEntries[kCommandWorkspaceReset] = {[this] { return mApp.CanResetWorkspace(); },
                                      [this] { mApp.ResetWorkspace(); }, nullptr};
  for (const int panel :
       {kCommandShowOutline, kCommandShowNotes, kCommandShowCommands, kCommandShowMap,
        kCommandShowFiles, kCommandShowConsole, kCommandShowNodes, kCommandShowProperties,
        kCommandShowHistory, kCommandShowSearch}) {
    mEntries[panel] = {always, [this, panel] { mApp.TogglePanel(panel); },
                       [this, panel] { return mApp.IsPanelInFront(panel); }};
  }
  AddBrightness();
}

// The positions that theme documents have: between the middle two the colours jump.
void ApplicationCommands::AddBrightness() {
  const struct {
    int command;
    float brightness;
  } kPositions[] = {{kCommandDarkest, 0.0f},
                    {kCommandDark, 0.5f},
                    {kCommandLight, 0.5001f},
                    {kCommandLightest, 1.0f}};
  for (const auto& position : kPositions) {
    const float brightness = position.brightness;
    mEntries[position.command] = {
        [] { return true; }, [this, brightness] { mApp.SetBrightness(brightness); },
        [brightness] { return lumui::ui::Theme::GetBrightness() == brightness; }};
  }
}

bool ApplicationCommands::DoUnifiedDispatch(int inCommand, CommandEnableQuery* ioQuery) {
  if (IsIn(inCommand, kRecentFilesBegin, kRecentFilesEnd)) {
    return DispatchRecentFile(static_cast<std::size_t>(inCommand - kRecentFilesBegin), ioQuery);
  }
  if (IsIn(inCommand, kDocumentsBegin, kDocumentsEnd)) {
    return DispatchDocument(static_cast<std::size_t>(inCommand - kDocumentsBegin), ioQuery);
  }
  const auto found = mEntries.find(inCommand);
  if (found == mEntries.end()) return false;
  const Entry& entry = found->second;
  if (ioQuery) {
    *ioQuery->enabled = entry.isEnabled();
    if (entry.isChecked) *ioQuery->checked = entry.isChecked();
  } else if (entry.isEnabled()) {
    // What was typed is part of its outline before anything else happens to that.
    if (mApp.GetOutline()) mApp.GetOutline()->CommitTyping();
    entry.execute();
  }
  return true;
}

// A file that has gone since the menu opened is an error of its own, with its path.
bool ApplicationCommands::DispatchRecentFile(std::size_t inIndex, CommandEnableQuery* ioQuery) {
  const auto paths = mApp.GetRecentFiles();
  if (inIndex >= paths.size()) return false;
  const File file(paths[inIndex]);
  if (ioQuery) {
    *ioQuery->enabled = file.Exists();
  } else {
    mApp.OpenOutline(file);
  }
  return true;
}

bool ApplicationCommands::DispatchDocument(std::size_t inIndex, CommandEnableQuery* ioQuery) {
  const auto documents = mApp.GetOutlines();
  if (inIndex >= documents.size()) return false;
  if (ioQuery) {
    *ioQuery->enabled = true;
    *ioQuery->checked = documents[inIndex] == mApp.GetOutline();
  } else {
    mApp.ShowOutline(*documents[inIndex]);
  }
  return true;
}

void ApplicationCommands::AskForFile() {
  const UTF16String path = AskForFileToOpen(mApp.GetFolderOfOutline(), mApp.FindMainWindow());
  if (!path.empty()) mApp.OpenOutline(File(path));
}

void ApplicationCommands::Step(int inDistance) {
  const auto documents = mApp.GetOutlines();
  const auto current = std::find(documents.begin(), documents.end(), mApp.GetOutline());
  const auto count = static_cast<int>(documents.size());
  const int next = (static_cast<int>(current - documents.begin()) + inDistance + count) % count;
  mApp.ShowOutline(*documents[static_cast<std::size_t>(next)]);
}

void ApplicationCommands::ShowAbout() {
  lumui::dialogs::MessageDialogArgs args;
  args.title = Localized("$$$/outliner/About/Title=About outliner");
  args.text = lumcore::utility::ReplaceInString(
      Localized("$$$/outliner/About/Text=outliner @0\nEdits outlines in OPML files. It is the "
                "example of the vek framework, under the MIT licence."),
      {lumcore::config::GetClientVersion()});
  args.icon = lumui::dialogs::MessageIcon::kInformation;
  args.owner = mApp.FindMainWindow();
  lumui::dialogs::RunMessageDialog(args);
}

}  // namespace outliner
