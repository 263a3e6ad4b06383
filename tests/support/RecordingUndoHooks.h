// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "support/EventLog.h"
#include "vek/undo/Deed.h"
#include "vek/undo/MultiUndoerHooks.h"

namespace test_support {

// Logs "WillPost(a)" and the like, then runs what the test has put under "WillPost".
class RecordingUndoHooks : public vek::undo::MultiUndoerHooks {
 public:
  explicit RecordingUndoHooks(EventLog& ioLog) : mLog(ioLog) {}

  void WillPostDeed(vek::undo::Deed* inDeed) override { Record("WillPost", inDeed); }
  void DidPostDeed(vek::undo::Deed* inDeed) override { Record("DidPost", inDeed); }
  void WillUndoDeed(vek::undo::Deed* inDeed) override { Record("WillUndo", inDeed); }
  void DidUndoDeed(vek::undo::Deed* inDeed) override { Record("DidUndo", inDeed); }
  void WillRedoDeed(vek::undo::Deed* inDeed) override { Record("WillRedo", inDeed); }
  void DidRedoDeed(vek::undo::Deed* inDeed) override { Record("DidRedo", inDeed); }

  std::map<std::string, std::function<void()>> mOn;

 private:
  void Record(const std::string& inHook, const vek::undo::Deed* inDeed) {
    mLog.Add(inHook + "(" + lumcore::utility::ToStdString(inDeed->GetActionString()) + ")");
    const auto action = mOn.find(inHook);
    if (action != mOn.end()) action->second();
  }

  EventLog& mLog;
};

}  // namespace test_support
