// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {

class UI_InteractiveControlChangedMessage;
class UI_ScrollView;

// One of the two bars of a scroll view, which makes, places and shows it. It is a picture of the
// view's offset: the offset is kept by the view, in units of the content.
class LUMUI_API UI_ScrollBar : public ui::UI_SubView {
 public:
  using ChangedFunction = boost::function<void(UI_InteractiveControlChangedMessage*)>;

  ~UI_ScrollBar() override;

  bool IsHorizontal() const { return mHorizontal; }
  float GetThickness() const;  // units of the window

  // The function is called after the user has moved the view by bar or wheel along this axis, not
  // when the program has. Clearing it takes it back.
  void NotifyWhenChangedInteractively(const boost::shared_ptr<ChangedFunction>& inFunction);

  // The wheel over a bar turns the view.
  bool UI_DoMouseWheel(ui::UI_Node* inNode, const ui::WheelEvent& inEvent) override;

 private:
  friend class UI_ScrollView;
  class Peer;

  explicit UI_ScrollBar(bool inHorizontal);
  Peer* GetBarPeer() const;
  void NotifyChanged();

  bool mHorizontal;
  std::vector<boost::shared_ptr<ChangedFunction>> mChangedFunctions;
};

}  // namespace lumui::controls
