// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/utility/RefCounted.h"
#include "lumui/Export.h"
#include "lumui/ui/UI_Node.h"

namespace lumui::ui {

class MouseEvent;
class UI_NodeManager;

// Gets every mouse event of the application while it lasts, also from outside the window, before
// and instead of any node. The node manager holds it while it runs and calls the end hook once,
// whatever ends it; at that time it is no more the running capture, so the hook may begin another.
class LUMUI_API PointerCapture : public lumcore::utility::RefCountedObject {
 public:
  ~PointerCapture() override;

  // True once it ended by other means than EndInputCapture(false).
  bool HasBeenCancelled() const { return mCancelled; }
  bool IsRunning() const { return mRunning; }

  virtual void DoBegin();
  virtual void DoEnd();
  // The position is in the coordinates of the capture's node, as in UI_DoMouseEvent. The result is
  // for the caller of a chain of captures; no node gets the event in either case.
  virtual bool DoMouseEvent(const MouseEvent& inEvent);

 protected:
  PointerCapture() = default;

 private:
  friend class CaptureState;
  bool mRunning = false;
  bool mCancelled = false;
};

// A capture on behalf of a node, which it keeps alive. It ends, cancelled, when the node is hidden,
// disabled or taken out of its window, when the window is destroyed, deactivated or blocked by a
// modal one, when a menu or another popup opens and when a drag starts.
class LUMUI_API InputCapture : public PointerCapture {
 public:
  explicit InputCapture(UI_Node* inNode);  // never null (a contract)
  ~InputCapture() override;

  UI_Node* GetNode() const { return mNode.get(); }

 private:
  boost::intrusive_ptr<UI_Node> mNode;
};

}  // namespace lumui::ui
