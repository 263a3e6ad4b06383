// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {
class UI_ScrollView;
}

namespace outliner {

// All commands of the registry in a list, with their keys and what they do, as the content of a
// scroll view. Their states and texts are what the command chain says, as far as Update is called
// when that may be another. It runs none itself.
//
// A double click or Return chooses; the arrows move; keys that type are told as a search.
class CommandsView final : public lumui::ui::UI_SubView {
 public:
  struct Functions {
    std::function<void(int)> run;                                // a command that is enabled
    std::function<void(const lumcore::UTF16String&)> searchFor;  // with what was typed
    std::function<lumcore::UTF16String()> getSearch;
  };

  explicit CommandsView(Functions inFunctions);
  ~CommandsView() override;

  void SetScrollView(lumui::controls::UI_ScrollView* inScrollView);
  // Only commands that have the text in their name or description; an empty one shows all.
  void SetFilter(const lumcore::UTF16String& inText);
  void Update();

  // What is listed, "> Save Ctrl+S" for the chosen one and "~ Redo Ctrl+Y" for one that is
  // disabled, a line each.
  lumcore::UTF16String AsText() const;

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  bool UI_WantsKeyboardFocus() const override { return true; }
  void UI_FocusChanged(int inReason) override;
  lumui::ui::AccessibleItems* UI_GetAccessibleItems() override;

 private:
  class Accessible;
  struct Line {
    int command;
    lumcore::UTF16String name;
    lumcore::UTF16String description;
    lumcore::UTF16String keys;
    bool isEnabled;
    bool isChecked;
  };

  Line LineOf(int inCommand) const;
  bool Matches(const Line& inLine) const;
  bool HandleKey(const lumui::ui::KeyboardEvent& inEvent);
  void Choose(std::size_t inLine);
  void RunChosen();
  std::size_t GetPage() const;
  std::optional<std::size_t> FindLine(float inY) const;
  lumcore::geom::RectT<float> RectOf(std::size_t inLine) const;
  void DrawLine(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inLine) const;

  Functions mFunctions;
  lumui::controls::UI_ScrollView* mScrollView = nullptr;
  lumcore::UTF16String mFilter;
  std::vector<Line> mLines;
  std::size_t mChosen = 0;
  std::unique_ptr<Accessible> mAccessible;
};

}  // namespace outliner
