// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptRun.h"

#include <chrono>
#include <ostream>

#include "OutlineDocument.h"
#include "OutlinerApp.h"
#include "OutlinerScriptObject.h"
#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptError.h"
#include "lumscripting/ScriptRegistry.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;

namespace {

constexpr int kExitFailure = 1;
constexpr const char* kObjectName = "Outliner";
// For a stopped script that is in a built-in operation, which only ends by itself.
constexpr std::chrono::seconds kPatience(5);

std::string About(const char* inKey, const UTF16String& inWhat) {
  return ToStdString(lumcore::utility::ReplaceInString(Localized(inKey), {inWhat}));
}

}  // namespace

// Every walk ends at the application, as the chain's default end and nowhere else, so there each
// command is heard once.
ScriptRun::ScriptRun(OutlinerApp& ioApp, std::ostream& outOutput, std::ostream& outErrors)
    : mApp(ioApp), mOutput(outOutput), mErrors(outErrors) {
  lumscripting::ScriptRegistry::Get().RegisterObject(
      ToUTF16(kObjectName), ToUTF8("The outliner, as its user handles and sees it"),
      [this]() -> boost::intrusive_ptr<lumscripting::ScriptObject> {
        return new OutlinerScriptObject(mApp, mHasQuit, mBoxes, mOutput);
      });
  mRunner.SetFailureFunction([this](const std::exception_ptr& inFailure) { Tell(inFailure); });
  mRunner.SetCallFunction([this](const auto& inCall) { Call(inCall); });
  mApp.EnableScriptEvents([this] {
    ++mCommandsTold;
    return mRunner.FindObject(ToUTF16("Command"));
  });
}

ScriptRun::~ScriptRun() {
  mApp.DisableScriptEvents();
  lumscripting::ScriptRegistry::Get().Unregister(ToUTF16(kObjectName));
}

int ScriptRun::Run(const lumcore::filesupport::File& inScript) {
  mRunner.RunFile(inScript, [this](const auto&, const std::exception_ptr& inFailure) {
    Tell(inFailure);
    EndBehindEvents();
  });
  int code = lumui::ui::Application::Get()->Run();
  while (code == 0 && !mHasEnded) {
    mHasQuit = true;
    code = lumui::ui::Application::Get()->Run();
  }
  if (!mHasEnded) {
    mRunner.ShutDown(kPatience);
    mErrors << About("$$$/outliner/Script/Stopped=@0: the script was stopped",
                     ToUTF16(inScript.GetPath()))
            << "\n";
  }
  TellRest();
  if (code == 0 && mHasFailed) code = kExitFailure;
  return code;
}

// What a call brings about by events, such as a deferred report, belongs to it.
void ScriptRun::Call(const std::function<void()>& inCall) {
  inCall();
  lumui::testing::ProcessEvents();
  const UTF16String failure = mBoxes.TakeFailure();
  if (!failure.empty()) throw lumcore::config::Error(failure);
}

// Listeners hear of the script's commands behind it, and may give more commands.
void ScriptRun::EndBehindEvents() {
  mRunner.Run({}, {}, [this, told = mCommandsTold](const auto&, const auto&) {
    if (told != mCommandsTold) return EndBehindEvents();
    mHasEnded = true;
    lumui::ui::Application::Get()->Quit();
  });
}

void ScriptRun::Tell(const std::exception_ptr& inFailure) {
  if (!inFailure) return;
  mHasFailed = true;
  try {
    std::rethrow_exception(inFailure);
  } catch (const lumscripting::ScriptError& error) {  // begins with the place
    mErrors << error.what() << "\n";
  } catch (const std::exception& error) {
    mErrors << "outliner: " << error.what() << "\n";
  }
}

void ScriptRun::TellRest() {
  const UTF16String failure = mBoxes.TakeFailure();
  if (!failure.empty()) Tell(std::make_exception_ptr(lumcore::config::Error(failure)));
  // A program that was quit has asked about its changes.
  if (mHasQuit) return;
  for (const OutlineDocument* document : mApp.GetOutlines()) {
    if (!document->IsDirty()) continue;
    const auto file = document->GetProjectFile();
    mErrors << About("$$$/outliner/Main/NotSaved=@0 has changes that are not saved",
                     file.GetPath().empty() ? document->GetTitle() : ToUTF16(file.GetPath()))
            << "\n";
  }
}

}  // namespace outliner
