// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

// The one way in which failures reach the user: a sentence in a box, now, or at a later turn of the
// event loop where it is deferred. It belongs to the thread of the user interface; only a deferred
// report may come from another. What fails here itself leaves as an exception.
namespace vek::uisupport {

// Writes the text for an exception and answers true, or answers false. A text written before
// answering false is what the next one sees, and stands if none answers true.
using ErrorInterpreter = bool (*)(const std::exception& inException,
                                  lumcore::UTF16String& ioMessage);

// Sorts the exception by its type; those that the library does not know go to the interpreters.
VEK_API void ReportError(const std::exception& inException, bool inDeferred);
// Shown as it is, also empty. Nothing reads inValue.
VEK_API void ReportError(const lumcore::UTF16String& inMessage, int inValue, bool inDeferred);
// For what was thrown and is no exception object.
VEK_API void ReportError(bool inDeferred);
// A literal would be taken for the bool.
template <class T>
void ReportError(T*) = delete;

// Appends to the list, which is asked in order.
VEK_API void RegisterErrorInterpreter(ErrorInterpreter inInterpreter);
// For tests.
VEK_API void ForgetErrorInterpreters();

// True while an error box is up, whether it was deferred or not.
VEK_API bool ExecutingDeferredReportError();

}  // namespace vek::uisupport
