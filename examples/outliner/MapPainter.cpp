// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapPainter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::drawbot::ColorRGBA;
using lumui::drawbot::Drawbot;
using lumui::drawbot::FontP;
using lumui::drawbot::Path;
using lumui::drawbot::Pen;

namespace {

using Node = MapLayout::Node;
using Point = MapLayout::Point;
using Rect = MapLayout::Rect;

constexpr std::size_t kLevels = 4;  // that look different: the root and three more
constexpr float kTextSizes[kLevels] = {17, 14, 13, 13};
constexpr float kPadding = 12;  // beside the text
constexpr float kRootPadding = 20;
constexpr float kLeastWidth = 44;
constexpr float kMostWidth = 340;
constexpr float kRadius = 8;
constexpr float kRing = 2;  // the width of a mark around a box
constexpr float kLineWidth = 2;
constexpr float kLeastLinePixels = 0.75f;
// A line turns from level to upright and back on quarters of a circle of this radius.
constexpr float kBend = MapLayout::kColumnGap / 2;
constexpr float kRound = 0.5523f;  // where the handles of a curve make it a quarter of a circle
// Pixels in the height of a box, below which corners and bends cannot be seen.
constexpr float kLeastRoundBox = 6;
constexpr float kLeastBranchPixels = 1;

std::size_t LevelOf(std::size_t inDepth) {
  return std::min(inDepth, kLevels - 1);
}

ColorRGBA Mixed(const ColorRGBA& inGround, const ColorRGBA& inColor, float inShare) {
  const auto mix = [inShare](float inA, float inB) { return inA + (inB - inA) * inShare; };
  return ColorRGBA(mix(inGround.red, inColor.red), mix(inGround.green, inColor.green),
                   mix(inGround.blue, inColor.blue));
}

ColorRGBA FillOf(std::size_t inLevel) {
  switch (inLevel) {
    case 0:
      return palette::Selection();
    case 1:
      return Mixed(palette::Paper(), palette::Accent(), 0.3f);
    case 2:
      return Mixed(palette::Paper(), palette::Accent(), 0.14f);
    default:
      return Mixed(palette::Paper(), palette::Ink(), 0.07f);
  }
}

// By the level that the line comes from.
ColorRGBA LineColorOf(std::size_t inLevel) {
  constexpr float kShares[kLevels] = {0.75f, 0.5f, 0.32f, 0.32f};
  return Mixed(palette::Paper(), palette::Accent(), kShares[inLevel]);
}

// The quarter of a ring between two circles, which is what a pen of that width draws along the
// quarter of a circle, without the work of finding that out.
Path RingOf(const Point& inUpright, const Point& inLevel, float inWidth) {
  const Point centre(inLevel.x, inUpright.y);
  const Point out(std::copysign(inWidth / 2, inUpright.x - centre.x),
                  std::copysign(inWidth / 2, inLevel.y - centre.y));
  Path path;
  for (const float side : {1.0f, -1.0f}) {
    const Point upright(inUpright.x + side * out.x, inUpright.y);
    const Point level(inLevel.x, inLevel.y + side * out.y);
    const Point uprightHandle(upright.x, upright.y + kRound * (level.y - centre.y));
    const Point levelHandle(level.x + kRound * (upright.x - centre.x), level.y);
    if (side > 0) {
      path.MoveTo(upright);
      path.BezierTo(uprightHandle, levelHandle, level);
    } else {
      path.LineTo(level);
      path.BezierTo(levelHandle, uprightHandle, upright);
    }
  }
  path.Close();
  return path;
}

}  // namespace

// One paint: what is to be drawn, sorted by how it looks. Each piece is drawn by itself: a path of
// all of them would cost the rasteriser more than it saves.
struct MapPainter::Frame {
  // Lines that bend, in units of the map: a curve is level at both ends, a bend is the quarter of a
  // circle from where it is upright to where it is level.
  struct Curve {
    std::size_t level;
    Point start, end;
  };
  using Bend = Curve;

  Frame(Drawbot& inDrawbot, const MapLayout& inLayout, const Source* inSource, const Rect& inDamage,
        const Point& inScale, const Point& inOrigin)
      : drawbot(inDrawbot),
        layout(inLayout),
        source(inSource),
        damage(inDamage),
        scale(inScale),
        origin(inOrigin),
        ratio(inDrawbot.GetScale()),
        hasBends(inSource && inScale.y * ratio * MapLayout::kBoxHeight >= kLeastRoundBox),
        hasTexts(inSource && inScale.y * kTextSizes[kLevels - 1] >= kLeastTextSize),
        lineWidth(std::max(kLineWidth, kLeastLinePixels / (inScale.x * ratio))) {}

  // In units of the view, with edges on whole pixels: what is this small would blur between them.
  Rect Snapped(const Rect& inRect) const {
    const auto snap = [this](float inLocal) { return std::round(inLocal * ratio) / ratio; };
    const float left = snap(inRect.x * scale.x + origin.x);
    const float top = snap(inRect.y * scale.y + origin.y);
    const float least = 1 / ratio;
    return Rect(left, top, std::max(least, snap(inRect.Right() * scale.x + origin.x) - left),
                std::max(least, snap(inRect.Bottom() * scale.y + origin.y) - top));
  }
  void AddSpeck(std::size_t inLevel, const Rect& inRect) {
    specks[inLevel].push_back(Snapped(inRect));
  }
  // An upright or level line between two points.
  void AddLine(std::size_t inLevel, const Point& inStart, const Point& inEnd) {
    const float half = lineWidth / 2;
    const bool isUpright = inStart.x == inEnd.x;
    const auto [left, right] = std::minmax(inStart.x, inEnd.x);
    const auto [top, bottom] = std::minmax(inStart.y, inEnd.y);
    const Rect line = isUpright ? Rect(left - half, top, lineWidth, bottom - top)
                                : Rect(left, top - half, right - left, lineWidth);
    if (line.Intersects(damage)) lines[inLevel].push_back(line);
  }
  bool IsDamaged(const Curve& inCurve) const {
    const auto [left, right] = std::minmax(inCurve.start.x, inCurve.end.x);
    const auto [top, bottom] = std::minmax(inCurve.start.y, inCurve.end.y);
    return Rect(left - lineWidth, top - lineWidth, right - left + 2 * lineWidth,
                bottom - top + 2 * lineWidth)
        .Intersects(damage);
  }
  void AddCurve(const Curve& inCurve) {
    if (IsDamaged(inCurve)) curves.push_back(inCurve);
  }
  void AddBend(const Bend& inBend) {
    if (IsDamaged(inBend)) bends.push_back(inBend);
  }

  Drawbot& drawbot;
  const MapLayout& layout;
  const Source* source;  // null for boxes and branches alone
  const Rect damage;
  const Point scale;
  const Point origin;
  const float ratio;  // pixels in a unit of the view
  const bool hasBends;
  const bool hasTexts;
  const float lineWidth;
  std::vector<Index> waiting{MapLayout::kRoot};
  std::vector<Index> boxes;
  std::array<std::vector<Rect>, kLevels> specks;  // small boxes and branches, in view units
  std::array<std::vector<Rect>, kLevels> lines;
  std::vector<Curve> curves;
  std::vector<Bend> bends;
};

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
  // A part of a unit that is missing would put an ellipsis in the place of a letter.
  const float width = std::ceil(FontOf(inDepth)->MeasureWidthOnce(inText)) + 2 * padding;
  return std::clamp(width, kLeastWidth, kMostWidth);
}

void MapPainter::Draw(Drawbot& inDrawbot, const MapLayout& inLayout, const Source& inSource,
                      const Rect& inDamage, float inScale, const Point& inOrigin) const {
  Frame frame(inDrawbot, inLayout, &inSource, inDamage, Point(inScale, inScale), inOrigin);
  VisitAll(frame);
  DrawSpecks(frame);
  if (!frame.hasBends && frame.boxes.empty()) return;
  const lumui::drawbot::StDrawbotState state(inDrawbot);
  inDrawbot.Translate(inOrigin.x, inOrigin.y);
  inDrawbot.Scale(inScale, inScale);
  DrawCurves(frame);
  DrawBoxes(frame);
  if (frame.hasTexts) DrawTexts(frame);
}

void MapPainter::DrawFromFar(Drawbot& inDrawbot, const MapLayout& inLayout, const Rect& inDamage,
                             const Point& inScale) const {
  Frame frame(inDrawbot, inLayout, nullptr, inDamage, inScale, Point());
  VisitAll(frame);
  DrawSpecks(frame);
}

void MapPainter::VisitAll(Frame& ioFrame) const {
  while (!ioFrame.waiting.empty()) {
    const Index index = ioFrame.waiting.back();
    ioFrame.waiting.pop_back();
    Visit(ioFrame, index);
  }
}

void MapPainter::Visit(Frame& ioFrame, Index inIndex) const {
  const Node& node = ioFrame.layout.GetNode(inIndex);
  const Rect box = ioFrame.layout.GetBox(inIndex);
  const Rect reach(box.x - kRing, box.y - kRing, box.width + 2 * kRing, box.height + 2 * kRing);
  if (reach.Intersects(ioFrame.damage)) {
    const bool isPlain =
        !ioFrame.hasBends && (!ioFrame.source || ioFrame.source->mark(node) == MapMark::kNone);
    if (isPlain) {
      ioFrame.AddSpeck(LevelOf(node.depth), box);
    } else {
      ioFrame.boxes.push_back(inIndex);
    }
  }
  if (node.childCount > 0 && node.left + node.width < ioFrame.damage.Right()) {
    VisitChildren(ioFrame, inIndex);
  }
}

void MapPainter::VisitChildren(Frame& ioFrame, Index inIndex) const {
  const MapLayout& layout = ioFrame.layout;
  const Node& parent = layout.GetNode(inIndex);
  const Rect& damage = ioFrame.damage;
  const float childLeft = parent.left + parent.width + MapLayout::kColumnGap;
  const bool showsLines = ioFrame.source && damage.x < childLeft;
  if (showsLines) AddTrunk(ioFrame, parent);
  // A line reaches out of its child's band by as much as it bends.
  const float reach = showsLines ? 2 * kBend : kRing;
  const float leastBand = kLeastBranchPixels / (ioFrame.scale.y * ioFrame.ratio);
  const Index end = MapLayout::EndOfChildren(parent);
  Index index = layout.FirstChildBelow(parent, damage.y - reach);
  while (index < end && layout.GetNode(index).top < damage.Bottom() + reach) {
    const Node& child = layout.GetNode(index);
    if (child.bottom - child.top < leastBand) {
      // All that ends in this line of pixels.
      ioFrame.AddSpeck(LevelOf(child.depth),
                       Rect(child.left, child.top, child.right - child.left, leastBand));
      index = layout.NextChildBelow(parent, index, child.top + leastBand);
      continue;
    }
    if (showsLines) AddTwig(ioFrame, parent, child);
    if (child.left - kRing < damage.Right() && child.right + kRing > damage.x) {
      ioFrame.waiting.push_back(index);
    }
    ++index;
  }
}

// What all children have in common: the way out of the parent, and up and down beside it.
void MapPainter::AddTrunk(Frame& ioFrame, const Node& inNode) const {
  const auto& layout = ioFrame.layout;
  const std::size_t level = LevelOf(inNode.depth);
  const float start = inNode.left + inNode.width;
  const float trunk = start + kBend;
  const float y = inNode.middle;
  const float first = layout.GetNode(inNode.firstChild).middle;
  const float last = layout.GetNode(MapLayout::EndOfChildren(inNode) - 1).middle;
  if (!ioFrame.hasBends) {
    ioFrame.AddLine(level, {start, y}, {trunk, y});
    ioFrame.AddLine(level, {trunk, first}, {trunk, last});
    return;
  }
  const auto add = [&](float inEnd, float inSign) {
    const float bend = y + inSign * kBend;
    const float end = inEnd - inSign * kBend;
    if ((end - bend) * inSign < 0) return;  // near enough for a line of its own
    ioFrame.AddBend({level, {trunk, bend}, {start, y}});
    ioFrame.AddLine(level, {trunk, bend}, {trunk, end});
  };
  add(first, -1);
  add(last, 1);
}

// The way into a child: from the trunk, or from the parent itself where that is near.
void MapPainter::AddTwig(Frame& ioFrame, const Node& inParent, const Node& inChild) const {
  const std::size_t level = LevelOf(inParent.depth);
  const float start = inParent.left + inParent.width;
  const float trunk = start + kBend;
  const Point end(inChild.left, inChild.middle);
  const float distance = inChild.middle - inParent.middle;
  if (!ioFrame.hasBends) {
    ioFrame.AddLine(level, {trunk, end.y}, end);
  } else if (std::abs(distance) < 2 * kBend) {
    ioFrame.AddCurve({level, {start, inParent.middle}, end});
  } else {
    const float bend = end.y - std::copysign(kBend, distance);
    ioFrame.AddBend({level, {trunk, bend}, end});
  }
}

void MapPainter::DrawSpecks(const Frame& inFrame) const {
  Drawbot& drawbot = inFrame.drawbot;
  for (std::size_t level = kLevels; level-- > 0;) {
    const ColorRGBA color = LineColorOf(level);
    for (const Rect& line : inFrame.lines[level])
      drawbot.FillRect(inFrame.Snapped(line.Intersection(inFrame.damage)), color);
  }
  for (std::size_t level = 0; level < kLevels; ++level) {
    // Specks are too small for pale colours.
    const ColorRGBA fill = Mixed(palette::Paper(), LineColorOf(level), 0.8f);
    for (const Rect& speck : inFrame.specks[level])
      drawbot.FillRect(speck, fill);
  }
}

void MapPainter::DrawCurves(const Frame& inFrame) const {
  std::array<Pen, kLevels> pens;
  for (std::size_t level = 0; level < kLevels; ++level)
    pens[level] = Pen(LineColorOf(level), inFrame.lineWidth);
  for (const auto& curve : inFrame.curves) {
    const float middle = (curve.start.x + curve.end.x) / 2;
    Path path;
    path.MoveTo(curve.start);
    path.BezierTo({middle, curve.start.y}, {middle, curve.end.y}, curve.end);
    inFrame.drawbot.StrokePath(path, pens[curve.level]);
  }
  for (const auto& bend : inFrame.bends)
    inFrame.drawbot.FillPath(RingOf(bend.start, bend.end, inFrame.lineWidth),
                             pens[bend.level].color);
}

void MapPainter::DrawBoxes(const Frame& inFrame) const {
  std::array<ColorRGBA, kLevels> fills;
  for (std::size_t level = 0; level < kLevels; ++level)
    fills[level] = FillOf(level);
  for (const Index index : inFrame.boxes) {
    const Node& node = inFrame.layout.GetNode(index);
    const Rect box = inFrame.layout.GetBox(index);
    const MapMark mark = inFrame.source->mark(node);
    const float radius = node.depth == 0 ? box.height / 2 : kRadius;
    Path path;
    path.AddRoundedRect(box, radius);
    inFrame.drawbot.FillPath(path, mark == MapMark::kSelected       ? palette::Selection()
                                   : mark == MapMark::kIdleSelected ? palette::IdleSelection()
                                                                    : fills[LevelOf(node.depth)]);
    // Without the keyboard a selection is pale: it is the ring that is seen.
    if (mark != MapMark::kDropTarget && mark != MapMark::kIdleSelected) continue;
    Path ring;
    ring.AddRoundedRect(
        {box.x - kRing / 2, box.y - kRing / 2, box.width + kRing, box.height + kRing},
        radius + kRing / 2);
    inFrame.drawbot.StrokePath(
        ring, Pen(mark == MapMark::kDropTarget ? palette::DropTarget() : palette::Accent(), kRing));
  }
}

void MapPainter::DrawTexts(const Frame& inFrame) const {
  for (const Index index : inFrame.boxes) {
    const Node& node = inFrame.layout.GetNode(index);
    const UTF16String& text = inFrame.source->text(node);
    if (text.empty()) continue;
    const bool isOnAccent = node.depth == 0 || inFrame.source->mark(node) == MapMark::kSelected;
    const FontP& font = FontOf(node.depth);
    const float padding = node.depth == 0 ? kRootPadding : kPadding;
    const float height = font->GetAscent() + font->GetDescent();
    const float baseline = std::round(node.middle - height / 2 + font->GetAscent());
    inFrame.drawbot.DrawString(text, font, isOnAccent ? palette::SelectionInk() : palette::Ink(),
                               {node.left + padding, baseline},
                               lumui::drawbot::TextTruncation::kEnd, node.width - 2 * padding);
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
