// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "outliner/CommandSystem.h"
#include "outliner/OutlinerApp.h"
#include "support/TemporaryFolder.h"

namespace tests {

// The host in a window, driven as a user drives it: every key and click passes the window system.
// Boxes are answered by the names of buttons that were given before, and are written down; so are
// reported errors.
class RunningOutliner {
 public:
  // The outline as tests::Show writes one, without marks; its file is o.opml in a folder of its
  // own.
  explicit RunningOutliner(const std::string& inOutline);
  ~RunningOutliner();

  // Chords separated by blanks, "Down Ctrl+Return".
  void Keys(const std::string& inChords);
  void HoldKey(const std::string& inChord, int inRepeats);
  void Type(const std::string& inText);
  // At the middle of a line, counted from 0, and inX units from the window's left edge.
  void Click(std::size_t inLine, const std::string& inModifier = "", float inX = 300);
  void DoubleClick(std::size_t inLine, float inX);

  // The rows, and behind them the text that is being typed, with "|" for the caret.
  std::string Show();
  std::string GetTitle();
  std::string ReadFile() const;
  std::string GetPath(const std::string& inName) const { return mFolder.GetPath(inName); }

  void AnswerNextBox(const std::string& inButton) { mAnswers.push_back(inButton); }
  // All that boxes have asked and errors have said since the last call, a line each.
  std::string TakeMessages();
  bool HasQuit() const { return mHasQuit; }

  outliner::CommandSystem& GetCommands() { return mCommands; }
  outliner::OutlineWindow& GetWindow() { return *mApp->GetWindow(); }
  outliner::OutlineDocument& GetDocument() { return GetWindow().GetDocument(); }

 private:
  TemporaryFolder mFolder;
  std::vector<std::string> mAnswers;
  std::string mMessages;
  bool mHasQuit = false;
  outliner::CommandSystem mCommands{outliner::FindCommandFiles()};
  std::unique_ptr<outliner::OutlinerApp> mApp;
};

}  // namespace tests
