// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineList.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "OutlineDocument.h"
#include "OutlineEntries.h"
#include "OutlineHeader.h"
#include "OutlineTreeList.h"
#include "RowEditor.h"
#include "RowField.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/OS_Window.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/trackview/PlatformScrollView.h"

namespace outliner {

using lumcore::utility::StScopedValue;
using vek::hierarchyview::ColumnStateChangeMessage;
using vek::hierarchyview::MultiColumnHeaderView;
using vek::trackview::LUMPlatformView;
using vek::trackview::PlatformScrollView;
using vek::trackview::PlatformView;
using vek::trackview::TrackView;
using Flags = lumcore::utility::Flags<unsigned int>;
using Rect = vek::trackview::Rect;

namespace {

constexpr float kHeaderHeight = 20;
constexpr float kRowHeight = vek::hierarchyview::TreeListGeometry::kRowHeight;
constexpr float kFieldMargin = 4;  // from the field's edge to its text
constexpr float kLeastField = 60;
constexpr std::size_t kAtEnd = static_cast<std::size_t>(-1);

// Of columns, in units.
constexpr float kLeastText = 120;
constexpr float kLeastOther = 30;
constexpr float kTypeWidth = 70;
constexpr float kCreatedWidth = 215;
constexpr float kLinksWidth = 200;
constexpr float kOtherWidth = 110;

float WidthOf(OutlineColumns::Attribute inAttribute) {
  switch (inAttribute) {
    case OutlineColumns::kType:
      return kTypeWidth;
    case OutlineColumns::kCreated:
      return kCreatedWidth;
    case OutlineColumns::kLinks:
      return kLinksWidth;
    default:
      return kOtherWidth;
  }
}

// Stands where the list stands, also where that is beyond the last column: the list is narrower by
// its scroll bar.
class HeaderScrollView final : public PlatformScrollView {
 public:
  using PlatformScrollView::PlatformScrollView;

 protected:
  bool DoLimitsToContent() const override { return false; }
};

template <class Kind>
Kind* Install(TrackView& ioView, Kind* inOverlay) {
  std::auto_ptr<vek::trackview::Overlay> overlay(inOverlay);
  ioView.InstallOverlay(overlay, false);
  return inOverlay;
}

TrackView& GiveTrackView(LUMPlatformView& ioView) {
  std::auto_ptr<TrackView> trackView(new TrackView(ioView, false, 1, 1));
  ioView.SetTrackView(trackView);
  return *ioView.GetTrackView();
}

}  // namespace

// Tells its owner of the keyboard and of its size.
class OutlineList::View final : public LUMPlatformView {
 public:
  explicit View(OutlineList& inOwner) : mOwner(&inOwner) {}
  void Detach() { mOwner = nullptr; }

  void UI_FocusChanged(int inReason) override {
    LUMPlatformView::UI_FocusChanged(inReason);
    if (mOwner) mOwner->FocusChanged();
  }

 private:
  OutlineList* mOwner;
};

OutlineList::OutlineList(OutlineDocument& inDocument, Functions inFunctions)
    : mDocument(&inDocument),
      mFunctions(std::move(inFunctions)),
      mView(new View(*this)),
      mField(new RowField),
      mCaret(kAtEnd) {
  BuildRows();
  BuildNodes();
  InsertColumns();
  mList->BuildHierarchy();
  mList->GetColumnStateChangedNoter()->AddListener(this);
}

OutlineList::~OutlineList() {
  Detach();
}

// Somebody may hold one of the nodes for longer.
void OutlineList::Detach() {
  if (!mDocument) return;
  mDocument = nullptr;
  mHeaderView->SetFocusTaker(nullptr);
  mHeaderFollows->clear();
  mListFollows->clear();
  mView->Detach();
  mField->SetFunctions(nullptr, nullptr);
  mHeader->SetMultiColumnView(nullptr);
  mList->GetColumnStateChangedNoter()->RemoveListener(mHeader);
  mList->GetColumnStateChangedNoter()->RemoveListener(this);
  mList->Detach();
}

void OutlineList::BuildRows() {
  OutlineTreeList::Functions functions;
  functions.hasKeyboard = [this] { return HasKeyboard(); };
  functions.editText = [this](OutlineRow& ioRow, std::size_t inCaret) {
    mDocument->CommitTyping();
    mDocument->SelectRows({&ioRow});
    mCaret = inCaret;
    mDocument->GetEditor().Begin(ioRow);
  };
  functions.type = [this](unsigned short inUnit) { return Type(inUnit); };
  functions.deleteCharacter = [this] {
    if (!mDocument->GetOnlySelectedRow()) return false;
    mDocument->GetEditor().BeginAtSelection();
    mField->DeleteBefore();
    return true;
  };
  functions.openRowMenu = [this](const auto& inPoint) { OpenRowMenu(inPoint); };
  functions.rowsMoved = [this] { PlaceField(); };
  TrackView& trackView = GiveTrackView(*mView);
  mList = Install(trackView, new OutlineTreeList(&trackView, *mDocument, std::move(functions)));
}

void OutlineList::BuildNodes() {
  mHeaderView.reset(new LUMPlatformView);
  mHeaderView->SetWantsKeyboardFocus(false);
  mHeaderView->SetFocusTaker(mView.get());
  TrackView& trackView = GiveTrackView(*mHeaderView);
  mHeader = Install(trackView, new OutlineHeader(&trackView, *mList));
  mHeader->SetViewHeight(kHeaderHeight);
  mHeader->SetDrawTopBorder(false);
  mHeader->SetMultiColumnView(mList);
  mList->GetColumnStateChangedNoter()->AddListener(mHeader);
  mHeaderScroll.reset(new HeaderScrollView(
      Flags(PlatformScrollView::kNoHorizontalBar | PlatformScrollView::kNoVerticalBar),
      mHeaderView));
  mHeaderScroll->UI_SetNodeID("columns");
  mListScroll.reset(new PlatformScrollView(Flags(), mView));
  mListScroll->UI_SetNodeID("rows");
  mListScroll->SetLineStep(kRowHeight);
  mView->UI_SetNodeID("outline");
  mField->UI_Show(false);
  mField->SetFontSize(mList->GetFont()->GetSize());
  mField->SetFunctions([this] { FocusChanged(); },
                       [this] {
                         if (mDocument) mDocument->GetEditor().SetText(mField->GetText());
                       });
  mView->UI_AddChild(mField);
  UI_AddChild(mHeaderScroll);
  UI_AddChild(mListScroll);
  Follow(*mView, *mHeaderView, mHeaderFollows);
  Follow(*mHeaderView, *mView, mListFollows);
}

void OutlineList::Follow(PlatformView& inFollowed, PlatformView& inFollower,
                         PlatformView::PositionListener& outListener) {
  outListener.reset(
      new boost::function<void(PlatformView*)>([this, follower = &inFollower](auto* inMoved) {
        follower->DependantDataPosChanged(inMoved, true, false);
        PlaceField();
      }));
  inFollowed.NotifyWhenDataPosChanged(outListener);
}

void OutlineList::InsertColumns() {
  OutlineColumns& columns = mList->GetEntries()->GetColumns();
  OutlineColumns::Settings settings = ReadColumns(mFunctions.getColumns());
  if (settings.empty()) {
    settings.push_back({columns.GetName(OutlineColumns::kText), 0});
    for (const auto attribute :
         {OutlineColumns::kType, OutlineColumns::kCreated, OutlineColumns::kLinks}) {
      if (columns.IsUsed(attribute)) {
        settings.push_back({columns.GetName(attribute), WidthOf(attribute)});
      }
    }
  }
  const StScopedValue<bool> filling(mIsFilling, true);
  for (const auto& setting : settings) {
    const auto attribute = columns.Find(setting.name);
    unsigned short shown = 0;
    if (attribute == 0 || mList->HasColumnForAttr(attribute, shown)) continue;
    const bool isText = attribute == OutlineColumns::kText;
    if (isText) mTextFills = setting.width == 0;
    mList->InsertColumn(attribute, std::max(setting.width, isText ? kLeastText : kLeastOther),
                        isText ? kLeastText : kLeastOther, columns.GetTitle(attribute).c_str(),
                        nullptr);
  }
  OfferColumns();
}

// The text, which cannot be hidden, and whatever else rows of this outline may have.
void OutlineList::OfferColumns() {
  const OutlineColumns& columns = mList->GetEntries()->GetColumns();
  MultiColumnHeaderView::ColumnSet set;
  MultiColumnHeaderView::ColumnSizes sizes;
  for (OutlineColumns::Attribute attribute = OutlineColumns::kText; attribute < columns.GetEnd();
       ++attribute) {
    set.emplace_back(attribute, columns.GetTitle(attribute));
    sizes[attribute] = {kLeastOther, WidthOf(attribute)};
  }
  mHeader->SetColumnSet(set);
  mHeader->SetDefaultNewColumnSizes(sizes);
}

void OutlineList::ListenToMessage(ColumnStateChangeMessage const inMessage) {
  using namespace vek::hierarchyview;
  if (mIsFilling || inMessage.GetChangeType() == kColumnSortChanged) return;
  const bool isText = mList->GetColumnAttr(inMessage.GetAffectedColumn()) == OutlineColumns::kText;
  if (inMessage.GetChangeType() == kColumnWidthChanged && isText) mTextFills = false;
  if (inMessage.GetChangeType() != kColumnWidthChanged) FillWithText();
  KeepColumns();
  PlaceField();
}

void OutlineList::KeepColumns() {
  const OutlineColumns& columns = mList->GetEntries()->GetColumns();
  OutlineColumns::Settings settings;
  for (unsigned short column = 0; column < mList->GetNumberOfColumns(); ++column) {
    const auto attribute = mList->GetColumnAttr(column);
    const bool fills = attribute == OutlineColumns::kText && mTextFills;
    settings.push_back({columns.GetName(attribute), fills ? 0 : mList->GetColumnWidth(column)});
  }
  mFunctions.keepColumns(WriteColumns(settings));
}

void OutlineList::FillWithText() {
  unsigned short text = 0;
  const Rect area = mListScroll->GetViewedContentRectF();
  if (!mTextFills || area.IsEmpty() || !mDocument ||
      !mList->HasColumnForAttr(OutlineColumns::kText, text)) {
    return;
  }
  const float others = mList->GetTotalColumnWidth() - mList->GetColumnWidth(text);
  const float width = std::max(kLeastText, std::floor(area.width - others));
  if (width == mList->GetColumnWidth(text)) return;
  const StScopedValue<bool> filling(mIsFilling, true);
  mList->SetColumnWidth(text, width);
}

void OutlineList::UI_SizeChanged(const Rect& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  const float top = std::min(kHeaderHeight, inRect.height);
  TrackView& headerView = *mHeader->GetTrackView();
  headerView.ResizeDataSize(vek::trackview::Point(headerView.DataSize().x, kHeaderHeight), false);
  mHeaderScroll->UI_SetLocalRectF(Rect(0, 0, inRect.width, top));
  mListScroll->UI_SetLocalRectF(Rect(0, top, inRect.width, inRect.height - top));
  if (!mDocument) return;
  FillWithText();
  // A bar that goes with the others' widths leaves more room.
  FillWithText();
  PlaceField();
}

void OutlineList::DocumentChanged() {
  if (!mDocument) return;
  mList->DocumentChanged();
  if (mList->GetEntries()->GetColumns().Update()) OfferColumns();
  FillWithText();
}

bool OutlineList::HasKeyboard() const {
  return mView->UI_HasKeyboardFocus() || mField->UI_HasKeyboardFocus();
}

void OutlineList::FocusRows() {
  if (mField->UI_IsVisible()) {
    mField->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  } else {
    mView->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  }
}

void OutlineList::FocusChanged() {
  if (!mDocument) return;
  mView->UI_InvalidateAll();
  if (!mField->UI_HasKeyboardFocus()) mDocument->GetEditor().Commit();
  if (mDocument) mFunctions.focusChanged();
}

void OutlineList::OpenRowMenu(const vek::trackview::Point& inLocalPoint) {
  vek::trackview::Point place = inLocalPoint;
  mView->LocalToGlobal(place);
  lumcore::geom::PointT<int> onScreen(static_cast<int>(place.x), static_cast<int>(place.y));
  mView->UI_GetWindowNode()->UI_WindowToScreen(onScreen);
  mFunctions.openRowMenu(onScreen);
}

bool OutlineList::Type(unsigned short inUnit) {
  if (inUnit < ' ' || !mDocument->GetEditor().BeginAtSelection()) return false;
  mField->Insert(inUnit);
  return true;
}

void OutlineList::ShowEditor() {
  if (!mDocument) return;
  const RowEditor& editor = mDocument->GetEditor();
  const std::size_t caret = std::exchange(mCaret, kAtEnd);
  if (editor.IsActive() == mField->UI_IsVisible()) return;
  if (editor.IsActive()) {
    mField->SetText(editor.GetText());
    const std::size_t place = std::min(caret, mField->GetText().size());
    mField->SetSelection(place, place);
    if (const OutlineRow* const row = mDocument->GetTree().FindRow(editor.GetRow()))
      mList->ShowRow(*row);
    mField->UI_Show(true);
    PlaceField();
    mField->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
    return;
  }
  // The keyboard goes to the rows before the field that has it goes.
  const auto* const window = UI_GetWindowNode();
  if (window && window->UI_GetFocusNode() == mField) {
    mView->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  }
  mField->UI_Show(false);
}

// Where its row is, also out of sight; what is typed goes into it there as well.
void OutlineList::PlaceField() {
  if (!mDocument || !mDocument->GetEditor().IsActive()) return;
  auto rect = mList->FindTextRect(mDocument->GetEditor().GetRow());
  if (!rect) rect = Rect(0, -2 * kRowHeight, kLeastField, kRowHeight);
  mList->GetTrackView()->DataToLocal(*rect);
  const Rect viewed = mListScroll->GetViewedContentRectF();
  const float left = std::max(0.0f, rect->x - kFieldMargin - viewed.x);
  mField->UI_SetLocalRectF(
      Rect(left, rect->y - viewed.y,
           std::max(kLeastField, std::min(rect->width + kFieldMargin, viewed.width - left)),
           rect->height));
}

}  // namespace outliner
