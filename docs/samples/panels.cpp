// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The panel of docs/panels.md, in a host of which only the names are here.

#include "lumcore/config/Localizer.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/utility/OS_Menu.h"
#include "lumworkspace/workspace/TabPlace.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/app/App.h"
#include "vek/sharedui/KeyboardMapDialog.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/workspace/GenericPanel.h"
#include "vek/workspace/GenericPanelController.h"
#include "vek/workspace/GenericPanelCreatorBase.h"
#include "vek/workspace/GenericPanelRegistry.h"
#include "vek/workspace/Workspace.h"

namespace samples {

using lumworkspace::workspace::TabPanel;
using lumworkspace::workspace::TabPlace;
using lumworkspace::workspace::Workspace;
using lumworkspace::workspace::WorkspaceFrameBase;
using vek::uisupport::KeyCommandManager;
using vek::workspace::GenericPanel;

enum { kClearHistory = 1, kCmdShowSearch = 2001 };

lumcore::UTF8String U8(const char* inText) {
  return lumcore::utility::ToUTF8(inText);
}
lumcore::UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}
void Search(const lumcore::UTF16String& inText);
void ClearHistory();
lumcore::filesupport::File GetKeyFile();

class HostApp : public vek::app::App {
 public:
  bool DoHandleCommand(int inCommand) override;
  void ShowKeyboard();
  lumui::ui::UI_Node* GetMainWindow() { return GetWorkspace()->GetMainTopLevelWindow(); }
};

// What the panel does. It finds its controls by the ids that they have in the archive.
class SearchController : public vek::workspace::GenericPanelController {
 public:
  using GenericPanelController::GenericPanelController;

  void ConnectControls() override {
    const auto field = GetControl<lumui::controls::UI_TextEdit>("SearchField");
    mChanged.reset(new ChangedFunction([field](auto*) { Search(field->GetText()); }));
    field->NotifyWhenChanged(mChanged);
  }

 private:
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;
  void PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu) override {
    ioMenu.AppendItem(Localized("$$$/host/Search/Clear=Clear the History"), kClearHistory);
  }
  bool DoFlyoutMenuCommand(unsigned inCommand) override {
    if (inCommand != kClearHistory) return false;
    ClearHistory();
    return true;
  }
  boost::shared_ptr<ChangedFunction> mChanged;  // ends the subscription with the controller
};

// What the panel is. The calls in BuildPanel stand in this order.
class SearchCreator : public vek::workspace::GenericPanelCreatorBase {
 public:
  using GenericPanelCreatorBase::GenericPanelCreatorBase;

  boost::intrusive_ptr<TabPanel> BuildPanel(Workspace* inWorkspace, WorkspaceFrameBase* inFrame,
                                            const lumcore::UTF16String& inTitle) const override {
    const boost::intrusive_ptr<GenericPanel> panel(
        new GenericPanel(inWorkspace, inFrame, inTitle, GetTabType(), nullptr));
    const boost::intrusive_ptr<SearchController> controller(new SearchController(panel.get()));
    panel->SetResourceManager(GetResourceManager());  // null: the application's own resources
    panel->SetController(controller);
    panel->CreateControls(GetXmlResourceName());
    controller->ConnectControls();
    return panel;
  }
  TabPlace GetFirstPlace() const override { return TabPlace(); }
};

// Known before main: its type in layouts, its title, the command that opens it, its archive.
const SearchCreator gSearch(U8("host.Search"), "$$$/host/Search/Title=Search", kCmdShowSearch,
                            U8("Search"));

bool HostApp::DoHandleCommand(int inCommand) {
  const auto& panels = vek::workspace::GenericPanelRegistry::GetInstance();
  lumcore::UTF8String type;
  if (!panels.GetTabTypeForCommand(inCommand, type)) return false;
  return GetWorkspace()->OpenTab(type) != nullptr;
}

void HostApp::ShowKeyboard() {
  using vek::sharedui::KeyboardMapDialog;
  const boost::intrusive_ptr<KeyboardMapDialog> dialog(new KeyboardMapDialog(GetMainWindow()));
  dialog->RunModeless([](int) { KeyCommandManager::Get().SaveKeyMappings(GetKeyFile()); });
}

}  // namespace samples
