// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Export.h"

namespace lumcore::utility {

// What boost::intrusive_ptr needs of an object. It is a virtual base, so that a class with several
// counted bases has one count. Counting is for one thread, that of the user interface.
class LUMCORE_API RefCountedInterface {
 public:
  virtual ~RefCountedInterface();

  virtual void AddRef() const = 0;
  // Deletes the object when the last reference goes.
  virtual void Release() const = 0;
  // 0 for an object that nobody holds by reference: one on the stack, or one that is being deleted.
  virtual int GetRefCount() const = 0;

 protected:
  RefCountedInterface() = default;
  RefCountedInterface(const RefCountedInterface&) = default;
  RefCountedInterface& operator=(const RefCountedInterface&) = default;
};

// The one implementation of the count. A copy of an object starts with no references of its own.
class LUMCORE_API RefCountedObject : public virtual RefCountedInterface {
 public:
  RefCountedObject() = default;
  RefCountedObject(const RefCountedObject&) : RefCountedInterface() {}
  RefCountedObject& operator=(const RefCountedObject&) { return *this; }
  ~RefCountedObject() override;

  void AddRef() const override;
  void Release() const override;
  int GetRefCount() const override;

 private:
  mutable int mRefCount = 0;
};

inline void intrusive_ptr_add_ref(const RefCountedInterface* inObject) {
  inObject->AddRef();
}
inline void intrusive_ptr_release(const RefCountedInterface* inObject) {
  inObject->Release();
}

// Keeps an object alive while one of its own operations runs, since a listener that it calls may
// drop the last reference to it. An object that nobody holds by reference (on the stack, or in its
// destructor) is left alone: releasing it would delete what its owner deletes.
class StKeepAlive {
 public:
  explicit StKeepAlive(const RefCountedInterface& inObject)
      : mObject(inObject.GetRefCount() > 0 ? &inObject : nullptr) {}

  StKeepAlive(const StKeepAlive&) = delete;
  StKeepAlive& operator=(const StKeepAlive&) = delete;

 private:
  boost::intrusive_ptr<const RefCountedInterface> mObject;
};

}  // namespace lumcore::utility
