// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicTreeRowGeometryBase.h"

#include <utility>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/Image.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;

namespace {

// In units.
constexpr float kTwistyInset = 2.0f;
constexpr float kTwistySize = 14.0f;
constexpr float kTwistyToIcon = 1.0f;
constexpr float kFlatIconX = 4.0f;
constexpr float kIconY = 2.0f;
constexpr float kIconSize = 16.0f;
constexpr float kIconToText = 5.0f;
constexpr float kTextHeight = 16.0f;
constexpr float kIconToOwnText = 4.0f;
constexpr float kOwnTextY = 3.0f;

float GetIconX(bool inHasIcon, bool inIsFlatList) {
  if (!inIsFlatList) return kTwistySize + kTwistyInset + kTwistyToIcon;
  return inHasIcon ? kFlatIconX : 0.0f;
}

}  // namespace

BasicTreeRowGeometryBase::BasicTreeRowGeometryBase(HierarchyEntryBase const* inEntry,
                                                   PointT<float> const& inPosition, bool inHasIcon,
                                                   bool inIsFlatList, lumui::drawbot::FontP inFont)
    : TreeRowGeometry(inEntry, inPosition),
      mHasIcon(inHasIcon),
      mIsFlatList(inIsFlatList),
      mFont(std::move(inFont)),
      mIconOffset(GetIconX(inHasIcon, inIsFlatList), kIconY),
      mTextOffset(kIconSize + mIconOffset.x + kIconToOwnText, kOwnTextY) {}

RectT<float> BasicTreeRowGeometryBase::GetNodeExpansionArea() const {
  if (mIsFlatList) return RectT<float>();
  return RectT<float>(GetPosition().x + kTwistyInset, GetPosition().y + kTwistyInset, kTwistySize,
                      kTwistySize);
}

RectT<float> BasicTreeRowGeometryBase::GetRowRect() const {
  if (!GetEntry()) return RectT<float>();
  const PointT<float> icon = GetPosition() + mIconOffset;
  const float iconRight = icon.x + (mHasIcon ? kIconSize : 0.0f);
  const float width = mFont->MeasureWidth(GetText(GetIDTypeForHighlightText()));
  return RectT<float>(iconRight + kIconToText, icon.y, width, kTextHeight);
}

RectT<float> BasicTreeRowGeometryBase::GetIconRect() const {
  if (!mHasIcon) return RectT<float>();
  const PointT<float> icon = GetPosition() + mIconOffset;
  return RectT<float>(icon.x, icon.y, kIconSize, kIconSize);
}

unsigned int BasicTreeRowGeometryBase::GetIDTypeForHighlightText() const {
  return 0;
}

lumcore::UTF16String BasicTreeRowGeometryBase::GetText(unsigned int inAttribute) const {
  lumcore::UTF16String text;
  GetEntry()->GetCellText(inAttribute, text);
  return text;
}

void BasicTreeRowGeometryBase::DrawIcon(lumui::drawbot::Drawbot& ioDrawbot) const {
  if (!mHasIcon) return;
  // Entries make their icon when it is first asked for, and so need not be const for it.
  const auto icon = const_cast<HierarchyEntryBase*>(GetEntry())->GetNodeIcon();
  if (!icon) return;
  const RectT<float> place = GetIconRect();
  ioDrawbot.DrawImage(*icon, PointT<float>(place.x + 0.5f * (place.width - icon->GetWidth()),
                                           place.y + 0.5f * (place.height - icon->GetHeight())));
}

}  // namespace vek::hierarchyview
