// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/document/DocumentInterface.h"

namespace vek::document {

DocumentInterface::~DocumentInterface() = default;

bool DocumentInterface::HasAttachment() const {
  return false;
}

uisupport::CommandAttachment* DocumentInterface::GetCommandAttachment() const {
  return nullptr;
}

bool DocumentInterface::CanClose() {
  return true;
}

bool DocumentInterface::IsDirty() const {
  return DoIsDirty();
}

bool DocumentInterface::IsFileBacked() const {
  return DoIsFileBacked();
}

lumcore::filesupport::File DocumentInterface::GetProjectFile() const {
  return DoGetProjectFile();
}

}  // namespace vek::document
