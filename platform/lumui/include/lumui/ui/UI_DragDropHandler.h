// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/ModifierKeys.h"

namespace lumui::ui {

enum class DropEffect { kNone, kCopy, kMove, kLink };

// What is dragged, and where it is now.
struct DropEvent {
  std::vector<lumcore::UTF16String> files;  // full paths
  lumcore::UTF16String text;                // empty for none
  lumcore::geom::PointT<int> position;      // local to the node that is asked, else to the window
  ModifierKeys modifiers;
  DropEffect proposed = DropEffect::kNone;  // by the source and the keys that are held
};

// Takes what is dropped from elsewhere. A node that derives from it is asked for what is dragged
// over it, and over the nodes within it that do not. After an enter comes a leave or a drop.
class LUMUI_API UI_DragDropHandler {
 public:
  virtual ~UI_DragDropHandler();

  // What a drop here would do; kNone refuses it.
  virtual DropEffect DragEnter(const DropEvent& inEvent) = 0;
  virtual DropEffect DragOver(const DropEvent& inEvent) = 0;
  virtual void DragLeave() = 0;
  // What it has done.
  virtual DropEffect Drop(const DropEvent& inEvent) = 0;

 protected:
  UI_DragDropHandler() = default;
  UI_DragDropHandler(const UI_DragDropHandler&) = default;
  UI_DragDropHandler& operator=(const UI_DragDropHandler&) = default;
};

}  // namespace lumui::ui
