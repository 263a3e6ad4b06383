// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::document {
class DocumentInterface;
}

namespace vek::app {

// What happens to a document: it becomes the current one, it is no longer the current one, or it is
// about to be closed and deleted. The document is borrowed and lives during the message.
class VEK_API DocStatusMessage {
 public:
  DocStatusMessage(bool inIsClosing, bool inBecomesActive, document::DocumentInterface* inDocument);
  virtual ~DocStatusMessage();
  DocStatusMessage(const DocStatusMessage&) = default;
  DocStatusMessage& operator=(const DocStatusMessage&) = default;

  bool IsClosing() const { return mIsClosing; }
  bool BecomesActive() const { return mBecomesActive; }
  document::DocumentInterface* GetDocument() const { return mDocument; }

 private:
  document::DocumentInterface* mDocument;
  bool mIsClosing;
  bool mBecomesActive;
};

}  // namespace vek::app
