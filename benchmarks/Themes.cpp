// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <memory>
#include <string>
#include <vector>

#include "QtWindowPeer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyframeThemeEditor.h"
#include "lumui/ui/KeyframeThemeParser.h"
#include "lumui/utility/ResourceManager.h"
#include "support/Pair.h"
#include "vek/utility/VekResources.h"

namespace {

using lumcore::utility::ToUTF16;
using lumui::ui::KeyframeThemeEditor;
using lumui::ui::Theme;

void LoadDocuments(KeyframeThemeEditor& ioEditor) {
  for (const char* const name : {"LUMColorThemesV2", "LUMColorThemesV4", "LUMColorThemesV5"}) {
    const auto bytes = vek::utility::GetResourceManager()->GetRequiredBinary(ToUTF16(name), "xml");
    std::auto_ptr<lumcore::xml::AbstractParseHandler> handler(
        new lumui::ui::KeyframeThemeParser(ioEditor));
    lumcore::xml::GetParser(handler)->Parse({bytes.begin(), bytes.end()}, ToUTF16(name));
  }
}

void ChangeBrightness(benchmark::State& ioState) {
  Theme::Initialize(new KeyframeThemeEditor(385, 3, 1));
  const auto theme = Theme::Get();
  LoadDocuments(static_cast<KeyframeThemeEditor&>(*theme));
  Theme::NotifyThemeChanged();
  {
    QtWindowPeer window;
    float brightness = 0.0f;
    for (auto _ : ioState) {
      brightness = 1.0f - brightness;
      Theme::SetBrightness(brightness);
      Theme::NotifyThemeChanged();
      window.Repaint();
    }
  }
  Theme::Terminate();
}

void ChangePalette(benchmark::State& ioState) {
  QtWindowPeer window;
  for (auto _ : ioState) {
    window.ChangePalette();
    window.Repaint();
  }
}

void Load(benchmark::State& ioState) {
  for (auto _ : ioState) {
    const boost::intrusive_ptr<KeyframeThemeEditor> editor(new KeyframeThemeEditor(385, 3, 1));
    LoadDocuments(*editor);
  }
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  return bench::Run("themes", argc, argv,
                    {
                        {"change the brightness of 50 controls, beside a palette of Qt's", "ms",
                         bench::RatioAtMost(2), ChangeBrightness, ChangePalette},
                        {"load the three default documents", "ms", bench::OursAtMost(50), Load, {}},
                    });
}
