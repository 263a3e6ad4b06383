// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/ImageError.h"

#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace lumui::drawbot {

namespace {

[[noreturn]] void Throw(const char* inKey,
                        std::initializer_list<lumcore::UTF16String> inArguments) {
  const auto text = lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(text, inArguments));
}

// The text around a cause ends the sentence, and some of the toolkit's causes do so themselves.
lumcore::UTF16String ToCause(QString inCause) {
  while (inCause.endsWith(u'.'))
    inCause.chop(1);
  return FromQt(inCause);
}

}  // namespace

void ThrowCannotRead(std::string_view inName, const QString& inCause) {
  Throw("$$$/lumui/drawbot/Image/CannotRead=The image \"@0\" cannot be read: @1.",
        {lumcore::utility::ToUTF16(inName), ToCause(inCause)});
}

void ThrowDamaged(std::string_view inName, const QString& inCause) {
  Throw("$$$/lumui/drawbot/Image/Damaged=The image \"@0\" is damaged: @1.",
        {lumcore::utility::ToUTF16(inName), ToCause(inCause)});
}

void ThrowCannotWrite(std::string_view inName, const QString& inCause) {
  Throw("$$$/lumui/drawbot/Image/CannotWrite=The image \"@0\" cannot be written: @1.",
        {lumcore::utility::ToUTF16(inName), ToCause(inCause)});
}

void ThrowBadSize(std::string_view inName, double inWidth, double inHeight) {
  Throw(
      "$$$/lumui/drawbot/Image/BadSize=The image \"@0\" has a size of @1 by @2 pixels; each must "
      "be "
      "from 1 to @3.",
      {lumcore::utility::ToUTF16(inName), FromQt(QString::number(inWidth)),
       FromQt(QString::number(inHeight)),
       FromQt(QString::number(SupplierInterface::kMaxSurfacePixels))});
}

}  // namespace lumui::drawbot
