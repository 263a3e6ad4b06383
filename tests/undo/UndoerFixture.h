// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <string>

#include "support/RecordingListener.h"
#include "support/RecordingUndoHooks.h"
#include "support/ScriptedDeed.h"
#include "support/StackText.h"
#include "vek/undo/ClearUndoStackDeed.h"
#include "vek/undo/MultiUndoer.h"

namespace vek::undo {

using test_support::EventLog;
using test_support::Outcome;
using test_support::RecordingListener;
using test_support::RecordingUndoHooks;
using test_support::ScriptedDeed;
using test_support::ScriptedRestorer;
using test_support::StackText;

// An undoer with room for nine deeds. Watch makes hooks and listeners log from then on.
class UndoerTest : public testing::Test {
 protected:
  void Renew(int inLimit) { undoer = new MultiUndoer(inLimit); }
  void Watch() {
    undoer->SetHooks(&hooks);
    undoer->GetDeedNotifier()->AddListener(&deedListener);
    undoer->GetItemsChangedNotifier()->AddListener(&itemsListener);
    mLog.Take();
  }
  // A deed with a before restorer b-NAME and an after restorer a-NAME.
  ScriptedDeed* NewDeed(const std::string& inName,
                        ScriptedDeed::Undoable inUndoable = ScriptedDeed::kUndoable) {
    auto* const deed = new ScriptedDeed(mLog, inName, inUndoable);
    deed->SetBeforeRestorer(new ScriptedRestorer(mLog, "b-" + inName));
    deed->SetAfterRestorer(new ScriptedRestorer(mLog, "a-" + inName));
    return deed;
  }
  void Post(Deed* inDeed) { undoer->PostDeed(std::auto_ptr<Deed>(inDeed)); }
  ScriptedDeed* Post(const std::string& inName) {
    ScriptedDeed* const deed = NewDeed(inName);
    Post(deed);
    return deed;
  }
  std::string Stack() const { return StackText(*undoer); }

  EventLog mLog;
  RecordingUndoHooks hooks{mLog};
  RecordingListener<Deed*> deedListener{
      mLog, [](Deed* inDeed) {
        return "[" + (inDeed ? lumcore::utility::ToStdString(inDeed->GetActionString()) : "null") +
               "]";
      }};
  RecordingListener<const ItemsChangedMsg&> itemsListener{
      mLog, [](const ItemsChangedMsg&) { return "items"; }};
  boost::intrusive_ptr<MultiUndoer> undoer = new MultiUndoer(10);
};

}  // namespace vek::undo
