// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MarkupText.h"

#include <algorithm>
#include <utility>

#include "Surrogates.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

constexpr unsigned short kReplacement = 0xFFFD;

bool IsForbidden(unsigned short inUnit) {
  return (inUnit < ' ' && inUnit != '\t' && inUnit != '\n' && inUnit != '\r') || inUnit >= 0xFFFE;
}

void AppendASCII(const char* inText, UTF16String& outMarkup) {
  while (*inText)
    outMarkup += static_cast<unsigned char>(*inText++);
}

const char* TextReference(unsigned short inUnit) {
  switch (inUnit) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '\r':
      return "&#13;";
    default:
      return nullptr;
  }
}

const char* ValueReference(unsigned short inUnit) {
  switch (inUnit) {
    case '"':
      return "&quot;";
    case '\n':
      return "&#10;";
    case '\t':
      return "&#9;";
    default:
      return TextReference(inUnit);
  }
}

// Appends in runs: most texts have nothing to be replaced.
template <class Reference>
void AppendEscaped(TextView inText, Reference inReference, UTF16String& outMarkup) {
  std::size_t done = 0;
  for (std::size_t at = 0; at < inText.size(); ++at) {
    // Letters and digits, which are nearly all, need no further look.
    if (inText[at] > '>') continue;
    const char* reference = inReference(inText[at]);
    if (!reference) continue;
    outMarkup.append(inText.data() + done, at - done);
    AppendASCII(reference, outMarkup);
    done = at + 1;
  }
  outMarkup.append(inText.data() + done, inText.size() - done);
}

}  // namespace

UTF16String CleanText(const UTF16String& inText) {
  UTF16String text = inText;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (IsLeadSurrogate(text[at]) && at + 1 < text.size() && IsTrailSurrogate(text[at + 1])) {
      ++at;
    } else if (IsForbidden(text[at]) || IsLeadSurrogate(text[at]) || IsTrailSurrogate(text[at])) {
      text[at] = kReplacement;
    }
  }
  return text;
}

void AppendAttributeValue(TextView inText, UTF16String& outMarkup) {
  AppendEscaped(inText, ValueReference, outMarkup);
}

void MarkupRecorder::StartElement(const UTF16String& inName,
                                  const lumcore::xml::Attributes& inAttributes) {
  CloseTag();
  mMarkup += '<';
  mMarkup += inName;
  for (const auto& [name, value] : inAttributes) {
    mMarkup += ' ';
    mMarkup += name;
    AppendASCII("=\"", mMarkup);
    AppendAttributeValue(value, mMarkup);
    mMarkup += '"';
  }
  mTagIsOpen = true;
}

void MarkupRecorder::EndElement(const UTF16String& inName) {
  if (std::exchange(mTagIsOpen, false)) {
    AppendASCII("/>", mMarkup);
    return;
  }
  AppendASCII("</", mMarkup);
  mMarkup += inName;
  mMarkup += '>';
}

void MarkupRecorder::Characters(const UTF16String& inText) {
  CloseTag();
  if (mInCDATA) {
    mMarkup += inText;
  } else {
    AppendEscaped(inText, TextReference, mMarkup);
  }
}

void MarkupRecorder::Comment(const UTF16String& inText) {
  CloseTag();
  AppendASCII("<!--", mMarkup);
  mMarkup += inText;
  AppendASCII("-->", mMarkup);
}

void MarkupRecorder::ProcessingInstruction(const UTF16String& inTarget, const UTF16String& inData) {
  CloseTag();
  AppendASCII("<?", mMarkup);
  mMarkup += inTarget;
  if (!inData.empty()) {
    mMarkup += ' ';
    mMarkup += inData;
  }
  AppendASCII("?>", mMarkup);
}

void MarkupRecorder::StartCDATA() {
  CloseTag();
  AppendASCII("<![CDATA[", mMarkup);
  mInCDATA = true;
}

void MarkupRecorder::EndCDATA() {
  AppendASCII("]]>", mMarkup);
  mInCDATA = false;
}

void MarkupRecorder::Raw(const char* inASCII) {
  CloseTag();
  AppendASCII(inASCII, mMarkup);
}

void MarkupRecorder::Raw(const UTF16String& inMarkup) {
  CloseTag();
  mMarkup += inMarkup;
}

UTF16String MarkupRecorder::Take() {
  mTagIsOpen = false;
  return std::exchange(mMarkup, UTF16String());
}

void MarkupRecorder::Clear() {
  mTagIsOpen = false;
  mMarkup.clear();
}

void MarkupRecorder::CloseTag() {
  if (std::exchange(mTagIsOpen, false)) mMarkup += '>';
}

}  // namespace outliner
