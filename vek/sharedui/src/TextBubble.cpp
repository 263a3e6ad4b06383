// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/TextBubble.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/IconType.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"
#include "vek/sharedui/src/KeyCapture.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/utility/VekResources.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

namespace {

// In units.
constexpr float kTextMargin = 7;
constexpr float kFrame = 1;
constexpr float kIcon = 16;
constexpr float kIconMargin = 2;

constexpr unsigned short kEllipsis = 0x2026;

boost::intrusive_ptr<lumui::drawbot::ImageInterface> RemoveImage(
    const lumui::drawbot::SupplierInterface& inSupplier) {
  const bool dark = lumui::ui::GetIconType() == lumui::ui::kIconsForDarkGround;
  return utility::GetLibraryImage(
      inSupplier,
      lumcore::utility::ToUTF8(std::string_view(dark ? "SP_Delete_Xs_N_D" : "SP_Delete_Xs_N")));
}

// A button reads '&' as the mark of its mnemonic.
UTF16String WithoutMnemonic(const UTF16String& inText) {
  UTF16String text;
  for (const unsigned short unit : inText)
    text.append(unit == '&' ? 2 : 1, unit);
  return text;
}

bool IsRemovingKey(KeyboardCode inCode) {
  return inCode == KeyboardCode(KeyboardCode::kBackspace) ||
         inCode == KeyboardCode(KeyboardCode::kDelete);
}

}  // namespace

TextBubble::TextBubble(const uisupport::KeyCommand& inKey, bool inIsNew,
                       const AssignFunction& inAssign, const BubbleFunction& inRemove,
                       const BubbleFunction& inFocused)
    : mKey(inKey),
      mIsNew(inIsNew),
      mAssign(inAssign),
      mRemove(inRemove),
      mFocused(inFocused),
      mRemoveIcon(new lumui::controls::UI_PictureButton) {
  UI_SetNodeID("TextBubble");
  lumui::controls::ButtonOptions options;
  options.changeFocusOnClick = true;
  options.springLoaded = false;  // down while it is edited
  SetOptions(options);
  UI_SetWantsKeyboardFocus(true);
  SetTextAlignment(lumui::drawbot::TextAlignment::kLeft);
  SetTextIndent(kTextMargin - kFrame);
  mRemoveIcon->UI_SetNodeID("CloseIcon");
  mRemoveIcon->SetImage(RemoveImage(*UI_GetDrawSupplier()));
  mRemoveIcon->UI_SetToolTip(lumcore::config::Localizer::Get()->GetLocalizedString(
      "$$$/vek/sharedui/ShortcutDialog/CloseIcon/RemoveTT=Remove"));
  mRemoveIcon->UI_SetWantsKeyboardFocus(false);  // the bubble has keys of its own for it
  UI_AddChild(mRemoveIcon);
  mOnPress.reset(new ChangedFunction([this](auto*) { BeginEdit(); }));
  NotifyWhenChangedInteractively(mOnPress);
  mOnRemove.reset(new ChangedFunction([this](auto*) {
    const BubbleFunction remove = mRemove;
    remove(*this);
  }));
  mRemoveIcon->NotifyWhenChangedInteractively(mOnRemove);
  ShowText(GetKeyText());
}

TextBubble::~TextBubble() {
  mOnPress->clear();
  mOnRemove->clear();
}

float TextBubble::GetMargins() {
  return 2 * kTextMargin + kIcon;
}

UTF16String TextBubble::GetKeyText() const {
  if (!mIsNew) {
    return uisupport::KeyCommandManager::GetShortcutString(mKey.GetKeyboardCode(),
                                                           mKey.GetModifiers());
  }
  return UTF16String(1, kEllipsis);
}

void TextBubble::ShowText(const UTF16String& inText) {
  SetText(WithoutMnemonic(inText));
  const UTF16String whole = GetKeyText();
  UI_SetToolTip(inText == whole ? UTF16String() : whole);
}

void TextBubble::SetKey(const uisupport::KeyCommand& inKey) {
  mKey = inKey;
  mIsNew = false;
  ShowText(GetKeyText());
  EndEdit();
}

void TextBubble::BeginEdit() {
  mEditing = true;
  SetDownState(true);
  UI_SetClaimsAllKeys(true);
}

void TextBubble::LetKeyGo() {
  mKeyHeld = false;
  UI_SetClaimsAllKeys(mEditing);
}

void TextBubble::EndEdit() {
  mEditing = false;
  SetDownState(false);
  // A mnemonic could take what a key that is still held down repeats.
  UI_SetClaimsAllKeys(mKeyHeld);
}

bool TextBubble::EditKey(lumui::ui::UI_Node* inNode, const KeyboardEvent& inEvent) {
  if (inEvent.GetCode() == KeyboardCode(KeyboardCode::kEscape)) {
    EndEdit();
    return true;
  }
  if (IsNoKeyToStore(inEvent)) return UI_TextButton::UI_DoKeyboardEvent(inNode, inEvent);
  mKeyHeld = true;
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  const AssignFunction assign = mAssign;
  assign(*this, inEvent);
  return true;
}

bool TextBubble::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode, const KeyboardEvent& inEvent) {
  if (IsFocusKey(inEvent)) return UI_TextButton::UI_DoKeyboardEvent(inNode, inEvent);
  if (inEvent.IsActionKeyUp()) LetKeyGo();
  if (inEvent.IsActionKeyDown()) {
    // The key that has just been assigned would be taken for the next thing to do.
    if (mKeyHeld && inEvent.IsRepeat()) return true;
    LetKeyGo();
    if (mEditing) return EditKey(inNode, inEvent);
    if (IsRemovingKey(inEvent.GetCode())) {
      const BubbleFunction remove = mRemove;
      remove(*this);
      return true;
    }
  }
  return UI_TextButton::UI_DoKeyboardEvent(inNode, inEvent);
}

void TextBubble::UI_FocusChanged(int inReason) {
  UI_TextButton::UI_FocusChanged(inReason);
  if (UI_HasKeyboardFocus()) return mFocused(*this);
  // A message box about the key takes the keyboard for a while.
  mKeyHeld = false;
  if (inReason != lumui::ui::kFocusWindow) EndEdit();
}

void TextBubble::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_TextButton::UI_SizeChanged(inRect);
  mRemoveIcon->UI_SetLocalRectF(lumcore::geom::RectT<float>(
      inRect.width - kIcon - kIconMargin, (inRect.height - kIcon) / 2, kIcon, kIcon));
}

}  // namespace vek::sharedui
