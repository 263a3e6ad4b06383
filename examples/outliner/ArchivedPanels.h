// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"

namespace lumworkspace::workspace {
class Workspace;
struct TabPlace;
}  // namespace lumworkspace::workspace

namespace outliner {

// The types of the panels that come out of archives, as workspaces keep them. What they are is
// known before main.
const lumcore::UTF8String& PropertiesPanel();
const lumcore::UTF8String& SearchPanel();
// What a controller of such a panel is as well, if the panel takes the keyboard when it is shown.
class TakesKeyboard {
 public:
  virtual ~TakesKeyboard();
  virtual void FocusField() = 0;
};
// Does so for the open panel of that type; false for any other.
bool FocusArchivedPanel(const lumworkspace::workspace::Workspace& inWorkspace,
                        const lumcore::UTF8String& inTabType);

// Says where they open for the first time, once the workspace knows the panels, and makes known
// what their archives hold.
void PlaceArchivedPanels(lumworkspace::workspace::Workspace& ioWorkspace);

// The first place of a panel that goes with the rows: behind another such panel that is open, or
// beside the outline.
lumworkspace::workspace::TabPlace PlaceBesideRows(
    const lumworkspace::workspace::Workspace& inWorkspace);

}  // namespace outliner
