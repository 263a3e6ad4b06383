// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "lumui/drawbot/Drawbot.h"
#include "support/TestTree.h"
#include "vek/hierarchyview/BasicTreeRowGeometry.h"

namespace {

using namespace test_support;
using lumcore::geom::PointT;
using lumcore::geom::RectT;

// A list's rows may come without a twisty.
class Row : public vek::hierarchyview::BasicTreeRowGeometryBase {
 public:
  Row(const HierarchyEntryBase* inEntry, bool inHasIcon, bool inIsFlat)
      : BasicTreeRowGeometryBase(inEntry, PointT<float>(100, 50), inHasIcon, inIsFlat,
                                 lumui::drawbot::FontP(new FixedFont)) {}
  void ImageNode(const HierarchyGeometry&, lumui::drawbot::Drawbot&, const RectT<float>&,
                 bool) override {}
  RectT<float> GetHighlightRect() const override { return RectT<float>(); }
  bool PointInSelectArea(const PointT<float>&) const override { return false; }
  bool RectOverlapsSelectArea(const RectT<float>&) const override { return false; }
};

TEST(RowLayout, PutsTwistyIconAndTextSideBySide) {
  const EntryP entry(new NamedEntry("abc", nullptr));
  struct {
    bool hasIcon, isFlat;
    const char* twisty;
    const char* icon;
    const char* text;
  } const kCases[] = {
      {true, false, "102,52 14x14", "117,52 16x16", "138,52 21x16"},
      {false, false, "102,52 14x14", "0,0 0x0", "122,52 21x16"},
      {true, true, "0,0 0x0", "104,52 16x16", "125,52 21x16"},
      {false, true, "0,0 0x0", "0,0 0x0", "105,52 21x16"},
  };
  for (const auto& [hasIcon, isFlat, twisty, icon, text] : kCases) {
    const Row row(entry.get(), hasIcon, isFlat);
    EXPECT_EQ(TextOf(row.GetNodeExpansionArea()), twisty);
    EXPECT_EQ(TextOf(row.GetIconRect()), icon);
    EXPECT_EQ(TextOf(row.GetRowRect()), text);
  }
  EXPECT_EQ(TextOf(Row(nullptr, true, false).GetRowRect()), "0,0 0x0");
}

// The icon reaches from 117 to 133 and from 52 to 68, the highlighted text from 137 to 139 and from
// 51 to 69: an empty text can still be hit.
TEST(RowHits, CountOnTheIconTheTextAndBetween) {
  const EntryP entry(new NamedEntry("", nullptr));
  TestControl control(entry);
  vek::hierarchyview::BasicTreeRowGeoFactory factory(&control, nullptr, true);
  const auto row = factory.ServeRowGeometry(entry.get(), PointT<float>(100, 50));
  EXPECT_EQ(TextOf(row->GetHighlightRect()), "137,51 2x18");
  struct {
    float x, y;
    bool hit;
  } const kCases[] = {{117, 51, true},     {116.5, 60, false}, {135, 60, true},
                      {138.5, 68.5, true}, {139, 60, false},   {120, 69, false}};
  for (const auto& [x, y, hit] : kCases) {
    EXPECT_EQ(row->PointInSelectArea(PointT<float>(x, y)), hit) << x << "," << y;
    EXPECT_EQ(row->RectOverlapsSelectArea(RectT<float>(x, y, 0.25f, 0.25f)), hit) << x << "," << y;
    EXPECT_FALSE(row->RectOverlapsSelectArea(RectT<float>(x, y, 0, 9)));
  }
}

}  // namespace
