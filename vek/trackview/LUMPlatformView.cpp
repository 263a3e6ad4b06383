// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/LUMPlatformView.h"

#include <cmath>

#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/trackview/ViewItems.h"

namespace vek::trackview {

namespace {

using lumui::controls::UI_ManualScrollView;
using lumui::controls::UI_ScrollView;
using IntPoint = lumcore::geom::PointT<int>;
using IntRect = lumcore::geom::RectT<int>;
using AllFlags = lumcore::utility::Flags<unsigned int>;

// Leaves room for the difference of two.
constexpr double kFarthest = 1 << 30;

int ToInt(double inWhole) {
  if (!(inWhole > -kFarthest)) return -static_cast<int>(kFarthest);
  return static_cast<int>(inWhole < kFarthest ? inWhole : kFarthest);
}

// To the nearest, halves upward.
double Rounded(float inValue) {
  return std::floor(inValue + 0.5);
}

IntPoint Rounded(const Point& inPoint) {
  return IntPoint(ToInt(Rounded(inPoint.x)), ToInt(Rounded(inPoint.y)));
}

Point ToFloat(const IntPoint& inPoint) {
  return Point(static_cast<float>(inPoint.x), static_cast<float>(inPoint.y));
}

IntRect Covering(const Rect& inRect) {
  const int left = ToInt(std::floor(inRect.x));
  const int top = ToInt(std::floor(inRect.y));
  return IntRect(left, top, ToInt(std::ceil(inRect.Right())) - left,
                 ToInt(std::ceil(inRect.Bottom())) - top);
}

}  // namespace

LUMPlatformView::LUMPlatformView() : mAccessibleItems(new ViewItems(*this)) {
  UI_SetNodeID("PlatformScrollView");
  // A tracker dies before its view; of a mouse gesture the contract takes care.
  SetBeforeTrackViewGoes([this] { mDropGesture.DeleteTracker(); });
}

LUMPlatformView::~LUMPlatformView() {
  mDropGesture.DeleteAll();
  mGesture.DeleteTracker();
  std::auto_ptr<TrackView> none;
  SetTrackView(none);
}

UI_ScrollView* LUMPlatformView::FindScrollView() const {
  for (UI_Node* node = UI_GetParentNode(); node; node = node->UI_GetParentNode()) {
    if (auto* const scroll = dynamic_cast<UI_ScrollView*>(node)) return scroll;
  }
  return nullptr;
}

Point LUMPlatformView::GetScrollOrigin() const {
  const UI_ScrollView* const scroll = FindScrollView();
  return scroll ? scroll->GetViewedContentRectF().Origin() : Point();
}

Point LUMPlatformView::ToData(const Point& inLocalPoint) const {
  Point point = inLocalPoint;
  if (GetTrackView()) GetTrackView()->LocalToData(point);
  return point;
}

// The nodes' coordinates know no scrolling.
void LUMPlatformView::LocalToGlobal(Point& ioPoint) const {
  IntPoint point = Rounded(ioPoint);
  UI_LocalToGlobal(point);
  ioPoint = ToFloat(point) - GetScrollOrigin();
}

void LUMPlatformView::GlobalToLocal(Point& ioPoint) const {
  IntPoint point = Rounded(ioPoint);
  UI_GlobalToLocal(point);
  ioPoint = ToFloat(point) + GetScrollOrigin();
}

Point LUMPlatformView::DataPos() const {
  return ToData(GetScrollOrigin());
}

// The bars lie over the view's edges.
Point LUMPlatformView::DataSize() const {
  const Rect& rect = UI_GetLocalRectF();
  Point size(rect.width, rect.height);
  if (const UI_ScrollView* const scroll = FindScrollView()) {
    const auto* const barX = scroll->GetScrollBarX();
    const auto* const barY = scroll->GetScrollBarY();
    if (barX && barX->UI_IsVisible()) size.y -= barX->UI_GetLocalRectF().height;
    if (barY && barY->UI_IsVisible()) size.x -= barY->UI_GetLocalRectF().width;
  }
  if (const TrackView* const trackView = GetTrackView()) {
    size.x /= trackView->GetCoordFactor().x * trackView->GetCoordScale();
    size.y /= trackView->GetCoordFactor().y * trackView->GetCoordScale();
  }
  return size;
}

Rect LUMPlatformView::LocalArea() const {
  if (const UI_ScrollView* const scroll = FindScrollView()) return scroll->GetViewedContentRectF();
  const Rect& rect = UI_GetLocalRectF();
  return Rect(0, 0, rect.width, rect.height);
}

void LUMPlatformView::DoDataPos(const Point& inDataPoint, bool inFlag) {
  UI_ScrollView* const scroll = FindScrollView();
  if (!scroll || !GetTrackView()) return;
  const Rect area = scroll->UI_GetLocalRectF();
  Point position = inDataPoint;
  GetTrackView()->DataToLocal(position);
  const Point current = DataPos();
  const Point content = GetTrackView()->LocalSize();
  if (!dynamic_cast<UI_ManualScrollView*>(scroll)) {
    // Content as wide as the view stays, content as high as it does not.
    if (area.width >= content.x) position.x = 0;
    if (area.height > content.y) position.y = 0;
  }
  // One is in data units and the other in local ones, so this ends the work for sure only where the
  // two are the same; scrolling to where the view stands is harmless.
  if (current == position) return;
  const Rect viewed = scroll->GetViewedContentRectF();
  scroll->ScrollIntoView(Rect(static_cast<float>(Rounded(position.x)),
                              static_cast<float>(Rounded(position.y)), viewed.width, viewed.height),
                         inFlag);
}

void LUMPlatformView::DisplayResized(bool) {
  UI_ScrollView* const scroll = FindScrollView();
  if (!scroll || !GetTrackView()) return;
  const Point size = GetTrackView()->LocalSize();
  scroll->SetContentRectF(Rect(0, 0, size.x, size.y));
  scroll->Update();
}

void LUMPlatformView::InvalidateDataRect(const Rect& inDataRect) {
  Rect rect = inDataRect;
  if (GetTrackView()) GetTrackView()->DataToLocal(rect);
  UI_Invalidate(Covering(rect), AllFlags());
}

void LUMPlatformView::ValidateDataRect(const Rect&) {}

unsigned char LUMPlatformView::GetClickCount() {
  return mClickCount;
}

const lumui::drawbot::SupplierInterface* LUMPlatformView::GetDrawSupplier() const {
  return UI_GetDrawSupplier();
}

void LUMPlatformView::StartTimer(unsigned int inTimerID, float inInterval) {
  UI_InstallTimer(inInterval, inTimerID);
  mTimers.insert(inTimerID);
}

void LUMPlatformView::StopTimer(unsigned int inTimerID) {
  mTimers.erase(inTimerID);
  // Overlays of a view that outlives the application still stop theirs.
  if (lumui::ui::UI_NodeManager::Get(false)) UI_RemoveTimer(inTimerID, false);
}

void LUMPlatformView::UpdateNow() {
  UI_UpdateNow(AllFlags(~0u));
}

lumui::ui::AccessibleItems* LUMPlatformView::UI_GetAccessibleItems() {
  return mAccessibleItems.get();
}

void LUMPlatformView::UI_SetLocalRectF(const Rect& inRect) {
  UI_SubView::UI_SetLocalRectF(inRect);
  if (GetTrackView()) GetTrackView()->ViewPortResized();
}

void LUMPlatformView::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  if (const TrackView* const trackView = GetTrackView()) {
    const Point origin = GetScrollOrigin();
    const Rect& rect = UI_GetLocalRectF();
    Rect damage =
        Rect(origin.x, origin.y, rect.width, rect.height).Intersection(inDrawbot->GetClipBounds());
    trackView->LocalToData(damage);
    trackView->ImageRect(damage, *inDrawbot, lumui::ui::Theme::Get());
  }
  UI_SubView::UI_Draw(inDrawbot);
}

float LUMPlatformView::MeasureStringWidth(const unsigned short* inText, int inLength,
                                          const unsigned short* inFontName,
                                          float inFontSize) const {
  LUM_INPUT_CONTRACT(inLength >= 0 && (inText || inLength == 0));
  const lumui::drawbot::SupplierInterface* const supplier = GetDrawSupplier();
  if (!supplier) return 0;
  const float size = inFontSize == -1 ? lumui::ui::GetFontSize(0) : inFontSize;
  const std::string name = inFontName
                               ? lumcore::utility::ToStdString(lumcore::UTF16String(inFontName))
                               : std::string(lumui::ui::GetFontName(0));
  if (inLength == 0) return 0;
  const lumcore::UTF16String text(inText, static_cast<std::size_t>(inLength));
  return supplier->NewFont(name.c_str(), size)->MeasureWidth(text);
}

}  // namespace vek::trackview
