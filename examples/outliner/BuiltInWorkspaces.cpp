// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "BuiltInWorkspaces.h"

#include <cstdint>
#include <utility>

#include "ArchivedPanels.h"
#include "Panels.h"
#include "Texts.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::proplist::PropList;
using lumcore::utility::ToUTF8;

namespace {

using Types = std::vector<UTF8String>;

constexpr int kNotesHeight = 170;
constexpr int kNotesWidth = 380;
constexpr int kCommandsWidth = 400;
constexpr int kMapWidth = 560;

// Tabs of which the first is open; the others keep a place beside it.
PropList Group(int inSize, const Types& inTabs) {
  PropList group;
  group.Set("Kind", ToUTF8("group"));
  group.Set<std::int32_t>("Size", inSize);
  group.Set("Tabs", inTabs);
  if (inTabs.size() > 1) group.Set("Closed", Types(inTabs.begin() + 1, inTabs.end()));
  group.Set("Current", inTabs.front());
  return group;
}

// Behind these, those that tell of the rows, where a column beside the outline has room for them.
Types WithRowPanels(Types inTabs) {
  inTabs.insert(inTabs.end(), {PropertiesPanel(), SearchPanel(), HistoryPanel()});
  return inTabs;
}

PropList Items(const char* inKind, int inSize, std::vector<PropList> inItems) {
  PropList list;
  list.Set("Kind", ToUTF8(inKind));
  list.Set<std::int32_t>("Size", inSize);
  list.Set("Items", std::move(inItems));
  return list;
}

UTF8String Layout(const PropList& inRoot) {
  const auto size = BuiltInWorkspaces::GetWindowSize();
  PropList layout;
  layout.Set<std::int32_t>("Version", 1);
  layout.Set<std::int32_t>("Width", size.x);
  layout.Set<std::int32_t>("Height", size.y);
  layout.CreateSubList("Left") = inRoot;
  return lumcore::proplist::utils::SavePropListToBuffer(layout);
}

UTF8String WritingLayout() {
  const auto [width, height] =
      std::pair(BuiltInWorkspaces::GetWindowSize().x, BuiltInWorkspaces::GetWindowSize().y);
  return Layout(
      Items("column", width,
            {Group(height - kNotesHeight, {OutlinePanel()}), Group(kNotesHeight, {NotesPanel()})}));
}

UTF8String NotesLayout() {
  const int width = BuiltInWorkspaces::GetWindowSize().x;
  return Layout(Items("row", width,
                      {Group(width - kNotesWidth, {OutlinePanel()}),
                       Group(kNotesWidth, WithRowPanels({NotesPanel(), CommandsPanel()}))}));
}

UTF8String CommandsLayout() {
  const int width = BuiltInWorkspaces::GetWindowSize().x;
  return Layout(Items("row", width,
                      {Group(width - kCommandsWidth, {OutlinePanel()}),
                       Group(kCommandsWidth, WithRowPanels({CommandsPanel(), NotesPanel()}))}));
}

UTF8String WithMapLayout() {
  const int width = BuiltInWorkspaces::GetWindowSize().x;
  return Layout(
      Items("row", width,
            {Group(width - kMapWidth, {OutlinePanel()}),
             Group(kMapWidth, WithRowPanels({MapPanel(), NotesPanel(), CommandsPanel()}))}));
}

}  // namespace

UTF16String BuiltInWorkspaces::GetDefaultName() {
  return Localized("$$$/outliner/Workspaces/Writing=Writing");
}

std::vector<UTF16String> BuiltInWorkspaces::GetNames() const {
  return {GetDefaultName(), Localized("$$$/outliner/Workspaces/Notes=Notes"),
          Localized("$$$/outliner/Workspaces/Commands=Commands"),
          Localized("$$$/outliner/Workspaces/Map=Map")};
}

UTF8String BuiltInWorkspaces::GetLayout(const UTF16String& inName) const {
  const auto names = GetNames();
  if (inName == names[0]) return WritingLayout();
  if (inName == names[1]) return NotesLayout();
  if (inName == names[2]) return CommandsLayout();
  return inName == names[3] ? WithMapLayout() : UTF8String();
}

}  // namespace outliner
