// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"
#include "vek/uisupport/DeferredAction.h"

namespace vek::uisupport {

// Shows an error at a later turn.
class VEK_API DeferredReportError : public DeferredAction {
 public:
  DeferredReportError(const lumcore::UTF16String& inMessage, int inValue);
  ~DeferredReportError() override;

  void Execute() override;
  bool ReadyToExecute() const override;

 private:
  lumcore::UTF16String mMessage;
  int mValue;
};

}  // namespace vek::uisupport
