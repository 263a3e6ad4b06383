// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <list>
#include <map>
#include <utility>
#include <vector>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"
#include "vek/hierarchyview/ColumnStateChangeMessage.h"
#include "vek/messaging/Listener.h"
#include "vek/trackview/Overlay.h"

namespace vek::hierarchyview {

class MultiColumnHeaderSkin;
class MultiColumnView;

// The titles above a list with columns, in a track view of its own that is as wide as the columns.
// A click sorts, an edge that is dragged resizes its column (a double click fits it), a title that
// is dragged moves it, and a menu hides and shows columns.
//
// It borrows the list. Its creator attaches it to the list's noter, has its view follow the list's
// (PlatformView::DependantDataPosChanged), and takes the list away before that goes. Without a list
// it is empty.
class VEK_API MultiColumnHeaderView : public trackview::Overlay,
                                      public messaging::Listener<ColumnStateChangeMessage const> {
 public:
  using Point = trackview::Point;
  using Rect = trackview::Rect;
  using ColumnSet = std::vector<std::pair<unsigned int, lumcore::UTF16String>>;
  using ColumnSizes = std::map<unsigned int, std::pair<float, float>>;

  // Where a press on the right edge of a column drags it, in units from that edge.
  static constexpr float kHandleLeft = 7.0f;
  static constexpr float kHandleRight = 0.0f;
  static constexpr float kInsertionWidth = 3.0f;

  MultiColumnHeaderView(trackview::TrackView* inTrackView, bool inClickable);
  ~MultiColumnHeaderView() override;

  void DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme> inTheme) const override;
  bool DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) override;
  bool DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) override;
  std::auto_ptr<trackview::Tracker> DoAcquireTracker(
      const Point& inDataPoint, bool inHover,
      trackview::TrackerDragAndDropInterface* inDragAndDrop) override;
  void DoViewPortResized() override;

  // A new sort column, or the other direction for the one that is it.
  virtual void HandleClickInColumn(unsigned short inColumn);
  virtual Point DataViewSize();  // the width of all columns; no height
  virtual float GetViewHeight() const { return mViewHeight; }
  virtual void DataViewResized(Point const& inSize, bool inRedraw);  // does nothing

  void ListenToMessage(ColumnStateChangeMessage const inMessage) override;

  void SetMultiColumnView(MultiColumnView* inView);
  MultiColumnView* GetMultiColumnView() const { return mMultiColumnView; }
  trackview::TrackView* GetTrackView() const { return mTrackView; }
  void SetViewHeight(float inHeight) { mViewHeight = inHeight; }
  void SetDrawTopBorder(bool inDraw) { mDrawTopBorder = inDraw; }
  // Right presses open the menu and do nothing else. Until this is set they are presses like all
  // others: one on a title sorts before the menu opens.
  void SetKeepsRightPressesForMenu(bool inKeeps) { mKeepsRightPressesForMenu = inKeeps; }
  // What the menu offers, in this order, by attribute and title; the first can not be hidden. There
  // is no menu without any.
  void SetColumnSet(ColumnSet const& inColumns) { mColumnSet = inColumns; }
  // The minimum and the width of columns that the menu brings in, by attribute.
  void SetDefaultNewColumnSizes(ColumnSizes const& inSizes) { mDefaultNewColumnSizes = inSizes; }
  // The ghost of the column that is being moved and where it would land; empty ones take them away.
  void SetDragFeedbackRect(Rect const& inRect);
  void SetDragInsertionRect(Rect const& inRect);

  bool PointInResizeHandle(Point const& inDataPoint, unsigned short& outColumn) const;
  // The first column whose handle the rectangle touches, or the last one for a rectangle behind
  // all. outHandle is the bar that marks its edge.
  bool RectContainsResizeHandle(Rect const& inRect, unsigned short& outColumn,
                                Rect& outHandle) const;
  unsigned short GetColIdxForPoint(Point const& inDataPoint) const;  // kNoColumn beside them all
  Rect GetColumnHeaderRect(unsigned short inColumn) const;
  // The three corners of the arrow that the column has when it is the sort column.
  void CalcSortDirectionArrow(unsigned short inColumn, bool inAscending,
                              std::list<Point>& outPoints) const;

  static constexpr unsigned short kNoColumn = 0xFFFF;

 private:
  void TakeColumnsWidth();
  void InvalidateAll();
  bool IsRightPress() const;
  void ToggleColumn(ColumnSet::value_type const& inColumn);
  void DrawGround(Rect const& inArea, lumui::drawbot::Drawbot& inDrawbot,
                  lumui::ui::Theme const& inTheme) const;
  void DrawColumn(unsigned short inColumn, lumui::drawbot::Drawbot& inDrawbot,
                  lumui::ui::Theme const& inTheme, MultiColumnHeaderSkin const* inSkin) const;
  void DrawSortArrow(unsigned short inColumn, Rect const& inCell,
                     lumui::drawbot::Drawbot& inDrawbot, lumui::ui::Theme const& inTheme,
                     MultiColumnHeaderSkin const* inSkin) const;
  void DrawDragFeedback(lumui::drawbot::Drawbot& inDrawbot, lumui::ui::Theme const& inTheme) const;
  Rect ToLocal(Rect inRect) const;

  MultiColumnView* mMultiColumnView = nullptr;
  float mViewHeight = 0;
  bool mDrawTopBorder = true;
  bool mClickable;
  trackview::TrackView* mTrackView;
  Rect mDragFeedbackRect;
  Rect mDragInsertionRect;
  ColumnSet mColumnSet;
  ColumnSizes mDefaultNewColumnSizes;
  float mDefaultMinWidth = 15.0f;
  float mDefaultWidth = 100.0f;
  bool mKeepsRightPressesForMenu = false;
  boost::shared_ptr<char> mAlive{new char(0)};  // for calls in which somebody may take this away
};

}  // namespace vek::hierarchyview
