// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>

#include "lumui/ui/UI_SubView.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/TabPanel.h"

namespace outliner {

// The types of the panels, as workspaces keep them.
const lumcore::UTF8String& OutlinePanel();
const lumcore::UTF8String& NotesPanel();
const lumcore::UTF8String& CommandsPanel();
const lumcore::UTF8String& MapPanel();
const lumcore::UTF8String& FilesPanel();
const lumcore::UTF8String& ConsolePanel();
const lumcore::UTF8String& NodesPanel();
const lumcore::UTF8String& HistoryPanel();

// A panel that one view fills. The view may outlive it, and fill the next one.
class ViewPanel final : public lumworkspace::workspace::TabPanel {
 public:
  ViewPanel(lumworkspace::workspace::Workspace* inWorkspace,
            lumworkspace::workspace::WorkspaceFrameBase* inFrame,
            const lumcore::UTF16String& inTitle, const lumcore::UTF8String& inTabType,
            const boost::intrusive_ptr<lumui::ui::UI_SubView>& inView);
  ~ViewPanel() override;

  lumui::ui::UI_SubView& GetView() { return *mView; }

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  boost::intrusive_ptr<lumui::ui::UI_SubView> mView;
};

// Makes the panels of one type, each around the view that a function gives.
class PanelCreator : public lumworkspace::workspace::TabCreator {
 public:
  using MakeView = std::function<boost::intrusive_ptr<lumui::ui::UI_SubView>()>;

  // The title is a key for the localizer.
  PanelCreator(const lumcore::UTF8String& inTabType, const char* inTitleKey,
               const lumworkspace::workspace::TabPlace& inDefaultPlace, MakeView inMakeView);
  ~PanelCreator() override;

  boost::intrusive_ptr<lumworkspace::workspace::TabPanel> CreateTabPanel(
      lumworkspace::workspace::Workspace* inWorkspace,
      lumworkspace::workspace::WorkspaceFrameBase* inFrame) override;
  lumworkspace::workspace::TabPlace GetDefaultPlace(
      const lumworkspace::workspace::Workspace& inWorkspace) const override;
  lumcore::geom::PointT<int> GetLeastSize() const override;

 private:
  const char* mTitleKey;
  lumworkspace::workspace::TabPlace mDefaultPlace;
  MakeView mMakeView;
};

}  // namespace outliner
