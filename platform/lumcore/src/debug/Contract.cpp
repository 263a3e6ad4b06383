// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/debug/Contract.h"

#include <cstdio>
#include <utility>

#include "debug/Debugger.h"
#include "lumcore/config/ThrowError.h"

namespace lumcore::debug {

namespace {

ContractDialog& CurrentDialog() {
  static ContractDialog sDialog;
  return sDialog;
}

}  // namespace

ContractDialog SetContractDialog(ContractDialog inDialog) {
  return std::exchange(CurrentDialog(), std::move(inDialog));
}

bool BreakAfterContractDialog(const char* inExpression, const char* inSourcePath,
                              const char* inFunction, int inLine) {
  // Called through a copy: a dialog may put another one in its place.
  const ContractDialog dialog = CurrentDialog();
  if (dialog) return dialog(ContractFailure{inExpression, inSourcePath, inFunction, inLine});
  std::fprintf(stderr, "%s:%d: %s: contract violated: %s\n", inSourcePath, inLine, inFunction,
               inExpression);
  return false;
}

void FailInputContract(const char* inExpression, const char* inSourcePath, const char* inFunction,
                       int inLine) {
  if (BreakAfterContractDialog(inExpression, inSourcePath, inFunction, inLine) &&
      IsDebuggerAttached()) {
    BreakIntoDebugger();
  }
  config::ThrowError(
      "$$$/lumcore/utility/Error/Contract/InputContractViolation="
      "An input contract violation has occurred!");
}

}  // namespace lumcore::debug
