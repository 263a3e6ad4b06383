// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <map>
#include <vector>

#include "lumcore/Strings.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "vek/config/Export.h"
#include "vek/workspace/GenericPanelController.h"

namespace lumui::utility {
class ResourceManager;
}

namespace vek::workspace {

// A panel whose contents come out of a node archive and whose behaviour is a controller's. Whoever
// builds one calls, in this order: SetResourceManager, SetController, CreateControls, and the
// controller's ConnectControls. The archive's root, the first child, always fills the panel.
class VEK_API GenericPanel : public lumworkspace::workspace::TabPanel {
 public:
  GenericPanel(lumworkspace::workspace::Workspace* inWorkspace,
               lumworkspace::workspace::WorkspaceFrameBase* inFrame,
               const lumcore::UTF16String& inTitle, const lumcore::UTF8String& inTabType,
               lumui::ui::OSEventFunction inEventFunction);
  ~GenericPanel() override;

  // Makes the controls out of the archive of that name and the type "xml", in the resource manager
  // that was set or else the application's: one of them is there (a contract). An empty name does
  // nothing, and a resource that is not there leaves the panel empty. An archive that is broken
  // throws, with its name and the place in it, and the panel is as it was.
  virtual void CreateControls(const lumcore::UTF8String& inResourceName);
  // Borrowed; null for the application's.
  virtual void SetResourceManager(lumui::utility::ResourceManager* inResourceManager);

  // The controller before is let go. Null for none.
  void SetController(boost::intrusive_ptr<GenericPanelController> inController);
  GenericPanelController* GetController() const { return mController.get(); }

  bool UI_SupportsDrawbot() const override;

 protected:
  // Of the controller; null without one.
  virtual boost::intrusive_ptr<lumui::ui::UI_Node> CreateCustomNode(
      const lumcore::UTF16String& inClassName) const;
  // What every panel's menu has, and behind it what the controller adds.
  void PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu) override;
  // The controller's answer; false without one.
  bool DoFlyoutMenuCommand(unsigned inCommand) override;
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;
  // The ground on which the controls stand.
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 private:
  friend class GenericPanelController;

  using NodeP = boost::intrusive_ptr<lumui::ui::UI_Node>;

  NodeP GetControlForID(const lumcore::UTF8String& inID) const;

  boost::intrusive_ptr<GenericPanelController> mController;
  std::map<lumcore::UTF8String, lumui::ui::UI_Node*> mControls;  // held by mHeldControls
  lumui::utility::ResourceManager* mResourceManager;
  // A host may take a control out of the panel, and must not find a dead one by its id.
  std::vector<NodeP> mHeldControls;
  // All that were made for this panel, also those that it has let go.
  std::vector<GenericPanelController*> mControllers;
};

}  // namespace vek::workspace
