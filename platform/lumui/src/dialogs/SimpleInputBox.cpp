// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/SimpleInputBox.h"

#include <boost/intrusive_ptr.hpp>

#include "lumcore/config/Localizer.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_Dialog.h"

namespace lumui::dialogs {

namespace {

using Rect = lumcore::geom::RectT<float>;

constexpr float kWidth = 360;
constexpr float kHeight = 108;

template <class Control>
boost::intrusive_ptr<Control> AddControl(ui::UI_Dialog& ioDialog, const char* inID,
                                         const Rect& inRect, const ui::LayoutBindings& inBindings) {
  const boost::intrusive_ptr<Control> control(new Control);
  control->UI_SetNodeID(inID);
  control->UI_SetLocalRectF(inRect);
  control->SetBindings(inBindings);
  ioDialog.GetContent().UI_AddChild(control);
  return control;
}

lumcore::UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

}  // namespace

bool SimpleInputBox(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inPrompt,
                    lumcore::UTF16String& ioText, ui::OS_Window* inOwner) {
  const boost::intrusive_ptr<ui::UI_Dialog> dialog(new ui::UI_Dialog(inTitle, inOwner));
  dialog->SetMinimumSize(kWidth, kHeight);
  dialog->SetSize(kWidth, kHeight);
  ui::LayoutBindings wide;
  wide.rightToParentRight = true;
  ui::LayoutBindings corner;
  corner.leftToParentRight = corner.rightToParentRight = true;
  corner.topToParentBottom = corner.bottomToParentBottom = true;
  AddControl<controls::UI_StaticText>(*dialog, "PromptID", Rect(12, 10, kWidth - 24, 20), wide)
      ->SetText(inPrompt);
  const auto input =
      AddControl<controls::UI_TextEdit>(*dialog, "InputID", Rect(12, 32, kWidth - 24, 24), wide);
  input->SetText(ioText);
  input->SelectAll();
  const auto ok = AddControl<controls::UI_TextButton>(
      *dialog, "OkButtonID", Rect(kWidth - 188, kHeight - 36, 84, 24), corner);
  ok->SetText(Localized("$$$/lumui/dialogs/Button/OK=OK"));
  const auto cancel = AddControl<controls::UI_TextButton>(
      *dialog, "CancelButtonID", Rect(kWidth - 96, kHeight - 36, 84, 24), corner);
  cancel->SetText(Localized("$$$/lumui/dialogs/Button/Cancel=Cancel"));
  dialog->SetButtons(ok, cancel);
  if (dialog->RunModal() != ui::UI_Dialog::kOK) return false;
  ioText = input->GetText();
  return true;
}

}  // namespace lumui::dialogs
