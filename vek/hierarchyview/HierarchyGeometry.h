// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <typeinfo>

#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "vek/config/Export.h"

namespace vek::hierarchyview {

class HierarchyEntryBase;
class TreeControlBase;
struct UniformRows;

// Turns a tree of entries into a flat sequence of rows with positions, in the control's data
// coordinates. Nothing stores that sequence: a row's place is found by walking to it, and a change
// in the tree needs no repair here. It asks its control for the root, survives any change to the
// entries, and guards only the step: one from past the end stays there.
//
// The control owns it through this class. So a virtual destructor is declared, and it stands behind
// the eight operations, which keep the positions that hosts call them by.
class VEK_API HierarchyGeometry {
 public:
  // The state of one walk.
  struct VEK_API TraverseEntry {
    TraverseEntry(HierarchyGeometry* inGeometry, HierarchyEntryBase* inEntry, bool inDeep,
                  lumcore::geom::PointT<float> const& inCookie);
    TraverseEntry(TraverseEntry const& inOther) = default;
    TraverseEntry& operator=(TraverseEntry const& inOther) = default;

    // Moves the cookie down. Its y is the float of a sum that is kept exactly, so that rows stay in
    // order beyond 2^24 units; a y that somebody else wrote is where the sum starts again.
    void MoveBy(float inHeight) {
      if (static_cast<float>(mExactY) != mCookie.y) mExactY = mCookie.y;
      mExactY += inHeight;
      mCookie.y = static_cast<float>(mExactY);
    }

    HierarchyGeometry* mGeometry;
    HierarchyEntryBase* mEntry;            // null past the end
    bool mDeep;                            // enters closed entries too
    lumcore::geom::PointT<float> mCookie;  // the row's top left corner

   private:
    friend class RowIndex;
    double mExactY;
  };

  // Stands on a row and owns its walk's state. An entry that is removed takes every iterator on it
  // along, and a change of the tree's shape or of row sizes leaves positions behind that are stale.
  class VEK_API iterator {
   public:
    using iterator_category = std::bidirectional_iterator_tag;
    using value_type = HierarchyEntryBase*;
    using difference_type = std::ptrdiff_t;
    using pointer = HierarchyEntryBase**;
    using reference = HierarchyEntryBase*&;

    iterator();
    explicit iterator(TraverseEntry const& inTraverse);
    iterator(iterator const& inOther);
    iterator& operator=(iterator const& inOther);
    ~iterator();

    // By entry alone: neither the position nor the kind of walk plays a part.
    bool operator==(iterator const& inOther) const;
    bool operator!=(iterator const& inOther) const { return !(*this == inOther); }
    HierarchyEntryBase*& operator*() const;
    iterator& operator++();
    iterator operator++(int);
    // Not the way back that ++ came: see PreviousEntry.
    iterator& operator--();
    iterator operator--(int);

   private:
    friend class HierarchyGeometry;
    friend class PlainWalk;
    std::unique_ptr<TraverseEntry> mTraverse;
  };

  // Shows the entry before the iterator that it holds. What operator* refers to lives in this
  // object, since an iterator keeps its entry in itself.
  class VEK_API reverse_iterator {
   public:
    explicit reverse_iterator(iterator const& inBase) : mBase(inBase) {}

    iterator const& base() const { return mBase; }
    bool operator==(reverse_iterator const& inOther) const { return mBase == inOther.mBase; }
    bool operator!=(reverse_iterator const& inOther) const { return mBase != inOther.mBase; }
    HierarchyEntryBase*& operator*() const;
    reverse_iterator& operator++();
    reverse_iterator operator++(int);

   private:
    iterator mBase;
    mutable iterator mShown;
  };

  HierarchyGeometry(TreeControlBase* inTreeControl, float inIndent);
  HierarchyGeometry(const HierarchyGeometry&) = delete;
  HierarchyGeometry& operator=(const HierarchyGeometry&) = delete;

  // 1 for the root and one more a level. Ancestors of the root do not count: a control may show a
  // subtree.
  virtual unsigned short EntryLevel(HierarchyEntryBase const* inEntry) const;
  virtual lumcore::geom::PointT<float> EntryWidthHeight(
      HierarchyEntryBase const* inEntry) const = 0;
  // A hidden root is the first row all the same, one of no size.
  virtual iterator begin();
  // Behind the root's subtree: past the end for a root without a parent, otherwise whatever row
  // follows. It costs a step, and callers ask for it in each test of a loop that changes the tree.
  virtual iterator end();
  // The same for the order that enters closed entries too.
  virtual iterator beginDeep();
  virtual iterator endDeep();
  virtual reverse_iterator rbegin();
  virtual reverse_iterator rend();

  virtual ~HierarchyGeometry();

  // Around all rows; those of no size add nothing.
  lumcore::geom::RectT<float> Area();
  lumcore::geom::RectT<float> EntryArea(iterator const& inIterator) const;
  lumcore::geom::RectT<float> GetRowRect(iterator const& inIterator);
  // The first row of any height that ends at or below the point, which only y decides: a point
  // above all rows finds the first one, a point below them end().
  iterator FindEntry(lumcore::geom::PointT<float> const& inPoint);

 protected:
  friend class PlainWalk;
  friend class RowIndex;
  friend class RowWalk;
  friend struct UniformRows;

  lumcore::geom::PointT<float> GetTraverseCookie(iterator const& inIterator);
  void NextEntry(TraverseEntry* ioTraverse, bool inSkipChildren) const;
  // To the previous sibling of the nearest of the entry and its ancestors that has one, or to the
  // root. It enters no open sibling: it is not the inverse of NextEntry.
  void PreviousEntry(TraverseEntry* ioTraverse) const;

  TreeControlBase* GetTreeControl() const { return mTreeControl; }
  float GetIndent() const { return mIndent; }

 private:
  static TraverseEntry const& GetTraverse(iterator const& inIterator);

  TreeControlBase* mTreeControl;
  float mIndent;
  // How often the index is not to be asked for, since it could not be had.
  std::uint32_t mIndexPause = 0;
  std::uint32_t mLastPause = 0;
  // What this object was when it was last looked at, and what that says of its rows.
  mutable std::type_info const* mKnownType = nullptr;
  mutable std::unique_ptr<UniformRows const> mUniformRows;
};

}  // namespace vek::hierarchyview
