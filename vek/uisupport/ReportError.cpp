// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/ReportError.h"

#include <ios>
#include <list>
#include <new>
#include <stdexcept>
#include <typeinfo>

#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/FileStream.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/Alert.h"
#include "vek/uisupport/DeferredActionManager.h"
#include "vek/uisupport/DeferredReportError.h"
#include "vek/uisupport/MainWindowLookup.h"
#include "vek/uisupport/MessageException.h"
#include "vek/undo/NonCriticalDeedFailure.h"

namespace vek::uisupport {

namespace {

constexpr const char* kGeneralKey = "$$$/vek/reporterror/Undefined=General Error.";

// Not localised: whatever this reports, looking texts up may be what is broken.
constexpr const char* kAbnormalText =
    "Sorry, an abnormal condition has been detected. \n"
    "Before quitting, you have one chance to save your project \n"
    "(don't use the same name as the original).";

std::list<ErrorInterpreter>& Interpreters() {
  static std::list<ErrorInterpreter> sInterpreters;
  return sInterpreters;
}

bool& IsShowingError() {
  static bool sIsShowing = false;
  return sIsShowing;
}

template <class T>
bool Is(const std::exception& inException) {
  return dynamic_cast<const T*>(&inException) != nullptr;
}

// The key that stands for a type of the standard library or the platform; the general one for
// others.
const char* FindKey(const std::exception& inException) {
  if (Is<std::bad_alloc>(inException)) {
    return "$$$/vek/reporterror/out_of_memory="
           "Out of memory. Save and exit immediately to avoid data loss.";
  }
  if (Is<lumcore::filesupport::eof_error>(inException)) {
    return "$$$/vek/reporterror/end_of_file=Unexpected end of data.";
  }
  if (Is<std::ios_base::failure>(inException)) return "$$$/vek/reporterror/io=I/O error.";
  if (Is<std::bad_cast>(inException) || Is<std::bad_exception>(inException) ||
      Is<std::bad_typeid>(inException) || Is<std::logic_error>(inException)) {
    return "$$$/vek/reporterror/internal_error=Internal error.";
  }
  return kGeneralKey;
}

void Interpret(const std::exception& inException, lumcore::UTF16String& outMessage) {
  if (const auto* message = dynamic_cast<const MessageException*>(&inException)) {
    message->GetMsg(outMessage);
    return;
  }
  // Through a copy: an interpreter may register another.
  const std::list<ErrorInterpreter> interpreters = Interpreters();
  for (const ErrorInterpreter interpreter : interpreters) {
    if (interpreter(inException, outMessage)) return;
  }
}

void ShowError(const lumcore::UTF16String& inMessage, int) {
  const lumcore::utility::StScopedValue<bool> showing(IsShowingError(), true);
  Alert::ShowCaution(
      lumcore::config::Localizer::Get()->GetLocalizedString("$$$/vek/reporterror/DlogTitle=Error"),
      inMessage, FindMainWindow());
}

}  // namespace

void ReportError(const std::exception& inException, bool inDeferred) {
  if (Is<undo::NonCriticalDeedFailure>(inException)) return;
  const char* const key = FindKey(inException);
  lumcore::UTF16String message;
  if (key == kGeneralKey) Interpret(inException, message);
  if (message.empty()) message = lumcore::config::Localizer::Get()->GetLocalizedString(key);
  if (!message.empty() && message.front() == 0) return;
  ReportError(message, 0, inDeferred);
}

void ReportError(const lumcore::UTF16String& inMessage, int inValue, bool inDeferred) {
  if (inDeferred) {
    DeferredActionManager::Get().QueueIdleAction(new DeferredReportError(inMessage, inValue));
  } else {
    ShowError(inMessage, inValue);
  }
}

void ReportError(bool inDeferred) {
  ReportError(lumcore::utility::ToUTF16(kAbnormalText), 0, inDeferred);
}

void RegisterErrorInterpreter(ErrorInterpreter inInterpreter) {
  Interpreters().push_back(inInterpreter);
}

void ForgetErrorInterpreters() {
  Interpreters().clear();
}

bool ExecutingDeferredReportError() {
  return IsShowingError();
}

DeferredReportError::DeferredReportError(const lumcore::UTF16String& inMessage, int inValue)
    : mMessage(inMessage), mValue(inValue) {}

DeferredReportError::~DeferredReportError() = default;

void DeferredReportError::Execute() {
  ShowError(mMessage, mValue);
}

bool DeferredReportError::ReadyToExecute() const {
  return true;
}

}  // namespace vek::uisupport
