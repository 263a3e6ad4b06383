// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The application's panels, and the workspaces that they stand in.

#include "ArchivedPanels.h"
#include "BuiltInWorkspaces.h"
#include "CommandsPane.h"
#include "CommandsView.h"
#include "DocumentFrame.h"
#include "FilesPane.h"
#include "HistoryView.h"
#include "MapPane.h"
#include "NotesView.h"
#include "OutlineDocument.h"
#include "OutlinerApp.h"
#include "OutlinerCommands.h"
#include "OutlinerMenus.h"
#include "OutlinerWorkspaces.h"
#include "Panels.h"
#include "Reports.h"
#include "ScriptConsole.h"
#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/OS_Event.h"
#include "lumworkspace/sharedui/WorkspaceSwitcher.h"
#include "lumworkspace/workspace/PlatformMenuHelper.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/Workspace.h"
#include "lumworkspace/workspace/WorkspaceFrameBase.h"
#include "vek/uisupport/ReportError.h"
#include "vek/workspace/GenericPanelRegistry.h"
#include "vek/workspace/ViewDebuggerTabCreator.h"
#include "vek/workspace/WorkspaceUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::UTF8String;
using namespace lumworkspace::workspace;

namespace {

// Of panels that the workspace has no place for.
constexpr int kNotesHeight = 170;
constexpr int kCommandsWidth = 380;
constexpr int kMapWidth = 480;
constexpr int kFilesWidth = 260;
constexpr int kConsoleHeight = 200;

constexpr const char* kFilesKey = "files";

template <class View>
View* FindView(const Workspace* inWorkspace, const UTF8String& inTabType) {
  auto* const panel =
      inWorkspace ? dynamic_cast<ViewPanel*>(inWorkspace->FindTab(inTabType)) : nullptr;
  return panel ? dynamic_cast<View*>(&panel->GetView()) : nullptr;
}

class BesideRowsCreator final : public PanelCreator {
 public:
  using PanelCreator::PanelCreator;
  TabPlace GetDefaultPlace(const Workspace& inWorkspace) const override {
    return PlaceBesideRows(inWorkspace);
  }
};

UTF8String PanelOf(int inCommand) {
  UTF8String type;
  auto& archived = vek::workspace::GenericPanelRegistry::GetInstance();
  if (archived.GetTabTypeForCommand(inCommand, type)) return type;
  return inCommand == kCommandShowOutline   ? OutlinePanel()
         : inCommand == kCommandShowNotes   ? NotesPanel()
         : inCommand == kCommandShowMap     ? MapPanel()
         : inCommand == kCommandShowHistory ? HistoryPanel()
         : inCommand == kCommandShowFiles   ? FilesPanel()
         : inCommand == kCommandShowConsole ? ConsolePanel()
         : inCommand == kCommandShowNodes   ? NodesPanel()
                                            : CommandsPanel();
}

}  // namespace

// Only what makes the panels is registered here: the window that they stand in comes later.
void OutlinerApp::OnWorkspaceReady(Workspace* inWorkspace) {
  TabPlace place;
  place.area = kDockLeft;
  inWorkspace->RegisterTabCreator(new PanelCreator(
      OutlinePanel(), "$$$/outliner/Panel/Outline=Outline", place, [this] { return mFrame; }));
  place.besideType = OutlinePanel();
  place.where = TabPlace::kBelow;
  place.size = kNotesHeight;
  inWorkspace->RegisterTabCreator(new PanelCreator(
      NotesPanel(), "$$$/outliner/Panel/Notes=Notes", place,
      [this] { return boost::intrusive_ptr<lumui::ui::UI_SubView>(new NotesView(GetOutline())); }));
  place.where = TabPlace::kRightOf;
  place.size = kCommandsWidth;
  inWorkspace->RegisterTabCreator(
      new PanelCreator(CommandsPanel(), "$$$/outliner/Panel/Commands=Commands", place, [this] {
        return boost::intrusive_ptr<lumui::ui::UI_SubView>(
            new CommandsPane([this](int inCommand) { RunFromList(inCommand); }));
      }));
  place.size = kMapWidth;
  inWorkspace->RegisterTabCreator(
      new PanelCreator(MapPanel(), "$$$/outliner/Panel/Map=Map", place, [this] {
        MapPane::Functions functions;
        functions.focusOutline = [this] {
          ShowOutlinePanel();
          mFrame->FocusRows();
        };
        functions.openRowMenu = [this](const auto& inPlace) {
          mMenus->OpenRowMenu(*FindMainWindow(), inPlace);
        };
        return boost::intrusive_ptr<lumui::ui::UI_SubView>(new MapPane(GetOutline(), functions));
      }));
  inWorkspace->RegisterTabCreator(new BesideRowsCreator(
      HistoryPanel(), "$$$/outliner/Panel/History=History", TabPlace(),
      [] { return boost::intrusive_ptr<lumui::ui::UI_SubView>(new HistoryPane); }));
  PlaceArchivedPanels(*inWorkspace);
  RegisterToolPanels(*inWorkspace);
}

// What helps beside the work on an outline.
void OutlinerApp::RegisterToolPanels(Workspace& ioWorkspace) {
  TabPlace place;
  place.besideType = OutlinePanel();
  place.where = TabPlace::kLeftOf;
  place.size = kFilesWidth;
  ioWorkspace.RegisterTabCreator(
      new PanelCreator(FilesPanel(), "$$$/outliner/Panel/Files=Files", place, [this] {
        return boost::intrusive_ptr<lumui::ui::UI_SubView>(new FilesPane(
            GetFilesSettings(), [this](const File& inFile) { OpenOutline(inFile); },
            [this] { return GetFolderOfOutline(); }));
      }));
  place.where = TabPlace::kBelow;
  place.size = kConsoleHeight;
  ioWorkspace.RegisterTabCreator(new PanelCreator(
      ConsolePanel(), "$$$/outliner/Panel/Console=Script Console", place,
      [] { return boost::intrusive_ptr<lumui::ui::UI_SubView>(new ScriptConsole); }));
  ioWorkspace.RegisterTabCreator(new vek::workspace::ViewDebuggerTabCreator);
}

// A list of its own, as the folders' paths are keys in it.
lumcore::proplist::PropList& OutlinerApp::GetFilesSettings() {
  auto& settings = GetAppSettings();
  auto* const files = settings.GetSubList(kFilesKey);
  return files ? *files : settings.CreateSubList(kFilesKey);
}

void OutlinerApp::KeepFilesPlace() const {
  if (const auto* const files = FindView<FilesPane>(GetWorkspace(), FilesPanel()))
    files->SaveState();
}

UTF16String OutlinerApp::GetFolderOfOutline() const {
  const OutlineDocument* const current = GetOutline();
  const bool hasFile = current && !current->GetProjectFile().GetPath().empty();
  return hasFile ? current->Parent().FullPath() : UTF16String();
}

BuiltInWorkspaceProviderBase* OutlinerApp::InitWorkspaceProvider() {
  return new BuiltInWorkspaces;
}

ManagerBase* OutlinerApp::InitWorkspaceManager() {
  return new OutlinerWorkspaces(*GetWorkspace(), *GetWorkspaceProvider());
}

PlatformMenuHelperBase* OutlinerApp::InitWorkspaceMenuHelper(ManagerBase& inManager) {
  auto* const helper = new PlatformMenuHelper(inManager, mMenus->GetWorkspaceMenu(),
                                              kWorkspacesBegin, kWorkspacesEnd - 1);
  RemoveWorkspaceCommands();
  mWorkspaceCommands = std::make_unique<vek::workspaceutils::WorkspacesCmdAttachment>(
      *GetWorkspace(), inManager, *helper, kCommandWorkspaceNew, kCommandWorkspaceRevert,
      kCommandWorkspaceDelete, kCommandWorkspaceSave, kCommandWorkspaceEdit);
  AddAttachment(mWorkspaceCommands.get());
  mSwitcher = std::make_unique<lumworkspace::sharedui::WorkspaceSwitcher>(
      *GetWorkspace()->GetMainTopLevelWindow(), inManager);
  return helper;
}

// Before what they work with goes.
void OutlinerApp::RemoveWorkspaceCommands() {
  if (mWorkspaceCommands) RemoveAttachment(mWorkspaceCommands.get());
  mWorkspaceCommands.reset();
  mSwitcher.reset();
}

UTF16String OutlinerApp::GetDefaultWorkspaceName() const {
  return BuiltInWorkspaces::GetDefaultName();
}

// A workspace that cannot be read must not keep the program from starting: there is an outline to
// work on in any case.
void OutlinerApp::ApplyDefaultWorkspace() {
  try {
    MultiDocApplication::ApplyDefaultWorkspace();
  } catch (const lumcore::config::Error& error) {
    vek::uisupport::ReportError(error.GetText(), 0, true);
    GetWorkspace()->OpenTab(OutlinePanel());
  }
  if (mOptions.beginsOutline) NewOutline();
}

// What cannot be written must not keep the program from ending. It is tried once more when the
// window goes; the user has heard of it then.
void OutlinerApp::SaveDefaultWorkSpace() {
  try {
    MultiDocApplication::SaveDefaultWorkSpace();
  } catch (...) {
    if (!mWorkspaceFailureIsTold) ReportFailure(std::current_exception());
    mWorkspaceFailureIsTold = true;
  }
}

bool OutlinerApp::CanResetWorkspace() const {
  return static_cast<const OutlinerWorkspaces&>(*GetWorkspaceManager()).CanReset();
}

void OutlinerApp::ResetWorkspace() {
  auto& workspaces = static_cast<OutlinerWorkspaces&>(*GetWorkspaceManager());
  lumui::dialogs::MessageDialogArgs args;
  args.title = Localized("$$$/outliner/Workspaces/ResetTitle=Reset the Workspace");
  args.text = lumcore::utility::ReplaceInString(
      Localized("$$$/outliner/Workspaces/Reset=Put all panels of the workspace \"@0\" back to "
                "where they stood at first?"),
      {workspaces.GetCurrentWorkspace()});
  args.buttons = {Localized("$$$/outliner/Workspaces/ResetButton=Reset"),
                  Localized("$$$/outliner/Workspaces/Cancel=Cancel")};
  args.cancelButton = 1;
  args.icon = lumui::dialogs::MessageIcon::kQuestion;
  args.owner = FindMainWindow();
  if (lumui::dialogs::RunMessageDialog(args) == 0) workspaces.Reset();
}

bool OutlinerApp::IsPanelInFront(int inCommand) const {
  const TabPanel* const panel = GetWorkspace()->FindTab(PanelOf(inCommand));
  return panel && panel->GetFrame() && panel->GetFrame()->IsInFront();
}

// A document that is shown is to be seen.
void OutlinerApp::ShowOutlinePanel() {
  if (IsPanelInFront(kCommandShowOutline)) return;
  GetWorkspace()->OpenTab(OutlinePanel());
  mFrame->FocusRows();
}

void OutlinerApp::TogglePanel(int inCommand) {
  const UTF8String type = PanelOf(inCommand);
  if (IsPanelInFront(inCommand)) {
    GetWorkspace()->CloseTab(type);
    mFrame->FocusRows();
    return;
  }
  GetWorkspace()->OpenTab(type);
  if (auto* const notes = FindView<NotesView>(GetWorkspace(), type)) notes->FocusField();
  if (auto* const commands = FindView<CommandsPane>(GetWorkspace(), type)) commands->FocusList();
  if (MapPane* const map = FindMap(); map && type == MapPanel()) map->FocusMap();
  if (auto* const history = FindView<HistoryPane>(GetWorkspace(), type)) history->FocusList();
  if (type == OutlinePanel()) mFrame->FocusRows();
  if (auto* const files = FindView<FilesPane>(GetWorkspace(), type)) files->FocusTree();
  if (auto* const console = FindView<ScriptConsole>(GetWorkspace(), type)) console->FocusInput();
  FocusArchivedPanel(*GetWorkspace(), type);
}

void OutlinerApp::FocusRows() {
  ShowOutlinePanel();
  mFrame->FocusRows();
}

void OutlinerApp::Find() {
  GetWorkspace()->OpenTab(SearchPanel());
  FocusArchivedPanel(*GetWorkspace(), SearchPanel());
}

void OutlinerApp::FindNext(bool inForward) {
  OutlineDocument* const document = GetOutline();
  if (!document) return;
  document->CommitTyping();
  OutlineRow* const row = search::FindNext(*document, TextSearch(mSearchWish.term), inForward);
  if (!row) {
    Find();
    return;
  }
  document->SelectRows({row});
  if (!IsPanelInFront(kCommandShowOutline)) GetWorkspace()->OpenTab(OutlinePanel());
}

MapPane* OutlinerApp::FindMap() const {
  return IsPanelInFront(kCommandShowMap) ? FindView<MapPane>(GetWorkspace(), MapPanel()) : nullptr;
}

DocumentPane* OutlinerApp::FindPane() const {
  return mFrame ? mFrame->FindCurrentPane() : nullptr;
}

// The command finds the keyboard where it would be if it came from a menu.
void OutlinerApp::RunFromList(int inCommand) {
  mFrame->FocusRows();
  CallCommandChain(inCommand);
}

void OutlinerApp::DocumentStateChanged() {
  mCommandStatesAreStale = true;
  if (auto* const window = FindMainWindow()) window->UI_SetTitle(mFrame->GetWindowTitle());
}

void OutlinerApp::DoPostEventProcessing(const lumui::ui::OS_Event& inEvent) {
  MultiDocApplication::DoPostEventProcessing(inEvent);
  if (inEvent.message != lumui::ui::kMessageMouseMove) mCommandStatesAreStale = true;
}

// The list of commands asks the chain once for many changes, and not at all while nobody sees it.
void OutlinerApp::DoIdle() {
  MultiDocApplication::DoIdle();
  if (!mCommandStatesAreStale || !IsPanelInFront(kCommandShowCommands)) return;
  mCommandStatesAreStale = false;
  FindView<CommandsPane>(GetWorkspace(), CommandsPanel())->GetList().Update();
}

}  // namespace outliner
