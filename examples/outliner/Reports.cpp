// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "Reports.h"

#include <optional>
#include <ostream>
#include <utility>

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/ReportError.h"

namespace outliner {

namespace {

bool InterpretPlatformError(const std::exception& inError, lumcore::UTF16String& outMessage) {
  const auto* error = dynamic_cast<const lumcore::config::Error*>(&inError);
  if (error) outMessage = error->GetText();
  return error != nullptr;
}

}  // namespace

void RegisterErrorTexts() {
  static const bool sIsRegistered =
      (vek::uisupport::RegisterErrorInterpreter(&InterpretPlatformError), true);
  static_cast<void>(sIsRegistered);
}

void ReportFailure(const std::exception_ptr& inError) {
  try {
    std::rethrow_exception(inError);
  } catch (const std::exception& error) {
    vek::uisupport::ReportError(error, false);
  } catch (...) {
    // Whatever it is, the user must hear that something went wrong.
    vek::uisupport::ReportError(false);
  }
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
