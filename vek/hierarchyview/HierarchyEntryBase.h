// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <list>
#include <memory>

#include "lumcore/Strings.h"
#include "lumcore/utility/RefCounted.h"
#include "lumui/drawbot/Font.h"
#include "vek/config/Export.h"

namespace lumui::drawbot {
class Drawbot;
class ImageInterface;
}  // namespace lumui::drawbot

namespace vek::selection {
class Manager;
class Node;
}  // namespace vek::selection

namespace vek::hierarchyview {

class HierarchyEntryBase;
class RowBranch;
class TreeListComparator;

enum ENodeState : std::uint32_t {
  kNodeCollapsed = 0,  // the children are no rows
  kNodeExpanded = 1,   // the children follow as rows
};

// Whether the left entry goes before the right one, by the given attribute. It must not change the
// tree that is being sorted.
using CompareFunction = boost::function<bool(
    unsigned int inAttribute, HierarchyEntryBase const* inLeft, HierarchyEntryBase const* inRight)>;

// A node of the tree that a tree control shows: one potential row. It holds the tree's shape and
// whether the node is open; it knows no positions, those come from a HierarchyGeometry.
//
// A parent owns its children through the list, a child points back and owns nothing. The two links
// are the caller's business: a child is made with its parent and then added to it. Neither adding
// nor removing touches the child's pointer; where a parent dies, its own children have none from
// then on. A child dies when its parent's destructors are through, so that very deep trees die
// without a recursion. One thread, that of the control's events, has a tree to itself.
class VEK_API HierarchyEntryBase : public virtual lumcore::utility::RefCountedObject {
 public:
  using List = std::list<boost::intrusive_ptr<HierarchyEntryBase>>;

  // Neither links the new entry into inParent's children. The list is copied, and the parent of
  // what is in it stays as it is.
  HierarchyEntryBase(ENodeState const& inState, HierarchyEntryBase* inParent);
  HierarchyEntryBase(ENodeState const& inState, HierarchyEntryBase* inParent,
                     List const& inChildren);
  ~HierarchyEntryBase() override;
  HierarchyEntryBase(const HierarchyEntryBase&) = delete;
  HierarchyEntryBase& operator=(const HierarchyEntryBase&) = delete;

  virtual ENodeState GetNodeState();
  virtual void SetNodeState(ENodeState inState);
  virtual void HasMarquee(bool inHasMarquee);
  virtual boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() = 0;
  // Empty: draw with the control's font.
  virtual lumui::drawbot::FontP GetNodeFont(lumui::drawbot::Drawbot* inDrawbot);
  virtual void SortChildren(unsigned int const& inAxis, bool inAscending,
                            boost::shared_ptr<CompareFunction> inCompare) = 0;
  virtual void ResortChildren() = 0;
  virtual bool HasSortAxis() const = 0;
  virtual void GetCellText(unsigned int const& inAttribute,
                           lumcore::UTF16String& outText) const = 0;
  virtual bool Selected(selection::Manager* inManager) const = 0;
  virtual bool CanExpand() const = 0;
  virtual bool CanCollapse() const = 0;
  // The node of the data that the entry stands for, or null.
  virtual selection::Node* GetDataAsSelNode() const = 0;

  // Without a sort axis the child goes to the end and inResort is ignored. With one it goes to the
  // front, whatever the order says, and stays there until something resorts: so a caller adds a
  // batch and sorts once. The child must not be null.
  void AddChild(boost::intrusive_ptr<HierarchyEntryBase> const& inChild, bool inResort);
  List const& GetChildren() const { return mChildren; }
  HierarchyEntryBase* GetParent() const { return mParent; }
  void SetParent(HierarchyEntryBase* inParent);
  // Whether this entry draws the focus marquee.
  bool HasMarquee() const { return mHasMarquee; }

  // The neighbours in the parent's list, null at its ends and for an entry that is not in it. One
  // that stands there twice is looked for from the front for the next, from the back for the
  // previous. Mostly the entry knows its place and nothing is looked for.
  HierarchyEntryBase* GetNextSibling() const;
  HierarchyEntryBase* GetPreviousSibling() const;
  // Whether this entry is inParent's and stands in its list, once, and in no other.
  bool StandsOnlyUnder(HierarchyEntryBase const* inParent) const {
    return mParent == inParent && KnowsPlace();
  }
  // Another one after every change of the shape of any tree in the process, and after the end of
  // any entry: who remembers rows tells by it whether they may still be followed.
  static std::uint64_t GetShapeVersion();

 protected:
  friend class TreeControlBase;
  // The first that is this entry; one that is no child changes nothing. It is never followed.
  void RemoveChild(HierarchyEntryBase const* inEntry);
  void RemoveAllChildren();
  // What is done through these is not seen here: from the first call on, the places of this
  // entry's children are looked for at each step.
  List::iterator child_begin();
  List::iterator child_end();

 private:
  friend class HierarchyEntry;
  friend class RowIndex;
  // By the list's links, so that places in it stay; also where the comparator throws.
  void SortList(TreeListComparator const& inComparator);
  bool SortByTexts(TreeListComparator const& inComparator);

  void EnterPosition(List::iterator inPlace);
  void LeavePositions(List const& inLeaving);
  void LosePlace();
  void HandOut();
  void LearnPlaces();
  bool KnowsPlace() const;

  ENodeState mState;
  HierarchyEntryBase* mParent;
  bool mHasMarquee = false;
  List mChildren;

  // Where this entry stands in its parent's list, as long as no other position in any list holds
  // it. Sorting moves list nodes and leaves this right.
  List::iterator mPlace;
  std::uint32_t mPositions = 0;    // too high for what was in a list that was handed out
  bool mIsPlaced = false;          // mPlace is right, and the parent lives
  bool mHandedOut = false;         // mutable iterators of the own list may be about
  bool mIsHierarchyEntry = false;  // set by that class: sorting asks it of every child
  // For the row index: whether the owner's branch has this entry among the stale ones, where this
  // entry stands in that branch, and the own branch, once this entry was asked for its rows.
  bool mIsStale = false;
  std::uint32_t mOrdinal = 0;
  std::unique_ptr<RowBranch> mBranch;
};

}  // namespace vek::hierarchyview
