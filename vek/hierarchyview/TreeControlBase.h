// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Color.h"
#include "lumui/drawbot/Font.h"
#include "vek/config/Export.h"
#include "vek/hierarchyview/AccessibleRows.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/hierarchyview/TreeRowGeometry.h"
#include "vek/trackview/Overlay.h"

namespace lumui::drawbot {
class ImageInterface;
class SupplierInterface;
}  // namespace lumui::drawbot

namespace vek::hierarchyview {

// How a drop target is shown.
enum EDragFeedbackType : std::uint32_t {
  kDragFeedbackBox = 0,        // a rounded box around it
  kDragFeedbackInsertion = 1,  // a line with a marker at its left
};

// Shows a tree of entries in a track view, which owns the control as one of its overlays: rows from
// top to bottom, opening and closing, the keyboard with type-ahead, a focus item, a rubber band and
// drop feedback. It owns the root, the geometry and the factory of row geometries; what a row
// contains and what is selected is the subclass's. A plain tree with a selection of its own is a
// BasicTreeControlBase.
//
// After construction it is empty: BuildHierarchy fills it. Who changes the tree's shape then calls
// ResizeHierarchy. Until that call rows are found by walking from the top, never by what the last
// paint remembers, so an entry may go at any time. All positions are in data units of the view.
// One thread, that of the view's events, has it to itself.
class VEK_API TreeControlBase : public trackview::Overlay, public AccessibleRows {
 public:
  using Point = trackview::Point;
  using Rect = trackview::Rect;
  using EntryList = std::list<HierarchyEntryBase*>;
  using TwistyColorFunction =
      boost::function<lumui::drawbot::ColorRGBA(HierarchyEntryBase const* inEntry)>;

  // inIndent is the step per level in units. The track view outlives the control.
  TreeControlBase(trackview::TrackView* inTrackView, bool inHideRoot, unsigned short inIndent,
                  bool inIsSingleSelect, bool inAllowsDragOut);
  ~TreeControlBase() override;

  // Overlay
  void DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme> inTheme) const override;
  std::auto_ptr<trackview::Tracker> DoAcquireTracker(
      const Point& inDataPoint, bool inHover,
      trackview::TrackerDragAndDropInterface* inDragAndDrop) override;
  bool DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) override;
  void DoTimerEvent(unsigned int inTimerID) override;

  // The keyboard has moved the selection.
  virtual void SelectionChanged();  // does nothing
  // Tells the view how large the tree is now, and that positions have changed. Nothing before the
  // hierarchy is built, or while the view cannot draw yet.
  virtual void ResizeHierarchy();
  virtual void ExpandAll();  // every entry that can expand, with one resize at the end
  // Without a resize the caller sends one, as for a batch. Neither asks whether the entry can.
  virtual void ExpandNode(HierarchyEntryBase* inEntry, bool inResize);
  virtual bool CanExpandNode(HierarchyEntryBase const* inEntry) const;
  virtual void CollapseNode(HierarchyEntryBase* inEntry, bool inResize);
  virtual bool CanCollapseNode(HierarchyEntryBase const* inEntry) const;
  virtual void GotoLast();  // these two scroll and change neither selection nor focus
  virtual void GotoFirst();
  // In place of the theme's.
  virtual void SetBackgroundColor(lumui::drawbot::ColorRGBA const& inColor);
  virtual void SetCustomTextColor(lumui::drawbot::ColorRGBA const& inColor);
  virtual void SetCustomSelectionColor(lumui::drawbot::ColorRGBA const& inColor);

 protected:
  // Makes the root, with SetRootEntry, and the entries.
  virtual void DoBuildHierarchy() = 0;
  // For a host's idle work: nothing here calls these.
  virtual void SetupIdleTimeCallback();
  virtual void ReleaseIdleTimeCallback();

 public:
  virtual int NumSelectedEntries() = 0;
  // The row that the keyboard goes on from; null for none. Without inInvalidate the old one is
  // neither drawn anew nor loses its marquee: that is for an entry which is on its way out.
  virtual void SetFocusItem(HierarchyEntryBase* inEntry, bool inInvalidate);
  // The selection that rows show; not null once the hierarchy is built.
  virtual selection::Manager* GetSelectionManager() const = 0;
  virtual selection::Manager* GetSelectionManager() = 0;

 protected:
  virtual std::auto_ptr<HierarchyGeometry> CreateGeometry();
  virtual std::auto_ptr<TreeRowGeometryFactory> CreateRowGeometryFactory() = 0;
  virtual void DoDeselectAll() = 0;
  // inExtend keeps what is selected.
  virtual void DoSelectEntry(HierarchyEntryBase* inEntry, bool inExtend) = 0;
  // Flips each entry once for each time that it stands in the list: one that stands there twice
  // stays as it is. One call is one change of the selection.
  virtual void DoToggleEntrySelectionState(EntryList& ioEntries) = 0;

 public:
  // For rows that show what opens them as a picture. The control itself draws triangles.
  virtual boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetExpandedTwisty();
  virtual boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetUnExpandedTwisty();

 protected:
  // The attribute whose text typing looks in.
  virtual unsigned int GetTypeAheadID() const;  // 0
  virtual void DoDrawItemDropFeedback(lumui::drawbot::Drawbot& inDrawbot,
                                      boost::intrusive_ptr<lumui::ui::Theme> inTheme,
                                      std::auto_ptr<TreeRowGeometry> const& inRow) const;
  virtual void DoDrawViewDropFeedback(lumui::drawbot::Drawbot& inDrawbot,
                                      boost::intrusive_ptr<lumui::ui::Theme> inTheme) const;
  // Who takes a drag over the tree; nobody unless a host says otherwise.
  virtual std::auto_ptr<trackview::Tracker> DoServeDropTracker(
      const Point& inDataPoint, bool inHover,
      trackview::TrackerDragAndDropInterface* inDragAndDrop);
  // A drag of rows begins; the point is where the button went down.
  virtual void DoStartDragOut(const Point& inDataPoint);  // does nothing
  // Enter: opens what is selected. True takes the key.
  virtual bool DoProcessOnOpenSelected();  // false

 public:
  // The factory, the entries, the geometry, the size, in this order; what was there is replaced.
  void BuildHierarchy();

  // Where a walk to the row at the point may start: the last painted row that starts above it, the
  // first painted one if none does, or begin() while nothing that was painted is good any more.
  // Needs the hierarchy to be built.
  HierarchyGeometry::iterator FindEntryInCache(const Point& inDataPoint);
  // The row that a press at the point is for: the last painted one that starts above it, or, before
  // anything is painted, the one that is there. On null if there is none.
  HierarchyGeometry::iterator FindRowAt(const Point& inDataPoint);
  std::auto_ptr<TreeRowGeometry> GetEntryGeometry(HierarchyGeometry::iterator const& inRow);
  Rect GetHighlightRect(HierarchyGeometry::iterator const& inRow);
  // Empty for an entry that is no row at present. It costs a walk down to the row.
  Rect GetHighlightRect(HierarchyEntryBase const* inEntry);
  // As if the entry were at (0, inTop); no walk.
  Rect GetHighlightRect(HierarchyEntryBase const* inEntry, float inTop);
  // Has the row's text drawn anew; null and an entry that is no row do nothing.
  void UpdateNodeArea(HierarchyEntryBase const* inEntry);

  // Takes the entry out of its parent, which it must have (a contract), and out of the focus. The
  // caller follows with ResizeHierarchy.
  void RemoveEntry(HierarchyEntryBase* inEntry);
  void SelectEntry(HierarchyEntryBase* inEntry, bool inExtend);
  void DeselectAll();  // the focus goes too
  // The focus goes if its entry is not selected afterwards.
  void ToggleEntrySelectionState(EntryList& ioEntries);
  // From the selected row, or of several from the one with the focus, to the next. Down does
  // nothing where there is none to start from; up then selects the last row.
  void SelectNext();
  void SelectPrevious();
  // Open or close every selected row that can; false if there was none.
  bool SelectedHasChildrenExpand();
  bool SelectedHasChildrenCollapse();

  // The drop target: a row, null for none, or the whole view.
  void SetDragFeedback(HierarchyEntryBase* inEntry, bool inOnView);
  void SetMarqueeRect(const Rect& inDataRect);  // empty takes the rubber band away
  void StartDragOut(const Point& inDataPoint);

  HierarchyEntryBase* GetFocusItem() const { return mFocusItem; }        // may be null
  HierarchyEntryBase* GetRootEntry() const { return mRootEntry.get(); }  // may be null
  HierarchyGeometry* GetGeometry() const { return mGeometry.get(); }     // may be null
  TreeRowGeometryFactory* GetRowGeometryFactory() const { return mRowGeometryFactory.get(); }
  trackview::TrackView* GetTrackView() const { return mTrackView; }
  bool GetHideRoot() const { return mHideRoot; }
  // Made on first use, from the interface's font.
  lumui::drawbot::FontP GetFont();
  void SetFont(lumui::drawbot::FontP const& inFont) { mFont = inFont; }
  bool GetIsSingleSelect() const { return mIsSingleSelect; }
  void SetIsSingleSelect(bool inIsSingle) { mIsSingleSelect = inIsSingle; }
  bool AllowsDragOut() const { return mAllowsDragOut; }
  bool GetWantsLine() const { return mWantsLine; }  // a separator below each row
  void SetWantsLine(bool inWants) { mWantsLine = inWants; }
  bool GetDrawShadowBox() const { return mDrawShadowBox; }
  void SetDrawShadowBox(bool inDraw) { mDrawShadowBox = inDraw; }
  bool GetDrawBorder() const { return mDrawBorder; }
  void SetDrawBorder(bool inDraw) { mDrawBorder = inDraw; }
  boost::shared_ptr<CompareFunction> GetDefaultCompareFxn() const {
    return mDefaultCompareFunction;
  }
  void SetDefaultCompareFxn(boost::shared_ptr<CompareFunction> const& inCompare) {
    mDefaultCompareFunction = inCompare;
  }
  // Whether rows look selected also while another manager is the active one.
  bool GetShowIfInactiveSelMgr() const { return mShowIfInactiveSelMgr; }
  void SetShowIfInactiveSelMgr(bool inShow) { mShowIfInactiveSelMgr = inShow; }
  EDragFeedbackType GetDragFeedbackType() const { return mDragFeedbackType; }
  void SetDragFeedbackType(EDragFeedbackType inType) { mDragFeedbackType = inType; }
  HierarchyEntryBase* GetDragFeedbackEntry() const { return mDragFeedbackEntry; }
  // Whether there is room below the last row for dropping behind it.
  bool GetWantsDropFudge() const { return mWantsDropFudge; }
  void SetWantsDropFudge(bool inWants) { mWantsDropFudge = inWants; }
  bool HasCustomTextColor() const { return mHasCustomTextColor; }
  lumui::drawbot::ColorRGBA const& GetCustomTextColor() const { return mCustomTextColor; }
  bool HasCustomSelectionColor() const { return mHasCustomSelectionColor; }
  lumui::drawbot::ColorRGBA const& GetCustomSelectionColor() const { return mCustomSelectionColor; }
  // The colour of a row's triangle in place of the theme's, for rows that paint grounds of their
  // own; asked at each paint. Empty for the theme's.
  void SetTwistyColorFunction(TwistyColorFunction const& inFunction) { mTwistyColor = inFunction; }

 protected:
  void SetRootEntry(boost::intrusive_ptr<HierarchyEntryBase> const& inRoot) { mRootEntry = inRoot; }
  void ClearRootEntry();  // its children go, the root stays
  // Positions have changed: the next paint walks from the top.
  void DirtyNodeCache();
  void InvalidateNodeCache();
  void ResetGeometry();  // takes all down: focus, root and geometry
  void RevealIfNotVisible(HierarchyEntryBase const* inEntry) const;
  bool ProcessOnOpenSelected();
  // The keys of lists beyond those of DoKeyEvent, for a subclass that asks for them before it hands
  // the key there. Home, End and the page keys select the row that they go to, with Shift all from
  // the row where the range began, as Up and Down do. Of one selected row, Left goes from one that
  // is closed or has none below it to the row above, and Right from an open one to its first below.
  // True takes the key. Chords are left alone, but for Ctrl with Home and End.
  bool HandleListKey(const lumui::ui::KeyboardEvent& inEvent);
  // What such a key does, for commands: inCode is that of an arrow up or down, Home, End or a page
  // key. From the row with the focus, or else from that end of what is selected to which it leads;
  // while nothing is selected, the first or the last row.
  void GoByListKey(unsigned int inCode, bool inIsRange);
  // Selects and shows the first row whose text begins so, without regard to case. False, and the
  // selection as it was, if there is none; an empty text finds nothing.
  bool TypedownClosestMatch(lumcore::UTF16String const& inText);

 private:
  friend class AccessibleRows;
  struct Step;
  struct SelectedRow;
  struct SelectedRows;
  struct KeyRows;
  class Painter;

  lumui::drawbot::SupplierInterface const* GetSupplier() const;
  HierarchyGeometry::iterator FindRow(HierarchyEntryBase const* inEntry) const;
  HierarchyGeometry::iterator GetRowAt(int inNumber) const;
  bool IsSelected(HierarchyEntryBase const* inEntry) const;
  bool HasRows() const { return mGeometry && mRowGeometryFactory && mRootEntry; }
  bool IsNodeCacheGood() const;
  HierarchyGeometry::iterator FindPassedRow(const Point& inDataPoint);
  void Invalidate(const Rect& inDataRect) const;
  bool Reveal(Rect inDataRect) const;
  void SetOpen(HierarchyEntryBase* inEntry, ENodeState inState, bool inResize);
  bool SetOpenWhereSelected(bool inOpen);
  SelectedRows FindSelectedRows(bool inOnlyFirst);
  bool LookUpSelectedRows(SelectedRows& outSelected);
  HierarchyEntryBase* FindOnlySelectedRow();
  Rect NoteSelectedRow(HierarchyGeometry::iterator const& inRow, Step& ioStep);
  void TakeStep(Step& ioStep, bool inAlignToRows);
  bool HandleKeyDown(int inOSCode);
  bool SearchTypedText();
  void StopTypeAheadTimer();
  KeyRows FindKeyRows(bool inTowardsEnd);
  std::size_t FindKeyTarget(unsigned int inCode, KeyRows const& inRows);
  std::size_t FindPageEnd(KeyRows const& inRows, bool inTowardsEnd);
  bool StepAcrossLevels(bool inDown);
  void GoToRow(HierarchyEntryBase* inEntry);
  void SelectKeyRange(KeyRows const& inRows, std::size_t inTarget);
  void ShowKeyTarget(HierarchyEntryBase* inEntry);
  void RenewNodeCache();

  boost::intrusive_ptr<HierarchyEntryBase> mRootEntry;
  bool mHideRoot;
  std::uint16_t mIndent;
  lumui::drawbot::ColorRGBA mBackgroundColor = lumui::drawbot::ColorRGBA(0, 0, 0, 1);
  bool mHasBackgroundColor = false;
  trackview::TrackView* mTrackView;
  std::unique_ptr<HierarchyGeometry> mGeometry;
  std::unique_ptr<TreeRowGeometryFactory> mRowGeometryFactory;
  HierarchyEntryBase* mFocusItem = nullptr;
  bool mIsSingleSelect;
  bool mAllowsDragOut;
  bool mWantsLine = true;
  bool mDrawShadowBox = true;
  bool mNodeCacheValid = false;
  std::map<float, HierarchyGeometry::iterator> mNodeCache;  // rows by their tops
  lumui::drawbot::FontP mFont;
  Rect mMarqueeRect;
  bool mDrawBorder = false;
  boost::shared_ptr<CompareFunction> mDefaultCompareFunction;
  bool mShowIfInactiveSelMgr = false;
  bool mHierarchySized = false;
  std::uint32_t mTypeAheadTimer = 0;  // its id is kept once there is one
  bool mTypeAheadTimerRunning = false;
  lumcore::UTF16String mTypeAheadText;
  EDragFeedbackType mDragFeedbackType = kDragFeedbackBox;
  HierarchyEntryBase* mDragFeedbackEntry = nullptr;
  bool mDragFeedbackOnView = false;
  bool mWantsDropFudge = true;
  bool mHasCustomTextColor = false;
  lumui::drawbot::ColorRGBA mCustomTextColor = lumui::drawbot::ColorRGBA(0, 0, 0, 1);
  bool mHasCustomSelectionColor = false;
  lumui::drawbot::ColorRGBA mCustomSelectionColor = lumui::drawbot::ColorRGBA(0, 0, 0, 1);

  boost::intrusive_ptr<HierarchyEntryBase> mHeldFocusItem;  // see HoldEntry
  boost::intrusive_ptr<HierarchyEntryBase> mHeldDragFeedbackEntry;
  std::uint64_t mNodeCacheShape = 0;  // HierarchyEntryBase::GetShapeVersion when it was emptied
  bool mSizesBeforePaint = false;
  // Rows by their numbers, first and last, that stand in the cache as well: a paint that begins far
  // below came by them. One by one they would cost more than all that is drawn.
  std::vector<std::pair<std::uint32_t, std::uint32_t>> mPassedRows;
  TwistyColorFunction mTwistyColor;
};

}  // namespace vek::hierarchyview
