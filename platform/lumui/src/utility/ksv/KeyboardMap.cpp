// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ksv/KeyboardMap.h"

#include <algorithm>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/DrawUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_NodeManager.h"
#include "utility/ksv/CommandList.h"
#include "utility/ksv/KeyboardColors.h"

namespace lumui::utility::ksv {

namespace {

using lumcore::UTF16String;
using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumcore::utility::ReplaceInString;
using ui::KeyboardCode;

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// In units.
constexpr float kMargin = 12;
constexpr float kControlHeight = 26;
constexpr float kSideWidth = 300;
constexpr float kFormWidth = 110;
constexpr float kHeadingSize = 18;
// Of the height: what the list has at least.
constexpr float kLeastListPart = 0.3f;
constexpr float kDragLabelHeight = 24;

}  // namespace

// The command's name beside the pointer.
class KeyboardMap::DragLabel : public ui::UI_SubView {
 public:
  explicit DragLabel(const UTF16String& inText) : mText(inText) { UI_SetDisabled(true); }

  void UI_Draw(drawbot::Drawbot* inDrawbot) const override {
    const RectT<float> all(0, 0, UI_GetLocalRectF().width, UI_GetLocalRectF().height);
    const auto font = inDrawbot->GetSupplier()->NewFont(nullptr, ui::GetFontSize(0));
    inDrawbot->FillRect(all, ThemeColor(ui::themev5::kColor_AccentButtonBackground, 0.4f));
    inDrawbot->DrawStringInRect(mText, font, ThemeColor(ui::themev5::kColor_AccentButtonText, 1),
                                all, drawbot::TextAlignment::kCenter);
  }
  float GetGoodWidth() const {
    const auto font = UI_GetDrawSupplier()->NewFont(nullptr, ui::GetFontSize(0));
    return font->MeasureWidth(mText) + 2 * kMargin;
  }

 private:
  UTF16String mText;
};

KeyboardMap::KeyboardMap(IDelegateInterface& inDelegate)
    : mDelegate(inDelegate),
      mKeyboard(new KeyboardView(inDelegate)),
      mList(new CommandList(inDelegate)),
      mSearch(new controls::UI_TextEdit),
      mForm(new controls::UI_Popup),
      mKeyText(new controls::UI_StaticText),
      mUseText(new controls::UI_StaticText),
      mAssign(new controls::UI_TextButton),
      mRemove(new controls::UI_TextButton) {
  AddControls();
  Connect();
  ShowState();
}

KeyboardMap::~KeyboardMap() {
  mDelegate.SetChangedFunction({});
  mKeyboard->SetChangedFunction({});
  mKeyboard->SetActionFunction({});
  mList->SetChangedFunction({});
  mList->SetActivatedFunction({});
  mList->SetDragFunction({});
  for (const auto& function : mFunctions)
    function->clear();
}

void KeyboardMap::AddControls() {
  SetLayoutChildren(false);
  mKeyboard->UI_SetNodeID("Keyboard");
  mList->UI_SetNodeID("Commands");
  mSearch->UI_SetNodeID("Search");
  mForm->UI_SetNodeID("Form");
  mKeyText->UI_SetNodeID("Key");
  mUseText->UI_SetNodeID("Use");
  mAssign->UI_SetNodeID("Assign");
  mRemove->UI_SetNodeID("Remove");
  mSearch->SetPlaceholder(Localized("$$$/lumui/ksv/Search=Search commands"));
  mForm->SetItems(
      {Localized("$$$/lumui/ksv/ANSI=ANSI keys"), Localized("$$$/lumui/ksv/ISO=ISO keys")});
  mForm->SetValue(mKeyboard->GetForm() == KeyboardForm::kISO ? 1 : 0);
  mKeyText->SetFontSize(kHeadingSize);
  mUseText->SetMultiLine(true);
  mRemove->SetText(Localized("$$$/lumui/ksv/Remove=&Remove Shortcut"));
  for (ui::UI_Node* node :
       {static_cast<ui::UI_Node*>(mKeyboard.get()), static_cast<ui::UI_Node*>(mSearch.get()),
        static_cast<ui::UI_Node*>(mList.get()), static_cast<ui::UI_Node*>(mForm.get()),
        static_cast<ui::UI_Node*>(mKeyText.get()), static_cast<ui::UI_Node*>(mUseText.get()),
        static_cast<ui::UI_Node*>(mAssign.get()), static_cast<ui::UI_Node*>(mRemove.get())}) {
    UI_AddChild(node);
  }
}

boost::shared_ptr<KeyboardMap::ChangedFunction> KeyboardMap::Calls(
    const boost::function<void()>& inFunction) {
  mFunctions.push_back(boost::shared_ptr<ChangedFunction>(
      new ChangedFunction([inFunction](auto*) { inFunction(); })));
  return mFunctions.back();
}

void KeyboardMap::Connect() {
  mDelegate.SetChangedFunction([this] { KeysChanged(); });
  mKeyboard->SetChangedFunction([this] { KeyChosen(); });
  mKeyboard->SetActionFunction([this](bool inAssign) { inAssign ? Assign() : Remove(); });
  mList->SetChangedFunction([this] { ShowState(); });
  mList->SetActivatedFunction([this] { Assign(); });
  mList->SetDragFunction([this](const PointT<float>& inPosition, bool inDone, bool inCancelled) {
    Dragged(inPosition, inDone, inCancelled);
  });
  mSearch->NotifyWhenChanged(Calls([this] { mList->SetFilter(mSearch->GetText()); }));
  mForm->NotifyWhenChanged(Calls([this] {
    mKeyboard->SetForm(mForm->GetValue() == 1 ? KeyboardForm::kISO : KeyboardForm::kANSI);
    ShowState();
  }));
  mAssign->NotifyWhenChanged(Calls([this] { Assign(); }));
  mRemove->NotifyWhenChanged(Calls([this] { Remove(); }));
}

int KeyboardMap::GetSelectedCommand() const {
  return mList->GetSelectedCommand();
}

void KeyboardMap::SelectCommand(int inCommand) {
  mList->SelectCommand(inCommand);
}

// The delegate may ask the user, and the window with it and all this be closed meanwhile.
void KeyboardMap::Assign() {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const boost::intrusive_ptr<ui::UI_Node> window = UI_GetWindowNode();
  const KeyboardCode key = mKeyboard->GetSelectedKey();
  const int command = mList->GetSelectedCommand();
  if (key != KeyboardCode() && command != 0) {
    mDelegate.Assign(command, key, mKeyboard->GetModifiers());
  }
}

void KeyboardMap::Remove() {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const boost::intrusive_ptr<ui::UI_Node> window = UI_GetWindowNode();
  const KeyboardCode key = mKeyboard->GetSelectedKey();
  if (key != KeyboardCode()) mDelegate.Remove(key, mKeyboard->GetModifiers());
}

void KeyboardMap::KeysChanged() {
  mKeyboard->Refresh();
  mList->Refresh();
  ShowState();
}

// The list goes along, so that a command's other keys are seen.
void KeyboardMap::KeyChosen() {
  const KeyboardCode key = mKeyboard->GetSelectedKey();
  const int used =
      key != KeyboardCode() ? mDelegate.GetUse(key, mKeyboard->GetModifiers()).command : 0;
  if (used != 0) mList->SelectCommand(used);
  ShowState();
}

void KeyboardMap::ShowState() {
  const KeyboardCode key = mKeyboard->GetSelectedKey();
  const Command* const chosen = mList->FindCommand(mList->GetSelectedCommand());
  const bool hasKey = key != KeyboardCode();
  const ui::ModifierKeys modifiers = mKeyboard->GetModifiers();
  const KeyUse use = hasKey ? mDelegate.GetUse(key, modifiers) : KeyUse();
  const Command* const used = mList->FindCommand(use.command);
  const UTF16String keyText = hasKey ? mDelegate.GetKeyText(key, modifiers) : UTF16String();
  mKeyText->SetText(hasKey ? keyText : Localized("$$$/lumui/ksv/NoKey=No key chosen"));
  UTF16String text;
  if (!hasKey) {
    text = Localized(
        "$$$/lumui/ksv/Help=Choose a key above, or drag a command from the list onto it. Ctrl, "
        "Shift "
        "and Alt on the keyboard switch the modifiers.");
  } else if (!used) {
    text = Localized("$$$/lumui/ksv/Free=This key is free.");
  } else {
    text = used->category.empty() ? used->name
                                  : ReplaceInString(Localized("$$$/lumui/ksv/Path=@0 > @1"),
                                                    {used->category, used->name});
    if (!used->description.empty()) text += UTF16String(1, '\n') + used->description;
    if (use.isProtected)
      text += UTF16String(1, '\n') + Localized("$$$/lumui/ksv/Reserved=This key is reserved.");
  }
  mUseText->SetText(text);
  const bool can = hasKey && chosen && use.command != chosen->id && !use.isProtected;
  mAssign->SetText(
      can ? ReplaceInString(Localized("$$$/lumui/ksv/AssignTo=&Assign to @0"), {keyText})
          : Localized("$$$/lumui/ksv/Assign=&Assign"));
  mAssign->UI_SetDisabled(!can);
  mRemove->UI_SetDisabled(use.command == 0 || use.isProtected);
}

void KeyboardMap::Dragged(const PointT<float>& inPosition, bool inDone, bool inCancelled) {
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const int command = mList->GetSelectedCommand();
  const Command* const dragged = mList->FindCommand(command);
  const auto in = [&](const ui::UI_Node& inNode) {
    PointT<int> point(static_cast<int>(inPosition.x), static_cast<int>(inPosition.y));
    inNode.UI_GlobalToLocal(point);
    return PointT<float>(static_cast<float>(point.x), static_cast<float>(point.y));
  };
  const KeyboardCode key = mKeyboard->GetKeyAt(in(*mKeyboard));
  if (!inDone && dragged) {
    if (!mDragLabel) {
      mDragLabel = new DragLabel(dragged->name);
      UI_AddChild(mDragLabel);
    }
    const PointT<float> here = in(*this);
    mDragLabel->UI_SetLocalRectF(RectT<float>(here.x + kMargin, here.y + kMargin,
                                              mDragLabel->GetGoodWidth(), kDragLabelHeight));
    mKeyboard->SetDropKey(key);
    const bool nowhere = key == KeyboardCode();
    ui::UI_NodeManager::Get(true)->SetCursor(nowhere ? ui::CursorShape::kForbidden
                                                     : ui::CursorShape::kClosedHand);
    return;
  }
  if (mDragLabel) UI_RemoveChild(mDragLabel.get());
  mDragLabel = nullptr;
  mKeyboard->SetDropKey(KeyboardCode());
  if (inCancelled || !dragged || key == KeyboardCode()) return;
  mKeyboard->SetSelectedKey(key);
  ShowState();
  const boost::intrusive_ptr<ui::UI_Node> window = UI_GetWindowNode();
  mDelegate.Assign(command, key, mKeyboard->GetModifiers());
}

// The keyboard takes the width, as far as the list keeps its part of the height.
void KeyboardMap::UI_SizeChanged(const RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  const float width = inRect.width - 2 * kMargin;
  const float room = inRect.height - 3 * kMargin;
  const float keyboard = std::max(
      0.0f, std::min(width * kKeyboardHeight / kKeyboardWidth, room * (1 - kLeastListPart)));
  mKeyboard->UI_SetLocalRectF(RectT<float>(kMargin, kMargin, width, keyboard));
  const float top = keyboard + 2 * kMargin;
  const float bottom = inRect.height - kMargin;
  const float side = kMargin + width - kSideWidth;
  const float listWidth = width - kSideWidth - 2 * kMargin;
  mSearch->UI_SetLocalRectF(RectT<float>(kMargin, top, listWidth, kControlHeight));
  const float listTop = top + kControlHeight + kMargin / 2;
  mList->UI_SetLocalRectF(RectT<float>(kMargin, listTop, listWidth, bottom - listTop));
  mKeyText->UI_SetLocalRectF(
      RectT<float>(side, top, kSideWidth - kFormWidth - kMargin, kControlHeight));
  mForm->UI_SetLocalRectF(
      RectT<float>(side + kSideWidth - kFormWidth, top, kFormWidth, kControlHeight));
  const float buttons = bottom - 2 * kControlHeight - kMargin / 2;
  mUseText->UI_SetLocalRectF(
      RectT<float>(side, listTop, kSideWidth, std::max(0.0f, buttons - listTop - kMargin / 2)));
  mAssign->UI_SetLocalRectF(RectT<float>(side, buttons, kSideWidth, kControlHeight));
  mRemove->UI_SetLocalRectF(
      RectT<float>(side, bottom - kControlHeight, kSideWidth, kControlHeight));
}

}  // namespace lumui::utility::ksv
