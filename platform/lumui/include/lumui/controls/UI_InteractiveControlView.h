// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "lumcore/utility/CallbackList.h"
#include "lumui/controls/UI_ControlView.h"
#include "lumui/controls/UI_InteractiveControlChangedMessage.h"

namespace lumui::controls {

// A control that the user changes. Listeners are called after the change, with the control held
// until they are done: they may change it, remove it, or close its window.
class LUMUI_API UI_InteractiveControlView : public UI_ControlView {
 public:
  using ChangedFunction = boost::function<void(UI_InteractiveControlChangedMessage*)>;

  UI_InteractiveControlView();
  ~UI_InteractiveControlView() override;

  // After each change that is told: the user's, and the program's where it asks for that. Clearing
  // the function takes it back.
  void NotifyWhenChanged(const boost::shared_ptr<ChangedFunction>& inFunction);
  // After the user's changes only, and after the functions above.
  void NotifyWhenChangedInteractively(const boost::shared_ptr<ChangedFunction>& inFunction);

  // Tells as complete what the user has begun and not been told as that yet. The base operation has
  // nothing to tell.
  virtual void Commit();

 protected:
  explicit UI_InteractiveControlView(std::unique_ptr<ui::NodePeer> inPeer);

  void TellChanged(UI_InteractiveControlChangedMessage::Change inChange, bool inByUser);

 private:
  using Listeners = lumcore::utility::CallbackList<UI_InteractiveControlChangedMessage*>;
  Listeners mListeners;
  Listeners mInteractiveListeners;
};

}  // namespace lumui::controls
