// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/undo/MultiUndoerHooks.h"

namespace tests {

// Refuses whatever is posted, with "no deed today".
class Refusal : public vek::undo::MultiUndoerHooks {
 public:
  void WillPostDeed(vek::undo::Deed*) override {
    throw lumcore::config::Error(lumcore::utility::ToUTF16("no deed today"));
  }
  void DidPostDeed(vek::undo::Deed*) override {}
  void WillUndoDeed(vek::undo::Deed*) override {}
  void DidUndoDeed(vek::undo::Deed*) override {}
  void WillRedoDeed(vek::undo::Deed*) override {}
  void DidRedoDeed(vek::undo::Deed*) override {}
};

}  // namespace tests
