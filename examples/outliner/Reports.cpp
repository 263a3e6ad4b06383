// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Reports.h"

#include <optional>
#include <ostream>
#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/PlatformErrors.h"
#include "vek/uisupport/ReportError.h"

namespace outliner {

void RegisterErrorTexts() {
  static const bool sIsRegistered =
      (vek::uisupport::RegisterErrorInterpreter(&vek::uisupport::InterpretPlatformError), true);
  static_cast<void>(sIsRegistered);
}

void ReportFailure(const std::exception_ptr& inError) {
  vek::uisupport::ReportCaughtError(inError, false);
}

StReportsToStream::StReportsToStream(std::ostream& outStream) {
  mOldAnswerer = lumui::dialogs::SetDialogAnswerer(
      [this, &outStream](const auto& inBox) -> std::optional<int> {
        if (!vek::uisupport::ExecutingDeferredReportError()) {
          return mOldAnswerer ? mOldAnswerer(inBox) : std::nullopt;
        }
        mHasReported = true;
        outStream << "outliner: " << lumcore::utility::ToStdString(inBox.text) << "\n";
        return 0;
      });
}

StReportsToStream::~StReportsToStream() {
  lumui::dialogs::SetDialogAnswerer(std::move(mOldAnswerer));
}

}  // namespace outliner
