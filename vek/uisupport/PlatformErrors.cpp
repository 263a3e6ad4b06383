// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/PlatformErrors.h"

#include "lumcore/config/ThrowError.h"
#include "vek/uisupport/ReportError.h"

namespace vek::uisupport {

bool InterpretPlatformError(const std::exception& inException, lumcore::UTF16String& ioMessage) {
  const auto* const error = dynamic_cast<const lumcore::config::Error*>(&inException);
  if (!error || error->GetText().empty()) return false;
  ioMessage = error->GetText();
  return true;
}

void ReportCaughtError(const std::exception_ptr& inError, bool inDeferred) {
  if (!inError) return;
  try {
    std::rethrow_exception(inError);
  } catch (const std::exception& exception) {
    ReportError(exception, inDeferred);
  } catch (...) {
    // Nothing can be read from it; that it was there is all that the user can be told.
    ReportError(inDeferred);
  }
}

}  // namespace vek::uisupport
