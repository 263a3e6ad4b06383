// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <string>
#include <vector>

#include "ApplicationCommands.h"
#include "CommandSystem.h"
#include "ListCommands.h"
#include "MapCommands.h"
#include "OutlineSearch.h"
#include "lumcore/filesupport/File.h"
#include "vek/app/MultiDocApplication.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumworkspace::sharedui {
class WorkspaceSwitcher;
}

namespace vek::workspaceutils {
class WorkspacesCmdAttachment;
}

namespace outliner {

class DocumentFrame;
class DocumentPane;
class OutlineDocument;
class OutlinerMenus;

// The application: its hooks for the framework, and its documents. One at a time, made behind the
// application object of the window system and gone before it:
//
//   OutlinerApp app(options);
//   app.Start(); app.OpenOutline(file); app.RunEventLoop(); app.End();
//
// Settings are written only after they were read, so that a start that fails overwrites none.
class OutlinerApp final : public vek::app::MultiDocApplication {
 public:
  using File = lumcore::filesupport::File;

  struct Options {
    CommandFiles files;
    std::string keys;            // a user's key map; empty for none
    std::string settingsFolder;  // empty for the system's place for the user's settings
    bool beginsOutline = false;  // starts with a new outline, which the first painting shows
  };

  explicit OutlinerApp(const Options& inOptions);
  ~OutlinerApp() override;

  // Throws what a stage of the start throws, or an Error where there is no window. End is to be
  // called in any case. Documents that are open then are closed without a question.
  void Start();
  void End();
  // Keeps the workspace and the settings now and ends the event loop, without a question, as the
  // end of a session does.
  void Quit() { EndEventLoopDuringSessionEnd(); }

  // A new outline without a file, which becomes the current one.
  OutlineDocument& NewOutline();
  // Makes the document current that has the file already, or else reads it; throws what that
  // throws. A pristine document gives way to it.
  OutlineDocument& OpenOutline(const File& inFile);
  // A new outline that is written to the file when it is saved. Throws for a file that is there.
  OutlineDocument& BeginOutline(const File& inFile);
  void ShowOutline(OutlineDocument& inDocument);
  // Each asks about changes. False when something has stayed open.
  bool CloseOutline(OutlineDocument& inDocument);
  bool CloseAllOutlines();

  OutlineDocument* GetOutline() const;  // the current one, or null
  std::vector<OutlineDocument*> GetOutlines() const;
  lumcore::UTF16String GetFolderOfOutline() const;           // empty where it has no file
  std::vector<lumcore::UTF16String> GetRecentFiles() const;  // most recent first
  // From 0, the darkest, to 1; kept in the settings.
  void SetBrightness(float inBrightness);

  // Panels, each by the command that shows it. One in front is closed by that, one that is not is
  // brought to the front and gets the keyboard.
  bool IsPanelInFront(int inCommand) const;
  void TogglePanel(int inCommand);
  MapPane* FindMap() const;        // null while none is in front
  DocumentPane* FindPane() const;  // of the current document, or null
  // Gives the keyboard to the rows of the current outline, if they are on screen.
  void FocusRows();
  // What is looked for. Find asks for it, the other selects the next row that has it, or the one
  // before, and asks where there is none.
  SearchWish& GetSearchWish() { return mSearchWish; }
  void Find();
  void FindNext(bool inForward);
  // Puts the panels of a built-in workspace back, if the user agrees.
  bool CanResetWorkspace() const;
  void ResetWorkspace();

  CommandSystem& GetCommandSystem() { return *mCommandSystem; }  // from Start to End
  lumui::ui::OS_Window* FindMainWindow() const;                  // null while there is none

 protected:
  lumcore::config::ErrorManager* InitErrorManager(vek::app::AppInitArgs&) override;
  lumcore::config::Localizer* InitLocalizer(vek::app::AppInitArgs&) override;
  std::auto_ptr<lumcore::xml::DocParserFactory> InitXMLParserFactory() override;
  lumcore::UTF16String GetClientName() override;
  lumcore::UTF16String GetClientVersion() override;
  lumcore::UTF16String GetClientInternalVersion() override;
  lumcore::UTF16String GetCompanyName() override;
  lumcore::UTF16String GetClientBuildNumber() override;
  bool UseCustomPrefsDir() const override { return !mOptions.settingsFolder.empty(); }
  lumcore::UTF16String GetAppPrefsDir() override;

  void OnWorkspaceReady(lumworkspace::workspace::Workspace* inWorkspace) override;
  lumworkspace::workspace::BuiltInWorkspaceProviderBase* InitWorkspaceProvider() override;
  lumworkspace::workspace::ManagerBase* InitWorkspaceManager() override;
  lumworkspace::workspace::PlatformMenuHelperBase* InitWorkspaceMenuHelper(
      lumworkspace::workspace::ManagerBase& inManager) override;
  lumcore::UTF16String GetDefaultWorkspaceName() const override;
  void ApplyDefaultWorkspace() override;
  void SaveDefaultWorkSpace() override;
  void DoIdle() override;
  void DoPostEventProcessing(const lumui::ui::OS_Event& inEvent) override;
  void RegisterApplicationCommands() override;
  bool InitApplication(vek::app::AppInitArgs& inArgs) override;
  void TerminateApplication() override;
  void MenubarCreateHook(HMENU inMenubar) override;
  void DoBeforeMenuPopup(HMENU inMenu) override;
  void LoadAppSettings() override;
  void SaveAppSettings() override;
  bool DoAppCanQuit() override;
  void EndEventLoopDuringSessionEnd() override;

  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;

 public:
  void RebuildMenuState(HMENU inMenu) override;

 private:
  OutlineDocument& Add(std::unique_ptr<OutlineDocument> inDocument);
  std::unique_ptr<OutlineDocument> Make(const File& inFile);
  OutlineDocument* FindOutline(const File& inFile) const;  // null where none has it
  void CheckFileOf(const OutlineDocument& inDocument, const File& inFile) const;
  void LoadKeys();
  void MakeFrame();
  void ShowOutlinePanel();
  void RegisterToolPanels(lumworkspace::workspace::Workspace& ioWorkspace);
  lumcore::proplist::PropList& GetFilesSettings();
  void KeepFilesPlace() const;
  void RunFromList(int inCommand);
  void DocumentStateChanged();
  void RemoveWorkspaceCommands();

  Options mOptions;
  SearchWish mSearchWish;
  std::unique_ptr<CommandSystem> mCommandSystem;
  ApplicationCommands mCommands{*this};
  MapCommands mMapCommands{[this] { return FindMap(); }};
  ListCommands mListCommands{[this] { return FindPane(); }, [this] { ShowOutlinePanel(); }};
  std::unique_ptr<OutlinerMenus> mMenus;
  std::unique_ptr<vek::workspaceutils::WorkspacesCmdAttachment> mWorkspaceCommands;
  std::unique_ptr<lumworkspace::sharedui::WorkspaceSwitcher> mSwitcher;
  boost::intrusive_ptr<DocumentFrame> mFrame;
  bool mSettingsAreRead = false;
  bool mIsAskingToQuit = false;
  bool mCommandStatesAreStale = true;
  bool mWorkspaceFailureIsTold = false;
};

}  // namespace outliner
