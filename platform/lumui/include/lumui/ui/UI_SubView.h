// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "lumui/ui/UI_Node.h"

namespace lumui::ui {

// How a node follows the edges of its parent. An edge that is not bound keeps its distance to the
// left or the top, a bound one to the right or the bottom. Centring overrules the bindings of its
// axis and keeps the size.
struct LayoutBindings {
  bool leftToParentRight = false;
  bool rightToParentRight = false;
  bool topToParentBottom = false;
  bool bottomToParentBottom = false;
  bool centerHorizontal = false;
  bool centerVertical = false;

  bool HasAny() const {
    return leftToParentRight || rightToParentRight || topToParentBottom || bottomToParentBottom ||
           centerHorizontal || centerVertical;
  }
};

// How a view lines up its children, one behind the other; hidden ones take no room, nor the margin
// before them. What scales shares the room that what does not scale leaves; where all scales, all
// keep their proportions, and where nothing does the row ends where it ends.
struct AutoLayout {
  bool enabled = false;
  bool horizontal = false;       // else from top to bottom
  bool maintainMargins = false;  // else the margins scale
  bool scaleChildren = false;    // else the children keep their sizes
};

// Limits of a size; 0 for none. The least wins over the most.
struct LayoutConstraints {
  float minWidth = 0;
  float minHeight = 0;
  float maxWidth = 0;
  float maxHeight = 0;
};

// A node inside a window: what hosts derive their drawn views from, and a plain holder of others.
//
// When its size changes it lays out those of its children that are sub-views and have bindings, or
// all of them if it lines them up. Each is placed from the rectangle that somebody has given it and
// the size that the parent had then, never from what the layout made of it, so that a window that
// was small for a while comes back as it was. A child that is given a rectangle starts anew.
class LUMUI_API UI_SubView : public UI_Node {
 public:
  UI_SubView();
  ~UI_SubView() override;

  void SetBindings(const LayoutBindings& inBindings);
  const LayoutBindings& GetBindings() const { return mBindings; }
  void SetConstraints(const LayoutConstraints& inConstraints) { mConstraints = inConstraints; }
  const LayoutConstraints& GetConstraints() const { return mConstraints; }
  // Whether the view lays out its children at all; true at start.
  void SetLayoutChildren(bool inLayout) { mLayoutChildren = inLayout; }
  bool GetLayoutChildren() const { return mLayoutChildren; }
  void SetAutoLayout(const AutoLayout& inLayout) { mAutoLayout = inLayout; }
  const AutoLayout& GetAutoLayout() const { return mAutoLayout; }
  // Lays out now, after a child was shown or hidden.
  void LayOutChildren();

  void UI_SetLocalRectF(const lumcore::geom::RectT<float>& inRect) override;

 protected:
  explicit UI_SubView(std::unique_ptr<NodePeer> inPeer);
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  // What a child was given, and how large its parent was then.
  struct Design {
    lumcore::geom::RectT<float> rect;
    lumcore::geom::PointT<float> parentSize;
    const UI_Node* parent = nullptr;
  };

  void NeedDesign(const lumcore::geom::PointT<float>& inParentSize);
  lumcore::geom::RectT<float> BoundRect(const lumcore::geom::PointT<float>& inParentSize) const;
  void Place(const lumcore::geom::RectT<float>& inRect);
  void LineUpChildren(const lumcore::geom::PointT<float>& inSize);

  LayoutBindings mBindings;
  LayoutConstraints mConstraints;
  AutoLayout mAutoLayout;
  bool mLayoutChildren = true;
  bool mBeingPlaced = false;
  lumcore::geom::PointT<float> mSizeBefore;
  std::optional<Design> mDesign;
};

}  // namespace lumui::ui
