// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace vek::app {

// An object is still found in its place while it goes, and only then the place is empty: whatever
// dies with a workspace can look up the main window through the application.
template <class T>
void Delete(T*& ioOwned) {
  delete ioOwned;
  ioOwned = nullptr;
}

// The same, with another object in the place afterwards.
template <class T>
void Replace(T*& ioOwned, T* inNew) {
  if (ioOwned == inNew) return;
  delete ioOwned;
  ioOwned = inNew;
}

}  // namespace vek::app
