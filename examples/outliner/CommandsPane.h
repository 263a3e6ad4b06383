// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <functional>

#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {
class UI_ScrollView;
}

namespace outliner {

class CommandsView;

// The commands in a list, under a field that looks for some of them.
class CommandsPane final : public lumui::ui::UI_SubView {
 public:
  explicit CommandsPane(std::function<void(int)> inRun);
  ~CommandsPane() override;

  void FocusList();
  CommandsView& GetList() { return *mList; }
  lumui::controls::UI_TextEdit& GetSearch() { return *mSearch; }

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  boost::intrusive_ptr<lumui::controls::UI_TextEdit> mSearch;
  boost::intrusive_ptr<CommandsView> mList;
  boost::intrusive_ptr<lumui::controls::UI_ScrollView> mScrollView;
  boost::shared_ptr<lumui::controls::UI_InteractiveControlView::ChangedFunction> mEdited;
};

}  // namespace outliner
