// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapCommands.h"

#include "MapPane.h"
#include "OutlinerCommands.h"

namespace outliner {

MapCommands::MapCommands(std::function<MapPane*()> inFindMap) : mFindMap(std::move(inFindMap)) {
  const std::pair<int, MapTool> kTools[] = {{kCommandMapSelect, MapTool::kSelect},
                                            {kCommandMapHand, MapTool::kHand},
                                            {kCommandMapZoom, MapTool::kZoom}};
  for (const auto& [command, tool] : kTools) {
    mEntries[command] = {[tool = tool](MapPane& ioMap) { ioMap.SetTool(tool); },
                         [tool = tool](const MapPane& inMap) { return inMap.GetTool() == tool; }};
  }
  mEntries[kCommandMapZoomIn] = {[](MapPane& ioMap) { ioMap.Zoom(1); }, nullptr};
  mEntries[kCommandMapZoomOut] = {[](MapPane& ioMap) { ioMap.Zoom(-1); }, nullptr};
  mEntries[kCommandMapActualSize] = {[](MapPane& ioMap) { ioMap.Zoom(0); }, nullptr};
  mEntries[kCommandMapFit] = {[](MapPane& ioMap) { ioMap.ZoomToFit(); }, nullptr};
  mEntries[kCommandMapGoToRow] = {[](MapPane& ioMap) { ioMap.GoToRow(); }, nullptr};
}

bool MapCommands::DoUnifiedDispatch(int inCommand, vek::uisupport::CommandEnableQuery* ioQuery) {
  const auto found = mEntries.find(inCommand);
  if (found == mEntries.end()) return false;
  MapPane* const map = mFindMap();
  const bool isEnabled = map && map->GetDocument();
  if (ioQuery) {
    *ioQuery->enabled = isEnabled;
    if (isEnabled && found->second.isChecked) *ioQuery->checked = found->second.isChecked(*map);
  } else if (isEnabled) {
    found->second.execute(*map);
  }
  return true;
}

}  // namespace outliner
