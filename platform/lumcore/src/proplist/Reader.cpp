// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "proplist/Reader.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "proplist/TextCoding.h"
#include "proplist/Writer.h"

namespace lumcore::proplist {

namespace {

enum class Element {
  kMap,
  kList,
  kPair,
  kKey,
  kInt,
  kFloat,
  kUString,
  kString,
  kTrue,
  kFalse,
  kArray,
  kArrayType,
};

struct ElementName {
  std::string_view name;
  Element element;
};

constexpr ElementName kElements[] = {
    {"prop.pair", Element::kPair},
    {"key", Element::kKey},
    {"ustring", Element::kUString},
    {"int", Element::kInt},
    {"float", Element::kFloat},
    {"prop.list", Element::kList},
    {"true", Element::kTrue},
    {"false", Element::kFalse},
    {"string", Element::kString},
    {"array", Element::kArray},
    {"array.type", Element::kArrayType},
    {"prop.map", Element::kMap},
};

const ElementName* FindElement(const UTF16String& inName) {
  for (const ElementName& row : kElements) {
    if (std::equal(row.name.begin(), row.name.end(), inName.begin(), inName.end())) {
      return &row;
    }
  }
  return nullptr;
}

bool IsItem(Element inElement) {
  switch (inElement) {
    case Element::kInt:
    case Element::kFloat:
    case Element::kUString:
    case Element::kString:
    case Element::kTrue:
    case Element::kFalse:
    case Element::kList:
      return true;
    default:
      return false;
  }
}

bool HasText(Element inElement) {
  switch (inElement) {
    case Element::kKey:
    case Element::kInt:
    case Element::kFloat:
    case Element::kUString:
    case Element::kString:
      return true;
    default:
      return false;
  }
}

bool IsSpace(unsigned short inUnit) {
  return inUnit == ' ' || inUnit == '\t' || inUnit == '\r' || inUnit == '\n';
}

// False where the text is anything but a number that T holds. A fraction too small for a float is
// refused too, as it would turn to 0.
template <class T>
bool ParseNumber(const std::string& inText, T& outNumber) {
  const char* const end = inText.data() + inText.size();
  const auto result = std::from_chars(inText.data(), end, outNumber);
  return result.ec == std::errc() && result.ptr == end;
}

bool ParseFloat(const std::string& inText, float& outNumber) {
  using Limits = std::numeric_limits<float>;
  const std::pair<const char*, float> words[] = {
      {"nan", Limits::quiet_NaN()}, {"inf", Limits::infinity()}, {"-inf", -Limits::infinity()}};
  for (const auto& [word, number] : words) {
    if (inText != word) continue;
    outNumber = number;
    return true;
  }
  // Other spellings of those words are none of ours.
  return inText.find_first_of("nN") == inText.npos && ParseNumber(inText, outNumber);
}

// Builds the list as the elements come. Open elements lie on a stack of its own.
class Handler final : public xml::AbstractParseHandler {
 public:
  explicit Handler(PropList& outList) : mRoot(outList) {}

  void StartElement(const UTF16String& inName, const xml::Attributes& inAttributes) override {
    const ElementName* const row = FindElement(inName);
    if (!row || !IsExpected(row->element)) RefuseElement(inName);
    const bool isMarker = IsWithin(Element::kArrayType);
    if (!mLevels.empty()) ++mLevels.back().children;
    Level level = {row->element, row->name};
    level.isMarker = isMarker;
    if (level.element == Element::kInt) mIsUnsigned = ReadIntType(inAttributes);
    if (isMarker) {
      MakeArray(level.element);
    } else {
      Open(level, inAttributes);
    }
    mText.clear();
    mLevels.push_back(std::move(level));
  }

  void Characters(const UTF16String& inText) override {
    const Level& level = mLevels.back();
    if (HasText(level.element) && !level.isMarker) {
      mText += inText;
    } else if (!std::all_of(inText.begin(), inText.end(), IsSpace)) {
      Throw("$$$/lumcore/proplist/Error/Text=text is not expected within \"@0\"",
            {utility::ToUTF16(level.name)});
    }
  }

  void EndElement(const UTF16String&) override {
    const Level level = std::move(mLevels.back());
    mLevels.pop_back();
    if (!level.isMarker) Close(level);
  }

 private:
  struct Level {
    Element element;
    std::string_view name;
    int children = 0;
    bool isMarker = false;     // the empty element within array.type
    PropList* list = nullptr;  // of a list, itself; of a pair and an array, where it goes
    UTF8String key{};          // of an array whose type is known
  };

  [[noreturn]] void Throw(const char* inKey, std::initializer_list<UTF16String> inArguments) const {
    ThrowParseError(
        utility::ReplaceInString(config::Localizer::Get()->GetLocalizedString(inKey), inArguments));
  }

  [[noreturn]] void RefuseElement(const UTF16String& inName) const {
    if (mLevels.empty()) {
      Throw("$$$/lumcore/proplist/Error/Root=the root is \"@0\" and not \"prop.map\"", {inName});
    }
    Throw("$$$/lumcore/proplist/Error/Element=\"@0\" is not expected within \"@1\"",
          {inName, utility::ToUTF16(mLevels.back().name)});
  }

  void NeedChildren(const Level& inLevel, int inCount, const char* inWhat) const {
    if (inLevel.children >= inCount) return;
    Throw("$$$/lumcore/proplist/Error/Missing=\"@0\" has no \"@1\"",
          {utility::ToUTF16(inLevel.name), utility::ToUTF16(inWhat)});
  }

  bool IsWithin(Element inElement) const {
    return !mLevels.empty() && mLevels.back().element == inElement;
  }

  bool IsExpected(Element inElement) const {
    if (mLevels.empty()) return inElement == Element::kMap;
    const Level& parent = mLevels.back();
    const bool isFirst = parent.children == 0;
    if (parent.isMarker) return false;
    switch (parent.element) {
      case Element::kMap:
        return isFirst && inElement == Element::kList;
      case Element::kList:
        return inElement == Element::kPair;
      case Element::kPair:
        if (isFirst) return inElement == Element::kKey;
        return parent.children == 1 && (IsItem(inElement) || inElement == Element::kArray);
      case Element::kArray:
        return isFirst ? inElement == Element::kArrayType : IsItem(inElement);
      case Element::kArrayType:
        return isFirst && IsItem(inElement);
      default:
        return false;
    }
  }

  void Open(Level& ioLevel, const xml::Attributes& inAttributes) {
    switch (ioLevel.element) {
      case Element::kMap:
        CheckVersion(inAttributes);
        break;
      case Element::kList:
        ioLevel.list = OpenList();
        break;
      case Element::kPair:
      case Element::kArray:
        ioLevel.list = mLevels.back().list;
        break;
      default:
        break;
    }
  }

  void CheckVersion(const xml::Attributes& inAttributes) const {
    const UTF16String* const version = inAttributes.Find("version");
    if (version && *version == utility::ToUTF16("4")) return;
    Throw("$$$/lumcore/proplist/Error/Version=the version is \"@0\" and not \"4\"",
          {version ? *version : UTF16String()});
  }

  bool ReadIntType(const xml::Attributes& inAttributes) const {
    const UTF16String* const size = inAttributes.Find("size");
    const UTF16String* const type = inAttributes.Find("type");
    if (size && type && *size == utility::ToUTF16("32")) {
      if (*type == utility::ToUTF16("unsigned")) return true;
      if (*type == utility::ToUTF16("signed")) return false;
    }
    Throw(
        "$$$/lumcore/proplist/Error/IntType=\"int\" is not of the type \"signed\" or "
        "\"unsigned\" and the size \"32\"",
        {});
  }

  PropList* OpenList() {
    if (++mListDepth > kMostLevels) {
      Throw("$$$/lumcore/proplist/Error/Nesting=lists are nested more than @0 deep",
            {utility::ToUTF16(std::to_string(kMostLevels))});
    }
    const Level& parent = mLevels.back();
    if (parent.element == Element::kMap) return &mRoot;
    if (parent.element == Element::kPair) return &parent.list->CreateSubList(mKey);
    return &ItemsOf<PropList>(parent).emplace_back();
  }

  // The element within array.type: the array comes to be. The level below is the array's.
  void MakeArray(Element inItem) {
    Level& array = mLevels[mLevels.size() - 2];
    switch (inItem) {
      case Element::kInt:
        return mIsUnsigned ? MakeArray<std::uint32_t>(array) : MakeArray<std::int32_t>(array);
      case Element::kFloat:
        return MakeArray<float>(array);
      case Element::kUString:
        return MakeArray<UTF16String>(array);
      case Element::kString:
        return MakeArray<UTF8String>(array);
      case Element::kList:
        return MakeArray<PropList>(array);
      default:
        return MakeArray<bool>(array);
    }
  }

  template <class T>
  void MakeArray(Level& ioArray) {
    ioArray.list->Set(mKey, std::vector<T>());
    ioArray.key = mKey;
  }

  template <class T>
  std::vector<T>& ItemsOf(const Level& inArray) const {
    auto* const items = inArray.list->Find<std::vector<T>>(inArray.key);
    if (!items)
      Throw("$$$/lumcore/proplist/Error/ItemType=the item is not of the array's type", {});
    return *items;
  }

  void Close(const Level& inLevel) {
    switch (inLevel.element) {
      case Element::kMap:
        return NeedChildren(inLevel, 1, "prop.list");
      case Element::kList:
        --mListDepth;
        break;
      case Element::kPair:
        NeedChildren(inLevel, 1, "key");
        return NeedChildren(inLevel, 2, "value");
      case Element::kArray:
        return NeedChildren(inLevel, 1, "array.type");
      case Element::kArrayType:
        return NeedChildren(inLevel, 1, "value");
      case Element::kKey:
        return TakeKey();
      case Element::kInt:
        return mIsUnsigned ? PutInt<std::uint32_t>() : PutInt<std::int32_t>();
      case Element::kFloat:
        return PutFloat();
      case Element::kUString:
        return Put(DecodeText(mText));
      case Element::kString:
        return Put(DecodeBytes(mText));
      case Element::kTrue:
        return Put(true);
      case Element::kFalse:
        return Put(false);
    }
  }

  void TakeKey() {
    mKey = DecodeBytes(mText);
    if (!mLevels.back().list->Has(mKey)) return;
    Throw("$$$/lumcore/proplist/Error/Duplicate=the key \"@0\" stands twice in one list",
          {utility::ToUTF16(mKey)});
  }

  std::string GetNumberText() const {
    const auto start = std::find_if_not(mText.begin(), mText.end(), IsSpace);
    const auto end = std::find_if_not(mText.rbegin(), mText.rend(), IsSpace).base();
    return start < end ? utility::ToStdString(UTF16String(start, end)) : std::string();
  }

  template <class T>
  void PutInt() {
    T number = 0;
    if (!ParseNumber(GetNumberText(), number)) {
      const char* const key =
          mIsUnsigned
              ? "$$$/lumcore/proplist/Error/Unsigned=\"@0\" is no unsigned integer of 32 bits"
              : "$$$/lumcore/proplist/Error/Signed=\"@0\" is no signed integer of 32 bits";
      Throw(key, {mText});
    }
    Put(number);
  }

  void PutFloat() {
    float number = 0;
    if (!ParseFloat(GetNumberText(), number)) {
      Throw("$$$/lumcore/proplist/Error/Float=\"@0\" is no number of single precision", {mText});
    }
    Put(number);
  }

  // A value is complete; the level that it belongs to is the last.
  template <class T>
  void Put(T inValue) {
    const Level& parent = mLevels.back();
    if (parent.element == Element::kPair) {
      parent.list->Set(mKey, std::move(inValue));
    } else {
      ItemsOf<T>(parent).push_back(std::move(inValue));
    }
  }

  PropList& mRoot;
  std::vector<Level> mLevels;
  std::size_t mListDepth = 0;
  UTF8String mKey;    // of the pair whose value comes next
  UTF16String mText;  // of the element that is open
  bool mIsUnsigned = false;
};

}  // namespace

PropList ReadXML(const UTF8String& inBytes, const UTF16String& inName) {
  PropList list;
  xml::GetParser(std::auto_ptr<xml::AbstractParseHandler>(new Handler(list)))
      ->Parse(inBytes, inName);
  return list;
}

}  // namespace lumcore::proplist
