// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ArchivedPanels.h"

#include <boost/intrusive_ptr.hpp>

#include "LineField.h"
#include "OutlinerCommands.h"
#include "Panels.h"
#include "PropertiesPanel.h"
#include "SearchPanel.h"
#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/Workspace.h"
#include "vek/app/App.h"
#include "vek/workspace/GenericPanel.h"
#include "vek/workspace/GenericPanelCreatorBase.h"

namespace outliner {

using lumcore::UTF8String;
using lumcore::utility::ToUTF8;
using namespace lumworkspace::workspace;

namespace {

constexpr int kWidth = 350;
constexpr int kLeastWidth = 220;
constexpr int kLeastHeight = 160;

// A panel with the application's archive of that name.
template <class Controller>
class ArchivedPanel final : public vek::workspace::GenericPanelCreatorBase {
 public:
  using GenericPanelCreatorBase::GenericPanelCreatorBase;

  boost::intrusive_ptr<TabPanel> BuildPanel(Workspace* inWorkspace, WorkspaceFrameBase* inFrame,
                                            const lumcore::UTF16String& inTitle) const override {
    using vek::workspace::GenericPanel;
    const boost::intrusive_ptr<GenericPanel> panel(
        new GenericPanel(inWorkspace, inFrame, inTitle, GetTabType(), nullptr));
    const boost::intrusive_ptr<Controller> controller(new Controller(panel.get()));
    panel->SetResourceManager(GetResourceManager());
    panel->SetController(controller);
    panel->CreateControls(GetXmlResourceName());
    controller->ConnectControls();
    return panel;
  }
  TabPlace GetFirstPlace() const override {
    return PlaceBesideRows(*vek::app::App::GetApp()->GetWorkspace());
  }
};

class PlacedCreator final : public vek::workspace::GenericPanelCreatorBase::TabCreator {
 public:
  explicit PlacedCreator(const vek::workspace::GenericPanelCreatorBase& inPanel)
      : TabCreator(inPanel), mPanel(inPanel) {}

  TabPlace GetDefaultPlace(const Workspace&) const override { return mPanel.GetFirstPlace(); }
  lumcore::geom::PointT<int> GetLeastSize() const override { return {kLeastWidth, kLeastHeight}; }

 private:
  const vek::workspace::GenericPanelCreatorBase& mPanel;
};

const ArchivedPanel<PropertiesController> gProperties(PropertiesPanel(),
                                                      "$$$/outliner/Panel/Properties=Properties",
                                                      kCommandShowProperties, ToUTF8("Properties"));
const ArchivedPanel<SearchController> gSearch(SearchPanel(), "$$$/outliner/Panel/Search=Search",
                                              kCommandShowSearch, ToUTF8("Search"));

}  // namespace

const UTF8String& PropertiesPanel() {
  static const UTF8String sType = ToUTF8("outliner.properties");
  return sType;
}

const UTF8String& SearchPanel() {
  static const UTF8String sType = ToUTF8("outliner.search");
  return sType;
}

TakesKeyboard::~TakesKeyboard() = default;

bool FocusArchivedPanel(const Workspace& inWorkspace, const UTF8String& inTabType) {
  auto* const panel = dynamic_cast<vek::workspace::GenericPanel*>(inWorkspace.FindTab(inTabType));
  auto* const focus = panel ? dynamic_cast<TakesKeyboard*>(panel->GetController()) : nullptr;
  if (focus) focus->FocusField();
  return focus != nullptr;
}

TabPlace PlaceBesideRows(const Workspace& inWorkspace) {
  TabPlace place;
  for (const UTF8String& other :
       {PropertiesPanel(), HistoryPanel(), SearchPanel(), CommandsPanel()}) {
    if (!inWorkspace.FindTab(other)) continue;
    place.where = TabPlace::kTabWith;
    place.besideType = other;
    return place;
  }
  place.where = TabPlace::kRightOf;
  place.besideType = OutlinePanel();
  place.size = kWidth;
  return place;
}

void PlaceArchivedPanels(Workspace& ioWorkspace) {
  LineField::Register();
  ioWorkspace.RegisterTabCreator(new PlacedCreator(gProperties));
  ioWorkspace.RegisterTabCreator(new PlacedCreator(gSearch));
}

}  // namespace outliner
