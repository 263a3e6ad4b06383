// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <exception>
#include <iostream>
#include <memory>
#include <string>

#include "EditScript.h"
#include "OutlinerApp.h"
#include "ProgramTexts.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"

namespace {

using lumcore::filesupport::File;
using outliner::OutlineDocument;

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

constexpr const char* kUsage =
    "$$$/outliner/Main/Usage="
    "outliner FILE                   edit an outline\n"
    "outliner --new FILE             begin one; FILE is written when it is saved\n"
    "outliner --script SCRIPT FILE   replay keys and clicks on it, without a display\n";
constexpr const char* kLanguageUsage =
    "$$$/outliner/Main/LanguageUsage="
    "  --language LANGUAGE           with one of these: speak \"de\" or another language\n";

lumcore::UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

struct Options {
  std::string file;
  std::string script;
  bool isNew = false;
};

bool ReadOptions(int inCount, char** inArguments, Options& outOptions) {
  for (int argument = 1; argument < inCount; ++argument) {
    const std::string text = inArguments[argument];
    if (text == "--new") {
      outOptions.isNew = true;
    } else if (text == "--script" && argument + 1 < inCount) {
      outOptions.script = inArguments[++argument];
    } else if (text.rfind("--", 0) == 0 || !outOptions.file.empty()) {
      return false;
    } else {
      outOptions.file = text;
    }
  }
  return !outOptions.file.empty();
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

int RunScript(outliner::OutlinerApp& ioApp, const Options& inOptions) {
  outliner::OutlineWindow& window = ioApp.Show(OpenDocument(inOptions));
  outliner::EditScript(window, std::cout).Run(File(inOptions.script));
  if (window.GetDocument().IsDirty()) {
    const auto text = lumcore::utility::ReplaceInString(
        Localized("$$$/outliner/Main/NotSaved=@0 has changes that are not saved"),
        {lumcore::utility::ToUTF16(window.GetDocument().GetFile().GetPath())});
    std::cout << lumcore::utility::ToStdString(text) << "\n";
  }
  return 0;
}

int RunWindow(outliner::OutlinerApp& ioApp, lumui::ui::Application& ioApplication,
              const Options& inOptions) {
  if (ioApplication.IsHeadless()) {
    throw lumcore::config::Error(
        Localized("$$$/outliner/Main/NoDisplay=there is no display to show a window on; --script "
                  "needs none"));
  }
  ioApp.Show(OpenDocument(inOptions));
  ioApplication.SetErrorFunction(
      [&ioApp](const std::exception_ptr& inError) { ioApp.ShowError(inError); });
  const int code = ioApplication.Run();
  ioApplication.SetErrorFunction(nullptr);
  return code;
}

int Run(int inCount, char** inArguments) {
  lumui::ui::Application application(inCount, inArguments);
  const outliner::ProgramTexts texts(inCount, inArguments);
  Options options;
  if (!ReadOptions(inCount, inArguments, options)) {
    std::cerr << lumcore::utility::ToStdString(Localized(kUsage) + Localized(kLanguageUsage));
    return kExitUsage;
  }
  outliner::OutlinerApp app([&application] { application.Quit(); });
  return options.script.empty() ? RunWindow(app, application, options) : RunScript(app, options);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "outliner: " << error.what() << "\n";
  }
  return kExitFailure;
}
