// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "OutlineRow.h"
#include "vek/app/DocStatusMessage.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/undo/MultiUndoer.h"

namespace outliner {

class OutlineDocument;

// Tells a panel that the current document is another one, or that something was selected or done in
// it: once at a later turn of the loop, however much has happened until then. So a panel shows what
// is there when it is asked to, and an edit of many steps costs it one look.
class OutlineFollower final
    : private vek::messaging::Listener<const vek::app::DocStatusMessage>,
      private vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>,
      private vek::messaging::Listener<const vek::undo::ItemsChangedMsg&> {
 public:
  // The first call comes as well, after the constructor.
  explicit OutlineFollower(std::function<void()> inShow);
  ~OutlineFollower() override;
  OutlineFollower(const OutlineFollower&) = delete;
  OutlineFollower& operator=(const OutlineFollower&) = delete;

  OutlineDocument* GetDocument() const { return mDocument; }  // the current one, or null
  // Another number for another document, and after each edit; the selection does not count.
  unsigned GetVersion() const { return mVersion; }
  // Called at once when the document is no longer the current one: it may be about to go.
  void SetGoneFunction(std::function<void()> inGone) { mGone = std::move(inGone); }
  // In document order; none without a document.
  std::vector<OutlineRow*> GetSelectedRows() const;
  // Has the panel show itself once more, as a message would.
  void ShowSoon();

 private:
  void ListenToMessage(const vek::app::DocStatusMessage inMessage) override;
  void ListenToMessage(const vek::selection::SelectionChangeMessage&) override { ShowSoon(); }
  void ListenToMessage(const vek::undo::ItemsChangedMsg&) override;
  void Follow(OutlineDocument* inDocument);

  OutlineDocument* mDocument = nullptr;
  unsigned mVersion = 0;
  std::function<void()> mGone;
  std::shared_ptr<std::function<void()>> mShow;
  std::shared_ptr<bool> mIsDue;
};

}  // namespace outliner
