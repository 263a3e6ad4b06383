// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/DrawTrianglePicture.h"

#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"

namespace lumui::controls {

using drawbot::Path;

namespace {

constexpr float kLength = 10.0f;
constexpr float kDepth = 6.0f;
constexpr drawbot::ColorRGBA kPlainColor(0.5f, 0.5f, 0.5f);

drawbot::ColorRGBA GetThemeColor() {
  const auto theme = ui::Theme::Get();
  return theme ? theme->GetColor(ui::themev2::kColor_TreeTwisty) : kPlainColor;
}

}  // namespace

void DrawTrianglePicture::Draw(drawbot::Drawbot& inDrawbot, const Path::Rect& inRect,
                               const Path::Point& inOffset) const {
  const float width = (mPointsDown ? kLength : kDepth) * mScale.x;
  const float height = (mPointsDown ? kDepth : kLength) * mScale.y;
  const float left = inRect.x + inOffset.x;
  const float top = inRect.y + inOffset.y + (inRect.height - height) / 2;
  Path path;
  path.MoveTo(Path::Point(left, top));
  if (mPointsDown) {
    path.LineTo(Path::Point(left + width, top));
    path.LineTo(Path::Point(left + width / 2, top + height));
  } else {
    path.LineTo(Path::Point(left + width, top + height / 2));
    path.LineTo(Path::Point(left, top + height));
  }
  path.Close();
  inDrawbot.FillPath(path, drawbot::Brush(mColor ? *mColor : GetThemeColor()));
}

}  // namespace lumui::controls
