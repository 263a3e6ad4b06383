// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "lumworkspace/workspace/Workspace.h"

namespace test_support {

using lumworkspace::workspace::TabPanel;
using lumworkspace::workspace::Workspace;
using lumworkspace::workspace::WorkspaceFrameBase;

// Panels that do something when they go.
class PartingCreator : public lumworkspace::workspace::TabCreator {
 public:
  using Parting = std::function<void(Workspace&, const std::string& inType)>;

  PartingCreator(const std::string& inType, Parting inParting)
      : TabCreator(lumcore::utility::ToUTF8(inType)), mParting(std::move(inParting)) {}

  boost::intrusive_ptr<TabPanel> CreateTabPanel(Workspace* inWorkspace,
                                                WorkspaceFrameBase* inFrame) override {
    return new Panel(inWorkspace, inFrame, GetTabType(), mParting);
  }

 private:
  class Panel : public TabPanel {
   public:
    Panel(Workspace* inWorkspace, WorkspaceFrameBase* inFrame, const lumcore::UTF8String& inType,
          Parting inParting)
        : TabPanel(inWorkspace, inFrame, lumcore::utility::ToUTF16("Parting"), inType, nullptr,
                   true),
          mParting(std::move(inParting)) {}
    ~Panel() override { mParting(*GetWorkspace(), lumcore::utility::ToStdString(GetTabType())); }

   private:
    Parting mParting;
  };

  Parting mParting;
};

}  // namespace test_support
