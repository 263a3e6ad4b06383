// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <array>
#include <deque>
#include <string>
#include <vector>

#include "QtMenuPeer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/OS_Window.h"
#include "support/Pair.h"
#include "vek/app/src/MenuState.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/uisupport/PlatformMenu.h"

namespace {

using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

constexpr int kLevels = 4;
constexpr int kItems = 200;

// Only the outermost level knows the commands; they change as the peer's do.
class Level : public vek::uisupport::CommandHandler {
 public:
  explicit Level(Level* inParent) : CommandHandler(inParent) {
    for (int i = 0; !inParent && i < kItems; ++i) {
      mTexts.push_back(
          {ToUTF16("Item " + std::to_string(i)), ToUTF16("Again " + std::to_string(i))});
    }
  }
  unsigned mTurn = 0;

 protected:
  bool DoHandleCommand(int) override { return false; }
  bool DoCommandEnabled(int inCommand, bool& outEnabled, bool& outChecked,
                        UTF16String& outTitle) override {
    if (mTexts.empty()) return false;
    const int i = inCommand - 1;
    outEnabled = i % 2 == 0 || mTurn % 2 == 0;
    outChecked = i % 3 == 0;
    outTitle = mTexts[static_cast<std::size_t>(i)][i % 10 == 0 ? mTurn % 2 : 0];
    return true;
  }

 private:
  std::vector<std::array<UTF16String, 2>> mTexts;
};

class Host {
 public:
  Host() {
    for (int i = 0; i < kLevels; ++i)
      mLevels.emplace_back(mLevels.empty() ? nullptr : &mLevels.back());
    mLevels.back().SetAsCurrentCommandHandler(true);
    for (int i = 0; i < kItems; ++i) {
      const std::string title = "Item " + std::to_string(i);
      vek::uisupport::AppendItem(mMenu, ToUTF16(title), static_cast<unsigned>(i + 1), false);
    }
    sHost = this;
    mWindow->UI_Show(true);
  }
  ~Host() {
    mWindow->UI_DestroyWindow();
    vek::uisupport::DestroyPlatformMenu(mMenu);
    sHost = nullptr;
  }

  void Open() { lumui::ui::OS_Menu::PopUp(mMenu, *mWindow, {20, 20}); }
  benchmark::IterationCount GetTurns() const { return mLevels.front().mTurn; }
  void Update() {
    ++mLevels.front().mTurn;
    vek::app::UpdateMenuState(mMenu, true, true, 1);
  }

 private:
  static void OnMessage(lumui::ui::OS_Event* ioEvent) {
    if (ioEvent->message == lumui::ui::kMessageInitMenuPopup && sHost) sHost->Update();
  }

  static Host* sHost;
  std::deque<Level> mLevels;
  HMENU mMenu = vek::uisupport::CreatePlatformMenu(true);
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow{new lumui::ui::OS_Window(OnMessage)};
};

Host* Host::sHost = nullptr;

template <class Side>
void OpenAndClose(benchmark::State& ioState, Side& ioSide) {
  for (auto _ : ioState) {
    ioSide.Open();
    CloseOpenPopup();
  }
  if (ioSide.GetTurns() != ioState.iterations()) ioState.SkipWithError("not each opening told");
}

void Ours(benchmark::State& ioState) {
  Host host;
  OpenAndClose(ioState, host);
}

void Bare(benchmark::State& ioState) {
  QtMenuPeer peer(kItems);
  OpenAndClose(ioState, peer);
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  return bench::Run("menus", argc, argv,
                    {
                        {"open 200 items, 4 levels, beside a bare menu of Qt's", "ms",
                         bench::OursAtMost(2), Ours, Bare},
                    });
}
