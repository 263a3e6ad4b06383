// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"

namespace {

using lumcore::UTF16String;
using lumcore::config::Localizer;

void TakePositive(int inNumber) {
  LUM_INPUT_CONTRACT(inNumber > 0);
}

// A language of its own: the key in brackets.
class KeyLocalizer : public Localizer {
  UTF16String DoGetLocalizedString(const char* inKey) const override {
    const std::string key(inKey);
    return lumcore::utility::ToUTF16("[" + key.substr(0, key.find('=')) + "]");
  }
};

std::string Localized(const char* inKey) {
  return lumcore::utility::ToStdString(Localizer::Get()->GetLocalizedString(inKey));
}

TEST(Contract, FailureAsksTheDialogAndThenThrows) {
  std::string asked;
  lumcore::debug::SetContractDialog([&](const lumcore::debug::ContractFailure& inFailure) {
    asked += std::string(inFailure.expression) + " in " + inFailure.function;
    // A dialog may be replaced while it runs.
    lumcore::debug::SetContractDialog({});
    asked +=
        std::string(inFailure.sourcePath).find("ContractTest.cpp") == std::string::npos ? "?" : ".";
    return false;
  });
  EXPECT_NO_THROW(TakePositive(1));
  EXPECT_EQ(asked, "");
  try {
    TakePositive(0);
    ADD_FAILURE();
  } catch (const lumcore::config::Error& error) {
    EXPECT_STREQ(error.what(), "An input contract violation has occurred!");
  }
  EXPECT_EQ(asked, "inNumber > 0 in TakePositive.");
}

TEST(Contract, WithoutADialogTheFailureIsWrittenAndThrown) {
  lumcore::debug::SetContractDialog({});
  testing::internal::CaptureStderr();
  EXPECT_THROW(TakePositive(-1), lumcore::config::Error);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("TakePositive: contract violated"),
            std::string::npos);
}

TEST(Localizing, DefaultIsTheTextBehindTheFirstEqualsSign) {
  const std::pair<const char*, const char*> rows[] = {
      {"$$$/vek/Name=English = text", "English = text"},
      {"$$$/vek/Name=", ""},
      {"$$$/vek/Name", ""},
      {"", ""}};
  for (const auto& [key, text] : rows)
    EXPECT_EQ(Localized(key), text) << key;
}

TEST(Localizing, AnotherLocalizerTakesPartInErrorsUntilItDies) {
  {
    KeyLocalizer localizer;
    Localizer::Set(&localizer, {});
    std::string thrown;
    try {
      lumcore::config::ThrowError("$$$/vek/Error/X=Wrong");
    } catch (const std::exception& error) {
      thrown = error.what();
    }
    EXPECT_EQ(thrown, "[$$$/vek/Error/X]");
  }
  EXPECT_EQ(Localized("$$$/vek/Error/X=Wrong"), "Wrong");
}

}  // namespace
