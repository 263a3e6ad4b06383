// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <list>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "vek/config/Export.h"

namespace lumui::drawbot {
class ImageInterface;
}
namespace lumui::ui {
class KeyboardEvent;
class UI_Node;
}  // namespace lumui::ui
namespace vek::selection {
class Node;
}

namespace vek {

class UIMultiTreeListNode;
class UIMultiTreeListView;

// What a host says about the rows of its lists, and hears of them. One controller may serve several
// lists; each call says which one it is for. It is borrowed: who is a controller takes itself away
// (UIMultiTreeListView::SetController) before it goes. Of the operations none has to be overridden.
class VEK_API UIMultiTreeListController {
 public:
  virtual ~UIMultiTreeListController();

  // The column by its number as it was made, whatever has been moved since.
  virtual void GetTextForNode(UIMultiTreeListView& inView, UIMultiTreeListNode const& inNode,
                              unsigned int inColumn, lumcore::UTF16String& outText);  // empty
  // Null for none; asked only where the list has icons.
  virtual boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetIconForNode(
      UIMultiTreeListView& inView, UIMultiTreeListNode const& inNode);
  virtual bool IsSelectable(UIMultiTreeListView& inView,
                            UIMultiTreeListNode const& inNode);  // true
  // What is selected in place of the row's own node, and of no other row; null for that one.
  virtual selection::Node* GetDataAsSelNode(UIMultiTreeListView& inView,
                                            UIMultiTreeListNode const& inNode);
  // True takes the event. A double click that is left opens and closes the row, a key does what
  // keys do in lists, a menu is not opened.
  virtual bool OnDoubleClick(UIMultiTreeListView& inView, UIMultiTreeListNode& inNode);
  virtual bool OnKeyEvent(UIMultiTreeListView& inView, lumui::ui::KeyboardEvent const& inEvent);
  // inNode is null beside all rows. The point is for lumui::ui::UI_DoContextMenu on inUINode.
  virtual bool OnContextMenu(UIMultiTreeListView& inView, UIMultiTreeListNode* inNode,
                             lumcore::geom::PointT<float> const& inPoint,
                             lumui::ui::UI_Node& inUINode);
  // What is selected now, from top to bottom.
  virtual void OnSelectionChanged(UIMultiTreeListView& inView,
                                  std::list<UIMultiTreeListNode*> const& inSelected);
  virtual void OnGainedKeyFocus(UIMultiTreeListView& inView);
  virtual void OnLostKeyFocus(UIMultiTreeListView& inView);
  virtual void OnSizeChanged(UIMultiTreeListView& inView);
};

}  // namespace vek
