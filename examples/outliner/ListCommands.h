// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "vek/uisupport/UnifiedDispatch.h"

namespace outliner {

class DocumentPane;

// The commands of the outline's list, wherever the keyboard is: find, expand and collapse all, and
// back to the outline's own order. They are disabled without a document.
class ListCommands final : public vek::uisupport::UnifiedDispatchCmdAttachment {
 public:
  // The pane of the current document, or null; and what brings it to the front.
  ListCommands(std::function<DocumentPane*()> inFindPane, std::function<void()> inShowPanel);

  bool DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) override;

 private:
  std::function<DocumentPane*()> mFindPane;
  std::function<void()> mShowPanel;
};

}  // namespace outliner
