// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The smallest host with a window: docs/writing-a-host.md.

#include <exception>
#include <iostream>

#include "lumcore/config/CatalogueLocalizer.h"
#include "lumcore/config/ErrorManager.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/ParserFactory.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/UI_SubView.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/app/App.h"
#include "vek/uisupport/PlatformErrors.h"
#include "vek/uisupport/PlatformMenu.h"
#include "vek/workspace/Workspace.h"

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

enum Command { kGrow = 1, kQuit };

// What the window shows: a disc that a command makes larger.
class Page : public lumui::ui::UI_SubView {
 public:
  void Grow() {
    mRadius += 10;
    UI_InvalidateAll();
  }

 private:
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override {
    lumui::drawbot::Path disc;
    disc.AddEllipse({40, 40, 2 * mRadius, 2 * mRadius});
    inDrawbot->FillPath(disc, lumui::drawbot::ColorRGBA(0.15f, 0.4f, 0.75f));
  }

  float mRadius = 50;
};

class WindowApp : public vek::app::App {
 public:
  bool Start() {
    vek::app::AppInitArgs args;
    static const int sOfThisModule = 0;
    args.applicationInstance = args.resourceInstance = lumui::ui::ModuleOfAddress(&sOfThisModule);
    args.windowClassName = L"window";
    args.menuResourceID = 1;  // any but 0 gives the window a menu bar
    args.iconResourceID = 0;
    if (!Initialize(args, lumcore::filesupport::Dir())) return false;
    GetWorkspace()->GetMainTopLevelWindow()->SetCentralNode(mPage);
    return true;
  }

  bool DoHandleCommand(int inCommand) override {
    if (inCommand == kGrow) mPage->Grow();
    if (inCommand == kQuit) EndEventLoop();
    return inCommand == kGrow || inCommand == kQuit;
  }
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool&, UTF16String&) override {
    ioEnabled = true;
    return inCommand == kGrow || inCommand == kQuit;
  }

 protected:
  lumcore::config::ErrorManager* InitErrorManager(vek::app::AppInitArgs&) override {
    return new lumcore::config::ErrorManager([](const std::exception_ptr& inError) {
      vek::uisupport::ReportCaughtError(inError, false);
    });
  }
  lumcore::config::Localizer* InitLocalizer(vek::app::AppInitArgs&) override {
    return new lumcore::config::CatalogueLocalizer({});
  }
  std::auto_ptr<lumcore::xml::DocParserFactory> InitXMLParserFactory() override {
    return std::auto_ptr<lumcore::xml::DocParserFactory>(new lumcore::xml::DocParserFactory);
  }
  UTF16String GetClientName() override { return ToUTF16("window"); }
  UTF16String GetClientVersion() override { return ToUTF16("1.0"); }
  UTF16String GetClientInternalVersion() override { return ToUTF16("1.0"); }
  UTF16String GetCompanyName() override { return ToUTF16("vek"); }
  UTF16String GetClientBuildNumber() override { return ToUTF16("1"); }
  void OnWorkspaceReady(lumworkspace::workspace::Workspace*) override {}  // panels: docs/panels.md

  void MenubarCreateHook(HMENU inMenubar) override {
    const HMENU file = vek::uisupport::AppendSubMenu(inMenubar, ToUTF16("&File"), 0);
    vek::uisupport::AppendItem(file, ToUTF16("&Grow"), kGrow, false);
    vek::uisupport::AppendItem(file, ToUTF16("&Quit"), kQuit, false);
  }

 private:
  const boost::intrusive_ptr<Page> mPage{new Page};
};

int main() {
  WindowApp app;
  try {
    if (app.Start()) app.RunEventLoop();
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
  }
  app.Terminate();  // also after a stage that has thrown: it ends whatever there is
}
