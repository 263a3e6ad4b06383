// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>

#include "vek/undo/Deed.h"

namespace vek::undo {

// Lets a deed have more than one owner: it passes everything on to the deed that it wraps. The
// wrapped deed's own tests apply again, and where it refuses, this one changes its state all the
// same.
class VEK_API SharedDeed : public Deed {
 public:
  explicit SharedDeed(boost::shared_ptr<Deed> inWrapped);
  ~SharedDeed() override;

  lumcore::UTF16String GetActionString() const override;

 protected:
  bool DoStillViable() const override;
  void RedoSelf() override;
  void UndoSelf() override;

 private:
  boost::shared_ptr<Deed> mWrapped;
};

}  // namespace vek::undo
