// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/proplist/PropList.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iterator>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <type_traits>

#include "support/KeyFiles.h"
#include "support/TemporaryFolder.h"

#include "lumcore/config/ThrowError.h"
#include "lumcore/proplist/Utils.h"

namespace {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::geom::RectT;
using lumcore::proplist::PropList;
namespace utils = lumcore::proplist::utils;

std::string Saved(const PropList& inList) {
  const UTF8String bytes = utils::SavePropListToBuffer(inList);
  return std::string(bytes.begin(), bytes.end());
}

PropList Loaded(std::string_view inXML) {
  PropList list;
  utils::LoadPropListFromBuffer(Bytes(inXML), U16("s.xml"), list, false);
  return list;
}

// A list of those pairs, without the lines around them.
std::string File(const std::string& inPairs) {
  return "<prop.map version='4'><prop.list>" + inPairs + "</prop.list></prop.map>";
}

std::string KeysOf(const PropList& inList, const char* inKey) {
  std::string keys;
  for (const PropList::Entry& entry : *inList.GetSubList(inKey))
    keys.append(entry.key.begin(), entry.key.end()).append(" ");
  return keys;
}

std::string Nested(int inLists) {
  std::string text = "<prop.map version='4'>\n";
  for (int at = 1; at < inLists; ++at)
    text += "<prop.list><prop.pair><key/>";
  text += "<prop.list/>";
  for (int at = 1; at < inLists; ++at)
    text += "</prop.pair></prop.list>";
  return text + "</prop.map>";
}

TEST(PropLists, AreWrittenAsTheFormatHasIt) {
  PropList list;
  list.Set("flag", true);
  list.Set("least", std::numeric_limits<std::int32_t>::min());
  list.Set("a<&>\x7F",
           std::vector<UTF16String>{
               {'<', 0xE4, 0xD83D, 0xDE00, '\r', '\n', ' '}, {}, {0, 0xDE00, 0xFFFF, 0xFDD0, '0'}});
  list.Set("bytes", UTF8String{0xC3, 0xA4, 0xFF, 1});
  list.Set("none", std::vector<std::uint32_t>());
  list.Set("flag", false);  // keeps its place
  const float infinity = std::numeric_limits<float>::infinity();
  list.Set("f", std::vector<float>{-1.5f, 1.0f / 3, -infinity, 1e20f});
  list.CreateSubList("");
  std::string expected = R"(<?xml version='1.0'?>
<prop.map version='4'>
  <prop.list>
    <prop.pair>
      <key>flag</key>
      <false/>
    </prop.pair>
    <prop.pair>
      <key>least</key>
      <int type='signed' size='32'>-2147483648</int>
    </prop.pair>
    <prop.pair>
      <key>a&lt;&amp;&gt;&#x7F;</key>
      <array>
        <array.type><ustring/></array.type>
        <ustring>&lt;&#xE4;&#x1F600;&#xD;&#xA; </ustring>
        <ustring/>
        <ustring>&#xFDD0;0000&#xFDD0;DE00&#xFDD0;FFFF&#xFDD0;FDD00</ustring>
      </array>
    </prop.pair>
    <prop.pair>
      <key>bytes</key>
      <string>&#xE4;&#xFDD0;00FF&#xFDD0;0001</string>
    </prop.pair>
    <prop.pair>
      <key>none</key>
      <array>
        <array.type><int type='unsigned' size='32'/></array.type>
      </array>
    </prop.pair>
    <prop.pair>
      <key>f</key>
      <array>
        <array.type><float/></array.type>
        <float>-1.5</float>
        <float>0.33333334</float>
        <float>-inf</float>
        <float>1e+20</float>
      </array>
    </prop.pair>
    <prop.pair>
      <key/>
      <prop.list/>
    </prop.pair>
  </prop.list>
</prop.map>
)";
  for (std::size_t at = 0; (at = expected.find('\n', at)) != expected.npos; at += 2)
    expected.insert(at, 1, '\r');
  EXPECT_EQ(Saved(list), expected);
}

// Lists of all types, with texts that XML cannot hold as they are.
class RandomLists {
 public:
  explicit RandomLists(unsigned inSeed) : mRandom(inSeed) {}

  template <class T>
  T Make() {
    if constexpr (std::is_same_v<T, bool>) {
      return Below(2) == 0;
    } else if constexpr (std::is_same_v<T, PropList>) {
      return MakeList();
    } else if constexpr (std::is_arithmetic_v<T>) {
      T number;
      const auto bits = static_cast<std::uint32_t>(mRandom());
      std::memcpy(&number, &bits, sizeof number);
      return number;
    } else {
      return MakeText<T>();
    }
  }

 private:
  unsigned Below(unsigned inLimit) { return static_cast<unsigned>(mRandom() % inLimit); }
  template <class String>
  String MakeText() {
    const unsigned units[] = {'a',  '0',  'F',  ' ',    '\n',   '\r',   0,
                              '<',  '&',  0xC3, 0xA4,   0xED,   0xA0,   0x80,
                              0xEF, 0xB7, 0x90, 0xFDD0, 0xD83D, 0xDE00, 0xFFFE};
    String text;
    for (unsigned length = Below(9); length > 0; --length)
      text += static_cast<typename String::value_type>(units[Below(std::size(units))]);
    return text;
  }
  PropList MakeList() {
    constexpr void (RandomLists::*kAdds[])(PropList&) = {
        &RandomLists::Add<bool>,          &RandomLists::Add<std::int32_t>,
        &RandomLists::Add<std::uint32_t>, &RandomLists::Add<float>,
        &RandomLists::Add<UTF16String>,   &RandomLists::Add<UTF8String>,
        &RandomLists::Add<PropList>,      &RandomLists::Add<PropList>};
    PropList list;
    --mLevels;
    for (unsigned pairs = Below(7); pairs > 0; --pairs)
      (this->*kAdds[Below(mLevels > 0 ? 8 : 6)])(list);
    ++mLevels;
    return list;
  }
  template <class T>
  void Add(PropList& ioList) {
    const auto key = MakeText<UTF8String>();
    if (Below(2) == 0) {
      ioList.Set(key, Make<T>());
      return;
    }
    std::vector<T> items;
    for (unsigned count = Below(4); count > 0; --count)
      items.push_back(Make<T>());
    ioList.Set(key, items);
  }

  std::mt19937 mRandom;
  int mLevels = 4;
};

TEST(PropLists, SurviveAFileWhateverTheyHold) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    const PropList list = RandomLists(seed).Make<PropList>();
    const std::string xml = Saved(list);
    const PropList back = Loaded(xml);
    ASSERT_EQ(Saved(back), xml) << seed;
    ASSERT_EQ(Saved(PropList(list)), xml) << seed;
    ASSERT_TRUE(back == list) << xml;
  }
}

TEST(PropLists, ReadWhatAnEditorLeft) {
  const PropList list = Loaded(
      "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>\n<!-- mine -->\n"
      "<!DOCTYPE prop.map [<!ENTITY e '\xC3\xA4'>]>" +
      File("<prop.pair>\t<key>a</key><int size='32' type='signed'> 7\n</int></prop.pair>"
           "<prop.pair><key>t</key><ustring> x<!-- -->&e;<![CDATA[<]]>\r\n\xEF\xB7\x90"
           "00zz</ustring></prop.pair>"));
  EXPECT_EQ(list.Get<std::int32_t>("a", 0), 7);
  EXPECT_EQ(U8(list.Get<UTF16String>("t", {})),
            " x\xC3\xA4<\n\xEF\xB7\x90"
            "00zz");
}

TEST(PropLists, MalformedFilesAreRefusedWithPlaceAndCause) {
  const auto value = [](const std::string& inValue) {
    return File("\n<prop.pair><key>k</key>" + inValue + "</prop.pair>");
  };
  const std::string signedInt = "<int type='signed' size='32'";
  const std::pair<std::string, const char*> rows[] = {
      {"", "1:1: no element found"},
      {"<plist/>", "1:1: the root is \"plist\" and not \"prop.map\""},
      {"<prop.map version='5'/>", "1:1: the version is \"5\" and not \"4\""},
      {"<prop.map><prop.list/></prop.map>", "1:1: the version is \"\" and not \"4\""},
      {"<prop.map version='4'>\n</prop.map>", "2:1: \"prop.map\" has no \"prop.list\""},
      {File("<prop.pair>\n</prop.pair>"), "2:1: \"prop.pair\" has no \"key\""},
      {File("<prop.pair><key/>\n</prop.pair>"), "2:1: \"prop.pair\" has no \"value\""},
      {value("<ustring><true/></ustring>"), "2:33: \"true\" is not expected within \"ustring\""},
      {value("<true/><false/>"), "2:31: \"false\" is not expected within \"prop.pair\""},
      {value("<true>1</true>"), "2:31: text is not expected within \"true\""},
      {value("<true/>").insert(34, "<prop.pair><key>k</key><true/></prop.pair>"),
       "2:60: the key \"k\" stands twice in one list"},
      {value("<int type='signed' size='64'>1</int>"),
       "2:24: \"int\" is not of the type \"signed\" or \"unsigned\" and the size \"32\""},
      {value(signedInt + "/>"), "2:54: \"\" is no signed integer of 32 bits"},
      {value(signedInt + ">1x</int>"), "2:55: \"1x\" is no signed integer of 32 bits"},
      {value(signedInt + ">2147483648</int>"),
       "2:63: \"2147483648\" is no signed integer of 32 bits"},
      {value("<int type='unsigned' size='32'>-1</int>"),
       "2:57: \"-1\" is no unsigned integer of 32 bits"},
      {value("<float>1,5</float>"), "2:34: \"1,5\" is no number of single precision"},
      {value("<float>1e39</float>"), "2:35: \"1e39\" is no number of single precision"},
      {value("<float>1e-60</float>"), "2:36: \"1e-60\" is no number of single precision"},
      {value("<array/>"), "2:32: \"array\" has no \"array.type\""},
      {value("<array><true/></array>"), "2:31: \"true\" is not expected within \"array\""},
      {value("<array><array.type><array/></array.type></array>"),
       "2:43: \"array\" is not expected within \"array.type\""},
      {value("<array><array.type><float>1</float></array.type></array>"),
       "2:51: text is not expected within \"float\""},
      {value("<array><array.type><float/></array.type><prop.list/></array>"),
       "2:64: the item is not of the array's type"},
      {value("<true/>").substr(0, 64),
       "2:31: no element found: the document ends inside an element"},
      {Nested(513), "2:14337: lists are nested more than 512 deep"},
      {Nested(100000), "2:14337: lists are nested more than 512 deep"},
  };
  PropList list;
  list.CreateSubList("kept").Set("flag", true);
  const std::string before = Saved(list);
  for (const auto& [xml, error] : rows) {
    EXPECT_EQ(WordsOf([&] { utils::LoadPropListFromBuffer(Bytes(xml), U16("s.xml"), list, true); }),
              std::string("s.xml:") + error)
        << xml.substr(0, 200);
  }
  EXPECT_EQ(Saved(list), before);
  EXPECT_EQ(Loaded(Nested(512)).GetSize(), 1u);
}

TEST(PropLists, AnotherTypeCountsAsMissingAndStays) {
  PropList list;
  list.Set("n", std::int32_t(3));
  utils::WriteRect32(list, "r", RectT<float>(1, 2, 3, 4));
  utils::WriteChoice(list, "c", {{U16("x"), U16("y")}, 1});
  const std::string before = Saved(list);
  EXPECT_EQ(list.Get("n", 8u), 8u);
  EXPECT_EQ(list.GetOrAdd("n", true), true);
  EXPECT_EQ(list.GetSubList("n"), nullptr);
  RectT<float> rectangle(9, 9, 9, 9);
  EXPECT_FALSE(utils::ReadRect32(list, "n", rectangle));
  EXPECT_FALSE(utils::ReadRect32(list, "c", rectangle));
  EXPECT_EQ(rectangle, RectT<float>(9, 9, 9, 9));
  EXPECT_EQ(Saved(list), before);

  EXPECT_TRUE(utils::ReadRect32(list, "r", rectangle));
  EXPECT_EQ(rectangle, RectT<float>(1, 2, 3, 4));
  EXPECT_EQ(KeysOf(list, "r") + KeysOf(list, "c"),
            ".aptype height left top width .aptype items selected ");
  utils::Choice choice;
  EXPECT_FALSE(utils::ReadChoice(list, "r", choice));
  EXPECT_TRUE(utils::ReadChoice(list, "c", choice));
  EXPECT_EQ(U8(choice.items.at(choice.selected)), "y");
  list.GetSubList("r")->Remove("top");
  EXPECT_FALSE(utils::ReadRect32(list, "r", rectangle));

  EXPECT_EQ(list.GetOrAdd("m", std::int32_t(5)), 5);
  EXPECT_EQ(list.GetOrAdd("m", std::int32_t(6)), 5);
  EXPECT_EQ(list.Get<std::int32_t>("m", 0), 5);
}

TEST(PropLists, PointersHoldWhileTheirKeysDoAndListsMayBeAssignedWithinEachOther) {
  PropList list;
  PropList& sub = list.CreateSubList("sub");
  for (char key[] = "a"; *key <= 'z'; ++*key)
    list.Set(key, true);
  for (char key[] = "a"; *key < 'z'; ++*key)
    EXPECT_TRUE(list.Remove(key));
  EXPECT_FALSE(list.Remove("a"));
  PropList moved = std::move(list);
  EXPECT_EQ(moved.GetSubList("sub"), &sub);
  sub.Set("in", std::int32_t(1));

  sub = moved;
  EXPECT_EQ(moved.GetSubList("sub")->GetSubList("sub")->Get<std::int32_t>("in", 0), 1);
  moved = std::move(*moved.GetSubList("sub"));
  EXPECT_EQ(moved.GetSubList("sub")->Get<std::int32_t>("in", 0), 1);
  EXPECT_TRUE(moved.Get("z", false));
}

TEST(PropLists, FindTheirKeysHoweverManyThereAreAndHaveBeen) {
  std::mt19937 random(5);
  PropList list;
  std::map<std::string, std::int32_t> model;
  for (std::int32_t step = 0; step < 3000; ++step) {
    // Long and short in turns.
    const bool grows = step / 60 % 2 == 0;
    const std::string key = "k" + std::to_string(random() % 20);
    if (random() % 4 == 0 ? !grows : grows) {
      list.Set<std::int32_t>(key.c_str(), step);
      model[key] = step;
    } else {
      EXPECT_EQ(list.Remove(key.c_str()), model.erase(key) != 0);
    }
    if (step % 500 == 0) list = PropList(list);
    ASSERT_EQ(list.GetSize(), model.size());
    for (int i = 0; i < 20; ++i) {
      const std::string each = "k" + std::to_string(i);
      const auto found = model.find(each);
      const std::int32_t* const value = list.Find<std::int32_t>(each.c_str());
      ASSERT_EQ(value != nullptr, found != model.end()) << step << " " << each;
      if (value) {
        ASSERT_EQ(*value, found->second);
      }
    }
  }
}

TEST(PropLists, DepthDoesNotEndTheStackAndIsNotSaved) {
  const TemporaryFolder folder;
  folder.GetFile("f").ReplaceContents("old");
  PropList list;
  PropList* deepest = &list;
  for (int at = 0; at < 100000; ++at)
    deepest = &deepest->CreateSubList("");
  const PropList copy = list;
  EXPECT_TRUE(copy == list);
  deepest->Set("x", true);
  EXPECT_FALSE(copy == list);
  EXPECT_EQ(WordsOf([&] { utils::SavePropList(folder.GetFile("f"), list); }),
            "Cannot save \"" + folder.GetPath("f") + "\": Its lists are nested too deep");
  EXPECT_THROW(utils::SavePropListToBuffer(list), lumcore::config::Error);
  EXPECT_EQ(folder.Describe(), "f=old");
}

TEST(PropLists, LoadingReplacesOrKeepsWhatTheFileDoesNotName) {
  const TemporaryFolder folder;
  PropList fromFile;
  fromFile.CreateSubList("s").Set("a", std::int32_t(1));
  fromFile.Set("t", false);
  utils::SavePropList(folder.GetFile("f"), fromFile);

  PropList list;
  list.Set("own", true);
  list.CreateSubList("s").Set("b", std::int32_t(2));
  list.GetSubList("s")->Set("a", true);
  list.CreateSubList("t");
  PropList expected = list;
  expected.Set("t", false);
  expected.GetSubList("s")->Set("a", std::int32_t(1));
  utils::LoadPropList(folder.GetFile("f"), list, true);
  EXPECT_EQ(Saved(list), Saved(expected));
  utils::LoadPropList(folder.GetFile("f"), list, false);
  EXPECT_EQ(Saved(list), Saved(fromFile));
}

}  // namespace
