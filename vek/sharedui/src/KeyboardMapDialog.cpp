// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/KeyboardMapDialog.h"

#include "lumcore/config/Localizer.h"

namespace vek::sharedui {

using lumui::utility::ksv::KeyboardMap;

KeyboardMapDialog::KeyboardMapDialog(lumui::ui::UI_Node* inParent)
    : UI_Dialog(lumcore::config::Localizer::Get()->GetLocalizedString(
                    "$$$/vek/sharedui/KeyboardMap/Title=Keyboard Map"),
                inParent),
      mDelegate(this),
      mMap(new KeyboardMap(mDelegate)) {
  GetContent().UI_AddChild(mMap);
  SetMinimumSize(KeyboardMap::kLeastWidth, KeyboardMap::kLeastHeight);
  SetSize(KeyboardMap::kGoodWidth, KeyboardMap::kGoodHeight);
}

// The map asks the delegate until it goes, and the window's nodes outlive both.
KeyboardMapDialog::~KeyboardMapDialog() {
  GetContent().UI_RemoveChild(mMap.get());
}

void KeyboardMapDialog::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_Dialog::UI_SizeChanged(inRect);
  if (mMap) mMap->UI_SetLocalRectF(inRect);
}

}  // namespace vek::sharedui
