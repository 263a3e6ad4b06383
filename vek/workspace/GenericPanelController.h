// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumcore/utility/RefCounted.h"
#include "vek/config/Export.h"

namespace lumui::ui {
class UI_Node;
}

namespace lumui::utility {
class OS_Menu;
}

namespace vek::workspace {

class GenericPanel;

// How one panel behaves. The panel owns its controller, and the controller goes with it: whoever
// keeps one longer has a controller without a panel. Every operation may have the panel closed or
// the controller replaced; both are held until it returns.
class VEK_API GenericPanelController : public lumcore::utility::RefCountedObject {
 public:
  // The panel is borrowed.
  explicit GenericPanelController(GenericPanel* inPanel);
  ~GenericPanelController() override;

  // Looks the controls up and listens to them. The build operation calls it once they are there.
  virtual void ConnectControls();

 protected:
  GenericPanel* GetTabPanel() const { return mPanel; }  // null once the panel has gone
  // The panel's node of that id; null where there is none, or no panel.
  boost::intrusive_ptr<lumui::ui::UI_Node> GetControlForID(const lumcore::UTF8String& inID) const;
  boost::intrusive_ptr<lumui::ui::UI_Node> GetControlForID(const char* inID) const;  // UTF-8
  // The same as the class that the caller wants; null for a node of another.
  template <class Control>
  boost::intrusive_ptr<Control> GetControl(const char* inID) const {
    return boost::dynamic_pointer_cast<Control>(GetControlForID(inID));
  }

 private:
  friend class GenericPanel;

  // A node of a class in the archive that no adapter is registered for; null, and the archive is
  // refused, for one that is not known here either.
  virtual boost::intrusive_ptr<lumui::ui::UI_Node> CreateCustomNode(
      const lumcore::UTF16String& inClassName);
  // Appends to what every panel's menu has. Ids are from 1 to below
  // TabPanel::kFirstOwnFlyoutCommand.
  virtual void PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu);
  // False for an id that is none of this controller's.
  virtual bool DoFlyoutMenuCommand(unsigned inCommand);

  GenericPanel* mPanel;
};

}  // namespace vek::workspace
