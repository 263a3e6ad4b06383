// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_StaticImage.h"

#include <algorithm>

#include "lumui/drawbot/Drawbot.h"

namespace lumui::controls {

UI_StaticImage::UI_StaticImage() {
  UI_SetNodeID("UI_StaticImage");
}

UI_StaticImage::~UI_StaticImage() = default;

void UI_StaticImage::SetImage(const boost::intrusive_ptr<drawbot::ImageInterface>& inImage) {
  mImage = inImage;
  UI_InvalidateAll();
}

void UI_StaticImage::UI_Draw(drawbot::Drawbot* inDrawbot) const {
  if (!mImage || mImage->GetWidth() <= 0 || mImage->GetHeight() <= 0) return;
  const lumcore::geom::RectT<float>& area = UI_GetLocalRectF();
  const float scale =
      std::min({1.0f, area.width / mImage->GetWidth(), area.height / mImage->GetHeight()});
  const float width = mImage->GetWidth() * scale;
  const float height = mImage->GetHeight() * scale;
  inDrawbot->DrawImage(
      *mImage,
      drawbot::Drawbot::Rect((area.width - width) / 2, (area.height - height) / 2, width, height),
      UI_IsDisabled() ? drawbot::ImageInterface::kDisabledOpacity : 1.0f);
}

}  // namespace lumui::controls
