// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Point.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"

namespace outliner {

// The four arrangements that the outliner comes with: the outline over its notes to write in, both
// side by side for long notes, the outline beside all commands, and beside its map.
class BuiltInWorkspaces final : public lumworkspace::workspace::BuiltInWorkspaceProviderBase {
 public:
  // Of the main window where no workspace says another.
  static lumcore::geom::PointT<int> GetWindowSize() { return {960, 680}; }
  // The one of a first start.
  static lumcore::UTF16String GetDefaultName();

  std::vector<lumcore::UTF16String> GetNames() const override;
  lumcore::UTF8String GetLayout(const lumcore::UTF16String& inName) const override;
};

}  // namespace outliner
