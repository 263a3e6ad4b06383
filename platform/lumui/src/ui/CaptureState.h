// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumui/ui/InputCapture.h"

class QMouseEvent;

namespace lumui::ui {

struct OS_Event;

// The running capture, if any. "Over" is noted before the end hook is called, so that whatever the
// hook does finds no running capture and the hook is called once.
class CaptureState {
 public:
  void Begin(const boost::intrusive_ptr<InputCapture>& inCapture);
  void End(bool inCancelled);
  // Cancels the capture of this node or of one below it.
  void CancelFor(const UI_Node& inNode);

  bool IsRunning() const { return mCapture != nullptr; }
  InputCapture* Get() const { return mCapture.get(); }
  // A pointer that has left the node makes a leave event before the move.
  void Deliver(const QMouseEvent& inEvent, const OS_Event& inOSEvent);

 private:
  static void Tell(InputCapture& inCapture, const MouseEvent& inEvent);

  boost::intrusive_ptr<InputCapture> mCapture;
  bool mInside = true;
};

}  // namespace lumui::ui
