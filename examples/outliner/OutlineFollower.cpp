// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineFollower.h"

#include <utility>

#include "OutlineDocument.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/app/DocumentApplication.h"

namespace outliner {

using vek::app::DocStatusMessage;
using vek::app::DocumentApplication;
using Selection = vek::messaging::Listener<const vek::selection::SelectionChangeMessage&>;
using Items = vek::messaging::Listener<const vek::undo::ItemsChangedMsg&>;

OutlineFollower::OutlineFollower(std::function<void()> inShow)
    : mShow(std::make_shared<std::function<void()>>(std::move(inShow))),
      mIsDue(std::make_shared<bool>(false)) {
  DocumentApplication::GetDocStatusNotifier().AddListener(
      static_cast<vek::messaging::Listener<const DocStatusMessage>*>(this));
  const auto* const app = dynamic_cast<DocumentApplication*>(vek::app::App::GetApp());
  Follow(app ? static_cast<OutlineDocument*>(app->GetDocument()) : nullptr);
}

OutlineFollower::~OutlineFollower() {
  mGone = nullptr;
  *mShow = nullptr;
  Follow(nullptr);
}

// A document tells that it is no longer the current one before it goes.
void OutlineFollower::ListenToMessage(const DocStatusMessage inMessage) {
  auto* const document = static_cast<OutlineDocument*>(inMessage.GetDocument());
  if (inMessage.BecomesActive()) {
    Follow(document);
  } else if (document == mDocument) {
    Follow(nullptr);
  }
}

void OutlineFollower::Follow(OutlineDocument* inDocument) {
  if (mDocument) {
    mDocument->GetSelection().GetSelectionChangeNotifier()->RemoveListener(
        static_cast<Selection*>(this));
    mDocument->GetUndoer().GetItemsChangedNotifier()->RemoveListener(static_cast<Items*>(this));
    if (mGone) mGone();
  }
  mDocument = inDocument;
  ++mVersion;
  if (mDocument) {
    mDocument->GetSelection().GetSelectionChangeNotifier()->AddListener(
        static_cast<Selection*>(this));
    mDocument->GetUndoer().GetItemsChangedNotifier()->AddListener(static_cast<Items*>(this));
  }
  ShowSoon();
}

void OutlineFollower::ListenToMessage(const vek::undo::ItemsChangedMsg&) {
  ++mVersion;
  ShowSoon();
}

std::vector<OutlineRow*> OutlineFollower::GetSelectedRows() const {
  return mDocument ? mDocument->GetSelectedRows() : std::vector<OutlineRow*>();
}

void OutlineFollower::ShowSoon() {
  if (!*mShow || std::exchange(*mIsDue, true)) return;
  lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([show = mShow, isDue = mIsDue] {
    *isDue = false;
    if (*show) (*show)();
  });
}

}  // namespace outliner
