// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>

#include "vek/config/Export.h"

namespace vek::selection {

class Junction;
class Manager;
class Node;

// The selection of a manager has changed.
class VEK_API SelectionChangeMessage {
 public:
  // Keeps a pointer to the list, which the sender holds during the delivery and no longer.
  explicit SelectionChangeMessage(const std::list<Node*>& inAffected);
  virtual ~SelectionChangeMessage();

  // The nodes whose state has flipped, not the new selection.
  const std::list<Node*>& GetAffectedNodes() const { return *mAffected; }

 private:
  const std::list<Node*>* mAffected;
};

// Another manager is the active one. The previous manager may be in its destructor or gone: compare
// the pointer, never follow it or take a reference.
class VEK_API ManagerChangeMessage {
 public:
  ManagerChangeMessage(const Manager* inPrevious, const Manager* inCurrent);
  virtual ~ManagerChangeMessage();

  const Manager* GetPreviousManager() const { return mPrevious; }
  const Manager* GetCurrentManager() const { return mCurrent; }

 private:
  const Manager* mPrevious;
  const Manager* mCurrent;
};

// A manager has another junction.
class VEK_API JunctionChangeMessage {
 public:
  JunctionChangeMessage(const Junction* inPrevious, const Junction* inCurrent);
  virtual ~JunctionChangeMessage();

  const Junction* GetPreviousJunction() const { return mPrevious; }
  const Junction* GetCurrentJunction() const { return mCurrent; }

 private:
  const Junction* mPrevious;
  const Junction* mCurrent;
};

}  // namespace vek::selection
