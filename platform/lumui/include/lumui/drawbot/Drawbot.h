// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Brush.h"
#include "lumui/drawbot/Font.h"
#include "lumui/drawbot/Image.h"
#include "lumui/drawbot/Path.h"
#include "lumui/drawbot/Pen.h"

namespace lumui::drawbot {

class SupplierInterface;

enum class TextAlignment : unsigned char { kLeft, kCenter, kRight };
// What becomes of a text that is wider than its place: it is drawn in full, or shortened with an
// ellipsis so that it fits.
enum class TextTruncation : unsigned char { kNone, kEnd, kMiddle };

// Draws on a window's node, a picture or whatever stands behind it. Whoever paints gets a reference
// for the time of one paint and does not keep it. Coordinates are units of the node: y grows
// downward, and the transform in force (translations and scales of the state) applies to all of
// them, pen widths and texts included. A colour's alpha blends with what is there. Nothing is drawn
// outside the clip, and a clip can only be narrowed; the state stack brings a wider one back.
class LUMUI_API Drawbot {
 public:
  using Point = lumcore::geom::PointT<float>;
  using Rect = lumcore::geom::RectT<float>;

  virtual ~Drawbot();

  // Transform and clip, kept on a stack. Prefer StDrawbotState. A pop without its push fails the
  // contract.
  virtual void PushState() = 0;
  virtual void PopState() = 0;
  virtual void Translate(float inX, float inY) = 0;
  virtual void Scale(float inX, float inY) = 0;
  // Pixels in a unit, vertically: the surface's scale times the scales in force.
  virtual float GetScale() const = 0;

  // Each narrows the clip to what it has in common with the argument.
  virtual void ClipRect(const Rect& inRect) = 0;
  virtual void ClipPath(const Path& inPath) = 0;
  // A rectangle in current coordinates around all that can still be drawn to; (0, 0, 0, 0) when
  // that is nothing.
  virtual Rect GetClipBounds() const = 0;

  // Empty rectangles and paths draw nothing.
  virtual void FillRect(const Rect& inRect, const Brush& inBrush) = 0;
  virtual void StrokeRect(const Rect& inRect, const Pen& inPen) = 0;
  virtual void StrokeLine(const Point& inStart, const Point& inEnd, const Pen& inPen) = 0;
  virtual void FillPath(const Path& inPath, const Brush& inBrush) = 0;
  virtual void StrokePath(const Path& inPath, const Pen& inPen) = 0;

  // inOrigin is the left end of the baseline. inMaxWidth matters only with a truncation. The font
  // must not be empty.
  virtual void DrawString(const lumcore::UTF16String& inText, const FontP& inFont,
                          const ColorRGBA& inColor, const Point& inOrigin,
                          TextTruncation inTruncation = TextTruncation::kNone,
                          float inMaxWidth = 0.0f) = 0;
  // In inRect, centred in height by ascent and descent. Truncation is to the rectangle's width;
  // without one the text may stick out: it is not clipped.
  void DrawStringInRect(const lumcore::UTF16String& inText, const FontP& inFont,
                        const ColorRGBA& inColor, const Rect& inRect,
                        TextAlignment inAlignment = TextAlignment::kLeft,
                        TextTruncation inTruncation = TextTruncation::kEnd);
  // The text as a truncation draws it. Empty when not even the ellipsis fits.
  virtual lumcore::UTF16String TruncateString(const lumcore::UTF16String& inText,
                                              const FontP& inFont, TextTruncation inTruncation,
                                              float inMaxWidth) const = 0;

  // The opacity is from 0 to 1; ImageInterface::kDisabledOpacity is for what is disabled.
  virtual void DrawImage(const ImageInterface& inImage, const Rect& inRect,
                         float inOpacity = 1.0f) = 0;
  // In its own size, with its top left at inOrigin.
  void DrawImage(const ImageInterface& inImage, const Point& inOrigin, float inOpacity = 1.0f);
  // Only the image's shape counts: its alpha is filled with the colour.
  virtual void DrawImageTinted(const ImageInterface& inImage, const Rect& inRect,
                               const ColorRGBA& inTint, float inOpacity = 1.0f) = 0;

  virtual SupplierInterface* GetSupplier() const = 0;
};

// Pushes the state and pops it at the end of the scope, also when the code between throws.
class StDrawbotState {
 public:
  explicit StDrawbotState(Drawbot& inDrawbot) : mDrawbot(inDrawbot) { mDrawbot.PushState(); }
  StDrawbotState(Drawbot& inDrawbot, const Drawbot::Rect& inClip) : StDrawbotState(inDrawbot) {
    mDrawbot.ClipRect(inClip);
  }
  ~StDrawbotState() { mDrawbot.PopState(); }
  StDrawbotState(const StDrawbotState&) = delete;
  StDrawbotState& operator=(const StDrawbotState&) = delete;

 private:
  Drawbot& mDrawbot;
};

}  // namespace lumui::drawbot
