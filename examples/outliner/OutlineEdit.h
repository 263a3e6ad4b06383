// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "OutlineDocument.h"
#include "OutlineRestorer.h"
#include "lumcore/Strings.h"
#include "vek/undo/MultiDeed.h"

namespace outliner {

// Gathers the deeds of one edit, and posts them as one. Undoing it selects what was selected when
// it was posted, or what somebody has said.
class OutlineEdit {
 public:
  OutlineEdit(OutlineDocument& ioDocument, const lumcore::UTF16String& inName)
      : mDocument(ioDocument), mName(inName), mGroup(new vek::undo::MultiDeed(mName)) {}

  template <class SomeDeed, class... Arguments>
  void Add(Arguments&&... inArguments) {
    mDeeds.emplace_back(new SomeDeed(mDocument, mName, std::forward<Arguments>(inArguments)...));
  }

  void SelectWhenUndone(std::vector<OutlineRow::Id> inRows) {
    mBefore = std::make_unique<OutlineRestorer>(mDocument, std::move(inRows));
  }

  // inAfter tells the rows that are selected when the edit is done. Without a deed nothing is
  // posted.
  void Post(std::unique_ptr<vek::selection::Restorer> inAfter) {
    using vek::undo::Deed;
    if (mDeeds.empty()) return;
    if (!mBefore) mBefore = std::make_unique<OutlineRestorer>(mDocument);
    std::auto_ptr<Deed> deed;
    if (mDeeds.size() == 1) {
      deed.reset(mDeeds.front().release());
    } else {
      std::auto_ptr<vek::undo::MultiDeed> group(mGroup.release());
      for (auto& child : mDeeds)
        group->AddDeed(std::auto_ptr<Deed>(child.release()));
      deed = group;
    }
    deed->SetBeforeRestorer(mBefore.release());
    deed->SetAfterRestorer(inAfter.release());
    mDocument.GetUndoer().PostDeed(deed);
  }
  void PostKeepingSelection() { Post(std::make_unique<OutlineRestorer>(mDocument)); }
  void PostSelecting(const OutlineRow& inRow) {
    Post(std::make_unique<OutlineRestorer>(mDocument, std::vector<OutlineRow::Id>{inRow.GetId()}));
  }

 private:
  OutlineDocument& mDocument;
  lumcore::UTF16String mName;
  std::unique_ptr<vek::undo::MultiDeed> mGroup;
  std::vector<std::unique_ptr<vek::undo::Deed>> mDeeds;
  std::unique_ptr<vek::selection::Restorer> mBefore;
};

}  // namespace outliner
