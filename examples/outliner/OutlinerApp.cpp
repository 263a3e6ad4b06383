// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerApp.h"

#include <utility>

#include "OutlinerCommands.h"
#include "Reports.h"
#include "lumui/ui/Application.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/MainWindowLookup.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

bool HasCommand(const lumui::ui::KeyboardEvent& inEvent) {
  bool endedHold = false;
  return vek::uisupport::KeyCommandManager::Get().GetCommandIdFromKeyEvent(inEvent, endedHold) != 0;
}

}  // namespace

OutlinerApp::OutlinerApp(std::function<void()> inQuit) : mQuit(std::move(inQuit)) {
  SetDefaultCommandHandler(this);
  vek::uisupport::SetMainWindowLookup([this] { return FindOpenWindow(); });
  auto* const application = lumui::ui::Application::Get();
  application->SetErrorFunction(&ReportFailure);
  application->SetShortcutClaim(&HasCommand);
}

OutlinerApp::~OutlinerApp() {
  auto* const application = lumui::ui::Application::Get();
  application->SetShortcutClaim(nullptr);
  application->SetErrorFunction(nullptr);
  vek::uisupport::SetMainWindowLookup({});
}

OutlineWindow* OutlinerApp::FindOpenWindow() const {
  return mWindow && mWindow->UI_GetHandle() ? mWindow.get() : nullptr;
}

OutlineWindow& OutlinerApp::Show(std::unique_ptr<OutlineDocument> inDocument) {
  mWindow.reset(new OutlineWindow(std::move(inDocument), this));
  mWindow->SetClosedFunction(mQuit);
  mWindow->SetAsCurrentCommandHandler(true);
  mWindow->UI_Activate();
  mWindow->FocusRows();
  return *mWindow;
}

bool OutlinerApp::DoHandleCommand(int inCommand) {
  if (inCommand != kCommandQuit) return false;
  if (!FindOpenWindow()) {
    mQuit();
  } else if (mWindow->MayClose()) {
    mWindow->UI_DoClose();
  }
  return true;
}

bool OutlinerApp::DoCommandEnabled(int inCommand, bool& ioEnabled, bool&, UTF16String&) {
  if (inCommand != kCommandQuit) return false;
  ioEnabled = true;
  return true;
}

}  // namespace outliner
