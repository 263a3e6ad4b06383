// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/QtDrawbot.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPen>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "drawbot/QtConvert.h"
#include "drawbot/QtFont.h"
#include "drawbot/QtImage.h"
#include "lumcore/debug/Contract.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace lumui::drawbot {

namespace {

// Pixels: what rounding of scales and places in a float leaves at screen coordinates.
constexpr double kPixelTolerance = 0.01;
// Pixels. Up to this width the painter strokes side by side with flat ends, which leaves corners
// open.
constexpr float kWidestThinPen = 1;

QBrush MakeBrush(const Brush& inBrush) {
  if (!inBrush.IsGradient()) return QBrush(ToQt(inBrush.GetStartColor()));
  QLinearGradient gradient(ToQt(inBrush.GetStart()), ToQt(inBrush.GetEnd()));
  gradient.setColorAt(0, ToQt(inBrush.GetStartColor()));
  gradient.setColorAt(1, ToQt(inBrush.GetEndColor()));
  return QBrush(gradient);
}

QPen MakePen(const Pen& inPen) {
  QPen pen(QBrush(ToQt(inPen.color)), inPen.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  if (inPen.dashes.empty()) return pen;
  // The painter counts dashes in widths of the pen, and wants pairs of dash and gap.
  QList<qreal> pattern;
  const std::size_t runs = inPen.dashes.size() % 2 + 1;
  for (std::size_t i = 0; i < runs * inPen.dashes.size(); ++i) {
    pattern.append(std::max(0.0f, inPen.dashes[i % inPen.dashes.size()]) / inPen.width);
  }
  pen.setDashPattern(pattern);
  return pen;
}

// A width of 0 means the thinnest line to the painter; here it means none.
bool IsVisible(const Pen& inPen) {
  return inPen.width > 0 && inPen.color.alpha > 0;
}

constexpr QPainter::RenderHints kSmooth =
    QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform;

bool IsOnPixels(const QRectF& inDevice) {
  const auto isWhole = [](double inEdge) {
    return std::abs(inEdge - std::round(inEdge)) < kPixelTolerance;
  };
  return isWhole(inDevice.left()) && isWhole(inDevice.top()) && isWhole(inDevice.right()) &&
         isWhole(inDevice.bottom());
}

bool IsPixelForPixel(const QRectF& inDevice, const QSize& inPixels) {
  return std::abs(inDevice.width() - inPixels.width()) < kPixelTolerance &&
         std::abs(inDevice.height() - inPixels.height()) < kPixelTolerance;
}

}  // namespace

QtDrawbot::QtDrawbot(QPainter& inPainter, const lumcore::geom::RectT<float>& inClipBounds)
    : mPainter(inPainter) {
  mPainter.save();
  mPainter.setRenderHints(kSmooth);
  mPainter.setBrush(Qt::NoBrush);
  mStates.push_back({QTransform(), inClipBounds, true});
  mPainter.setClipRect(ToQt(inClipBounds), Qt::IntersectClip);
  if (inClipBounds.IsEmpty()) mStates.back().clip = Rect();
}

QtDrawbot::~QtDrawbot() {
  for (std::size_t i = 0; i < mStates.size(); ++i)
    mPainter.restore();
}

void QtDrawbot::SetSmooth(bool inSmooth) {
  bool& isSmooth = mStates.back().isSmooth;
  if (isSmooth == inSmooth) return;
  mPainter.setRenderHints(kSmooth, inSmooth);
  isSmooth = inSmooth;
}

void QtDrawbot::PushState() {
  mPainter.save();
  mStates.push_back(mStates.back());
}

void QtDrawbot::PopState() {
  LUM_INPUT_CONTRACT(mStates.size() > 1);
  mStates.pop_back();
  mPainter.restore();
}

void QtDrawbot::Translate(float inX, float inY) {
  mPainter.translate(inX, inY);
  mStates.back().transform.translate(inX, inY);
}

void QtDrawbot::Scale(float inX, float inY) {
  LUM_INPUT_CONTRACT(inX > 0 && inY > 0);
  mPainter.scale(inX, inY);
  mStates.back().transform.scale(inX, inY);
}

float QtDrawbot::GetScale() const {
  return static_cast<float>(std::abs(mPainter.deviceTransform().m22()));
}

void QtDrawbot::ClipRect(const Rect& inRect) {
  NarrowClip(inRect);
  // The painter takes a rectangle of negative size for its mirror image.
  mPainter.setClipRect(inRect.IsEmpty() ? QRectF() : ToQt(inRect), Qt::IntersectClip);
}

void QtDrawbot::ClipPath(const Path& inPath) {
  NarrowClip(inPath.GetBounds());
  SetSmooth(true);
  mPainter.setClipPath(ToQt(inPath), Qt::IntersectClip);
}

void QtDrawbot::NarrowClip(const Rect& inLocalBounds) {
  State& state = mStates.back();
  const Rect outer =
      inLocalBounds.IsEmpty() ? Rect() : FromQt(state.transform.mapRect(ToQt(inLocalBounds)));
  state.clip = state.clip.Intersection(outer);
}

Drawbot::Rect QtDrawbot::GetClipBounds() const {
  const State& state = mStates.back();
  if (state.clip.IsEmpty()) return Rect();
  return FromQt(state.transform.inverted().mapRect(ToQt(state.clip)));
}

void QtDrawbot::FillRect(const Rect& inRect, const Brush& inBrush) {
  if (inRect.IsEmpty()) return;
  const QRectF rect = ToQt(inRect);
  // Where a unit has parts of pixels a float misses whole pixels by a little, which the painter
  // would blend.
  SetSmooth(!IsOnPixels(mPainter.deviceTransform().mapRect(rect)));
  // A colour alone is filled with faster than a brush of it.
  if (inBrush.IsGradient()) {
    mPainter.fillRect(rect, MakeBrush(inBrush));
  } else {
    mPainter.fillRect(rect, ToQt(inBrush.GetStartColor()));
  }
}

void QtDrawbot::StrokeRect(const Rect& inRect, const Pen& inPen) {
  if (inRect.IsEmpty() || !IsVisible(inPen)) return;
  if (!inPen.dashes.empty()) {
    Path path;
    path.AddRect(inRect);
    return StrokePath(path, inPen);
  }
  // The painter strokes thin rectangles as four lines with flat ends, which leaves the corners
  // open; the ring between two rectangles has them.
  const qreal half = 0.5 * inPen.width;
  const QRectF rect = ToQt(inRect);
  QPainterPath ring;
  ring.addRect(rect.adjusted(-half, -half, half, half));
  const QRectF hole = rect.adjusted(half, half, -half, -half);
  if (hole.width() > 0 && hole.height() > 0) ring.addRect(hole);
  SetSmooth(true);
  mPainter.fillPath(ring, ToQt(inPen.color));
}

void QtDrawbot::StrokeLine(const Point& inStart, const Point& inEnd, const Pen& inPen) {
  if (!IsVisible(inPen)) return;
  SetSmooth(true);
  mPainter.setPen(MakePen(inPen));
  mPainter.drawLine(ToQt(inStart), ToQt(inEnd));
}

void QtDrawbot::FillPath(const Path& inPath, const Brush& inBrush) {
  if (inPath.IsEmpty()) return;
  SetSmooth(true);
  mPainter.fillPath(ToQt(inPath), MakeBrush(inBrush));
}

void QtDrawbot::StrokePath(const Path& inPath, const Pen& inPen) {
  if (inPath.IsEmpty() || !IsVisible(inPen)) return;
  SetSmooth(true);
  const QPen pen = MakePen(inPen);
  const bool isThin = inPen.width * GetScale() <= kWidestThinPen;
  if (!isThin) return mPainter.strokePath(ToQt(inPath), pen);
  QPainterPathStroker stroker(pen);
  mPainter.fillPath(stroker.createStroke(ToQt(inPath)), pen.brush());
}

void QtDrawbot::DrawString(const lumcore::UTF16String& inText, const FontP& inFont,
                           const ColorRGBA& inColor, const Point& inOrigin,
                           TextTruncation inTruncation, float inMaxWidth) {
  const QtFont& font = AsQtFont(inFont);
  SetSmooth(true);
  mPainter.setPen(ToQt(inColor));
  font.Draw(mPainter, font.Truncate(inText, inTruncation, inMaxWidth), ToQt(inOrigin));
}

lumcore::UTF16String QtDrawbot::TruncateString(const lumcore::UTF16String& inText,
                                               const FontP& inFont, TextTruncation inTruncation,
                                               float inMaxWidth) const {
  return AsQtFont(inFont).Truncate(inText, inTruncation, inMaxWidth);
}

void QtDrawbot::DrawImage(const ImageInterface& inImage, const Rect& inRect, float inOpacity) {
  DrawRaster(inImage, inRect, nullptr, inOpacity);
}

void QtDrawbot::DrawImageTinted(const ImageInterface& inImage, const Rect& inRect,
                                const ColorRGBA& inTint, float inOpacity) {
  DrawRaster(inImage, inRect, &inTint, inOpacity);
}

void QtDrawbot::DrawRaster(const ImageInterface& inImage, const Rect& inRect,
                           const ColorRGBA* inTint, float inOpacity) {
  const QtImage& image = AsQtImage(inImage);
  if (inRect.IsEmpty() || !(inOpacity > 0)) return;
  const QTransform toDevice = mPainter.deviceTransform();
  const QRectF device = toDevice.mapRect(ToQt(inRect));
  const QSize pixels(std::max(1, qCeil(device.width() - kPixelTolerance)),
                     std::max(1, qCeil(device.height() - kPixelTolerance)));
  const float scale = static_cast<float>(
      std::max(device.width() / image.GetWidth(), device.height() / image.GetHeight()));
  QImage raster = image.GetRaster(scale, pixels);
  if (inTint != nullptr) {
    QPainter tint(&raster);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(raster.rect(), ToQt(*inTint));
  }
  // Each change of the painter's state costs about as much as a small picture.
  const bool isFaint = inOpacity < 1;
  const qreal opacity = mPainter.opacity();
  if (isFaint) mPainter.setOpacity(opacity * inOpacity);
  if (IsPixelForPixel(device, raster.size())) {
    DrawPixels(raster, device, toDevice);
  } else {
    SetSmooth(true);
    mPainter.drawImage(ToQt(inRect), raster);
  }
  if (isFaint) mPainter.setOpacity(opacity);
}

// On whole pixels, since between them it blurs. There is nothing to smooth then, and with the hints
// the painter would take its slow road all the same.
void QtDrawbot::DrawPixels(const QImage& inRaster, const QRectF& inDevice,
                           const QTransform& inToDevice) {
  const QPointF origin(std::round(inDevice.x()), std::round(inDevice.y()));
  SetSmooth(false);
  if (inToDevice.type() <= QTransform::TxTranslate) {
    mPainter.drawImage(origin - QPointF(inToDevice.dx(), inToDevice.dy()), inRaster);
  } else {
    const QRectF target(origin, QSizeF(inRaster.size()));
    mPainter.drawImage(inToDevice.inverted().mapRect(target), inRaster);
  }
}

SupplierInterface* QtDrawbot::GetSupplier() const {
  return GetDefaultSupplier();
}

}  // namespace lumui::drawbot
