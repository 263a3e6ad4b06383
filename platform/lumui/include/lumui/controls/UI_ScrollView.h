// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumcore/utility/Flags.h"
#include "lumui/controls/Glide.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {

class UI_ScrollBar;

// A window on a content that may be far larger than any window. The content node has the size of
// the scroll view and lies under the two bars, which show when they are needed; only its
// coordinates move: it draws, is invalidated and gets pointer positions in those of the content.
//
// The wheel moves it by lines, fingers on a touch pad by their own way. Where the system has no
// momentum of its own, it goes on for a while when the fingers leave it in motion, until it comes
// to rest, to an end of the content, under other fingers or to where somebody else moves it.
class LUMUI_API UI_ScrollView : public ui::UI_SubView {
 public:
  static constexpr unsigned kNoHorizontalBar = 1;
  static constexpr unsigned kNoVerticalBar = 2;

  // The content node becomes a child. It is never null (a contract).
  UI_ScrollView(lumcore::utility::Flags<unsigned int> inFlags,
                const boost::intrusive_ptr<ui::UI_Node>& inContent);
  ~UI_ScrollView() override;

  ui::UI_Node* GetContentNode() const { return mContent.get(); }
  UI_ScrollBar* GetScrollBarX() const { return mBarX.get(); }  // never null
  UI_ScrollBar* GetScrollBarY() const { return mBarY.get(); }

  // What there is to be seen, in units of the content. Takes effect with Update.
  void SetContentRectF(const lumcore::geom::RectT<float>& inRect);
  const lumcore::geom::RectT<float>& GetContentRectF() const { return mContentRect; }
  // Shows and hides bars, limits the offset to the content and asks for drawing.
  void Update();

  // What is to be seen now: the offset, and the size without the bars that show.
  lumcore::geom::RectT<float> GetViewedContentRectF() const;
  // Moves as little as brings the rectangle into view; of one that is too large the near edges are
  // shown. inDrawNow draws before it returns.
  void ScrollIntoView(const lumcore::geom::RectT<float>& inRect, bool inDrawNow);
  // The offset in full precision. Setting limits it to the content and tells no listener.
  lumcore::geom::PointT<double> GetOffset() const { return mOffset; }
  void SetOffset(const lumcore::geom::PointT<double>& inOffset);
  // How far an arrow of a bar, or a third of a notch of the wheel, moves; 20 at start.
  void SetLineStep(float inUnits);
  float GetLineStep() const { return mLineStep; }
  // Whether scrolling moves what is on the screen already, so that only what comes into view is
  // drawn. False at start. It is for a content that is opaque, as this makes it, and of which
  // nothing stands still while the rest moves.
  void SetMovesPicture(bool inMoves);

  bool UI_DoMouseWheel(ui::UI_Node* inNode, const ui::WheelEvent& inEvent) override;
  void UI_DoTimerNotify(unsigned int inTimerID) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;
  // Whether the offset stays within the content. The base operation answers true.
  virtual bool DoLimitsToContent() const;

 private:
  friend class UI_ScrollBar;
  class Corner;

  // A move by the user along one axis, in units; tells the listeners if anything moved.
  void ScrollByUser(bool inHorizontal, double inDistance);
  void SetBarOffsetByUser(bool inHorizontal, double inOffset);  // from the start of the content
  bool MoveTo(const lumcore::geom::PointT<double>& inWanted);
  lumcore::geom::PointT<double> Limited(const lumcore::geom::PointT<double>& inOffset) const;
  lumcore::geom::PointT<double> GetViewSize() const;
  void PlaceBars();
  void ShowOffsetInBars();
  void StopGlide();
  bool MovePicture(const lumcore::geom::PointT<double>& inOldOffset);

  lumcore::utility::Flags<unsigned int> mFlags;
  boost::intrusive_ptr<ui::UI_Node> mContent;
  boost::intrusive_ptr<UI_ScrollBar> mBarX;
  boost::intrusive_ptr<UI_ScrollBar> mBarY;
  boost::intrusive_ptr<Corner> mCorner;  // between the ends of the bars
  lumcore::geom::RectT<float> mContentRect;
  lumcore::geom::PointT<double> mWanted;  // with the fractions that are less than a device's unit
  lumcore::geom::PointT<double> mOffset;
  Glide mGlide;
  bool mGlides = false;  // the timer runs
  float mLineStep = 20;
  bool mMovesPicture = false;
};

// A scroll view whose owner decides on the offset: it may lie anywhere, also outside the content.
class LUMUI_API UI_ManualScrollView : public UI_ScrollView {
 public:
  using UI_ScrollView::UI_ScrollView;
  ~UI_ManualScrollView() override;

 protected:
  bool DoLimitsToContent() const override;
};

}  // namespace lumui::controls
