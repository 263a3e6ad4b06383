// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "LinesView.h"

#include <algorithm>
#include <cmath>

#include "Palette.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumui::controls::UI_ScrollView;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::MouseEvent;
using Flags = lumcore::utility::Flags<unsigned int>;

namespace {

constexpr float kHintMargin = 12;
constexpr float kHintHeight = 36;
constexpr float kHintSize = 13;

}  // namespace

LinesView::LinesView(float inLineHeight) : mLineHeight(inLineHeight) {}

boost::intrusive_ptr<UI_ScrollView> LinesView::MakeScrollView() {
  const boost::intrusive_ptr<UI_ScrollView> scrollView(
      new UI_ScrollView(Flags(UI_ScrollView::kNoHorizontalBar), this));
  mScrollView = scrollView.get();
  mScrollView->SetLineStep(mLineHeight);
  return scrollView;
}

void LinesView::LinesChanged() {
  const std::size_t count = CountLines();
  const std::size_t present = GetPresentLine();
  if (mScrollView) {
    mScrollView->SetContentRectF({0, 0, 1, static_cast<float>(count) * mLineHeight});
    mScrollView->Update();
  }
  if (present != kNoLine && (present != mPresent || count != mCount)) ShowLine(present);
  if (count != mCount) {
    NotifyAccessibleChange(*this, lumui::ui::AccessibleChange::kItems, ID());
  } else if (present != mPresent) {
    NotifyAccessibleChange(*this, lumui::ui::AccessibleChange::kFocus, GetFocus());
  }
  mCount = count;
  mPresent = present;
  UI_InvalidateAll();
}

void LinesView::ShowLine(std::size_t inLine) {
  if (mScrollView) mScrollView->ScrollIntoView(RectOfLine(inLine), false);
}

LinesView::Rect LinesView::RectOfLine(std::size_t inLine) const {
  const float width =
      mScrollView ? mScrollView->GetViewedContentRectF().width : UI_GetLocalRectF().width;
  return {0, static_cast<float>(inLine) * mLineHeight, width, mLineHeight};
}

std::size_t LinesView::LineAt(float inY) const {
  const float line = std::floor(inY / mLineHeight);
  if (line < 0 || line >= static_cast<float>(CountLines())) return kNoLine;
  return static_cast<std::size_t>(line);
}

void LinesView::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const Rect clip = inDrawbot->GetClipBounds();
  inDrawbot->FillRect(clip, palette::Paper());
  const std::size_t count = CountLines();
  if (count == 0) {
    const float width = std::max(0.0f, UI_GetLocalRectF().width - 2 * kHintMargin);
    inDrawbot->DrawStringInRect(TextOfNoLines(),
                                inDrawbot->GetSupplier()->NewFont(nullptr, kHintSize),
                                palette::FaintInk(), {kHintMargin, 0, width, kHintHeight});
    return;
  }
  const std::size_t present = GetPresentLine();
  const auto first = static_cast<std::size_t>(std::max(0.0f, std::floor(clip.y / mLineHeight)));
  for (std::size_t line = first; line < count; ++line) {
    const Rect place = RectOfLine(line);
    if (place.y >= clip.Bottom()) break;
    const bool isLit = line == present && UI_HasKeyboardFocus();
    if (line == present) {
      inDrawbot->FillRect(place, isLit ? palette::Selection() : palette::IdleSelection());
    }
    DrawLine(*inDrawbot, line, place, isLit);
  }
}

bool LinesView::UI_DoMouseEvent(lumui::ui::UI_Node*, const MouseEvent& inEvent) {
  if (inEvent.GetAction() != MouseEvent::kActionPress ||
      !inEvent.IsButton(MouseEvent::kLeftButton)) {
    return false;
  }
  UI_SetKeyboardFocus(lumui::ui::kFocusPointer);
  const std::size_t line = LineAt(inEvent.GetPosition().y);
  if (line != kNoLine) Choose(line, inEvent.GetClickCount() == 2);
  return true;
}

// kNoLine for a key that goes nowhere.
std::size_t LinesView::FindKeyTarget(unsigned inCode) const {
  const std::size_t count = CountLines();
  if (count == 0) return kNoLine;
  const float height = mScrollView ? mScrollView->GetViewedContentRectF().height : 0;
  const auto page = static_cast<std::size_t>(std::max(1.0f, height / mLineHeight - 1));
  const std::size_t last = count - 1;
  const std::size_t present = GetPresentLine();
  const bool isNone = present == kNoLine;
  switch (inCode) {
    case KeyboardCode::kUpArrow:
      return isNone ? last : present - std::min<std::size_t>(present, 1);
    case KeyboardCode::kDownArrow:
      return isNone ? 0 : std::min(last, present + 1);
    case KeyboardCode::kPageUp:
      return isNone ? last : present - std::min(present, page);
    case KeyboardCode::kPageDown:
      return isNone ? 0 : std::min(last, present + page);
    case KeyboardCode::kHome:
      return 0;
    case KeyboardCode::kEnd:
      return last;
    default:
      return kNoLine;
  }
}

bool LinesView::UI_DoKeyboardEvent(lumui::ui::UI_Node*, const KeyboardEvent& inEvent) {
  if (!inEvent.IsActionKeyDown() || !inEvent.GetModKey().IsEmpty()) return false;
  const unsigned code = inEvent.GetCode().GetControlCode(false);
  const bool isReturn = code == KeyboardCode::kReturn || code == KeyboardCode::kEnter;
  const std::size_t line = isReturn ? GetPresentLine() : FindKeyTarget(code);
  if (line == kNoLine && !isReturn) return false;
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  if (line != kNoLine && (isReturn || line != GetPresentLine())) Choose(line, isReturn);
  return true;
}

void LinesView::UI_FocusChanged(int inReason) {
  UI_SubView::UI_FocusChanged(inReason);
  // The release of a key that is held now goes to somebody else.
  if (!UI_HasKeyboardFocus()) vek::uisupport::KeyCommandManager::Get().RouteEndHoldCommand();
  UI_InvalidateAll();
}

int LinesView::GetChildCount(const ID& inParent) const {
  return inParent.IsNode() ? static_cast<int>(CountLines()) : 0;
}

LinesView::ID LinesView::GetChild(const ID&, int inIndex) const {
  return {this, static_cast<std::uint64_t>(inIndex)};
}

LinesView::ID LinesView::GetParent(const ID&) const {
  return {};
}

int LinesView::GetIndex(const ID& inItem) const {
  return inItem.value < CountLines() ? static_cast<int>(inItem.value) : -1;
}

bool LinesView::Describe(const ID& inItem, lumui::ui::AccessibleItem& outItem) const {
  using namespace lumui::ui;
  if (inItem.IsNode()) {
    outItem.role = AccessibleRole::kList;
    outItem.name = NameOfList();
    return true;
  }
  if (inItem.value >= CountLines()) return false;
  const auto line = static_cast<std::size_t>(inItem.value);
  const bool isPresent = line == GetPresentLine();
  outItem.role = AccessibleRole::kListItem;
  outItem.name = TextOfLine(line);
  outItem.rect = RectOfLine(line);
  outItem.states = kAccessibleSelectable | kAccessibleFocusable;
  if (isPresent) outItem.states |= kAccessibleSelected;
  if (isPresent && UI_HasKeyboardFocus()) outItem.states |= kAccessibleFocused;
  outItem.actions = kAccessiblePress | kAccessibleSelect | kAccessibleShow;
  return true;
}

LinesView::ID LinesView::GetAt(const lumcore::geom::PointT<float>& inPosition) const {
  const std::size_t line = LineAt(inPosition.y);
  return line == kNoLine ? ID() : ID{this, line};
}

LinesView::ID LinesView::GetFocus() const {
  const std::size_t present = GetPresentLine();
  return present == kNoLine ? ID() : ID{this, present};
}

bool LinesView::Perform(const ID& inItem, lumui::ui::AccessibleAction inAction) {
  if (inItem.IsNode() || inItem.value >= CountLines()) return false;
  const auto line = static_cast<std::size_t>(inItem.value);
  if (inAction == lumui::ui::kAccessibleShow) {
    ShowLine(line);
  } else if (inAction == lumui::ui::kAccessiblePress || inAction == lumui::ui::kAccessibleSelect) {
    Choose(line, inAction == lumui::ui::kAccessiblePress);
  } else {
    return false;
  }
  return true;
}

}  // namespace outliner
