// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/SingleDocApplication.h"

namespace vek::app {

SingleDocApplication::SingleDocApplication() = default;

SingleDocApplication::~SingleDocApplication() = default;

void SingleDocApplication::CloseAnyOpenDocuments() {
  if (GetDocument()) CloseDocument(GetDocument());
}

}  // namespace vek::app
