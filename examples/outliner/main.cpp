// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <atomic>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <system_error>

#include "CommandList.h"
#include "CommandSystem.h"
#include "FileCheck.h"
#include "Options.h"
#include "OutlinerApp.h"
#include "ProgramTexts.h"
#include "Reports.h"
#include "ScriptRun.h"
#include "StopSignals.h"
#include "Texts.h"
#include "lumcore/config/ClientInfo.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"

namespace {

using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using outliner::Options;

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;
// As shells tell that a program was ended by a signal.
constexpr int kExitBySignal = 128;

constexpr const char* kUsage =
    "$$$/outliner/Main/Usage="
    "outliner [FILE...]                  edit outlines\n"
    "outliner --new FILE                 begin one; FILE is written when it is saved\n"
    "outliner --script SCRIPT.js [FILE...]\n"
    "                                    run a script on them; that needs no display\n"
    "  --keys MAP                        with one of these: use the keys of this key map\n"
    "  --settings FOLDER                 keep the settings there; scripts keep none otherwise\n"
    "outliner --list-commands            print all commands with their keys\n"
    "outliner --list-commands=markdown   print them as a page\n"
    "outliner --check [COMMANDS]         look for faults in the command file and the key map,\n"
    "                                    in another command file, or with --keys in another map\n";
constexpr const char* kLanguageUsage =
    "$$$/outliner/Main/LanguageUsage="
    "  --language LANGUAGE               with all of these: speak \"de\" or another language\n";

// A folder that is there while this lives.
class StScratchFolder {
 public:
  StScratchFolder()
      : mFolder(Dir::TempDir(), "outliner-" + std::to_string(std::random_device()()) + "-" +
                                    std::to_string(std::random_device()())) {
    mFolder.Create();
  }
  ~StScratchFolder() {
    std::error_code ignored;  // what cannot be removed stays in the folder of temporary files
    std::filesystem::remove_all(mFolder.GetPath(), ignored);
  }
  StScratchFolder(const StScratchFolder&) = delete;
  StScratchFolder& operator=(const StScratchFolder&) = delete;

  const std::string& GetPath() const { return mFolder.GetPath(); }

 private:
  Dir mFolder;
};

void OpenDocuments(outliner::OutlinerApp& ioApp, const Options& inOptions) {
  for (const std::string& file : inOptions.files) {
    if (inOptions.isNew) {
      ioApp.BeginOutline(File(file));
    } else {
      ioApp.OpenOutline(File(file));
    }
  }
  if (inOptions.files.empty()) ioApp.NewOutline();
}

int RunScript(outliner::OutlinerApp& ioApp, lumui::ui::Application& ioApplication,
              const Options& inOptions) {
  OpenDocuments(ioApp, inOptions);
  outliner::ScriptRun run(ioApp, std::cout, std::cerr);
  const outliner::StStopSignals signals(
      [&ioApplication](int inSignal) { ioApplication.Quit(kExitBySignal + inSignal); });
  return run.Run(File(inOptions.script));
}

// A file that cannot be opened is told, over the window, and the others are. A request to stop may
// come while one is read or asked about.
int RunWindow(outliner::OutlinerApp& ioApp, lumui::ui::Application& ioApplication,
              const Options& inOptions) {
  std::atomic<int> signal = 0;
  // A request whose turn comes when all this has ended has nothing left to do.
  const auto present = std::make_shared<const bool>(true);
  const std::weak_ptr<const bool> isPresent = present;
  const outliner::StStopSignals signals([&ioApp, &signal, isPresent](int inSignal) {
    signal = inSignal;
    lumui::ui::UI_NodeManager::Get(false)->GetExecutor()->Post([&ioApp, isPresent] {
      if (!isPresent.expired()) ioApp.Quit();
    });
  });
  Options one = inOptions;
  for (const std::string& file : inOptions.files) {
    if (ioApplication.IsQuitting()) break;
    one.files = {file};
    ioApplication.RunGuarded([&] { OpenDocuments(ioApp, one); });
  }
  if (!ioApp.HasOpenDocument()) ioApp.NewOutline();
  ioApp.RunEventLoop();
  return signal == 0 ? 0 : kExitBySignal + signal;
}

int RunEditor(lumui::ui::Application& ioApplication, const Options& inOptions,
              const outliner::StReportsToStream* inReports) {
  const bool isScript = !inOptions.script.empty();
  if (!isScript && ioApplication.IsHeadless()) {
    throw lumcore::config::Error(outliner::Localized(
        "$$$/outliner/Main/NoDisplay=there is no display to show a window on; --script "
        "needs none"));
  }
  std::optional<StScratchFolder> scratch;
  outliner::OutlinerApp::Options options{outliner::FindCommandFiles(), inOptions.keys,
                                         inOptions.settings, !isScript && inOptions.files.empty()};
  // A script neither finds what the user has set nor changes it.
  if (isScript && options.settingsFolder.empty())
    options.settingsFolder = scratch.emplace().GetPath();
  outliner::OutlinerApp app(options);
  int code = kExitFailure;
  try {
    app.Start();
    // A script is not replayed with keys that it was not written for.
    if (!inReports || !inReports->HasReported()) {
      code = isScript ? RunScript(app, ioApplication, inOptions)
                      : RunWindow(app, ioApplication, inOptions);
    }
  } catch (...) {  // told while the application can still tell it, and then it ends as always
    outliner::ReportFailure(std::current_exception());
  }
  app.End();
  return code;
}

int ListCommands(const Options& inOptions) {
  outliner::CommandSystem commands(outliner::FindCommandFiles());
  commands.LoadKeys();
  if (!inOptions.keys.empty()) commands.LoadUserKeys(File(inOptions.keys));
  std::cout << (inOptions.task == Options::kWriteCommandPage ? outliner::RenderCommandPage()
                                                             : outliner::RenderCommandTable());
  return 0;
}

int Check(const Options& inOptions) {
  outliner::CommandFiles files = outliner::FindCommandFiles();
  if (!inOptions.files.empty()) files.commands = File(inOptions.files.front());
  if (!inOptions.keys.empty()) files.keys = File(inOptions.keys);
  return outliner::CheckFiles(files, std::cout) ? 0 : kExitFailure;
}

void SetIdentity() {
  using lumcore::utility::ToUTF16;
  lumcore::config::SetApplicationName(ToUTF16("outliner"));
  lumcore::config::SetClientName(ToUTF16("outliner"));
  lumcore::config::SetClientVersion(ToUTF16(OUTLINER_VERSION));
}

int Run(int inCount, char** inArguments) {
  lumui::ui::Application application(inCount, inArguments);
  const outliner::ProgramTexts texts(inCount, inArguments);
  Options options;
  const bool isUnderstood = ReadOptions(inCount, inArguments, options);
  if (!isUnderstood || options.task == Options::kHelp) {
    (isUnderstood ? std::cout : std::cerr) << lumcore::utility::ToStdString(
        outliner::Localized(kUsage) + outliner::Localized(kLanguageUsage));
    return isUnderstood ? 0 : kExitUsage;
  }
  SetIdentity();
  outliner::RegisterErrorTexts();
  const bool hasWindow =
      options.task == Options::kEdit && options.script.empty() && !application.IsHeadless();
  std::optional<outliner::StReportsToStream> reports;
  if (!hasWindow) reports.emplace(std::cerr);
  try {
    if (options.task == Options::kCheck) return Check(options);
    if (options.task != Options::kEdit) return ListCommands(options);
    return RunEditor(application, options, reports ? &*reports : nullptr);
  } catch (...) {  // whatever it is, the user hears of it before the program ends
    outliner::ReportFailure(std::current_exception());
    return kExitFailure;
  }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {  // of the reporting itself, or without a window system
    std::cerr << "outliner: " << error.what() << "\n";
  }
  return kExitFailure;
}
