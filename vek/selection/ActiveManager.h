// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/messaging/Broadcaster.h"
#include "vek/selection/Messages.h"

namespace vek::selection {

class Manager;

// The one manager that commands and panels mean when they speak of the selection. Null at start.
VEK_API Manager* GetActiveManager();
// Not owned, and forgotten when the manager dies. Tells the manager-change listeners, unless it is
// the active one already; while notification is inhibited they are told later.
VEK_API void SetActiveManager(Manager* inManager);

// Calls nest. The last Enable sends one message for all changes since the first Inhibit, also when
// they cancel each other out.
VEK_API void InhibitManagerChangeNotification();
VEK_API void EnableManagerChangeNotification();

// The broadcasters of the whole process. They live until it ends.
VEK_API messaging::Broadcaster<const ManagerChangeMessage&>* GetManagerChangeNotifier();
VEK_API messaging::Broadcaster<const SelectionChangeMessage&>* GetGlobalSelectionChangeNotifier();
VEK_API messaging::Broadcaster<const JunctionChangeMessage&>* GetGlobalJunctionChangeNotifier();

// Gathers the changes of the active manager within a scope into one message.
class VEK_API StManagerChangeMsgInhibitor {
 public:
  StManagerChangeMsgInhibitor();
  virtual ~StManagerChangeMsgInhibitor();
  StManagerChangeMsgInhibitor(const StManagerChangeMsgInhibitor&) = delete;
  StManagerChangeMsgInhibitor& operator=(const StManagerChangeMsgInhibitor&) = delete;
};

// Puts the process-wide state back to what it is at start, without a message. For tests.
VEK_API void ResetActiveManagerState();

}  // namespace vek::selection
