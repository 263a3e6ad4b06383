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

}  // namespace

// One paint: what is to be drawn, sorted by how it looks, so that everything of one colour is drawn
// at once.
struct MapPainter::Frame {
  Drawbot& drawbot;
  const MapLayout& layout;
  const Source* source;
  Rect damage;
  float scaleY;
  bool hasBends;
  bool hasTexts;
  std::vector<Index> waiting;
  std::vector<Index> boxes;
  std::array<std::vector<Rect>, kLevels> specks;  // that are drawn without corners
  std::array<Path, kLevels> lines;

  float Pixels(float inUnits) const { return inUnits * scaleY; }
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
                      const Rect& inDamage, float inScale, const MapLayout::Point& inOrigin) const {
  const lumui::drawbot::StDrawbotState state(inDrawbot);
  inDrawbot.Translate(inOrigin.x, inOrigin.y);
  inDrawbot.Scale(inScale, inScale);
  const float pixels = inDrawbot.GetScale();
  Frame frame{inDrawbot,
              inLayout,
              &inSource,
              inDamage,
              pixels,
              pixels * MapLayout::kBoxHeight >= kLeastRoundBox,
              inScale * kTextSizes[kLevels - 1] >= kLeastTextSize,
              {MapLayout::kRoot},
              {},
              {},
              {}};
  while (!frame.waiting.empty()) {
    const Index index = frame.waiting.back();
    frame.waiting.pop_back();
    Visit(frame, index);
  }
  DrawLines(frame);
  DrawBoxes(frame);
  if (frame.hasTexts) DrawTexts(frame);
}

void MapPainter::DrawFromFar(Drawbot& inDrawbot, const MapLayout& inLayout, const Rect& inDamage,
                             const MapLayout::Point& inScale) const {
  const lumui::drawbot::StDrawbotState state(inDrawbot);
  inDrawbot.Scale(inScale.x, inScale.y);
  Frame frame{inDrawbot,          inLayout, nullptr, inDamage, inDrawbot.GetScale(), false, false,
              {MapLayout::kRoot}, {},       {},      {}};
  while (!frame.waiting.empty()) {
    const Index index = frame.waiting.back();
    frame.waiting.pop_back();
    Visit(frame, index);
  }
  DrawBoxes(frame);
}

void MapPainter::Visit(Frame& ioFrame, Index inIndex) const {
  const Node& node = ioFrame.layout.GetNode(inIndex);
  Rect box = ioFrame.layout.GetBox(inIndex);
  const Rect reach(box.x - kRing, box.y - kRing, box.width + 2 * kRing, box.height + 2 * kRing);
  if (reach.Intersects(ioFrame.damage)) {
    const bool isPlain =
        !ioFrame.hasBends && (!ioFrame.source || ioFrame.source->mark(node) == MapMark::kNone);
    if (isPlain) {
      ioFrame.specks[LevelOf(node.depth)].push_back(box);
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
  const float reach = std::max(showsLines ? 2 * kBend : 0, kRing);
  const float leastBand = kLeastBranchPixels / ioFrame.scaleY;
  const Index end = MapLayout::EndOfChildren(parent);
  Index index = layout.FirstChildBelow(parent, damage.y - reach);
  while (index < end && layout.GetNode(index).top < damage.Bottom() + reach) {
    const Node& child = layout.GetNode(index);
    if (child.bottom - child.top < leastBand) {
      // All that ends in this line of pixels.
      ioFrame.specks[LevelOf(child.depth)].emplace_back(child.left, child.top,
                                                        child.right - child.left, leastBand);
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
  const float start = inNode.left + inNode.width;
  const float trunk = start + kBend;
  const float y = inNode.middle;
  Path& path = ioFrame.lines[LevelOf(inNode.depth)];
  // Only as much of it as the damage touches: far points would cost the rasteriser precision.
  const float top = ioFrame.damage.y - kBend;
  const float bottom = ioFrame.damage.Bottom() + kBend;
  const auto add = [&](float inEnd, float inSign) {
    const float bend = y + inSign * kBend;
    const float last = inEnd - inSign * kBend;
    if ((last - bend) * inSign < 0) return;  // near enough for a line of its own
    if (y > top && y < bottom) {
      path.MoveTo({start, y});
      path.BezierTo({start + kRound * kBend, y}, {trunk, bend - inSign * kRound * kBend},
                    {trunk, bend});
    }
    const float from = std::clamp(bend, top, bottom);
    const float to = std::clamp(last, top, bottom);
    if (from == to) return;
    path.MoveTo({trunk, from});
    path.LineTo({trunk, to});
  };
  add(layout.GetNode(inNode.firstChild).middle, -1);
  add(layout.GetNode(MapLayout::EndOfChildren(inNode) - 1).middle, 1);
}

// The way into a child: from the trunk, or from the parent itself where that is near.
void MapPainter::AddTwig(Frame& ioFrame, const Node& inParent, const Node& inChild) const {
  const float start = inParent.left + inParent.width;
  const float trunk = start + kBend;
  const float distance = inChild.middle - inParent.middle;
  Path& path = ioFrame.lines[LevelOf(inParent.depth)];
  if (std::abs(distance) < 2 * kBend) {
    path.MoveTo({start, inParent.middle});
    path.BezierTo({trunk, inParent.middle}, {trunk, inChild.middle},
                  {inChild.left, inChild.middle});
    return;
  }
  const float bend = inChild.middle - std::copysign(kBend, distance);
  path.MoveTo({trunk, bend});
  path.BezierTo({trunk, bend + kRound * (inChild.middle - bend)},
                {inChild.left - kRound * kBend, inChild.middle}, {inChild.left, inChild.middle});
}

void MapPainter::DrawLines(const Frame& inFrame) const {
  if (!inFrame.source) return;
  const float width = std::max(kLineWidth, kLeastLinePixels / inFrame.scaleY);
  for (std::size_t level = kLevels; level-- > 0;)
    inFrame.drawbot.StrokePath(inFrame.lines[level], Pen(LineColorOf(level), width));
}

void MapPainter::DrawBoxes(const Frame& inFrame) const {
  Drawbot& drawbot = inFrame.drawbot;
  std::array<Path, kLevels> boxes;
  Path selected, idle, target;
  for (std::size_t level = 0; level < kLevels; ++level) {
    const ColorRGBA fill =
        inFrame.source ? FillOf(level) : Mixed(palette::Paper(), LineColorOf(level), 0.8f);
    for (const Rect& speck : inFrame.specks[level])
      drawbot.FillRect(speck, fill);
  }
  for (const Index index : inFrame.boxes) {
    const Node& node = inFrame.layout.GetNode(index);
    const Rect box = inFrame.layout.GetBox(index);
    const MapMark mark = inFrame.source->mark(node);
    const float radius = node.depth == 0 ? box.height / 2 : kRadius;
    Path& path = mark == MapMark::kSelected       ? selected
                 : mark == MapMark::kIdleSelected ? idle
                                                  : boxes[LevelOf(node.depth)];
    path.AddRoundedRect(box, radius);
    if (mark == MapMark::kDropTarget) {
      target.AddRoundedRect(
          {box.x - kRing / 2, box.y - kRing / 2, box.width + kRing, box.height + kRing},
          radius + kRing / 2);
    }
  }
  for (std::size_t level = 0; level < kLevels; ++level)
    drawbot.FillPath(boxes[level], FillOf(level));
  drawbot.FillPath(selected, palette::Selection());
  drawbot.FillPath(idle, palette::IdleSelection());
  drawbot.StrokePath(target, Pen(palette::DropTarget(), kRing));
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
