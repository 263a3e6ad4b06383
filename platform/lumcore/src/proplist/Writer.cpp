// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "proplist/Writer.h"

#include <charconv>
#include <cmath>
#include <string_view>

#include "lumcore/proplist/PropList.h"
#include "proplist/TextCoding.h"

namespace lumcore::proplist {

namespace {

template <class T>
constexpr std::string_view kTypeElement = "";
template <>
constexpr std::string_view kTypeElement<bool> = "<true/>";
template <>
constexpr std::string_view kTypeElement<std::int32_t> = "<int type='signed' size='32'/>";
template <>
constexpr std::string_view kTypeElement<std::uint32_t> = "<int type='unsigned' size='32'/>";
template <>
constexpr std::string_view kTypeElement<float> = "<float/>";
template <>
constexpr std::string_view kTypeElement<UTF16String> = "<ustring/>";
template <>
constexpr std::string_view kTypeElement<UTF8String> = "<string/>";
template <>
constexpr std::string_view kTypeElement<PropList> = "<prop.list/>";

// The shortest digits that read back as the same number, whatever the locale.
template <class T>
void AppendNumber(T inNumber, std::string& ioXML) {
  char digits[64];
  const auto result = std::to_chars(digits, digits + sizeof digits, inNumber);
  ioXML.append(digits, result.ptr);
}

class Writer {
 public:
  explicit Writer(std::string& ioXML) : mXML(ioXML) {}

  bool Run(const PropList& inList) {
    Line("<?xml version='1.0'?>");
    Open("<prop.map version='4'>");
    Write(inList);
    Close("</prop.map>");
    return !mIsTooDeep;
  }

 private:
  void Indent() { mXML.append(2 * mIndent, ' '); }
  void EndLine() { mXML += "\r\n"; }
  void Line(std::string_view inText) {
    Indent();
    mXML += inText;
    EndLine();
  }
  void Open(std::string_view inTag) {
    Line(inTag);
    ++mIndent;
  }
  void Close(std::string_view inTag) {
    --mIndent;
    Line(inTag);
  }
  template <class String>
  void WriteText(std::string_view inElement, const String& inText) {
    Indent();
    mXML.append("<").append(inElement);
    if (inText.empty()) {
      mXML += "/>";
    } else {
      mXML += '>';
      AppendXML(inText, mXML);
      mXML.append("</").append(inElement).append(">");
    }
    EndLine();
  }
  template <class T>
  void WriteNumber(std::string_view inStart, T inNumber, std::string_view inEnd) {
    Indent();
    mXML += inStart;
    AppendNumber(inNumber, mXML);
    mXML += inEnd;
    EndLine();
  }

  void Write(bool inValue) { Line(inValue ? "<true/>" : "<false/>"); }
  void Write(std::int32_t inValue) {
    WriteNumber("<int type='signed' size='32'>", inValue, "</int>");
  }
  void Write(std::uint32_t inValue) {
    WriteNumber("<int type='unsigned' size='32'>", inValue, "</int>");
  }
  // One word for all that are no number, whatever their sign.
  void Write(float inValue) {
    if (std::isnan(inValue)) return Line("<float>nan</float>");
    WriteNumber("<float>", inValue, "</float>");
  }
  void Write(const UTF16String& inValue) { WriteText("ustring", inValue); }
  void Write(const UTF8String& inValue) { WriteText("string", inValue); }
  void Write(const PropList& inList) {
    if (mLevel == kMostLevels) {
      mIsTooDeep = true;
      return;
    }
    if (inList.GetSize() == 0) return Line("<prop.list/>");
    ++mLevel;
    Open("<prop.list>");
    for (const PropList::Entry& entry : inList) {
      Open("<prop.pair>");
      WriteText("key", entry.key);
      std::visit([this](const auto& inValue) { Write(inValue); }, entry.value);
      Close("</prop.pair>");
    }
    Close("</prop.list>");
    --mLevel;
  }
  template <class T>
  void Write(const std::vector<T>& inItems) {
    Open("<array>");
    Line(std::string("<array.type>").append(kTypeElement<T>).append("</array.type>"));
    for (auto&& item : inItems)
      Write(item);
    Close("</array>");
  }

  std::string& mXML;
  std::size_t mIndent = 0;
  std::size_t mLevel = 0;
  bool mIsTooDeep = false;
};

}  // namespace

bool WriteXML(const PropList& inList, std::string& outXML) {
  outXML.clear();
  return Writer(outXML).Run(inList);
}

}  // namespace lumcore::proplist
