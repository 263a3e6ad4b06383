// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerApp.h"

#include "DocumentFrame.h"
#include "OutlineDocument.h"
#include "OutlinerCommands.h"
#include "OutlinerMenus.h"
#include "Reports.h"
#include "SettingsFile.h"
#include "Texts.h"
#include "lumcore/config/CatalogueLocalizer.h"
#include "lumcore/config/ErrorManager.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/ParserFactory.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/Theme.h"
#include "lumworkspace/sharedui/WorkspaceSwitcher.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/document/DocumentTypeInfo.h"
#include "vek/uisupport/ReportError.h"
#include "vek/workspace/Workspace.h"
#include "vek/workspace/WorkspaceUtils.h"

// The application's life cycle. Its documents are in OutlinerDocuments.cpp.
namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace {

constexpr int kMenuBar = 1;
constexpr int kRecentFiles = 10;
constexpr const char* kBrightnessKey = "brightness";
constexpr const char* kColumnsKey = "outline columns";

}  // namespace

OutlinerApp::OutlinerApp(const Options& inOptions) : mOptions(inOptions) {
  using vek::document::DocumentTypeInfo;
  const boost::intrusive_ptr<DocumentTypeInfo> type(new DocumentTypeInfo(
      [](const DocumentTypeInfo&) { return new OutlineDocument; }, ToUTF16("outliner.outline"),
      Localized("$$$/outliner/Files/Outlines=Outlines (OPML)")));
  type->ExtensionPushBack(ToUTF16("opml"));
  GetDocumentFactory().RegisterDocumentType(type);
  SetMaximumRecentFiles(kRecentFiles);
  AddAttachment(&mCommands);
  AddAttachment(&mMapCommands);
  AddAttachment(&mListCommands);
}

OutlinerApp::~OutlinerApp() {
  RemoveAttachment(&mListCommands);
  RemoveAttachment(&mMapCommands);
  RemoveAttachment(&mCommands);
}

void OutlinerApp::Start() {
  vek::app::AppInitArgs args;
  args.resourceInstance = lumui::ui::ModuleOfAddress(reinterpret_cast<void*>(&ReportFailure));
  args.applicationInstance = args.resourceInstance;
  args.windowClassName = L"outliner";
  args.menuResourceID = kMenuBar;
  args.iconResourceID = 0;
  if (!Initialize(args, lumcore::config::FindProgramLocalizationDir("outliner"))) {
    lumcore::config::ThrowError("$$$/outliner/App/NoWindow=the main window could not be made");
  }
}

// The loop saves the workspace when it ends; a run by a script has had another.
void OutlinerApp::End() {
  SaveDefaultWorkSpace();
  CloseAnyOpenDocuments();
  Terminate();
}

lumui::ui::OS_Window* OutlinerApp::FindMainWindow() const {
  return GetWorkspace() ? GetWorkspace()->GetMainTopLevelWindow() : nullptr;
}

lumcore::config::ErrorManager* OutlinerApp::InitErrorManager(vek::app::AppInitArgs&) {
  return new lumcore::config::ErrorManager(&ReportFailure);
}

lumcore::config::Localizer* OutlinerApp::InitLocalizer(vek::app::AppInitArgs&) {
  return new lumcore::config::CatalogueLocalizer({"outliner"});
}

std::auto_ptr<lumcore::xml::DocParserFactory> OutlinerApp::InitXMLParserFactory() {
  return std::auto_ptr<lumcore::xml::DocParserFactory>(new lumcore::xml::DocParserFactory);
}

UTF16String OutlinerApp::GetClientName() {
  return ToUTF16("outliner");
}

UTF16String OutlinerApp::GetClientVersion() {
  return ToUTF16(OUTLINER_VERSION);
}

UTF16String OutlinerApp::GetClientInternalVersion() {
  return GetClientVersion();
}

UTF16String OutlinerApp::GetCompanyName() {
  return ToUTF16("vek");
}

UTF16String OutlinerApp::GetClientBuildNumber() {
  return {};
}

UTF16String OutlinerApp::GetAppPrefsDir() {
  return ToUTF16(mOptions.settingsFolder);
}

void OutlinerApp::RegisterApplicationCommands() {
  mCommandSystem = std::make_unique<CommandSystem>(mOptions.files);
  AutoDisableUserCmds(kCommandsBegin);
}

// The registry is loaded by now, which a key map takes its commands from. The workspace that the
// base applies wants the frame of the documents for its panel.
bool OutlinerApp::InitApplication(vek::app::AppInitArgs& inArgs) {
  LoadKeys();
  if (const float* const brightness = GetAppSettings().Find<float>(kBrightnessKey)) {
    SetBrightness(*brightness);
  }
  MakeFrame();
  if (!MultiDocApplication::InitApplication(inArgs)) return false;
  DocumentStateChanged();
  return true;
}

// A map that was named for this run stands for the user's own set.
void OutlinerApp::LoadKeys() {
  mCommandSystem->LoadKeys();
  const UTF16String set = GetAppSettings().Get(kCurrentSetKey, UTF16String());
  if (!mOptions.keys.empty()) {
    mCommandSystem->LoadUserKeys(File(mOptions.keys));
  } else if (!set.empty()) {
    mCommandSystem->LoadUserSet(set);
  }
}

void OutlinerApp::MakeFrame() {
  DocumentFrame::Functions functions;
  functions.show = [this](OutlineDocument& inDocument) { ShowOutline(inDocument); };
  functions.close = [this](OutlineDocument& inDocument) { CloseOutline(inDocument); };
  functions.openRowMenu = [this](const auto& inPlace) {
    mMenus->OpenRowMenu(*FindMainWindow(), inPlace);
  };
  functions.getColumns = [this] {
    const auto* const columns = GetAppSettings().Find<UTF16String>(kColumnsKey);
    return columns ? *columns : UTF16String();
  };
  functions.keepColumns = [this](const UTF16String& inColumns) {
    GetAppSettings().Set(kColumnsKey, inColumns);
  };
  functions.stateChanged = [this] { DocumentStateChanged(); };
  mFrame.reset(new DocumentFrame(functions));
}

void OutlinerApp::SetBrightness(float inBrightness) {
  GetAppSettings().Set(kBrightnessKey, inBrightness);
  lumui::ui::Theme::SetBrightness(inBrightness);
  lumui::ui::Theme::NotifyThemeChanged();
}

// The framework has written the settings before, without the recent files of this session.
void OutlinerApp::TerminateApplication() {
  MultiDocApplication::TerminateApplication();
  SaveAppSettings();
  RemoveWorkspaceCommands();
  mFrame.reset();
  mMenus.reset();
  mCommandSystem.reset();
}

void OutlinerApp::MenubarCreateHook(HMENU inMenubar) {
  mMenus = std::make_unique<OutlinerMenus>();
  mMenus->Build(inMenubar);
}

void OutlinerApp::DoBeforeMenuPopup(HMENU inMenu) {
  mMenus->ListRecentFiles(inMenu, GetRecentFiles());
  std::vector<UTF16String> titles;
  for (const OutlineDocument* document : GetOutlines())
    titles.push_back(DocumentFrame::TabTitleOf(*document));
  mMenus->ListDocuments(inMenu, titles);
}

void OutlinerApp::RebuildMenuState(HMENU inMenu) {
  MultiDocApplication::RebuildMenuState(inMenu);
  OutlinerMenus::SetMnemonics(inMenu);
}

// A file that cannot be understood is kept under another name for whoever wrote it, and the program
// starts as if there were none. One that cannot be read at all is left alone, also at the end.
void OutlinerApp::LoadAppSettings() {
  const File file(lumcore::filesupport::Dir::PrefDir(),
                  lumcore::utility::ToStdString(GetAppSettingsFileName()));
  try {
    try {
      MultiDocApplication::LoadAppSettings();
    } catch (const lumcore::filesupport::FileError&) {
      throw;
    } catch (const lumcore::config::Error& error) {
      const File kept = SetAside(file);
      vek::uisupport::ReportError(
          lumcore::utility::ReplaceInString(
              Localized("$$$/outliner/Settings/Defective=@0. The settings begin anew; the file is "
                        "now @1."),
              {error.GetText(), ToUTF16(kept.GetPath())}),
          0, true);
    }
    mSettingsAreRead = true;
  } catch (const lumcore::filesupport::FileError& error) {
    vek::uisupport::ReportError(
        lumcore::utility::ReplaceInString(
            Localized("$$$/outliner/Settings/Unreadable=@0. Settings are not kept this time."),
            {error.GetText()}),
        0, true);
  }
}

// What cannot be written must not keep the program from ending.
void OutlinerApp::SaveAppSettings() {
  if (!mSettingsAreRead) return;
  KeepFilesPlace();
  try {
    MultiDocApplication::SaveAppSettings();
  } catch (...) {  // the user hears of it, once
    mSettingsAreRead = false;
    ReportFailure(std::current_exception());
  }
}

// The system may end the process as soon as it has been told.
void OutlinerApp::EndEventLoopDuringSessionEnd() {
  SaveDefaultWorkSpace();
  SyncMRUList();
  SaveAppSettings();
  MultiDocApplication::EndEventLoopDuringSessionEnd();
}

bool OutlinerApp::DoHandleCommand(int) {
  return false;
}

bool OutlinerApp::DoCommandEnabled(int, bool&, bool&, UTF16String&) {
  return false;
}

}  // namespace outliner
