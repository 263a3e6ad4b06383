// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_ControlView.h"
#include "lumui/drawbot/Image.h"

namespace lumui::controls {

// A picture in its own size in the middle of the node, made smaller where it does not fit.
class LUMUI_API UI_StaticImage : public UI_ControlView {
 public:
  UI_StaticImage();
  ~UI_StaticImage() override;

  void SetImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage);  // null for none
  const boost::intrusive_ptr<drawbot::ImageInterface>& GetImage() const { return mImage; }
  // The name under which an archive has the picture. Loads nothing.
  void SetImageName(const lumcore::UTF16String& inName) { mImageName = inName; }
  const lumcore::UTF16String& GetImageName() const { return mImageName; }

  void UI_Draw(drawbot::Drawbot* inDrawbot) const override;

 private:
  boost::intrusive_ptr<drawbot::ImageInterface> mImage;
  lumcore::UTF16String mImageName;
};

}  // namespace lumui::controls
