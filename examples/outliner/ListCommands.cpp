// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ListCommands.h"

#include <utility>

#include "DocumentPane.h"
#include "OutlineDocument.h"
#include "OutlineList.h"
#include "OutlineTreeList.h"
#include "OutlinerCommands.h"

namespace outliner {

ListCommands::ListCommands(std::function<DocumentPane*()> inFindPane,
                           std::function<void()> inShowPanel)
    : mFindPane(std::move(inFindPane)), mShowPanel(std::move(inShowPanel)) {}

bool ListCommands::DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) {
  if (inCommand < kCommandFind || inCommand > kCommandOutlineOrder) return false;
  DocumentPane* const pane = mFindPane();
  const bool isSorted = pane && pane->GetList().GetRows().IsSorted();
  const bool isEnabled = pane && (inCommand != kCommandOutlineOrder || isSorted);
  if (ioQuery) {
    *ioQuery->enabled = isEnabled;
    return true;
  }
  if (!isEnabled) return true;
  OutlineTreeList& rows = pane->GetList().GetRows();
  rows.GetDocument()->CommitTyping();
  mShowPanel();
  if (inCommand == kCommandFind) pane->FocusFind();
  if (inCommand == kCommandExpandAll) rows.ExpandAll();
  if (inCommand == kCommandCollapseAll) rows.CollapseAll();
  if (inCommand == kCommandOutlineOrder) rows.UnsortRows();
  return true;
}

}  // namespace outliner
