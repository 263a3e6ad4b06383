// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/OverlayStack.h"

#include <algorithm>
#include <utility>

#include "vek/trackview/Overlay.h"

namespace vek::trackview {

OverlayStack::Walk::Walk(OverlayStack& ioStack) : mStack(&ioStack), mOuter(ioStack.mInnermostWalk) {
  ioStack.mInnermostWalk = this;
}

OverlayStack::Walk::~Walk() {
  if (mStack) mStack->mInnermostWalk = mOuter;
}

OverlayStack::Walk::Calling::~Calling() {
  mWalk.mCalled = nullptr;
  delete std::exchange(mWalk.mRemoved, nullptr);
}

OverlayStack::~OverlayStack() {
  DeleteAll();
  for (Walk* walk = mInnermostWalk; walk; walk = walk->mOuter)
    walk->mStack = nullptr;
}

void OverlayStack::Install(std::auto_ptr<Overlay>& ioOverlay, bool inOnTop) {
  const auto layer = ioOverlay->Layer();
  auto at = mOverlays.begin();
  if (inOnTop) {
    at = mOverlays.end();
    while (at != mOverlays.begin() && (*std::prev(at))->Layer() >= layer)
      --at;
  } else {
    while (at != mOverlays.end() && (*at)->Layer() <= layer)
      ++at;
  }
  mOverlays.insert(at, ioOverlay.get());
  ioOverlay.release();
}

bool OverlayStack::Has(const Overlay* inOverlay) const {
  return std::find(mOverlays.begin(), mOverlays.end(), inOverlay) != mOverlays.end();
}

void OverlayStack::Remove(Overlay* inOverlay) {
  const auto found = std::find(mOverlays.begin(), mOverlays.end(), inOverlay);
  for (Walk* walk = mInnermostWalk; walk; walk = walk->mOuter) {
    if (walk->mAt != found) continue;
    ++walk->mAt;
    walk->mHasStepped = true;
  }
  mOverlays.erase(found);
  Delete(inOverlay);
}

// Each is out of the list before it goes: its destructor may ask for the others.
void OverlayStack::DeleteAll() {
  while (!mOverlays.empty())
    Remove(mOverlays.front());
}

// The outermost of the overlay's own calls is the last one to return.
void OverlayStack::Delete(Overlay* inOverlay) {
  Walk* outermost = nullptr;
  for (Walk* walk = mInnermostWalk; walk; walk = walk->mOuter) {
    if (walk->mCalled == inOverlay) outermost = walk;
  }
  if (outermost) {
    outermost->mRemoved = inOverlay;
  } else {
    delete inOverlay;
  }
}

}  // namespace vek::trackview
