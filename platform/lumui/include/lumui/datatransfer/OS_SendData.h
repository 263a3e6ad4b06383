// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"
#include "lumui/ui/OS_Event.h"

namespace lumui::datatransfer {

// What leaves a view by drag: whoever begins one asks the view that has the pointer for it.
class LUMUI_API OS_SendDataBase {
 public:
  virtual ~OS_SendDataBase();
  OS_SendDataBase(const OS_SendDataBase&) = delete;
  OS_SendDataBase& operator=(const OS_SendDataBase&) = delete;

 protected:
  OS_SendDataBase() = default;
};

// Data that begins its way with one message of the window system.
class LUMUI_API OS_SendData : public OS_SendDataBase {
 public:
  // Null outside a message: it begins with an empty one then.
  explicit OS_SendData(const ui::OS_Event* inEvent);
  ~OS_SendData() override;

  const ui::OS_Event& GetOSEvent() const { return mEvent; }

 private:
  ui::OS_Event mEvent;
};

}  // namespace lumui::datatransfer
