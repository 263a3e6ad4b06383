// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/trackview/TrackerDragAndDropInterface.h"

namespace vek::trackview {

// The drag as LUMPlatformView knows it.
class LUMTrackerDragAndDropInterface : public TrackerDragAndDropInterface {
 public:
  LUMTrackerDragAndDropInterface() = default;
  ~LUMTrackerDragAndDropInterface() override = default;

  lumui::datatransfer::OS_ReceiveData* GetReceiveData() override { return mReceiveData; }
  void SetDropEffect(unsigned int inEffect) override { mEffect = inEffect; }

 private:
  friend class DropGesture;

  unsigned int mEffect = 0;
  lumui::datatransfer::OS_ReceiveData* mReceiveData = nullptr;  // for the length of a step
};

}  // namespace vek::trackview
