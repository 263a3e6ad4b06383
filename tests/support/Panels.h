// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumworkspace/testing/Layouts.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/Workspace.h"

namespace test_support {

using lumworkspace::workspace::TabPanel;
using lumworkspace::workspace::TabPlace;
using lumworkspace::workspace::TopLevelWindow;
using lumworkspace::workspace::Workspace;

inline lumcore::UTF8String U8(const std::string& inText) {
  return lumcore::utility::ToUTF8(inText);
}
inline lumcore::UTF16String U16(const std::string& inText) {
  return lumcore::utility::ToUTF16(inText);
}

// Panels whose title is "Panel " and their type, as many as are made of it; one can be told to
// fail.
class CountingCreator : public lumworkspace::workspace::TabCreator {
 public:
  explicit CountingCreator(const std::string& inType) : TabCreator(U8(inType)) {}

  boost::intrusive_ptr<TabPanel> CreateTabPanel(
      Workspace* inWorkspace, lumworkspace::workspace::WorkspaceFrameBase* inFrame) override {
    if (mFails) throw lumcore::config::Error(U16("no panel"));
    ++mMade;
    return new TabPanel(inWorkspace, inFrame,
                        U16("Panel ") + U16(lumcore::utility::ToStdString(GetTabType())),
                        GetTabType(), nullptr, true);
  }

  int mMade = 0;
  bool mFails = false;
};

// A shown main window of 800 by 600 with a node in the centre, and creators for the types a to f.
struct PanelWorkspace {
  PanelWorkspace() {
    workspace.CreateMainTopLevelWindow(nullptr);
    main = workspace.GetMainTopLevelWindow();
    main->MoveTo(lumcore::geom::RectT<int>(0, 0, 800, 600));
    main->SetCentralNode(new lumui::ui::UI_SubView);
    for (const char type : std::string("abcdef"))
      Register(std::string(1, type));
    main->UI_Show(true);
    Settle();
  }

  CountingCreator* Register(const std::string& inType) {
    auto* const creator = new CountingCreator(inType);
    workspace.RegisterTabCreator(creator);
    return creator;
  }
  void Open(const std::string& inType, TabPlace::Where inWhere, const std::string& inBeside,
            lumworkspace::workspace::DockArea inArea = lumworkspace::workspace::kDockRight) {
    TabPlace place;
    place.where = inWhere;
    place.besideType = U8(inBeside);
    place.area = inArea;
    place.floatingRect = lumcore::geom::RectT<int>(100, 120, 300, 200);
    workspace.OpenTab(U8(inType), &place);
    Settle();
  }
  // "left[a|b*] right[c / d] bottom[e] center float[f@100,120]".
  void OpenAll() {
    Open("a", TabPlace::kInArea, "", lumworkspace::workspace::kDockLeft);
    Open("b", TabPlace::kTabWith, "a");
    Open("c", TabPlace::kInArea, "");
    Open("d", TabPlace::kBelow, "c");
    Open("e", TabPlace::kInArea, "", lumworkspace::workspace::kDockBottom);
    Open("f", TabPlace::kFloating, "");
  }
  void Settle() { lumui::testing::ProcessEvents(); }
  // As the user does, with the line between two docks or the title of one.
  void Drag(lumui::ui::OS_Window& inWindow, lumui::testing::Position inFrom,
            lumui::testing::Position inTo) {
    lumui::testing::PressMouse(inWindow, inFrom);
    for (const float part : {0.5f, 1.0f}) {
      lumui::testing::MoveMouse(
          inWindow, {inFrom.x + part * (inTo.x - inFrom.x), inFrom.y + part * (inTo.y - inFrom.y)});
      Settle();
    }
    lumui::testing::ReleaseMouse(inWindow, inTo);
    Settle();
  }
  std::string Text(bool inWithSizes = false) {
    return lumworkspace::testing::LayoutAsText(workspace, inWithSizes);
  }

  Workspace workspace{nullptr};
  TopLevelWindow* main = nullptr;
};

}  // namespace test_support
