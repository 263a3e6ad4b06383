// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/BubbleField.h"

#include <algorithm>
#include <list>

#include "lumui/ui/KeyboardEvent.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

namespace {

constexpr float kGap = 3;  // units, between bubbles and lines
constexpr unsigned short kEllipsis = 0x2026;

}  // namespace

BubbleField::BubbleField(int inCommand, const Functions& inFunctions)
    : mCommand(inCommand), mFunctions(inFunctions) {
  UI_SetNodeID("BubbleField");
  ShowMappings();
}

BubbleField::~BubbleField() = default;

void BubbleField::Append(const uisupport::KeyCommand& inKey, bool inIsNew) {
  mBubbles.emplace_back(
      new TextBubble(inKey, inIsNew, mFunctions.assign, mFunctions.remove, mFunctions.focused));
  UI_AddChild(mBubbles.back());
}

void BubbleField::ShowMappings() {
  while (UI_GetChildCount() > 0)
    UI_RemoveChild(UI_GetChild(0));
  mBubbles.clear();
  std::list<uisupport::KeyCommand*> mappings;
  uisupport::KeyCommandManager::Get().GetShortcutList(mCommand, mappings);
  for (const uisupport::KeyCommand* mapping : mappings) {
    if (!mapping->GetIsRepeat()) Append(*mapping, false);
  }
  LayOutBubbles();
}

TextBubble& BubbleField::AddNew() {
  Append(uisupport::KeyCommand(mCommand, lumui::ui::KeyboardCode(), lumui::ui::ModifierKeys(),
                               lumui::ui::KeyboardEvent::kActionKeyDown, false, false),
         true);
  LayOutBubbles();
  TextBubble& bubble = *mBubbles.back();
  bubble.UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  bubble.BeginEdit();
  return bubble;
}

void BubbleField::Remove(TextBubble& inBubble) {
  const auto found = std::find(mBubbles.begin(), mBubbles.end(), &inBubble);
  if (found == mBubbles.end()) return;
  mBubbles.erase(found);
  UI_RemoveChild(&inBubble);
  LayOutBubbles();
}

bool BubbleField::HasNew() const {
  return std::any_of(mBubbles.begin(), mBubbles.end(),
                     [](const auto& inBubble) { return inBubble->IsNew(); });
}

std::vector<uisupport::KeyCommand> BubbleField::GetKeys() const {
  std::vector<uisupport::KeyCommand> keys;
  for (const auto& bubble : mBubbles) {
    if (!bubble->IsNew()) keys.push_back(bubble->GetKey());
  }
  return keys;
}

void BubbleField::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  LayOutBubbles();
}

lumcore::UTF16String BubbleField::Fitted(const lumcore::UTF16String& inText, float inWidth) const {
  lumcore::UTF16String text = inText;
  while (text.size() > 1 && mFunctions.measure(text) > inWidth) {
    // The ellipsis takes the place of one more character at a time.
    text.resize(text.size() - (text.back() == kEllipsis ? 2 : 1));
    text += kEllipsis;
  }
  return text;
}

void BubbleField::LayOutBubbles() {
  const float room = UI_GetLocalRectF().width;
  float x = 0;
  float y = 0;
  for (const auto& bubble : mBubbles) {
    const float wanted = mFunctions.measure(bubble->GetKeyText()) + TextBubble::GetMargins();
    const float width = room > 0 ? std::min(wanted, room) : wanted;
    if (x > 0 && room > 0 && x + width > room) {
      x = 0;
      y += TextBubble::kHeight + kGap;
    }
    bubble->ShowText(Fitted(bubble->GetKeyText(), width - TextBubble::GetMargins()));
    bubble->UI_SetLocalRectF(lumcore::geom::RectT<float>(x, y, width, TextBubble::kHeight));
    x += width + kGap;
  }
  const float height = y + TextBubble::kHeight;
  if (height == mHeight) return;
  mHeight = height;
  mFunctions.heightChanged(height);
}

}  // namespace vek::sharedui
