// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <vector>

#include "datatransfer/DropState.h"
#include "lumui/Export.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "ui/CaptureState.h"
#include "ui/TimerQueue.h"

namespace lumui::ui {

// What the node manager keeps, for the platform's own sources.
class UI_NodeManager::Impl {
 public:
  void TellActivation(bool inActive);
  void TellNodeChanged(UI_Node& inNode);
  // The cursor takes effect at the end of the pointer event in which it was set, so that one that
  // is set back and forth does not flicker.
  void ApplyCursor();

  CaptureState capture;
  DropState drops;
  TimerQueue timers;
  Executor executor;
  std::vector<UI_Node*> prePointerNodes;
  std::vector<boost::shared_ptr<boost::function<void(bool)>>> activationFunctions;
  std::vector<boost::shared_ptr<boost::function<void(UI_Node&)>>> nodeChangedFunctions;
  CursorShape cursor = CursorShape::kArrow;
  CursorShape appliedCursor = CursorShape::kArrow;
  bool mnemonics = false;
  bool active = false;
};

// A contract: there is an application.
LUMUI_API UI_NodeManager::Impl& NodeManagerImpl();
// Null without an application, as when nodes outlive it.
UI_NodeManager::Impl* NodeManagerImplIfAny();

}  // namespace lumui::ui
