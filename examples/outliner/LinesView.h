// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>

#include "lumcore/Strings.h"
#include "lumui/ui/Accessible.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {
class UI_ScrollView;
}

namespace outliner {

// Lines of one height below each other, of which one may be the present one: what a subclass says
// they are, asked for when they are drawn, so that their number does not matter. A click, an arrow
// or a page key chooses a line, a double click or Return chooses it for good; the subclass does
// what that means, and may throw.
class LinesView : public lumui::ui::UI_SubView, private lumui::ui::AccessibleItems {
 public:
  static constexpr std::size_t kNoLine = static_cast<std::size_t>(-1);

  explicit LinesView(float inLineHeight);

  // The view with the lines in it, which scrolls them.
  boost::intrusive_ptr<lumui::controls::UI_ScrollView> MakeScrollView();
  // After the lines or the present one have changed. Brings the present one into view if it is
  // another.
  void LinesChanged();

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  bool UI_WantsKeyboardFocus() const override { return true; }
  void UI_FocusChanged(int inReason) override;
  lumui::ui::AccessibleItems* UI_GetAccessibleItems() override { return this; }

 protected:
  using Rect = lumcore::geom::RectT<float>;

  virtual std::size_t CountLines() const = 0;
  virtual std::size_t GetPresentLine() const = 0;  // kNoLine for none
  virtual void DrawLine(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inLine, const Rect& inPlace,
                        bool inIsLit) const = 0;  // lit: on the colour of a selection
  virtual lumcore::UTF16String TextOfLine(std::size_t inLine) const = 0;
  virtual lumcore::UTF16String NameOfList() const = 0;
  virtual lumcore::UTF16String TextOfNoLines() const = 0;
  virtual void Choose(std::size_t inLine, bool inIsFinal) = 0;

 private:
  using ID = lumui::ui::AccessibleID;

  int GetChildCount(const ID& inParent) const override;
  ID GetChild(const ID& inParent, int inIndex) const override;
  ID GetParent(const ID& inItem) const override;
  int GetIndex(const ID& inItem) const override;
  bool Describe(const ID& inItem, lumui::ui::AccessibleItem& outItem) const override;
  ID GetAt(const lumcore::geom::PointT<float>& inPosition) const override;
  ID GetFocus() const override;
  bool Perform(const ID& inItem, lumui::ui::AccessibleAction inAction) override;

  Rect RectOfLine(std::size_t inLine) const;
  std::size_t LineAt(float inY) const;  // kNoLine beside all
  std::size_t FindKeyTarget(unsigned inCode) const;
  void ShowLine(std::size_t inLine);

  float mLineHeight;
  lumui::controls::UI_ScrollView* mScrollView = nullptr;  // holds this
  std::size_t mCount = 0;                                 // as they were told last
  std::size_t mPresent = kNoLine;
};

}  // namespace outliner
