// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>
#include <memory>

namespace vek::trackview {

class Overlay;

// The overlays of one view, which it owns, ascending by layer, and the walks over them that are
// running. A walk goes over the live list: what an overlay's operation installs behind itself is
// reached, what it removes is not, and the walk ends where the stack dies. An overlay that is
// removed in a call of its own is out of the list at once and deleted when that call returns.
class OverlayStack {
 public:
  using List = std::list<Overlay*>;

  OverlayStack() = default;
  ~OverlayStack();
  OverlayStack(const OverlayStack&) = delete;
  OverlayStack& operator=(const OverlayStack&) = delete;

  void Install(std::auto_ptr<Overlay>& ioOverlay, bool inOnTop);
  bool Has(const Overlay* inOverlay) const;
  void Remove(Overlay* inOverlay);  // one that is in the stack
  void DeleteAll();
  const List& Get() const { return mOverlays; }

  // inCall(overlay) answers true to end the walk, and that is the result.
  template <class Call>
  bool WalkFromFirst(const Call& inCall);
  template <class Call>
  void WalkFromLast(const Call& inCall);
  // A call of this one overlay, in the stack or not.
  template <class Call>
  void CallOne(Overlay& inOverlay, const Call& inCall);

 private:
  // In the frame of the call that runs it.
  class Walk {
   public:
    explicit Walk(OverlayStack& ioStack);
    ~Walk();
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

    template <class Call>
    auto Make(Overlay& inOverlay, const Call& inCall) {
      const Calling calling(*this, inOverlay);
      return inCall(inOverlay);
    }

    OverlayStack* mStack;  // null once it is gone
    Walk* const mOuter;
    List::iterator mAt{};
    bool mHasStepped = false;  // the entry at mAt is one that has not been called
    Overlay* mCalled = nullptr;
    Overlay* mRemoved = nullptr;  // the called one, owned, once it was removed

   private:
    // Its end is that of the call, also by an exception.
    class Calling {
     public:
      Calling(Walk& ioWalk, Overlay& inOverlay) : mWalk(ioWalk) { mWalk.mCalled = &inOverlay; }
      ~Calling();
      Calling(const Calling&) = delete;
      Calling& operator=(const Calling&) = delete;

     private:
      Walk& mWalk;
    };
  };

  void Delete(Overlay* inOverlay);

  List mOverlays;
  Walk* mInnermostWalk = nullptr;
};

template <class Call>
bool OverlayStack::WalkFromFirst(const Call& inCall) {
  Walk walk(*this);
  for (walk.mAt = mOverlays.begin(); walk.mStack && walk.mAt != mOverlays.end();) {
    walk.mHasStepped = false;
    if (walk.Make(**walk.mAt, inCall)) return true;
    if (!walk.mHasStepped) ++walk.mAt;
  }
  return false;
}

// Here a removal leaves the walk at the entry behind, from which the next step goes on as it
// should.
template <class Call>
void OverlayStack::WalkFromLast(const Call& inCall) {
  Walk walk(*this);
  for (walk.mAt = mOverlays.end(); walk.mStack && walk.mAt != mOverlays.begin();) {
    --walk.mAt;
    walk.Make(**walk.mAt, inCall);
  }
}

template <class Call>
void OverlayStack::CallOne(Overlay& inOverlay, const Call& inCall) {
  Walk walk(*this);
  walk.mAt = mOverlays.end();
  walk.Make(inOverlay, inCall);
}

}  // namespace vek::trackview
