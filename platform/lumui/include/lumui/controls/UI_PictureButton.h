// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_Button.h"
#include "lumui/drawbot/Image.h"

namespace lumui::controls {

// A button with a picture in its middle, and a frame while the pointer is over it or it is down.
// Its tool tip is its name for screen readers.
class LUMUI_API UI_PictureButton : public UI_Button {
 public:
  UI_PictureButton();
  ~UI_PictureButton() override;

  void SetImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage);  // null for none
  const boost::intrusive_ptr<drawbot::ImageInterface>& GetImage() const { return mImage; }
  // The name under which an archive has the picture. Loads nothing.
  void SetImageName(const lumcore::UTF16String& inName) { mImageName = inName; }
  const lumcore::UTF16String& GetImageName() const { return mImageName; }

 protected:
  void DoShowState() override;

 private:
  boost::intrusive_ptr<drawbot::ImageInterface> mImage;
  lumcore::UTF16String mImageName;
};

}  // namespace lumui::controls
