// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>

#include "vek/uisupport/UnifiedDispatch.h"

namespace outliner {

class OutlinerApp;

// Answers for the commands that work on documents as a whole and on the program, and for the items
// of the menus that list recent files and open documents. It stands on the application.
class ApplicationCommands final : public vek::uisupport::UnifiedDispatchCmdAttachment {
 public:
  explicit ApplicationCommands(OutlinerApp& inApp);  // borrowed

  bool DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) override;

 private:
  struct Entry {
    std::function<bool()> isEnabled;
    std::function<void()> execute;
    std::function<bool()> isChecked;  // none where the command has no mark
  };

  void AddBrightness();

  void AskForFile();
  void Step(int inDistance);
  void ShowAbout();
  bool DispatchRecentFile(std::size_t inIndex, vek::uisupport::CommandEnableQuery* ioQuery);
  bool DispatchDocument(std::size_t inIndex, vek::uisupport::CommandEnableQuery* ioQuery);

  OutlinerApp& mApp;
  std::map<int, Entry> mEntries;
};

}  // namespace outliner
