// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <boost/intrusive_ptr.hpp>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "KeysPeer.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/OS_Window.h"
#include "support/Pair.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace {

using lumcore::filesupport::File;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::ModifierKeys;
using vek::uisupport::CommandRegistry;
using vek::uisupport::KeyCommandManager;

constexpr int kEntries = 5000;
constexpr int kMappings = 2000;
constexpr int kFirstKey = 0x4E00;  // as many characters without lower case as one may want

std::string MakeCommandFile() {
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<cmdreg>\r\n";
  for (int id = 1; id <= kEntries; ++id) {
    const std::string number = std::to_string(id);
    text += "  <cmd id=\"" + number + "\">\r\n    <name>Timeline.Command" + number +
            "</name>\r\n    <displayname>($$$/host/commands/Name" + number + "=Command number " +
            number + "\xE2\x80\xA6)</displayname>\r\n    <description>($$$/host/commands/Text" +
            number + "=Does to the timeline what command number " + number +
            " does)</description>\r\n" +
            (id % 5 == 0 ? "    <repeatable>true</repeatable>\r\n" : "") + "  </cmd>\r\n";
  }
  return text + "</cmdreg>\r\n";
}

// A folder of its own for the files, gone with the process, and the registry filled.
class Workbench {
 public:
  Workbench() {
    std::string folder = (std::filesystem::temp_directory_path() / "keys-XXXXXX").string();
    if (!mkdtemp(folder.data())) throw std::runtime_error("cannot make a folder: " + folder);
    mFolder = folder;
    std::ofstream(GetPath("commands.xml"), std::ios::binary) << MakeCommandFile();
    KeyCommandManager::Init();
    LoadCommands();
    MapKeys(kEntries);
    SaveMap();
  }
  ~Workbench() {
    std::error_code ignored;  // what cannot be removed stays in the folder of temporary files
    std::filesystem::remove_all(mFolder, ignored);
  }

  void LoadCommands() const {
    CommandRegistry::Get().LoadFromFile(File(GetPath("commands.xml")), false);
  }
  void LoadMap() const { KeyCommandManager::Get().LoadKeyMappings(File(GetPath("map.xml"))); }
  void SaveMap() const { KeyCommandManager::Get().SaveKeyMappings(File(GetPath("map.xml"))); }

  // Ctrl and one character each, and nothing else.
  static void MapKeys(int inCount) {
    KeyCommandManager::Get().LoadKeyMappingsFromBuffer(lumcore::UTF8String());
    for (int at = 0; at < inCount; ++at) {
      KeyCommandManager::Get().AddKeyMapping(at + 1, KeyAt(at), Ctrl(),
                                             KeyboardEvent::kActionKeyDown, nullptr, false, false);
    }
  }
  static KeyboardCode KeyAt(int inAt) {
    return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(kFirstKey + inAt),
                                                false);
  }
  static ModifierKeys Ctrl() { return ModifierKeys(lumui::ui::kModCommand); }

 private:
  std::string GetPath(const std::string& inName) const { return (mFolder / inName).string(); }

  std::filesystem::path mFolder;
};

// Knows every command, and counts.
class Runner : public vek::uisupport::CommandHandler {
 public:
  long mRuns = 0;

 protected:
  bool DoHandleCommand(int) override { return ++mRuns > 0; }
  bool DoCommandEnabled(int, bool& outEnabled, bool&, lumcore::UTF16String&) override {
    return outEnabled = true;
  }
};

class RoutingWindow : public lumui::ui::OS_Window {
 public:
  RoutingWindow() { lumui::testing::ActivateWindow(this); }

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node*, const KeyboardEvent& inEvent) override {
    return KeyCommandManager::Get().RouteKeyEvent(inEvent);
  }
};

void FailUnless(benchmark::State& ioState, bool inAllRan) {
  if (!inAllRan) ioState.SkipWithError("not every key press ran its command");
}

template <class Press>
bench::Body TimeRouting(Press inPress) {
  return [=](benchmark::State& ioState) {
    Workbench::MapKeys(kMappings);
    Runner runner;
    runner.SetAsCurrentCommandHandler(true);
    const boost::intrusive_ptr<RoutingWindow> window(new RoutingWindow);
    for (auto _ : ioState)
      inPress(*window);
    FailUnless(ioState, runner.mRuns == static_cast<long>(ioState.iterations()));
  };
}

void PressLastInQt(benchmark::State& ioState) {
  ShortcutWindow window(kFirstKey, kMappings);
  for (auto _ : ioState)
    window.Press(kFirstKey + kMappings - 1);
  FailUnless(ioState, window.GetActivations() == static_cast<long>(ioState.iterations()));
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  const Workbench bench;
  const auto on = [&bench](void (Workbench::*inWork)() const) {
    return [&bench, inWork](benchmark::State& ioState) {
      bench.LoadMap();
      for (auto _ : ioState)
        (bench.*inWork)();
    };
  };
  const KeyboardCode last = Workbench::KeyAt(kMappings - 1);
  const KeyboardEvent down(KeyboardEvent::kActionKeyDown, last, Workbench::Ctrl(), false,
                           lumui::ui::OS_Event());
  const auto route = [down](RoutingWindow&) { KeyCommandManager::Get().RouteKeyEvent(down); };
  const auto press = [last](RoutingWindow& ioWindow) {
    lumui::testing::PressKey(ioWindow, last, Workbench::Ctrl());
  };
  const bool wallClock = true;
  return bench::Run(
      "keys", argc, argv,
      {
          {"load a file of 5,000 commands",
           "ms",
           bench::OursAtMost(20),
           on(&Workbench::LoadCommands),
           {}},
          {"load a key map of 5,000", "ms", bench::OursAtMost(20), on(&Workbench::LoadMap), {}},
          {"save a key map of 5,000, to disk",
           "ms",
           bench::OursAtMost(20),
           on(&Workbench::SaveMap),
           {},
           wallClock},
          {"route a key, 2,000 mappings, the last one hit",
           "us",
           bench::OursAtMost(10),
           TimeRouting(route),
           {}},
          {"press it in a window, beside 2,000 shortcuts of Qt", "us", std::nullopt,
           TimeRouting(press), PressLastInQt},
      });
}
