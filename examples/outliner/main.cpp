// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "CommandList.h"
#include "CommandSystem.h"
#include "FileCheck.h"
#include "Options.h"
#include "OutlinerApp.h"
#include "ProgramTexts.h"
#include "Reports.h"
#include "ScriptRun.h"
#include "StopSignals.h"
#include "lumcore/config/ClientInfo.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"

namespace {

using lumcore::filesupport::File;
using outliner::Options;
using outliner::OutlineDocument;

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;
// As shells tell that a program was ended by a signal.
constexpr int kExitBySignal = 128;

constexpr const char* kUsage =
    "$$$/outliner/Main/Usage="
    "outliner FILE                       edit an outline\n"
    "outliner --new FILE                 begin one; FILE is written when it is saved\n"
    "outliner --script SCRIPT.js FILE    run a script on it; that needs no display\n"
    "  --keys MAP                        with one of these: use the keys of this key map\n"
    "outliner --list-commands            print all commands with their keys\n"
    "outliner --list-commands=markdown   print them as a page\n"
    "outliner --check [COMMANDS]         look for faults in the command file and the key map,\n"
    "                                    in another command file, or with --keys in another map\n";
constexpr const char* kLanguageUsage =
    "$$$/outliner/Main/LanguageUsage="
    "  --language LANGUAGE               with all of these: speak \"de\" or another language\n";

lumcore::UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

std::unique_ptr<OutlineDocument> OpenDocument(const Options& inOptions) {
  const File file(inOptions.file);
  if (!inOptions.isNew) return OutlineDocument::Open(file);
  if (file.Exists()) {
    throw lumcore::config::Error(lumcore::utility::ReplaceInString(
        Localized("$$$/outliner/Main/FileExists=@0: the file is there already"),
        {lumcore::utility::ToUTF16(inOptions.file)}));
  }
  return std::make_unique<OutlineDocument>(std::make_unique<outliner::OutlineTree>(), file);
}

int RunScript(outliner::OutlinerApp& ioApp, lumui::ui::Application& ioApplication,
              const Options& inOptions) {
  outliner::OutlineWindow& window = ioApp.Show(OpenDocument(inOptions));
  outliner::ScriptRun run(window, std::cout, std::cerr);
  const outliner::StStopSignals signals(
      [&ioApplication](int inSignal) { ioApplication.Quit(kExitBySignal + inSignal); });
  return run.Run(File(inOptions.script));
}

int RunWindow(outliner::OutlinerApp& ioApp, lumui::ui::Application& ioApplication,
              const Options& inOptions) {
  ioApp.Show(OpenDocument(inOptions));
  return ioApplication.Run();
}

int RunEditor(lumui::ui::Application& ioApplication, const Options& inOptions,
              const outliner::StReportsToStream* inReports) {
  if (inOptions.script.empty() && ioApplication.IsHeadless()) {
    throw lumcore::config::Error(
        Localized("$$$/outliner/Main/NoDisplay=there is no display to show a window on; --script "
                  "needs none"));
  }
  outliner::CommandSystem commands(outliner::FindCommandFiles());
  if (!inOptions.keys.empty()) commands.LoadUserKeys(File(inOptions.keys));
  // A script is not replayed with keys that it was not written for.
  if (inReports && inReports->HasReported()) return kExitFailure;
  // A script goes on when it has closed the window.
  outliner::OutlinerApp app([&] {
    if (inOptions.script.empty()) ioApplication.Quit();
  });
  return inOptions.script.empty() ? RunWindow(app, ioApplication, inOptions)
                                  : RunScript(app, ioApplication, inOptions);
}

int ListCommands(const Options& inOptions) {
  outliner::CommandSystem commands(outliner::FindCommandFiles());
  if (!inOptions.keys.empty()) commands.LoadUserKeys(File(inOptions.keys));
  std::cout << (inOptions.task == Options::kWriteCommandPage ? outliner::RenderCommandPage()
                                                             : outliner::RenderCommandTable());
  return 0;
}

int Check(const Options& inOptions) {
  outliner::CommandFiles files = outliner::FindCommandFiles();
  if (!inOptions.file.empty()) files.commands = File(inOptions.file);
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
  if (!ReadOptions(inCount, inArguments, options)) {
    std::cerr << lumcore::utility::ToStdString(Localized(kUsage) + Localized(kLanguageUsage));
    return kExitUsage;
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
