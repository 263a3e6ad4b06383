// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ksv/KeyboardView.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "lumcore/utility/RefCounted.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/AccessibleList.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/PointerEvent.h"

namespace lumui::utility::ksv {

namespace {

using lumcore::geom::PointT;
using lumcore::geom::RectT;
using ui::KeyboardCode;
using ui::PointerEvent;

unsigned char ModifierOf(unsigned short inControlCode) {
  switch (inControlCode) {
    case KeyboardCode::kShiftKey:
      return ui::kModShift;
    case KeyboardCode::kControlKey:
      return ui::kModCommand;
    case KeyboardCode::kAltKey:
      return ui::kModAlt;
    default:
      return 0;
  }
}

PointT<float> MiddleOf(const RectT<float>& inRect) {
  return PointT<float>(inRect.x + inRect.width / 2, inRect.y + inRect.height / 2);
}

}  // namespace

// The keys as buttons, each with its cap and what it does with the present modifiers.
class KeyboardView::Accessible : public ui::AccessibleList {
 public:
  explicit Accessible(KeyboardView& inView) : AccessibleList(inView), mView(inView) {}

 protected:
  std::size_t DoCount() const override { return mView.mKeys.size(); }
  ui::AccessibleItem DoDescribe(std::size_t inKey) const override {
    const KeyShape& key = mView.mKeys[inKey];
    const bool isModifier = !key.modifier.IsEmpty();
    ui::AccessibleItem item;
    item.role = ui::AccessibleRole::kButton;
    item.name = key.cap;
    item.rect = mView.Placed(key.rect);
    const auto found = mView.mCommands.find(mView.mUses[inKey].command);
    if (found != mView.mCommands.end()) {
      item.value = found->second.name;
      item.description = mView.PathOf(found->second);
    }
    if (!isModifier && key.code == KeyboardCode()) {
      item.states = ui::kAccessibleDisabled;
      return item;
    }
    item.actions = ui::kAccessiblePress;
    item.states = ui::kAccessibleSelectable | (isModifier ? 0u : ui::kAccessibleFocusable);
    const bool isOn = isModifier && mView.GetModifiers().HasAny(key.modifier.GetBits());
    if (isOn || mView.mSelected == inKey) item.states |= ui::kAccessibleSelected;
    if (DoFindFocus() == inKey) item.states |= ui::kAccessibleFocused;
    return item;
  }
  Index DoFindAt(const PointT<float>& inPosition) const override {
    return mView.FindAt(inPosition);
  }
  Index DoFindFocus() const override {
    return mView.UI_HasKeyboardFocus() ? mView.mSelected : std::nullopt;
  }
  bool DoPerform(std::size_t inKey, ui::AccessibleAction inAction) override {
    if (inAction != ui::kAccessiblePress || DoDescribe(inKey).actions == 0) return false;
    mView.PressKey(inKey);
    return true;
  }

 private:
  KeyboardView& mView;
};

KeyboardView::KeyboardView(const IDelegateInterface& inDelegate)
    : mDelegate(inDelegate),
      mForm(GetLikelyForm()),
      mKeys(MakeKeyboard(mForm)),
      mAccessible(std::make_unique<Accessible>(*this)) {
  UI_SetWantsKeyboardFocus(true);
  Refresh();
}

KeyboardView::~KeyboardView() = default;

ui::AccessibleItems* KeyboardView::UI_GetAccessibleItems() {
  return mAccessible.get();
}

void KeyboardView::SetForm(KeyboardForm inForm) {
  mForm = inForm;
  mKeys = MakeKeyboard(inForm);
  mSelected = mHovered = mDrop = std::nullopt;
  Refresh();
}

void KeyboardView::SetModifiers(ui::ModifierKeys inModifiers) {
  mSwitched = inModifiers;
  mHeld = ui::ModifierKeys();
  Refresh();
}

void KeyboardView::Refresh() {
  mCommands.clear();
  for (Command& command : mDelegate.GetCommands())
    mCommands.emplace(command.id, std::move(command));
  mUses.clear();
  for (const KeyShape& key : mKeys) {
    const bool can = key.code != KeyboardCode();
    mUses.push_back(can ? mDelegate.GetUse(key.code, GetModifiers()) : KeyUse());
  }
  ShowToolTip();
  UI_InvalidateAll();
  mAccessible->Notify(ui::AccessibleChange::kItems);
}

KeyboardCode KeyboardView::GetSelectedKey() const {
  return mSelected ? mKeys[*mSelected].code : KeyboardCode();
}

void KeyboardView::SetSelectedKey(KeyboardCode inCode) {
  mSelected = FindKey(inCode);
  UI_InvalidateAll();
}

void KeyboardView::SetDropKey(KeyboardCode inCode) {
  const Index key = FindKey(inCode);
  if (key == mDrop) return;
  mDrop = key;
  UI_InvalidateAll();
}

float KeyboardView::GetPitch() const {
  const auto& rect = UI_GetLocalRectF();
  return std::min(rect.width / kKeyboardWidth, rect.height / kKeyboardHeight);
}

RectT<float> KeyboardView::Placed(const RectT<float>& inKeyRect) const {
  const auto& all = UI_GetLocalRectF();
  const float pitch = GetPitch();
  const float left = (all.width - pitch * kKeyboardWidth) / 2;
  const float top = (all.height - pitch * kKeyboardHeight) / 2;
  return RectT<float>(left + inKeyRect.x * pitch, top + inKeyRect.y * pitch,
                      inKeyRect.width * pitch, inKeyRect.height * pitch);
}

KeyboardView::Index KeyboardView::FindAt(const PointT<float>& inPoint) const {
  for (std::size_t i = 0; i < mKeys.size(); ++i) {
    const bool meets =
        Placed(mKeys[i].rect).Contains(inPoint) || Placed(mKeys[i].wing).Contains(inPoint);
    if (meets) return i;
  }
  return std::nullopt;
}

// What the number pad sends while it does not type digits is the key beside it.
KeyboardView::Index KeyboardView::FindKey(KeyboardCode inCode) const {
  if (inCode == KeyboardCode()) return std::nullopt;
  const bool character = inCode.IsPrintable();
  for (std::size_t i = 0; i < mKeys.size(); ++i) {
    const KeyboardCode code = mKeys[i].code;
    const bool same = character ? code == inCode
                                : !code.IsPrintable() &&
                                      code.GetControlCode(false) == inCode.GetControlCode(false);
    if (same && code != KeyboardCode()) return i;
  }
  return std::nullopt;
}

KeyboardCode KeyboardView::GetKeyAt(const PointT<float>& inPoint) const {
  const Index key = FindAt(inPoint);
  return key ? mKeys[*key].code : KeyboardCode();
}

RectT<float> KeyboardView::GetRectOf(KeyboardCode inCode) const {
  const Index key = FindKey(inCode);
  return key ? Placed(mKeys[*key].rect) : RectT<float>();
}

void KeyboardView::Changed() {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  Refresh();
  const auto changed = mChanged;
  if (changed) changed();
}

void KeyboardView::Choose(Index inKey) {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  mSelected = inKey;
  Changed();
  if (UI_HasKeyboardFocus()) mAccessible->Notify(ui::AccessibleChange::kFocus, mSelected);
}

bool KeyboardView::UI_DoMouseEvent(ui::UI_Node*, const ui::MouseEvent& inEvent) {
  const bool leaves = inEvent.GetAction() == PointerEvent::kActionLeave;
  const Index key = leaves ? std::nullopt : FindAt(inEvent.GetPosition());
  if (leaves || inEvent.GetAction() == PointerEvent::kActionMove) {
    if (key == mHovered) return true;
    mHovered = key;
    ShowToolTip();
    UI_InvalidateAll();
    return true;
  }
  if (inEvent.GetAction() != PointerEvent::kActionPress) return false;
  UI_SetKeyboardFocus(ui::kFocusPointer);
  if (!key || !inEvent.IsButton(PointerEvent::kLeftButton)) return true;
  PressKey(*key);
  return true;
}

void KeyboardView::PressKey(std::size_t inKey) {
  const unsigned char modifier = mKeys[inKey].modifier.GetBits();
  if (modifier != 0) {
    const bool on = mSwitched.Has(modifier);
    on ? mSwitched.Clear(modifier) : mSwitched.Set(modifier);
    Changed();
  } else if (mKeys[inKey].code != KeyboardCode()) {
    Choose(inKey);
  }
}

bool KeyboardView::UI_DoKeyboardEvent(ui::UI_Node*, const ui::KeyboardEvent& inEvent) {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  if (inEvent.GetAction() == ui::KeyboardEvent::kActionCharacter) return true;
  const KeyboardCode code = inEvent.GetCode();
  const auto control = static_cast<unsigned short>(code.GetControlCode(false));
  const bool down = inEvent.IsActionKeyDown();
  if (HandleModifierKey(control, down)) return true;
  if (!down) return FindKey(code).has_value();
  const bool shiftAtMost = !inEvent.GetModKey().HasAny(ui::kModCommand | ui::kModAlt);
  if (control == KeyboardCode::kTab && shiftAtMost) return false;
  if (control == KeyboardCode::kEscape && inEvent.GetModKey().IsEmpty()) return false;
  if (inEvent.GetModKey().IsEmpty() && !code.IsPrintable() && HandleWalk(control)) return true;
  const Index key = FindKey(code);
  if (!key) return false;
  mSwitched = inEvent.GetModKey();
  Choose(key);
  return true;
}

bool KeyboardView::HandleModifierKey(unsigned short inControlCode, bool inDown) {
  const unsigned char modifier = ModifierOf(inControlCode);
  if (modifier == 0) return false;
  inDown ? mHeld.Set(modifier) : mHeld.Clear(modifier);
  Changed();
  return true;
}

bool KeyboardView::HandleWalk(unsigned short inControlCode) {
  switch (inControlCode) {
    case KeyboardCode::kLeftArrow:
      Walk(-1, 0);
      return true;
    case KeyboardCode::kRightArrow:
      Walk(1, 0);
      return true;
    case KeyboardCode::kUpArrow:
      Walk(0, -1);
      return true;
    case KeyboardCode::kDownArrow:
      Walk(0, 1);
      return true;
    case KeyboardCode::kReturn:
    case KeyboardCode::kDelete:
    case KeyboardCode::kBackspace: {
      const auto action = mAction;
      if (mSelected && action) action(inControlCode == KeyboardCode::kReturn);
      return true;
    }
    default:
      return false;
  }
}

// To the nearest key in that direction, where the way across counts more than the way along.
void KeyboardView::Walk(float inX, float inY) {
  const PointT<float> start = mSelected ? MiddleOf(mKeys[*mSelected].rect) : PointT<float>(-1, 0);
  Index best;
  float least = std::numeric_limits<float>::max();
  for (std::size_t i = 0; i < mKeys.size(); ++i) {
    if (mKeys[i].code == KeyboardCode()) continue;
    const PointT<float> middle = MiddleOf(mKeys[i].rect);
    const float along = (middle.x - start.x) * inX + (middle.y - start.y) * inY;
    const float across =
        std::abs((middle.x - start.x) * inY) + std::abs((middle.y - start.y) * inX);
    constexpr float kHalfKey = 0.5f;
    constexpr float kAcrossWeight = 3;
    const float distance = along + kAcrossWeight * across;
    if (along < kHalfKey || distance >= least) continue;
    least = distance;
    best = i;
  }
  if (best) Choose(best);
}

void KeyboardView::UI_FocusChanged(int) {
  // A key that is let go elsewhere is not told here.
  if (!UI_HasKeyboardFocus() && !mHeld.IsEmpty()) {
    mHeld = ui::ModifierKeys();
    Changed();
  }
  UI_InvalidateAll();
}

lumcore::UTF16String KeyboardView::PathOf(const Command& inCommand) {
  if (inCommand.category.empty()) return inCommand.name;
  return inCommand.category + lumcore::utility::ToUTF16(" > ") + inCommand.name;
}

void KeyboardView::ShowToolTip() {
  lumcore::UTF16String text;
  const int command = mHovered ? mUses[*mHovered].command : 0;
  const auto found = mCommands.find(command);
  if (found != mCommands.end()) {
    const Command& known = found->second;
    text = mDelegate.GetKeyText(mKeys[*mHovered].code, GetModifiers());
    text += lumcore::utility::ToUTF16(": ") + PathOf(known);
  }
  if (text != UI_GetToolTip()) UI_SetToolTip(text);
}

}  // namespace lumui::utility::ksv
