// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

// What a host joins the platform's errors with the error report by, at its start:
//
//   RegisterErrorInterpreter(InterpretPlatformError);
//   lumcore::config::ErrorManager manager([](const std::exception_ptr& inError) {
//     ReportCaughtError(inError, false);
//   });
namespace vek::uisupport {

// An interpreter that shows a lumcore::config::Error by its own text, which names the file and the
// cause where there are any. It knows no other exception.
VEK_API bool InterpretPlatformError(const std::exception& inException,
                                    lumcore::UTF16String& ioMessage);

// Reports whatever has been caught: an exception by its type, anything else as the condition that
// has no exception object. Null is nothing to report.
VEK_API void ReportCaughtError(const std::exception_ptr& inError, bool inDeferred);

}  // namespace vek::uisupport
