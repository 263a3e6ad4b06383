// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_SubView.h"

#include <algorithm>
#include <utility>

#include "lumcore/utility/ScopedValue.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

namespace {

using Point = lumcore::geom::PointT<float>;
using Rect = lumcore::geom::RectT<float>;

// Start and size along one axis.
struct Extent {
  float start = 0;
  float size = 0;
};

Extent Bound(Extent inDesign, float inGrowth, bool inBindStart, bool inBindEnd) {
  const float start = inDesign.start + (inBindStart ? inGrowth : 0);
  const float end = inDesign.start + inDesign.size + (inBindEnd ? inGrowth : 0);
  return {start, std::max(0.0f, end - start)};
}

// What a limit takes or gives comes from the end, but from the start of what hangs on the end.
Extent Limited(Extent inExtent, float inLeast, float inMost, bool inKeepEnd) {
  float size = inExtent.size;
  if (inMost > 0) size = std::min(size, inMost);
  size = std::max(size, inLeast);
  return {inKeepEnd ? inExtent.start + inExtent.size - size : inExtent.start, size};
}

// A view's extent shared between what keeps its size and what scales.
struct Factors {
  float margins = 1;
  float sizes = 1;
};

Factors Share(float inRoom, float inMargins, float inSizes, const AutoLayout& inLayout) {
  const bool scaleMargins = !inLayout.maintainMargins;
  const bool scaleSizes = inLayout.scaleChildren;
  const float fixed = (scaleMargins ? 0 : inMargins) + (scaleSizes ? 0 : inSizes);
  const float scaling = inMargins + inSizes - fixed;
  const float factor = scaling > 0 ? std::max(0.0f, inRoom - fixed) / scaling : 1;
  return {scaleMargins ? factor : 1, scaleSizes ? factor : 1};
}

}  // namespace

UI_SubView::UI_SubView() = default;

UI_SubView::UI_SubView(std::unique_ptr<NodePeer> inPeer) : UI_Node(std::move(inPeer)) {}

UI_SubView::~UI_SubView() = default;

void UI_SubView::SetBindings(const LayoutBindings& inBindings) {
  mBindings = inBindings;
  mDesign.reset();
}

void UI_SubView::UI_SetLocalRectF(const Rect& inRect) {
  if (!mBeingPlaced) mDesign.reset();
  UI_Node::UI_SetLocalRectF(inRect);
}

void UI_SubView::Place(const Rect& inRect) {
  const lumcore::utility::StScopedValue<bool> placed(mBeingPlaced, true);
  UI_SetLocalRectF(inRect);
}

void UI_SubView::NeedDesign(const Point& inParentSize) {
  const UI_Node* const parent = UI_GetParentNode();
  if (!mDesign || mDesign->parent != parent) {
    mDesign = Design{UI_GetLocalRectF(), inParentSize, parent};
  }
}

void UI_SubView::UI_SizeChanged(const Rect& inRect) {
  UI_Node::UI_SizeChanged(inRect);
  LayOutChildren();
}

void UI_SubView::LayOutChildren() {
  const Point size(UI_GetLocalRectF().width, UI_GetLocalRectF().height);
  // The children of a view that had no size yet stand where they shall be in the first one.
  const bool isFirst = mSizeBefore.x <= 0 && mSizeBefore.y <= 0;
  const Point before = isFirst ? size : std::exchange(mSizeBefore, size);
  mSizeBefore = size;
  if (!mLayoutChildren) return;
  for (std::size_t i = 0; i < UI_GetChildCount(); ++i) {
    if (auto* const child = dynamic_cast<UI_SubView*>(UI_GetChild(i))) child->NeedDesign(before);
  }
  if (mAutoLayout.enabled) return LineUpChildren(size);
  for (std::size_t i = 0; i < UI_GetChildCount(); ++i) {
    auto* const child = dynamic_cast<UI_SubView*>(UI_GetChild(i));
    if (child && child->mBindings.HasAny()) child->Place(child->BoundRect(size));
  }
}

Rect UI_SubView::BoundRect(const Point& inParentSize) const {
  const LayoutBindings& bind = mBindings;
  const Rect& rect = mDesign->rect;
  const Point growth = inParentSize - mDesign->parentSize;
  Extent x = Bound({rect.x, rect.width}, growth.x, bind.leftToParentRight, bind.rightToParentRight);
  Extent y =
      Bound({rect.y, rect.height}, growth.y, bind.topToParentBottom, bind.bottomToParentBottom);
  if (bind.centerHorizontal) x.size = rect.width;
  if (bind.centerVertical) y.size = rect.height;
  x = Limited(x, mConstraints.minWidth, mConstraints.maxWidth, bind.leftToParentRight);
  y = Limited(y, mConstraints.minHeight, mConstraints.maxHeight, bind.topToParentBottom);
  if (bind.centerHorizontal) x.start = (inParentSize.x - x.size) / 2;
  if (bind.centerVertical) y.start = (inParentSize.y - y.size) / 2;
  return Rect(x.start, y.start, x.size, y.size);
}

void UI_SubView::LineUpChildren(const Point& inSize) {
  const bool horizontal = mAutoLayout.horizontal;
  const auto along = [&](const Rect& inRect) {
    return horizontal ? Extent{inRect.x, inRect.width} : Extent{inRect.y, inRect.height};
  };
  struct Entry {
    UI_SubView* child;
    float margin;  // before it
    float size;
  };
  std::vector<Entry> row;
  float end = 0;
  float margins = 0;
  float sizes = 0;
  float whole = 0;
  for (std::size_t i = 0; i < UI_GetChildCount(); ++i) {
    auto* const child = dynamic_cast<UI_SubView*>(UI_GetChild(i));
    if (!child) continue;
    const Design& design = *child->mDesign;
    const Extent extent = along(design.rect);
    if (child->UI_IsVisible()) {
      row.push_back({child, extent.start - end, extent.size});
      margins += row.back().margin;
      sizes += extent.size;
    }
    end = extent.start + extent.size;
    whole = horizontal ? design.parentSize.x : design.parentSize.y;
  }
  margins += whole - end;
  const Factors factors = Share(horizontal ? inSize.x : inSize.y, margins, sizes, mAutoLayout);
  float at = 0;
  for (const Entry& entry : row) {
    Rect rect = entry.child->BoundRect(inSize);
    at += entry.margin * factors.margins;
    const float size = entry.size * factors.sizes;
    (horizontal ? rect.x : rect.y) = at;
    (horizontal ? rect.width : rect.height) = size;
    entry.child->Place(rect);
    at += size;
  }
}

}  // namespace lumui::ui
