// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_NodeProperties.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/IconType.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ResourceManager.h"

namespace lumui::ui {

namespace {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::proplist::PropList;

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

UTF16String Resolved(const UTF16String& inText) {
  const std::string text = lumcore::utility::ToStdString(inText);
  constexpr std::string_view kOpening = "($$$/";
  const bool isKey = text.size() > kOpening.size() && text.back() == ')' &&
                     text.compare(0, kOpening.size(), kOpening) == 0;
  return isKey ? Localized(text.substr(1, text.size() - 2).c_str()) : inText;
}

// Pictures have a second form for a dark ground, where their first would be taken for disabled.
UTF16String FormForGround(const utility::ResourceManager& inResources, const UTF16String& inName) {
  if (GetIconType() != kIconsForDarkGround) return inName;
  const UTF16String dark = inName + lumcore::utility::ToUTF16("_D");
  const bool exists = inResources.HasBinary(dark, "png") || inResources.HasBinary(dark, "svg");
  return exists ? dark : inName;
}

}  // namespace

void NodeSource::ThrowError(const UTF16String& inCause) const {
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(
      Localized("$$$/lumui/nodes/Error/Place=@0: the node @1: @2"), {archive, place, inCause}));
}

boost::intrusive_ptr<drawbot::ImageInterface> NodeSource::LoadImage(
    const UTF16String& inName) const {
  if (inName.empty() || !resources) return nullptr;
  const drawbot::SupplierInterface& images = supplier ? *supplier : *drawbot::GetDefaultSupplier();
  // A dialog that opens again has the same pictures. Never destroyed: they may outlive all else.
  static const auto* const sImages = new utility::DrawbotImageResourceCache;
  try {
    return sImages->GetImage(*resources, images,
                             lumcore::utility::ToUTF8(FormForGround(*resources, inName)));
  } catch (const lumcore::config::Error& error) {
    ThrowError(error.GetText());
  }
}

void UI_NodeProperties::ThrowWrongType(const char* inKey, const char* inTypeKey) const {
  mSource.ThrowError(lumcore::utility::ReplaceInString(
      Localized("$$$/lumui/nodes/Error/Type=the property \"@0\" is not @1"),
      {lumcore::utility::ToUTF16(inKey), Localized(inTypeKey)}));
}

bool UI_NodeProperties::Read(const char* inKey, bool& outValue) const {
  if (!mSection.Has(inKey)) return false;
  const bool* const value = mSection.Find<bool>(inKey);
  if (!value) ThrowWrongType(inKey, "$$$/lumui/nodes/Type/Bool=a truth value");
  outValue = *value;
  return true;
}

bool UI_NodeProperties::Read(const char* inKey, int& outValue) const {
  if (!mSection.Has(inKey)) return false;
  lumcore::proplist::utils::Choice choice;
  if (const auto* const number = mSection.Find<std::int32_t>(inKey)) {
    outValue = *number;
  } else if (const auto* const natural = mSection.Find<std::uint32_t>(inKey)) {
    outValue = static_cast<int>(*natural);
  } else if (lumcore::proplist::utils::ReadChoice(mSection, inKey, choice)) {
    outValue = choice.selected;
  } else {
    ThrowWrongType(inKey, "$$$/lumui/nodes/Type/Integer=a whole number");
  }
  return true;
}

bool UI_NodeProperties::Read(const char* inKey, float& outValue) const {
  if (!mSection.Has(inKey)) return false;
  if (const float* const value = mSection.Find<float>(inKey)) {
    outValue = *value;
  } else if (const auto* const number = mSection.Find<std::int32_t>(inKey)) {
    outValue = static_cast<float>(*number);
  } else if (const auto* const natural = mSection.Find<std::uint32_t>(inKey)) {
    outValue = static_cast<float>(*natural);
  } else {
    ThrowWrongType(inKey, "$$$/lumui/nodes/Type/Number=a number");
  }
  return true;
}

bool UI_NodeProperties::Read(const char* inKey, UTF16String& outValue) const {
  if (!mSection.Has(inKey)) return false;
  if (const auto* const value = mSection.Find<UTF16String>(inKey)) {
    outValue = Resolved(*value);
  } else if (const auto* const bytes = mSection.Find<UTF8String>(inKey)) {
    outValue = Resolved(lumcore::utility::ToUTF16(*bytes));
  } else {
    ThrowWrongType(inKey, "$$$/lumui/nodes/Type/Text=a text");
  }
  return true;
}

bool UI_NodeProperties::Read(const char* inKey, UTF8String& outValue) const {
  UTF16String text;
  if (!Read(inKey, text)) return false;
  outValue = lumcore::utility::ToUTF8(text);
  return true;
}

bool UI_NodeProperties::Read(const char* inKey, std::vector<UTF16String>& outValue) const {
  if (!mSection.Has(inKey)) return false;
  lumcore::proplist::utils::Choice choice;
  if (const auto* const value = mSection.Find<std::vector<UTF16String>>(inKey)) {
    outValue = *value;
  } else if (lumcore::proplist::utils::ReadChoice(mSection, inKey, choice)) {
    outValue = choice.items;
  } else {
    ThrowWrongType(inKey, "$$$/lumui/nodes/Type/Texts=a list of texts");
  }
  for (UTF16String& text : outValue)
    text = Resolved(text);
  return true;
}

bool UI_NodeProperties::Read(const char* inKey, lumcore::geom::RectT<float>& outValue) const {
  if (!mSection.Has(inKey)) return false;
  if (!lumcore::proplist::utils::ReadRect32(mSection, inKey, outValue)) {
    ThrowWrongType(inKey, "$$$/lumui/nodes/Type/Rectangle=a rectangle");
  }
  return true;
}

const PropList* UI_NodeProperties::ReadList(const char* inKey) const {
  if (!mSection.Has(inKey)) return nullptr;
  const PropList* const list = mSection.GetSubList(inKey);
  if (!list) ThrowWrongType(inKey, "$$$/lumui/nodes/Type/List=a list of properties");
  return list;
}

void WriteProperty(PropList& ioSection, const char* inKey, bool inValue) {
  ioSection.Set(inKey, inValue);
}
void WriteProperty(PropList& ioSection, const char* inKey, int inValue) {
  ioSection.Set(inKey, std::int32_t(inValue));
}
void WriteProperty(PropList& ioSection, const char* inKey, float inValue) {
  ioSection.Set(inKey, inValue);
}
void WriteProperty(PropList& ioSection, const char* inKey, const UTF16String& inValue) {
  ioSection.Set(inKey, inValue);
}
void WriteProperty(PropList& ioSection, const char* inKey, const UTF8String& inValue) {
  ioSection.Set(inKey, lumcore::utility::ToUTF16(inValue));
}
void WriteProperty(PropList& ioSection, const char* inKey,
                   const std::vector<UTF16String>& inValue) {
  ioSection.Set(inKey, inValue);
}
void WriteProperty(PropList& ioSection, const char* inKey,
                   const lumcore::geom::RectT<float>& inValue) {
  lumcore::proplist::utils::WriteRect32(ioSection, inKey, inValue);
}

}  // namespace lumui::ui
