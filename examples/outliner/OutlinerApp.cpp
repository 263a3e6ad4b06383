// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerApp.h"

#include <utility>

#include "OutlinerCommands.h"
#include "lumcore/config/ThrowError.h"
#include "vek/uisupport/MainWindowLookup.h"
#include "vek/uisupport/ReportError.h"

namespace outliner {

using lumcore::UTF16String;

OutlinerApp::OutlinerApp(std::function<void()> inQuit) : mQuit(std::move(inQuit)) {
  SetDefaultCommandHandler(this);
  vek::uisupport::SetMainWindowLookup([this] { return FindOpenWindow(); });
}

OutlinerApp::~OutlinerApp() {
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

void OutlinerApp::ShowError(const std::exception_ptr& inError) {
  try {
    std::rethrow_exception(inError);
  } catch (const lumcore::config::Error& error) {
    vek::uisupport::ReportError(error.GetText(), 0, false);
  } catch (const std::exception& error) {
    vek::uisupport::ReportError(error, false);
  } catch (...) {
    // Whatever it is, the user must hear that something went wrong.
    vek::uisupport::ReportError(false);
  }
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
