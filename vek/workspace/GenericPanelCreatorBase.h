// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/TabPlace.h"
#include "vek/config/Export.h"

namespace lumui::utility {
class ResourceManager;
}

namespace vek::workspace {

// What a host says of one of its panels, and how it builds one. Define an object at namespace
// scope: it registers itself when it is built, before there is an application, and the application
// gives it to its workspace. It lives as long as any workspace that it was given to.
class VEK_API GenericPanelCreatorBase {
 public:
  // The creator that a workspace has for the panel. It borrows the GenericPanelCreatorBase.
  class VEK_API TabCreator : public lumworkspace::workspace::TabCreator {
   public:
    explicit TabCreator(const GenericPanelCreatorBase& inCreator);
    ~TabCreator() override;

    // The panel that BuildPanel makes. What that throws passes.
    boost::intrusive_ptr<lumworkspace::workspace::TabPanel> CreateTabPanel(
        lumworkspace::workspace::Workspace* inWorkspace,
        lumworkspace::workspace::WorkspaceFrameBase* inFrame) override;

   private:
    const GenericPanelCreatorBase* mCreator;
  };

  // Registers itself last of all. The type names the panel in layouts and is never empty; the title
  // key is a "$$$/..." key with its default; no resource name stands for a panel without an
  // archive. Of two creators with one command or one type, the later one counts for it.
  GenericPanelCreatorBase(
      const lumcore::UTF8String& inTabType, const char* inTitleKey, int inCommandID,
      lumcore::UTF8String inXmlResourceName,
      boost::function<lumui::utility::ResourceManager*()> inResourceManager = {});
  virtual ~GenericPanelCreatorBase();
  GenericPanelCreatorBase(const GenericPanelCreatorBase&) = delete;
  GenericPanelCreatorBase& operator=(const GenericPanelCreatorBase&) = delete;

  // A new panel of GetTabType in the frame, with its controller and its controls; null leaves the
  // tab closed. The title is localised.
  virtual boost::intrusive_ptr<lumworkspace::workspace::TabPanel> BuildPanel(
      lumworkspace::workspace::Workspace* inWorkspace,
      lumworkspace::workspace::WorkspaceFrameBase* inFrame,
      const lumcore::UTF16String& inTitle) const = 0;
  // Where the host would open the panel for the first time: for its own commands, which hand it to
  // Workspace::OpenTab. The framework never asks.
  virtual lumworkspace::workspace::TabPlace GetFirstPlace() const = 0;

  const lumcore::UTF8String& GetTabType() const { return mTabType; }
  const char* GetTabTitleKey() const;
  int GetCommandID() const { return mCommandID; }
  const lumcore::UTF8String& GetXmlResourceName() const { return mXmlResourceName; }
  // Where the archive is; null for the application's own resources.
  lumui::utility::ResourceManager* GetResourceManager() const;
  // The caller owns it.
  lumworkspace::workspace::TabCreator* NewTabCreator() const;

 private:
  lumcore::UTF8String mTabType;
  lumcore::UTF8String mTitleKey;
  int mCommandID;
  lumcore::UTF8String mXmlResourceName;
  boost::function<lumui::utility::ResourceManager*()> mResourceManager;
};

}  // namespace vek::workspace
