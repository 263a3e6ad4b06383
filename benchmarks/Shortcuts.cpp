// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <string>

#include "QtRowsDialogPeer.h"
#include "lumcore/config/ClientInfo.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"
#include "support/Pair.h"
#include "vek/sharedui/ShortcutDialog.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace {

using lumcore::utility::ToUTF16;
using lumui::ui::KeyboardCode;
using lumui::ui::UI_Dialog;

constexpr int kCategories = 50;
constexpr int kCommands = 5000;
constexpr int kWithAKey = 10;  // one command in so many
// Typed one after the other, and taken back one after the other.
const std::string kTyped = "d 49";

// The key map of the default set.
lumcore::UTF8String RegisterCommands() {
  auto& registry = vek::uisupport::CommandRegistry::Get();
  auto& manager = vek::uisupport::KeyCommandManager::Get();
  for (int i = 0; i < kCommands; ++i) {
    const std::string number = std::to_string(i);
    registry.RegisterCommand(
        i + 1, ToUTF16("command" + number),
        ToUTF16("Category " + std::to_string(i % kCategories) + ".Command " + number),
        ToUTF16("Does what number " + number + " is for"), false);
    if (i % kWithAKey != 0) continue;
    const auto code =
        KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(0x4E00 + i), false);
    manager.AddKeyMapping(i + 1, code, lumui::ui::ModifierKeys(lumui::ui::kModCommand),
                          lumui::ui::KeyboardEvent::kActionKeyDown, nullptr, false, false);
  }
  lumcore::UTF8String map;
  manager.SaveKeyMappingsToBuffer(map);
  return map;
}

const lumcore::UTF8String& DefaultMap() {
  static const lumcore::UTF8String sMap = RegisterCommands();
  return sMap;
}

void RunDialog(const lumui::dialogs::DialogDriver& inDriver) {
  lumui::dialogs::SetDialogDriver(inDriver);
  const boost::intrusive_ptr<vek::sharedui::ShortcutDialog> dialog(
      new vek::sharedui::ShortcutDialog(lumcore::UTF16String(), DefaultMap(), false));
  dialog->RunModal();
  lumui::dialogs::SetDialogDriver(nullptr);
}

void OpenOurs(benchmark::State& ioState) {
  DefaultMap();
  for (auto _ : ioState) {
    RunDialog([&](UI_Dialog& ioDialog) {
      lumui::testing::ProcessEvents();
      ioState.PauseTiming();
      ioDialog.EndDialog(UI_Dialog::kCancel);
    });
    ioState.ResumeTiming();
  }
}

void OpenPeer(benchmark::State& ioState) {
  QtRowsDialogPeer peer(kCategories, kCommands);
  for (auto _ : ioState) {
    peer.Open();
    ioState.PauseTiming();
    peer.Close();
    ioState.ResumeTiming();
  }
}

void FilterOurs(benchmark::State& ioState) {
  RunDialog([&](UI_Dialog& ioDialog) {
    const auto backspace = KeyboardCode::CreateFromControlCode(KeyboardCode::kBackspace, false);
    for (auto _ : ioState) {
      for (const char typed : kTyped) {
        lumui::testing::TypeText(ioDialog, ToUTF16(std::string(1, typed)));
        lumui::testing::ProcessEvents();
      }
      for (std::size_t i = 0; i < kTyped.size(); ++i) {
        lumui::testing::TapKey(ioDialog, backspace);
        lumui::testing::ProcessEvents();
      }
    }
    ioDialog.EndDialog(UI_Dialog::kCancel);
  });
  ioState.SetItemsProcessed(ioState.iterations() * static_cast<int>(2 * kTyped.size()));
}

void FilterPeer(benchmark::State& ioState) {
  QtRowsDialogPeer peer(kCategories, kCommands);
  peer.Open();
  for (auto _ : ioState) {
    for (std::size_t i = 1; i <= kTyped.size(); ++i)
      peer.Search(kTyped.substr(0, i));
    for (std::size_t i = kTyped.size(); i-- > 0;) {
      if (peer.Search(kTyped.substr(0, i)) == 0) ioState.SkipWithError("nothing is left");
    }
  }
  ioState.SetItemsProcessed(ioState.iterations() * static_cast<int>(2 * kTyped.size()));
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  const lumcore::filesupport::Dir folder(lumcore::filesupport::Dir::TempDir(),
                                         "vek-bench-shortcuts");
  lumcore::config::SetClientPrefsDir(folder.FullPath());
  const int result = bench::Run("shortcuts", argc, argv,
                                {
                                    {"open the shortcut dialog, painted, 5,000 commands", "ms",
                                     bench::RatioAtMost(1.0), OpenOurs, OpenPeer},
                                    {"filter them by a typed character", "ms",
                                     bench::RatioAtMost(1.0), FilterOurs, FilterPeer},
                                });
  folder.RemoveAll();
  return result;
}
