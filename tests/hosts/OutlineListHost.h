// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"
#include "outliner/DocumentPane.h"
#include "outliner/MapPane.h"
#include "outliner/OutlineColumns.h"
#include "outliner/OutlineList.h"
#include "outliner/OutlineTreeList.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/trackview/TrackView.h"

namespace tests {

// A running outliner with a window that shows all of its list, and what a test does with that.
class OutlineListHost : public RunningOutliner {
 public:
  using Position = lumui::testing::Position;

  explicit OutlineListHost(const std::string& inOutline) : RunningOutliner(inOutline) { Widen(); }
  explicit OutlineListHost(TemporaryFolder& ioFolder) : RunningOutliner(ioFolder) { Widen(); }

  outliner::OutlineList& List() { return GetApp().FindPane()->GetList(); }
  outliner::OutlineTreeList& Rows() { return List().GetRows(); }

  // The rows that show, closed ones with "+": "a [b] c+".
  std::string Shown() { return Branch(*Rows().GetRootEntry()); }
  // The titles, with an arrow at the column that the rows are sorted by.
  std::string Titles() {
    std::string titles;
    for (unsigned short column = 0; column < Rows().GetNumberOfColumns(); ++column) {
      lumcore::UTF16String title;
      Rows().GetColumnDescriptor(column, title);
      titles += lumcore::utility::ToStdString(title);
      if (column == Rows().GetSortColumn()) titles += Rows().GetSortIsAscending() ? "^" : "v";
      titles += ' ';
    }
    return titles;
  }
  void ClickTitle(unsigned short inColumn) {
    lumui::testing::ClickMouse(GetWindow(),
                               PlaceIn("columns", Rows().GetColumnStartLoc(inColumn) + 20, 10));
    lumui::testing::ProcessEvents();
  }
  // A share of the height of a line of the list, from its top.
  Position At(int inLine, float inShare, float inX = 120) {
    const float height = vek::hierarchyview::TreeListGeometry::kRowHeight;
    return PlaceIn("rows", inX, (static_cast<float>(inLine) + inShare) * height);
  }
  Position InMap(const std::string& inText) {
    outliner::MapPane& map = *GetApp().FindMap();
    const auto& layout = map.GetScene().GetLayout();
    const outliner::OutlineRow* const row = FindRow(GetDocument(), inText);
    const auto box = layout.GetBox(layout.FindRow(row->GetId()));
    vek::trackview::Point point(box.x + box.width / 2, box.y + box.height / 2);
    map.GetTrackView().DataToLocal(point);
    point = point - map.GetTrackView().LocalArea().Origin();
    return PlaceIn("map", point.x, point.y);
  }
  // A drag that the window system carries: it moves and drops while the press is being handled.
  void Drag(const Position& inFrom, const Position& inTo) {
    lumui::testing::PressMouse(GetWindow(), inFrom);
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([this, inTo] {
      lumui::testing::MoveMouse(GetWindow(), inTo);
      lumui::testing::MoveMouse(GetWindow(), inTo + Position(1, 0));
      lumui::testing::ReleaseMouse(GetWindow(), inTo + Position(1, 0));
    });
    lumui::testing::MoveMouse(GetWindow(), inFrom + Position(-6, 0));
    lumui::testing::MoveMouse(GetWindow(), inTo);
    lumui::testing::ProcessEvents();
    lumui::testing::ReleaseMouse(GetWindow(), inTo);
    lumui::testing::ProcessEvents();
  }

 private:
  void Widen() { GetWindow().UI_SetSize(1600, 1000); }

  static std::string Branch(const vek::hierarchyview::HierarchyEntryBase& inParent) {
    std::string text;
    for (const auto& child : inParent.GetChildren()) {
      lumcore::UTF16String cell;
      child->GetCellText(outliner::OutlineColumns::kText, cell);
      text +=
          (text.empty() ? "" : " ") + (cell.empty() ? "-" : lumcore::utility::ToStdString(cell));
      if (child->GetChildren().empty()) continue;
      const bool isClosed = child->GetNodeState() == vek::hierarchyview::kNodeCollapsed;
      text += isClosed ? "+" : " [" + Branch(*child) + "]";
    }
    return text;
  }
};

}  // namespace tests
