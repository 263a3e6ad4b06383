// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/utility/RefCounted.h"

namespace lumcore::utility {

RefCountedInterface::~RefCountedInterface() = default;

RefCountedObject::~RefCountedObject() = default;

void RefCountedObject::AddRef() const {
  ++mRefCount;
}

void RefCountedObject::Release() const {
  if (--mRefCount == 0) delete this;
}

int RefCountedObject::GetRefCount() const {
  return mRefCount;
}

}  // namespace lumcore::utility
