// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

#include "lumcore/config/CatalogueLocalizer.h"
#include "lumcore/utility/StringUtils.h"
#include "support/TemporaryFolder.h"

namespace {

using lumcore::config::CatalogueLocalizer;
using lumcore::config::Localizer;
using Texts = std::map<std::string, std::string>;

std::string Number(std::size_t inNumber) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8)
    bytes += static_cast<char>(inNumber >> shift & 0xFF);
  return bytes;
}

// A compiled catalogue without a hash table.
std::string Compile(Texts inTexts, const std::string& inCharset = "UTF-8") {
  inTexts[""] = "Content-Type: text/plain; charset=" + inCharset + "\n";
  const std::size_t count = inTexts.size();
  const std::size_t start = 28 + count * 16;
  std::string tables[2], strings;
  for (int table = 0; table < 2; ++table) {
    for (const auto& [key, text] : inTexts) {
      const std::string& part = table == 0 ? key : text;
      tables[table] += Number(part.size()) + Number(start + strings.size());
      strings += part + '\0';
    }
  }
  return Number(0x950412de) + Number(0) + Number(count) + Number(28) + Number(28 + count * 8) +
         Number(0) + Number(start) + tables[0] + tables[1] + strings;
}

class Catalogues : public testing::Test {
 protected:
  void Write(const std::string& inLanguage, const std::string& inDomain,
             const std::string& inBytes) {
    const lumcore::filesupport::Dir dir(mFolder.GetPath(inLanguage + "/LC_MESSAGES"));
    dir.Create();
    std::ofstream(dir.GetPath() + "/" + inDomain + ".mo", std::ios::binary) << inBytes;
  }
  // The texts for the keys, with the folder of this test for the host's domains; what was told of
  // is kept.
  std::string Ask(const std::string& inLanguage, std::initializer_list<const char*> inKeys) {
    testing::internal::CaptureStderr();
    CatalogueLocalizer localizer({"host", "more"}, inLanguage);
    Localizer::Set(&localizer, mFolder.GetDir());
    std::string texts;
    for (const char* key : inKeys)
      texts += lumcore::utility::ToStdString(Localizer::Get()->GetLocalizedString(key)) + " ";
    mProblems = testing::internal::GetCapturedStderr();
    return texts;
  }

  TemporaryFolder mFolder;
  std::string mProblems;
};

TEST_F(Catalogues, AreAskedInTheOrderOfDomainsFromTheCountryToTheLanguage) {
  Write("de_AT", "host", Compile({{"$$$/a=A", "a-AT"}}));
  Write("de", "host", Compile({{"$$$/a=A", "a-de"}, {"$$$/b=B", "b-de"}, {"$$$/c=C", ""}}));
  Write("de_AT", "more", Compile({{"$$$/b=B", "b-more"}, {"$$$/d=D", "d-more"}}));
  Write("de", "vek",
        Compile({{"$$$/vek/undo/Undo=Undo",
                  "Zur\xC3\xBC"
                  "ck"}}));
  const char* const rows[][2] = {
      {"de_AT",
       "a-AT b-de C d-more D2 Zur\xC3\xBC"
       "ck Strg+ "},
      {"de-AT",
       "a-AT b-de C d-more D2 Zur\xC3\xBC"
       "ck Strg+ "},
      {"de_AT.UTF-8@euro",
       "a-AT b-de C d-more D2 Zur\xC3\xBC"
       "ck Strg+ "},
      {"de_DE",
       "a-de b-de C D D2 Zur\xC3\xBC"
       "ck Strg+ "},
      {"fr", "A B C D D2 Undo Ctrl+ "},
      {"../de", "A B C D D2 Undo Ctrl+ "},
  };
  for (const auto& [language, texts] : rows) {
    EXPECT_EQ(Ask(language, {"$$$/a=A", "$$$/b=B", "$$$/c=C", "$$$/d=D", "$$$/d=D2",
                             "$$$/vek/undo/Undo=Undo", "$$$/vek/WinControlMod=Ctrl+"}),
              texts)
        << language;
    EXPECT_EQ(mProblems, "") << language;
  }
}

TEST_F(Catalogues, DamagedOnesAreToldOfAndPassedOver) {
  const std::string sound = Compile({{"$$$/a=A", "a-xx"}});
  const auto with = [&](std::size_t inAt, std::size_t inNumber) {
    return std::string(sound).replace(inAt, 4, Number(inNumber));
  };
  const std::pair<std::string, const char*> rows[] = {
      {"", "no compiled gettext catalogue"},
      {"msgid \"\"\nmsgstr \"\"\n\"Language: xx\\n\"", "no compiled gettext catalogue"},
      {with(4, 0x20000), "newer format"},
      {with(8, 0), "damaged"},
      {with(8, 0x20000000), "damaged"},
      {with(12, 0xFFFFFFF8), "damaged"},
      {with(20, 2), "damaged"},
      {with(20, 0x40000000), "damaged"},
      {sound.substr(0, sound.size() - 1), "damaged"},
      {with(sound.size() - 4, 0x20202020), "damaged"},
      {Compile({}, "klingon"), "cannot be used"},
  };
  for (const auto& [bytes, cause] : rows) {
    Write("xx", "host", bytes);
    EXPECT_EQ(Ask("xx", {"$$$/a=A"}), "A ");
    EXPECT_NE(mProblems.find(mFolder.GetPath("xx/LC_MESSAGES/host.mo: ")), std::string::npos);
    EXPECT_NE(mProblems.find(cause), std::string::npos) << mProblems;
  }
}

// Under the sanitizers, this is where a wrong offset shows.
TEST_F(Catalogues, NoByteOfACatalogueIsTrusted) {
  const auto built = lumcore::filesupport::File(VEK_TEXTS).ReadAll();
  const std::string sound(built.begin(), built.end());
  for (std::size_t at = 0; at < 3000; at += 29) {
    std::string bytes = sound;
    bytes[at] = static_cast<char>(bytes[at] ^ (at % 2 ? 0xFF : 0x04));
    Write("xx", "host", bytes);
    Write("xx", "more", sound.substr(0, sound.size() * at / 3000));
    const std::string text = Ask("xx", {"$$$/vek/WinControlMod=Ctrl+"});
    EXPECT_TRUE(text == "Strg+ " || text == "Ctrl+ ") << at << text;
    EXPECT_NE(mProblems.find("more.mo: "), std::string::npos) << at;
  }
}

TEST_F(Catalogues, OfTheLibrariesAreFoundBesideThem) {
  EXPECT_EQ(Ask("de_DE", {"$$$/lumcore/filesupport/Error/Open=Cannot open \"@0\": @1",
                          "$$$/lumui/drawbot/Image/BadSize=The image \"@0\" has a size of @1 by @2 "
                          "pixels; each must be from 1 to @3.",
                          "$$$/vek/keyboard/keycodenames/Del=Del"}),
            "„@0“ kann nicht geöffnet werden: @1 Das Bild „@0“ ist @1 mal @2 Pixel groß; beides "
            "muss zwischen 1 und @3 liegen. Entf ");
}

}  // namespace
