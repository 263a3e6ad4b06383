// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::selection {

// A selection that can be put back. A deed holds one for before and one for after its edit. What a
// restorer keeps is the host's: since nodes come and go with the edits, rather names than
// addresses.
class VEK_API Restorer {
 public:
  virtual ~Restorer();

  // A throw leaves the edit done (or undone) and reaches the caller of the undoer.
  virtual void Restore() = 0;

  // Takes inOther into this restorer and answers true, or answers false and is replaced by inOther.
  // inOther is null when a deed without an after restorer joins the group.
  virtual bool MergeIn(const Restorer* inOther);  // false
};

// Makes restorers for the selection of a manager. Who asks for a factory owns it.
class VEK_API RestorerFactory {
 public:
  RestorerFactory() = default;
  RestorerFactory(const RestorerFactory&) = default;
  RestorerFactory& operator=(const RestorerFactory&) = default;
  virtual ~RestorerFactory();

  // A restorer for the selection as it is now, owned by the caller. For hosts: nothing in this
  // library calls it.
  virtual Restorer* NewRestorer() = 0;
};

}  // namespace vek::selection
