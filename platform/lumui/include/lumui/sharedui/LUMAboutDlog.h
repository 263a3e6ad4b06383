// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/OS_Window.h"

namespace lumui::sharedui {

// A picture of the application that stands on screen while it starts, or until a press: a window
// without a frame in the middle of the screen. Dropping the last reference ends it.
class LUMUI_API LUMAboutDlog : public ui::OS_Window {
 public:
  // Texts are the user's: the name is drawn large, the details below it, line by line.
  LUMAboutDlog(const lumcore::UTF16String& inName, const lumcore::UTF16String& inDetails);
  ~LUMAboutDlog() override;

  void Show(bool inShow);

 protected:
  void UI_Draw(drawbot::Drawbot* ioDrawbot) const override;

 private:
  lumcore::UTF16String mName;
  lumcore::UTF16String mDetails;
};

}  // namespace lumui::sharedui
