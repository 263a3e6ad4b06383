// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapPane.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "CommandSystem.h"
#include "MapOverview.h"
#include "MapView.h"
#include "OutlineDocument.h"
#include "OutlinerCommands.h"
#include "lumui/ui/OS_Window.h"
#include "vek/app/DocumentApplication.h"
#include "vek/sharedui/MarqeeOverlay.h"
#include "vek/trackview/PlatformScrollView.h"

namespace outliner {

using vek::app::DocStatusMessage;
using vek::trackview::Overlay;
using vek::trackview::Point;
using vek::trackview::Rect;
using vek::trackview::TrackView;

namespace {

constexpr float kOverviewWidth = 168;
constexpr float kOverviewHeight = 124;
constexpr float kOverviewMargin = 10;
// The overview would cover too much of a view that is not this many times larger.
constexpr float kLeastViewForOverview = 2.2f;

constexpr float kMostScale = 4;
constexpr float kLeastScale = 0.25f;  // less where the whole map needs it
constexpr float kStep = 1.25f;
constexpr float kLineStep = MapLayout::kRowPitch;
constexpr float kRevealMargin = 12;
constexpr Point kNoAnchor(-1, -1);
// A message about more rows than this repaints everything, which is cheaper than to find each.
constexpr std::size_t kMostSingleRows = 64;

template <class SomeOverlay>
SomeOverlay* Install(TrackView& ioTrackView, SomeOverlay* inOverlay) {
  std::auto_ptr<Overlay> overlay(inOverlay);
  ioTrackView.InstallOverlay(overlay, false);
  return inOverlay;
}

}  // namespace

MapPane::MapPane(OutlineDocument* inDocument, Functions inFunctions)
    : mFunctions(std::move(inFunctions)),
      mMoved(new boost::function<void(vek::trackview::PlatformView*)>(
          [this](auto*) { PlaceOverview(); })) {
  BuildNodes();
  vek::app::DocumentApplication::GetDocStatusNotifier().AddListener(
      static_cast<Listener<const DocStatusMessage>*>(this));
  Follow(inDocument);
}

// The nodes may live on for the event that runs.
MapPane::~MapPane() {
  mMoved->clear();
  mView->Detach();
  mOverview->Detach();
  Follow(nullptr);
  if (IsCurrentCommandHandler()) SetCurrentCommandHandler(nullptr);
}

void MapPane::BuildNodes() {
  MapView::Functions functions;
  functions.focusChanged = [this] { FocusChanged(); };
  functions.zoomAt = [this](float inNotches, const Point& inDataPoint) {
    ZoomTo(mTrackView->GetCoordScale() * std::pow(kStep, inNotches), inDataPoint);
  };
  functions.resized = [this] { PlaceOverview(); };
  mView.reset(new MapView(functions));
  std::auto_ptr<TrackView> trackView(new TrackView(*mView, true, kLeastScale, kMostScale));
  mTrackView = trackView.get();
  mView->SetTrackView(trackView);
  auto* const band = Install(
      *mTrackView,
      new vek::sharedui::MarqeeOverlay(mTrackView, maplayers::kBand, Overlay::kStateNoEvents));
  mOverlay = Install(*mTrackView,
                     new MapOverlay(*mTrackView, *band,
                                    {[this] { GoToRow(); },
                                     [this](const Point& inPoint) { OpenRowMenu(inPoint); }}));
  mScrollView.reset(
      new vek::trackview::PlatformScrollView(lumcore::utility::Flags<unsigned int>(), mView));
  mScrollView->UI_SetNodeID("map");
  mScrollView->SetLineStep(kLineStep);
  mScrollView->SetMovesPicture(true);
  mOverview.reset(new MapOverview(mOverlay->GetScene(), *mTrackView));
  mOverview->UI_Show(false);
  mView->NotifyWhenDataPosChanged(mMoved);
  UI_AddChild(mScrollView);
  UI_AddChild(mOverview);
}

// A document tells that it is no longer the current one before it goes.
void MapPane::ListenToMessage(const DocStatusMessage inMessage) {
  auto* const document = static_cast<OutlineDocument*>(inMessage.GetDocument());
  if (inMessage.BecomesActive()) {
    Follow(document);
  } else if (document == GetDocument()) {
    Follow(nullptr);
  }
}

void MapPane::Follow(OutlineDocument* inDocument) {
  using Selection = Listener<const vek::selection::SelectionChangeMessage&>;
  using Items = Listener<const vek::undo::ItemsChangedMsg&>;
  if (OutlineDocument* const old = GetDocument()) {
    old->GetSelection().GetSelectionChangeNotifier()->RemoveListener(static_cast<Selection*>(this));
    old->GetUndoer().GetItemsChangedNotifier()->RemoveListener(static_cast<Items*>(this));
  }
  GetScene().SetDocument(inDocument);
  if (inDocument) {
    inDocument->GetSelection().GetSelectionChangeNotifier()->AddListener(
        static_cast<Selection*>(this));
    inDocument->GetUndoer().GetItemsChangedNotifier()->AddListener(static_cast<Items*>(this));
    mTrackView->SetCoordScale(1, true, kNoAnchor);
  }
  MapChanged();
  mShowsRootNext = inDocument != nullptr;
  ShowRoot();
}

// At the left of the view and in the middle of its height, as soon as the view has a size.
void MapPane::ShowRoot() {
  if (!mShowsRootNext || mScrollView->UI_GetLocalRectF().IsEmpty()) return;
  mShowsRootNext = false;
  const float middle = GetScene().GetLayout().GetNode(MapLayout::kRoot).middle;
  mView->DataPos(Point(0, middle - mView->DataSize().y / 2), false);
}

void MapPane::ListenToMessage(const vek::selection::SelectionChangeMessage& inMessage) {
  const auto& nodes = inMessage.GetAffectedNodes();
  if (nodes.size() > kMostSingleRows) {
    GetScene().InvalidateAll();
  } else {
    for (const auto* node : nodes)
      GetScene().InvalidateRow(*static_cast<const OutlineRow*>(node));
  }
  // What was pressed here is in view, or the user does not want it to be.
  if (mView->IsTracking()) return;
  const OutlineRow* const row = GetDocument()->GetOnlySelectedRow();
  if (!row) return;
  const MapLayout::Index index = GetScene().GetLayout().FindRow(row->GetId());
  if (index == MapLayout::kNone) return;
  const Rect box = GetScene().GetLayout().GetBox(index);
  mTrackView->RevealRectIfNotInView(
      Rect(box.x - kRevealMargin, box.y - kRevealMargin, box.width + 2 * kRevealMargin,
           box.height + 2 * kRevealMargin),
      false);
}

void MapPane::ListenToMessage(const vek::undo::ItemsChangedMsg&) {
  GetScene().Rebuild();
  MapChanged();
}

void MapPane::MapChanged() {
  mTrackView->SetCoordScaleRange(std::min(kLeastScale, FitScale()), kMostScale);
  mOverview->MapChanged();
  PlaceOverview();
}

float MapPane::FitScale() const {
  const Point& map = mTrackView->DataSize();
  const Rect& area = mScrollView->UI_GetLocalRectF();
  if (area.IsEmpty()) return kLeastScale;
  return std::min({1.0f, area.width / map.x, area.height / map.y});
}

void MapPane::UI_SizeChanged(const Rect& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  const Rect before = mTrackView->DataArea();
  const bool wasEmpty = mScrollView->UI_GetLocalRectF().IsEmpty();
  mScrollView->UI_SetLocalRectF(inRect);
  mTrackView->SetCoordScaleRange(std::min(kLeastScale, FitScale()), kMostScale);
  // What was half way down stays there: panels get their size in several steps.
  const float grown = mView->DataSize().y - before.height;
  if (!wasEmpty) mView->DataPos(Point(before.x, before.y - grown / 2), false);
  ShowRoot();
  PlaceOverview();
}

void MapPane::PlaceOverview() {
  const Rect area = mScrollView->GetViewedContentRectF();
  const Point content = mTrackView->LocalSize();
  const bool isWanted = GetDocument() && (content.x > area.width || content.y > area.height) &&
                        area.width > kLeastViewForOverview * kOverviewWidth &&
                        area.height > kLeastViewForOverview * kOverviewHeight;
  if (isWanted) {
    mOverview->UI_SetLocalRectF(Rect(area.width - kOverviewWidth - kOverviewMargin,
                                     area.height - kOverviewHeight - kOverviewMargin,
                                     kOverviewWidth, kOverviewHeight));
  }
  if (isWanted != mOverview->UI_IsVisible()) mOverview->UI_Show(isWanted);
  mOverview->FrameChanged();
}

void MapPane::SetTool(MapTool inTool) {
  using lumui::ui::CursorShape;
  if (inTool == mTool) return;
  if (mToolOverlay) mTrackView->RemoveOverlay(std::exchange(mToolOverlay, nullptr));
  mTool = inTool;
  if (inTool == MapTool::kHand) {
    mToolOverlay =
        Install(*mTrackView, new MapHand(mTrackView, maplayers::kTool, CursorShape::kOpenHand,
                                         CursorShape::kClosedHand));
  } else if (inTool == MapTool::kZoom) {
    mToolOverlay = Install(*mTrackView, new MapZoom(mTrackView, maplayers::kTool,
                                                    CursorShape::kCross, CursorShape::kCross));
  }
  GetScene().InvalidateAll();
  mView->DoNonMouseTrack(true);
}

void MapPane::ZoomTo(float inScale, const Point& inFixedPoint) {
  const float old = mTrackView->GetCoordScale();
  const Point place = inFixedPoint - mView->DataPos();
  mTrackView->SetCoordScale(inScale, true, kNoAnchor);
  const float scale = mTrackView->GetCoordScale();
  if (scale == old) return;
  const float share = old / scale;
  mView->DataPos(inFixedPoint - Point(place.x * share, place.y * share), false);
  PlaceOverview();
}

void MapPane::Zoom(int inSteps) {
  const Rect area = mTrackView->DataArea();
  const Point middle(area.x + area.width / 2, area.y + area.height / 2);
  const float scale = mTrackView->GetCoordScale();
  ZoomTo(inSteps == 0 ? 1 : scale * std::pow(kStep, static_cast<float>(inSteps)), middle);
}

void MapPane::ZoomToFit() {
  ZoomTo(FitScale(), Point());
}

void MapPane::GoToRow() {
  if (GetDocument()) mFunctions.focusOutline();
}

void MapPane::FocusMap() {
  mView->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

void MapPane::FocusChanged() {
  const bool hasFocus = mView->UI_HasKeyboardFocus();
  GetScene().SetFocused(hasFocus);
  if (hasFocus) SetAsCurrentCommandHandler(false);
}

void MapPane::OpenRowMenu(const Point& inLocalPoint) {
  Point place = inLocalPoint;
  mView->LocalToGlobal(place);
  lumcore::geom::PointT<int> onScreen(static_cast<int>(place.x), static_cast<int>(place.y));
  mView->UI_GetWindowNode()->UI_WindowToScreen(onScreen);
  mFunctions.openRowMenu(onScreen);
}

// There is nothing to type in here.
bool MapPane::DoHandleCommand(int inCommand) {
  const bool types = inCommand == kCommandEditText || inCommand == kCommandNewSibling ||
                     inCommand == kCommandNewChild;
  if (types) GoToRow();
  return false;
}

bool MapPane::DoCommandEnabled(int, bool&, bool&, lumcore::UTF16String&) {
  return false;
}

const lumcore::UTF8String& MapPane::DoGetCommandContext() {
  return MapContext();
}

}  // namespace outliner
