// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <utility>

#include "vek/uisupport/UnifiedDispatch.h"

namespace outliner {

class MapPane;

// The commands of the map, wherever the keyboard is. They are disabled while no map is on screen,
// and while it has no document.
class MapCommands final : public vek::uisupport::UnifiedDispatchCmdAttachment {
 public:
  // Null for no map.
  explicit MapCommands(std::function<MapPane*()> inFindMap);

  bool DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) override;

 private:
  struct Entry {
    std::function<void(MapPane&)> execute;
    std::function<bool(const MapPane&)> isChecked;  // none where there is nothing to check
  };

  std::function<MapPane*()> mFindMap;
  std::map<int, Entry> mEntries;
};

}  // namespace outliner
