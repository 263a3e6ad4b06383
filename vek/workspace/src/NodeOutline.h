// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include "lumcore/utility/RefCounted.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::ui {
class OS_Window;
}

namespace vek::workspace {

// Four thin bars around a node, in front of all others of its window, so that whatever lies between
// them gets its events as before.
class NodeOutline : public lumcore::utility::RefCountedObject {
 public:
  NodeOutline();
  ~NodeOutline() override;

  // Null takes it away.
  void Show(const lumui::ui::UI_Node* inNode);
  // While it changes its window's nodes.
  bool IsChanging() const { return mIsChanging; }
  // A bar of any outline.
  static bool IsPart(const lumui::ui::UI_Node& inNode);

 private:
  class Bar;

  std::array<boost::intrusive_ptr<Bar>, 4> mBars;
  bool mIsChanging = false;
};

}  // namespace vek::workspace
