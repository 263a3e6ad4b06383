// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Image.h"
#include "lumui/ui/UI_Dialog.h"

namespace lumui::sharedui {

// A picture with the name of the application, its version and some lines, in a window without a
// frame. As a splash screen it is shown with Show and ends when the last reference is dropped; as
// an about box it runs as the dialog that it is, and a click, Enter or Escape ends it.
class LUMUI_API LUMAboutDlog : public ui::UI_Dialog {
 public:
  struct Content {
    boost::intrusive_ptr<drawbot::ImageInterface> picture;  // above the texts; null for none
    lumcore::UTF16String name;
    lumcore::UTF16String version;
    lumcore::UTF16String text;  // lines end with '\n'
  };

  explicit LUMAboutDlog(const Content& inContent, ui::UI_Node* inParent = nullptr);
  // Texts alone.
  LUMAboutDlog(const lumcore::UTF16String& inName, const lumcore::UTF16String& inDetails);
  ~LUMAboutDlog() override;

  // As a splash screen, in front of all else. What it shows is on the screen when this returns, see
  // UI_PaintNow: the start of an application has no loop yet.
  void Show(bool inShow);

  void UI_Draw(drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(ui::UI_Node* inNode, const ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(ui::UI_Node* inNode, const ui::KeyboardEvent& inEvent) override;

 private:
  struct Line {
    lumcore::UTF16String text;
    float fontSize;
    float top;
  };

  Content mContent;
  std::vector<Line> mLines;
};

}  // namespace lumui::sharedui
