// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerApp.h"

#include <utility>

#include "OutlinerCommands.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/MessageDialog.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

UTF16String TextOf(const std::exception_ptr& inError) {
  try {
    std::rethrow_exception(inError);
  } catch (const std::exception& error) {
    return lumcore::utility::ToUTF16(error.what());
  } catch (...) {
    // Whatever it is, the user must hear that something went wrong.
    return lumcore::config::Localizer::Get()->GetLocalizedString(
        "$$$/outliner/Error/Unknown=An unknown error has occurred.");
  }
}

}  // namespace

OutlinerApp::OutlinerApp(std::function<void()> inQuit) : mQuit(std::move(inQuit)) {
  SetDefaultCommandHandler(this);
}

OutlinerApp::~OutlinerApp() = default;

OutlineWindow& OutlinerApp::Show(std::unique_ptr<OutlineDocument> inDocument) {
  mWindow.reset(new OutlineWindow(std::move(inDocument), this));
  mWindow->SetClosedFunction(mQuit);
  mWindow->SetAsCurrentCommandHandler(true);
  mWindow->UI_Activate();
  mWindow->FocusRows();
  return *mWindow;
}

void OutlinerApp::ShowError(const std::exception_ptr& inError) {
  lumui::dialogs::MessageDialogArgs args;
  args.title =
      lumcore::config::Localizer::Get()->GetLocalizedString("$$$/outliner/Error/Title=outliner");
  args.text = TextOf(inError);
  args.icon = lumui::dialogs::MessageIcon::kError;
  args.owner = mWindow && mWindow->UI_GetHandle() ? mWindow.get() : nullptr;
  lumui::dialogs::RunMessageDialog(args);
}

bool OutlinerApp::DoHandleCommand(int inCommand) {
  if (inCommand != kCommandQuit) return false;
  if (!mWindow || !mWindow->UI_GetHandle()) {
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
