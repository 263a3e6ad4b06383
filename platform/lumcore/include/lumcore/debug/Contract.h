// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumcore/Export.h"

namespace lumcore::debug {

// What a failed contract check knows. The strings are literals and live as long as the process.
struct ContractFailure {
  const char* expression;
  const char* sourcePath;
  const char* function;
  int line;
};

// Asks whoever watches the process. True means: break here, if a debugger is attached.
using ContractDialog = std::function<bool(const ContractFailure&)>;

// Puts a dialog in place and returns the old one. Without one (an empty function, as at start) the
// failure is written to the standard error output and the answer is false.
LUMCORE_API ContractDialog SetContractDialog(ContractDialog inDialog);

LUMCORE_API bool BreakAfterContractDialog(const char* inExpression, const char* inSourcePath,
                                          const char* inFunction, int inLine);
LUMCORE_API bool IsDebuggerAttached();

// The whole sequence behind LUM_INPUT_CONTRACT: dialog, break if wanted, then a config::Error with
// "An input contract violation has occurred!".
[[noreturn]] LUMCORE_API void FailInputContract(const char* inExpression, const char* inSourcePath,
                                                const char* inFunction, int inLine);

}  // namespace lumcore::debug

// The one check of what a caller passes. It stays in every build.
#define LUM_INPUT_CONTRACT(inExpression) \
  ((inExpression)                        \
       ? static_cast<void>(0)            \
       : ::lumcore::debug::FailInputContract(#inExpression, __FILE__, __func__, __LINE__))
