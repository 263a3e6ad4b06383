// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <utility>

#include "OutlineRow.h"
#include "RowPainter.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/UI_SubView.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/undo/MultiUndoer.h"

namespace lumui::controls {
class UI_ScrollView;
}

namespace outliner {

class OutlineDocument;
class RowEditor;

// Shows the rows of a document as the content of a scroll view, and turns keys and clicks into
// selection and typing. Keys that are not for a text it leaves to the window. It draws only the
// rows that the damage touches, so that the length of the outline does not matter.
//
// It belongs to its parent node. The document is borrowed until Detach; behind that the view is
// blank and deaf.
class OutlineView final
    : public lumui::ui::UI_SubView,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  explicit OutlineView(OutlineDocument& inDocument);
  void Detach();

  // The scroll view that this is the content of.
  void SetScrollView(lumui::controls::UI_ScrollView* inScrollView);
  // Scrolls as little as brings the row into view.
  void ShowRow(const OutlineRow& inRow);
  // Opened by a press of the right button, with a place on the screen; what is under the pointer is
  // selected then.
  using MenuFunction = std::function<void(const lumcore::geom::PointT<int>&)>;
  void SetMenuFunction(MenuFunction inOpenMenu) { mOpenMenu = std::move(inOpenMenu); }
  // The row that an edit begins in or ends in looks different.
  void EditorChanged();

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  bool UI_WantsKeyboardFocus() const override { return true; }
  void UI_FocusChanged(int inReason) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  using Rect = lumcore::geom::RectT<float>;

  void ListenToMessage(const vek::selection::SelectionChangeMessage& inMessage) override;
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override;

  RowLook LookOf(const OutlineRow& inRow) const;
  Rect RectOfLine(std::size_t inLine) const;
  void InvalidateRow(const OutlineRow& inRow);
  void UpdateContentSize();
  OutlineRow* RowAt(float inY) const;  // null beside the rows
  void OpenMenu(const lumui::ui::MouseEvent& inEvent);
  void Press(const lumui::ui::MouseEvent& inEvent);
  void SelectWithMouse(OutlineRow& inRow, lumui::ui::ModifierKeys inModifiers);

  OutlineDocument* mDocument;
  RowEditor* mEditor;  // the document's
  MenuFunction mOpenMenu;
  lumui::controls::UI_ScrollView* mScrollView = nullptr;
  RowPainter mPainter;
  // Where a range by Shift and click begins; 0 once anything but a click has changed the selection.
  OutlineRow::Id mAnchor = 0;
  bool mIsSelecting = false;
};

}  // namespace outliner
