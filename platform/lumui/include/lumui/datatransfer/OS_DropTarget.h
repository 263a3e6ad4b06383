// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>
#include <memory>

#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
class UI_DragDropHandler;
}  // namespace lumui::ui

namespace lumui::datatransfer {

// Lets a window, with the panels of it that float, take what is dragged over it: the nodes under
// the pointer that want drags are asked, see UI_DragDropHandler, and then the fallback handler, for
// which a drop means "open this". Controls that take text by themselves go before both.
class LUMUI_API OS_DropTarget {
 public:
  OS_DropTarget();
  ~OS_DropTarget();
  OS_DropTarget(const OS_DropTarget&) = delete;
  OS_DropTarget& operator=(const OS_DropTarget&) = delete;

  // The window has a native part (a contract). It is attached to one window at a time; to a window
  // whose native part is another one, it has to be attached again.
  void Attach(ui::OS_Window& inWindow);
  void Detach();
  bool IsAttached() const;
  // Null for none.
  void SetFallbackHandler(const boost::shared_ptr<ui::UI_DragDropHandler>& inHandler);

  class Impl;

 private:
  std::unique_ptr<Impl> mImpl;
};

}  // namespace lumui::datatransfer
