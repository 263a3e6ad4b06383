// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace lumui::datatransfer {
class OS_ReceiveData;
}

namespace vek::trackview {

// How a tracker that serves a drag meets what is dragged. The overlay that is asked for the tracker
// gets it, and it outlives the tracker.
class VEK_API TrackerDragAndDropInterface {
 public:
  virtual ~TrackerDragAndDropInterface();
  TrackerDragAndDropInterface(const TrackerDragAndDropInterface&) = delete;
  TrackerDragAndDropInterface& operator=(const TrackerDragAndDropInterface&) = delete;

  // Null but while the drag enters, moves or drops; null as well when it leaves.
  virtual lumui::datatransfer::OS_ReceiveData* GetReceiveData() = 0;
  // A lumui::ui::DropEffect: what a drop here would do, or in a drop what it has done. Each step
  // starts with none.
  virtual void SetDropEffect(unsigned int inEffect) = 0;

 protected:
  TrackerDragAndDropInterface() = default;
};

}  // namespace vek::trackview
