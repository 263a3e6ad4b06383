// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <map>
#include <memory>

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/ModuleHandle.h"
#include "lumui/ui/ModuleInfo.h"
#include "lumui/utility/DrawbotImageResourceCache.h"
#include "lumui/utility/ModuleResources.h"
#include "lumui/utility/ResourceManager.h"
#include "support/DrawbotPictures.h"
#include "vek/utility/VekResources.h"

using namespace lumui::utility;
using namespace test_support;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;

namespace {

const unsigned char kStrangeBytes[] = {'q'};
constexpr std::uint64_t kTheirChecksum = (0xcbf29ce484222325u ^ 'q') * 0x100000001b3u;

template <class Call>
std::string ErrorOf(Call inCall) {
  try {
    inCall();
  } catch (const lumcore::config::Error& error) {
    return error.what();
  }
  return "nothing";
}

}  // namespace

class Resources : public DrawbotTest {
 protected:
  auto Image(const char* inName) const { return mCache.GetImage(mOwn, mSupplier, ToUTF8(inName)); }

  // "3 bytes", or "none".
  std::string Find(const char* inName, const char* inType) const {
    std::vector<unsigned char> bytes(7);
    const bool found = mOwn.GetBinary(ToUTF16(inName), inType, bytes);
    EXPECT_EQ(mOwn.HasBinary(ToUTF16(inName), inType), found);
    if (!found && !bytes.empty()) return "none, with bytes of something else";
    return found ? std::to_string(bytes.size()) + " bytes" : "none";
  }

  ResourceManager mOwn{lumui::ui::ModuleOfAddress(kStrangeBytes)};
  const ResourceManager& mVek = *vek::utility::GetResourceManager();
  DrawbotImageResourceCache mCache;
};

TEST_F(Resources, AreFoundByNameAndTypeInAnyCase) {
  struct Row {
    const char* name;
    const char* type;
    const char* expected;
  };
  const Row rows[] = {
      {"note", "xml", "8 bytes"},     {"NoTe", "XmL", "8 bytes"}, {"empty", "xml", "0 bytes"},
      {"note", "png", "none"},        {"not", "xml", "none"},     {"", "", "none"},
      {"../XML/NOTE", "xml", "none"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Find(row.name, row.type), row.expected) << row.name << " " << row.type;
  EXPECT_EQ(ErrorOf([&] { mOwn.GetRequiredBinary(ToUTF16("Gone"), "xml"); }),
            "The module \"vek_resources_tests\" has no resource \"Gone\" of the type \"xml\".");
  EXPECT_EQ(ErrorOf([&] { Image("Gone.png"); }),
            "The module \"vek_resources_tests\" has no resource \"Gone\" of the type \"PNG\".");
  EXPECT_FALSE(ResourceManager(nullptr).HasBinary(ToUTF16("note"), "xml"));
}

// All else stays as it is written, also what cannot be parsed, in places where a wrong end would be
// found too early.
TEST_F(Resources, DocumentsHaveTheValuesOfTheirEntitiesInEmptyElements) {
  const auto text = [this](const char* inName) {
    const auto bytes = mOwn.GetRequiredBinary(ToUTF16(inName), "xml");
    return std::string(bytes.begin(), bytes.end());
  };
  const std::string document = text("entities");
  const std::size_t body = document.find("\n]>\n") + 4;
  EXPECT_EQ(document.substr(0, body), R"(<?xml version="1.0"?>
<!-- "&one;" -->
<!DOCTYPE a [
  <!-- <!ENTITY one "no"> ]> -->
  <!ENTITY far SYSTEM "a]>b.xml">
  <!ATTLIST a z CDATA "]>&one;">
  <!ENTITY one  'first'> <!ENTITY one "second">
  <!ENTITY two "&one;"> <!ENTITY three "<&#60;">
]>
)");
  EXPECT_EQ(document.substr(body), R"(<a b="x&one;/>" c='&one;'>
<a b="xfirstyfirst" c = '>first' d="&two;&three;&far;&none;&amp;&#65;&" e="&one"/><![CDATA[<a b="&one;"/>]]>
&one; "&one;" <?p a="&one;"?><!-- <a b="&one;"/> --></a>
<a b="&one;
)");
  EXPECT_NE(text("parameters").find("<a b=\"&one;\"/>"), std::string::npos);
}

TEST_F(Resources, OfTwoModulesDoNotMix) {
  EXPECT_EQ(mCache.GetImage(mVek, mSupplier, ToUTF8("s_delete_md_n_d"))->GetWidth(), 16);
  EXPECT_EQ(Image("s_delete_md_n_d")->GetWidth(), 8);
  EXPECT_FALSE(mVek.HasBinary(ToUTF16("note"), "xml"));
  EXPECT_EQ(Find("SP_SCENE_XS_N", "png"), "none");
}

TEST_F(Resources, DamagedContainerIsReportedWhileItIsThere) {
  struct Row {
    std::uint64_t checksum;
    const char* cause;
  };
  for (const Row& row : {Row{kTheirChecksum + 1, "the checksum differs from that of the build"},
                         Row{kTheirChecksum, "it is of a form that is not known here"}}) {
    const ModuleResources damaged(kStrangeBytes, sizeof kStrangeBytes, row.checksum);
    for (int times = 0; times < 2; ++times) {
      EXPECT_EQ(ErrorOf([&] { Find("gone", "xml"); }),
                std::string("The resources of the module \"vek_resources_tests\" are damaged: ") +
                    row.cause + ".");
    }
    EXPECT_TRUE(mVek.HasBinary(ToUTF16("sp_scene_xs_n"), "png"));
  }
  EXPECT_EQ(Find("gone", "xml"), "none");
}

TEST_F(Resources, ImageHasTheRasterOfEachScaleInItsSizeAndColor) {
  const auto big = Image("dot_BIG_s");
  EXPECT_EQ(big, Image("Dot_Big_S.Png"));
  EXPECT_NE(big, Image("Dot_Sm_S"));
  EXPECT_EQ(big->GetWidth(), 20);
  EXPECT_EQ(big->GetHeight(), 10);
  std::string picked;
  for (float scale : {1.0f, 1.2f, 1.6f, 2.5f, 4.0f})
    picked += std::to_string(big->PickScale(scale)).substr(0, 3) + " ";
  EXPECT_EQ(picked, "1.0 1.5 2.0 3.0 3.0 ");

  const auto surface = NewSurface(8, 4, 1.5f);
  surface->GetDrawbot().DrawImage(*Image("dot_sm_n"), Point(0, 0));
  std::string expected;
  for (int row = 0; row < 6; ++row)
    expected += "RRRRRR......\n";
  EXPECT_EQ(ToText(*surface), expected);
  EXPECT_EQ(mCache.GetImage(mVek, mSupplier, ToUTF8("UIShell_Folder"))->PickScale(2), 1);
}

TEST_F(Resources, EveryImageOfVekIsThere) {
  std::map<std::string, float> widths;
  for (const char* icon : {"Delete", "DisclosureTriangle", "DisclosureTriangleDown", "GenericFile",
                           "LiveLink", "SaveAs", "Scene", "Sequence", "SortDown", "SortUp"}) {
    for (const char* state : {"_N", "_S", "_N_D", "_S_D"}) {
      widths["SP_" + std::string(icon) + "_Xs" + state] = 10;
      widths["SP_" + std::string(icon) + "_Sm" + state] = 12;
      widths["SP_" + std::string(icon) + "_Md" + state] = 16;
    }
  }
  for (const char* icon : {"VLXProj", "MRXProj", "Collapse", "CollapseMAC", "Desktop", "Drive",
                           "Expand", "ExpandMAC", "Folder", "MyComputer", "MyDocuments"})
    widths["UIShell_" + std::string(icon)] = 16;
  widths["S_Save_Md_N_D"] = 16;
  for (const auto& [name, width] : widths)
    EXPECT_EQ(mCache.GetImage(mVek, mSupplier, ToUTF8(name))->GetWidth(), width) << name;
}

TEST(ModuleTable, InitializesWhatIsInItAtTheTime) {
  std::string log;
  struct Module : lumui::ui::ModuleInfo {
    Module(std::string& ioLog, std::string inName) : mLog(ioLog), mName(std::move(inName)) {}
    void Initialize() override {
      mLog += mName + " ";
      if (mName == "copied") mMade = std::make_unique<Module>(mLog, "made");
    }
    Module(const Module& inOther) : ModuleInfo(inOther), mLog(inOther.mLog), mName("copied") {}

    std::string& mLog;
    std::string mName;
    std::unique_ptr<Module> mMade;
  };
  auto first = std::make_unique<Module>(log, "first");
  const Module second(log, "second");
  const Module copy(*first);
  first.reset();
  lumui::ui::ModuleInfo::InitializeAll();
  EXPECT_EQ(log, "second copied made ");
}
