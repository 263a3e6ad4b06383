// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// What docs/node-archives.md shows of a host.

#include <memory>

#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/UI_ArchivedDialog.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "lumui/utility/ResourceManager.h"

namespace samples {

using lumui::controls::UI_TextButton;
using lumui::ui::ModuleOfAddress;
using lumui::ui::UI_ArchivedDialog;
using lumui::ui::UI_Dialog;
using lumui::ui::UI_NodeAdapterRegistry;
using lumui::ui::UI_NodeAdapterT;
using lumui::utility::ResourceManager;

class Lamp : public UI_TextButton {
 public:
  int GetColour() const { return mColour; }
  void SetColour(int inColour) { mColour = inColour; }

 private:
  int mColour = 0;
};

lumcore::UTF16String U(const char* inText) {
  return lumcore::utility::ToUTF16(inText);
}
void Export();

static int sSomethingOfThisModule = 0;

void AskForExport(lumui::ui::UI_Node& window) {
  const ResourceManager resources(ModuleOfAddress(&sSomethingOfThisModule));
  const boost::intrusive_ptr<UI_ArchivedDialog> dialog(
      new UI_ArchivedDialog(nullptr, resources, U("exportdialog"), U("Export"), &window));
  const auto button = [&dialog](const char* inID) {
    return boost::dynamic_pointer_cast<UI_TextButton>(dialog->GetNodeForID(inID));
  };
  dialog->SetButtons(button("OK"), button("Cancel"));
  if (dialog->RunModal() == UI_Dialog::kOK) Export();
}

void RegisterLamp() {
  auto adapter =
      std::make_unique<UI_NodeAdapterT<Lamp>>("host::Lamp", "lumui::controls::UI_TextButton");
  adapter->Add("colour", &Lamp::GetColour, &Lamp::SetColour);
  UI_NodeAdapterRegistry::Get().Register(std::move(adapter));
}

}  // namespace samples
