// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include "lumcore/utility/StringUtils.h"
#include "support/EventLog.h"
#include "vek/selection/Restorer.h"
#include "vek/undo/Deed.h"

namespace test_support {

// Logs "do a", "undo a", "viable a?" (when told to) and "~a", and can be made to fail or refuse.
class ScriptedDeed : public vek::undo::Deed {
 public:
  using Action = std::function<void()>;
  enum Undoable { kUndoable = 1, kFinal = 0 };
  enum Built { kNew = 0, kDone = 1 };

  ScriptedDeed(EventLog& ioLog, const std::string& inName, Undoable inUndoable = kUndoable,
               Built inBuilt = kNew)
      : Deed(inUndoable == kUndoable, inBuilt == kDone, lumcore::utility::ToUTF16(inName)),
        mLog(ioLog),
        mName(inName) {}
  ~ScriptedDeed() override { mLog.Add("~" + mName); }

  Action mOnRedo;
  Action mOnUndo;
  bool mViable = true;
  bool mLogsViability = false;

 protected:
  bool DoStillViable() const override {
    if (mLogsViability) mLog.Add("viable-" + mName + "?");
    return mViable;
  }
  void RedoSelf() override {
    mLog.Add("do-" + mName);
    if (mOnRedo) mOnRedo();
  }
  void UndoSelf() override {
    mLog.Add("undo-" + mName);
    if (mOnUndo) mOnUndo();
  }

 private:
  EventLog& mLog;
  const std::string mName;
};

// Logs "restore-r", "r+s" for a merge that takes s in ("r+null" for none), and "~r".
class ScriptedRestorer : public vek::selection::Restorer {
 public:
  enum Merge { kRefuses, kTakesIn, kThrows };

  ScriptedRestorer(EventLog& ioLog, const std::string& inName, Merge inMerge = kRefuses)
      : mLog(ioLog), mName(inName), mMerge(inMerge) {}
  ~ScriptedRestorer() override { mLog.Add("~" + mName); }

  void Restore() override {
    mLog.Add("restore-" + mName);
    if (mOnRestore) mOnRestore();
  }
  bool MergeIn(const Restorer* inOther) override {
    const auto* other = static_cast<const ScriptedRestorer*>(inOther);
    mLog.Add(mName + "+" + (other ? other->mName : "null"));
    if (mMerge == kThrows) throw std::string("merge");
    return mMerge == kTakesIn;
  }

  std::function<void()> mOnRestore;

 private:
  EventLog& mLog;
  const std::string mName;
  const Merge mMerge;
};

// Runs the function and says what came out of it: "ok", or what was thrown.
inline std::string Outcome(const std::function<void()>& inFunction) {
  try {
    inFunction();
  } catch (const std::string& what) {
    return what;
  } catch (const std::exception& error) {
    return error.what();
  }
  return "ok";
}

}  // namespace test_support
