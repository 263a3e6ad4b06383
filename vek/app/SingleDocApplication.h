// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/app/DocumentApplication.h"

namespace vek::app {

// At most one document is open: the current one.
class VEK_API SingleDocApplication : public DocumentApplication {
 public:
  SingleDocApplication();
  ~SingleDocApplication() override;

  void CloseAnyOpenDocuments() override;
};

}  // namespace vek::app
