// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "TextPool.h"
#include "lumcore/Strings.h"
#include "lumcore/memory/STLAllocator.h"
#include "vek/selection/Node.h"

namespace outliner {

// One row of an outline: an `outline` element. Its text stands apart from its other attributes, and
// what a file has between the rows (white space, comments, elements of others) is kept as numbered
// markup, so that a plain row costs about a hundred bytes.
//
// A row belongs to its parent, a removed one to whoever removed it. All changes go through
// OutlineTree, which knows every row by a number that is never used for another one: who wants to
// find a row again later keeps the number and not the pointer.
class OutlineRow final : public vek::selection::Node {
 public:
  using Id = std::uint32_t;

  // An attribute other than `text`; the name is a number of the tree's pool of names.
  struct Attribute {
    TextPool::Id name;
    lumcore::UTF16String value;
  };

  // Deletes the rows below without recursion, so that any depth is safe.
  ~OutlineRow() override;
  OutlineRow(const OutlineRow&) = delete;
  OutlineRow& operator=(const OutlineRow&) = delete;

  // Rows come by the hundred thousand: from the pool of small blocks.
  static void* operator new(std::size_t inBytes) { return lumcore::memory::AllocateBlock(inBytes); }
  static void operator delete(void* inBlock, std::size_t inBytes) {
    lumcore::memory::FreeBlock(inBlock, inBytes);
  }

  Id GetId() const { return mId; }
  const lumcore::UTF16String& GetText() const { return mText; }

  // Null for the root, and for a row that is not in the tree.
  OutlineRow* GetParent() const { return mParent; }
  std::size_t GetChildCount() const { return mChildren.size(); }
  OutlineRow* GetChild(std::size_t inIndex) const { return mChildren[inIndex].get(); }
  // The place among the parent's children. It is remembered, and counted anew after a change.
  std::size_t GetIndex() const;
  // 1 for the rows of the first level, 0 for the root.
  std::size_t GetDepth() const;
  bool IsBelow(const OutlineRow& inAncestor) const;  // false for the row itself

  // In the order of the file; the text attribute stands in front of the one numbered GetTextPlace.
  std::size_t GetAttributeCount() const { return mExtras ? mExtras->attributes.size() : 0; }
  const Attribute& GetAttribute(std::size_t inIndex) const { return mExtras->attributes[inIndex]; }
  std::size_t GetTextPlace() const { return mExtras ? mExtras->textPlace : 0; }
  // Whether the element is written with a text attribute: not when the file had none and the text
  // is still empty.
  bool WritesText() const { return !(mExtras && mExtras->textMissing && mText.empty()); }

  // What stands between the end of the row (or start tag) before and this row, and between the last
  // row below (or the own start tag) and the end tag. Numbers of the tree's pool of markup.
  TextPool::Id GetLeading() const { return mLeading; }
  TextPool::Id GetTrailing() const { return mTrailing; }

 private:
  friend class OutlineTree;

  // Few rows have one.
  struct Extras {
    std::vector<Attribute> attributes;
    std::uint32_t textPlace = 0;
    bool textMissing = false;
  };

  explicit OutlineRow(Id inId) : mId(inId) {}

  OutlineRow* mParent = nullptr;
  std::vector<std::unique_ptr<OutlineRow>> mChildren;
  lumcore::UTF16String mText;
  std::unique_ptr<Extras> mExtras;
  Id mId;
  mutable std::uint32_t mIndex = 0;  // right only where the parent has this row there
  std::uint32_t mLine = 0;           // right while the tree's list of lines is
  TextPool::Id mLeading = 0;
  TextPool::Id mTrailing = 0;
};

}  // namespace outliner
