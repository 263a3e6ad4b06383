// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::uisupport {

// Hands out ids to commands that have none of their own, such as those of a command file without an
// id, and knows an id that it has given. It only counts up from the first id: nothing comes back,
// and nothing bounds the range. The host opens it once, before anything reserves an id, above all
// of its own ids; all ids together stay below 61,440, where the ids of the system's menu commands
// begin.
class VEK_API SyntheticCmdMgr {
 public:
  virtual ~SyntheticCmdMgr();
  SyntheticCmdMgr(const SyntheticCmdMgr&) = delete;
  SyntheticCmdMgr& operator=(const SyntheticCmdMgr&) = delete;

  // Throws std::logic_error, and leaves the range as it is, when it is open already.
  static void InitSyntheticCmdMgr(int inFirstId);
  // Throws std::logic_error before the range is open.
  static SyntheticCmdMgr& Get();
  // Closes the range, so that it may be opened anew. For tests.
  static void ResetSyntheticCmdMgr();

  // True for an id that was given out.
  bool IsSyntheticCmdID(int inCommand) const;
  int ReserveCmd();
  // The ids from the result up to the result plus inCount, without the latter, are the caller's.
  // A negative count moves the next id back.
  int ReserveCmdRange(int inCount);

 private:
  SyntheticCmdMgr();
};

}  // namespace vek::uisupport
