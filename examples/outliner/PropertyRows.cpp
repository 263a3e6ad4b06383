// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "PropertyRows.h"

#include <algorithm>
#include <utility>

#include "Palette.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/controls/UI_ScrollView.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/drawbot/Drawbot.h"

namespace outliner {

using lumcore::UTF16String;
using lumui::controls::UI_ScrollView;
using Rect = lumcore::geom::RectT<float>;

namespace {

constexpr float kMargin = 10;
constexpr float kGap = 6;
constexpr float kFieldHeight = 26;
constexpr float kLongHeight = 72;
constexpr float kLabelShare = 0.32f;  // of the width
constexpr float kLeastLabel = 50;
constexpr float kMostLabel = 90;
constexpr float kRemoverWidth = 26;

float HeightOf(const Property& inProperty) {
  return inProperty.isLong ? kLongHeight : kFieldHeight;
}

}  // namespace

class PropertyRows::Content final : public lumui::ui::UI_SubView {
 public:
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override {
    inDrawbot->FillRect(inDrawbot->GetClipBounds(), palette::Strip());
  }
};

class PropertyRows::Field final : public lumui::controls::UI_TextEdit {
 public:
  Field(PropertyRows& inRows, bool inIsLong) : UI_TextEdit(inIsLong), mOwner(&inRows) {}
  void Detach() { mOwner = nullptr; }

  void UI_FocusChanged(int inReason) override {
    UI_TextEdit::UI_FocusChanged(inReason);
    if (mOwner && UI_HasKeyboardFocus()) mOwner->ScrollTo(*this);
  }

 private:
  PropertyRows* mOwner;
};

PropertyRows::PropertyRows()
    : mContent(new Content),
      mScrollView(new UI_ScrollView(
          lumcore::utility::Flags<unsigned int>(UI_ScrollView::kNoHorizontalBar), mContent)),
      mScrolled(new ChangedFunction([this](auto*) { PlaceFields(); })) {
  UI_SetNodeID("PropertyRows");
  mScrollView->GetScrollBarY()->NotifyWhenChangedInteractively(mScrolled);
  UI_AddChild(mScrollView);
}

PropertyRows::~PropertyRows() {
  mScrolled->clear();
  DropFields();
}

bool PropertyRows::HasFieldsFor(const std::vector<Property>& inProperties) const {
  return std::equal(mRows.begin(), mRows.end(), inProperties.begin(), inProperties.end(),
                    [](const Row& inRow, const Property& inProperty) {
                      return inRow.property.name == inProperty.name &&
                             inRow.property.isLong == inProperty.isLong &&
                             inRow.property.canBeRemoved == inProperty.canBeRemoved;
                    });
}

void PropertyRows::Show(const std::vector<Property>& inProperties, const FindTyped& inFindTyped) {
  if (!HasFieldsFor(inProperties)) MakeFields(inProperties);
  for (std::size_t at = 0; at < mRows.size(); ++at) {
    Row& row = mRows[at];
    row.property = inProperties[at];
    const UTF16String* const typed = inFindTyped(row.property);
    const UTF16String& text = typed ? *typed : row.property.value;
    if (row.field->GetText() != text) row.field->SetText(text);
    row.field->SetPlaceholder(
        row.property.isMixed ? Localized("$$$/outliner/Properties/Mixed=Mixed") : UTF16String());
  }
}

void PropertyRows::MakeFields(const std::vector<Property>& inProperties) {
  UTF16String focused;
  for (const Row& row : mRows) {
    if (row.field->UI_HasKeyboardFocus()) focused = row.property.name;
  }
  DropFields();
  for (const Property& property : inProperties) {
    Row row;
    row.property = property;
    row.label.reset(new lumui::controls::UI_StaticText);
    row.label->SetText(property.label);
    row.label->SetAlignment(lumui::drawbot::TextAlignment::kRight);
    row.field.reset(new Field(*this, property.isLong));
    row.field->UI_SetNodeID(lumcore::utility::ToUTF8(property.name));
    mContent->UI_AddChild(row.label);
    mContent->UI_AddChild(row.field);
    if (property.canBeRemoved) {
      row.remover.reset(new lumui::controls::UI_TextButton);
      row.remover->UI_SetNodeID(
          lumcore::utility::ToUTF8(lumcore::utility::ToUTF16("remove ") + property.name));
      row.remover->SetText(lumcore::utility::ToUTF16("\xC3\x97"));
      row.remover->UI_SetToolTip(lumcore::utility::ReplaceInString(
          Localized("$$$/outliner/Properties/Remove=Remove the attribute \"@0\""),
          {property.name}));
      mContent->UI_AddChild(row.remover);
    }
    Connect(row);
    mRows.push_back(std::move(row));
  }
  PlaceFields();
  if (!focused.empty()) FocusField(focused);
}

// By name, as the rows may be others when the function is called.
void PropertyRows::Connect(Row& ioRow) {
  const auto find = [this, name = ioRow.property.name]() -> Row* {
    const auto found = std::find_if(mRows.begin(), mRows.end(),
                                    [&](const Row& inRow) { return inRow.property.name == name; });
    return found == mRows.end() ? nullptr : &*found;
  };
  ioRow.edited.reset(new ChangedFunction([this, find](Message* inMessage) {
    const Row* const row = find();
    if (!row) return;
    if (inMessage->GetChange() == Message::kChanged) {
      mFunctions.commit();
    } else {
      mFunctions.typed(row->property, row->field->GetText());
    }
  }));
  ioRow.field->NotifyWhenChangedInteractively(ioRow.edited);
  if (!ioRow.remover) return;
  ioRow.removed.reset(new ChangedFunction([this, find](Message*) {
    if (const Row* const row = find()) mFunctions.remove(Property(row->property));
  }));
  ioRow.remover->NotifyWhenChanged(ioRow.removed);
}

// What is typed in a field is somebody else's by now.
void PropertyRows::DropFields() {
  for (const Row& row : std::exchange(mRows, {})) {
    row.edited->clear();
    if (row.removed) row.removed->clear();
    row.field->Detach();
    mContent->UI_RemoveChild(row.label.get());
    mContent->UI_RemoveChild(row.field.get());
    if (row.remover) mContent->UI_RemoveChild(row.remover.get());
  }
}

bool PropertyRows::FocusField(const UTF16String& inName) {
  for (const Row& row : mRows) {
    if (row.property.name == inName) {
      return boost::intrusive_ptr<Field>(row.field)->UI_SetKeyboardFocus(lumui::ui::kFocusTab);
    }
  }
  return false;
}

void PropertyRows::UI_SizeChanged(const Rect& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  mScrollView->UI_SetLocalRectF({0, 0, inRect.width, inRect.height});
  PlaceFields();
}

void PropertyRows::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
}

// The content node never moves: what stands in it is moved against the offset.
void PropertyRows::PlaceFields() {
  float height = kGap;
  bool hasRemovers = false;
  for (const Row& row : mRows) {
    height += HeightOf(row.property) + kGap;
    hasRemovers = hasRemovers || row.remover;
  }
  mScrollView->SetContentRectF({0, 0, 1, height});
  mScrollView->Update();
  const Rect view = mScrollView->GetViewedContentRectF();
  const float label = std::clamp(view.width * kLabelShare, kLeastLabel, kMostLabel);
  const float left = kMargin + label + kMargin;
  const float right = view.width - kMargin - (hasRemovers ? kRemoverWidth + kGap : 0);
  float top = kGap - view.y;
  for (const Row& row : mRows) {
    row.label->UI_SetLocalRectF({kMargin, top, label, kFieldHeight});
    row.field->UI_SetLocalRectF({left, top, std::max(0.0f, right - left), HeightOf(row.property)});
    if (row.remover) {
      row.remover->UI_SetLocalRectF({right + kGap, top, kRemoverWidth, kFieldHeight});
    }
    top += HeightOf(row.property) + kGap;
  }
}

void PropertyRows::ScrollTo(const Field& inField) {
  const Rect& place = inField.UI_GetLocalRectF();
  const float offset = mScrollView->GetViewedContentRectF().y;
  mScrollView->ScrollIntoView({0, place.y + offset - kGap, 1, place.height + 2 * kGap}, false);
  PlaceFields();
}

}  // namespace outliner
