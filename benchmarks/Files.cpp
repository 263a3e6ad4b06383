// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdlib.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "QtFilesPeer.h"
#include "lumcore/filesupport/FileStream.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "support/Pair.h"
#include "vek/sharedui/CommonFileDialog.h"
#include "vek/sharedui/UIMultiTreeList.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellTrackView.h"
#include "vek/sharedui/UIShellTrackViewAdapter.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace vek::sharedui;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumui::ui::OS_Window;
using vek::trackview::PlatformScrollView;

constexpr int kFiles = 50000;

// A home whose desktop holds one folder with many files, "many", and a plain one.
class Home {
 public:
  Home() {
    std::string path = Dir::TempDir().GetPath() + "/vek-bench-XXXXXX";
    if (!::mkdtemp(path.data())) throw std::runtime_error("no folder for the files");
    mDir = Dir(path);
    GetMany().Create();
    Dir(path + "/Documents").Create();
    for (int file = 0; file < kFiles; ++file) {
      const std::string name = "file number " + std::to_string(file * 7919 % kFiles) + ".opml";
      lumcore::filesupport::OutputFileStream(File(GetMany(), name)).Close();
    }
    ::setenv("HOME", path.c_str(), 1);
    ::unsetenv("XDG_CONFIG_HOME");
  }
  ~Home() { mDir.RemoveAll(); }

  Dir GetMany() const { return Dir(mDir.GetPath() + "/Desktop/many"); }

 private:
  Dir mDir;
};

std::unique_ptr<Home> gHome;

void Paint(OS_Window& ioWindow) {
  ioWindow.UI_UpdateNow(lumcore::utility::Flags<unsigned int>());
}

void OpenInTree(benchmark::State& ioState) {
  const boost::intrusive_ptr<OS_Window> window(new OS_Window(nullptr));
  window->UI_SetLocalRectF({0, 0, 500, 400});
  const auto scroll = PlatformScrollView::Create();
  window->UI_AddChild(scroll);
  scroll->UI_SetLocalRectF({0, 0, 500, 400});
  auto& trackView = *scroll->GetPlatformView().GetTrackView();
  auto* const tree = new UIShellTrackView(&trackView, nullptr, true);
  std::auto_ptr<vek::trackview::Overlay> overlay(tree);
  trackView.InstallOverlay(overlay, false);
  window->UI_Show(true);
  lumui::ui::Application::Get()->PumpPendingEvents();
  for (auto _ : ioState) {
    ioState.PauseTiming();
    tree->BuildHierarchy();
    Paint(*window);
    ioState.ResumeTiming();
    tree->ExpandNode(tree->GetRootEntry()->GetChildren().back().get(), true);
    Paint(*window);
    if (tree->GetTrackView()->DataSize().y < kFiles * 19.0f) ioState.SkipWithError("rows missing");
  }
  window->UI_DestroyWindow();
}

void ListInDialog(benchmark::State& ioState) {
  const boost::intrusive_ptr<CommonFileDialog> dialog(
      new CommonFileDialog(nullptr, lumcore::utility::ToUTF16("Open"),
                           lumcore::utility::ToUTF16("Open"), nullptr, nullptr, nullptr));
  UIShellTrackView& tree = *UIShellTrackViewAdapter::FindTree(*dialog->GetNodeForID("FolderTree"));
  dialog->RunModeless({});
  lumui::ui::Application::Get()->PumpPendingEvents();
  for (auto _ : ioState) {
    ioState.PauseTiming();
    tree.SelectRoot();
    Paint(*dialog);
    ioState.ResumeTiming();
    tree.SelectEntry(tree.GetRootEntry()->GetChildren().back().get(), false);
    Paint(*dialog);
  }
  dialog->EndDialog(lumui::ui::UI_Dialog::kCancel);
}

void OpenInQt(benchmark::State& ioState) {
  for (auto _ : ioState)
    ShowFolderInQt(gHome->GetMany().GetPath(), kFiles);
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  gHome = std::make_unique<Home>();
  const int result =
      bench::Run("files", argc, argv,
                 {
                     {"a folder of 50,000 files in the shell tree, beside QFileSystemModel", "ms",
                      bench::RatioAtMost(0.7), OpenInTree, OpenInQt, true},
                     {"the same, by itself", "ms", bench::OursAtMost(250), OpenInTree, {}},
                     {"the same in the file dialog's list, beside QFileSystemModel", "ms",
                      bench::RatioAtMost(0.7), ListInDialog, OpenInQt, true},
                     {"the same, by itself ", "ms", bench::OursAtMost(250), ListInDialog, {}},
                 });
  gHome.reset();
  return result;
}
