// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapPainter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "MapLook.h"
#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::drawbot::ColorRGBA;
using lumui::drawbot::FontP;
using lumui::drawbot::Path;
using lumui::drawbot::Pen;
using maplook::kLeastWidth;
using maplook::kLevels;
using maplook::kMostWidth;
using maplook::kPadding;
using maplook::kRadius;
using maplook::kRing;
using maplook::kRootPadding;
using maplook::kTextSizes;
using maplook::LevelOf;

MapPainter::MapPainter() {
  const auto* supplier = lumui::drawbot::GetDefaultSupplier();
  for (std::size_t level = 0; level < kLevels; ++level) {
    mFonts.push_back(supplier->NewFont(
        nullptr, kTextSizes[level],
        level < 2 ? lumui::drawbot::FontStyle::kBold : lumui::drawbot::FontStyle::kPlain));
  }
}

const FontP& MapPainter::FontOf(std::size_t inDepth) const {
  return mFonts[LevelOf(inDepth)];
}

float MapPainter::MeasureBox(const UTF16String& inText, std::size_t inDepth) const {
  const float padding = inDepth == 0 ? kRootPadding : kPadding;
  // Far more than a box shows.
  constexpr std::size_t kMostMeasured = 1000;
  // A part of a unit that is missing would put an ellipsis in the place of a letter.
  const float width =
      std::ceil(FontOf(inDepth)->MeasureWidthOnce(inText.substr(0, kMostMeasured))) + 2 * padding;
  return std::clamp(width, kLeastWidth, kMostWidth);
}

void MapPainter::Draw(Drawbot& inDrawbot, const MapLayout& inLayout, const Source& inSource,
                      const Rect& inDamage, float inScale, const Point& inOrigin) const {
  const MapFrame frame(inLayout, &inSource, inDamage, Point(inScale, inScale), inOrigin,
                       inDrawbot.GetScale());
  DrawSpecks(inDrawbot, frame);
  DrawBends(inDrawbot, frame);
  DrawBoxes(inDrawbot, frame);
  if (frame.hasTexts) DrawTexts(inDrawbot, frame);
}

void MapPainter::DrawFromFar(Drawbot& inDrawbot, const MapLayout& inLayout, const Rect& inDamage,
                             const Point& inScale) const {
  DrawSpecks(inDrawbot,
             MapFrame(inLayout, nullptr, inDamage, inScale, Point(), inDrawbot.GetScale()));
}

void MapPainter::DrawSpecks(Drawbot& inDrawbot, const MapFrame& inFrame) const {
  for (std::size_t level = kLevels; level-- > 0;) {
    const ColorRGBA color = maplook::LineColorOf(level);
    for (const Rect& line : inFrame.lines[level])
      inDrawbot.FillRect(line, color);
  }
  for (std::size_t level = 0; level < kLevels; ++level) {
    const ColorRGBA fill = maplook::SpeckColorOf(level);
    for (const Rect& speck : inFrame.specks[level])
      inDrawbot.FillRect(speck, fill);
  }
}

// The ends lie on the same pixels as the lines that go on from them.
void MapPainter::DrawBends(Drawbot& inDrawbot, const MapFrame& inFrame) const {
  std::array<ColorRGBA, kLevels> colors;
  for (std::size_t level = 0; level < kLevels; ++level)
    colors[level] = maplook::LineColorOf(level);
  const float half = inFrame.lineWidth / 2;
  const float width =
      std::max(1.0f, std::round(inFrame.lineWidth * inFrame.scale.x * inFrame.ratio));
  for (const auto& curve : inFrame.curves) {
    const float left = inFrame.PixelX(curve.start.x);
    const float start = inFrame.PixelY(curve.start.y - half);
    const float end = inFrame.PixelY(curve.end.y - half);
    mStamps.DrawCurve(inDrawbot,
                      Rect(left, std::min(start, end), inFrame.PixelX(curve.end.x) - left,
                           std::abs(end - start) + width),
                      width, start < end, colors[curve.level]);
  }
  for (const auto& bend : inFrame.bends) {
    const bool isUprightAtLeft = bend.start.x < bend.end.x;
    const bool isLevelAtTop = bend.end.y < bend.start.y;
    const float upright = inFrame.PixelX(bend.start.x - half);
    const float level = inFrame.PixelY(bend.end.y - half);
    const float endX = inFrame.PixelX(bend.end.x);
    const float endY = inFrame.PixelY(bend.start.y);
    const float left = isUprightAtLeft ? upright : endX;
    const float right = isUprightAtLeft ? endX : upright + width;
    const float top = isLevelAtTop ? level : endY;
    const float bottom = isLevelAtTop ? endY : level + width;
    mStamps.DrawBend(
        inDrawbot,
        {Rect(left, top, right - left, bottom - top), width, isUprightAtLeft, isLevelAtTop},
        colors[bend.level]);
  }
}

void MapPainter::DrawBoxes(Drawbot& inDrawbot, const MapFrame& inFrame) const {
  std::array<ColorRGBA, kLevels> fills;
  for (std::size_t level = 0; level < kLevels; ++level)
    fills[level] = maplook::FillOf(level);
  const float pixels = inFrame.scale.y * inFrame.ratio;
  for (const Index index : inFrame.boxes) {
    const Node& node = inFrame.layout.GetNode(index);
    const Rect box = inFrame.layout.GetBox(index);
    const MapMark mark = inFrame.source->mark(node);
    const float radius = (node.depth == 0 ? box.height / 2 : kRadius) * pixels;
    const Rect place = inFrame.Pixels(box);
    mStamps.DrawBox(inDrawbot, place, radius,
                    mark == MapMark::kSelected       ? palette::Selection()
                    : mark == MapMark::kIdleSelected ? palette::IdleSelection()
                                                     : fills[LevelOf(node.depth)]);
    DrawMark(inDrawbot, place, radius, mark, inFrame);
  }
}

// Without the keyboard a selection is pale: it is the ring that is seen.
void MapPainter::DrawMark(Drawbot& inDrawbot, const Rect& inPixels, float inRadius, MapMark inMark,
                          const MapFrame& inFrame) const {
  if (inMark != MapMark::kDropTarget && inMark != MapMark::kIdleSelected) return;
  const float width = kRing * inFrame.scale.x;
  const Rect box = inFrame.FromPixels(inPixels);
  Path ring;
  ring.AddRoundedRect({box.x - width / 2, box.y - width / 2, box.width + width, box.height + width},
                      inRadius / inFrame.ratio + width / 2);
  inDrawbot.StrokePath(
      ring, Pen(inMark == MapMark::kDropTarget ? palette::DropTarget() : palette::Accent(), width));
}

void MapPainter::DrawTexts(Drawbot& inDrawbot, const MapFrame& inFrame) const {
  const lumui::drawbot::StDrawbotState state(inDrawbot);
  inDrawbot.Translate(inFrame.origin.x, inFrame.origin.y);
  inDrawbot.Scale(inFrame.scale.x, inFrame.scale.y);
  for (const Index index : inFrame.boxes) {
    const Node& node = inFrame.layout.GetNode(index);
    const UTF16String& text = inFrame.source->text(node);
    if (text.empty()) continue;
    const bool isOnAccent = node.depth == 0 || inFrame.source->mark(node) == MapMark::kSelected;
    const FontP& font = FontOf(node.depth);
    const float padding = node.depth == 0 ? kRootPadding : kPadding;
    const float height = font->GetAscent() + font->GetDescent();
    const float baseline = std::round(node.middle - height / 2 + font->GetAscent());
    inDrawbot.DrawString(text, font, isOnAccent ? palette::SelectionInk() : palette::Ink(),
                         {node.left + padding, baseline}, lumui::drawbot::TextTruncation::kEnd,
                         node.width - 2 * padding);
  }
}

void MapPainter::DrawGhost(Drawbot& inDrawbot, const UTF16String& inText, std::size_t inDepth,
                           const Rect& inBox, float inScale) const {
  constexpr float kOpacity = 0.75f;
  const lumui::drawbot::StDrawbotState state(inDrawbot);
  inDrawbot.Translate(inBox.x, inBox.y);
  inDrawbot.Scale(inScale, inScale);
  const Rect box(0, 0, inBox.width / inScale, inBox.height / inScale);
  Path path;
  path.AddRoundedRect(box, kRadius);
  inDrawbot.FillPath(path, palette::Selection().WithAlpha(kOpacity));
  inDrawbot.DrawStringInRect(inText, FontOf(inDepth), palette::SelectionInk(),
                             {kPadding, 0, box.width - 2 * kPadding, box.height});
}

}  // namespace outliner
