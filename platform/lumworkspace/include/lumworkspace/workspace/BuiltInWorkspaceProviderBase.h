// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {

// The workspaces that come with an application, before its users make any.
class LUMWORKSPACE_API BuiltInWorkspaceProviderBase {
 public:
  virtual ~BuiltInWorkspaceProviderBase();

  // In the order of the menu; localised.
  virtual std::vector<lumcore::UTF16String> GetNames() const = 0;
  // The layout as the text of a property list; empty for a name that it does not have.
  virtual lumcore::UTF8String GetLayout(const lumcore::UTF16String& inName) const = 0;

 protected:
  BuiltInWorkspaceProviderBase() = default;
  BuiltInWorkspaceProviderBase(const BuiltInWorkspaceProviderBase&) = default;
  BuiltInWorkspaceProviderBase& operator=(const BuiltInWorkspaceProviderBase&) = default;
};

}  // namespace lumworkspace::workspace
