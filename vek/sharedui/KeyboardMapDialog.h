// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumui/ui/UI_Dialog.h"
#include "lumui/utility/ksv/KeyboardMap.h"
#include "vek/config/Export.h"
#include "vek/sharedui/KSVDelegate.h"

namespace vek::sharedui {

// A window with a keyboard in which users see and change what each key does. Edits take effect at
// once; there is nothing to cancel, and saving the key map is the host's, when it is told of a
// change or when the window has closed. It may stay open beside the main window (RunModeless).
class VEK_API KeyboardMapDialog : public lumui::ui::UI_Dialog {
 public:
  explicit KeyboardMapDialog(lumui::ui::UI_Node* inParent);
  ~KeyboardMapDialog() override;

  lumui::utility::ksv::KeyboardMap& GetMap() const { return *mMap; }

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  KSVDelegate mDelegate;
  boost::intrusive_ptr<lumui::utility::ksv::KeyboardMap> mMap;
};

}  // namespace vek::sharedui
