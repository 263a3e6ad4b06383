// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <stdexcept>

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/utility/ResourceManager.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "support/Pair.h"
#include "vek/workspace/GenericPanel.h"
#include "vek/workspace/GenericPanelCreatorBase.h"
#include "vek/workspace/GenericPanelRegistry.h"
#include "vek/workspace/Workspace.h"

namespace {

using lumcore::utility::ToUTF8;
using vek::workspace::GenericPanel;

constexpr int kNodes = 500;
constexpr int kWidth = 1000;
constexpr int kHeight = 1240;  // all nodes are to be seen

lumui::utility::ResourceManager* OwnResources() {
  static const int sHere = 0;
  static lumui::utility::ResourceManager sResources(lumui::ui::ModuleOfAddress(&sHere));
  return &sResources;
}

class Creator : public vek::workspace::GenericPanelCreatorBase {
 public:
  Creator()
      : GenericPanelCreatorBase(ToUTF8(std::string_view("bench")), "$$$/bench/Panel=Panel", 1,
                                ToUTF8(std::string_view("panel500")), OwnResources) {}
  boost::intrusive_ptr<lumworkspace::workspace::TabPanel> BuildPanel(
      lumworkspace::workspace::Workspace* inWorkspace,
      lumworkspace::workspace::WorkspaceFrameBase* inFrame,
      const lumcore::UTF16String& inTitle) const override {
    const boost::intrusive_ptr<GenericPanel> panel(
        new GenericPanel(inWorkspace, inFrame, inTitle, GetTabType(), nullptr));
    panel->SetResourceManager(GetResourceManager());
    panel->CreateControls(GetXmlResourceName());
    if (panel->UI_GetChild(0)->UI_GetChildCount() != kNodes - 1) {
      throw std::runtime_error("another archive than that of the benchmark");
    }
    return panel;
  }
  lumworkspace::workspace::TabPlace GetFirstPlace() const override { return {}; }
};

// Reads the archive, builds the panel in a dock of a shown window, paints it and closes it.
void OpenPanel(benchmark::State& ioState) {
  const Creator creator;
  vek::workspace::Workspace workspace(nullptr);
  workspace.CreateMainTopLevelWindow(nullptr);
  workspace.GetMainTopLevelWindow()->UI_SetSize(kWidth, kHeight);
  vek::workspace::GenericPanelRegistry::GetInstance().RegisterTabCreators(workspace);
  workspace.GetMainTopLevelWindow()->UI_Show(true);
  for (auto _ : ioState) {
    workspace.OpenTab(creator.GetTabType());
    lumui::ui::Application::Get()->PumpPendingEvents();
    workspace.CloseTab(creator.GetTabType());
    lumui::ui::Application::Get()->PumpPendingEvents();
  }
}

QWidget* MakeControl(int inNumber, QWidget* inParent) {
  switch (inNumber % 5) {
    case 0:
      return new QLabel(QStringLiteral("Text"), inParent);
    case 1:
      return new QPushButton(QStringLiteral("Text"), inParent);
    case 2:
      return new QCheckBox(QStringLiteral("Text"), inParent);
    case 3:
      return new QLineEdit(QStringLiteral("Text"), inParent);
    default:
      return new QComboBox(inParent);
  }
}

// The same controls by calls, without any file.
void OpenDock(benchmark::State& ioState) {
  QMainWindow window;
  window.resize(kWidth, kHeight);
  window.show();
  for (auto _ : ioState) {
    auto* const dock = new QDockWidget(QStringLiteral("Panel"));
    auto* const view = new QWidget;
    for (int i = 0; i < kNodes - 1; ++i)
      MakeControl(i, view)->setGeometry(i % 10 * 100, i / 10 * 24, 96, 22);
    dock->setWidget(view);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    lumui::ui::Application::Get()->PumpPendingEvents();
    delete dock;
    lumui::ui::Application::Get()->PumpPendingEvents();
  }
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  return bench::Run("panels", argc, argv,
                    {
                        {"a panel of 500 nodes from its archive to painted, beside calls of Qt's",
                         "ms", bench::OursAtMost(50), OpenPanel, OpenDock},
                    });
}
