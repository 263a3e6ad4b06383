// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QByteArray>
#include <QDockWidget>
#include <QMainWindow>
#include <string>
#include <vector>

#include "lumcore/proplist/PropList.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumworkspace/workspace/TabCreator.h"
#include "lumworkspace/workspace/TabPanel.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/Workspace.h"
#include "support/Pair.h"

namespace {

using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using namespace lumworkspace::workspace;

constexpr int kPanels = 12;
constexpr int kWidth = 1200;
constexpr int kHeight = 800;

std::string TypeOf(int inPanel) {
  return "panel" + std::to_string(inPanel);
}

class Creator : public TabCreator {
 public:
  explicit Creator(const std::string& inType) : TabCreator(ToUTF8(inType)) {}
  boost::intrusive_ptr<TabPanel> CreateTabPanel(Workspace* inWorkspace,
                                                WorkspaceFrameBase* inFrame) override {
    return new TabPanel(inWorkspace, inFrame, ToUTF16("Panel"), GetTabType(), nullptr, false);
  }
};

// Two arrangements of the same panels: three groups of four tabs, and three columns of four.
class Host {
 public:
  Host() : mWorkspace(nullptr) {
    mWorkspace.CreateMainTopLevelWindow(nullptr);
    TopLevelWindow& main = *mWorkspace.GetMainTopLevelWindow();
    main.UI_SetSize(kWidth, kHeight);
    main.SetCentralNode(new lumui::ui::UI_SubView);
    main.UI_Show(true);
    for (int i = 0; i < kPanels; ++i)
      mWorkspace.RegisterTabCreator(new Creator(TypeOf(i)));
    for (const TabPlace::Where where : {TabPlace::kTabWith, TabPlace::kBelow}) {
      for (int i = 0; i < kPanels; ++i) {
        TabPlace place;
        place.where = i < 3 ? TabPlace::kInArea : where;
        place.area = i == 0 ? kDockLeft : i == 1 ? kDockRight : kDockBottom;
        place.besideType = ToUTF8(TypeOf(i - 3));
        mWorkspace.OpenTab(ToUTF8(TypeOf(i)), &place);
      }
      mLayouts.push_back(mWorkspace.GetLayout());
    }
  }
  void Switch() {
    mWorkspace.SetLayout(mLayouts[mTurn++ % 2], ToUTF16("benchmark"));
    lumui::ui::Application::Get()->PumpPendingEvents();
  }

 private:
  Workspace mWorkspace;
  std::vector<lumcore::proplist::PropList> mLayouts;
  std::size_t mTurn = 0;
};

class Peer {
 public:
  Peer() {
    mMain.resize(kWidth, kHeight);
    mMain.setDockNestingEnabled(true);
    mMain.setCentralWidget(new QWidget);
    for (int i = 0; i < kPanels; ++i) {
      auto* const dock = new QDockWidget(QStringLiteral("Panel"));
      dock->setObjectName(QString::fromStdString(TypeOf(i)));
      dock->setWidget(new QWidget);
      mDocks.push_back(dock);
    }
    mMain.show();
    for (const bool tabs : {true, false}) {
      for (int i = 0; i < kPanels; ++i) {
        QDockWidget* const dock = mDocks[static_cast<std::size_t>(i)];
        QDockWidget* const before = i < 3 ? nullptr : mDocks[static_cast<std::size_t>(i - 3)];
        if (!before) {
          mMain.addDockWidget(i == 0   ? Qt::LeftDockWidgetArea
                              : i == 1 ? Qt::RightDockWidgetArea
                                       : Qt::BottomDockWidgetArea,
                              dock);
        } else if (tabs) {
          mMain.tabifyDockWidget(before, dock);
        } else {
          mMain.splitDockWidget(before, dock, Qt::Vertical);
        }
      }
      lumui::ui::Application::Get()->PumpPendingEvents();
      mStates.push_back(mMain.saveState());
    }
  }
  void Switch() {
    mMain.restoreState(mStates[mTurn++ % 2]);
    lumui::ui::Application::Get()->PumpPendingEvents();
  }

 private:
  QMainWindow mMain;
  std::vector<QDockWidget*> mDocks;
  std::vector<QByteArray> mStates;
  std::size_t mTurn = 0;
};

template <class Side>
void SwitchBackAndForth(benchmark::State& ioState) {
  Side side;
  for (auto _ : ioState)
    side.Switch();
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  return bench::Run("workspaces", argc, argv,
                    {
                        {"switch between two workspaces of 12 panels", "ms", bench::RatioAtMost(2),
                         SwitchBackAndForth<Host>, SwitchBackAndForth<Peer>},
                    });
}
