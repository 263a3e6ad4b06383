// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTransform>
#include <vector>

#include "lumui/drawbot/Drawbot.h"

class QImage;
class QPainter;
class QRectF;

namespace lumui::drawbot {

// The drawbot over a painter, which it borrows: whoever paints begins the painter, makes a drawbot
// on the stack and lets it go before the painter ends. What it changes in the painter (transform,
// clip, pen, hints) is put back by the destructor, also where a push lost its pop. inClipBounds is
// in the painter's coordinates at construction, and is the outermost clip.
class QtDrawbot : public Drawbot {
 public:
  QtDrawbot(QPainter& inPainter, const lumcore::geom::RectT<float>& inClipBounds);
  ~QtDrawbot() override;
  QtDrawbot(const QtDrawbot&) = delete;
  QtDrawbot& operator=(const QtDrawbot&) = delete;

  void PushState() override;
  void PopState() override;
  void Translate(float inX, float inY) override;
  void Scale(float inX, float inY) override;
  float GetScale() const override;

  void ClipRect(const Rect& inRect) override;
  void ClipPath(const Path& inPath) override;
  Rect GetClipBounds() const override;

  void FillRect(const Rect& inRect, const Brush& inBrush) override;
  void StrokeRect(const Rect& inRect, const Pen& inPen) override;
  void StrokeLine(const Point& inStart, const Point& inEnd, const Pen& inPen) override;
  void FillPath(const Path& inPath, const Brush& inBrush) override;
  void StrokePath(const Path& inPath, const Pen& inPen) override;

  void DrawString(const lumcore::UTF16String& inText, const FontP& inFont, const ColorRGBA& inColor,
                  const Point& inOrigin, TextTruncation inTruncation = TextTruncation::kNone,
                  float inMaxWidth = 0.0f) override;
  lumcore::UTF16String TruncateString(const lumcore::UTF16String& inText, const FontP& inFont,
                                      TextTruncation inTruncation, float inMaxWidth) const override;

  using Drawbot::DrawImage;
  void DrawImage(const ImageInterface& inImage, const Rect& inRect,
                 float inOpacity = 1.0f) override;
  void DrawImageTinted(const ImageInterface& inImage, const Rect& inRect, const ColorRGBA& inTint,
                       float inOpacity = 1.0f) override;

  SupplierInterface* GetSupplier() const override;

 private:
  // The transform from current coordinates to those at construction, and the clip in the latter.
  // The clip is a rectangle around what the painter clips to: painters answer that only at a cost.
  struct State {
    QTransform transform;
    Rect clip;
    bool isSmooth = true;
  };

  // Whether edges between pixels are smoothed, which the painter is told when it is another than
  // before: what fills whole pixels is the same without, and much is drawn so.
  void SetSmooth(bool inSmooth);
  void NarrowClip(const Rect& inLocalBounds);
  // inTint may be null.
  void DrawRaster(const ImageInterface& inImage, const Rect& inRect, const ColorRGBA* inTint,
                  float inOpacity);
  void DrawPixels(const QImage& inRaster, const QRectF& inDevice, const QTransform& inToDevice);

  QPainter& mPainter;
  std::vector<State> mStates;  // the current one is the last
};

}  // namespace lumui::drawbot
